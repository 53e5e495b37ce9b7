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

/// Runs the host's work on a pool of workers and keeps the book of reserved devices. The book has no lock: the host
/// calls the reservation operations from one thread at a time. Must not be destroyed on one of its own workers.
class GeneralDiagnosticDispatcher final : public core::DiagnosticDispatcher {
 public:
  explicit GeneralDiagnosticDispatcher(unsigned hardwareThreads = std::thread::hardware_concurrency());
  ~GeneralDiagnosticDispatcher() override;

  bool CanStart(const std::unique_ptr<core::DispatchRequest>& request) const override;
  void Dispatch(std::unique_ptr<core::TaskInterface> task) override;
  void NotifyFinished(const std::unique_ptr<core::DispatchRequest>& request) override;
  void NotifyStarted(const std::unique_ptr<core::DispatchRequest>& request) override;

  /// One worker fewer than the machine's hardware threads, but at least one; two when their number isn't known (0).
  static std::size_t WorkerCount(unsigned hardwareThreads);

 private:
  std::set<std::string> runningDevices_;
  std::unique_ptr<std::string> exclusiveHolder_;
  bool exclusiveTestRunning_ = false;
  // A device that goes away while it is reserved can't be asked for its id any more.
  std::map<std::weak_ptr<core::Device>, std::string, std::owner_less<>> reservedIds_;
  ThreadPool pool_;
};

}  // namespace orvik::utils
