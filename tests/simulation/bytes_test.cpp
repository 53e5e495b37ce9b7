#include "simulation/bytes/bytes.h"

#include <gtest/gtest.h>

#include <vector>

namespace orvik::simulation {
namespace {

using Bytes = std::vector<std::uint8_t>;

TEST(Bytes, ReadInTheOrderOfTheField) {
  const Bytes bytes = {0x11, 0x22, 0x33, 0x44, 0x55, 0x66, 0x77, 0x88, 0x99};
  EXPECT_EQ(Get(bytes, Le16{1}), 0x3322);
  EXPECT_EQ(Get(bytes, Be16{1}), 0x2233);
  EXPECT_EQ(Get(bytes, Le32{0}), 0x44332211U);
  EXPECT_EQ(Get(bytes, Be64{1}), 0x2233445566778899U);
}

TEST(Bytes, StayInsideTheBuffer) {
  Bytes bytes(6, 0xAA);
  for (const std::size_t offset : {std::size_t{3}, std::size_t{6}, SIZE_MAX - 1}) {
    Set(bytes, Be32{offset}, 0x12345678);
    EXPECT_EQ(Get(bytes, Be32{offset}), 0U);
  }
  SetBytes(bytes, {7, 4}, Bytes{1, 2});
  EXPECT_EQ(bytes, Bytes(6, 0xAA));
  SetText(bytes, {4, 8}, "abcdef", ' ');
  SetBytes(bytes, {0, 2}, Bytes{1, 2, 3});
  EXPECT_EQ(bytes, (Bytes{1, 2, 0xAA, 0xAA, 'a', 'b'}));
  EXPECT_FALSE(Holds(6, {SIZE_MAX, 2}));
}

}  // namespace
}  // namespace orvik::simulation
