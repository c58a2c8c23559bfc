// What becomes of a menu when something happens to the host's window below it.
#include "DrivenEditor.h"

namespace {

class DrivenHostOfMenu : public testing::TestWithParam<CDesktop::EWindowManager> {
protected:
    DrivenHostOfMenu() {
        driven.openInTinyWindow();
        openMenu();
    }

    void openMenu() {
        driven.clickAt({96, 40});
        EXPECT_EQ(desktop.countMenus(), 1);
    }
    void expectNoMenu() {
        driven.settle();
        EXPECT_EQ(desktop.countMenus(), 0);
        EXPECT_TRUE(desktop.isPointerFree());
        EXPECT_TRUE(desktop.isKeyboardFree());
    }
    void expectMenuOpensAgain() {
        driven.openInTinyWindow();
        openMenu();
        driven.close();
        expectNoMenu();
    }

    CDesktop desktop{GetParam()};
    CPluginFile file;
    FakeHost host;
    CEffectInHost driven{desktop, file};
};

TEST_P(DrivenHostOfMenu, IsMoved) {
    driven.settle();
    EXPECT_EQ(desktop.countMenus(), 1) << "it has not moved yet";
    desktop.moveHostWindow(driven.window(), CEffectInHost::lowerPlace);
    expectNoMenu();
    driven.close();
    expectMenuOpensAgain();
}

TEST_P(DrivenHostOfMenu, IsMinimised) {
    desktop.minimiseHostWindow(driven.window());
    expectNoMenu();
    driven.close();
    expectMenuOpensAgain();
}

TEST_P(DrivenHostOfMenu, IsDestroyed) {
    driven.destroyWindow();
    expectNoMenu();
    driven.effect.send(effEditClose);
    expectMenuOpensAgain();
}

TEST_P(DrivenHostOfMenu, ClosesTheEditor) {
    driven.effect.send(effEditClose);
    expectNoMenu();
    driven.destroyWindow();
    expectMenuOpensAgain();
}

INSTANTIATE_TEST_SUITE_P(Desktops, DrivenHostOfMenu, testing::ValuesIn(CDesktop::windowManagers()));

}  // namespace
