#pragma once

// Which buttons a question has, and which answer each gives.

#include <QWidget>
#include <array>
#include <cstdint>
#include <span>

struct AnswerButton {
  int id;
  const char* objectName;
  const char* labelKey;
};

/// The buttons of a request's button set, from left to right; none for a set that is not known.
inline std::span<const AnswerButton> AnswerButtonsOf(std::uint32_t buttons) {
  static constexpr AnswerButton kOk{0, "generic_input_button_ok", "OK"};
  static constexpr std::array kOkCancel{kOk, AnswerButton{1, "generic_input_button_cancel", "CANCEL"}};
  static constexpr std::array kYesNo{AnswerButton{2, "generic_input_button_yes", "YES"},
                                     AnswerButton{3, "generic_input_button_no", "NO"}};
  switch (buttons) {
    case 0: return std::span(kOkCancel).first(1);
    case 1: return kOkCancel;
    case 2: return kYesNo;
    default: return {};
  }
}

/// 1 OK, 2 Cancel, 3 Yes, 4 No; 0 for an id that no button has.
inline std::uint32_t AnswerOf(int id) {
  return id >= 0 && id <= 3 ? static_cast<std::uint32_t>(id) + 1 : 0;
}

/// Whether a widget is the button that agrees to what the question suggests.
inline bool AffirmsByName(const QWidget& widget) {
  return widget.objectName() == u"generic_input_button_ok" || widget.objectName() == u"generic_input_button_yes";
}
