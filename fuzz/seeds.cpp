// Writes the seeds of the fuzzers that take replies: what the drives of the simulated machine reply to everything
// that a host does, and faults of each kind at points spread over the use of a whole machine. fuzz_seeds FOLDER

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include "fuzz/host.h"
#include "fuzz/replies.h"
#include "module/raid/csmi/csmi_device_manager.h"
#include "module/storage/ata/ata_protocol.h"
#include "module/storage/nvme/nvme_protocol.h"
#include "module/storage/scsi/scsi_protocol.h"
#include "simulation/machine/current_machine.h"
#include "utils/devices/win_device_interface_scanner.h"
#include "utils/windows/unique_handle.h"

namespace {

using namespace orvik;
using namespace module::storage;

void Write(const std::filesystem::path& folder, const std::string& name, const fuzz::Record& bytes) {
  std::filesystem::create_directories(folder);
  std::ofstream file(folder / name, std::ios::binary);
  for (const std::uint8_t byte : bytes) file.put(static_cast<char>(byte));
}

template <typename ProtocolType, typename Bridge, typename Command>
fuzz::Record Replies(HANDLE handle) {
  fuzz::Record record;
  ProtocolType drive;
  drive.AddBridge(std::make_shared<fuzz::RecordingBridge<Bridge, Command>>(handle, record));
  fuzz::UseDrive(drive);
  return record;
}

utils::UniqueHandle Open(const std::string& path) {
  HANDLE handle = INVALID_HANDLE_VALUE;
  WinDeviceInterfaceScanner().OpenDevice(path, handle);
  return utils::UniqueHandle(handle);
}

/// The drive as it is, and as it is when it refuses commands, fails, and words its sense data otherwise.
void WriteDriveSeeds(const std::filesystem::path& folder) {
  for (const bool ill : {false, true}) {
    auto description = fuzz::WholeMachine();
    auto& sata = std::get<simulation::SataDriveDescription>(description.physicalDrives.at(0).drive);
    auto& sas = std::get<simulation::SasDriveDescription>(description.physicalDrives.at(1).drive);
    auto& nvme = std::get<simulation::NvmeDriveDescription>(description.adapters.at(0).csmi->drives.at(2));
    if (ill) {
      sata.failing = sas.failing = sas.descriptorSense = nvme.namespaceManagement = true;
      sata.generalPurposeLogs = sata.lba48 = false;
      sata.sectors = sas.sectors = 100'000'000;
      sata.unreadableSectors = sas.unreadableSectors = {7};
      sas.unsupportedOpcodes = {0x88, 0x9E, 0x1A};
    }
    simulation::InstallMachine(std::make_shared<simulation::Machine>(description));
    const std::string name = ill ? "ill" : "healthy";
    const auto first = Open(R"(\\.\PhysicalDrive0)");
    const auto second = Open(R"(\\.\PhysicalDrive1)");
    Write(folder / "ata", name, Replies<AtaProtocol, AtaBridge, AtaCmd>(first.Get()));
    Write(folder / "scsi", name, Replies<ScsiProtocol, ScsiBridge, ScsiCmd>(second.Get()));
    const auto adapters = module::raid::EnumerateCsmiAdapters();
    Write(folder / "nvme", name, Replies<NvmeProtocol, NvmeIntelBridge, NvmeCmd>(adapters.at(0).handle.Get()));
  }
}

/// Inputs that leave some calls as they are and then do one thing of each kind.
void WriteFaultSeeds(const std::filesystem::path& folder) {
  const fuzz::Record kinds[] = {
      {3, 28, 0, 4, 255, 255, 255, 255},
      {3, 0, 0, 4, 255, 255, 255, 255},
      {4, 16, 0, 1, 0, 0, 0, 2, 0, 0, 0},
      {5, 1},
      {6, 2},
      {7, 31},
      {8, 28, 0},
  };
  for (std::size_t before = 0; before < 200; before += before < 40 ? 1 : 8) {
    fuzz::Record all;
    for (const auto& kind : kinds) {
      all.insert(all.end(), before, 0);
      all.insert(all.end(), kind.begin(), kind.end());
    }
    const std::string name = std::to_string(before);
    Write(folder / "storelib", name, all);
    // The first byte of a machine's input says what is left out.
    for (const auto leftOut : {std::uint8_t{6}, std::uint8_t{5}, std::uint8_t{3}}) {
      all.insert(all.begin(), leftOut);
      Write(folder / "machine", name + "-without-" + std::to_string(leftOut), all);
      all.erase(all.begin());
    }
  }
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 2) {
    static_cast<void>(std::fprintf(stderr, "fuzz_seeds FOLDER\n"));
    return 2;
  }
  WriteDriveSeeds(arguments[1]);
  WriteFaultSeeds(arguments[1]);
  return 0;
}
