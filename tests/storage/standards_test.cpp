#include <gtest/gtest.h>

#include "module/storage/standards/ata_versions.h"
#include "module/storage/standards/spc_versions.h"
#include "module/storage/standards/version_descriptors.h"

namespace orvik::module::storage {
namespace {

TEST(StandardsTest, NamesAtaMajorVersionsLatestFirst) {
  using Names = std::vector<std::string>;
  for (const auto& [word, expected] : std::vector<std::pair<std::uint16_t, Names>>{
           {0x0000, {"VERSION_NOT_REPORTED"}},
           {0xFFFF, {"VERSION_NOT_REPORTED"}},
           {0x0008, {"VERSION_NOT_REPORTED"}},
           {0x0100, {"ATA8-ACS"}},
           {0x03F0, {"ATA8-ACS", "ATA7-ATAPI", "ATA6-ATAPI", "ATA5-ATAPI", "ATA4-ATAPI"}}}) {
    Names names;
    AppendAtaMajorVersions(word, names);
    EXPECT_EQ(names, expected) << word;
  }
}

TEST(StandardsTest, NamesCodes) {
  for (const auto& [code, expected] :
       std::vector<std::pair<std::uint16_t, std::string_view>>{{0x0000, "VERSION_NOT_REPORTED"},
                                                               {0xFFFF, "VERSION_NOT_REPORTED"},
                                                               {0x000D, "ATA/ATAPI-4 X3T13 1153D version 6"},
                                                               {0x0029, "ATA8-ACS version 4"},
                                                               {0x0030, "UNRECOGNIZED_VERSION"},
                                                               {0x0107, "ATA8-ACS version 2d"},
                                                               {0x0108, "UNRECOGNIZED_VERSION"}}) {
    EXPECT_EQ(AtaMinorVersionName(code), expected) << code;
  }
  for (const auto& [code, expected] : std::vector<std::pair<std::uint16_t, std::string_view>>{
           {0x0000, ""},
           {0x0020, "SAM"},
           {0x0021, ""},
           {0x0ABB, "SPI T10/0855-D rev15a SPI Amnd rev3a"},
           {0x0C11, "SAS-1.1 ANSI INCITS 417-2006"},
           {0x0D63, "FC-AL-2 ANSI INCITS 332-1999 AM1-2003 & AM2-2006"},
           {0x1EC4, "SAT-2 T10/1826-D rev6"},
           {0xFFFF, ""}}) {
    EXPECT_EQ(VersionDescriptorName(code), expected) << code;
  }
  EXPECT_EQ(SpcVersionName(2), "");
  EXPECT_EQ(SpcVersionName(3), "SCSI Primary Commands - SPC");
  EXPECT_EQ(SpcVersionName(6), "SCSI Primary Commands 4 - SPC-4");
  EXPECT_EQ(SpcVersionName(7), "");
}

TEST(StandardsTest, KnowsEveryVersionDescriptorOfTheTable) {
  int known = 0;
  for (std::uint32_t code = 0; code <= 0xFFFF; ++code) {
    known += VersionDescriptorName(static_cast<std::uint16_t>(code)).empty() ? 0 : 1;
  }
  EXPECT_EQ(known, 212);
}

}  // namespace
}  // namespace orvik::module::storage
