// Hours of a host's life in minutes: on a machine that is another one every few milliseconds, the built library is
// loaded, asked, and unloaded, over and over. Prints a line of what the process holds about ten times a second:
// seconds, rounds, resident and used bytes, threads, files, and what the machines have handed out and not got back.
// Each line is taken when the module has just scanned an empty machine. Usage: soak MINUTES MODULE

#include <dlfcn.h>
#include <malloc.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <future>
#include <memory>
#include <random>
#include <thread>
#include <vector>

#include "benchmarks/soak/random_machine.h"
#include "core/module.h"
#include "module/raid/device_records.h"
#include "module/storage/protocol.h"
#include "simulation/machine/current_machine.h"

namespace {

using namespace orvik;
using Clock = std::chrono::steady_clock;

constexpr unsigned kRoundsOfAModule = 20;
constexpr auto kBetweenSamples = std::chrono::milliseconds(100);

class Host final : public core::ScanListener, public core::RunReporter {
 public:
  void OnDeviceFound(const core::DeviceDescription& /*description*/) override {}
  void OnScanFinished() override {}
  void OnPresenceChecked(bool /*present*/) override {}
  void SetProgress(std::uint8_t /*percent*/) override {}
  void AddMessage(const core::TestMessage& /*message*/) override {}
  // Questions are closed without an answer.
  void Ask(std::unique_ptr<core::InputInteraction>& /*question*/) override {}
};

using FunctionTask = core::Task<std::function<void()>>;

/// The library and its module object.
class LoadedModule {
 public:
  explicit LoadedModule(const char* path) : library_(dlopen(path, RTLD_NOW)) {
    if (library_ == nullptr) {
      std::fprintf(stderr, "%s\n", dlerror());
      std::exit(2);
    }
    module_ = reinterpret_cast<core::Module* (*)()>(dlsym(library_, "CreateModuleInstance"))();
  }
  LoadedModule(const LoadedModule&) = delete;
  LoadedModule& operator=(const LoadedModule&) = delete;
  ~LoadedModule() {
    reinterpret_cast<void (*)(core::Module*)>(dlsym(library_, "DestroyModuleInstance"))(module_);
    dlclose(library_);
  }

  core::Module* operator->() const { return module_; }

 private:
  void* library_;
  core::Module* module_;
};

class Soak {
 public:
  explicit Soak(const char* modulePath) : modulePath_(modulePath) {}

  void Run(Clock::duration time) {
    const auto begin = Clock::now();
    auto sampled = begin;
    for (unsigned round = 0; Clock::now() - begin < time; ++round) {
      if (round % kRoundsOfAModule == 0) {
        Rest();
        module_.reset();
        // A machine keeps a book of what was asked of it.
        empty_ = std::make_shared<simulation::Machine>();
        simulation::InstallMachine(empty_);
        module_ = std::make_unique<LoadedModule>(modulePath_);
      }
      machines_.push_back(std::make_shared<simulation::Machine>(benchmarks::RandomMachine(random_)));
      simulation::InstallMachine(machines_.back());
      Round();
      if (Clock::now() - sampled < kBetweenSamples) continue;
      sampled = Clock::now();
      Rest();
      Sample(std::chrono::duration<double>(sampled - begin).count(), round);
    }
    Rest();
    module_.reset();
  }

 private:
  /// A scan of an empty machine, so that nothing is held of those before.
  void Rest() {
    simulation::InstallMachine(empty_);
    if (module_ != nullptr) (*module_)->GetDeviceScanner()->Scan(host_);
    // The vendor's library, which belongs to the machine on which the module was loaded, is still in use.
    held_ = empty_->Ledger().OutstandingTotal() - empty_->Ledger().Outstanding(simulation::Resource::Library);
    for (const auto& machine : machines_) {
      held_ += machine->Ledger().OutstandingTotal() + machine->Ledger().InvalidReleases();
    }
    machines_.clear();
  }

  void Round() {
    const auto scanner = (*module_)->GetDeviceScanner();
    scanner->CheckPresence(host_);
    scanner->Scan(host_);
    ChangeBehindTheHostsBack(*machines_.back());
    for (const auto& device : scanner->GetDevices()) {
      for (const core::TestId id : (*module_)->GetTestIds()) RunTest(device, id);
      UseDrives(*std::static_pointer_cast<module::raid::RaidDevice>(device.lock()));
    }
  }

