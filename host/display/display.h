#pragma once

namespace orvik::host {

/// Chooses where windows are drawn: on the display, or nowhere when there is none. Before the application object.
void ChooseDisplay();

/// Keeps the toolkit's remarks about its surroundings off standard error, which is for the program's own words.
/// QT_LOGGING_RULES brings them back.
void QuietToolkit();

/// The module's dialogs scale themselves to the monitor; scaled by the toolkit too they would grow twice. Part of
/// `ChooseDisplay`.
void LeaveScalingToDialogs();

/// Whether a person can see the windows of this program. With the application object.
bool HasDisplay();

}  // namespace orvik::host
