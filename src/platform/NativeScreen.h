#pragma once

#include "platform/SNativeRect.h"

/// @return the rectangle around all screens of the desktop; all zero if there is no screen. On
///         Windows the origin is the top left corner of the main screen, so left and top may be
///         negative. On Linux it is the root window of the screen that DISPLAY names, and each call
///         opens its own connection to the X server. [any thread]
SNativeRect nativeVirtualScreen();
