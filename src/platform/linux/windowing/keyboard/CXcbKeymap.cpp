#include "platform/linux/windowing/keyboard/CXcbKeymap.h"

#include "platform/linux/windowing/keyboard/VirtualKeys.h"

#include <algorithm>
#include <iterator>
#include <xkbcommon/xkbcommon.h>

namespace {

constexpr std::uint16_t noParts = 0;
constexpr xcb_keysym_t firstKeypadSymbol = XKB_KEY_KP_Space, lastKeypadSymbol = XKB_KEY_KP_9;

bool isOfKeypad(xcb_keysym_t keysym) {
    return keysym >= firstKeypadSymbol && keysym <= lastKeypadSymbol;
}

xcb_xkb_get_map_map_t unpack(const xcb_xkb_get_map_reply_t &reply) {
    xcb_xkb_get_map_map_t map = {};
    xcb_xkb_get_map_map_unpack(xcb_xkb_get_map_map(&reply), reply.nTypes, reply.nKeySyms,
                               reply.nKeyActions, reply.totalActions, reply.totalKeyBehaviors,
                               reply.virtualMods, reply.totalKeyExplicit, reply.totalModMapKeys,
                               reply.totalVModMapKeys, reply.present, &map);
    return map;
}

}  // namespace

xcb_xkb_get_map_cookie_t CXcbKeymap::request(xcb_connection_t *connection) {
    return xcb_xkb_get_map(connection, XCB_XKB_ID_USE_CORE_KBD,
                           XCB_XKB_MAP_PART_KEY_TYPES | XCB_XKB_MAP_PART_KEY_SYMS, noParts, 0, 0, 0,
                           0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
}

CXcbKeymap::CXcbKeymap(const xcb_xkb_get_map_reply_t &reply) : m_firstKey(reply.firstKeySym) {
    const xcb_xkb_get_map_map_t map = unpack(reply);
    auto type = xcb_xkb_get_map_map_types_rtrn_iterator(&reply, &map);
    for (; type.rem > 0; xcb_xkb_key_type_next(&type)) {
        SKeyType &copy = m_types.emplace_back();
        copy.modifiers = type.data->mods_mask;
        const xcb_xkb_kt_map_entry_t *rules = xcb_xkb_key_type_map(type.data);
        for (int i = 0; i < type.data->nMapEntries; ++i)
            if (rules[i].active != 0)
                copy.rules.push_back({rules[i].mods_mask, rules[i].level});
    }
    auto key = xcb_xkb_get_map_map_syms_rtrn_iterator(&reply, &map);
    for (; key.rem > 0; xcb_xkb_key_sym_map_next(&key)) {
        SKey &copy = m_keys.emplace_back();
        std::copy_n(key.data->kt_index, 4, copy.types);
        copy.groupInfo = key.data->groupInfo;
        copy.levels = key.data->width;
        const xcb_keysym_t *keysyms = xcb_xkb_key_sym_map_syms(key.data);
        copy.keysyms.assign(keysyms, keysyms + key.data->nSyms);
    }
}

xcb_keysym_t CXcbKeymap::keysymOf(xcb_keycode_t keycode, std::uint16_t state) const {
    const SKey *key = find(keycode);
    if (key == nullptr)
        return 0;
    const unsigned group = groupOf(*key, state);
    const xcb_keysym_t keysym = keysymAt(*key, group, levelOf(*key, group, state));
    const std::uint8_t modifiers = m_types[key->types[group]].modifiers;
    // The caps lock has a say in most letters. The others change their case all the same.
    const bool isLocked = (state & ~modifiers & XCB_MOD_MASK_LOCK) != 0;
    return isLocked ? xkb_keysym_to_upper(keysym) : keysym;
}

std::uint8_t CXcbKeymap::virtualKeyOf(xcb_keycode_t keycode, std::uint16_t state) const {
    const SKey *key = find(keycode);
    if (key == nullptr)
        return virtualKeyAt(keycode);
    const xcb_keysym_t inForce = keysymOf(keycode, state);
    if (isOfKeypad(inForce) && ::virtualKeyOf(inForce) != 0)
        return ::virtualKeyOf(inForce);
    const unsigned group = groupOf(*key, state);
    // A digit that is typed with shift is still the key of the digit.
    const xcb_keysym_t shifted = keysymAt(*key, group, 1);
    if (shifted >= XKB_KEY_0 && shifted <= XKB_KEY_9)
        return ::virtualKeyOf(shifted);
    const std::uint8_t virtualKey = ::virtualKeyOf(keysymAt(*key, group, 0));
    return virtualKey != 0 ? virtualKey : virtualKeyAt(keycode);
}

const CXcbKeymap::SKey *CXcbKeymap::find(xcb_keycode_t keycode) const {
    const auto index = static_cast<std::size_t>(keycode - m_firstKey);
    if (keycode < m_firstKey || index >= m_keys.size())
        return nullptr;
    const SKey &key = m_keys[index];
    return hasTypesOf(key) ? &key : nullptr;
}

bool CXcbKeymap::hasTypesOf(const SKey &key) const {
    const unsigned groups = key.groupInfo & 0x0F;
    return groups >= 1 && groups <= std::size(key.types) &&
           std::all_of(key.types, key.types + groups,
                       [this](std::uint8_t type) { return type < m_types.size(); });
}

/// A key may have fewer groups than the keyboard, and says which of them then counts.
unsigned CXcbKeymap::groupOf(const SKey &key, std::uint16_t state) {
    const unsigned groups = key.groupInfo & 0x0F;
    const unsigned group = (state >> 13) & 3;
    if (group < groups)
        return group;
    switch (key.groupInfo & 0xC0) {
    case XCB_XKB_GROUPS_WRAP_CLAMP_INTO_RANGE:
        return groups - 1;
    case XCB_XKB_GROUPS_WRAP_REDIRECT_INTO_RANGE: {
        const unsigned redirected = (key.groupInfo >> 4) & 3;
        return redirected < groups ? redirected : 0;
    }
    default:
        return group % groups;
    }
}

unsigned CXcbKeymap::levelOf(const SKey &key, unsigned group, std::uint16_t state) const {
    const SKeyType &type = m_types[key.types[group]];
    const auto isInForce = [&](const SLevelRule &rule) {
        return rule.modifiers == (state & type.modifiers);
    };
    const auto rule = std::find_if(type.rules.begin(), type.rules.end(), isInForce);
    return rule != type.rules.end() ? rule->level : 0;
}

xcb_keysym_t CXcbKeymap::keysymAt(const SKey &key, unsigned group, unsigned level) {
    const std::size_t index = group * std::size_t{key.levels} + level;
    return level < key.levels && index < key.keysyms.size() ? key.keysyms[index] : 0;
}
