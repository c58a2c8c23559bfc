#include "platform/linux/windowing/keyboard/CXcbKeyboard.h"

#include "platform/linux/windowing/CDisplayFixture.h"
#include "platform/linux/windowing/WindowIds.h"
#include "platform/linux/windowing/connection/XcbReply.h"
#include "platform/windowing/CWindowSpy.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <xkbcommon/xkbcommon-keysyms.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// What a window can find out in a key message.
struct SKeyReport {
    bool isDown;
    std::uintptr_t virtualKey;
    std::intptr_t lParam;
    SNativeCharacter character;
    SNativeModifiers modifiers;
    std::string text;
};

/// A child window that has the keyboard, in a host's window that lies at 50, 60.
class CXcbKeyboard : public CDisplayFixture {
protected:
    CXcbKeyboard() {
        setLayout("us");
        user->movePointer(600, 400);
        spy.options.parent = handleOf(host);
        spy.onMessage = [this](const CWindowSpy::SMessage &message) { return remember(message); };
    }
    ~CXcbKeyboard() override {
        user->destroyWindow(host);
        for (const auto &connection : CXcbConnection::getAll())
            connection->pump();
    }

    std::optional<std::intptr_t> remember(const CWindowSpy::SMessage &message) {
        if (message.number == NativeKeyDown || message.number == NativeKeyUp)
            keys.push_back({message.number == NativeKeyDown, message.wParam, message.lParam,
                            nativeCharacterOf(message.wParam, message.lParam), nativeModifierKeys(),
                            CXcbConnection::current()->keyboard().getText()});
        return std::nullopt;
    }
    void createFocused() {
        spy.create();
        pumpAll(*user);  // it must be on the screen
        user->focus(idOf(*spy.window));
        pumpAll(*user);
        ASSERT_EQ(spy.all(NativeSetFocus).size(), 1u);
    }
    void type(xcb_keysym_t key) {
        user->typeKey(key);
        pumpAll(*user);
    }
    /// @return the last key that went down.
    SKeyReport typed(xcb_keysym_t key) {
        keys.clear();
        type(key);
        const auto down = std::find_if(keys.rbegin(), keys.rend(),
                                       [](const SKeyReport &report) { return report.isDown; });
        return down != keys.rend() ? *down : SKeyReport();
    }
    std::vector<std::uintptr_t> downs() const {
        std::vector<std::uintptr_t> found;
        for (const SKeyReport &key : keys)
            if (key.isDown)
                found.push_back(key.virtualKey);
        return found;
    }
    /// Changes the keyboard layout, as the user does.
    static void setLayout(const std::string &arguments) {
        ASSERT_EQ(std::system(("setxkbmap " + arguments).c_str()), 0);
    }

    // Each test has its own, which releases the keys that it has pressed.
    std::unique_ptr<CTestClient> user = std::make_unique<CTestClient>();
    xcb_window_t host = user->createWindow({50, 60, 350, 260});
    CWindowSpy spy;
    std::vector<SKeyReport> keys;
};

// The focus

TEST_F(CXcbKeyboard, ReportsTheFocus) {
    createFocused();
    EXPECT_THAT(spy.all(NativeKillFocus), IsEmpty());
    user->focus(host);
    pumpAll(*user);
    EXPECT_EQ(spy.all(NativeSetFocus).size(), 1u);
    EXPECT_EQ(spy.all(NativeKillFocus).size(), 1u);
}

TEST_F(CXcbKeyboard, TheFocusOfTheHostIsNotOurs) {
    spy.create();
    user->movePointer(50 + 10 + 5, 60 + 20 + 5);
    user->focus(host);
    pumpAll(*user);
    user->focus(XCB_INPUT_FOCUS_POINTER_ROOT);
    pumpAll(*user);
    EXPECT_THAT(spy.all(NativeSetFocus), IsEmpty());
    EXPECT_THAT(spy.all(NativeKillFocus), IsEmpty());
}

TEST_F(CXcbKeyboard, AGrabDoesNotTakeTheFocus) {
    createFocused();
    EXPECT_TRUE(user->canGrabKeyboard());
    pumpAll(*user);
    EXPECT_EQ(spy.all(NativeSetFocus).size(), 1u);
    EXPECT_THAT(spy.all(NativeKillFocus), IsEmpty());
    type(XKB_KEY_a);
    EXPECT_THAT(downs(), ElementsAre('A'));
}

