// Identification of a drive and a read of 256 sectors through each protocol, beside the same commands sent to the
// bare bridge.

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <memory>
#include <string>
#include <vector>

#include "benchmarks/machines.h"
#include "benchmarks/outside_calls.h"
#include "module/storage/ata/ata_protocol.h"
#include "module/storage/nvme/nvme_protocol.h"
#include "module/storage/nvme/path_scan.h"
#include "module/storage/scsi/scsi_protocol.h"
#include "utils/devices/win_device_interface_scanner.h"
#include "utils/windows/unique_handle.h"

namespace orvik::benchmarks {
namespace {

using namespace module::storage;

constexpr std::uint16_t kSectors = 256;

utils::UniqueHandle Open(const std::string& path) {
  HANDLE handle = INVALID_HANDLE_VALUE;
  WinDeviceInterfaceScanner().OpenDevice(path, handle);
  return utils::UniqueHandle(handle);
}

/// A bridge that writes down what it carries.
template <typename Bridge, typename Command>
class RecordingBridge final : public Bridge {
 public:
  using Bridge::Bridge;

  Status Send(Command& command) override {
    commands.push_back(command);
    return Bridge::Send(command);
  }

  std::vector<Command> commands;
};

/// What differs between the protocols.
struct Ata {
  using ProtocolType = AtaProtocol;
  using Bridge = AtaBridge;
  using Command = AtaCmd;
  static utils::UniqueHandle OpenDrive() { return Open(R"(\\.\PhysicalDrive0)"); }
  static void Prepare(ProtocolType& /*protocol*/, HANDLE /*handle*/) {}
};

struct Scsi {
  using ProtocolType = ScsiProtocol;
  using Bridge = ScsiBridge;
  using Command = ScsiCmd;
  static utils::UniqueHandle OpenDrive() { return Open(R"(\\.\PhysicalDrive1)"); }
  static void Prepare(ProtocolType& /*protocol*/, HANDLE /*handle*/) {}
};

struct Nvme {
  using ProtocolType = NvmeProtocol;
  using Bridge = NvmeIntelBridge;
  using Command = NvmeCmd;
  static utils::UniqueHandle OpenDrive() {
    return Open(simulation::CurrentMachine()->Adapters().front()->Description().interfaces.front().path);
  }
  static void Prepare(ProtocolType& protocol, HANDLE handle) {
    NvmeIntelBridge bridge(handle);
    NvmePath path;
    if (FindNvmePath(bridge, {}, path)) protocol.SetPathId(path.pathId);
  }
};

/// With requests that take at least as many microseconds as the benchmark's argument says.
void InstallDrives(const benchmark::State& state) {
  SetRequestTime(std::chrono::microseconds(state.range(0)));
  // The C library changes its mind about blocks of this size while it runs, which would meet one side only.
  mallopt(M_MMAP_THRESHOLD, 1 << 24);
  mallopt(M_TRIM_THRESHOLD, 1 << 26);
  auto adapter = simulation::PciRaidAdapter("a77f", 14);
  adapter.csmi.emplace();
  adapter.csmi->drives.emplace_back(simulation::NvmeDriveDescription{
      .model = "NVMe ORVK SSD 512GB", .serial = "NV-A", .firmware = "OV10", .sectors = 1'000'215'216});
  adapter.csmi->raidSets.push_back({.capacityMiB = 1000, .members = {{.drive = 0}}});
  Install({.adapters = {adapter},
           .physicalDrives = {{.drive = simulation::SataDriveDescription{.model = "WDC WD80ORVK",
                                                                         .serial = "WD-A",
                                                                         .firmware = "01.01A01",
                                                                         .sectors = 15'628'053'168}},
                              {.drive = simulation::SasDriveDescription{.vendor = "ORVIK",
                                                                        .product = "OVS9000",
                                                                        .revision = "0001",
                                                                        .serial = "SAS-B",
                                                                        .sectors = 17'578'328'064}}}});
}

enum class Operation : std::uint8_t { Identify, Read };

/// A drive, its protocol object and the bridge below it.
template <typename Kind>
class Subject {
 public:
  explicit Subject(Operation operation) : operation_(operation) {
    protocol_.AddBridge(bridge_);
    Kind::Prepare(protocol_, handle_.Get());
    ProtocolProperties properties;
    works = protocol_.GetProperties(&properties) == status::kSuccess;
    bridge_->commands.clear();
    works = works && RunOn(protocol_) == status::kSuccess;
    commands_ = bridge_->commands;
    works = works && !commands_.empty();
    unrecorded_.AddBridge(std::make_shared<typename Kind::Bridge>(handle_.Get()));
    Kind::Prepare(unrecorded_, handle_.Get());
    works = works && unrecorded_.GetProperties(&properties) == status::kSuccess;
  }

  Status Run() { return RunOn(unrecorded_); }

  void SendCommands() {
    for (typename Kind::Command command : commands_) {
      if (command.length != 0) command.buffer = buffer_.data();
      benchmark::DoNotOptimize(bare_.Send(command));
    }
  }

  bool works = false;

 private:
  Status RunOn(typename Kind::ProtocolType& protocol) {
    if (operation_ == Operation::Read) {
      return protocol.Read(0x1000, kSectors, 0, buffer_.data(), static_cast<std::uint32_t>(buffer_.size()));
    }
    ProtocolProperties properties;
    return protocol.GetProperties(&properties);
  }

  Operation operation_;
  utils::UniqueHandle handle_ = Kind::OpenDrive();
  typename Kind::ProtocolType protocol_;
  typename Kind::ProtocolType unrecorded_;
  typename Kind::Bridge bare_{handle_.Get()};
  std::shared_ptr<RecordingBridge<typename Kind::Bridge, typename Kind::Command>> bridge_ =
      std::make_shared<RecordingBridge<typename Kind::Bridge, typename Kind::Command>>(handle_.Get());
  std::vector<typename Kind::Command> commands_;
  std::vector<std::uint8_t> buffer_ = std::vector<std::uint8_t>(std::size_t{kSectors} * 512);
};

template <typename Kind, Operation kOperation>
void ByProtocol(benchmark::State& state) {
  InstallDrives(state);
  Subject<Kind> subject(kOperation);
  if (!subject.works) return state.SkipWithError("the drive does not answer");
  for ([[maybe_unused]] const auto& iteration : state) benchmark::DoNotOptimize(subject.Run());
}

template <typename Kind, Operation kOperation>
void ByBridge(benchmark::State& state) {
  InstallDrives(state);
  Subject<Kind> subject(kOperation);
  if (!subject.works) return state.SkipWithError("the drive does not answer");
  for ([[maybe_unused]] const auto& iteration : state) subject.SendCommands();
}

void RequestTimes(benchmark::internal::Benchmark* benchmark) {
  benchmark->ArgName("request_us")->Arg(0)->Arg(5)->Unit(benchmark::kMicrosecond);
}

BENCHMARK(ByProtocol<Ata, Operation::Identify>)->Name("IdentifyByProtocol/ATA")->Apply(RequestTimes);
BENCHMARK(ByBridge<Ata, Operation::Identify>)->Name("IdentifyByBridge/ATA")->Apply(RequestTimes);
BENCHMARK(ByProtocol<Scsi, Operation::Identify>)->Name("IdentifyByProtocol/SCSI")->Apply(RequestTimes);
BENCHMARK(ByBridge<Scsi, Operation::Identify>)->Name("IdentifyByBridge/SCSI")->Apply(RequestTimes);
BENCHMARK(ByProtocol<Nvme, Operation::Identify>)->Name("IdentifyByProtocol/NVMe")->Apply(RequestTimes);
BENCHMARK(ByBridge<Nvme, Operation::Identify>)->Name("IdentifyByBridge/NVMe")->Apply(RequestTimes);
BENCHMARK(ByProtocol<Ata, Operation::Read>)->Name("ReadByProtocol/ATA")->Apply(RequestTimes);
BENCHMARK(ByBridge<Ata, Operation::Read>)->Name("ReadByBridge/ATA")->Apply(RequestTimes);
BENCHMARK(ByProtocol<Scsi, Operation::Read>)->Name("ReadByProtocol/SCSI")->Apply(RequestTimes);
BENCHMARK(ByBridge<Scsi, Operation::Read>)->Name("ReadByBridge/SCSI")->Apply(RequestTimes);
BENCHMARK(ByProtocol<Nvme, Operation::Read>)->Name("ReadByProtocol/NVMe")->Apply(RequestTimes);
BENCHMARK(ByBridge<Nvme, Operation::Read>)->Name("ReadByBridge/NVMe")->Apply(RequestTimes);

}  // namespace
}  // namespace orvik::benchmarks
