// Where everything is in the editor, and what it looks like.
#include "CEditorFixture.h"
#include "toolkit/controls/CClickableKnob.h"
#include "toolkit/graphics/CFont.h"

using Tessitor::GUI::Basics::CAlphaColour;
using Tessitor::GUI::Controls::CClickableKnob;
using Tessitor::GUI::Fonts::CFont;
using testing::EndsWith;

namespace {

const CAlphaColour white(255, 255, 255), grey(208, 208, 208), red(243, 32, 32),
    yellow(219, 230, 49), blue(85, 86, 200), green(102, 200, 85), transparent(0, 0, 0, 0);

enum EKind { Drag, Click, Latch };

struct SControl {
    int module, id;
    const char *name, *caption;
    EKind kind;
    int x, y;  // of the name label, in the panel
    int frames;
    const char *picture;
};

// x: 8 and 56 are the columns, 32 is centred. y: 8, 60, 112 and 164 are the rows.
const SControl panelControls[] = {
    {2, 2, "Balance", "0", Drag, 32, 8, 63, "Balance.png"},
    {3, 3, "Pan", "0", Drag, 32, 8, 63, "Balance.png"},
    {4, 4, "Gain", "0.0dB", Drag, 32, 8, 63, "Blue.png"},

    {5, 5, "Lo", "0dB", Drag, 32, 112, 63, "Green2Red_Centred.png"},
    {5, 6, "Mid", "0dB", Drag, 32, 60, 63, "Green2Red_Centred.png"},
    {5, 7, "Hi", "0dB", Drag, 32, 8, 63, "Green2Red_Centred.png"},
    {5, 8, "LoXOver", "100Hz", Drag, 8, 164, 63, "Blue.png"},
    {5, 9, "HiXOver", "1600Hz", Drag, 56, 164, 63, "Blue.png"},

    {6, 10, "Rumble", "5Hz", Drag, 32, 8, 63, "Blue.png"},
    {7, 11, "HiPass", "100Hz", Drag, 32, 8, 63, "Blue.png"},

    {8, 12, "Freq", "1000Hz", Drag, 8, 8, 63, "Blue.png"},
    {8, 13, "Gain", "0dB", Drag, 56, 8, 63, "Green2Red_Centred.png"},

    {9, 14, "Freq", "100Hz", Drag, 8, 8, 63, "Blue.png"},
    {9, 15, "BW", "0.125Oct", Drag, 56, 8, 63, "Blue.png"},
    {9, 16, "Gain", "0dB", Drag, 32, 60, 63, "Green2Red_Centred.png"},

    {10, 17, "Threshold", "-30dB", Drag, 32, 8, 63, "Blue.png"},
    {10, 18, "Attack", "10ms", Drag, 8, 60, 63, "Blue.png"},
    {10, 19, "Release", "50ms", Drag, 56, 60, 63, "Blue.png"},

    {11, 20, "Threshold", "-60dB", Drag, 8, 8, 63, "Red2Green_Reversed.png"},
    {11, 21, "Attack", "1ms", Drag, 8, 60, 63, "Blue.png"},
    {11, 22, "Release", "20ms", Drag, 56, 60, 63, "Blue.png"},
    {11, 23, "Ratio", "1:1", Drag, 56, 8, 63, "Blue.png"},
    {11, 24, "MakeUp", "0dB", Drag, 32, 112, 63, "Green2Red_Centred.png"},
    {11, 25, "Channels", "Off", Latch, 32, 164, 0, ""},

    {12, 26, "Threshold", "-60dB", Drag, 8, 8, 63, "Red2Green_Reversed.png"},
    {12, 27, "Speed", "0", Drag, 56, 60, 63, "Blue.png"},
    {12, 28, "Ratio", "1:1", Drag, 56, 8, 63, "Blue.png"},
    {12, 29, "Freq", "1000Hz", Drag, 8, 60, 63, "Blue.png"},
    {12, 30, "Band", "Wide", Latch, 32, 112, 0, ""},
    {12, 31, "Listening", "DeEsser", Latch, 32, 164, 0, ""},

    {13, 32, "ModType", "Vibrato", Click, 32, 8, 11, "Modulation.png"},
    {13, 33, "Width", "5ms", Drag, 8, 60, 63, "Blue.png"},
    {13, 34, "Depth", "0%", Drag, 56, 60, 63, "Blue.png"},
    {13, 35, "Speed", "0.2Hz", Drag, 8, 112, 63, "Blue.png"},
    {13, 36, "Spread", "0%", Drag, 56, 112, 63, "Blue.png"},
    {13, 37, "FdBck", "0%", Drag, 8, 164, 63, "Blue.png"},
    {13, 38, "Mix", "0%", Drag, 56, 164, 63, "Blue.png"},

    {14, 39, "ModType", "Vibrato", Click, 32, 8, 11, "Modulation.png"},
    {14, 40, "Width", "5ms", Drag, 8, 60, 63, "Blue.png"},
    {14, 41, "Depth", "0%", Drag, 56, 60, 63, "Blue.png"},
    {14, 42, "Speed", "0.2Hz", Drag, 8, 112, 63, "Blue.png"},
    {14, 43, "Spread", "0%", Drag, 56, 112, 63, "Blue.png"},
    {14, 44, "FdBck", "0%", Drag, 8, 164, 63, "Blue.png"},
    {14, 45, "Mix", "0%", Drag, 56, 164, 63, "Blue.png"},

    {15, 46, "Warmer", "0%", Drag, 32, 8, 63, "Blue.png"},

    {16, 47, "Time", "50ms", Drag, 8, 8, 63, "Blue.png"},
    {16, 48, "Sync", "ms", Click, 8, 60, 3, "DelayType.png"},
    {16, 49, "Feedback", "0%", Drag, 56, 8, 63, "Blue.png"},
    {16, 50, "PingPong", "Off", Latch, 56, 60, 0, ""},
    {16, 51, "Dry", "0%", Drag, 8, 112, 63, "Blue.png"},
    {16, 52, "Wet", "0%", Drag, 56, 112, 63, "Blue.png"},

    {17, 53, "RoomSize", "1m", Drag, 8, 8, 63, "Blue.png"},
    {17, 54, "Time", "0.2s", Drag, 8, 60, 63, "Blue.png"},
    {17, 55, "Brite", "0%", Drag, 56, 8, 63, "Blue.png"},
    {17, 56, "WallDamp", "0%", Drag, 56, 60, 63, "Blue.png"},
    {17, 57, "Spread", "0%", Drag, 8, 112, 63, "Blue.png"},
    {17, 58, "InputLev", "0%", Drag, 56, 112, 63, "Blue.png"},
    {17, 59, "ER Lev", "0%", Drag, 8, 164, 63, "Blue.png"},
    {17, 60, "Tail Lev", "0%", Drag, 56, 164, 63, "Blue.png"},
};

const char *const panelClasses[] = {
    "CBalancePanel", "CPanPanel",        "CGainPanel",     "CEQPanel",
    "CRumblePanel",  "CHiPassPanel",     "CPresencePanel", "CParametricPanel",
    "CGatePanel",    "CCompressorPanel", "CDeEsserPanel",  "CModPanel",
    "CModPanel",     "CWarmerPanel",     "CDelayPanel",    "CReverbPanel"};

}  // namespace

