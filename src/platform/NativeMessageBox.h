#pragma once

/// Shows the user a message. On Windows this is a box without an owner window, and the call waits
/// until the user closes it. Linux has no system message box, so "caption: text" and a line feed go
/// to standard error. [any thread]
/// @param isError  gives the box the error icon.
void showNativeMessage(const char *text, const char *caption, bool isError);
