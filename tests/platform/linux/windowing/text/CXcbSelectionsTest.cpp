#include "platform/linux/windowing/text/CXcbSelections.h"

#include "platform/linux/windowing/CDisplayFixture.h"
#include "platform/linux/windowing/connection/XcbReply.h"

#include <gtest/gtest.h>
#include <optional>

namespace {

std::string largeText() {
    std::string text;
    while (text.size() < 300000)
        text += "größer " + std::to_string(text.size());
    return text;
}

/// Another program, which offers texts and asks for ours.
class CPeer {
public:
    explicit CPeer(const SXcbAtoms &atoms) : m_atoms(atoms) {
        const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(client.get(), window, XCB_CW_EVENT_MASK, &events);
    }

    CTestClient client;
    const xcb_window_t window = client.createWindow({0, 0, 10, 10});
    bool knowsUtf8 = true;
    bool usesPieces = false;
    int notifications = 1;  // for each answer
    std::uint8_t format = 8;
    std::string text;
    std::vector<xcb_atom_t> asked;  // for these targets

    void own(xcb_atom_t selection) {
        xcb_set_selection_owner(client.get(), window, selection, XCB_CURRENT_TIME);
        client.synchronise();
    }
    bool owns(xcb_atom_t selection) {
        const auto reply = ownReply(xcb_get_selection_owner_reply(
            client.get(), xcb_get_selection_owner(client.get(), selection), nullptr));
        return reply->owner == window;
    }
    bool hasOwner(xcb_atom_t selection) {
        const auto reply = ownReply(xcb_get_selection_owner_reply(
            client.get(), xcb_get_selection_owner(client.get(), selection), nullptr));
        return reply->owner != XCB_NONE;
    }

    bool hasProperty(xcb_atom_t property) {
        const auto reply = ownReply(xcb_get_property_reply(
            client.get(), xcb_get_property(client.get(), 0, window, property, XCB_ATOM_ANY, 0, 0),
            nullptr));
        return reply->type != XCB_NONE;
    }

    /// @return the server's time.
    xcb_timestamp_t now() {
        xcb_delete_property(client.get(), window, XCB_ATOM_CUT_BUFFER0);
        xcb_change_property(client.get(), XCB_PROP_MODE_REPLACE, window, XCB_ATOM_CUT_BUFFER0,
                            XCB_ATOM_STRING, 8, 0, nullptr);
        client.synchronise();
        const auto change = waitFor(
            [](const xcb_generic_event_t &event) { return typeOf(event) == XCB_PROPERTY_NOTIFY; });
        return as<xcb_property_notify_event_t>(*change).time;
    }

    /// Answers what has been asked for.
    void serve() {
        while (const auto event = ownReply(xcb_poll_for_event(client.get()))) {
            if (typeOf(*event) == XCB_SELECTION_REQUEST)
                answer(as<xcb_selection_request_event_t>(*event));
            if (typeOf(*event) == XCB_PROPERTY_NOTIFY)
                continueText(as<xcb_property_notify_event_t>(*event));
        }
        client.synchronise();
    }

    struct SAnswer {
        xcb_atom_t type = XCB_NONE;
        std::string bytes;
        int pieces = 0;
    };
    /// @return what the owner gives; nothing if it refuses.
    std::optional<SAnswer> ask(xcb_atom_t selection, xcb_atom_t target,
                               xcb_atom_t property = XCB_ATOM_CUT_BUFFER0) {
        convert(selection, target, property);
        return receive();
    }
    void convert(xcb_atom_t selection, xcb_atom_t target,
                 xcb_atom_t property = XCB_ATOM_CUT_BUFFER0) {
        xcb_convert_selection(client.get(), window, selection, target, property, XCB_CURRENT_TIME);
        client.synchronise();
    }
    void forgetEvents() {
        client.synchronise();
        while (ownReply(xcb_poll_for_event(client.get()))) {
        }
    }
    std::optional<SAnswer> receive() {
        const auto notify = waitFor(
            [](const xcb_generic_event_t &event) { return typeOf(event) == XCB_SELECTION_NOTIFY; });
        const xcb_atom_t given = as<xcb_selection_notify_event_t>(*notify).property;
        if (given == XCB_NONE)
            return std::nullopt;
        SAnswer whole = take(given);
        if (whole.type != m_atoms.incr)
            return whole;
        whole = {};
        for (;;) {
            waitFor([&](const xcb_generic_event_t &event) {
                const auto &change = as<xcb_property_notify_event_t>(event);
                return typeOf(event) == XCB_PROPERTY_NOTIFY && change.atom == given &&
                       change.state == XCB_PROPERTY_NEW_VALUE;
            });
            const SAnswer piece = take(given);
            if (piece.bytes.empty())
                return whole;
            whole.type = piece.type;
            whole.bytes += piece.bytes;
            ++whole.pieces;
        }
    }

private:
    template <typename Condition>
    TXcbReply<xcb_generic_event_t> waitFor(Condition isIt) {
        TXcbReply<xcb_generic_event_t> event;
        const bool isFound = pumpUntil([&] {
            do
                event = ownReply(xcb_poll_for_event(client.get()));
            while (event && !isIt(*event));
            return event != nullptr;
        });
        if (!isFound)
            throw std::runtime_error("no answer");
        return event;
    }
    SAnswer take(xcb_atom_t property) {
        const auto reply = ownReply(xcb_get_property_reply(
            client.get(),
            xcb_get_property(client.get(), 1, window, property, XCB_ATOM_ANY, 0, 1 << 20),
            nullptr));
        const auto size = static_cast<std::size_t>(xcb_get_property_value_length(reply.get()));
        return {reply->type,
                std::string(static_cast<const char *>(xcb_get_property_value(reply.get())), size),
                0};
    }

