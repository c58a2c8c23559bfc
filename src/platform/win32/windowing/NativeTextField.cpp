#include "platform/win32/windowing/CWin32TextField.h"

std::unique_ptr<INativeTextField> createNativeTextField(void *window,
                                                        const SNativeTextFieldSettings &settings,
                                                        INativeTextFieldListener &listener) {
    auto field = std::make_unique<CWin32TextField>(static_cast<HWND>(window), settings);
    if (!field->open(settings, listener))
        return nullptr;
    return field;
}