class EditorLayout : public CEditorFixture {
protected:
    static std::string areaOf(const IControl &control) {
        return control.getArea().toString().getString();
    }
    static std::string rect(int left, int top, int width, int height) {
        return CRect(left, top, width, height).toString().getString();
    }
    static std::string fileOf(const Tessitor::GUI::Graphics::IImage *image) {
        return image != nullptr ? image->getFilename().getString() : "no image";
    }
    static void expectLabel(const IControl &control, const std::string &area,
                            const CAlphaColour &background, const CAlphaColour &text) {
        const auto &label = dynamic_cast<const CTextLabel &>(control);
        EXPECT_STREQ(label.getClass().getClassName(), "CTextLabel");
        EXPECT_EQ(areaOf(label), area);
        EXPECT_EQ(label.getFrameColour(), red);
        EXPECT_EQ(label.getBackgroundColour(), background);
        EXPECT_EQ(label.getTextColour(), text);
        EXPECT_EQ(label.getTextFormat(), 1);
        EXPECT_FALSE(label.isBackgroundDrawn());
        EXPECT_FALSE(label.isDefaultDrawing());
    }
    static std::string textOf(const IControl &control) {
        return dynamic_cast<const CTextLabel &>(control).getText().getString();
    }
    void expectKnob(const CControl &control, int frames, const char *picture,
                    bool isDragged) const {
        const auto &knob = dynamic_cast<const CClickableKnob &>(control);
        EXPECT_EQ(knob.getNumberOfFrames(), frames);
        EXPECT_EQ(knob.getFrameHeight(), 24);
        EXPECT_FALSE(knob.isInverted());
        EXPECT_EQ(knob.isDragEnabled(), isDragged);
        EXPECT_THAT(fileOf(knob.getPrimaryImage()), EndsWith(picture));
        EXPECT_EQ(knob.getActionListener(), editor);
    }
    void expectButton(const CControl &control, const char *name, const char *up,
                      const char *down) const {
        const auto &button = dynamic_cast<const Tessitor::GUI::Controls::CButton &>(control);
        EXPECT_STREQ(button.getClass().getClassName(), name);
        EXPECT_THAT(fileOf(button.getPrimaryImage()), EndsWith(up));
        EXPECT_THAT(fileOf(button.getDownImage()), EndsWith(down));
        EXPECT_EQ(button.getActionListener(), editor);
    }
};

