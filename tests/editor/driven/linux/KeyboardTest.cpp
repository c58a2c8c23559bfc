#include "editor/driven/DrivenEditor.h"

namespace {

class DrivenMenu : public testing::TestWithParam<CDesktop::EWindowManager> {};

TEST_P(DrivenMenu, LeavesTheKeyboardToTheHost) {
    CDesktop desktop(GetParam());
    const CPluginFile file;
    const FakeHost host;
    CEffectInHost driven(desktop, file);
    driven.open();
    driven.clickAt({96, 40});
    ASSERT_EQ(desktop.countMenus(), 1);
    EXPECT_TRUE(desktop.hasKeyboard(driven.window()));
    EXPECT_TRUE(desktop.isKeyboardFree());
    desktop.takeKeys(driven.window());
    desktop.typeSpace();
    driven.settle();
    EXPECT_EQ(desktop.takeKeys(driven.window()), 1);
    driven.close();
    EXPECT_TRUE(desktop.isPointerFree());
}

INSTANTIATE_TEST_SUITE_P(Desktops, DrivenMenu, testing::ValuesIn(CDesktop::windowManagers()));

}  // namespace
