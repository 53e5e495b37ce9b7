#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

#include <windows.h>

#include "module/raid/csmi/csmi_layout.h"
#include "module/storage/ata/ata_cmd.h"
#include "module/storage/scsi/scsi_cmd.h"
#include "module/storage/status.h"
#include "utils/bytes/byte_view.h"

namespace orvik::module::raid {

/// One CSMI request: built, sent once, read back from the same buffer, dropped. Not shared between threads.
class CsmiPacket {
 public:
  CsmiPacket(const CsmiPacket&) = delete;
  CsmiPacket& operator=(const CsmiPacket&) = delete;
  virtual ~CsmiPacket() = default;

  std::uint8_t* Buffer() const { return bytes_.data(); }
  utils::ByteView View() const { return {bytes_}; }

  std::uint32_t HeaderLength() const { return View().Get(csmi::header::kHeaderLength); }
  std::uint32_t Length() const { return View().Get(csmi::header::kLength); }
  std::uint32_t ReturnCode() const { return View().Get(csmi::header::kReturnCode); }

  void SetControlCode(std::uint32_t code) { Writer().Put(csmi::header::kControlCode, code); }
  void SetHeaderLength(std::uint32_t length) { Writer().Put(csmi::header::kHeaderLength, length); }
  void SetLength(std::uint32_t length) { Writer().Put(csmi::header::kLength, length); }
  void SetTimeout(std::uint32_t seconds) { Writer().Put(csmi::header::kTimeout, seconds); }
  /// Seven letters; the eighth byte stays zero.
  void SetSignature(std::string_view signature);

 protected:
  CsmiPacket() = default;

  /// Takes the zeroed buffer, which must outlive the packet and not move, and writes the header.
  void Build(std::span<std::uint8_t> buffer, std::string_view signature, std::uint32_t controlCode);

  utils::MutableByteView Writer() const { return {bytes_}; }

 private:
  std::span<std::uint8_t> bytes_;
};

/// A packet whose size the standard fixes.
template <std::size_t Size>
class FixedCsmiPacket : public CsmiPacket {
 protected:
  FixedCsmiPacket(std::string_view signature, std::uint32_t controlCode) { Build(buffer_, signature, controlCode); }

 private:
  std::array<std::uint8_t, Size> buffer_{};
};

/// A packet that grows with what it carries.
class SizedCsmiPacket : public CsmiPacket {
 protected:
  SizedCsmiPacket(std::size_t size, std::string_view signature, std::uint32_t controlCode) : buffer_(size) {
    Build(buffer_, signature, controlCode);
  }

 private:
  std::vector<std::uint8_t> buffer_;
};

class ControllerConfigurationPacket final : public FixedCsmiPacket<csmi::controller_configuration::kSize> {
 public:
  ControllerConfigurationPacket();
};

class ControllerStatusPacket final : public FixedCsmiPacket<csmi::controller_status::kSize> {
 public:
  ControllerStatusPacket();
};

class PhyInformationPacket final : public FixedCsmiPacket<csmi::phy_information::kSize> {
 public:
  PhyInformationPacket();

  /// The 64-byte entries of the reply that have an end device other than an SMP target; at most as many as the packet
  /// holds.
  std::vector<utils::ByteView> PhysWithDrives() const;
};

/// The phy (64-byte entry) has a SAS drive; any other drive is SATA.
bool IsSasDrive(utils::ByteView phyEntry);

class RaidInformationPacket final : public FixedCsmiPacket<csmi::raid_information::kSize> {
 public:
  RaidInformationPacket();

  std::uint32_t NumRaidSets() const { return View().Get(csmi::raid_information::kNumRaidSets); }
  std::uint32_t MaxDrivesPerSet() const { return View().Get(csmi::raid_information::kMaxDrivesPerSet); }
};

class RaidConfigurationPacket final : public SizedCsmiPacket {
 public:
  /// A reply counts its drives in one byte, so `drivesPerSet` is limited to the largest one.
  RaidConfigurationPacket(std::uint32_t setIndex, std::uint32_t drivesPerSet);

  /// The 136-byte entries of the reply, at most as many as the packet holds.
  std::vector<utils::ByteView> Drives() const;
};

/// Carries a SCSI command to the drive on a phy (a 64-byte entry of the phy information).
class SspPassThroughPacket final : public SizedCsmiPacket {
 public:
  SspPassThroughPacket(const storage::ScsiCmd& command, utils::ByteView phyEntry);

  utils::ByteView Data() const;
};

/// Carries an ATA command to the drive on a phy (a 64-byte entry of the phy information).
class StpPassThroughPacket final : public SizedCsmiPacket {
 public:
  StpPassThroughPacket(const storage::AtaCmd& command, utils::ByteView phyEntry);

  utils::ByteView StatusFis() const { return View().Sub(csmi::stp::kStatusFis); }
  utils::ByteView Data() const;
};

/// Sends the packet to a SCSI port, synchronously; the reply replaces it. Returns kIoctlFailed when the call fails
/// and does not examine the packet's ReturnCode.
storage::Status SendCsmiPacket(HANDLE port, CsmiPacket& packet);

/// Sends the packet and examines its ReturnCode: returns kIoctlFailed when the call fails, kCsmiReturnCode for a
/// ReturnCode other than 0.
storage::Status ExchangeCsmiPacket(HANDLE port, CsmiPacket& packet);

}  // namespace orvik::module::raid
