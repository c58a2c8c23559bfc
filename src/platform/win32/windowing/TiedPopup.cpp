#include "platform/win32/windowing/TiedPopup.h"

namespace {

constexpr const char *property = "com.tessitor.Popup";

}  // namespace

void tiePopup(HWND window, HWND popup) {
    SetPropA(window, property, popup);
}

void untiePopup(HWND window, HWND popup) {
    if (GetPropA(window, property) == popup)
        RemovePropA(window, property);
}

void destroyTiedPopup(HWND window) {
    if (const auto popup = static_cast<HWND>(RemovePropA(window, property)))
        DestroyWindow(popup);
}
