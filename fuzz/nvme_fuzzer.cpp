// Every operation over replies of an NVMe drive that may be anything, and the search for its path.

#include "fuzz/host.h"
#include "fuzz/replies.h"
#include "module/storage/nvme/nvme_protocol.h"
#include "module/storage/nvme/path_scan.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace orvik;
  using namespace module::storage;
  fuzz::Input input(data, size);
  NvmeProtocol drive;
  const auto bridge = std::make_shared<fuzz::ReplyingBridge<NvmeBridge, NvmeCmd>>(input);
  drive.AddBridge(bridge);
  fuzz::UseDrive(drive);
  NvmePath path;
  if (FindNvmePath(*bridge, {}, path)) FindNvmePath(*bridge, {path.serial}, path);
  return 0;
}
