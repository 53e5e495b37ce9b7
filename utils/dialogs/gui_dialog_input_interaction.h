#pragma once

#include <string>

#include "utils/dialogs/gui_input_interaction.h"

namespace orvik::utils {

/// A question asked in a `GenericInputDialog`. `Interact` and `DoInteract` are for threads other than the GUI thread,
/// which has to run its event loop: they block until the dialog is closed.
class GuiDialogInputInteraction : public GuiInputInteraction {
 public:
  /// `request` stays the caller's and must live until the question is answered. The dialog's texts are translated in
  /// `context`, which is left empty.
  GuiDialogInputInteraction(InputRequest* question, std::string&& context, bool skip, bool always);

  void DoInteract() override;

  std::string translationContext;
  InputRequest* request;  ///< not owned

 private:
  bool AnswerAtOnce();
  void ShowDialog();
};

}  // namespace orvik::utils
