#pragma once

#include "platform/INativeSurface.h"
#include "platform/linux/windowing/connection/CXcbConnection.h"

#include <optional>

/// A window that is being painted. It does not need the window object.
class CXcbPainting : public INativePaintTarget {
public:
    CXcbPainting(std::shared_ptr<CXcbConnection> connection, xcb_window_t window,
                 const SNativeRect &dirty)
        : m_connection(std::move(connection)), m_window(window), m_dirty(dirty) {}
    void copyFrom(const INativeSurface &source, const SNativeRect &area) override;

private:
    std::shared_ptr<CXcbConnection> m_connection;
    xcb_window_t m_window;
    SNativeRect m_dirty;
};
