#pragma once

#include <limits>
#include <vector>

#include "host/drives/drive.h"

namespace orvik::host {

/// One of the objects that reach a drive.
struct DriveVoice {
  module::storage::Protocol* protocol = nullptr;
  bool isAta = false;
};

/// Identifies the drive: fills `status` and `properties`. Blocks until it has answered.
void Identify(Drive& drive);

/// The drive's objects, the preferred one first; they speak as its identification has found.
std::vector<DriveVoice> VoicesOf(const Drive& drive);

/// What the drive reports of itself, or why not. An operation that its protocol hasn't got leaves the output as it
/// was, so that a value that none can report tells the one from the other.
template <typename Value>
Reading<Value> Ask(const DriveVoice& voice, module::storage::Status (module::storage::Protocol::*question)(Value&)) {
  constexpr Value kUntouched = std::numeric_limits<Value>::max();
  Value value = kUntouched;
  Reading<Value> reading{(voice.protocol->*question)(value), std::nullopt, voice.isAta};
  if (reading.status == module::storage::status::kSuccess && value != kUntouched) reading.value = value;
  return reading;
}

/// How far a self-test is, in percent: what lies beyond 100 is no answer.
Reading<std::uint8_t> AskSelfTestProgress(const DriveVoice& voice);

/// Identifies the drive and asks it everything else. Blocks until it has answered.
void AskEverything(Drive& drive);

}  // namespace orvik::host
