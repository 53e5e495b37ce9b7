#pragma once

namespace orvik::host {

/// Chooses where windows are drawn: on the display, or nowhere when there is none. Before the application object.
void ChooseDisplay();

/// Whether a person can see the windows of this program. With the application object.
bool HasDisplay();

}  // namespace orvik::host
