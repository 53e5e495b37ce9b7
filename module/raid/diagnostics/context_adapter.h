#pragma once

#include <map>
#include <string>
#include <vector>

#include "core/input_interaction.h"
#include "core/run_arguments.h"

namespace legacy {

/// A host's test context over the arguments of a run (not owned, may be null): it reports only whether the run
/// was aborted. `IsAborted` may be called from any thread.
class ContextAdapter final : public TestContext {
 public:
  explicit ContextAdapter(const orvik::core::RunArguments* arguments) : arguments_(arguments) {}

  bool ReservedSlot1() override { return false; }
  bool ReservedSlot2() override { return false; }
  bool ReservedSlot3() override { return false; }
  bool ReservedSlot4() override { return false; }
  bool IsAborted() override { return arguments_ != nullptr && *arguments_->abortFlag != 0; }
  bool ReservedSlot6() override { return false; }
  std::map<std::string, std::string> TextValues() override { return {}; }
  std::vector<std::string> TextList() override { return {}; }

 private:
  const orvik::core::RunArguments* arguments_;
};

}  // namespace legacy