    void answer(const xcb_selection_request_event_t &request) {
        asked.push_back(request.target);
        const bool isRefused = request.target == m_atoms.utf8String && !knowsUtf8;
        union {
            xcb_selection_notify_event_t event;
            char bytes[32] = {};
        } notify;
        notify.event.response_type = XCB_SELECTION_NOTIFY;
        notify.event.requestor = request.requestor;
        notify.event.selection = request.selection;
        notify.event.target = request.target;
        notify.event.property = isRefused ? XCB_NONE : request.property;
        m_requestor = request.requestor;
        m_property = request.property;
        m_target = request.target;
        m_sent = 0;
        if (usesPieces) {
            const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
            xcb_change_window_attributes(client.get(), m_requestor, XCB_CW_EVENT_MASK, &events);
            const auto size = static_cast<std::uint32_t>(text.size());
            put(m_atoms.incr, 32, 1, &size);
        } else if (!isRefused) {
            put(m_target, format, static_cast<std::uint32_t>(text.size()) / (format / 8u),
                text.data());
        }
        for (int i = 0; i < notifications; ++i)
            xcb_send_event(client.get(), 0, request.requestor, 0, notify.bytes);
    }
    void continueText(const xcb_property_notify_event_t &change) {
        if (change.window != m_requestor || change.state != XCB_PROPERTY_DELETE)
            return;
        const std::size_t size = std::min<std::size_t>(text.size() - m_sent, 100001);
        put(m_target, 8, static_cast<std::uint32_t>(size), text.data() + m_sent);
        m_sent += size;
    }
    void put(xcb_atom_t type, std::uint8_t bits, std::uint32_t count, const void *values) {
        xcb_change_property(client.get(), XCB_PROP_MODE_REPLACE, m_requestor, m_property, type,
                            bits, count, values);
    }

    const SXcbAtoms &m_atoms;
    xcb_window_t m_requestor = XCB_NONE;
    xcb_atom_t m_property = XCB_NONE, m_target = XCB_NONE;
    std::size_t m_sent = 0;
};

class CXcbSelectionsTest : public CDisplayFixture {
protected:
    void offer(const std::string &text) {
        selections.offer(1, atoms.clipboard, text);
        pumpAll(peer.client);
    }
    void request(xcb_window_t window = 1) {
        selections.request(window, atoms.clipboard,
                           [this](const std::string &text) { received.push_back(text); });
    }
    bool waitUntil(const std::function<bool()> &isMet) {
        return pumpUntil([&] {
            peer.serve();
            return isMet();
        });
    }
    /// Lets both sides talk until each has nothing more to say.
    void settle() {
        for (int i = 0; i < 10; ++i) {
            peer.serve();
            pumpAll(peer.client);
        }
    }

