#pragma once

// A strict reader of JSON documents. It writes a target only when the document has a fitting value there, and keeps
// the first complaint, so that a reader runs through its document and checks for errors once at the end.

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <algorithm>
#include <array>
#include <concepts>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "simulation/identifiers.h"

namespace orvik::simulation {

/// The first error in a document.
class Complaint {
 public:
  /// `documentPath`: where the document is, for the files that it names.
  explicit Complaint(std::string documentPath) : documentPath_(std::move(documentPath)) {}

  const std::string& DocumentPath() const { return documentPath_; }
  void Add(const std::string& place, const std::string& expected, const std::string& found);
  bool Made() const { return !text_.empty(); }
  /// "<place>: expected <expected>, found <found>".
  const std::string& Text() const { return text_; }

 private:
  std::string documentPath_;
  std::string text_;
};

template <typename Value>
struct Named {
  std::string_view name;
  Value value;
};

/// A value of the document, or a missing one, which leaves every target unchanged.
class Node {
 public:
  Node(QJsonValue value, std::string place, Complaint& complaint);

  bool Present() const { return !value_.isUndefined(); }
  bool IsList() const { return value_.isArray(); }
  const std::string& Place() const { return place_; }
  /// Complains that `expected` should be here. Without `found`, the value itself is named.
  void Reject(const std::string& expected) const;
  void Reject(const std::string& expected, const std::string& found) const;

  void Read(bool& flag) const;
  /// A text of at most `most` bytes.
  void Read(std::string& text, std::size_t most = std::numeric_limits<std::size_t>::max()) const;
  void Read(double& number, double least, double most) const;
  template <std::integral Number>
  requires(!std::same_as<Number, bool>) void Read(
      Number& number, std::type_identity_t<Number> least = 0,
      std::type_identity_t<Number> most = std::numeric_limits<Number>::max()) const {
    // The document's own whole numbers end at the largest signed one.
    constexpr auto kMost = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    const auto limit =
        std::cmp_less(kMost, most) ? static_cast<std::int64_t>(kMost) : static_cast<std::int64_t>(most);
    if (const auto whole = Whole(static_cast<std::int64_t>(least), limit)) number = static_cast<Number>(*whole);
  }
  void Read(Guid& guid) const;
  /// A number written as exactly `digits` hexadecimal digits in a text.
  void ReadHex(std::uint64_t& number, std::size_t digits) const;
  /// Bytes written as pairs of hexadecimal digits in a text.
  void ReadBytes(std::vector<std::uint8_t>& bytes) const;
  /// The bytes of a file, named relative to the document, of a size within the limits.
  void ReadFile(std::vector<std::uint8_t>& bytes, std::size_t least, std::size_t most) const;

  template <typename Value, typename... Limits>
  void Read(std::optional<Value>& target, Limits... limits) const {
    if (!Present()) return;
    Value value{};
    Read(value, limits...);
    target = value;
  }

  /// One of the names of a table.
  template <typename Value, std::size_t count>
  void ReadName(Value& target, const std::array<Named<Value>, count>& names) const {
    if (!Present()) return;
    const std::string given = value_.toString().toStdString();
    const auto found = std::ranges::find(names, given, &Named<Value>::name);
    if (found != names.end()) {
      target = found->value;
      return;
    }
    Reject("one of " + Listed(names));
  }

  /// One of the names of a table, or any other number from 0 to 255.
  template <typename Value, std::size_t count>
  void ReadNameOrByte(Value& target, const std::array<Named<Value>, count>& names) const {
    if (!value_.isDouble()) return ReadName(target, names);
    std::uint8_t number{};
    Read(number);
    target = static_cast<Value>(number);
  }

  /// A list of the names of a table, whose values are bits, or the number that they make up.
  template <std::unsigned_integral Bits, std::size_t count>
  void ReadBits(Bits& bits, const std::array<Named<Bits>, count>& names) const {
    if (!IsList()) return Read(bits);
    bits = 0;
    ForEach([&](const Node& each) {
      Bits bit = 0;
      each.ReadName(bit, names);
      bits = static_cast<Bits>(bits | bit);
    });
  }

  template <typename Reader>
  void ForEach(Reader read, std::size_t most = std::numeric_limits<std::size_t>::max()) const {
    for (const Node& element : Elements(most)) read(element);
  }

  /// The value as an object; empty, after a complaint, when it is not one.
  QJsonObject Object() const;
  Node Member(std::string_view key, const QJsonValue& value) const;

 private:
  template <typename Value, std::size_t count>
  static std::string Listed(const std::array<Named<Value>, count>& names) {
    std::string list;
    for (const auto& each : names) {
      list += list.empty() ? "\"" : ", \"";
      list.append(each.name) += '"';
    }
    return list;
  }

  std::optional<std::int64_t> Whole(std::int64_t least, std::int64_t most) const;
  std::vector<Node> Elements(std::size_t most) const;

  QJsonValue value_;
  std::string place_;
  Complaint* complaint_;
};

/// Reads the members of an object by their keys. `End` complains about members that have not been read.
class ObjectReader {
 public:
  explicit ObjectReader(const Node& node);

  /// Complains that `expected` should be there when the member is missing.
  Node Required(std::string_view key, std::string_view expected);
  Node Optional(std::string_view key);
  void End() const;

 private:
  Node node_;
  QJsonObject object_;
  std::vector<std::string_view> known_;
};

}  // namespace orvik::simulation
