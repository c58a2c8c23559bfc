#include "CWindowFixture.h"
#include "hostlayer/AudioEffectX.h"
#include "platform/INativeSurface.h"
#include "toolkit/controls/CKnob.h"
#include "toolkit/controls/CTextLabel.h"
#include "toolkit/events/CActionEvent.h"
#include "toolkit/windowing/CVstWindow.h"
#include "values/TRelaxed.h"

#include <array>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <thread>

namespace {

using Tessitor::GUI::Controls::CKnob;
using Tessitor::GUI::Controls::CTextLabel;
using Tessitor::GUI::Events::CActionEvent;
using Tessitor::GUI::Windowing::CWindowAttributes;
using Tessitor::MathTools::CRect;

constexpr int parameters = 96, dragged = 64;  // 0 to 63 are set by other threads, the rest by none

/// An effect as this test needs it: it stores values, and tells its editor about each.
class CStressEffect : public AudioEffectX {
public:
    CStressEffect() : AudioEffectX(nullptr, 1, parameters) {}

    void processReplacing(float **, float **, int) override {}
    void setParameter(int index, float value) override {
        values.at(static_cast<std::size_t>(index)) = value;
        static_cast<Tessitor::Vst::CVstWindow *>(editor)->handleParameterChange(index, value);
    }
    float getParameter(int index) override { return values.at(static_cast<std::size_t>(index)); }

    std::array<TRelaxed<float>, parameters> values;
};

/// An editor with a knob and a text for each parameter.
class CStressEditor : public Tessitor::Vst::CVstWindow {
public:
    explicit CStressEditor(CStressEffect *owner)
        : CVstWindow(owner, CRect(0, 0, 748, 370), CWindowAttributes()) {
        for (int id = 0; id < parameters; ++id) {
            const CRect area(10 + 20 * (id % 32), 10 + 100 * (id / 32), 20, 40);
            auto *knob = new CKnob(getControlRoot(), id, area, this);
            auto *label = new CTextLabel(getControlRoot(), id, area, "0");
            getControlRoot()->addControl(knob);
            getControlRoot()->addControl(label);
            knobs.at(static_cast<std::size_t>(id)) = knob;
            labels.at(static_cast<std::size_t>(id)) = label;
        }
    }

    float shownValue(int id) const {
        return static_cast<float>(knobs.at(static_cast<std::size_t>(id))->getValue());
    }
    std::string shownText(int id) const {
        return labels.at(static_cast<std::size_t>(id))->getText().getString();
    }

    void handleActionEvent(const CActionEvent &event) override {
        const auto id = event.getSender()->getUniqueId();
        const double value = event.getSender()->getValue();
        setIsEditing(true);
        effect->setParameterAutomated(id, static_cast<float>(value));
        setIsEditing(false);
        showText(id, value);
        ++drags;
    }
    void setParameter(long id, double value) override {
        CKnob *knob = knobs.at(static_cast<std::size_t>(id));
        knob->setValue(value);
        knob->update();
        showText(id, value);
        ++changes;
    }

    long drags = 0, changes = 0;

private:
    void showText(long id, double value) {
        labels.at(static_cast<std::size_t>(id))->setText(std::to_string(value).c_str());
    }

    std::array<CKnob *, parameters> knobs{};
    std::array<CTextLabel *, parameters> labels{};
};

/// What a host does to the editor on its GUI thread.
class CGuiThread {
public:
    explicit CGuiThread(CStressEditor &driven) : editor(driven) {
        fakeNatives() = SFakeNatives();
        fakeNatives().screen = createNativeSurface(nullptr, 748, 370, {255, 255, 255});
    }

    void openDragPaintAndClose() {
        editor.open(&host);
        for (int i = 0; i < 5; ++i) {
            drag();
            editor.idle();
            paint();
        }
        editor.close();
        fakeNatives().takeLog();
        ++openings;
    }

    long openings = 0, paintings = 0;

private:
    void drag() {
        constexpr int x = 20, y = 230;  // in the knob of the first parameter that is dragged
        send(NativeLeftDown, x, y);
        for (int distance = 1; distance <= 10; ++distance)
            send(NativeMouseMove, x + distance * (openings % 2 == 0 ? 1 : -1), y);
        send(NativeLeftUp, x, y);
    }
    void paint() {
        CFakeNativeWindow &native = *fakeNatives().windows.back();
        native.dirty = {0, 0, 748, 370};
        native.listener.handleMessage(NativePaint, 0, 0);
        ++paintings;
    }
    static void send(unsigned message, int x, int y) {
        fakeNatives().windows.back()->listener.handleMessage(message, 1,
                                                             (std::intptr_t{y} << 16) | x);
    }

    CStressEditor &editor;
    int host = 0;
};

std::chrono::seconds duration() {
    const char *seconds = std::getenv("CORVEL_STRESS_SECONDS");
    return std::chrono::seconds(seconds != nullptr ? std::atoi(seconds) : 1);
}

/// Sets every other parameter of 0 to 63 until the time is up. @return the number of calls.
long setParameters(AEffect &record, int first, const std::atomic<bool> &isOver) {
    long calls = 0;
    while (!isOver) {
        const int id = first + 2 * static_cast<int>(calls % (dragged / 2));
        record.setParameter(&record, id, static_cast<float>(calls % 1000) / 1000.0f);
        if (++calls % 100 == 0)
            std::this_thread::yield();
    }
    return calls;
}

// Under ThreadSanitizer, this shows that controls are never shared by two threads.
TEST(CVstWindowStress, ShowsTheLastValuesThatOtherThreadsHaveSet) {
    CStressEffect effect;
    auto *editor = new CStressEditor(&effect);  // owned by the effect
    AEffect &record = *effect.getAeffect();
    std::atomic<bool> isOver = false;

    long audioCalls = 0;
    std::thread audio([&] { audioCalls = setParameters(record, 1, isOver); });
    CGuiThread host(*editor);
    std::thread gui([&] {
        const auto end = std::chrono::steady_clock::now() + duration();
        while (std::chrono::steady_clock::now() < end)
            host.openDragPaintAndClose();
        isOver = true;
    });
    const long ownCalls = setParameters(record, 0, isOver);
    gui.join();
    audio.join();
    editor->idle();

    for (int id = 0; id < parameters; ++id) {
        EXPECT_EQ(editor->shownValue(id), effect.getParameter(id)) << id;
        EXPECT_NEAR(std::stof(editor->shownText(id)), effect.getParameter(id), 1e-6f) << id;
    }
    EXPECT_GT(editor->drags, 0);
    if (std::getenv("CORVEL_STRESS_SECONDS") != nullptr)
        std::cout << host.openings << " openings, " << host.paintings << " paintings, "
                  << editor->drags << " steps of drags, " << ownCalls << " + " << audioCalls
                  << " values set, " << editor->changes << " shown\n";
}

}  // namespace
