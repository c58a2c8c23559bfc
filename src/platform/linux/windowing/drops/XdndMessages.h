#pragma once

#include "platform/linux/windowing/connection/CXcbConnection.h"

/// The program that drags something, and our window that it is dragged to.
struct SXdndPartners {
    xcb_window_t source, target;
};

// The answers to the source. They do nothing if it is gone.
/// Whether the target would take what is over it now.
void sendXdndStatus(CXcbConnection &connection, const SXdndPartners &partners, bool isAccepted);
/// That the source need not keep what it has dropped.
void sendXdndFinished(CXcbConnection &connection, const SXdndPartners &partners, bool isAccepted);
