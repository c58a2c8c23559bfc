#pragma once

/// Shows the user a message. Windows shows a box without an owner and waits until it is closed.
/// Linux offers a library no message box, so "caption: text" and a line feed go to standard error.
/// [any thread]
/// @param isError  gives the box the error icon.
void showNativeMessage(const char *text, const char *caption, bool isError);
