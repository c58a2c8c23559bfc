#include "platform/linux/windowing/text/CXcbTextField.h"
#include "platform/linux/windowing/window/CXcbWindow.h"

std::unique_ptr<INativeTextField> createNativeTextField(void *window,
                                                        const SNativeTextFieldSettings &settings,
                                                        INativeTextFieldListener &listener) {
    const auto id = static_cast<xcb_window_t>(reinterpret_cast<std::uintptr_t>(window));
    const std::shared_ptr<CXcbConnection> connection = CXcbConnection::find(id);
    if (connection == nullptr)
        return nullptr;
    const SNativeRect parent = connection->windowOf(id)->getScreenArea();
    const SNativeRect &area = settings.area;
    const SNativeRect onScreen = {parent.left + area.left, parent.top + area.top,
                                  parent.left + area.right, parent.top + area.bottom};
    auto field = std::make_unique<CXcbTextField>(connection, id, onScreen, settings);
    if (!field->open(listener))
        return nullptr;
    return field;
}
