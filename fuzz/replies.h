#pragma once

// Replies of a drive as bytes of an input: bridges that answer with them, and bridges that write down what a drive of
// the simulated machine replies, so that the fuzzing starts from there.

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "fuzz/input.h"
#include "module/storage/ata/ata_bridge.h"
#include "module/storage/nvme/nvme_bridge.h"
#include "module/storage/scsi/scsi_bridge.h"

namespace orvik::fuzz {

using Record = std::vector<std::uint8_t>;

/// The status of the send, and in the command all that came back; the send fails when the input has ended.
module::storage::Status TakeReply(Input& input, module::storage::AtaCmd& command);
module::storage::Status TakeReply(Input& input, module::storage::ScsiCmd& command);
module::storage::Status TakeReply(Input& input, module::storage::NvmeCmd& command);

void WriteReply(Record& record, module::storage::Status sent, const module::storage::AtaCmd& command);
void WriteReply(Record& record, module::storage::Status sent, const module::storage::ScsiCmd& command);
void WriteReply(Record& record, module::storage::Status sent, const module::storage::NvmeCmd& command);

template <typename Bridge, typename Command>
class ReplyingBridge final : public Bridge {
 public:
  explicit ReplyingBridge(Input& input) : Bridge(INVALID_HANDLE_VALUE), input_(input) {}
  module::storage::Status Send(Command& command) override { return TakeReply(input_, command); }

 private:
  Input& input_;
};

template <typename Bridge, typename Command>
class RecordingBridge final : public Bridge {
 public:
  RecordingBridge(HANDLE handle, Record& record) : Bridge(handle), record_(record) {}
  module::storage::Status Send(Command& command) override {
    const module::storage::Status sent = Bridge::Send(command);
    WriteReply(record_, sent, command);
    return sent;
  }

 private:
  Record& record_;
};

}  // namespace orvik::fuzz
