#pragma once

#include <cstdint>

#include "module/storage/scsi/scsi_cmd.h"

namespace orvik::module::storage {

/// INQUIRY (SPC-4, 6.6): standard data, or the page `pageCode` of vital product data.
class Inquiry final : public ScsiCmd {
 public:
  Inquiry(std::uint8_t* data, std::int32_t size, bool vitalProductData, std::uint8_t pageCode) {
    cdbLength = 6;
    Cdb().Put(utils::U8{0}, 0x12);
    if (vitalProductData) {
      Cdb().Put(utils::U8{1}, 0x01);
      Cdb().Put(utils::U8{2}, pageCode);
    }
    Cdb().Put(utils::Be16{3}, static_cast<std::uint16_t>(size));
    TakeIn(data, static_cast<std::uint16_t>(size));
  }
};

/// READ CAPACITY (16) (SBC-3, 5.16): SERVICE ACTION IN (16) with service action 10h, 32 bytes in.
class ReadCapacity16 final : public ScsiCmd {
 public:
  static constexpr std::uint8_t kDataSize = 32;

  explicit ReadCapacity16(std::uint8_t* data) {
    cdbLength = 16;
    Cdb().Put(utils::U8{0}, 0x9E);
    Cdb().Put(utils::U8{1}, 0x10);
    Cdb().Put(utils::U8{13}, kDataSize);
    TakeIn(data, kDataSize);
  }
};

}  // namespace orvik::module::storage
