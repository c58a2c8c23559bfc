#pragma once

#include "platform/SNativeRect.h"

/// @return the rectangle around all screens of the desktop; all zero if there is no screen. On
///         Windows the origin is the corner of the main screen, so left and top may be negative. On
///         Linux it is the root window of the screen that DISPLAY names, asked over a connection of
///         its own. [any thread]
SNativeRect nativeVirtualScreen();
