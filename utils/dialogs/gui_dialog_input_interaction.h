#pragma once

#include <cstdint>
#include <string>

#include "core/input_interaction.h"

namespace orvik::utils {

/// A question for the screen, unless it is to be skipped.
class GuiInputInteraction : public core::InputInteraction {
 public:
  GuiInputInteraction(bool skip, bool always) : skipInteraction(skip), alwaysAsk(always) {}

  void Interact() override {
    if (!skipInteraction) DoInteract();
  }

  bool skipInteraction;
  bool alwaysAsk;            ///< when clear, questions with one sensible answer are answered without a dialog
  std::uint32_t result = 0;  ///< the request's answer once a dialog was shown
};

/// A question asked in a `GenericInputDialog`. Call `Interact` and `DoInteract` from a thread other than the GUI
/// thread, which must run its event loop: they block until the dialog is closed.
class GuiDialogInputInteraction : public GuiInputInteraction {
 public:
  /// `question` stays the caller's and must live until it is answered. The dialog's texts are translated in
  /// `context`, which is left empty.
  GuiDialogInputInteraction(InputRequest* question, std::string&& context, bool skip, bool always);

  void DoInteract() override;

  std::string translationContext;
  InputRequest* request;  ///< not owned

 private:
  bool AnswerWithoutDialog();
  void ShowDialog();
};

}  // namespace orvik::utils
