#pragma once

// The contents of a drive. Only sectors that have been written take memory; the others hold zeros.

#include <cstddef>
#include <cstdint>
#include <mutex>
#include <set>
#include <span>
#include <unordered_map>
#include <vector>

namespace orvik::simulation {

/// Thread-safe.
class SectorStore {
 public:
  SectorStore(std::uint64_t sectors, std::uint32_t sectorSize, std::span<const std::uint64_t> unreadable);

  std::uint64_t Sectors() const { return sectors_; }
  std::uint32_t SectorSize() const { return sectorSize_; }
  bool Holds(std::uint64_t lba, std::uint64_t count) const { return lba <= sectors_ && count <= sectors_ - lba; }

  /// Reads up to `count` sectors into as much of `data` as they fill. Returns the number of sectors before the first
  /// unreadable one.
  std::uint64_t Read(std::uint64_t lba, std::uint64_t count, std::span<std::uint8_t> data) const;
  /// Writes whole sectors, which makes them readable.
  void Write(std::uint64_t lba, std::span<const std::uint8_t> data);
  void MakeUnreadable(std::uint64_t lba, std::uint64_t count);
  std::size_t UnreadableCount() const;

 private:
  std::uint64_t sectors_;
  std::uint32_t sectorSize_;
  mutable std::mutex mutex_;
  std::unordered_map<std::uint64_t, std::vector<std::uint8_t>> written_;
  std::set<std::uint64_t> unreadable_;
};

}  // namespace orvik::simulation
