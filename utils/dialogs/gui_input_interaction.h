#pragma once

#include <cstdint>

#include "core/input_interaction.h"

namespace orvik::utils {

/// A question that is put on the screen, unless it is to be skipped.
class GuiInputInteraction : public core::InputInteraction {
 public:
  GuiInputInteraction(bool skip, bool always) : skipInteraction(skip), alwaysAsk(always) {}

  void Interact() override {
    if (!skipInteraction) DoInteract();
  }

  bool skipInteraction;
  bool alwaysAsk;            ///< clear: questions with one sensible answer are answered at once
  std::uint32_t result = 0;  ///< the request's answer once a dialog was shown
};

}  // namespace orvik::utils
