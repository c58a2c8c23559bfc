#include "platform/NativeScreen.h"

#include <memory>
#include <xcb/xcb.h>

namespace {

struct SDisconnect {
    void operator()(xcb_connection_t *connection) const { xcb_disconnect(connection); }
};

}  // namespace

SNativeRect nativeVirtualScreen() {
    int number = 0;
    // xcb_connect() never returns null, and a failed connection needs closing as well.
    const std::unique_ptr<xcb_connection_t, SDisconnect> connection(xcb_connect(nullptr, &number));
    if (xcb_connection_has_error(connection.get()) != 0)
        return {};
    xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(connection.get()));
    for (; number > 0 && screens.rem > 1; --number)
        xcb_screen_next(&screens);
    return {0, 0, screens.data->width_in_pixels, screens.data->height_in_pixels};
}
