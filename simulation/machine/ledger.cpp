#include "simulation/machine/ledger.h"

namespace orvik::simulation {

namespace {

std::size_t Index(Resource kind) {
  return static_cast<std::size_t>(kind);
}

}  // namespace

void Ledger::Take(Resource kind) {
  const std::scoped_lock lock(mutex_);
  ++accounts_.at(Index(kind)).taken;
}

void Ledger::Return(Resource kind) {
  const std::scoped_lock lock(mutex_);
  Account& account = accounts_.at(Index(kind));
  if (account.returned < account.taken) {
    ++account.returned;
  } else {
    ++account.invalid;
  }
}

void Ledger::InvalidRelease(Resource kind) {
  const std::scoped_lock lock(mutex_);
  ++accounts_.at(Index(kind)).invalid;
}

void Ledger::RecordAffinityRequest(std::uint64_t mask) {
  const std::scoped_lock lock(mutex_);
  affinityRequests_.push_back(mask);
}

std::size_t Ledger::Outstanding(Resource kind) const {
  const std::scoped_lock lock(mutex_);
  const Account& account = accounts_.at(Index(kind));
  return account.taken - account.returned;
}

std::size_t Ledger::OutstandingTotal() const {
  const std::scoped_lock lock(mutex_);
  std::size_t total = 0;
  for (const Account& account : accounts_) total += account.taken - account.returned;
  return total;
}

std::size_t Ledger::InvalidReleases() const {
  const std::scoped_lock lock(mutex_);
  std::size_t total = 0;
  for (const Account& account : accounts_) total += account.invalid;
  return total;
}

std::vector<std::uint64_t> Ledger::AffinityRequests() const {
  const std::scoped_lock lock(mutex_);
  return affinityRequests_;
}

}  // namespace orvik::simulation
