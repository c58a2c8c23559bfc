#include "editor/driven/DrivenEditor.h"

#include <fstream>

namespace {

/// @return how many times this thread has written to a file or connection.
long countWrites() {
    std::ifstream counters("/proc/thread-self/io");
    std::string name;
    for (long count = 0; counters >> name >> count;)
        if (name == "syscw:")
            return count;
    throw std::runtime_error("the kernel does not count");
}

class DrivenIdle : public DrivenEditor {
protected:
    /// @return how many times idle calls of the editor write to the X server.
    long writesOfIdles() {
        const long before = countWrites();
        for (int i = 0; i < 100; ++i)
            driven.idle();
        return countWrites() - before;
    }
};

TEST_F(DrivenIdle, NeitherPaintsNorSendsAnything) {
    driven.settle();
    EXPECT_EQ(writesOfIdles(), 0);
    driven.moveTo({40, 40});
    EXPECT_EQ(writesOfIdles(), 0);
}

TEST_F(DrivenIdle, PaintsAChangeOnce) {
    driven.settle();
    driven.effect.setParameter(kInGain, 0.9f);
    const long painting = writesOfIdles();
    EXPECT_GT(painting, 0);
    EXPECT_LT(painting, 10);
    EXPECT_EQ(writesOfIdles(), 0);
}

}  // namespace
