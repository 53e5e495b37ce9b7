#include "module/raid/storelib/storelib_names.h"

#include <array>
#include <span>

namespace orvik::module::raid {

namespace {

struct BitName {
  std::uint32_t bit;
  const char* name;
};

// In display order, which is not the order of the bits.
constexpr std::array<BitName, 7> kRaidLevels = {{
    {0x01, "RAID 0"},
    {0x02, "RAID 1"},
    {0x20, "RAID 10"},
    {0x04, "RAID 5"},
    {0x40, "RAID 50"},
    {0x10, "RAID 6"},
    {0x80, "RAID 60"},
}};

constexpr std::array<BitName, 5> kInterfaces = {{
    {0x02, "SAS 3G"},
    {0x10, "SAS 6G"},
    {0x04, "SATA 1.5G"},
    {0x08, "SATA 3G"},
    {0x01, "SPI"},
}};

// The secondary level of a drive that stripes over several sets of its primary level.
constexpr std::uint8_t kSpanned = 3;

struct LevelName {
  std::uint8_t primary;
  const char* name;
  const char* spannedName;
};

constexpr std::array<LevelName, 7> kLevelNames = {{
    {0, "RAID 0", "RAID 0"},
    {1, "RAID 1", "RAID 10"},
    {3, "RAID 3", "RAID 3"},
    {4, "RAID 4", "RAID 4"},
    {5, "RAID 5", "RAID 50"},
    {6, "RAID 6", "RAID 60"},
    {17, "RAID 1", "RAID 1"},
}};

void AppendNames(std::span<const BitName> table, std::uint32_t bits, std::vector<std::string>& names) {
  for (const BitName& row : table) {
    if ((bits & row.bit) != 0) names.emplace_back(row.name);
  }
}

}  // namespace

std::string RaidLevelName(std::uint8_t primaryLevel, std::uint8_t secondaryLevel) {
  for (const LevelName& row : kLevelNames) {
    if (row.primary == primaryLevel) return secondaryLevel == kSpanned ? row.spannedName : row.name;
  }
  return "UNKNOWN";
}

void AppendRaidLevelNames(std::uint32_t levels, std::vector<std::string>& names) {
  AppendNames(kRaidLevels, levels, names);
}

void AppendInterfaceNames(std::uint8_t interfaces, std::vector<std::string>& names) {
  AppendNames(kInterfaces, interfaces, names);
}

}  // namespace orvik::module::raid
