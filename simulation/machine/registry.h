#pragma once

// The part of the machine's registry that lies under HKEY_LOCAL_MACHINE: text values (REG_SZ) under key paths.

#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace orvik::simulation {

/// A text value, all three parts in UTF-8. Keys are paths below HKEY_LOCAL_MACHINE, separated by '\'.
struct RegistryValue {
  std::string key{};
  std::string name{};
  std::string text{};
};

/// Keys and names are compared without regard to case. Thread-safe.
class Registry {
 public:
  void Set(const RegistryValue& value);
  std::optional<std::string> Find(std::string_view key, std::string_view name) const;

 private:
  mutable std::mutex mutex_;
  std::map<std::pair<std::string, std::string>, std::string> values_;
};

}  // namespace orvik::simulation
