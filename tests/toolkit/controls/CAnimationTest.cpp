#include "toolkit/controls/CAnimation.h"

#include "CTemporaryFolder.h"
#include "PictureBytes.h"
#include "foundation/CBool.h"
#include "foundation/CLong.h"
#include "foundation/CXMLNode.h"
#include "toolkit/controls/CControlDescriptor.h"
#include "toolkit/controls/CRootTest.h"
#include "toolkit/controls/Properties.h"
#include "toolkit/graphics/SCanvas.h"
#include "toolkit/graphics/TargaBytes.h"
#include "toolkit/graphics/TestImage.h"

#include <cmath>
#include <limits>

namespace {

using Tessitor::Basics::CBool;
using Tessitor::Basics::CLong;
using Tessitor::GUI::Controls::CAnimation;
using Tessitor::GUI::Controls::CControlDescriptor;
using Tessitor::GUI::Controls::EDescriptorType;
using Tessitor::GUI::Graphics::CImageManager;
using Tessitor::IO::CXMLNode;
using testing::ElementsAre;

class CAnimationAlone : public CRootTest {
protected:
    CAnimation *make() {
        auto *made = new CAnimation(&root, 4, CRect(0, 0, 6, 2));
        root.addControl(made);
        return made;
    }
    /// Gives it a film whose frames are 6 by 2 pixels.
    void setFilm(int frames, bool isInverted = false) {
        animation->setPrimaryImage(new CTestImage(6, 2 * frames, false), 2, frames, isInverted);
    }
    /// The frame that is drawn for a value.
    int frameFor(double value) {
        animation->setValue(value);
        animation->drawControl(canvas.graphics);
        return animation->getFrameArea().getTop() / 2;
    }

    SCanvas canvas;
    CAnimation *animation = make();
};

TEST_F(CAnimationAlone, HasItsDefaults) {
    EXPECT_EQ(animation->getValue(), 0.0);
    EXPECT_FALSE(animation->isMouseEnabled());
    EXPECT_EQ(animation->getActionListener(), nullptr);
    EXPECT_EQ(animation->getUniqueId(), 4);
    EXPECT_EQ(animation->getFrameHeight(), 0);
    EXPECT_EQ(animation->getNumberOfFrames(), 0);
    EXPECT_EQ(textOf(animation->getFrameArea()), "0,0,0,0");
    EXPECT_FALSE(animation->isInverted());
    EXPECT_TRUE(animation->getClass() == "CAnimation");
    EXPECT_TRUE(animation->getClass().isTypeOf(Tessitor::Basics::CClass("CControl")));
}

TEST_F(CAnimationAlone, KeepsHowAnImageDividesIntoFrames) {
    setFilm(3, true);
    EXPECT_EQ(animation->getFrameHeight(), 2);
    EXPECT_EQ(animation->getNumberOfFrames(), 3);
    EXPECT_EQ(textOf(animation->getFrameArea()), "0,0,6,2");
    EXPECT_TRUE(animation->isInverted());
    animation->setPrimaryImage(nullptr, 7, 8, false);
    EXPECT_EQ(animation->getPrimaryImage(), nullptr);
    EXPECT_EQ(animation->getFrameHeight(), 2);
    EXPECT_EQ(animation->getNumberOfFrames(), 3);
    EXPECT_EQ(textOf(animation->getFrameArea()), "0,0,6,2");
    EXPECT_FALSE(animation->isInverted());
}

TEST_F(CAnimationAlone, TakesAFilmFromItsReference) {
    auto *image = new CTestImage(5, 12, false);
    CImageManager::CAnimationReference reference(image, "film", "{}", "film.tga", 3, 4);
    animation->setPrimaryImage(&reference, true);
    EXPECT_EQ(animation->getPrimaryImage(), image);
    EXPECT_EQ(textOf(animation->getFrameArea()), "0,0,5,3");
    EXPECT_EQ(animation->getNumberOfFrames(), 4);
    EXPECT_TRUE(animation->isInverted());
    animation->setPrimaryImage(nullptr, false);
    EXPECT_EQ(animation->getPrimaryImage(), nullptr);
    EXPECT_FALSE(animation->isInverted());
}

TEST_F(CAnimationAlone, TruncatesItsValueToAFrame) {
    setFilm(63);
    EXPECT_EQ(frameFor(0.0), 0);
    EXPECT_EQ(frameFor(0.5), 31);
    EXPECT_EQ(frameFor(std::nextafter(1.0, 0.0)), 61);
    EXPECT_EQ(frameFor(1.0), 62);
    setFilm(3);
    EXPECT_EQ(frameFor(0.5), 1);
    setFilm(11);
    EXPECT_EQ(frameFor(0.5), 5);
    setFilm(4);
    EXPECT_EQ(frameFor(2.0 / 3.0), 2);
    EXPECT_EQ(frameFor(std::nextafter(2.0 / 3.0, 0.0)), 1);
}

TEST_F(CAnimationAlone, CountsFramesFromTheEndIfInverted) {
    setFilm(4, true);
    EXPECT_EQ(frameFor(0.0), 3);
    EXPECT_EQ(frameFor(0.5), 1);
    EXPECT_EQ(frameFor(1.0), 0);
}

TEST_F(CAnimationAlone, WrapsFramesOutsideTheFilmOnce) {
    setFilm(4);
    EXPECT_EQ(frameFor(1.5), 0);
    EXPECT_EQ(frameFor(2.0), 2);
    setFilm(4, true);
    EXPECT_EQ(frameFor(1.5), 3);
}

TEST_F(CAnimationAlone, KeepsItsFrameForANegativeValue) {
    setFilm(4);
    EXPECT_EQ(frameFor(0.7), 2);
    EXPECT_EQ(frameFor(-0.1), 2);
}

TEST_F(CAnimationAlone, DrawsItsFrame) {
    setFilm(4);
    frameFor(0.7);
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 6; ++x)
            ASSERT_EQ(canvas.at(x, y), CTestImage::opaqueColourAt(x, 4 + y)) << x << "," << y;
    EXPECT_EQ(canvas.at(6, 0), SCanvas::background);
    EXPECT_EQ(canvas.at(0, 2), SCanvas::background);
}

