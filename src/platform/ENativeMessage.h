#pragma once

/// What a window reports to INativeWindowListener::handleMessage(), with the numbers and the
/// packing of Windows. A packed position has x in the low 16 bits and y in the next 16, both
/// signed.
enum ENativeMessage : unsigned {
    NativeDestroy = 2,  ///< the window is going away
    NativeMove = 3,     ///< lParam: the packed position in the parent; of a popup, on the screen
    NativeSize = 5,     ///< lParam: width in the low 16 bits, height in the next, both unsigned
    NativeSetFocus = 7,
    NativeKillFocus = 8,
    NativePaint = 15,  ///< answered with INativeWindow::paint()
    NativeClose = 16,  ///< the user wants the window closed
    NativeEraseBackground = 20,
    NativeKeyDown = 256,  ///< wParam: the virtual key; lParam: what nativeCharacterOf() needs
    NativeKeyUp = 257,    ///< likewise
    NativeTimer = 275,
    NativeColourEdit = 307,   ///< wParam: a device context; lParam: the handle of a child window
    NativeColourLabel = 312,  ///< likewise

    // lParam: the packed position in the window
    NativeMouseMove = 512,
    NativeLeftDown = 513,
    NativeLeftUp = 514,
    NativeDoubleClick = 515,  ///< comes in place of the second NativeLeftDown
    NativeRightDown = 516,
    NativeRightUp = 517,
    NativeMiddleDown = 519,
    NativeMiddleUp = 520,

    /// wParam: the signed high 16 bits are the movement, 120 for each notch; up is positive.
    NativeMouseWheel = 522,
    NativeDropFiles = 563,   ///< wParam: for readNativeDrop()
    NativeMouseLeave = 675,  ///< once after INativeWindow::trackMouseLeave()
};