TEST_F(CXcbKeyboard, TheHostHasItsKeysWhileThePointerIsOverOurWindow) {
    const auto hostGetsKey = [&] {
        type(XKB_KEY_a);
        int presses = 0;
        while (const auto event = ownReply(xcb_poll_for_event(user->get())))
            presses += typeOf(*event) == XCB_KEY_PRESS ? 1 : 0;
        return presses == 1;
    };
    const std::uint32_t keyPresses = XCB_EVENT_MASK_KEY_PRESS;
    xcb_change_window_attributes(user->get(), host, XCB_CW_EVENT_MASK, &keyPresses);
    spy.create();
    user->movePointer(50 + 10 + 5, 60 + 20 + 5);
    user->focus(host);
    EXPECT_TRUE(hostGetsKey());
    EXPECT_THAT(keys, IsEmpty());

    user->focus(idOf(*spy.window));
    pumpAll(*user);
    EXPECT_FALSE(hostGetsKey());
    EXPECT_THAT(downs(), ElementsAre('A'));

    keys.clear();
    user->focus(host);
    pumpAll(*user);
    EXPECT_TRUE(hostGetsKey());
    EXPECT_THAT(keys, IsEmpty());
}

TEST_F(CXcbKeyboard, ATopLevelWindowHasKeys) {
    spy.options.style = 0xCF0008 | 0x10000000;
    createFocused();
    type(XKB_KEY_a);
    EXPECT_THAT(downs(), ElementsAre('A'));
}

TEST_F(CXcbKeyboard, APopupThatWasGivenTheFocusHasKeysButReportsNoFocus) {
    spy.options.style = 0x80000000;
    spy.options.extendedStyle = 0x8080008;
    spy.options.bounds = {200, 200, 300, 250};
    spy.create();
    spy.window->show();
    pumpAll(*user);
    spy.messages.clear();
    spy.window->bringToFront();
    pumpAll(*user);
    EXPECT_THAT(spy.all(NativeSetFocus), IsEmpty());
    type(XKB_KEY_a);
    EXPECT_THAT(downs(), ElementsAre('A'));
}

TEST_F(CXcbKeyboard, ADisabledWindowHasNoKeys) {
    createFocused();
    spy.window->enable(false);
    type(XKB_KEY_a);
    EXPECT_THAT(keys, IsEmpty());
}

TEST_F(CXcbKeyboard, AsksForNothingWithoutTheFocus) {
    spy.create();
    user->focus(host);
    pumpAll(*user);
    EXPECT_EQ(nativeCharacterOf('A', (38 - 8) << 16).number, 0);
    user->focus(idOf(*spy.window));
    pumpAll(*user);
    type(XKB_KEY_Shift_L);  // the answer comes before the first key
    EXPECT_EQ(nativeCharacterOf('A', (38 - 8) << 16).number, 1);
}

TEST_F(CXcbKeyboard, AWindowMayGoInAKeyMessage) {
    createFocused();
    spy.onMessage = [this](const CWindowSpy::SMessage &message) {
        if (message.number == NativeKeyDown)
            spy.window.reset();
        return std::nullopt;
    };
    user->typeKey(XKB_KEY_a);
    const auto isGone = [&] { return spy.window == nullptr; };
    EXPECT_TRUE(pumpUntil(isGone));
    EXPECT_THAT(spy.all(NativeKeyUp), IsEmpty());
}

TEST_F(CXcbKeyboard, AWindowMayGoInAFocusMessage) {
    spy.onMessage = [this](const CWindowSpy::SMessage &message) {
        if (message.number == NativeSetFocus)
            spy.window.reset();
        return std::nullopt;
    };
    spy.create();
    pumpAll(*user);
    user->focus(idOf(*spy.window));
    const auto isGone = [&] { return spy.window == nullptr; };
    EXPECT_TRUE(pumpUntil(isGone));
}

// Keys

