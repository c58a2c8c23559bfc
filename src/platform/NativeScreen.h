#pragma once

#include "platform/SNativeRect.h"

/// @return the rectangle that holds all the screens of the desktop; all zero if there is none.
///         Windows has its origin at the main screen, so left and top may be below 0. On Linux it
///         is the root window of the screen that DISPLAY names, asked for on a connection of its
///         own. [any thread]
SNativeRect nativeVirtualScreen();
