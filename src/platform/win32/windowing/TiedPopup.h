#pragma once

#include <windows.h>

/// Has a popup destroyed together with a child window that it belongs to. To Windows, its owner is
/// the top level window around that child, the host's, which outlives the editor. A window has one
/// such popup at most; a later one replaces it.
void tiePopup(HWND window, HWND popup);
void untiePopup(HWND window, HWND popup);  ///< ignored if another one has replaced the popup
void destroyTiedPopup(HWND window);
