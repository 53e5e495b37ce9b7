#include "utils/dispatcher/general_diagnostic_dispatcher.h"

#include <utility>

namespace orvik::utils {

namespace {

bool WantsExclusiveTest(const core::DispatchRequest& request) {
  const core::Test* const test = request.GetTest();
  return test != nullptr && test->IsExclusive();
}

}  // namespace

GeneralDiagnosticDispatcher::GeneralDiagnosticDispatcher(unsigned hardwareThreads) {
  pool_.Start(WorkerCount(hardwareThreads));
}

GeneralDiagnosticDispatcher::~GeneralDiagnosticDispatcher() {
  pool_.Stop();
}

std::size_t GeneralDiagnosticDispatcher::WorkerCount(unsigned hardwareThreads) {
  if (hardwareThreads == 0) return 2;
  return hardwareThreads == 1 ? 1 : hardwareThreads - 1;
}

bool GeneralDiagnosticDispatcher::CanStart(const std::unique_ptr<core::DispatchRequest>& request) const {
  if (request == nullptr) return true;
  const auto device = request->GetDevice().lock();
  if (device == nullptr) return true;

  const std::string id = device->GetId();
  if (runningDevices_.contains(id) || (exclusiveHolder_ != nullptr && *exclusiveHolder_ == id)) return false;
  if (request->GetMode() == core::DispatchRequest::kExclusiveMode && exclusiveHolder_ != nullptr) return false;
  return !(WantsExclusiveTest(*request) && exclusiveTestRunning_);
}

void GeneralDiagnosticDispatcher::Dispatch(std::unique_ptr<core::TaskInterface> task) {
  if (task == nullptr) return;
  // Nobody waits for the outcome.
  pool_.Post([owned = std::move(task)] { owned->Execute(); });
}

void GeneralDiagnosticDispatcher::NotifyStarted(const std::unique_ptr<core::DispatchRequest>& request) {
  if (request == nullptr) return;
  const auto device = request->GetDevice().lock();
  if (device == nullptr) return;

  if (WantsExclusiveTest(*request)) exclusiveTestRunning_ = true;
  const std::string id = device->GetId();
  reservedIds_[device] = id;
  if (request->GetMode() == core::DispatchRequest::kSharedMode) {
    runningDevices_.insert(id);
  } else {
    exclusiveHolder_ = std::make_unique<std::string>(id);
  }
}

void GeneralDiagnosticDispatcher::NotifyFinished(const std::unique_ptr<core::DispatchRequest>& request) {
  if (request == nullptr) return;
  const auto reserved = reservedIds_.find(request->GetDevice());
  const auto device = request->GetDevice().lock();
  if (device == nullptr && reserved == reservedIds_.end()) return;

  if (WantsExclusiveTest(*request)) exclusiveTestRunning_ = false;
  if (request->GetMode() == core::DispatchRequest::kSharedMode) {
    runningDevices_.erase(device != nullptr ? device->GetId() : reserved->second);
  } else {
    exclusiveHolder_.reset();
  }
  if (reserved != reservedIds_.end()) reservedIds_.erase(reserved);
}

}  // namespace orvik::utils
