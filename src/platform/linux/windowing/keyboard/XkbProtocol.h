#pragma once

#include <xcb/xcb.h>

// A field of its structures has a name that is reserved in C++.
#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit
