#include "platform/linux/windowing/drops/CXcbDrops.h"

#include "platform/linux/windowing/CDisplayFixture.h"
#include "platform/linux/windowing/WindowIds.h"
#include "platform/linux/windowing/drops/CTestDragSource.h"
#include "platform/windowing/CWindowSpy.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint32_t accepts = 1;

/// A child window that takes files, at 60, 80 on the screen.
class CXcbDrops : public CDisplayFixture {
protected:
    CXcbDrops() {
        spy.options.parent = handleOf(host);
        spy.onMessage = [this](const CWindowSpy::SMessage &message) {
            return message.number == NativeDropFiles ? receive(message.wParam)
                                                     : std::optional<std::intptr_t>();
        };
        spy.create();
        target = idOf(*spy.window);
        connection = CXcbConnection::find(target);
        pumpAll(*client);
    }
    ~CXcbDrops() override { client->destroyWindow(host); }

    std::optional<std::intptr_t> receive(std::uintptr_t wParam) {
        drops.push_back(readNativeDrop(wParam));
        if (onDrop)
            onDrop(wParam);
        else
            finishNativeDrop(wParam);
        return 0;
    }
    /// Drags to the window and waits for its answer.
    void dragOver(CTestDragSource &from) {
        const std::size_t answers = from.statuses.size();
        from.enter(target, {from.atomOf("text/uri-list")});
        from.moveTo(target, 65, 90);
        EXPECT_TRUE(from.runUntil([&] { return from.statuses.size() > answers; }));
    }
    void dropFiles(CTestDragSource &from) {
        dragOver(from);
        from.drop(target);
    }
    bool isFinished() {
        return source.runUntil([this] { return !source.finishes.empty(); });
    }
    void expectRefusal() {
        ASSERT_TRUE(isFinished());
        EXPECT_EQ(source.finishes[0].target, target);
        EXPECT_EQ(source.finishes[0].flags, 0u);
        EXPECT_EQ(source.finishes[0].action, 0u);
        EXPECT_THAT(drops, IsEmpty());
    }
    /// @return the answer to a drag that offers these types.
    std::uint32_t statusFor(const std::vector<xcb_atom_t> &types, unsigned version = 5) {
        source.statuses.clear();
        source.enter(target, types, version);
        source.moveTo(target, 65, 90);
        EXPECT_TRUE(source.runUntil([this] { return !source.statuses.empty(); }));
        return source.statuses.empty() ? 99 : source.statuses[0].flags & accepts;
    }

    xcb_window_t host = client->createWindow({50, 60, 350, 260});
    xcb_window_t target = 0;
    CTestDragSource source;
    CWindowSpy spy;
    // The server need not read what a program has sent last before it closes the connection.
    std::shared_ptr<CXcbConnection> connection;
    std::vector<SNativeDrop> drops;
    std::function<void(std::uintptr_t)> onDrop;
};

// The window's side of a drag

TEST_F(CXcbDrops, AnnouncesVersion5) {
    const auto reply = ownReply(xcb_get_property_reply(
        client->get(),
        xcb_get_property(client->get(), 0, target, source.atomOf("XdndAware"), XCB_ATOM_ATOM, 0, 1),
        nullptr));
    ASSERT_TRUE(reply);
    ASSERT_EQ(reply->value_len, 1u);
    EXPECT_EQ(*static_cast<const std::uint32_t *>(xcb_get_property_value(reply.get())), 5u);
}

TEST_F(CXcbDrops, AWindowThatTakesNoFilesAnnouncesNothingAndAnswersNothing) {
    CWindowSpy other;
    other.options.parent = handleOf(host);
    other.options.extendedStyle = 0;
    other.create();
    const auto reply = ownReply(
        xcb_get_property_reply(client->get(),
                               xcb_get_property(client->get(), 0, idOf(*other.window),
                                                source.atomOf("XdndAware"), XCB_ATOM_ATOM, 0, 1),
                               nullptr));
    ASSERT_TRUE(reply);
    EXPECT_EQ(reply->value_len, 0u);
    source.enter(idOf(*other.window), {source.type});
    source.moveTo(idOf(*other.window), 65, 90);
    dragOver(source);
    EXPECT_EQ(source.statuses.size(), 1u);
}

