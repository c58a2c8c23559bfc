#pragma once

#include "platform/NativeKeyboard.h"
#include "platform/linux/windowing/text/CEditLine.h"

#include <cstdint>

/// What a key means to an edit field, apart from what it types.
enum class EEditCommand { None, Copy, Cut, Paste, Accept, Abandon };

/// @param key  a virtual key.
EEditCommand editCommandOf(std::uintptr_t key, const SNativeModifiers &modifiers);

/// Moves the caret, selects or deletes, if that is what the key does.
/// @return false if it does none of these.
bool applyEditKey(CEditLine &line, std::uintptr_t key, const SNativeModifiers &modifiers);
