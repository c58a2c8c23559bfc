// Windows whose parents or screens have other colours than theirs.
#include "platform/linux/CVirtualDisplay.h"
#include "platform/linux/windowing/CTestClient.h"
#include "platform/linux/windowing/WindowIds.h"
#include "platform/linux/windowing/connection/CXcbConnection.h"
#include "platform/windowing/CWindowSpy.h"

namespace {

/// @return a mapped window of a depth that is not that of the screen.
xcb_window_t createWindowOfDepth(CTestClient &client, std::uint8_t depth, const SNativeRect &area) {
    const xcb_screen_t &screen = client.getScreen();
    xcb_depth_iterator_t depths = xcb_screen_allowed_depths_iterator(&screen);
    while (depths.rem > 0 && (depths.data->depth != depth || depths.data->visuals_len == 0))
        xcb_depth_next(&depths);
    if (depths.rem == 0)
        throw std::runtime_error("no such depth");
    const xcb_visualid_t visual = xcb_depth_visuals(depths.data)->visual_id;
    const xcb_colormap_t map = xcb_generate_id(client.get());
    xcb_create_colormap(client.get(), XCB_COLORMAP_ALLOC_NONE, map, screen.root, visual);
    const xcb_window_t window = xcb_generate_id(client.get());
    const std::uint32_t values[] = {0, 0, 1, map};
    xcb_create_window(
        client.get(), depth, window, screen.root, static_cast<std::int16_t>(area.left),
        static_cast<std::int16_t>(area.top), static_cast<std::uint16_t>(area.right - area.left),
        static_cast<std::uint16_t>(area.bottom - area.top), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
        visual,
        XCB_CW_BACK_PIXEL | XCB_CW_BORDER_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_COLORMAP,
        values);
    xcb_map_window(client.get(), window);
    client.synchronise();
    return window;
}

std::uint32_t pixelOfChild(CTestClient &client, xcb_window_t parent) {
    CWindowSpy spy;
    spy.options.parent = handleOf(parent);
    spy.create();
    if (!spy.window)
        return 0;
    pumpAll(client);
    EXPECT_FALSE(CXcbConnection::find(idOf(*spy.window))->isBroken());
    return client.pixelOf(idOf(*spy.window), 99, 49);
}

TEST(CXcbCanvas, ShowsPicturesInAParentWithAlpha) {
    const CVirtualDisplay display("640x480x24");
    CTestClient client;
    EXPECT_EQ(pixelOfChild(client, createWindowOfDepth(client, 32, {0, 0, 300, 200})),
              CWindowSpy::colour);
}

TEST(CXcbCanvas, ShowsPicturesOnAScreenOf16Bits) {
    const CVirtualDisplay display("640x480x16");
    CTestClient client;
    EXPECT_EQ(pixelOfChild(client, client.createWindow({0, 0, 300, 200})) & 0xFFFF, 0x001Eu);
}

TEST(CXcbCanvas, ShowsPicturesOnAScreenWithAPalette) {
    const CVirtualDisplay display("640x480x8");
    CTestClient client;
    EXPECT_EQ(pixelOfChild(client, client.createWindow({0, 0, 300, 200})) & 0xFF, 0xC0u);
}

TEST(CXcbCanvas, ShowsPicturesOnAScreenOf30Bits) {
    const CVirtualDisplay display("640x480x30");
    CTestClient client;
    // 10 bits for each channel: 4, 8 and 1003
    EXPECT_EQ(pixelOfChild(client, client.createWindow({0, 0, 300, 200})),
              (4u << 20 | 8u << 10 | 1003u) & 0xFFFFFF);
}

}  // namespace
