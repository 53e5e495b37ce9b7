// Every operation over identify data, SMART data and logs of an ATA drive that may be anything.

#include "fuzz/host.h"
#include "fuzz/replies.h"
#include "module/storage/ata/ata_protocol.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace orvik;
  using namespace module::storage;
  fuzz::Input input(data, size);
  AtaProtocol drive;
  drive.AddBridge(std::make_shared<fuzz::ReplyingBridge<AtaBridge, AtaCmd>>(input));
  fuzz::UseDrive(drive);
  return 0;
}
