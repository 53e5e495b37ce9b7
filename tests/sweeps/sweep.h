#pragma once

#include <functional>
#include <memory>
#include <string>

#include "simulation/machine/machine.h"

namespace orvik::sweeps {

/// What a run came to: everything that its caller was told, as a text; `defined` when it is something that may be
/// told at all.
struct Answer {
  bool defined = true;
  std::string text;
};

/// A machine with what talks to it, ready for one thing to be done any number of times.
class Scene {
 public:
  explicit Scene(std::shared_ptr<simulation::Machine> itsMachine) : machine(std::move(itsMachine)) {}
  Scene(const Scene&) = delete;
  Scene& operator=(const Scene&) = delete;
  virtual ~Scene() = default;

  virtual Answer Run() = 0;
  /// Drops what was remembered of earlier answers on purpose, wrong ones included.
  virtual void Forget() {}

  const std::shared_ptr<simulation::Machine> machine;
};

/// Makes a fresh scene on a machine of its own, which it installs.
using MakeScene = std::function<std::unique_ptr<Scene>()>;

/// Runs the scene with each of its outside calls failing in each way in which it can, and with memory running out at
/// each of its allocations. Expects a defined answer each time, nothing kept at the end, and the healthy answer
/// of the same scene right after. Returns the number of failing runs.
std::size_t SweepFaults(const MakeScene& make);

}  // namespace orvik::sweeps