TEST_F(EditorLayout, StartsWithOnePanelForEachModule) {
    for (int module = 2; module < 18; ++module) {
        SCOPED_TRACE(module);
        EXPECT_STREQ(panel(module).getClass().getClassName(), panelClasses[module - 2]);
        EXPECT_TRUE(panel(module).getClass().isTypeOf(Tessitor::Basics::CClass("CControlPanel")));
        EXPECT_EQ(panel(module).getUniqueId(), -1);
        EXPECT_EQ(panel(module).getActionListener(), editor);
        EXPECT_EQ(panel(module).getArea().getTop(), 132);
        EXPECT_EQ(panel(module).getArea().getWidth(), 112);
        EXPECT_EQ(panel(module).getArea().getHeight(), 220);
    }
}

TEST_F(EditorLayout, PanelsHaveTwoLabelsAndAControlForEachParameter) {
    int module = 0, index = 0;
    for (const SControl &row : panelControls) {
        SCOPED_TRACE(row.id);
        index = row.module == module ? index : 0;
        module = row.module;
        const std::vector<CControl *> controls = controlsOf(panel(module));
        const IControl &name = *controls.at(index++), &value = *controls.at(index++);
        const CControl &control = *controls.at(index++);

        expectLabel(name, rect(row.x, row.y, 48, 13), green, white);
        EXPECT_EQ(textOf(name), row.name);
        expectLabel(value, rect(row.x, row.y + 35, 48, 13), blue, grey);
        EXPECT_EQ(control.getUniqueId(), row.id);
        const bool isWide = std::string(row.picture) == "Modulation.png";
        EXPECT_EQ(areaOf(control),
                  isWide ? rect(row.x, row.y + 12, 48, 24) : rect(row.x + 12, row.y + 12, 24, 24));
        if (row.kind == Latch)
            expectButton(control, "CLatchingButton", "ButtonUp.png", "ButtonDown.png");
        else
            expectKnob(control, row.frames, row.picture, row.kind == Drag);
    }
    for (int any = 2; any < 18; ++any) {
        const auto parameters = std::ranges::count(panelControls, any, &SControl::module);
        EXPECT_EQ(controlsOf(panel(any)).size(), 3u * static_cast<std::size_t>(parameters)) << any;
    }
}

TEST_F(EditorLayout, CaptionsAreShownUntilThereAreValues) {
    CCorvelEditor idle(nullptr, CRect(0, 0, 748, 370),
                       Tessitor::GUI::Windowing::CWindowAttributes());
    editor = &idle;
    for (const SControl &row : panelControls)
        EXPECT_EQ(valueText(row.id), row.caption) << row.id;
    EXPECT_EQ(valueText(0), "0dB");
    EXPECT_EQ(valueText(1), "Combine");
    EXPECT_EQ(valueText(61), "Combine");
    EXPECT_THAT(slotNames(), testing::Each("----"));
}