TEST_F(CAnimationAlone, DrawsItsBackgroundWithoutAnImageOnlyIfAsked) {
    animation->drawControl(canvas.graphics);
    EXPECT_TRUE(canvas.isBlank());
    animation->setDefaultDrawing(true);
    animation->drawControl(canvas.graphics);
    EXPECT_EQ(canvas.at(0, 0), (SNativeColour{0, 0, 0}));
}

TEST_F(CAnimationAlone, DrawsOnlyItsDisabledImageWhileItIsDisabled) {
    setFilm(4);
    animation->disableControl();
    animation->drawControl(canvas.graphics);
    EXPECT_TRUE(canvas.isBlank());
    animation->setDisabledImage(new CTestImage(6, 2, false));
    animation->setValue(1.0);
    animation->drawControl(canvas.graphics);
    EXPECT_EQ(canvas.at(5, 1), CTestImage::opaqueColourAt(5, 1));
}

TEST_F(CAnimationAlone, DrawsNoFrameThatIsNotInTheImage) {
    setFilm(4);
    for (const int height : {0, 3}) {
        animation->setPrimaryImage(new CTestImage(6, 8, false), height, 4, false);
        animation->setValue(1.0);
        animation->drawControl(canvas.graphics);
    }
    EXPECT_TRUE(canvas.isBlank());
    animation->setValue(0.4);  // the second frame fits
    animation->drawControl(canvas.graphics);
    EXPECT_FALSE(canvas.isBlank());
}

TEST_F(CAnimationAlone, SurvivesAnyNumbers) {
    constexpr int least = std::numeric_limits<int>::min(), most = std::numeric_limits<int>::max();
    for (const bool hasAlpha : {false, true})
        for (const int height : {least, -1, 0, 1, most})
            for (const int frames : {least, -1, 0, 1, most})
                for (const double value : {0.0, 0.5, 1.0, 1e300, std::nan("")}) {
                    animation->setPrimaryImage(new CTestImage(6, 8, hasAlpha), height, frames,
                                               false);
                    frameFor(value);
                }
    EXPECT_EQ(canvas.at(6, 0), SCanvas::background);
    EXPECT_EQ(canvas.at(0, 2), SCanvas::background);
}

TEST_F(CAnimationAlone, ListsItsPropertiesAfterThoseOfEveryControl) {
    EXPECT_THAT(listOwnProperties(*animation), ElementsAre("Invert: 3", "Primary Image: 1"));
}

TEST_F(CAnimationAlone, ReadsAndSetsItsProperties) {
    EXPECT_TRUE(setProperty(*animation, "Invert", EDescriptorType::Boolean, new CBool(true)));
    EXPECT_TRUE(animation->isInverted());
    CControlDescriptor invert("Invert", EDescriptorType::Boolean);
    EXPECT_TRUE(animation->getDescriptorValue(invert));
    EXPECT_TRUE(invert.getValueAs<CBool>()->getValue());
    EXPECT_FALSE(setProperty(*animation, "Invert", EDescriptorType::Boolean, nullptr));

    // One that is not registered keeps the frames that are set.
    setFilm(3);
    auto *image = new CTestImage(6, 6, false);
    EXPECT_TRUE(setProperty(*animation, "Primary Image", EDescriptorType::Image, image));
    EXPECT_EQ(animation->getPrimaryImage(), image);
    EXPECT_EQ(animation->getNumberOfFrames(), 3);
    CControlDescriptor read("Primary Image", EDescriptorType::Image);
    EXPECT_TRUE(animation->getDescriptorValue(read));
    EXPECT_EQ(read.getValue(), image);
    EXPECT_FALSE(setProperty(*animation, "Primary Image", EDescriptorType::Image, new CBool(true)));

    EXPECT_TRUE(setProperty(*animation, "Control ID", EDescriptorType::Integer, new CLong(9)));
    EXPECT_EQ(animation->getUniqueId(), 9);
    CControlDescriptor id("Control ID", EDescriptorType::Integer);
    EXPECT_TRUE(animation->getDescriptorValue(id));
    EXPECT_EQ(id.getValueAs<CLong>()->getValue(), 9);
}

TEST_F(CAnimationAlone, FindsItsFramesAgainWhenItIsReadFromXml) {
    const CTemporaryFolder folder;
    CImageManager::start();
    CImageManager::setRootPath(folder.path().string().c_str());
    writeBytes((folder / "one.tga").string(), STarga().bytes());
    CImageManager::addAnimation("{}", "one.tga", "film", 1, 2);
    animation->setPrimaryImage(CImageManager::getAnimationReference("film"), true);
    CXMLNode node("control", nullptr);
    animation->serialiseToXml(&node);
    EXPECT_EQ(node.getNumberOfChildren(), 14);

    CAnimation *copy = make();
    EXPECT_TRUE(copy->serialiseFromXml(&node));
    EXPECT_EQ(copy->getPrimaryImage(), animation->getPrimaryImage());
    EXPECT_NE(copy->getPrimaryImage(), nullptr);
    EXPECT_EQ(copy->getFrameHeight(), 1);
    EXPECT_EQ(copy->getNumberOfFrames(), 2);
    EXPECT_TRUE(copy->isInverted());
    CImageManager::end();
}

}  // namespace
