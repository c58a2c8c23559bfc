#pragma once

#include "platform/SNativePoint.h"

#include <vector>

/// The mouse of a program that links FakeNativeMouse.cpp, which replaces the platform's functions.
struct SFakeNativeMouse {
    struct SCursor {
        int number;  // of the system cursor or the resource
        void *module;
        bool isAnimated;
    };
    std::vector<SCursor> loaded;
    std::vector<void *> destroyed;
    void *shown = nullptr;
    void *captureWindow = nullptr;
    SNativePoint position;  // on the screen

    /// The cursor that a handle stands for.
    const SCursor &cursorOf(void *handle) const;
};

SFakeNativeMouse &fakeNativeMouse();
