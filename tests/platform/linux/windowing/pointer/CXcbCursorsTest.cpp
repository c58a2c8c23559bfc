#include "platform/linux/windowing/pointer/CXcbCursors.h"

#include "platform/NativeMouse.h"
#include "platform/linux/windowing/CHostFixture.h"
#include "platform/linux/windowing/connection/XcbReply.h"
#include "platform/linux/windowing/pointer/SystemCursors.h"
#include "platform/linux/windowing/window/CXcbPopups.h"
#include "platform/linux/windowing/window/CXcbWindow.h"

#include <gmock/gmock.h>
#include <xcb/xfixes.h>

namespace {

using testing::Each;

using Picture = std::vector<std::uint32_t>;

constexpr int arrow = 32512, hand = 32649, move = 32646;

struct SDestroyCursor {
    void operator()(void *cursor) const { destroyNativeCursor(cursor); }
};
using Cursor = std::unique_ptr<void, SDestroyCursor>;

class CXcbCursors : public CHostFixture {
protected:
    CXcbCursors() {
        xcb_xfixes_query_version(client->get(), 4, 0);
        giveHostCursor(makeGlyph(spiderGlyph));
    }

    static constexpr std::uint16_t spiderGlyph = 126;  // which nobody else uses

    static xcb_cursor_t makeGlyph(std::uint16_t glyph) {
        const xcb_font_t font = xcb_generate_id(client->get());
        const xcb_cursor_t cursor = xcb_generate_id(client->get());
        xcb_open_font(client->get(), font, 6, "cursor");
        xcb_create_glyph_cursor(client->get(), cursor, font, font, glyph,
                                static_cast<std::uint16_t>(glyph + 1), 0, 0, 0, 65535, 65535,
                                65535);
        return cursor;
    }
    void giveHostCursor(xcb_cursor_t cursor) {
        xcb_change_window_attributes(client->get(), host, XCB_CW_CURSOR, &cursor);
        client->synchronise();
    }
    /// What the user sees at the pointer.
    static Picture seenPicture() {
        pumpAll(*client);
        const auto image = ownReply(xcb_xfixes_get_cursor_image_reply(
            client->get(), xcb_xfixes_get_cursor_image(client->get()), nullptr));
        const std::uint32_t *pixels = xcb_xfixes_get_cursor_image_cursor_image(image.get());
        return {pixels, pixels + xcb_xfixes_get_cursor_image_cursor_image_length(image.get())};
    }
    void setOnMove(CWindowSpy &window, void *cursor) {
        window.onMessage = [cursor](const CWindowSpy::SMessage &message) {
            if (message.number == NativeMouseMove)
                setNativeCursor(cursor);
            return std::nullopt;
        };
    }
    Picture pictureOf(int systemCursor) {
        const Cursor cursor(loadNativeCursor(systemCursor));
        setOnMove(editor, cursor.get());
        client->movePointer(61, 81);
        pumpAll(*client);
        client->movePointer(62, 82);
        Picture picture = seenPicture();
        editor.onMessage = nullptr;
        client->movePointer(500, 400);
        pumpAll(*client);
        return picture;
    }
    Picture hostPicture() {
        client->movePointer(55, 65);
        return seenPicture();
    }

