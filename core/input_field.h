#pragma once

#include <cstdint>
#include <string>
#include <utility>

/// A further item of a question, laid out below its text.
class InputField {
 public:
  /// What `Type` returns for an `InputFieldLabel`; the host defines the other types.
  static constexpr std::uint32_t kLabel = 0;

  InputField() = default;
  InputField(const InputField&) = delete;
  InputField& operator=(const InputField&) = delete;

  virtual ~InputField() = default;         // slot 0
  virtual std::uint32_t Type() const = 0;  // slot 1
};

/// A text of its own, translated by the dialog like the question's.
class InputFieldLabel : public InputField {
 public:
  explicit InputFieldLabel(std::string labelText, std::string labelToolTip = {})
      : text(std::move(labelText)), toolTip(std::move(labelToolTip)) {}

  std::uint32_t Type() const override { return kLabel; }

  std::string text;
  std::string toolTip;  ///< empty: none
};
