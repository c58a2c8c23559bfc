// What opening and closing leaves behind.
#include "DrivenEditor.h"
#include "MemoryInUse.h"

namespace {

using Layout::EHotSpot;

class DrivenManyOpenings : public DrivenEffect {
protected:
    /// Opens the editor, works with a knob and a menu, and closes it.
    void openAndClose(int times) {
        for (int i = 0; i < times; ++i) {
            driven.open();
            driven.turnWheelAt({40, 40}, i % 2 == 0 ? 1 : -1);
            driven.clickHotSpot(EHotSpot::Insert, 0);
            EXPECT_EQ(desktop->countMenus(), 1);
            driven.close();
            host.forgetCalls();
        }
        desktop->settle([] {});
    }
};

TEST_F(DrivenManyOpenings, LeaveNothingBehind) {
    constexpr int times = 200;
    openAndClose(times / 4);  // the first ones also create what the process keeps
    const CDesktop::Resources resources = desktop->countResources();
    const std::size_t heap = memoryInUse();
    openAndClose(times);
    EXPECT_LT(memoryInUse(), heap + times * std::size_t{16});  // not the smallest piece for each
    EXPECT_TRUE(desktop->willHave(resources))
        << testing::PrintToString(desktop->countResources()) << " instead of "
        << testing::PrintToString(resources);
}

}  // namespace
