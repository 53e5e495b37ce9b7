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
  pool_.Post(std::move(task));
}

void GeneralDiagnosticDispatcher::NotifyStarted(const std::unique_ptr<core::DispatchRequest>& request) {
  if (request == nullptr) return;
  const auto device = request->GetDevice().lock();
  if (device == nullptr) return;

  if (WantsExclusiveTest(*request)) exclusiveTestRunning_ = true;
  const std::string id = device->GetId();
  Reservation& reservation = reservations_[device];
  reservation.id = id;
  ++reservation.count;
  if (request->GetMode() == core::DispatchRequest::kSharedMode) {
    runningDevices_.insert(id);
  } else {
    exclusiveHolder_ = std::make_unique<std::string>(id);
  }
}

void GeneralDiagnosticDispatcher::NotifyFinished(const std::unique_ptr<core::DispatchRequest>& request) {
  if (request == nullptr) return;
  const auto reservation = reservations_.find(request->GetDevice());
  const auto device = request->GetDevice().lock();
  if (device == nullptr && reservation == reservations_.end()) return;

  if (WantsExclusiveTest(*request)) exclusiveTestRunning_ = false;
  if (request->GetMode() == core::DispatchRequest::kSharedMode) {
    runningDevices_.erase(device != nullptr ? device->GetId() : reservation->second.id);
  } else {
    exclusiveHolder_.reset();
  }
  if (reservation != reservations_.end() && --reservation->second.count == 0) reservations_.erase(reservation);
}

}  // namespace orvik::utils
