#include "simulation/json/node.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <charconv>
#include <string>
#include <utility>

namespace orvik::simulation {

namespace {

std::string OnOneLine(std::string text) {
  std::ranges::replace_if(
      text, [](char c) { return static_cast<unsigned char>(c) < 0x20; }, ' ');
  return text;
}

std::string NumberText(double number) {
  std::array<char, 32> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
  return {text.data(), end};
}

std::string Describe(const QJsonValue& value) {
  switch (value.type()) {
    case QJsonValue::Null: return "null";
    case QJsonValue::Bool: return value.toBool() ? "true" : "false";
    case QJsonValue::Double: return "the number " + NumberText(value.toDouble());
    case QJsonValue::String: return "the text \"" + value.toString().toStdString() + "\"";
    case QJsonValue::Array: return "a list";
    case QJsonValue::Object: return "an object";
    case QJsonValue::Undefined: break;
  }
  return "nothing";
}

bool IsHex(const std::string& text) {
  return text.find_first_not_of("0123456789abcdefABCDEF") == std::string::npos;
}

template <typename Number>
Number HexNumber(std::string_view digits) {
  Number number{};
  std::from_chars(digits.data(), digits.data() + digits.size(), number, 16);
  return number;
}

}  // namespace

void Complaint::Add(const std::string& place, const std::string& expected, const std::string& found) {
  if (Made()) return;
  text_ = place;
  // Keys may contain control characters too.
  text_.append(": expected ").append(expected).append(", found ").append(OnOneLine(found));
}

Node::Node(QJsonValue value, std::string place, Complaint& complaint)
    : value_(std::move(value)), place_(std::move(place)), complaint_(&complaint) {}

void Node::Reject(const std::string& expected) const {
  Reject(expected, Describe(value_));
}

void Node::Reject(const std::string& expected, const std::string& found) const {
  complaint_->Add(place_.empty() ? "document" : place_, expected, found);
}

void Node::Read(bool& flag) const {
  if (!Present()) return;
  if (!value_.isBool()) return Reject("true or false");
  flag = value_.toBool();
}

void Node::Read(std::string& text, std::size_t most) const {
  if (!Present()) return;
  const std::string given = value_.toString().toStdString();
  if (value_.isString() && given.size() <= most) {
    text = given;
  } else if (most == std::numeric_limits<std::size_t>::max()) {
    Reject("a text");
  } else {
    Reject("a text of at most " + std::to_string(most) + " bytes");
  }
}

void Node::Read(double& number, double least, double most) const {
  if (!Present()) return;
  const double given = value_.toDouble();
  if (!value_.isDouble() || given < least || given > most) {
    return Reject("a number from " + NumberText(least) + " to " + NumberText(most));
  }
  number = given;
}

// `toInteger` returns its default for a number that is not whole.
std::optional<std::int64_t> Node::Whole(std::int64_t least, std::int64_t most) const {
  if (!Present()) return std::nullopt;
  const std::int64_t number = value_.toInteger(0);
  const bool whole = value_.isDouble() && number == value_.toInteger(1);
  if (whole && number >= least && number <= most) return number;
  Reject("a whole number from " + std::to_string(least) + " to " + std::to_string(most));
  return std::nullopt;
}

void Node::Read(Guid& guid) const {
  if (!Present()) return;
  const auto parsed = ParseGuid(value_.toString().toStdString());
  if (!parsed) return Reject("a GUID such as \"{4d36e97b-e325-11ce-bfc1-08002be10318}\"");
  guid = *parsed;
}

void Node::ReadHex(std::uint64_t& number, std::size_t digits) const {
  if (!Present()) return;
  const std::string text = value_.toString().toStdString();
  if (text.size() != digits || !IsHex(text)) {
    return Reject("a text of " + std::to_string(digits) + " hexadecimal digits");
  }
  number = HexNumber<std::uint64_t>(text);
}

void Node::ReadBytes(std::vector<std::uint8_t>& bytes) const {
  if (!Present()) return;
  const std::string text = value_.toString().toStdString();
  if (text.empty() || text.size() % 2 != 0 || !IsHex(text)) return Reject("a text of pairs of hexadecimal digits");
  bytes.clear();
  for (std::size_t i = 0; i < text.size(); i += 2) {
    bytes.push_back(HexNumber<std::uint8_t>(std::string_view(text).substr(i, 2)));
  }
}

void Node::ReadFile(std::vector<std::uint8_t>& bytes, std::size_t least, std::size_t most) const {
  std::string name;
  Read(name);
  if (name.empty()) return Reject("the name of a file");
  const QString document = QString::fromStdString(complaint_->DocumentPath());
  QFile file(QFileInfo(document).dir().filePath(QString::fromStdString(name)));
  if (!file.open(QIODevice::ReadOnly)) {
    return Reject("a readable file", "\"" + name + "\": " + file.errorString().toStdString());
  }
  // One more byte than allowed reveals a file that is too large.
  const QByteArray content = file.read(static_cast<qint64>(most) + 1);
  const auto size = static_cast<std::size_t>(content.size());
  if (size < least || size > most) {
    const std::string range = least == most ? "" : std::to_string(least) + " to ";
    return Reject("a file of " + range + std::to_string(most) + " bytes",
                  "\"" + name + "\" of " + std::to_string(file.size()) + " bytes");
  }
  bytes.assign(content.begin(), content.end());
}

QJsonObject Node::Object() const {
  if (Present() && !value_.isObject()) Reject("an object");
  return value_.toObject();
}

Node Node::Member(std::string_view key, const QJsonValue& value) const {
  const std::string name(key);
  return {value, place_.empty() ? name : place_ + "." + name, *complaint_};
}

std::vector<Node> Node::Elements(std::size_t most) const {
  if (Present() && !value_.isArray()) Reject("a list");
  const QJsonArray list = value_.toArray();
  if (static_cast<std::size_t>(list.size()) > most) {
    Reject("a list of at most " + std::to_string(most) + " elements", std::to_string(list.size()) + " elements");
    return {};
  }
  std::vector<Node> elements;
  for (qsizetype i = 0; i < list.size(); ++i) {
    elements.emplace_back(list.at(i), place_ + "[" + std::to_string(i) + "]", *complaint_);
  }
  return elements;
}

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
