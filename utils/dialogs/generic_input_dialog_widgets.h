#pragma once

#include <QBoxLayout>
#include <QButtonGroup>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QString>
#include <QWidget>
#include <cstdint>

/// A text of the host's own translation context.
QString TranslatedByHost(const char* key);

/// The widgets of a `GenericInputDialog`, owned by the widget tree. Style sheets select them by their object names.
struct GenericInputDialogWidgets {
  QVBoxLayout* dialogLayout{};
  QWidget* border{};
  QVBoxLayout* borderLayout{};
  QWidget* header{};
  QHBoxLayout* headerLayout{};
  QLabel* icon{};
  QLabel* title{};
  QPushButton* closeButton{};
  QWidget* instruction{};
  QVBoxLayout* instructionLayout{};
  QLabel* text{};
  QWidget* fields{};
  QVBoxLayout* fieldsLayout{};
  QWidget* footer{};
  QHBoxLayout* buttonsLayout{};

  /// Creates all but the answer buttons in `dialog`.
  void SetUp(QDialog& dialog);
  /// Creates the answer buttons of a request's button set at the right end of the footer, and adds them to `group`
  /// with their ids; none for an unknown set.
  void AddAnswerButtons(std::uint32_t buttons, QButtonGroup& group) const;
  /// The OK or Yes button; null when there is none.
  QWidget* AffirmativeButton() const;

 private:
  void SetUpHeader();
  void SetUpInstruction();
};
