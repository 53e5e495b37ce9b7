#include <gtest/gtest.h>

#include "module/storage/standards/ata_versions.h"
#include "module/storage/standards/spc_versions.h"
#include "module/storage/standards/version_descriptors.h"

namespace orvik::module::storage {
namespace {

TEST(StandardsTest, NamesCodes) {
  std::vector<std::string> names;
  AppendAtaMajorVersions(0x0180, names);  // the latest first
  EXPECT_EQ(names, (std::vector<std::string>{"ATA8-ACS", "ATA7-ATAPI"}));
  names.clear();
  AppendAtaMajorVersions(0xFFFF, names);
  EXPECT_EQ(names, std::vector<std::string>{"VERSION_NOT_REPORTED"});
  EXPECT_EQ(AtaMinorVersionName(0xFFFF), "VERSION_NOT_REPORTED");
  EXPECT_EQ(AtaMinorVersionName(0x000D), "ATA/ATAPI-4 X3T13 1153D version 6");
  EXPECT_EQ(AtaMinorVersionName(0x0107), "ATA8-ACS version 2d");
  EXPECT_EQ(AtaMinorVersionName(0x0108), "UNRECOGNIZED_VERSION");
  EXPECT_EQ(VersionDescriptorName(0x0020), "SAM");
  EXPECT_EQ(VersionDescriptorName(0x0ABB), "SPI T10/0855-D rev15a SPI Amnd rev3a");
  EXPECT_EQ(VersionDescriptorName(0x0D63), "FC-AL-2 ANSI INCITS 332-1999 AM1-2003 & AM2-2006");
  EXPECT_EQ(VersionDescriptorName(0x1EC4), "SAT-2 T10/1826-D rev6");
  EXPECT_EQ(SpcVersionName(3), "SCSI Primary Commands - SPC");
  EXPECT_EQ(SpcVersionName(7), "");
  int known = 0;
  for (std::uint32_t code = 0; code <= 0xFFFF; ++code) {
    known += VersionDescriptorName(static_cast<std::uint16_t>(code)).empty() ? 0 : 1;
  }
  EXPECT_EQ(known, 212);
}

}  // namespace
}  // namespace orvik::module::storage
