#include "host/run/exit_code.h"

namespace orvik::host {
namespace {

int Weight(ExitCode code) {
  switch (code) {
    case ExitCode::Failed: return 3;
    case ExitCode::CouldNotTell: return 2;
    case ExitCode::Warning: return 1;
    case ExitCode::AllRight: break;
  }
  return 0;
}

}  // namespace

ExitCode ExitCodeOf(const RunOutcome& outcome) {
  if (!outcome.result || !outcome.error.isEmpty()) return ExitCode::CouldNotTell;
  switch (*outcome.result) {
    case core::TestResult::Passed:
    case core::TestResult::NotApplicable: return ExitCode::AllRight;
    case core::TestResult::Warning: return ExitCode::Warning;
    case core::TestResult::Failed: return ExitCode::Failed;
    case core::TestResult::Invalid:
    case core::TestResult::Aborted: break;
  }
  return ExitCode::CouldNotTell;
}

ExitCode Worse(ExitCode first, ExitCode second) {
  return Weight(second) > Weight(first) ? second : first;
}

}  // namespace orvik::host
