#pragma once

namespace Tessitor {

/// Shows the user a message and waits until it has been read, where the system has a box for it;
/// showNativeMessage() tells the rest. [gui thread]
/// @param isError  gives the box the error icon.
void displayMessage(const char *text, const char *caption, bool isError);

}  // namespace Tessitor
