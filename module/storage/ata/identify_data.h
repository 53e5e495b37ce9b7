#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "module/storage/protocol_properties.h"
#include "utils/bytes/byte_view.h"

namespace orvik::module::storage {

/// The bytes add up to 0 modulo 256, as those of identify data and of log pages with a checksum do.
bool SumsToZero(utils::ByteView data);

/// Identify data of 512 bytes (ACS-4, 7.13.6): not all zero, its checksum right where it carries one (byte 510 is
/// A5h), and of an ATA device (bit 15 of word 0 clear).
bool IsValidIdentifyData(utils::ByteView data);

/// The text of `count` words from `first` on: each word holds two characters, the first in its high byte. Untrimmed.
std::string DecodeIdentifyString(utils::ByteView data, std::size_t first, std::size_t count);

/// Words 27 to 46: the model, 40 characters, untrimmed.
std::string IdentifyModel(utils::ByteView data);

/// The maker's name as far as a model tells it: its first word with a capital letter, or for a model of one word what
/// its prefix stands for, or "Generic Vendor".
std::string VendorFromModel(const std::string& model);

/// Sectors (28 or 48 bit) times logical sector size; 0 when no drive can be that large.
std::uint64_t CapacityInBytes(utils::ByteView data);

/// Fills what valid identify data tells about a drive; texts are trimmed.
void DescribeIdentifyData(utils::ByteView data, ProtocolProperties& properties);

}  // namespace orvik::module::storage