TEST_F(EditorLayout, TheTopRowFollowsThePanels) {
    const std::vector<CControl *> controls = controlsOf(root());
    struct STop {
        int id;
        const char *name;
        int x;
    };
    int index = 16;
    for (const auto &[id, name, x] : {STop{0, "InputGain", 16}, STop{1, "In", 72},
                                      STop{61, "Out", 128}, STop{-1000, " Help", 184}}) {
        SCOPED_TRACE(name);
        expectLabel(*controls.at(index), rect(x - 2, 16, 48, 13), yellow, white);
        EXPECT_EQ(textOf(*controls.at(index++)), name);
        expectLabel(*controls.at(index++), rect(x, 51, 48, 13), transparent, grey);
        EXPECT_EQ(controls.at(index)->getUniqueId(), id);
        EXPECT_EQ(areaOf(*controls.at(index++)), rect(x + 12, 28, 24, 24));
    }
    expectKnob(control(0), 63, "Blue.png", true);
    expectKnob(control(1), 4, "MonoStereoText.png", false);
    expectKnob(control(61), 4, "MonoStereoText.png", false);
    expectButton(control(-1000), "CMomentaryButton", "Help.png", "Help.png");
    EXPECT_EQ(valueText(-1000), "");
}

TEST_F(EditorLayout, EachSlotHasANameAndItsHotSpots) {
    const std::vector<CControl *> controls = controlsOf(root());
    std::size_t index = 28;
    for (int slot = 0; slot < 6; ++slot) {
        SCOPED_TRACE(slot);
        const int left = 120 * slot;
        const auto &name = dynamic_cast<CTextLabel &>(*controls.at(index++));
        expectLabel(name, rect(left + 17, 80, 112, 13), blue, slot < 4 ? white : grey);
        EXPECT_STREQ(name.getFont()->getFaceName().getString(), "Arial");
        EXPECT_EQ(name.getFont()->getHeight(), 10);
        EXPECT_TRUE(name.getFont()->isBold());
        EXPECT_FALSE(name.getFont()->isItalic());

        std::vector<std::pair<int, int>> hotSpots{{48 + left, 32 + slot}, {74 + left, 48 + slot}};
        if (slot < 5)
            hotSpots.insert(hotSpots.begin(), {100 + left, 16 + slot});
        if (slot > 0)
            hotSpots.insert(hotSpots.begin(), {22 + left, slot});
        for (const auto &[x, id] : hotSpots) {
            const auto &hotSpot = dynamic_cast<CTextLabel &>(*controls.at(index++));
            EXPECT_STREQ(hotSpot.getClass().getClassName(), "CClickableLabel");
            EXPECT_EQ(areaOf(hotSpot), rect(x, 96, 24, 24));
            EXPECT_EQ(hotSpot.getUniqueId(), id);
            EXPECT_EQ(hotSpot.getActionListener(), editor);
            EXPECT_EQ(textOf(hotSpot), "0");
            EXPECT_EQ(hotSpot.getTextColour(), transparent);
            EXPECT_EQ(hotSpot.getFrameColour(), transparent);
            EXPECT_EQ(hotSpot.getBackgroundColour(), transparent);
        }
    }
    EXPECT_EQ(controls.size(), index);
}

TEST_F(EditorLayout, TheDefaultFontIsSmall) {
    EXPECT_STREQ(CFont::getDefaultFont()->getFaceName().getString(), "Arial");
    EXPECT_EQ(CFont::getDefaultFont()->getHeight(), 10);
    EXPECT_FALSE(CFont::getDefaultFont()->isBold());
    EXPECT_FALSE(CFont::getDefaultFont()->isItalic());
    EXPECT_EQ(CFont::getDefaultFont()->getRecord().underline, 0);
    EXPECT_EQ(CFont::getDefaultFont()->getRecord().strikeOut, 0);
    EXPECT_EQ(valueLabel(5).getFont(), CFont::getDefaultFont());
    EXPECT_EQ(valueLabel(0).getFont(), CFont::getDefaultFont());
}

TEST_F(EditorLayout, TheHostIsToldTheSize) {
    ERect *size = nullptr;
    ASSERT_TRUE(editor->getRect(&size));
    EXPECT_EQ(size->right - size->left, 748);
    EXPECT_EQ(size->bottom - size->top, 370);
    EXPECT_EQ(editor->getWindowAttributes()->getBackgroundColour(),
              Tessitor::GUI::Basics::CColour(0, 0, 0));
}
