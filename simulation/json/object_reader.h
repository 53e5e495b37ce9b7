#pragma once

#include <string_view>
#include <vector>

#include "simulation/json/node.h"

namespace orvik::simulation {

/// Reads the members of an object by their keys. What has not been asked for when `End` is called is a complaint.
class ObjectReader {
 public:
  explicit ObjectReader(const Node& node);

  /// A missing member is a complaint that expects `expected` there.
  Node Required(std::string_view key, std::string_view expected);
  Node Optional(std::string_view key);
  void End() const;

 private:
  Node node_;
  QJsonObject object_;
  std::vector<std::string_view> known_;
};

}  // namespace orvik::simulation
