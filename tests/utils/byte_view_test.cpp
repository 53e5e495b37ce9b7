#include "utils/bytes/byte_view.h"

#include <gtest/gtest.h>

#include <array>

namespace orvik::utils {
namespace {

constexpr std::array<std::uint8_t, 8> kBytes = {0x01, 0x02, 0x03, 0x04, 0x05, 0x06, 0x07, 0x08};

TEST(ByteViewTest, ReadsNumbersInBothByteOrders) {
  const ByteView view(kBytes);
  EXPECT_EQ(view.Get(U8{7}), 0x08);
  EXPECT_EQ(view.Get(Le16{1}), 0x0302);
  EXPECT_EQ(view.Get(Be16{1}), 0x0203);
  EXPECT_EQ(view.Get(Le32{4}), 0x08070605U);
  EXPECT_EQ(view.Get(Be32{4}), 0x05060708U);
  EXPECT_EQ(view.Get(Le64{0}), 0x0807060504030201U);
  EXPECT_EQ(view.Get(Be64{0}), 0x0102030405060708U);
}

TEST(ByteViewTest, ReadsNothingOutside) {
  const ByteView view(kBytes);
  EXPECT_EQ(view.Get(Le32{5}), 0U);
  EXPECT_EQ(view.Get(Le64{SIZE_MAX - 3}), 0U);
  EXPECT_EQ(view.Sub({6, 3}).Size(), 0U);
  EXPECT_EQ(view.Sub({SIZE_MAX, 2}).Size(), 0U);
  EXPECT_EQ(view.Text({7, 2}), "");
  EXPECT_EQ(view.Count({2, 4}), 1U);
  EXPECT_EQ(view.Count({9, 1}), 0U);
}

TEST(ByteViewTest, WritesWhatItReadsAndNothingOutside) {
  std::array<std::uint8_t, 10> bytes{};
  const MutableByteView inner{std::span(bytes).subspan(1, 8)};
  inner.Put(Be32{0}, 0x01020304);
  inner.Put(Le32{4}, 0x08070605);
  inner.Put(Le32{6}, 0xFFFFFFFF);
  inner.PutBytes({6, 4}, kBytes);
  EXPECT_EQ(bytes, (std::array<std::uint8_t, 10>{0, 1, 2, 3, 4, 5, 6, 7, 8, 0}));
}

}  // namespace
}  // namespace orvik::utils
