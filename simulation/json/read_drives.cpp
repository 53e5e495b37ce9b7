#include <algorithm>

#include "simulation/drives/ata/identify_data.h"
#include "simulation/drives/scsi/scsi_drive.h"
#include "simulation/json/node.h"
#include "simulation/json/readers.h"

namespace orvik::simulation {

namespace {

constexpr std::uint32_t kSmallestSector = 512;
constexpr std::uint32_t kLargestSector = 32768;
constexpr std::uint64_t kMostAtaSectors = 0xFFFFFFFFFFFF;
constexpr std::uint64_t kMostSectors = std::numeric_limits<std::int64_t>::max();
constexpr int kColdestNvme = -273;
constexpr int kColdest = 0;
constexpr int kHottest = 255;
constexpr std::size_t kLabelSize = 30;
constexpr std::uint32_t kSlowestCommand = 600000;
constexpr std::size_t kIdentifySize = 512;
constexpr std::size_t kSmallestInquiry = 36;
constexpr std::size_t kLargestInquiry = 260;
constexpr std::size_t kOpcodeDigits = 2;

constexpr std::array<Named<FailurePrediction>, 3> kFailurePredictions = {{
    {"enabled", FailurePrediction::Enabled},
    {"disabled", FailurePrediction::Disabled},
    {"missing", FailurePrediction::Missing},
}};

constexpr std::array<Named<SelfTestKind>, 3> kSelfTests = {{
    {"short", SelfTestKind::Short},
    {"extended", SelfTestKind::Extended},
    {"conveyance", SelfTestKind::Conveyance},
}};

std::uint64_t LastOf(std::uint64_t sectors) {
  return std::max<std::uint64_t>(sectors, 1) - 1;
}

PastSelfTest ReadPastSelfTest(const Node& node, std::uint64_t sectors) {
  PastSelfTest past;
  ObjectReader object(node);
  object.Required("test", R"(one of "short", "extended", "conveyance")").ReadName(past.kind, kSelfTests);
  object.Optional("hours").Read(past.hours);
  object.Optional("failingLba").Read(past.failingLba, std::uint64_t{0}, LastOf(sectors));
  object.End();
  return past;
}

void ReadSelfTest(const Node& node, std::uint64_t sectors, SelfTestDescription& selfTest) {
  if (!node.Present()) return;
  ObjectReader object(node);
  object.Optional("shortMinutes").Read(selfTest.shortMinutes);
  object.Optional("extendedMinutes").Read(selfTest.extendedMinutes);
  object.Optional("conveyanceMinutes").Read(selfTest.conveyanceMinutes);
  object.Optional("failingLba").Read(selfTest.failingLba, std::uint64_t{0}, LastOf(sectors));
  object.Optional("log").ForEach([&](const Node& each) { selfTest.log.push_back(ReadPastSelfTest(each, sectors)); });
  object.End();
}

void ReadOpcodes(const Node& node, std::vector<std::uint8_t>& opcodes) {
  node.ForEach([&](const Node& each) {
    std::uint64_t opcode = 0;
    each.ReadHex(opcode, kOpcodeDigits);
    opcodes.push_back(static_cast<std::uint8_t>(opcode));
  });
}

// The keys that drives of every kind have.
template <typename Drive>
void ReadCondition(ObjectReader& object, Drive& drive) {
  object.Optional("silent").Read(drive.silent);
  object.Optional("failing").Read(drive.failing);
  object.Optional("powerOnHours").Read(drive.powerOnHours);
  object.Optional("commandMilliseconds").Read(drive.commandMilliseconds, 0, kSlowestCommand);
  object.Optional("unreadableSectors").ForEach([&](const Node& each) {
    each.Read(drive.unreadableSectors.emplace_back(), 0, LastOf(drive.sectors));
  });
}

void ReadSataIdentity(ObjectReader& object, SataDriveDescription& drive) {
  object.Required("model", "a text").Read(drive.model, 40);
  object.Required("serial", "a text").Read(drive.serial, 20);
  object.Optional("firmware").Read(drive.firmware, 8);
  object.Required("sectors", "a whole number").Read(drive.sectors, 1, kMostAtaSectors);
  object.Optional("sectorSize").Read(drive.sectorSize, kSmallestSector, kLargestSector);
  object.Optional("physicalSectorSize").Read(drive.physicalSectorSize, kSmallestSector, kLargestSector);
  object.Optional("rotationRate").Read(drive.rotationRate);
  object.Optional("lba48").Read(drive.lba48);
  object.Optional("generalPurposeLogs").Read(drive.generalPurposeLogs);
  object.Optional("smart").ReadName(drive.smart, kFailurePredictions);
}

SataDriveDescription ReadSataDrive(ObjectReader& object) {
  SataDriveDescription drive;
  if (const Node file = object.Optional("identify"); file.Present()) {
    file.ReadFile(drive.identify, kIdentifySize, kIdentifySize);
    DescribeByIdentifyData(drive);
  } else {
    ReadSataIdentity(object, drive);
  }
  object.Optional("temperatureCelsius").Read(drive.temperatureCelsius, kColdest, kHottest);
  object.Optional("lifeRemainingPercent").Read(drive.lifeRemainingPercent, 0, 100);
  object.Optional("label").Read(drive.label, kLabelSize);
  ReadCondition(object, drive);
  ReadSelfTest(object.Optional("selfTest"), drive.sectors, drive.selfTest);
  ReadOpcodes(object.Optional("unsupportedOpcodes"), drive.unsupportedOpcodes);
  return drive;
}

SasDriveDescription ReadSasDrive(ObjectReader& object) {
  SasDriveDescription drive;
  if (const Node file = object.Optional("inquiry"); file.Present()) {
    file.ReadFile(drive.inquiry, kSmallestInquiry, kLargestInquiry);
    DescribeByInquiry(drive);
  } else {
    object.Required("vendor", "a text").Read(drive.vendor, 8);
    object.Required("product", "a text").Read(drive.product, 16);
    object.Optional("revision").Read(drive.revision, 4);
  }
  object.Required("serial", "a text").Read(drive.serial, 20);
  object.Required("sectors", "a whole number").Read(drive.sectors, 1, kMostSectors);
  object.Optional("sectorSize").Read(drive.sectorSize, kSmallestSector, kLargestSector);
  object.Optional("physicalSectorSize").Read(drive.physicalSectorSize, kSmallestSector, kLargestSector);
  object.Optional("rotationRate").Read(drive.rotationRate);
  if (const Node address = object.Optional("sasAddress"); address.Present()) {
    address.ReadHex(drive.sasAddress.emplace(), 16);
  }
  object.Optional("informationalExceptions").ReadName(drive.informationalExceptions, kFailurePredictions);
  object.Optional("descriptorSense").Read(drive.descriptorSense);
  object.Optional("temperatureCelsius").Read(drive.temperatureCelsius, kColdest, kTemperatureNotReported);
  ReadCondition(object, drive);
  ReadSelfTest(object.Optional("selfTest"), drive.sectors, drive.selfTest);
  ReadOpcodes(object.Optional("unsupportedOpcodes"), drive.unsupportedOpcodes);
  return drive;
}

NvmeDriveDescription ReadNvmeDrive(ObjectReader& object) {
  NvmeDriveDescription drive;
  object.Required("model", "a text").Read(drive.model, 40);
  object.Required("serial", "a text").Read(drive.serial, 20);
  object.Optional("firmware").Read(drive.firmware, 8);
  object.Required("sectors", "a whole number").Read(drive.sectors, 1, kMostSectors);
  object.Optional("sectorSize").Read(drive.sectorSize, kSmallestSector, kLargestSector);
  object.Optional("pathId").Read(drive.pathId);
  object.Optional("namespaceManagement").Read(drive.namespaceManagement);
  object.Optional("temperatureCelsius").Read(drive.temperatureCelsius, kColdestNvme, kHottest);
  object.Optional("lifeRemainingPercent").Read(drive.lifeRemainingPercent, 0, 100);
  object.Optional("label").Read(drive.label, kLabelSize);
  ReadCondition(object, drive);
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

PhysicalDriveDescription ReadPhysicalDrive(const Node& node) {
  PhysicalDriveDescription physical;
  ObjectReader object(node);
  physical.drive = ReadDrive(object.Required("drive", "an object"));
  object.Optional("accessDenied").Read(physical.accessDenied);
  object.End();
  return physical;
}

}  // namespace orvik::simulation
