#pragma once

/// Tells the user something. Windows shows a box with no owner and waits until it is closed; Linux,
/// where a library has no box of its own to show, writes "caption: text" and a line feed to
/// standard error. [any thread]
/// @param isError  gives the box the error icon.
void showNativeMessage(const char *text, const char *caption, bool isError);
