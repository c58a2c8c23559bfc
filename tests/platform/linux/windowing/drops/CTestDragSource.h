#pragma once

#include "platform/linux/windowing/CTestClient.h"

#include <cstdint>
#include <string>
#include <vector>
#include <xcb/xcb.h>

/// A program that drags something to our windows, well-behaved or not.
class CTestDragSource {
    CTestClient m_client;

public:
    CTestDragSource();

    xcb_atom_t atomOf(const char *name);

    // The messages. Positions are on the screen.
    void enter(xcb_window_t target, const std::vector<xcb_atom_t> &types, unsigned version = 5);
    void moveTo(xcb_window_t target, int x, int y);
    void leave(xcb_window_t target);
    void drop(xcb_window_t target);
    void setTypeList(xcb_atom_t type, std::uint8_t format, const std::vector<std::uint32_t> &types);

    std::uint8_t messageFormat = 32;

    // What it answers to those who ask for the selection
    bool hasSelection = true;
    bool answers = true;
    std::string addresses;
    xcb_atom_t type;           // text/uri-list at first
    std::uint8_t format = 8;   // bits of an element
    std::size_t partSize = 0;  // if not 0, it sends the text incrementally, in such parts
    int notifications = 1;     // for each answer
    bool writesMore = false;   // another property before each part

    /// Takes the messages that have arrived, and serves the selection.
    void poll();
    /// Polls and pumps until a condition is met. @return false if it is not within five seconds.
    bool runUntil(const std::function<bool()> &isMet);

    struct SAnswer {
        xcb_window_t target;
        std::uint32_t flags;
        xcb_atom_t action;
    };
    std::vector<SAnswer> statuses, finishes;

    xcb_window_t window;

private:
    void send(xcb_window_t target, const char *name, const std::vector<std::uint32_t> &data);
    void serve(const xcb_selection_request_event_t &request);
    void setSelectionOwner(xcb_window_t owner);
    void sendPart();
    void take(const xcb_client_message_event_t &message);

    xcb_selection_request_event_t m_request = {};
    std::size_t m_sent = 0;
    bool m_isSending = false;  // incrementally
};
