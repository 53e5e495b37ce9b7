#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <thread>

#include "core/dispatcher.h"
#include "utils/dispatcher/thread_pool.h"

namespace orvik::utils {

/// Runs the host's tasks on a pool of workers and records which devices are reserved. The reservations have no lock:
/// the host calls their operations from one thread at a time. Must not be destroyed on one of its own workers.
class GeneralDiagnosticDispatcher final : public core::DiagnosticDispatcher {
 public:
  explicit GeneralDiagnosticDispatcher(unsigned hardwareThreads = std::thread::hardware_concurrency());
  ~GeneralDiagnosticDispatcher() override;

  bool CanStart(const std::unique_ptr<core::DispatchRequest>& request) const override;
  void Dispatch(std::unique_ptr<core::TaskInterface> task) override;
  void NotifyFinished(const std::unique_ptr<core::DispatchRequest>& request) override;
  void NotifyStarted(const std::unique_ptr<core::DispatchRequest>& request) override;

  /// One worker fewer than the hardware threads of the machine, but at least one; two when their number is unknown
  /// (0).
  static std::size_t WorkerCount(unsigned hardwareThreads);

 private:
  struct Reservation {
    std::string id;
    int count = 0;  ///< `NotifyStarted` without its `NotifyFinished`
  };

  std::set<std::string> runningDevices_;
  std::unique_ptr<std::string> exclusiveHolder_;
  bool exclusiveTestRunning_ = false;
  // By device, also after it was destroyed and can no longer return its id.
  std::map<std::weak_ptr<core::Device>, Reservation, std::owner_less<>> reservations_;
  ThreadPool pool_;
};

}  // namespace orvik::utils
