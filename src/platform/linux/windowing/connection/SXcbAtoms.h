#pragma once

#include <xcb/xcb.h>

/// The names that the X server has numbered for us.
struct SXcbAtoms {
    xcb_atom_t xembedInfo;
    xcb_atom_t wmProtocols, wmDeleteWindow, wmTakeFocus, wmState;
    xcb_atom_t netWmName, netWmIcon, netWmPid, netWmPing, netWmWindowType, netWmWindowTypeNormal,
        netWmWindowTypePopupMenu, netWmWindowOpacity, netActiveWindow;
    xcb_atom_t clipboard, utf8String, targets, text, incr, selectionData, multiple, timestamp;
    xcb_atom_t xdndAware, xdndEnter, xdndPosition, xdndStatus, xdndLeave, xdndDrop, xdndFinished,
        xdndSelection, xdndTypeList, xdndActionCopy, textUriList;
};

/// Asks for all of them at once. @return all zero if the connection is broken.
SXcbAtoms internAtoms(xcb_connection_t *connection);
