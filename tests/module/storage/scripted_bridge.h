#pragma once

// Bridges that play a drive from a script: which command must come next, and everything that the drive answers to it.
// A command out of turn and one that never comes fail the test.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <deque>
#include <functional>
#include <memory>
#include <numeric>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "module/storage/ata/ata_bridge.h"
#include "module/storage/nvme/nvme_bridge.h"
#include "module/storage/protocol.h"
#include "module/storage/scsi/scsi_bridge.h"

namespace orvik::module::storage {

using Bytes = std::vector<std::uint8_t>;

/// Bytes of a drive's reply by their offset; the others are zero.
inline Bytes Reply(std::size_t size, const std::vector<std::pair<std::size_t, Bytes>>& parts) {
  Bytes reply(size);
  for (const auto& [offset, bytes] : parts) {
    utils::MutableByteView(reply).PutBytes({offset, bytes.size()}, bytes);
  }
  return reply;
}

inline Bytes Chars(const std::string& text) {
  return {text.begin(), text.end()};
}

/// Makes the bytes add up to 0 by their last one.
inline Bytes WithChecksum(Bytes bytes) {
  bytes.back() = 0;
  bytes.back() = static_cast<std::uint8_t>(-std::accumulate(bytes.begin(), bytes.end(), 0));
  return bytes;
}

inline std::string Hex(std::uint64_t value, int digits) {
  std::string text;
  for (int i = digits - 1; i >= 0; --i) text += "0123456789ABCDEF"[value >> (4 * i) & 0xF];
  return text;
}

inline std::string DataText(Direction direction, std::uint64_t length) {
  if (direction == Direction::kNone && length == 0) return "no data";
  return std::array{"none ", "in ", "out "}.at(static_cast<std::size_t>(direction)) + std::to_string(length);
}

/// Command, features, count, LBA low, mid and high, device, data.
inline std::string Describe(const AtaCmd& command) {
  return Hex(command.command, 2) + " f" + Hex(command.features, 2) + " n" + Hex(command.sectorCount, 4) + " l" +
         Hex(command.lbaLow, 4) + "." + Hex(command.lbaMid, 4) + "." + Hex(command.lbaHigh, 4) + " d" +
         Hex(command.device, 2) + " " + DataText(command.direction, command.length);
}

/// The CDB's bytes, data.
inline std::string Describe(const ScsiCmd& command) {
  std::string text;
  for (std::size_t i = 0; i < command.cdbLength; ++i) text += Hex(command.cdb.at(i), 2) + " ";
  return text + DataText(command.direction, command.length);
}

/// Opcode, namespace, command dwords 10 to 12, path, data.
inline std::string Describe(const NvmeCmd& command) {
  std::string text = command.ioCommand != 0 ? "io " : "admin ";
  text += Hex(command.commandDword0, 2) + " n" + Hex(command.namespaceId, 8);
  for (const std::size_t i : {0U, 1U, 2U}) text += " " + Hex(command.commandDwords10To15.at(i), 8);
  return text + " p" + std::to_string(command.pathId) + " " + std::to_string(command.length);
}

template <typename BridgeType, typename CommandType>
class ScriptedBridge final : public BridgeType {
 public:
  using Answer = std::function<Status(CommandType&)>;

  ScriptedBridge() : BridgeType(nullptr) {}
  ~ScriptedBridge() override {
    for (const auto& [command, answer] : script_) ADD_FAILURE() << "never sent: " << command;
  }

  void Expect(const std::string& command, Answer answer) { script_.emplace_back(command, std::move(answer)); }

  Status Send(CommandType& command) override {
    if (script_.empty()) return ADD_FAILURE() << "not in the script: " << Describe(command), status::kFailure;
    const auto [expected, answer] = std::move(script_.front());
    script_.pop_front();
    EXPECT_EQ(Describe(command), expected);
    // A command that ends well: of ATA the STATUS register takes the command's place.
    if constexpr (std::is_same_v<CommandType, AtaCmd>) command.command = 0x50;
    if constexpr (std::is_same_v<CommandType, ScsiCmd>) command.status = kScsiStatusGood;
    return answer(command);
  }

 private:
  std::deque<std::pair<std::string, Answer>> script_;
};

using ScriptedAta = ScriptedBridge<AtaBridge, AtaCmd>;
using ScriptedScsi = ScriptedBridge<ScsiBridge, ScsiCmd>;
using ScriptedNvme = ScriptedBridge<NvmeBridge, NvmeCmd>;

/// Status and output of an operation.
using Result = std::pair<Status, std::uint64_t>;

/// A drive of one protocol behind one scripted bridge.
template <typename ProtocolType, typename BridgeType>
class DriveTest : public testing::Test {
 protected:
  using Answer = typename BridgeType::Answer;
  using Script = std::vector<std::pair<std::string, Answer>>;

  DriveTest() { protocol.AddBridge(bridge); }

  void Expect(const Script& script) {
    for (const auto& [command, answer] : script) bridge->Expect(command, answer);
  }

  /// What an operation makes of the answers to its commands. Its output is 99 before.
  template <typename Output>
  Result Ask(Status (Protocol::*operation)(Output&), const Script& script) {
    Expect(script);
    Output output = 99;
    const Status result = (static_cast<Protocol&>(protocol).*operation)(output);
    return {result, output};
  }

  std::shared_ptr<BridgeType> bridge = std::make_shared<BridgeType>();
  ProtocolType protocol;
  ProtocolProperties properties;
};

/// A transport that fails.
inline auto Fails(Status failure) {
  return [failure](auto& /*command*/) { return failure; };
}

/// Data, as much of it as was asked for; `length` becomes what came. Without data: a command that simply works.
inline auto Answers(Bytes data = {}) {
  return [data = std::move(data)](auto& command) {
    DeliverData(command, utils::ByteView(data));
    command.length = std::min<std::uint64_t>(command.length, data.size());
    return status::kSuccess;
  };
}

/// An ATA command that ends with ERR and the given ERROR register.
inline auto EndsWithError(std::uint8_t error, Status sent = status::kSuccess) {
  return [error, sent](AtaCmd& command) {
    command.command = 0x51;
    SetCurrent(command.features, error);
    return sent;
  };
}

inline constexpr std::uint8_t kCheckCondition = 0x02;

/// A SCSI command that ends with a status and sense data.
inline auto EndsWithStatus(std::uint8_t scsiStatus, Bytes sense = {}) {
  return [scsiStatus, sense = std::move(sense)](ScsiCmd& command) {
    command.status = scsiStatus;
    command.senseLength = sense.size();
    utils::MutableByteView(command.sense).PutBytes({0, sense.size()}, sense);
    command.length = 0;
    return status::kSuccess;
  };
}

/// Fixed format sense data of 18 bytes.
inline Bytes FixedSense(std::uint8_t key, std::uint8_t code, std::uint8_t qualifier = 0) {
  return Reply(18, {{0, {0x70}}, {2, {key}}, {7, {10}}, {12, {code, qualifier}}});
}

}  // namespace orvik::module::storage
