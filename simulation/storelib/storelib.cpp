#include "simulation/storelib/storelib.h"

#include <algorithm>
#include <array>

namespace orvik::simulation {

namespace {

bool IsZero(std::span<const std::uint8_t> bytes) {
  return std::ranges::all_of(bytes, [](std::uint8_t byte) { return byte == 0; });
}

bool WellFormed(std::span<const std::uint8_t> packet) {
  return packet.size() >= command_packet::kSize && IsZero(Inside(packet, command_packet::kReserved)) &&
         IsZero(Inside(packet, command_packet::kMoreReserved));
}

}  // namespace

Storelib::Storelib(const StorelibDescription& description, const std::shared_ptr<const Clock>& clock)
    : installation_(description.installation) {
  for (const StorelibControllerDescription& each : description.controllers) {
    controllers_.push_back(std::make_unique<StorelibController>(each, clock));
  }
}

std::span<const Storelib::Command> Storelib::Commands() {
  using namespace command_packet;
  using Controller = StorelibController;
  static constexpr std::array<Command, 16> kCommands = {{
      {"STORELIB_INIT", kLibrary, 0, library_data::kSize, &Storelib::Initialise, nullptr},
      {"STORELIB_LIST_CONTROLLERS", kLibrary, 3, library_data::kSize, &Storelib::ListControllers, nullptr},
      {"STORELIB_CLOSE", kLibrary, 9, 0, &Storelib::Close, nullptr},
      {"STORELIB_CONTROLLER_INFO", kController, 0, controller_info::kSize, nullptr, &Controller::Information},
      {"STORELIB_PHYSICAL_DRIVE_LIST", kController, 4, physical_drive_list::kHeaderSize, nullptr,
       &Controller::PhysicalDriveList},
      {"STORELIB_ENCLOSURE_LIST", kController, 5, enclosure_list::kSize, nullptr, &Controller::EnclosureList},
      {"STORELIB_LOGICAL_DRIVE_LIST", kController, 13, logical_drive_list::kSize, nullptr,
       &Controller::LogicalDriveList},
      {"STORELIB_BATTERY_STATUS", kController, 20, battery_status::kSize, nullptr, &Controller::BatteryStatus},
      {"STORELIB_PHYSICAL_DRIVE_INFO", kPhysicalDrive, 0, physical_drive_info::kSize, nullptr,
       &Controller::PhysicalDriveInformation},
      {"STORELIB_LOGICAL_DRIVE_INFO", kLogicalDrive, 0, logical_drive_info::kSize, nullptr,
       &Controller::LogicalDriveInformation},
      {"STORELIB_CANCEL_CHECK", kLogicalDrive, 6, 0, nullptr, &Controller::CancelCheck},
      {"STORELIB_START_CHECK", kLogicalDrive, 7, 0, nullptr, &Controller::StartCheck},
      {"STORELIB_CHECK_PROGRESS", kLogicalDrive, 8, check_progress::kSize, nullptr, &Controller::CheckProgress},
      {"STORELIB_MEMBER_LIST", kLogicalDrive, 11, member_list::kSize, nullptr, &Controller::MemberList},
      {"STORELIB_SCSI_PASS_THROUGH", kPassThrough, 0, scsi_frame::kData, nullptr, &Controller::ScsiPassThrough},
      {"STORELIB_SATA_PASS_THROUGH", kPassThrough, 2, sata_frame::kData, nullptr, &Controller::SataPassThrough},
  }};
  return kCommands;
}

const Storelib::Command* Storelib::Find(std::span<const std::uint8_t> packet) {
  const std::uint8_t type = Get(packet, command_packet::kType);
  const std::uint8_t command = Get(packet, command_packet::kCommand);
  const auto commands = Commands();
  const auto found = std::ranges::find_if(
      commands, [&](const Command& each) { return each.type == type && each.command == command; });
  return found == commands.end() ? nullptr : &*found;
}

bool Storelib::HasCommand(std::string_view name) {
  return std::ranges::find(Commands(), name, &Command::name) != Commands().end();
}

std::string_view Storelib::CommandName(std::span<const std::uint8_t> packet) {
  const Command* found = Find(packet);
  return found == nullptr ? std::string_view() : found->name;
}

StorelibController* Storelib::FindController(std::uint32_t controllerId) const {
  const auto found = std::ranges::find(controllers_, controllerId, &StorelibController::Id);
  return found == controllers_.end() ? nullptr : found->get();
}

std::uint32_t Storelib::Execute(std::span<std::uint8_t> packet, std::span<std::uint8_t> data) {
  const auto execute = [&] {
    if (!WellFormed(packet)) return StorelibStatus::BadParameter;
    const Command* command = Find(packet);
    if (command == nullptr) return StorelibStatus::UnknownCommand;
    if (data.size() < command->leastData) return StorelibStatus::BlockTooSmall;
    const StorelibRequest request{packet, data};
    if (command->own != nullptr) return (this->*command->own)(request);
    StorelibController* controller = FindController(request.ControllerId());
    if (controller == nullptr) return StorelibStatus::NoSuchController;
    return (controller->*command->ofController)(request);
  };
  return static_cast<std::uint32_t>(execute());
}

std::size_t Storelib::Sessions() const {
  const std::scoped_lock lock(mutex_);
  return sessions_;
}

StorelibStatus Storelib::Initialise(const StorelibRequest& /*request*/) {
  if (installation_ == StorelibInstallation::FailingInit) return StorelibStatus::InitialisationFailed;
  const std::scoped_lock lock(mutex_);
  ++sessions_;
  return StorelibStatus::Success;
}

// NOLINTNEXTLINE(readability-make-member-function-const): commands have one signature
StorelibStatus Storelib::ListControllers(const StorelibRequest& request) {
  const auto block = request.CleanData();
  Set(block, controller_list::kCount, static_cast<std::uint16_t>(controllers_.size()));
  for (std::size_t i = 0; i < controllers_.size(); ++i) Set(block, controller_list::Id(i), controllers_[i]->Id());
  return StorelibStatus::Success;
}

StorelibStatus Storelib::Close(const StorelibRequest& /*request*/) {
  const std::scoped_lock lock(mutex_);
  if (sessions_ == 0) return StorelibStatus::NotInitialised;
  --sessions_;
  return StorelibStatus::Success;
}

}  // namespace orvik::simulation
