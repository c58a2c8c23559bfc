#include "toolkit/events/CDropEvent.h"

#include <gtest/gtest.h>

using Tessitor::Basics::CString;
using Tessitor::GUI::Events::CDropEvent;
using Tessitor::MathTools::CPoint;

namespace {

TEST(CDropEvent, KeepsFilesAndPosition) {
    CDropEvent event({7, 8});
    EXPECT_EQ(event.getNumberOfFiles(), 0);
    EXPECT_EQ(event.getFilename(0), nullptr);
    event.addFilename(new CString("first"));
    event.addFilename(nullptr);
    event.addFilename(new CString("second"));
    EXPECT_EQ(event.getNumberOfFiles(), 2);
    EXPECT_STREQ(event.getFilename(0)->getString(), "first");
    EXPECT_STREQ(event.getFilename(1)->getString(), "second");
    EXPECT_EQ(event.getFilename(2), nullptr);
    EXPECT_EQ(event.getFilename(-1), nullptr);
    EXPECT_EQ(event.getPosition(), CPoint(7, 8));
    EXPECT_TRUE(event.getClass() == "CDropEvent");
}

TEST(CDropEvent, SharesItsFilesWithACopyElsewhere) {
    auto *name = new CString("file");
    name->reference();
    {
        CDropEvent event({7, 8});
        event.addFilename(name);
        const CDropEvent moved(event, {1, 2});
        EXPECT_EQ(moved.getFilename(0), name);
        EXPECT_EQ(moved.getNumberOfFiles(), 1);
        EXPECT_EQ(moved.getPosition(), CPoint(1, 2));
        EXPECT_EQ(name->getReferenceCount(), 3);
    }
    EXPECT_EQ(name->getReferenceCount(), 1);
    name->dereference();
}

}  // namespace