    const Cursor handCursor = Cursor(loadNativeCursor(hand));
    const Cursor moveCursor = Cursor(loadNativeCursor(move));
};

TEST_F(CXcbCursors, ShowTheHostsCursorInAChildThatSetsNone) {
    const Picture expected = hostPicture();
    client->movePointer(90, 120);
    EXPECT_EQ(seenPicture(), expected);
}

TEST_F(CXcbCursors, ShowWhatAMovementSetsUntilTheNextOne) {
    const Picture expected = pictureOf(hand), inherited = hostPicture();
    ASSERT_NE(expected, inherited);
    setOnMove(editor, handCursor.get());
    client->movePointer(90, 120);
    EXPECT_EQ(seenPicture(), expected);
    client->movePointer(91, 120);
    EXPECT_EQ(seenPicture(), expected);
    editor.onMessage = nullptr;
    EXPECT_EQ(seenPicture(), expected);
    client->movePointer(92, 120);
    EXPECT_EQ(seenPicture(), inherited);
}

TEST_F(CXcbCursors, ShowTheLastOneThatAMovementSets) {
    const Picture expected = pictureOf(hand);
    editor.onMessage = [this](const CWindowSpy::SMessage &message) {
        if (message.number == NativeMouseMove) {
            setNativeCursor(moveCursor.get());
            setNativeCursor(handCursor.get());
        }
        return std::nullopt;
    };
    client->movePointer(90, 120);
    EXPECT_EQ(seenPicture(), expected);
}

TEST_F(CXcbCursors, AreAllDifferent) {
    std::vector<Picture> seen = {hostPicture()};
    for (const int number : {32512, 32649, 32514, 32645, 32644, 32513, 32642, 32646}) {
        const Picture picture = pictureOf(number);
        EXPECT_THAT(seen, Each(testing::Ne(picture))) << number;
        seen.push_back(picture);
    }
}

TEST_F(CXcbCursors, ShowWhatAPressSetsAtOnce) {
    const Picture expected = pictureOf(hand);
    editor.onMessage = [this](const CWindowSpy::SMessage &message) {
        if (message.number == NativeLeftDown)
            setNativeCursor(handCursor.get());
        return std::nullopt;
    };
    client->movePointer(90, 120);
    client->press(1);
    EXPECT_EQ(seenPicture(), expected);
}

TEST_F(CXcbCursors, StayWhileTheMouseIsCaptured) {
    const Picture expected = pictureOf(hand), inherited = hostPicture();
    editor.onMessage = [this](const CWindowSpy::SMessage &message) {
        if (message.number == NativeLeftDown) {
            captureNativeMouse(editor.window->getHandle());
            setNativeCursor(handCursor.get());
        }
        if (message.number == NativeLeftUp)
            releaseNativeMouse();
        return std::nullopt;
    };
    client->movePointer(90, 120);
    client->press(1);
    pumpAll(*client);
    client->movePointer(300, 300);
    EXPECT_EQ(seenPicture(), expected);
    client->movePointer(91, 120);
    client->release(1);
    pumpAll(*client);
    client->movePointer(92, 120);
    EXPECT_EQ(seenPicture(), inherited);
}

TEST_F(CXcbCursors, HideThePointerForNull) {
    setOnMove(editor, nullptr);
    client->movePointer(90, 120);
    EXPECT_THAT(seenPicture(), Each(0u));
}

TEST_F(CXcbCursors, ShowAnArrowInAPopupThatSetsNone) {
    CWindowSpy popup;
    popup.options.style = 0x80000000;
    popup.options.bounds = {400, 100, 500, 200};
    popup.options.parent = editor.window->getHandle();
    popup.create();
    const Picture expected = pictureOf(arrow);
    popup.window->show();
    client->movePointer(450, 150);
    EXPECT_EQ(seenPicture(), expected);
}

TEST_F(CXcbCursors, OfEachWindowAreSeenWhileAPopupHoldsThePointer) {
    CWindowSpy popup;
    popup.options.style = 0x80000000;
    popup.options.bounds = {400, 100, 500, 200};
    popup.options.parent = editor.window->getHandle();
    popup.create();
    const Picture expected = pictureOf(hand), inherited = hostPicture();
    popup.window->show();
    pumpAll(*client);
    setOnMove(editor, handCursor.get());
    client->movePointer(90, 120);
    EXPECT_EQ(seenPicture(), expected);
    client->movePointer(55, 65);
    EXPECT_EQ(seenPicture(), inherited);
}

TEST_F(CXcbCursors, SendNothingWhileTheCursorStaysTheSame) {
    setOnMove(editor, handCursor.get());
    client->movePointer(90, 120);
    pumpAll(*client);
    const auto requests = [this] { return xcb_no_operation(connection().get()).sequence; };
    client->movePointer(91, 120);
    client->synchronise();
    const unsigned before = requests();
    EXPECT_TRUE(pumpUntil([&] { return editor.all(NativeMouseMove).size() == 2; }));
    EXPECT_EQ(requests(), before + 1);
}

TEST_F(CXcbCursors, ComeFromTheFontOfTheServerIfNobodyKnowsTheThemes) {
    const CXcbCursorTheme theme(connection().get(), connection().getScreen(), "nowhere.so");
    const SSystemCursor &system = *findSystemCursor(hand);
    giveHostCursor(makeGlyph(system.glyph));
    const Picture expected = hostPicture();
    giveHostCursor(makeGlyph(spiderGlyph));
    const xcb_cursor_t cursor = theme.makeCursor(system);
    pumpAll(*client);
    giveHostCursor(cursor);
    EXPECT_EQ(hostPicture(), expected);
}

}  // namespace
