#pragma once

#include "platform/SNativePoint.h"

/// The mouse and its cursors. [gui thread] A cursor handle belongs to the caller. It is null if
/// there is no such cursor. Loading one needs no display.

/// @param systemCursor  the number that Windows gives to this cursor, from 32512 for the arrow on;
///                      the same number on every system.
void *loadNativeCursor(int systemCursor);
/// @param module    the module whose resources hold the cursor. Linux modules have none, so the
///                  result is null there.
/// @param resource  the number of the cursor in these resources.
void *loadNativeCursor(void *module, int resource);
void *loadNativeAnimatedCursor(void *module, int resource);  ///< of the type "ANICURSORS"

void destroyNativeCursor(void *cursor);  ///< null is ignored
/// Shows a cursor until the mouse next moves, or for as long as the mouse is captured. Null hides
/// the cursor.
void setNativeCursor(void *cursor);

/// Sends all mouse messages to a window, also from outside it. Replaces an earlier capture.
void captureNativeMouse(void *window);
void releaseNativeMouse();
/// @return the window of this thread that has captured the mouse; null if there is none.
void *nativeMouseCapture();

/// @return where the mouse is on the screen, as far as the system tells; else 0, 0.
SNativePoint nativeMousePosition();
