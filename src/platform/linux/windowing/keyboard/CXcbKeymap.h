#pragma once

#include "platform/linux/windowing/keyboard/XkbProtocol.h"

#include <cstdint>
#include <vector>

/// A copy of the keyboard layout of the server. [gui thread]
class CXcbKeymap {
public:
    /// Asks for the layout. The caller has made the extension known to the server.
    static xcb_xkb_get_map_cookie_t request(xcb_connection_t *connection);

    CXcbKeymap() = default;  ///< of a keyboard whose keys type nothing
    explicit CXcbKeymap(const xcb_xkb_get_map_reply_t &reply);

    /// @param state  the modifiers and the group of a key event.
    /// @return the symbol that the key types; 0 for none.
    xcb_keysym_t keysymOf(xcb_keycode_t keycode, std::uint16_t state) const;
    /// @return the virtual key of Windows; never 0.
    std::uint8_t virtualKeyOf(xcb_keycode_t keycode, std::uint16_t state) const;

private:
    /// Which level of a key some modifiers choose.
    struct SLevelRule {
        std::uint8_t modifiers, level;
    };
    struct SKeyType {
        std::uint8_t modifiers;  // that have a say
        std::vector<SLevelRule> rules;
    };
    struct SKey {
        std::uint8_t types[4];  // of the groups
        std::uint8_t groupInfo;
        std::uint8_t levels;  // of the group that has most
        std::vector<xcb_keysym_t> keysyms;
    };

    const SKey *find(xcb_keycode_t keycode) const;
    static unsigned groupOf(const SKey &key, std::uint16_t state);
    static xcb_keysym_t keysymAt(const SKey &key, unsigned group, unsigned level);
    unsigned levelOf(const SKey &key, unsigned group, std::uint16_t state) const;
    bool hasTypesOf(const SKey &key) const;

    std::vector<SKeyType> m_types;
    std::vector<SKey> m_keys;
    xcb_keycode_t m_firstKey = 0;
};
