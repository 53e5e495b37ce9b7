#pragma once

#include <functional>
#include <memory>
#include <string>

#include "simulation/machine/machine.h"

namespace orvik::sweeps {

/// The outcome of a run: everything that it returned to its caller, as text, and whether that is a defined result.
struct Answer {
  bool defined = true;
  std::string text;
};

/// A machine and a caller that repeats one action on it any number of times.
class Scene {
 public:
  explicit Scene(std::shared_ptr<simulation::Machine> itsMachine) : machine(std::move(itsMachine)) {}
  Scene(const Scene&) = delete;
  Scene& operator=(const Scene&) = delete;
  virtual ~Scene() = default;

  virtual Answer Run() = 0;
  /// Drops results that are cached on purpose, wrong ones included.
  virtual void Forget() {}

  const std::shared_ptr<simulation::Machine> machine;
};

/// Makes a fresh scene on a machine of its own, which it installs.
using MakeScene = std::function<std::unique_ptr<Scene>()>;

/// Runs the scene with each of its external calls failing in every way it can, and with each of its allocations
/// failing. Expects a defined answer and no leak each time, and the healthy answer of the same scene right
/// after. Returns the number of failing runs.
std::size_t SweepFaults(const MakeScene& make);

}  // namespace orvik::sweeps
