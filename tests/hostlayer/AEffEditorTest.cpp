#include "hostlayer/AEffEditor.h"

#include "hostlayer/ProbeEffect.h"

#include <gtest/gtest.h>
#include <stdexcept>

TEST(AEffEditor, KnowsItsEffect) {
    ProbeEffect effect;
    EXPECT_EQ(ProbeEditor(&effect).getEffect(), &effect);
    EXPECT_EQ(ProbeEditor().getEffect(), nullptr);
}

TEST(AEffEditor, IsOpenBetweenOpenAndClose) {
    ProbeEditor editor;
    int parent = 0;
    EXPECT_FALSE(editor.isOpen());
    EXPECT_TRUE(editor.open(&parent));
    EXPECT_TRUE(editor.isOpen());
    editor.close();
    EXPECT_FALSE(editor.isOpen());
}

TEST(AEffEditor, ReturnsItsRectangleOpenOrClosed) {
    ProbeEffect effect;
    auto *editor = new ProbeEditor(&effect);
    effect.setEditor(editor);
    int parent = 0;

    ERect *rect = nullptr;
    EXPECT_EQ(effect.call(13, 0, 0, &rect), 1);
    EXPECT_EQ(rect, &editor->rectangle);
    EXPECT_EQ(effect.call(14, 0, 0, &parent), 1);
    rect = nullptr;
    EXPECT_EQ(effect.call(13, 0, 0, &rect), 1);
    EXPECT_EQ(rect, &editor->rectangle);
    EXPECT_TRUE(editor->isOpen());
    EXPECT_EQ(effect.call(15), 0);
    EXPECT_FALSE(editor->isOpen());
}

TEST(AEffEditor, ReportsThatItHasNoRectangleOrWindow) {
    class Editor : public ProbeEditor {
    public:
        using ProbeEditor::ProbeEditor;
        bool getRect(ERect **) override { return false; }
        bool open(void *) override { return false; }
    };
    ProbeEffect effect;
    effect.setEditor(new Editor(&effect));
    ERect *rect = nullptr;
    EXPECT_EQ(effect.call(13, 0, 0, &rect), 0);
    EXPECT_EQ(effect.call(14), 0);
}

TEST(AEffEditor, ReceivesIdleKeysAndKnobMode) {
    class Editor : public ProbeEditor {
    public:
        using ProbeEditor::ProbeEditor;
        void idle() override { ++idles; }
        bool onKeyDown(VstKeyCode &code) override {
            down = code;
            return true;
        }
        bool onKeyUp(VstKeyCode &code) override {
            up = code;
            return true;
        }
        bool setKnobMode(int newMode) override {
            mode = newMode;
            return true;
        }
        int idles = 0, mode = -1;
        VstKeyCode down{}, up{};
    };
    ProbeEffect effect;
    auto *editor = new Editor(&effect);
    effect.setEditor(editor);

    EXPECT_EQ(effect.call(19), 0);
    EXPECT_EQ(editor->idles, 1);
    EXPECT_EQ(effect.call(59, 'q', 12, nullptr, 3.0f), 1);
    EXPECT_EQ(editor->down.character, 'q');
    EXPECT_EQ(editor->down.virt, 12);
    EXPECT_EQ(editor->down.modifier, 3);
    EXPECT_EQ(effect.call(60, 'w', 13, nullptr, 4.0f), 1);
    EXPECT_EQ(editor->up.character, 'w');
    EXPECT_EQ(editor->up.virt, 13);
    EXPECT_EQ(editor->up.modifier, 4);
    EXPECT_EQ(effect.call(61, 0, kLinearMode), 1);
    EXPECT_EQ(editor->mode, kLinearMode);
}

TEST(AEffEditor, LeavesKeysAndKnobModeToTheHost) {
    ProbeEffect effect;
    effect.setEditor(new ProbeEditor(&effect));
    EXPECT_EQ(effect.call(59, 'q'), 0);
    EXPECT_EQ(effect.call(60, 'q'), 0);
    EXPECT_EQ(effect.call(61, 0, kLinearMode), 0);
}

TEST(AEffEditor, RemovesItselfFromItsEffectIfAConstructorThrows) {
    class Editor : public ProbeEditor {
    public:
        Editor(AudioEffect *owner) : ProbeEditor(owner) {
            owner->setEditor(this);
            throw std::runtime_error("no picture");
        }
    };
    ProbeEffect effect;
    EXPECT_THROW(new Editor(&effect), std::runtime_error);
    EXPECT_EQ(effect.getEditor(), nullptr);
    EXPECT_EQ(effect.getAeffect()->flags, 0x10);
}

TEST(AEffEditor, LeavesALaterEditorInPlace) {
    ProbeEffect effect;
    auto *second = new ProbeEditor(&effect);
    {
        ProbeEditor first(&effect);
        effect.setEditor(&first);
        effect.setEditor(second);
    }
    EXPECT_EQ(effect.getEditor(), second);
}

TEST(AEffEditor, ItsExceptionsDoNotReachTheHost) {
    class Editor : public ProbeEditor {
    public:
        using ProbeEditor::ProbeEditor;
        void close() override { throw std::runtime_error("close fails"); }
        void idle() override { throw std::runtime_error("idle fails"); }
    };
    ProbeEffect effect;
    effect.setEditor(new Editor(&effect));
    EXPECT_EQ(effect.call(15), 0);
    EXPECT_EQ(effect.call(19), 0);
}