  void ChangeBehindTheHostsBack(simulation::Machine& machine) {
    for (std::uint32_t id = 0; id < 4; ++id) {
      auto* const controller = machine.Storelib().FindController(id);
      if (controller == nullptr) continue;
      controller->SetState(0, static_cast<simulation::StorelibDriveState>(random_() % 4));
      controller->SetBattery({.packMissing = random_() % 2 == 0});
    }
  }

  /// On a worker, as a host runs it; now and then aborted in the middle.
  void RunTest(const std::weak_ptr<core::Device>& device, core::TestId id) {
    const auto test = (*module_)->CreateTest(id);
    const auto dispatcher = (*module_)->GetDispatcher();
    const auto request = std::make_unique<core::DispatchRequest>(device, 1, test.get());
    if (!dispatcher->CanStart(request)) std::exit(3);
    dispatcher->NotifyStarted(request);
    core::AbortFlag abort = 0;
    core::RunArguments arguments{.device = device, .abortFlag = &abort, .reporter = host_.get()};
    std::promise<void> done;
    dispatcher->Dispatch(std::make_unique<FunctionTask>([&] {
      test->Run(arguments);
      done.set_value();
    }));
    if (random_() % 8 == 0) abort = 1;
    done.get_future().wait();
    dispatcher->NotifyFinished(request);
  }

  void UseDrives(module::raid::RaidDevice& device) {
    std::vector<module::raid::StorageDeviceEntry> drives;
    // A failing list may still hold drives.
    module::storage::Ignore(module::storage::Status{device.GetStorageDevices(drives)});
    for (const auto& entry : drives) {
      for (const auto& drive : {entry.protocolObject, entry.ataProtocolObject}) {
        if (drive != nullptr) UseDrive(*drive);
      }
    }
  }

  void UseDrive(module::storage::Protocol& drive) {
    using module::storage::Ignore;  // some calls fail on purpose
    module::storage::ProtocolProperties properties;
    // The sizes of reads and writes are those of the sectors that identification found.
    if (drive.GetProperties(&properties) != 0) return;
    std::vector<std::uint8_t> buffer(std::size_t{8} * std::max(properties.logicalSectorSize, 512U));
    Ignore(drive.Read(0, 8, 0, buffer.data(), static_cast<std::uint32_t>(buffer.size())));
    Ignore(drive.Write(8, 8, 0, buffer.data()));
    std::uint8_t byte = 0;
    std::uint32_t number = 0;
    std::uint64_t lba = 0;
    Ignore(drive.GetTemperature(byte));
    Ignore(drive.GetHealthStatus(byte));
    Ignore(drive.StartSelfTest(1, 0));
    Ignore(drive.GetSelfTestProgress(byte));
    Ignore(drive.AbortSelfTest());
    Ignore(drive.GetSelfTestResult(byte));
    Ignore(drive.GetSelfTestFailingLba(lba));
    Ignore(drive.SetSmartEnabled(1));
    Ignore(drive.WriteUncorrectable(100));
    Ignore(drive.GetLifeRemaining(number));
    Ignore(drive.GetPowerMode(number));
    Ignore(drive.Idle());
  }

  void Sample(double seconds, unsigned round) const {
    const auto entries = [](const char* folder) {
      return std::distance(std::filesystem::directory_iterator(folder), std::filesystem::directory_iterator());
    };
    unsigned long long pages = 0;
    std::FILE* const status = std::fopen("/proc/self/statm", "r");
    const bool read = status != nullptr && std::fscanf(status, "%*u %llu", &pages) == 1;
    if (status != nullptr) std::fclose(status);
    if (!read) std::exit(4);
    std::printf("%.2f %u %llu %zu %td %td %zu\n", seconds, round, pages * 4096, mallinfo2().uordblks,
                entries("/proc/self/task"), entries("/proc/self/fd"), held_);
    std::fflush(stdout);
  }

  const char* modulePath_;
  std::minstd_rand random_;
  std::shared_ptr<Host> host_ = std::make_shared<Host>();
  std::shared_ptr<simulation::Machine> empty_ = std::make_shared<simulation::Machine>();
  std::vector<std::shared_ptr<simulation::Machine>> machines_;  // since the last rest
  std::unique_ptr<LoadedModule> module_;
  std::size_t held_ = 0;
};

}  // namespace

int main(int count, char** arguments) {
  if (count != 3) {
    std::fputs("usage: soak MINUTES MODULE\n", stderr);
    return 2;
  }
  const double minutes = std::atof(arguments[1]);  // NOLINT(cert-err34-c): 0 ends at once
  Soak(arguments[2]).Run(std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(minutes * 60)));
  return 0;
}
