#include "dspclasses/support/Signals.h"
#include "editor/CCorvelEditor.h"
#include "effect/CCorvel.h"
#include "effect/FactoryPrograms.h"
#include "hostlayer/FakeHost.h"
#include "platform/INativeSurface.h"
#include "toolkit/controls/CControlPanel.h"
#include "toolkit/controls/CTextLabel.h"
#include "toolkit/windowing/FakeNativeWindow.h"

#include <atomic>
#include <gtest/gtest.h>
#include <optional>
#include <thread>

using Tessitor::Corvel::CCorvel;
using Tessitor::Corvel::SProgram;

namespace {

/// What a host does to an editor on its GUI thread.
class CGuiThread {
public:
    explicit CGuiThread(CCorvel &effect) : m_editor(*effect.getEditor()) {
        fakeNatives() = SFakeNatives();
        fakeNatives().screen = createNativeSurface(nullptr, 748, 370, {255, 255, 255});
    }

    void openDragPaintAndClose() {
        m_editor.open(&m_parent);
        for (int i = 0; i < 3; ++i) {
            drag();
            m_editor.idle();
            paint();
        }
        m_editor.close();
        fakeNatives().takeLog();
        ++m_openings;
    }

private:
    void drag() const {
        constexpr int x = 40, y = 40;  // in the knob of the input gain
        send(NativeLeftDown, x, y);
        for (int distance = 1; distance <= 5; ++distance)
            send(NativeMouseMove, x, y + distance * (m_openings % 2 == 0 ? 1 : -1));
        send(NativeLeftUp, x, y);
    }
    static void paint() {
        CFakeNativeWindow &native = *fakeNatives().windows.back();
        native.dirty = {0, 0, 748, 370};
        native.listener.handleMessage(NativePaint, 0, 0);
    }
    static void send(unsigned message, int x, int y) {
        fakeNatives().windows.back()->listener.handleMessage(message, 1,
                                                             (std::intptr_t{y} << 16) | x);
    }

    AEffEditor &m_editor;
    int m_parent = 0;
    int m_openings = 0;
};

/// Does one thing that a host may do on the thread that has created the effect.
void changeSomething(CCorvel &effect, CRandom &random) {
    void *data = nullptr;
    char text[64];
    switch (random.whole(0, 5)) {
    case 0:
        effect.setProgram(random.whole(0, 19));
        break;
    case 1: {
        SProgram chunk = Tessitor::Corvel::factoryPrograms[std::size_t(random.whole(0, 19))];
        effect.setChunk(&chunk, sizeof chunk, true);
        break;
    }
    case 2:
        effect.getChunk(&data, random.chance(0.5));
        break;
    case 3:
        effect.getParameterDisplay(random.whole(0, kParameterCount - 1), text);
        break;
    default:
        effect.setParameter(random.whole(0, kParameterCount - 1),
                            static_cast<float>(random.real(0.0, 1.0)));
    }
}

/// Plays and sets parameters, until the end of the program's other work.
void play(CCorvel &effect, const std::atomic<bool> &isOver) {
    TStereo<float> voice = makeSignal<float>(ESignal::Bursts, 1, 64);
    TStereo<float> result(64);
    CRandom random(3);
    while (!isOver) {
        effect.processReplacing(voice.pointers().data(), result.pointers().data(), 64);
        effect.setParameter(random.whole(0, kParameterCount - 1),
                            static_cast<float>(random.real(0.0, 1.0)));
    }
}

// The knob or button of a parameter
const Tessitor::GUI::Controls::IControl *findControl(Tessitor::GUI::Controls::IControlRoot &root,
                                                     int id) {
    using namespace Tessitor::GUI::Controls;
    for (std::int32_t i = 0; i < root.getNumberOfControls(); ++i) {
        IControl *control = root.getControlAtIndex(i, true);
        if (control == nullptr || dynamic_cast<CTextLabel *>(control) != nullptr)
            continue;
        if (control->getUniqueId() == id)
            return control;
        if (auto *panel = dynamic_cast<CControlPanel *>(control))
            if (const IControl *found = findControl(*panel, id))
                return found;
    }
    return nullptr;
}

class CCorvelEditorThreads : public testing::Test {
protected:
    CCorvelEditorThreads() { host.logging = false; }

    FakeHost host;
    std::atomic<bool> isOver = false;
};

// Under ThreadSanitizer, these tests show that no plain field is shared by two threads.
TEST_F(CCorvelEditorThreads, MayChangeEverythingWhileTheEditorIsUsed) {
    CCorvel effect(FakeHost::callback);
    CGuiThread gui(effect);
    std::thread audio([&] { play(effect, isOver); });
    std::thread editing([&] {
        for (int i = 0; i < 20; ++i)
            gui.openDragPaintAndClose();
        isOver = true;
    });
    CRandom random(2);
    while (!isOver)
        changeSomething(effect, random);
    editing.join();
    audio.join();

    std::thread([&] {
        for (int id = 0; id < kParameterCount; ++id)
            effect.setParameter(id, static_cast<float>(id) / 100.0f);
    }).join();
    auto *editor = dynamic_cast<Tessitor::Corvel::CCorvelEditor *>(effect.getEditor());
    editor->idle();
    for (int id = 0; id <= kOutMono; ++id) {
        const auto *control = findControl(*editor->getControlRoot(), id);
        ASSERT_NE(control, nullptr) << id;
        EXPECT_EQ(control->getValue(), double{effect.getParameter(id)}) << id;
    }
}

// Ardour 7.3 creates and closes effects on one thread, and shows editors on another.
TEST_F(CCorvelEditorThreads, MayCreateAndCloseEffectsWhileAnEditorIsUsed) {
    CCorvel effect(FakeHost::callback);
    CGuiThread gui(effect);
    std::thread editing([&] {
        for (int i = 0; i < 10; ++i)
            gui.openDragPaintAndClose();
        isOver = true;
    });
    while (!isOver) {
        CCorvel other(FakeHost::callback);
        other.setProgram(5);
    }
    editing.join();
}

TEST_F(CCorvelEditorThreads, MayCreateAndCloseEffectsAtTheSameTime) {
    const auto createAndClose = [] {
        for (int i = 0; i < 10; ++i) {
            CCorvel effect(FakeHost::callback);
            effect.setProgram(i);
        }
    };
    std::thread one(createAndClose), two(createAndClose);
    one.join();
    two.join();
}

TEST_F(CCorvelEditorThreads, MayCreateAnEffectOnAThreadThatEnds) {
    std::optional<CCorvel> effect;
    std::thread([&] { effect.emplace(FakeHost::callback); }).join();
    effect->setProgram(3);
    CGuiThread gui(*effect);
    std::thread([&] { gui.openDragPaintAndClose(); }).join();
    gui.openDragPaintAndClose();
}

}  // namespace
