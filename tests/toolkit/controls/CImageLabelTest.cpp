#include "toolkit/controls/CImageLabel.h"

#include "CTemporaryFolder.h"
#include "PictureBytes.h"
#include "toolkit/controls/CRootTest.h"
#include "toolkit/graphics/SCanvas.h"
#include "toolkit/graphics/TargaBytes.h"
#include "toolkit/graphics/TestImage.h"

namespace {

using Tessitor::Basics::CString;
using Tessitor::GUI::Controls::CImageLabel;
using Tessitor::GUI::Events::CDropEvent;
using testing::ElementsAre;

class CImageLabelTest : public CRootTest {
protected:
    CImageLabelTest() { root.addControl(label); }

    void dropFile(const std::string &name) {
        CDropEvent dropped(CPoint(1, 1));
        dropped.addFilename(new CString(name.c_str()));
        dropped.addFilename(new CString("second.tga"));
        label->handleFileDrop(dropped);
    }

    CValueLog actions;
    SCanvas canvas;
    CImageLabel *label = new CImageLabel(&root, 4, CRect(0, 0, 8, 6), &actions);
};

TEST_F(CImageLabelTest, HasItsDefaults) {
    EXPECT_TRUE(label->isMouseEnabled());
    EXPECT_FALSE(label->isDropFileEnabled());
    EXPECT_EQ(label->getActionListener(), &actions);
    EXPECT_TRUE(label->getClass() == "CImageLabel");
    EXPECT_TRUE(label->getClass().isTypeOf(Tessitor::Basics::CClass("CControl")));
}

TEST_F(CImageLabelTest, ShowsAndReportsADroppedImage) {
    const CTemporaryFolder folder;
    const std::string name = (folder / "one.tga").string();
    writeBytes(name, STarga().bytes());
    dropFile(name);
    EXPECT_EQ(label->getPrimaryImage(), nullptr);  // drops are not enabled
    label->setDropFileEnabled(true);
    dropFile(name);
    ASSERT_NE(label->getPrimaryImage(), nullptr);
    EXPECT_TRUE(label->getPrimaryImage()->hasImageLoaded());
    EXPECT_EQ(label->getPrimaryImage()->getReferenceCount(), 1);
    EXPECT_EQ(actions.take().size(), 1u);
    EXPECT_THAT(takeRedrawnAreas(), ElementsAre("0,0,8,6"));

    const auto *shown = label->getPrimaryImage();
    label->handleFileDrop(CDropEvent(CPoint(1, 1)));
    EXPECT_EQ(label->getPrimaryImage(), shown);
    EXPECT_THAT(actions.take(), testing::IsEmpty());
    EXPECT_THAT(takeRedrawnAreas(), testing::IsEmpty());
}

TEST_F(CImageLabelTest, ShowsNothingAfterADropOfAnythingElse) {
    label->setDropFileEnabled(true);
    for (const char *name : {"missing.tga", "text.txt", ""}) {
        label->setPrimaryImage(new CTestImage(8, 6, false));
        dropFile(name);
        EXPECT_EQ(label->getPrimaryImage(), nullptr);
        EXPECT_EQ(actions.take().size(), 1u);
        EXPECT_THAT(takeRedrawnAreas(), ElementsAre("0,0,8,6"));
    }
}

TEST_F(CImageLabelTest, FramesItsImageIfAsked) {
    label->drawControl(canvas.graphics);
    EXPECT_TRUE(canvas.isBlank());
    label->setPrimaryImage(new CTestImage(8, 6, false));
    label->drawControl(canvas.graphics);
    EXPECT_EQ(canvas.at(0, 0), CTestImage::opaqueColourAt(0, 0));
    label->setDefaultDrawing(true);
    label->setDefaultControlColours({0, 0, 0}, {255, 0, 0});
    label->drawControl(canvas.graphics);
    EXPECT_EQ(canvas.at(0, 0), (SNativeColour{255, 0, 0}));
    EXPECT_EQ(canvas.at(7, 5), (SNativeColour{255, 0, 0}));
    EXPECT_EQ(canvas.at(1, 1), CTestImage::opaqueColourAt(1, 1));
}

TEST_F(CImageLabelTest, DrawsNothingWhileItIsDisabled) {
    label->setDefaultDrawing(true);
    label->disableControl();
    label->drawControl(canvas.graphics);
    EXPECT_TRUE(canvas.isBlank());
}

}  // namespace
