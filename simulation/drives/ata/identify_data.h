#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "simulation/drives/base/drive_descriptions.h"

namespace orvik::simulation {

/// The 512 bytes that a drive of this description returns to IDENTIFY DEVICE (ACS-3), checksum included.
std::vector<std::uint8_t> MakeIdentifyData(const SataDriveDescription& drive);

/// The same data with SMART switched on or off.
std::vector<std::uint8_t> WithSmartEnabled(std::vector<std::uint8_t> identify, bool enabled);

/// What a drive's own IDENTIFY DEVICE data say of it.
struct AtaFeatures {
  std::uint64_t sectors{};
  std::uint32_t sectorSize{};
  bool lba48{};
  bool generalPurposeLogs{};
  bool smartSupported{};
  bool smartEnabled{};
  bool solidState{};
};

AtaFeatures FeaturesOf(std::span<const std::uint8_t> identify);

/// Takes texts and sizes of the drive from its `identify` bytes.
void DescribeByIdentifyData(SataDriveDescription& drive);

}  // namespace orvik::simulation
