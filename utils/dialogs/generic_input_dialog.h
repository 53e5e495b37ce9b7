#pragma once

#include <QButtonGroup>
#include <QPoint>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "core/input_field.h"
#include "core/input_interaction.h"
#include "utils/dialogs/accessible_dialog_base.h"
#include "utils/dialogs/generic_input_dialog_widgets.h"

/// Modal window that asks one question and writes the answer into the request. GUI thread only.
class GenericInputDialog : public orvik::utils::accessibility::AccessibleDialogBase {
  Q_OBJECT

 public:
  /// `request` stays the caller's and must outlive the dialog; its answer is 0 until a button is pressed. Title, text
  /// and fields are translated in `translationContext`.
  GenericInputDialog(InputRequest* request, std::string translationContext, QWidget* parent);
  GenericInputDialog(const GenericInputDialog&) = delete;
  GenericInputDialog& operator=(const GenericInputDialog&) = delete;
  ~GenericInputDialog() override;

  /// Brings the window forward and runs it until it is closed.
  int exec() override;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 public Q_SLOTS:
  /// Closes the dialog without an answer.
  void OnClose();
  /// Stores the answer of the button with this id and closes the dialog.
  void OnAnswer(int id);

 private:
  QString Translated(const std::string& key) const;
  void ShowText();
  void SetWidth();
  void ShowIconAndTitle();
  void AddFields();
  void AddLabel(const InputFieldLabel& field);
  void SetInitialFocus(bool screenReader);
  void CollectFocusList();
  void MoveFocus(int step);
  void Close(std::uint32_t answer);

  InputRequest* request_;
  QButtonGroup answerButtons_;
  std::unique_ptr<GenericInputDialogWidgets> ui_;
  bool dragging_ = false;
  QPoint dragOffset_;
  std::string translationContext_;
  std::vector<QWidget*> focusList_;
};
