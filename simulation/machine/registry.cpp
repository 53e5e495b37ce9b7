#include "simulation/machine/registry.h"

#include "simulation/identifiers.h"

namespace orvik::simulation {

namespace {

std::pair<std::string, std::string> Place(std::string_view key, std::string_view name) {
  return {FoldCase(key), FoldCase(name)};
}

}  // namespace

void Registry::Set(const RegistryValue& value) {
  const std::scoped_lock lock(mutex_);
  values_[Place(value.key, value.name)] = value.text;
}

std::optional<std::string> Registry::Find(std::string_view key, std::string_view name) const {
  const std::scoped_lock lock(mutex_);
  const auto found = values_.find(Place(key, name));
  if (found == values_.end()) return std::nullopt;
  return found->second;
}

}  // namespace orvik::simulation
