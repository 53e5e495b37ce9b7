#pragma once

// The machine and the questions of the dialog tests.

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "core/input_interaction.h"
#include "simulation/machine/current_machine.h"

namespace orvik::testing {

class DesktopMachine : public ::testing::Test {
 protected:
  DesktopMachine() { Install({}); }
  ~DesktopMachine() override {
    EXPECT_EQ(machine_->Ledger().OutstandingTotal(), 0U);
    EXPECT_EQ(machine_->Ledger().InvalidReleases(), 0U);
  }

  void Install(simulation::DesktopDescription desktop) {
    desktop.programData = folder_.path().toStdString();
    machine_ = std::make_shared<simulation::Machine>(simulation::MachineDescription{.desktop = std::move(desktop)});
    simulation::InstallMachine(machine_);
  }

  QTemporaryDir folder_;
  std::shared_ptr<simulation::Machine> machine_;
};

/// A question with the request's codes for kind and buttons.
inline std::unique_ptr<InputRequest> Question(std::uint32_t kind, std::uint32_t buttons) {
  auto request = std::make_unique<InputRequest>();
  request->answer = 99;
  request->title = "TITLE";
  request->text = "FIRST SECOND";
  request->kind = kind;
  request->buttons = buttons;
  return request;
}

}  // namespace orvik::testing
