#pragma once

#include "platform/INativeTextField.h"

#include <string>

/// The text field of a program that links FakeNativeTextField.cpp, which replaces the platform's
/// functions. There is one field at most. Its address is its handle, and its brush is 42.
struct SFakeNativeTextField {
    bool isOpen = false;
    bool isRefused = false;  // creating the next one fails
    void *window = nullptr;
    SNativeTextFieldSettings settings;  // without the text
    std::string text;
    INativeTextFieldListener *listener = nullptr;
    void *deviceContext = nullptr;  // the last one that was asked to be coloured

    void end(ENativeTextFieldEnd how) { listener->handleTextFieldEnd(how); }
};

SFakeNativeTextField &fakeNativeTextField();
