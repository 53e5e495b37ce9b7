// Every operation over INQUIRY and VPD data, log and mode pages and sense data of a SCSI drive that may be anything.

#include "fuzz/host.h"
#include "fuzz/replies.h"
#include "module/storage/scsi/scsi_protocol.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace orvik;
  using namespace module::storage;
  fuzz::Input input(data, size);
  ScsiProtocol drive;
  drive.AddBridge(std::make_shared<fuzz::ReplyingBridge<ScsiBridge, ScsiCmd>>(input));
  fuzz::UseDrive(drive);
  return 0;
}