    std::string reason;
    std::shared_ptr<CXcbConnection> connection = CXcbConnection::open(reason);
    const SXcbAtoms &atoms = connection->getAtoms();
    CXcbSelections &selections = connection->selections();
    CPeer peer{atoms};
    std::vector<std::string> received;
};

TEST_F(CXcbSelectionsTest, OffersATextInSeveralEncodings) {
    offer("größe €");
    const auto utf8 = peer.ask(atoms.clipboard, atoms.utf8String);
    ASSERT_TRUE(utf8.has_value());
    EXPECT_EQ(utf8->type, atoms.utf8String);
    EXPECT_EQ(utf8->bytes, "größe €");
    const auto text = peer.ask(atoms.clipboard, atoms.text);
    ASSERT_TRUE(text.has_value());
    EXPECT_EQ(text->type, atoms.utf8String);
    EXPECT_EQ(text->bytes, "größe €");
    const auto latin = peer.ask(atoms.clipboard, XCB_ATOM_STRING);
    ASSERT_TRUE(latin.has_value());
    EXPECT_EQ(latin->type, xcb_atom_t{XCB_ATOM_STRING});
    EXPECT_EQ(latin->bytes, "gr\xF6\xDF"
                            "e ?");
}

TEST_F(CXcbSelectionsTest, ListsWhatItOffers) {
    offer("text");
    const auto targets = peer.ask(atoms.clipboard, atoms.targets);
    ASSERT_TRUE(targets.has_value());
    EXPECT_EQ(targets->type, xcb_atom_t{XCB_ATOM_ATOM});
    const xcb_atom_t expected[] = {atoms.targets, atoms.timestamp, atoms.utf8String, atoms.text,
                                   XCB_ATOM_STRING};
    EXPECT_EQ(targets->bytes,
              std::string(reinterpret_cast<const char *>(expected), sizeof expected));
}

TEST_F(CXcbSelectionsTest, TellsSinceWhenItOffers) {
    const xcb_timestamp_t now = peer.now();
    connection->setTime(now);
    offer("text");
    const auto time = peer.ask(atoms.clipboard, atoms.timestamp);
    ASSERT_TRUE(time.has_value());
    EXPECT_EQ(time->type, xcb_atom_t{XCB_ATOM_INTEGER});
    EXPECT_EQ(time->bytes, std::string(reinterpret_cast<const char *>(&now), sizeof now));
}

TEST_F(CXcbSelectionsTest, RefusesWhatItDoesNotOffer) {
    offer("text");
    EXPECT_FALSE(peer.ask(atoms.clipboard, XCB_ATOM_BITMAP).has_value());
    EXPECT_FALSE(peer.ask(XCB_ATOM_PRIMARY, atoms.utf8String).has_value());
}

TEST_F(CXcbSelectionsTest, AnswersOldProgramsInThePropertyOfTheTarget) {
    offer("text");
    const auto answer = peer.ask(atoms.clipboard, XCB_ATOM_STRING, XCB_NONE);
    ASSERT_TRUE(answer.has_value());
    EXPECT_EQ(answer->bytes, "text");
}

TEST_F(CXcbSelectionsTest, OffersALargeTextInPieces) {
    offer(largeText());
    for (int i = 0; i < 2; ++i) {
        const auto answer = peer.ask(atoms.clipboard, atoms.utf8String);
        ASSERT_TRUE(answer.has_value());
        EXPECT_EQ(answer->type, atoms.utf8String);
        EXPECT_TRUE(answer->bytes == largeText());
        EXPECT_GT(answer->pieces, 4);
    }
}

TEST_F(CXcbSelectionsTest, StartsALargeTextAnewIfAskedAgain) {
    offer(largeText());
    peer.convert(atoms.clipboard, atoms.utf8String);
    pumpAll(peer.client);
    peer.forgetEvents();
    peer.convert(atoms.clipboard, atoms.utf8String);
    pumpAll(peer.client);
    const auto answer = peer.receive();
    ASSERT_TRUE(answer.has_value());
    EXPECT_TRUE(answer->bytes == largeText());
    pumpAll(peer.client);
    EXPECT_FALSE(peer.hasProperty(XCB_ATOM_CUT_BUFFER0)) << "nothing comes after the end";
}

TEST_F(CXcbSelectionsTest, SendsTheRestOfATextThatIsNotOfferedAnyMore) {
    offer(largeText());
    peer.convert(atoms.clipboard, atoms.utf8String);
    pumpAll(peer.client);
    offer("other");
    const auto answer = peer.receive();
    ASSERT_TRUE(answer.has_value());
    EXPECT_TRUE(answer->bytes == largeText());
}

TEST_F(CXcbSelectionsTest, SurvivesAProgramThatEndsInTheMiddleOfAText) {
    offer(largeText());
    {
        CPeer mortal(atoms);
        xcb_convert_selection(mortal.client.get(), mortal.window, atoms.clipboard, atoms.utf8String,
                              XCB_ATOM_CUT_BUFFER0, XCB_CURRENT_TIME);
        pumpAll(mortal.client);
    }
    pumpAll(peer.client);
    const auto answer = peer.ask(atoms.clipboard, atoms.utf8String);
    ASSERT_TRUE(answer.has_value());
    EXPECT_TRUE(answer->bytes == largeText());
}

TEST_F(CXcbSelectionsTest, OffersAgainWhatItLostBefore) {
    connection->setTime(peer.now());
    offer("first");
    peer.own(atoms.clipboard);
    const xcb_timestamp_t lost = peer.now();
    xcb_timestamp_t now = lost;
    while (now == lost)
        now = peer.now();
    connection->setTime(now);
    selections.offer(1, atoms.clipboard, "second");
    pumpAll(peer.client);  // tells only now that the first is lost
    const auto answer = peer.ask(atoms.clipboard, atoms.utf8String);
    ASSERT_TRUE(answer.has_value());
    EXPECT_EQ(answer->bytes, "second");
}

TEST_F(CXcbSelectionsTest, OffersUntilTheWindowIsGone) {
    offer("text");
    selections.offer(2, XCB_ATOM_PRIMARY, "text");
    pumpAll(peer.client);
    EXPECT_TRUE(peer.hasOwner(atoms.clipboard));
    selections.forgetWindow(1);
    pumpAll(peer.client);
    EXPECT_FALSE(peer.hasOwner(atoms.clipboard));
    EXPECT_TRUE(peer.hasOwner(XCB_ATOM_PRIMARY));
}

TEST_F(CXcbSelectionsTest, TakesNothingFromAnotherOwnerWhenTheWindowIsGone) {
    offer("text");
    peer.own(atoms.clipboard);
    pumpAll(peer.client);
    selections.forgetWindow(1);
    pumpAll(peer.client);
    EXPECT_TRUE(peer.owns(atoms.clipboard));
}

TEST_F(CXcbSelectionsTest, GivesItsOwnTextAtOnce) {
    offer("text");
    request();
    EXPECT_EQ(received, std::vector<std::string>{"text"});
}

TEST_F(CXcbSelectionsTest, AsksAnotherProgramForUtf8) {
    peer.text = "größe €";
    peer.own(atoms.clipboard);
    request();
    EXPECT_TRUE(waitUntil([this] { return !received.empty(); }));
    EXPECT_EQ(received, std::vector<std::string>{"größe €"});
    EXPECT_EQ(peer.asked, std::vector<xcb_atom_t>{atoms.utf8String});
}

TEST_F(CXcbSelectionsTest, AsksTheNewOwnerAfterLosingASelection) {
    offer("text");
    peer.text = "other";
    peer.own(atoms.clipboard);
    pumpAll(peer.client);
    request();
    EXPECT_TRUE(waitUntil([this] { return !received.empty(); }));
    EXPECT_EQ(received, std::vector<std::string>{"other"});
}

TEST_F(CXcbSelectionsTest, FallsBackToLatin1) {
    peer.knowsUtf8 = false;
    peer.text = "gr\xF6\xDF"
                "e";
    peer.own(atoms.clipboard);
    request();
    EXPECT_TRUE(waitUntil([this] { return !received.empty(); }));
    EXPECT_EQ(received, std::vector<std::string>{"größe"});
    EXPECT_EQ(peer.asked, (std::vector<xcb_atom_t>{atoms.utf8String, XCB_ATOM_STRING}));
}

TEST_F(CXcbSelectionsTest, TakesARefusalForOneEvenIfItComesTwice) {
    peer.knowsUtf8 = false;
    peer.notifications = 2;
    peer.text = "text";
    peer.own(atoms.clipboard);
    request();
    EXPECT_TRUE(waitUntil([this] { return !received.empty(); }));
    EXPECT_EQ(received, std::vector<std::string>{"text"});
}

TEST_F(CXcbSelectionsTest, PutsThePiecesOfALargeTextTogether) {
    peer.usesPieces = true;
    peer.text = largeText();
    peer.own(atoms.clipboard);
    request();
    ASSERT_TRUE(waitUntil([this] { return !received.empty(); }));
    EXPECT_TRUE(received.front() == largeText());
}

TEST_F(CXcbSelectionsTest, ReceivesNothingIfThereIsNoOwner) {
    request();
    settle();
    EXPECT_TRUE(received.empty());
}

TEST_F(CXcbSelectionsTest, ReceivesNothingThatIsNoText) {
    peer.format = 32;
    peer.text = "12345678";
    peer.own(atoms.clipboard);
    request();
    settle();
    EXPECT_EQ(peer.asked.size(), 1u);
    EXPECT_TRUE(received.empty());
}

TEST_F(CXcbSelectionsTest, ReceivesNothingForAWindowThatIsGone) {
    peer.text = "text";
    peer.own(atoms.clipboard);
    request(1);
    request(2);
    pumpAll(peer.client);
    selections.forgetWindow(1);
    settle();
    EXPECT_EQ(received.size(), 1u);
}

TEST_F(CXcbSelectionsTest, AnswersOnlyTheLastRequestOfAWindow) {
    peer.text = "text";
    peer.own(atoms.clipboard);
    request();
    request();
    settle();
    EXPECT_EQ(received.size(), 1u);
}

TEST_F(CXcbSelectionsTest, MayBeAskedAgainInACallback) {
    peer.text = "text";
    peer.own(atoms.clipboard);
    selections.request(1, atoms.clipboard, [this](const std::string &) {
        selections.forgetWindow(1);
        request(1);
    });
    EXPECT_TRUE(waitUntil([this] { return !received.empty(); }));
}

}  // namespace
