#include "simulation/drives/base/sector_store.h"

#include <algorithm>

namespace orvik::simulation {

SectorStore::SectorStore(std::uint64_t sectors, std::uint32_t sectorSize, std::span<const std::uint64_t> unreadable)
    : sectors_(sectors), sectorSize_(sectorSize), unreadable_(unreadable.begin(), unreadable.end()) {}

std::uint64_t SectorStore::Read(std::uint64_t lba, std::uint64_t count, std::span<std::uint8_t> data) const {
  const std::scoped_lock lock(mutex_);
  const auto bad = unreadable_.lower_bound(lba);
  const std::uint64_t readable = bad == unreadable_.end() ? count : std::min(count, *bad - lba);
  for (std::uint64_t i = 0; i < readable && !data.empty(); ++i) {
    const auto sector = data.first(std::min<std::size_t>(sectorSize_, data.size()));
    const auto found = written_.find(lba + i);
    if (found == written_.end()) {
      std::ranges::fill(sector, std::uint8_t{0});
    } else {
      std::copy_n(found->second.begin(), sector.size(), sector.begin());
    }
    data = data.subspan(sector.size());
  }
  return readable;
}

void SectorStore::Write(std::uint64_t lba, std::span<const std::uint8_t> data) {
  const std::scoped_lock lock(mutex_);
  for (; data.size() >= sectorSize_; data = data.subspan(sectorSize_), ++lba) {
    const auto sector = data.first(sectorSize_);
    written_[lba].assign(sector.begin(), sector.end());
    unreadable_.erase(lba);
  }
}

void SectorStore::MakeUnreadable(std::uint64_t lba, std::uint64_t count) {
  const std::scoped_lock lock(mutex_);
  for (std::uint64_t i = 0; i < count; ++i) unreadable_.insert(lba + i);
}

std::size_t SectorStore::UnreadableCount() const {
  const std::scoped_lock lock(mutex_);
  return unreadable_.size();
}

}  // namespace orvik::simulation