TEST_F(CXcbDrops, OffersToCopyFiles) {
    dragOver(source);
    ASSERT_EQ(source.statuses.size(), 1u);
    EXPECT_EQ(source.statuses[0].target, target);
    EXPECT_EQ(source.statuses[0].flags, 3u);
    EXPECT_EQ(source.statuses[0].action, source.atomOf("XdndActionCopy"));
}

TEST_F(CXcbDrops, TakesNothingButFiles) {
    EXPECT_EQ(statusFor({source.atomOf("text/plain")}), 0u);
    EXPECT_EQ(source.statuses[0].flags, 2u);
    EXPECT_EQ(source.statuses[0].action, 0u);
    EXPECT_EQ(statusFor({}), 0u);
    EXPECT_EQ(statusFor({source.atomOf("text/plain"), XCB_ATOM_STRING, source.type}), accepts);
}

TEST_F(CXcbDrops, ReadsALongListOfTypes) {
    EXPECT_EQ(statusFor({XCB_ATOM_STRING, XCB_ATOM_PIXMAP, XCB_ATOM_BITMAP, source.type}), accepts);
    EXPECT_EQ(statusFor({XCB_ATOM_STRING, XCB_ATOM_PIXMAP, XCB_ATOM_BITMAP, XCB_ATOM_WINDOW}), 0u);
}

TEST_F(CXcbDrops, SurvivesABadListOfTypes) {
    const std::vector<xcb_atom_t> types = {XCB_ATOM_STRING, XCB_ATOM_PIXMAP, XCB_ATOM_BITMAP,
                                           source.type};
    const auto statusForList = [&](xcb_atom_t type, std::uint8_t format,
                                   const std::vector<std::uint32_t> &list) {
        source.statuses.clear();
        source.enter(target, types);
        source.setTypeList(type, format, list);
        source.moveTo(target, 65, 90);
        EXPECT_TRUE(source.runUntil([this] { return !source.statuses.empty(); }));
        return source.statuses[0].flags & accepts;
    };
    EXPECT_EQ(statusForList(XCB_ATOM_ATOM, 32, types), accepts);
    EXPECT_EQ(statusForList(XCB_ATOM_ATOM, 8, types), 0u);
    EXPECT_EQ(statusForList(XCB_ATOM_STRING, 32, types), 0u);
    EXPECT_EQ(statusForList(XCB_ATOM_ATOM, 32, {}), 0u);
    EXPECT_EQ(statusForList(XCB_ATOM_ATOM, 32, std::vector<std::uint32_t>(60000, 1)), 0u);
}

TEST_F(CXcbDrops, SpeaksVersions3To5) {
    for (unsigned version = 0; version < 3; ++version)
        EXPECT_EQ(statusFor({source.type}, version), 0u) << version;
    for (unsigned version = 3; version < 6; ++version)
        EXPECT_EQ(statusFor({source.type}, version), accepts) << version;
    EXPECT_EQ(statusFor({source.type}, 6), 0u);
    EXPECT_EQ(statusFor({source.type}, 255), 0u);
}

TEST_F(CXcbDrops, APointOutsideTheWindowIsRefused) {
    const auto statusAt = [&](int x, int y) {
        source.statuses.clear();
        source.moveTo(target, x, y);
        EXPECT_TRUE(source.runUntil([this] { return !source.statuses.empty(); }));
        return source.statuses[0].flags & accepts;
    };
    dragOver(source);
    EXPECT_EQ(statusAt(60, 80), accepts);
    EXPECT_EQ(statusAt(159, 129), accepts);
    EXPECT_EQ(statusAt(59, 80), 0u);
    EXPECT_EQ(statusAt(60, 79), 0u);
    EXPECT_EQ(statusAt(160, 129), 0u);
    EXPECT_EQ(statusAt(159, 130), 0u);
    EXPECT_EQ(statusAt(-1, -1), 0u);
}

