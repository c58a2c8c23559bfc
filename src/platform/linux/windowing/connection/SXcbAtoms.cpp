#include "platform/linux/windowing/connection/SXcbAtoms.h"

#include "platform/linux/windowing/connection/XcbReply.h"

#include <iterator>
#include <string_view>

namespace {

struct SAtomName {
    xcb_atom_t SXcbAtoms::*atom;
    std::string_view name;
};

constexpr SAtomName names[] = {
    {&SXcbAtoms::xembedInfo, "_XEMBED_INFO"},
    {&SXcbAtoms::wmProtocols, "WM_PROTOCOLS"},
    {&SXcbAtoms::wmDeleteWindow, "WM_DELETE_WINDOW"},
    {&SXcbAtoms::wmTakeFocus, "WM_TAKE_FOCUS"},
    {&SXcbAtoms::wmState, "WM_STATE"},
    {&SXcbAtoms::netWmName, "_NET_WM_NAME"},
    {&SXcbAtoms::netWmIcon, "_NET_WM_ICON"},
    {&SXcbAtoms::netWmPid, "_NET_WM_PID"},
    {&SXcbAtoms::netWmPing, "_NET_WM_PING"},
    {&SXcbAtoms::netWmWindowType, "_NET_WM_WINDOW_TYPE"},
    {&SXcbAtoms::netWmWindowTypeNormal, "_NET_WM_WINDOW_TYPE_NORMAL"},
    {&SXcbAtoms::netWmWindowTypePopupMenu, "_NET_WM_WINDOW_TYPE_POPUP_MENU"},
    {&SXcbAtoms::netWmWindowOpacity, "_NET_WM_WINDOW_OPACITY"},
    {&SXcbAtoms::netActiveWindow, "_NET_ACTIVE_WINDOW"},
    {&SXcbAtoms::clipboard, "CLIPBOARD"},
    {&SXcbAtoms::utf8String, "UTF8_STRING"},
    {&SXcbAtoms::targets, "TARGETS"},
    {&SXcbAtoms::text, "TEXT"},
    {&SXcbAtoms::incr, "INCR"},
    {&SXcbAtoms::selectionData, "TESSITOR_SELECTION"},
    {&SXcbAtoms::multiple, "MULTIPLE"},
    {&SXcbAtoms::timestamp, "TIMESTAMP"},
    {&SXcbAtoms::xdndAware, "XdndAware"},
    {&SXcbAtoms::xdndEnter, "XdndEnter"},
    {&SXcbAtoms::xdndPosition, "XdndPosition"},
    {&SXcbAtoms::xdndStatus, "XdndStatus"},
    {&SXcbAtoms::xdndLeave, "XdndLeave"},
    {&SXcbAtoms::xdndDrop, "XdndDrop"},
    {&SXcbAtoms::xdndFinished, "XdndFinished"},
    {&SXcbAtoms::xdndSelection, "XdndSelection"},
    {&SXcbAtoms::xdndTypeList, "XdndTypeList"},
    {&SXcbAtoms::xdndActionCopy, "XdndActionCopy"},
    {&SXcbAtoms::textUriList, "text/uri-list"},
};
static_assert(sizeof(SXcbAtoms) == std::size(names) * sizeof(xcb_atom_t));

}  // namespace

SXcbAtoms internAtoms(xcb_connection_t *connection) {
    xcb_intern_atom_cookie_t cookies[std::size(names)];
    for (std::size_t i = 0; i < std::size(names); ++i)
        cookies[i] = xcb_intern_atom(
            connection, 0, static_cast<std::uint16_t>(names[i].name.size()), names[i].name.data());
    SXcbAtoms atoms = {};
    for (std::size_t i = 0; i < std::size(names); ++i) {
        if (const auto reply = ownReply(xcb_intern_atom_reply(connection, cookies[i], nullptr)))
            atoms.*names[i].atom = reply->atom;
    }
    return atoms;
}
