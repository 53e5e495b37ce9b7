#include "module/storage/ata/ata_bridge.h"

#include <array>

#include "module/storage/ata/ata_commands.h"
#include "module/storage/ata/ata_send.h"
#include "module/storage/ata/identify_data.h"

namespace orvik::module::storage {

Status AtaBridge::Send(AtaCmd& command) {
  return WinHalAtaSend::Instance().Send(GetHandle(), command);
}

bool ProbeBridge(AtaBridge& bridge) {
  std::array<std::uint8_t, IdentifyDevice::kDataSize> data{};
  IdentifyDevice command(data.data());
  return bridge.Send(command) == status::kSuccess && IsValidIdentifyData(utils::ByteView(data)) &&
         command.length == data.size();
}

}  // namespace orvik::module::storage
