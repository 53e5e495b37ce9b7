#include "simulation/drives/drive.h"

namespace orvik::simulation {

namespace {

Drive Make(const SataDriveDescription& description, const std::shared_ptr<const Clock>& clock) {
  return std::make_shared<AtaDrive>(description, clock);
}
Drive Make(const SasDriveDescription& description, const std::shared_ptr<const Clock>& clock) {
  return std::make_shared<ScsiDrive>(description, clock);
}
Drive Make(const NvmeDriveDescription& description, const std::shared_ptr<const Clock>& clock) {
  return std::make_shared<NvmeDrive>(description, clock);
}

template <typename Description>
DriveIdentity Identity(const Description& drive) {
  return {drive.model, drive.firmware, drive.serial, drive.sectors, drive.sectorSize};
}

// A SAS drive's vendor and product stand in the columns of its INQUIRY data.
DriveIdentity Identity(const SasDriveDescription& drive) {
  std::string vendor = drive.vendor;
  vendor.resize(8, ' ');
  return {vendor + drive.product, drive.revision, drive.serial, drive.sectors, drive.sectorSize};
}

}  // namespace

Drive MakeDrive(const DriveDescription& description, const std::shared_ptr<const Clock>& clock) {
  return std::visit([&clock](const auto& kind) { return Make(kind, clock); }, description);
}

DriveIdentity IdentityOf(const Drive& drive) {
  return std::visit([](const auto& kind) { return Identity(kind->Description()); }, drive);
}

}  // namespace orvik::simulation