TEST_F(CXcbKeyboard, ReportsAKeyAsWindowsDoes) {
    createFocused();
    type(XKB_KEY_a);
    ASSERT_EQ(keys.size(), 2u);
    EXPECT_TRUE(keys[0].isDown);
    EXPECT_EQ(keys[0].virtualKey, unsigned{'A'});
    EXPECT_EQ(keys[0].lParam, 0x001E0001);
    EXPECT_EQ(keys[0].character.number, 1);
    EXPECT_EQ(keys[0].character.character, 'a');
    EXPECT_EQ(keys[0].text, "a");
    EXPECT_FALSE(keys[1].isDown);
    EXPECT_EQ(keys[1].virtualKey, unsigned{'A'});
    EXPECT_EQ(keys[1].lParam, 0xC01E0001);
    EXPECT_EQ(keys[1].character.number, 1);
    EXPECT_EQ(keys[1].character.character, 'a');
    EXPECT_EQ(keys[1].text, "");
    EXPECT_EQ(CXcbConnection::current()->keyboard().getText(), "");
}

TEST_F(CXcbKeyboard, ShiftMakesCapitals) {
    createFocused();
    user->pressKey(XKB_KEY_Shift_R);
    const SKeyReport key = typed(XKB_KEY_a);
    EXPECT_EQ(key.virtualKey, unsigned{'A'});
    EXPECT_EQ(key.character.character, 'A');
    EXPECT_TRUE(key.modifiers.isShiftDown);
    EXPECT_FALSE(key.modifiers.isControlDown);
    EXPECT_FALSE(key.modifiers.isAltDown);
    const SKeyReport digit = typed(XKB_KEY_2);
    EXPECT_EQ(digit.virtualKey, unsigned{'2'});
    EXPECT_EQ(digit.text, "@");
    const SKeyReport tab = typed(XKB_KEY_Tab);
    EXPECT_EQ(tab.virtualKey, 9u);
    EXPECT_EQ(tab.character.character, '\t');
}

TEST_F(CXcbKeyboard, AModifierIsDownInItsOwnMessage) {
    struct SModifier {
        xcb_keysym_t left, right;
        std::uintptr_t virtualKey;
        bool SNativeModifiers::*isDown;
    };
    constexpr SModifier modifiers[] = {
        {XKB_KEY_Shift_L, XKB_KEY_Shift_R, 16, &SNativeModifiers::isShiftDown},
        {XKB_KEY_Control_L, XKB_KEY_Control_R, 17, &SNativeModifiers::isControlDown},
        {XKB_KEY_Alt_L, XKB_KEY_Alt_R, 18, &SNativeModifiers::isAltDown},
    };
    createFocused();
    for (const auto &[left, right, virtualKey, isDown] : modifiers) {
        keys.clear();
        user->pressKey(left);
        user->pressKey(right);
        user->releaseKey(left);
        user->releaseKey(right);
        pumpAll(*user);
        ASSERT_EQ(keys.size(), 4u);
        for (const SKeyReport &key : keys)
            EXPECT_EQ(key.virtualKey, virtualKey);
        EXPECT_TRUE(keys[0].modifiers.*isDown);
        EXPECT_TRUE(keys[1].modifiers.*isDown);
        EXPECT_TRUE(keys[2].modifiers.*isDown);
        EXPECT_FALSE(keys[3].modifiers.*isDown);
        EXPECT_EQ(keys[0].character.number, 0);
    }
}

TEST_F(CXcbKeyboard, ControlTypesControlCharacters) {
    createFocused();
    user->pressKey(XKB_KEY_Control_L);
    const SKeyReport key = typed(XKB_KEY_a);
    EXPECT_EQ(key.virtualKey, unsigned{'A'});
    EXPECT_EQ(key.character.number, 1);
    EXPECT_EQ(key.character.character, 1);
    EXPECT_EQ(key.text, "");
    EXPECT_TRUE(key.modifiers.isControlDown);
}

TEST_F(CXcbKeyboard, AltIsReported) {
    createFocused();
    user->pressKey(XKB_KEY_Alt_L);
    const SKeyReport key = typed(XKB_KEY_a);
    EXPECT_EQ(key.virtualKey, unsigned{'A'});
    EXPECT_EQ(key.character.character, 'a');
    EXPECT_EQ(key.text, "");
    EXPECT_TRUE(key.modifiers.isAltDown);
}

