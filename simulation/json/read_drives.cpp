#include "simulation/json/object_reader.h"
#include "simulation/json/readers.h"

namespace orvik::simulation {

namespace {

constexpr std::uint32_t kSmallestSector = 512;
constexpr std::uint32_t kLargestSector = 32768;
constexpr std::uint64_t kMostAtaSectors = 0xFFFFFFFFFFFF;
constexpr std::uint64_t kMostSectors = std::numeric_limits<std::int64_t>::max();
constexpr int kColdest = -273;
constexpr int kHottest = 255;

SataDriveDescription ReadSataDrive(ObjectReader& object) {
  SataDriveDescription drive;
  object.Required("model", "a text").Read(drive.model, 40);
  object.Required("serial", "a text").Read(drive.serial, 20);
  object.Optional("firmware").Read(drive.firmware, 8);
  object.Required("sectors", "a whole number").Read(drive.sectors, 1, kMostAtaSectors);
  object.Optional("sectorSize").Read(drive.sectorSize, kSmallestSector, kLargestSector);
  object.Optional("physicalSectorSize").Read(drive.physicalSectorSize, kSmallestSector, kLargestSector);
  object.Optional("rotationRate").Read(drive.rotationRate);
  object.Optional("silent").Read(drive.silent);
  return drive;
}

SasDriveDescription ReadSasDrive(ObjectReader& object) {
  SasDriveDescription drive;
  object.Required("vendor", "a text").Read(drive.vendor, 8);
  object.Required("product", "a text").Read(drive.product, 16);
  object.Optional("revision").Read(drive.revision, 4);
  object.Required("serial", "a text").Read(drive.serial, 20);
  object.Required("sectors", "a whole number").Read(drive.sectors, 1, kMostSectors);
  object.Optional("sectorSize").Read(drive.sectorSize, kSmallestSector, kLargestSector);
  object.Optional("physicalSectorSize").Read(drive.physicalSectorSize, kSmallestSector, kLargestSector);
  object.Optional("rotationRate").Read(drive.rotationRate);
  if (const Node address = object.Optional("sasAddress"); address.Present()) {
    address.ReadHex(drive.sasAddress.emplace(), 16);
  }
  object.Optional("silent").Read(drive.silent);
  return drive;
}

NvmeDriveDescription ReadNvmeDrive(ObjectReader& object) {
  NvmeDriveDescription drive;
  object.Required("model", "a text").Read(drive.model, 40);
  object.Required("serial", "a text").Read(drive.serial, 20);
  object.Optional("firmware").Read(drive.firmware, 8);
  object.Required("sectors", "a whole number").Read(drive.sectors, 1, kMostSectors);
  object.Optional("sectorSize").Read(drive.sectorSize, kSmallestSector, kLargestSector);
  object.Optional("temperatureCelsius").Read(drive.temperatureCelsius, kColdest, kHottest);
  object.Optional("silent").Read(drive.silent);
  return drive;
}

enum class Kind : std::uint8_t { Sata, Sas, Nvme };

constexpr std::array<Named<Kind>, 3> kKinds = {{{"SATA", Kind::Sata}, {"SAS", Kind::Sas}, {"NVMe", Kind::Nvme}}};

DriveDescription ReadByKind(Kind kind, ObjectReader& object) {
  switch (kind) {
    case Kind::Sas: return ReadSasDrive(object);
    case Kind::Nvme: return ReadNvmeDrive(object);
    case Kind::Sata: break;
  }
  return ReadSataDrive(object);
}

}  // namespace

DriveDescription ReadDrive(const Node& node) {
  Kind kind = Kind::Sata;
  ObjectReader object(node);
  object.Required("kind", R"(one of "SATA", "SAS", "NVMe")").ReadName(kind, kKinds);
  DriveDescription drive = ReadByKind(kind, object);
  object.End();
  return drive;
}

}  // namespace orvik::simulation