TEST_F(CXcbDrops, ADisabledWindowTakesNothing) {
    spy.window->enable(false);
    EXPECT_EQ(statusFor({source.type}), 0u);
}

// Drops

TEST_F(CXcbDrops, ReportsTheFilesAndThePosition) {
    source.addresses = "file:///home/a%20b.wav\r\nfile://localhost/c\r\nhttp://x/y\r\n";
    dropFiles(source);
    ASSERT_TRUE(isFinished());
    ASSERT_EQ(drops.size(), 1u);
    EXPECT_THAT(drops[0].names, ElementsAre("/home/a b.wav", "/c"));
    EXPECT_EQ(drops[0].position.x, 5);
    EXPECT_EQ(drops[0].position.y, 10);
    ASSERT_EQ(source.finishes.size(), 1u);
    EXPECT_EQ(source.finishes[0].target, target);
    EXPECT_EQ(source.finishes[0].flags, 1u);
    EXPECT_EQ(source.finishes[0].action, source.atomOf("XdndActionCopy"));
}

TEST_F(CXcbDrops, ThePositionIsRightAfterTheHostHasMoved) {
    const std::uint32_t position[] = {100, 110};
    xcb_configure_window(client->get(), host, XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y, position);
    client->synchronise();
    source.addresses = "file:///a";
    source.enter(target, {source.type});
    source.moveTo(target, 117, 138);
    EXPECT_TRUE(source.runUntil([this] { return !source.statuses.empty(); }));
    source.drop(target);
    ASSERT_TRUE(isFinished());
    ASSERT_EQ(drops.size(), 1u);
    EXPECT_EQ(drops[0].position.x, 7);
    EXPECT_EQ(drops[0].position.y, 8);
}

TEST_F(CXcbDrops, FinishesWhenTheWindowSaysSo) {
    source.addresses = "file:///a";
    onDrop = [this](std::uintptr_t wParam) {
        EXPECT_EQ(readNativeDrop(wParam).names.size(), 1u);
        EXPECT_THAT(source.finishes, IsEmpty());
        finishNativeDrop(wParam);
        EXPECT_THAT(readNativeDrop(wParam).names, IsEmpty());
        finishNativeDrop(wParam);
    };
    dropFiles(source);
    ASSERT_TRUE(isFinished());
    dragOver(source);
    EXPECT_EQ(source.finishes.size(), 1u);
}

TEST_F(CXcbDrops, FinishesForAWindowThatForgetsTo) {
    source.addresses = "file:///a";
    onDrop = [](std::uintptr_t) {};
    dropFiles(source);
    EXPECT_TRUE(isFinished());
    EXPECT_EQ(drops.size(), 1u);
}

TEST_F(CXcbDrops, OtherNumbersAreNoDrops) {
    EXPECT_THAT(readNativeDrop(0).names, IsEmpty());
    EXPECT_THAT(readNativeDrop(12345).names, IsEmpty());
    finishNativeDrop(12345);
    dragOver(source);
    EXPECT_THAT(source.finishes, IsEmpty());
}

TEST_F(CXcbDrops, AWindowMayGoInItsDropMessage) {
    source.addresses = "file:///a";
    onDrop = [this](std::uintptr_t wParam) {
        spy.window.reset();
        finishNativeDrop(wParam);
    };
    dropFiles(source);
    ASSERT_TRUE(isFinished());
    EXPECT_EQ(source.finishes[0].flags, 1u);
}

TEST_F(CXcbDrops, TakesAListInParts) {
    std::vector<std::string> names;
    for (int i = 0; i < 1000; ++i) {
        names.push_back("/file" + std::to_string(i));
        source.addresses += "file://" + names.back() + "\r\n";
    }
    source.partSize = 1000;
    dropFiles(source);
    ASSERT_TRUE(isFinished());
    ASSERT_EQ(drops.size(), 1u);
    EXPECT_EQ(drops[0].names, names);
    EXPECT_EQ(source.finishes[0].flags, 1u);
}