TEST_F(CXcbKeyboard, CapsLockTurnsTheCaseOfLetters) {
    createFocused();
    type(XKB_KEY_Caps_Lock);
    const SKeyReport letter = typed(XKB_KEY_a), digit = typed(XKB_KEY_2);
    user->pressKey(XKB_KEY_Shift_L);
    const SKeyReport shifted = typed(XKB_KEY_a);
    user->releaseKey(XKB_KEY_Shift_L);
    type(XKB_KEY_Caps_Lock);
    EXPECT_EQ(letter.text, "A");
    EXPECT_FALSE(letter.modifiers.isShiftDown);
    EXPECT_EQ(digit.text, "2");
    EXPECT_EQ(shifted.text, "a");
}

TEST_F(CXcbKeyboard, TheNumberLockTurnsTheKeypad) {
    createFocused();
    const SKeyReport home = typed(XKB_KEY_KP_Home);
    type(XKB_KEY_Num_Lock);
    const SKeyReport seven = typed(XKB_KEY_KP_Home);
    type(XKB_KEY_Num_Lock);
    EXPECT_EQ(home.virtualKey, 36u);
    EXPECT_EQ(home.character.number, 0);
    EXPECT_EQ(seven.virtualKey, 96u + 7);
    EXPECT_EQ(seven.character.character, '7');
    const SKeyReport plus = typed(XKB_KEY_KP_Add);
    EXPECT_EQ(plus.virtualKey, 107u);
    EXPECT_EQ(plus.text, "+");
    EXPECT_EQ(typed(XKB_KEY_KP_Enter).character.character, '\r');
}

TEST_F(CXcbKeyboard, AKeyGoesUpAsWhatItWentDown) {
    createFocused();
    user->pressKey(XKB_KEY_KP_Home);
    user->typeKey(XKB_KEY_Num_Lock);
    user->releaseKey(XKB_KEY_KP_Home);
    user->typeKey(XKB_KEY_Num_Lock);
    const auto isUp = [&] { return keys.size() == 6; };
    ASSERT_TRUE(pumpUntil(isUp));
    EXPECT_EQ(keys[0].virtualKey, 36u);
    EXPECT_FALSE(keys[3].isDown);
    EXPECT_EQ(keys[3].virtualKey, 36u);
}

TEST_F(CXcbKeyboard, AKeyThatRepeatsItselfDoesNotGoUp) {
    createFocused();
    user->pressKey(XKB_KEY_a);
    const auto isRepeated = [&] { return keys.size() >= 4; };
    ASSERT_TRUE(pumpUntil(isRepeated));
    user->releaseKey(XKB_KEY_a);
    pumpAll(*user);
    EXPECT_EQ(keys[0].lParam, 0x001E0001);
    for (std::size_t i = 1; i + 1 < keys.size(); ++i) {
        EXPECT_TRUE(keys[i].isDown) << i;
        EXPECT_EQ(keys[i].lParam, 0x401E0001) << i;
        EXPECT_EQ(keys[i].text, "a");
    }
    EXPECT_FALSE(keys.back().isDown);
}

TEST_F(CXcbKeyboard, AKeyThatWentUpElsewhereDoesNotRepeatItself) {
    createFocused();
    user->pressKey(XKB_KEY_a);
    user->focus(host);
    user->releaseKey(XKB_KEY_a);
    pumpAll(*user);
    user->focus(idOf(*spy.window));
    pumpAll(*user);
    EXPECT_EQ(typed(XKB_KEY_a).lParam, 0x001E0001);
}

// Layouts

TEST_F(CXcbKeyboard, FollowsAChangeOfTheLayout) {
    createFocused();
    EXPECT_EQ(typed(XKB_KEY_y).text, "y");
    setLayout("de");
    pumpAll(*user);
    const SKeyReport key = typed(XKB_KEY_y);  // where z is in America
    EXPECT_EQ(key.text, "y");
    EXPECT_EQ(key.virtualKey, unsigned{'Y'});
    EXPECT_EQ((key.lParam >> 16) & 0xFF, 52 - 8);
    const SKeyReport accented = typed(XKB_KEY_adiaeresis);
    EXPECT_EQ(accented.text, "\xC3\xA4");
    EXPECT_EQ(accented.character.number, 0);
    EXPECT_EQ(accented.virtualKey, 222u);
}

