#pragma once

#include "platform/SNativeRect.h"

/// What nativeVirtualScreen() returns in a program that links FakeNativeScreen.cpp.
SNativeRect &fakeNativeScreen();
