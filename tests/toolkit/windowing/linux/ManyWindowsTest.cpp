// What opening and closing costs.
#include "CNativeWindowTest.h"
#include "abi/HeapInUse.h"
#include "foundation/CString.h"
#include "toolkit/controls/CKnob.h"
#include "toolkit/controls/CTextEdit.h"
#include "toolkit/graphics/TestImage.h"
#include "toolkit/windowing/CVstWindow.h"

#include <filesystem>
#include <map>
#include <xcb/res.h>

namespace {

using namespace Tessitor::GUI;

/// Counts what it has been asked to draw.
class CDrawnLabel : public Controls::CTextEdit {
public:
    using CTextEdit::CTextEdit;
    void drawControl(Graphics::CGraphics &graphics) override {
        ++drawn;
        CTextEdit::drawControl(graphics);
    }
    static inline int drawn = 0;
};

class CEditor : public Tessitor::Vst::CVstWindow {
public:
    CEditor() : CVstWindow(nullptr, CRect(0, 0, 200, 100), CWindowAttributes()) {}
    void handleActionEvent(const Events::CActionEvent &) override {}
    void setParameter(long, double) override {}

private:
    using CRect = Tessitor::MathTools::CRect;
    using CWindowAttributes = Windowing::CWindowAttributes;
};

class ManyWindows : public CNativeWindowTest {
protected:
    static constexpr int times = 1000, fieldEach = 2;
    // Less than the smallest piece of memory, 32 bytes, for each window that has a field
    static constexpr std::size_t allowance = times * 12;

    ~ManyWindows() override { image->dereference(); }

    /// Opens editors with connections of their own. Some also have a popup and a text field.
    void openAndCloseEditors(int count) {
        for (int i = 0; i < count; ++i) {
            CEditor editor;
            CDrawnLabel *label = fill(editor);
            editor.open(::handleOf(host));
            if (i % fieldEach == 0) {
                CWindow popup(CRect(200, 210, 60, 40));
                popup.setParentWindow(&editor);
                popup.setWindowAttributes(&popupAttributes, true);
                edit(*label);
                pumpAll(*client);
                editor.close();
            }
            editor.idle();
            editor.close();
        }
    }
    /// Opens popups above the editor of the test, which stays open.
    void openAndClosePopups(int count) {
        for (int i = 0; i < count; ++i) {
            CWindow popup(CRect(200, 210, 200, 100));
            CDrawnLabel *label = fill(popup);
            openPopup(popup);
            if (i % fieldEach == 0)
                edit(*label);
            connection()->pump();
            popup.destroyWindow();
        }
        pumpAll(*client);
    }

    /// @return how many resources of each type a client of the server has.
    static std::map<xcb_atom_t, std::uint32_t> resourcesOf(std::uint32_t anyId) {
        const auto reply = ownReply(xcb_res_query_client_resources_reply(
            client->get(), xcb_res_query_client_resources(client->get(), anyId), nullptr));
        std::map<xcb_atom_t, std::uint32_t> counts;
        for (int i = 0; reply && i < xcb_res_query_client_resources_types_length(reply.get());
             ++i) {
            const auto &type = xcb_res_query_client_resources_types(reply.get())[i];
            counts[type.resource_type] = type.count;
        }
        return counts;
    }
    static std::uint32_t countClients() {
        const auto reply = ownReply(xcb_res_query_clients_reply(
            client->get(), xcb_res_query_clients(client->get()), nullptr));
        return reply ? reply->num_clients : 0;
    }
    static std::ptrdiff_t countDescriptors() {
        return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
    }
    static std::ptrdiff_t countThreads() {
        return std::distance(std::filesystem::directory_iterator("/proc/self/task"), {});
    }

private:
    /// @return the last of 50 knobs and 50 labels.
    CDrawnLabel *fill(CWindow &filled) {
        Controls::IControlRoot *root = filled.getControlRoot();
        CDrawnLabel *label = nullptr;
        for (int i = 0; i < 100; i += 2) {
            const int left = i % 10 * 20, top = i / 10 * 10;
            auto *knob = new Controls::CKnob(root, i, CRect(left, top, 10, 10), nullptr);
            knob->setPrimaryImage(image, 10, 4, false);
            label = new CDrawnLabel(root, i + 1, CRect(left + 20, top, 20, 10), "label", nullptr);
            root->addControl(knob);
            root->addControl(label);
        }
        return label;
    }
    static void edit(CDrawnLabel &label) {
        Windowing::CMouse mouse;
        Events::CMouseEvent event(&mouse);
        label.handleLeftButtonDown(event);
        ASSERT_TRUE(label.isEditing());
    }

    const CWindowAttributes popupAttributes{Windowing::EWindowKind::Popup};
    CTestImage *image = [] {
        auto *created = new CTestImage(10, 40, true);
        created->reference();
        return created;
    }();
};

TEST_F(ManyWindows, LeaveNothingBehindWithTheirConnections) {
    openAndCloseEditors(times);  // the first ones also create what the process keeps
    const auto descriptors = countDescriptors(), threads = countThreads();
    const std::uint32_t clients = countClients();
    const std::size_t heap = heapInUse();
    CDrawnLabel::drawn = 0;
    openAndCloseEditors(times);
    EXPECT_GE(CDrawnLabel::drawn, times * 50);
    EXPECT_LT(heapInUse(), heap + allowance);
    EXPECT_TRUE(pumpUntil([=] { return countClients() == clients; }));
    EXPECT_EQ(countDescriptors(), descriptors);
    EXPECT_EQ(countThreads(), threads);
    EXPECT_EQ(focus(), host);
}

TEST_F(ManyWindows, LeaveNothingBehindInOneConnection) {
    open();
    listener.onEvent = [this] { log.clear(); };
    openAndClosePopups(times);
    const auto descriptors = countDescriptors();
    const auto resources = resourcesOf(idOf(handleOf(*window)));
    EXPECT_FALSE(resources.empty());
    const std::size_t heap = heapInUse();
    CDrawnLabel::drawn = 0;
    openAndClosePopups(times);
    EXPECT_GE(CDrawnLabel::drawn, times * 50);
    EXPECT_LT(heapInUse(), heap + allowance);
    EXPECT_EQ(resourcesOf(idOf(handleOf(*window))), resources);
    EXPECT_EQ(countDescriptors(), descriptors);
    expectNothingTaken();
}

}  // namespace