TEST_F(CXcbKeyboard, FollowsAChangeOfTheLayoutWhileTheFocusIsElsewhere) {
    createFocused();
    type(XKB_KEY_y);
    user->focus(host);
    pumpAll(*user);
    setLayout("de");
    pumpAll(*user);
    user->focus(idOf(*spy.window));
    pumpAll(*user);
    EXPECT_EQ(typed(XKB_KEY_udiaeresis).text, "\xC3\xBC");
}

TEST_F(CXcbKeyboard, AThirdLevelIsNeitherControlNorAlt) {
    setLayout("de");
    createFocused();
    user->pressKey(XKB_KEY_ISO_Level3_Shift);
    const SKeyReport key = typed(XKB_KEY_q);
    EXPECT_EQ(key.text, "@");
    EXPECT_EQ(key.character.character, '@');
    EXPECT_FALSE(key.modifiers.isControlDown);
    EXPECT_FALSE(key.modifiers.isAltDown);
}

TEST_F(CXcbKeyboard, TheDigitsOfFranceAreShifted) {
    setLayout("fr");
    createFocused();
    const SKeyReport key = typed(XKB_KEY_ampersand);
    EXPECT_EQ(key.virtualKey, unsigned{'1'});
    EXPECT_EQ(key.text, "&");
}

TEST_F(CXcbKeyboard, AnotherAlphabetHasTheKeysOfAmerica) {
    setLayout("ru");
    createFocused();
    const SKeyReport key = typed(XKB_KEY_Cyrillic_ef);
    EXPECT_EQ(key.virtualKey, unsigned{'A'});
    EXPECT_EQ(key.text, "\xD1\x84");
    user->pressKey(XKB_KEY_Control_L);
    EXPECT_EQ(typed(XKB_KEY_Cyrillic_ef).character.character, 1);
}

TEST_F(CXcbKeyboard, FollowsTheGroup) {
    setLayout("us,ru -option grp:menu_toggle");
    createFocused();
    EXPECT_EQ(typed(XKB_KEY_a).text, "a");
    user->typeKey(XKB_KEY_ISO_Next_Group);
    const SKeyReport key = typed(XKB_KEY_a);
    user->typeKey(XKB_KEY_ISO_Next_Group);
    setLayout("us -option");
    EXPECT_EQ(key.text, "\xD1\x84");
    EXPECT_EQ(key.virtualKey, unsigned{'A'});
}

TEST_F(CXcbKeyboard, AnAccentWaitsForItsLetter) {
    setLayout("fr");
    createFocused();
    const SKeyReport accent = typed(XKB_KEY_dead_circumflex);
    EXPECT_EQ(accent.character.number, -1);
    EXPECT_EQ(accent.text, "");
    const SKeyReport letter = typed(XKB_KEY_e);
    EXPECT_EQ(letter.text, "\xC3\xAA");
    EXPECT_EQ(letter.character.number, 0);
    EXPECT_EQ(letter.virtualKey, unsigned{'E'});
    EXPECT_EQ(typed(XKB_KEY_e).text, "e");
}

TEST_F(CXcbKeyboard, AnAccentThatFitsNoLetterIsForgotten) {
    setLayout("fr");
    createFocused();
    type(XKB_KEY_dead_circumflex);
    const SKeyReport letter = typed(XKB_KEY_x);
    EXPECT_EQ(letter.text, "");
    EXPECT_EQ(letter.character.number, 0);
    EXPECT_EQ(typed(XKB_KEY_e).text, "e");
}

TEST_F(CXcbKeyboard, AnAccentIsForgottenWithTheFocus) {
    setLayout("fr");
    createFocused();
    type(XKB_KEY_dead_circumflex);
    user->focus(host);
    pumpAll(*user);
    user->focus(idOf(*spy.window));
    pumpAll(*user);
    EXPECT_EQ(typed(XKB_KEY_e).text, "e");
}

TEST_F(CXcbKeyboard, AComposedCharacterMayBeASingleByte) {
    setLayout("fr");
    createFocused();
    type(XKB_KEY_dead_circumflex);
    const SKeyReport blank = typed(XKB_KEY_space);
    EXPECT_EQ(blank.text, "^");
    EXPECT_EQ(blank.character.number, 1);
    EXPECT_EQ(blank.character.character, '^');
}

}  // namespace
