#include "simulation/json/object_reader.h"

#include <algorithm>
#include <string>

namespace orvik::simulation {

ObjectReader::ObjectReader(const Node& node) : node_(node), object_(node.Object()) {}

Node ObjectReader::Optional(std::string_view key) {
  known_.push_back(key);
  const QString name = QString::fromUtf8(key.data(), static_cast<qsizetype>(key.size()));
  const auto found = object_.constFind(name);
  return node_.Member(key, found == object_.constEnd() ? QJsonValue(QJsonValue::Undefined) : found.value());
}

Node ObjectReader::Required(std::string_view key, std::string_view expected) {
  Node member = Optional(key);
  if (!member.Present()) member.Reject(std::string(expected));
  return member;
}

void ObjectReader::End() const {
  for (const QString& key : object_.keys()) {
    const std::string name = key.toStdString();
    if (std::ranges::find(known_, name) != known_.end()) continue;
    std::string expected = "one of the keys ";
    for (const std::string_view known : known_) {
      expected.append(known == known_.front() ? "\"" : ", \"").append(known).append("\"");
    }
    node_.Reject(expected, "the key \"" + name + "\"");
  }
}

}  // namespace orvik::simulation
