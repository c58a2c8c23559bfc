// Hosts keep the keyboard, whatever users do with the mouse in the editor: the space bar starts and
// stops the music.
#include "DrivenEditor.h"

namespace {

using Layout::EHotSpot;

class DrivenKeyboard : public testing::TestWithParam<CDesktop::EWindowManager> {
protected:
    DrivenKeyboard() { driven.open(); }
    ~DrivenKeyboard() override { driven.effect.send(effEditClose); }

    void expectTheHostHearsKeys() {
        EXPECT_TRUE(desktop.hasKeyboard(driven.window()));
        desktop.takeKeys(driven.window());
        desktop.typeSpace();
        driven.settle();
        EXPECT_EQ(desktop.takeKeys(driven.window()), 1);
        EXPECT_TRUE(desktop.isPointerFree());
        EXPECT_TRUE(desktop.isKeyboardFree());
    }

    CDesktop desktop{GetParam()};
    CPluginFile file;
    FakeHost host;
    CEffectInHost driven{desktop, file};
};

TEST_P(DrivenKeyboard, StaysWithTheHostWhenTheEditorOpens) {
    expectTheHostHearsKeys();
}

TEST_P(DrivenKeyboard, StaysWithTheHostAfterClicks) {
    driven.clickAt(Layout::empty);
    expectTheHostHearsKeys();
    driven.clickAt({40, 40});
    expectTheHostHearsKeys();
    driven.doubleClickAt({40, 40});
    expectTheHostHearsKeys();
}

TEST_P(DrivenKeyboard, StaysWithTheHostAfterADragAndTheWheel) {
    driven.drag({40, 40}, 10, 200);
    expectTheHostHearsKeys();
    driven.turnWheelAt({40, 40}, 2);
    expectTheHostHearsKeys();
}

TEST_P(DrivenKeyboard, IsTheHostsAfterAMenu) {
    driven.chooseModule(EHotSpot::Insert, 5, 2);
    expectTheHostHearsKeys();
    driven.clickAt({96, 40});
    driven.clickAt(Layout::empty);
    EXPECT_EQ(desktop.countMenus(), 0);
    expectTheHostHearsKeys();
}

TEST_P(DrivenKeyboard, IsTheHostsAfterTheEditorIsClosedWithAMenu) {
    driven.clickAt({96, 40});
    driven.effect.send(effEditClose);
    driven.settle();
    expectTheHostHearsKeys();
}

INSTANTIATE_TEST_SUITE_P(Desktops, DrivenKeyboard, testing::ValuesIn(CDesktop::windowManagers()));

}  // namespace