TEST_F(CXcbDrops, TakesFilesFromASourceThatSaysTooMuch) {
    source.addresses = "file:///a\r\nfile:///b";
    source.notifications = 2;
    source.writesMore = true;
    for (const std::size_t partSize : {0, 9}) {
        source.partSize = partSize;
        source.finishes.clear();
        drops.clear();
        dropFiles(source);
        source.leave(target);
        ASSERT_TRUE(isFinished());
        ASSERT_EQ(drops.size(), 1u);
        EXPECT_THAT(drops[0].names, ElementsAre("/a", "/b"));
    }
}

TEST_F(CXcbDrops, MayComeBeforeTheAnswerToTheLastPosition) {
    source.addresses = "file:///a";
    source.enter(target, {XCB_ATOM_STRING, XCB_ATOM_PIXMAP, XCB_ATOM_BITMAP, source.type});
    source.moveTo(target, 65, 90);
    source.drop(target);
    ASSERT_TRUE(isFinished());
    EXPECT_EQ(drops.size(), 1u);
}

TEST_F(CXcbDrops, ATopLevelWindowTakesFiles) {
    spy.window.reset();
    spy.options.style = 0xCF0008 | 0x10000000;
    spy.options.bounds = {60, 80, 160, 130};
    spy.create();
    target = idOf(*spy.window);
    pumpAll(*client);
    source.addresses = "file:///a";
    dropFiles(source);
    ASSERT_TRUE(isFinished());
    EXPECT_EQ(drops.size(), 1u);
}

// What is refused

TEST_F(CXcbDrops, ADropThatWasRefusedBringsNothing) {
    EXPECT_EQ(statusFor({source.atomOf("text/plain")}), 0u);
    source.drop(target);
    expectRefusal();
}

TEST_F(CXcbDrops, ADropWithoutADragBringsNothing) {
    source.drop(target);
    expectRefusal();
}

TEST_F(CXcbDrops, ADropAfterLeavingBringsNothing) {
    dragOver(source);
    source.leave(target);
    source.drop(target);
    expectRefusal();
}

TEST_F(CXcbDrops, ADropWithoutAPositionBringsNothing) {
    source.enter(target, {source.type});
    source.drop(target);
    expectRefusal();
}

TEST_F(CXcbDrops, AMissingSelectionBringsNothing) {
    source.hasSelection = false;
    dropFiles(source);
    expectRefusal();
}

TEST_F(CXcbDrops, AListWithoutFilesBringsNothing) {
    source.addresses = "http://x/y\r\n";
    dropFiles(source);
    expectRefusal();
}

TEST_F(CXcbDrops, AnEmptyListBringsNothing) {
    dropFiles(source);
    expectRefusal();
}

TEST_F(CXcbDrops, AWrongTypeBringsNothing) {
    source.addresses = "file:///a";
    source.type = XCB_ATOM_STRING;
    source.enter(target, {source.atomOf("text/uri-list")});
    source.moveTo(target, 65, 90);
    source.drop(target);
    expectRefusal();
}

TEST_F(CXcbDrops, AWrongFormatBringsNothing) {
    source.addresses = "file:///" + std::string(72, 'a');
    source.format = 32;
    dropFiles(source);
    expectRefusal();
}

TEST_F(CXcbDrops, AWrongFormatOfAPartBringsNothing) {
    source.addresses = "file:///" + std::string(72, 'a');
    source.format = 32;
    source.partSize = 8;
    dropFiles(source);
    expectRefusal();
}

TEST_F(CXcbDrops, AHugeListBringsNothing) {
    source.addresses.assign((16 << 20) + 1, 'a');
    source.partSize = 4 << 20;
    dropFiles(source);
    expectRefusal();
}

// What goes away

TEST_F(CXcbDrops, AWindowThatGoesMeanwhileIsFinishedWith) {
    source.answers = false;
    dropFiles(source);
    pumpAll(*client);
    pumpAll(*client);
    spy.window.reset();
    expectRefusal();
}

