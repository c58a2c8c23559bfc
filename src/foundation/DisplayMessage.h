#pragma once

namespace Tessitor {

/// Shows the user a message and, where the system has a message box, waits until it is closed. See
/// showNativeMessage(). [gui thread]
/// @param isError  gives the box the error icon.
void displayMessage(const char *text, const char *caption, bool isError);

}  // namespace Tessitor
