#pragma once

#include "platform/INativeFont.h"
#include "platform/SNativeColour.h"
#include "platform/SNativeRect.h"

#include <memory>

/// What made a text field report. All but the return key abandon the text.
enum class ENativeTextFieldEnd { ReturnKey, EscapeKey, FocusLost };

/// What a text field reports. [gui thread]
class INativeTextFieldListener {
public:
    /// Called once at most, and not while the field is being destroyed. May destroy the field.
    virtual void handleTextFieldEnd(ENativeTextFieldEnd end) = 0;

protected:
    ~INativeTextFieldListener() = default;
};

/// What a text field is created from. The pointers need not outlive the call.
struct SNativeTextFieldSettings {
    SNativeRect area;                   ///< in the window
    const char *text = "";              ///< in the system's narrow encoding
    const INativeFont *font = nullptr;  ///< null for the system's own font
    SNativeColour textColour, background;
    std::uint32_t styleBits = 0;     ///< further window style bits; Linux has none
    std::int32_t maximumLength = 0;  ///< of what can be typed, in bytes; 0 for no limit
};

/// A line of text that the user edits, in a window of its own above all others. [gui thread]
/// Destroying it closes that window.
class INativeTextField {
public:
    virtual ~INativeTextField() = default;

    virtual void *getHandle() const = 0;  ///< HWND or X window id; null once it is gone
    /// Copies the text.
    /// @param buffer  of size bytes; a longer text is cut. Always terminated.
    virtual void getText(char *buffer, std::int32_t size) const = 0;
    /// The answer to NativeColourEdit, with which Windows asks for the field's colours. It asks the
    /// top level window around the field, so a field inside a host's window has the system's.
    /// @param deviceContext  receives the colours.
    /// @return the handle of the brush for the background, which the field owns.
    virtual std::intptr_t colour(void *deviceContext) = 0;
};

/// Opens a text field without margins, with all of its text selected, and gives it the focus. It
/// takes all keys.
/// @param window    the native window that the field belongs to.
/// @param listener  must outlive the field.
/// @return null if the system refuses.
std::unique_ptr<INativeTextField> createNativeTextField(void *window,
                                                        const SNativeTextFieldSettings &settings,
                                                        INativeTextFieldListener &listener);
