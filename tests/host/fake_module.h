#pragma once

#include <memory>

#include "core/dispatcher.h"
#include "core/module.h"
#include "module/storage/protocol.h"

// A small module for the host to load: two devices, a test for every outcome, and a log of the calls. The environment
// selects its faults.
namespace orvik::tests {

/// Tests of the fake module, by id.
enum FakeTest : core::TestId {
  kPass = 1,
  kWarn,
  kFail,
  kUntilAborted,  ///< runs until aborted
  kThrow,
  kExclusive,
  kMeet,  ///< passes only if a run on the other device is active at the same time
  kInvalid,
  kFirstDeviceOnly,
  kUnknownResult,
  kAsk,          ///< asks a question in a dialog and logs the answer
  kUnmade = 99,  ///< listed but never created
};

/// Ids of the tests to list, comma separated.
constexpr char kListEnvironment[] = "FAKE_TESTS";
/// Space-separated words: "empty", "scan-throws", "slots-fail", "no-instance", "swallow" (tasks), "refuse" (runs),
/// "stubborn" (about aborting), "endless" (self-tests), "no-vendor" (library on the simulated machine).
constexpr char kMoodEnvironment[] = "FAKE_MOOD";
/// Code that a self-test ends with, 0 without it.
constexpr char kSelfTestEnvironment[] = "FAKE_SELFTEST";
/// File that receives a line for each call of the host.
constexpr char kLogEnvironment[] = "FAKE_LOG";

bool IsInMood(const char* word);
void Log(const std::string& line);
std::string Environment(const char* name);

/// Drives that report everything, almost nothing, only what NVMe drives do, or everything except their capacity; and
/// an ATA object that reaches another drive.
enum class FakeDrive { Ata, Silent, Nvme, Scsi, OtherAta };
std::shared_ptr<module::storage::Protocol> MakeFakeDrive(FakeDrive kind);

core::TestResult AskFakeQuestion(core::RunReporter& reporter);

std::unique_ptr<core::Test> MakeFakeTest(core::TestId id);
std::shared_ptr<core::DeviceScanner> MakeFakeScanner();
std::shared_ptr<core::DiagnosticDispatcher> MakeFakeDispatcher();

}  // namespace orvik::tests