TEST_F(CXcbDrops, AWindowThatGoesBeforeItsAnswerRefuses) {
    source.enter(target, {source.type});
    source.moveTo(target, 65, 90);
    while (const auto event = ownReply(xcb_poll_for_event(connection->get())))
        connection->drops().handleEvent(*event);
    spy.window.reset();
    EXPECT_TRUE(source.runUntil([this] { return !source.statuses.empty(); }));
    EXPECT_EQ(source.statuses[0].flags & accepts, 0u);
}

TEST_F(CXcbDrops, ASourceThatGoesMeanwhileIsNotWaitedFor) {
    source.addresses = "file:///b";
    {
        CTestDragSource other;
        other.answers = false;
        dropFiles(other);
        pumpAll(*client);
        pumpAll(*client);
    }
    CTestDragSource next;
    next.addresses = "file:///b";
    dropFiles(next);
    EXPECT_TRUE(next.runUntil([&] { return !next.finishes.empty(); }));
    ASSERT_EQ(drops.size(), 1u);
    EXPECT_THAT(drops[0].names, ElementsAre("/b"));
}

TEST_F(CXcbDrops, ASourceThatGoesDuringTheDragIsForgotten) {
    {
        CTestDragSource other;
        dragOver(other);
        other.moveTo(target, 66, 91);
    }
    CTestDragSource next;
    next.addresses = "file:///b";
    dropFiles(next);
    EXPECT_TRUE(next.runUntil([&] { return !next.finishes.empty(); }));
    EXPECT_EQ(drops.size(), 1u);
}

TEST_F(CXcbDrops, OnlyTheSourceOfADragCanMoveIt) {
    dragOver(source);
    CTestDragSource other;
    other.moveTo(target, 65, 90);
    EXPECT_TRUE(other.runUntil([&] { return !other.statuses.empty(); }));
    EXPECT_EQ(other.statuses[0].flags & accepts, 0u);
    other.leave(target);
    other.drop(target);
    EXPECT_TRUE(other.runUntil([&] { return !other.finishes.empty(); }));
    EXPECT_EQ(other.finishes[0].flags, 0u);
    source.moveTo(target, 65, 90);
    EXPECT_TRUE(source.runUntil([this] { return source.statuses.size() == 2; }));
    EXPECT_EQ(source.statuses[1].flags & accepts, accepts);
}

TEST_F(CXcbDrops, AMessageOfAnotherFormatIsNone) {
    dragOver(source);
    source.messageFormat = 8;
    source.leave(target);
    source.messageFormat = 32;
    source.moveTo(target, 65, 90);
    EXPECT_TRUE(source.runUntil([this] { return source.statuses.size() == 2; }));
    EXPECT_EQ(source.statuses[1].flags & accepts, accepts);
}

// Drops that wait for their files

TEST_F(CXcbDrops, ADropMayComeWhileAnotherWaits) {
    source.answers = false;
    dropFiles(source);
    pumpAll(*client);
    pumpAll(*client);
    CTestDragSource other;
    other.addresses = "file:///b";
    dropFiles(other);
    EXPECT_TRUE(other.runUntil([&] { return !other.finishes.empty(); }));
    EXPECT_EQ(drops.size(), 1u);
    EXPECT_THAT(source.finishes, IsEmpty());
}

TEST_F(CXcbDrops, TheOldestOfTooManyIsGivenUp) {
    source.answers = false;
    for (int i = 0; i < 4; ++i) {
        dropFiles(source);
        pumpAll(*client);
        pumpAll(*client);
    }
    source.poll();
    EXPECT_THAT(source.finishes, IsEmpty());
    dropFiles(source);
    expectRefusal();
    EXPECT_EQ(source.finishes.size(), 1u);
}

TEST_F(CXcbDrops, ADropMayComeInTheMessageOfAnother) {
    source.addresses = "file:///a";
    CTestDragSource other;
    other.addresses = "file:///b";
    onDrop = [&](std::uintptr_t) {
        onDrop = nullptr;
        dropFiles(other);
        EXPECT_TRUE(other.runUntil([&] { return !other.finishes.empty(); }));
    };
    dropFiles(source);
    ASSERT_TRUE(isFinished());
    EXPECT_EQ(drops.size(), 2u);
}

}  // namespace
