#pragma once

#include <QBoxLayout>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QWidget>

/// The widgets of a `GenericInputDialog`, owned by the widget tree. Their object names are what style sheets know
/// them by.
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

  /// Makes them all in `dialog`.
  void SetUp(QDialog& dialog);

 private:
  void SetUpHeader();
  void SetUpInstruction();
};
