#include "module/storage/standards/ata_versions.h"

#include <array>

#include "module/storage/standards/version_table.h"

namespace orvik::module::storage {

namespace {

constexpr std::uint16_t kNotReported = 0x0000;
constexpr std::uint16_t kNotReportedEither = 0xFFFF;
constexpr std::string_view kNotReportedName = "VERSION_NOT_REPORTED";
constexpr std::string_view kUnrecognizedName = "UNRECOGNIZED_VERSION";

struct MajorVersion {
  std::uint16_t bit;
  std::string_view name;
};

constexpr std::array<MajorVersion, 5> kMajorVersions = {{
    {8, "ATA8-ACS"},
    {7, "ATA7-ATAPI"},
    {6, "ATA6-ATAPI"},
    {5, "ATA5-ATAPI"},
    {4, "ATA4-ATAPI"},
}};

constexpr std::array<VersionName, 30> kMinorVersions = {{
    {0x0000, kNotReportedName},
    {0x000D, "ATA/ATAPI-4 X3T13 1153D version 6"},
    {0x000E, "ATA-ATAPI-4 T13 1153D version 13"},
    {0x000F, "ATA-ATAPI-4 X3T13 1153D version 7"},
    {0x0010, "ATA-ATAPI-4 T13 1153D version 18"},
    {0x0011, "ATA-ATAPI-4 T13 1153D version 15"},
    {0x0012, "ATA-ATAPI-4 published, ANSI INCITS 317-1998"},
    {0x0013, "ATA-ATAPI-5 T13 1321D version 3"},
    {0x0014, "ATA-ATAPI-4 T13 1153D version 14"},
    {0x0015, "ATA-ATAPI-5 T13 1321D version 1"},
    {0x0016, "ATA-ATAPI-5 published, ANSI INCITS 340-2000"},
    {0x0017, "ATA-ATAPI-4 T13 1153D version 17"},
    {0x0018, "ATA-ATAPI-6 T13 1410D version 17"},
    {0x0019, "ATA-ATAPI-6 T13 1410D version 3a"},
    {0x001A, "ATA-ATAPI-7 T13 1532D version 1"},
    {0x001B, "ATA-ATAPI-6 T13 1410D version 2"},
    {0x001C, "ATA-ATAPI-6 T13 1410D version 1"},
    {0x001D, "ATA-ATAPI-7 published, ANSI INCITS 397-2005"},
    {0x001E, "ATA-ATAPI-7 T13 1532D version 0"},
    {0x0021, "ATA-ATAPI-7 T13 1532D version 4a"},
    {0x0022, "ATA-ATAPI-6 published, ANSI INCITS 361-2002"},
    {0x0027, "ATA8-ACS version 3c"},
    {0x0028, "ATA8-ACS version 6"},
    {0x0029, "ATA8-ACS version 4"},
    {0x0033, "ATA8-ACS version 3e"},
    {0x0039, "ATA8-ACS version 4c"},
    {0x0042, "ATA8-ACS version 3f"},
    {0x0052, "ATA8-ACS version 3b"},
    {0x0107, "ATA8-ACS version 2d"},
    {0xFFFF, kNotReportedName},
}};
static_assert(IsInCodeOrder(kMinorVersions));

}  // namespace

void AppendAtaMajorVersions(std::uint16_t versions, std::vector<std::string>& names) {
  names.reserve(names.size() + kMajorVersions.size());
  if (versions != kNotReported && versions != kNotReportedEither) {
    for (const auto& version : kMajorVersions) {
      if ((versions >> version.bit & 1) != 0) names.emplace_back(version.name);
    }
  }
  if (names.empty()) names.emplace_back(kNotReportedName);
}

std::string_view AtaMinorVersionName(std::uint16_t code) {
  const std::string_view name = FindVersion(kMinorVersions, code);
  return name.empty() ? kUnrecognizedName : name;
}

}  // namespace orvik::module::storage
