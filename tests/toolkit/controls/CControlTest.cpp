#include "toolkit/controls/CControl.h"

#include "foundation/CException.h"
#include "toolkit/controls/CRootTest.h"
#include "toolkit/events/CActionEvent.h"
#include "toolkit/graphics/SCanvas.h"
#include "toolkit/graphics/TestImage.h"

namespace {

using Tessitor::Exceptions::CException;
using Tessitor::GUI::Basics::CAlphaColour;
using Tessitor::GUI::Controls::CControl;
using testing::ElementsAre;

class CControlAlone : public CRootTest {
protected:
    ~CControlAlone() override { control->dereference(); }

    CControl *make(const CRect &area) {
        auto *made = new CControl(&root, 5, area, &listener);
        made->reference();
        return made;
    }

    CActionSpy listener;
    CControl *control = make(CRect(10, 20, 30, 40));
};

TEST_F(CControlAlone, HasItsDefaults) {
    EXPECT_EQ(control->getControlRoot(), &root);
    EXPECT_EQ(control->getParentControl(), nullptr);
    EXPECT_EQ(control->getActionListener(), &listener);
    EXPECT_TRUE(control->isMouseEnabled());
    EXPECT_FALSE(control->isKeyboardEnabled());
    EXPECT_FALSE(control->isDropFileEnabled());
    EXPECT_FALSE(control->isFocused());
    EXPECT_FALSE(control->reservedInputQuery());
    EXPECT_FALSE(control->reservedAreaQuery());
    EXPECT_TRUE(control->isEnabled());
    EXPECT_FALSE(control->isDefaultDrawing());
    EXPECT_FALSE(control->isTransient());
    EXPECT_EQ(control->getUniqueId(), 5);
    EXPECT_STREQ(control->getDescription().getString(), "Control");
    EXPECT_EQ(control->getValue(), 1.0);
    EXPECT_EQ(textOf(control->getArea()), "10,20,30,40");
    EXPECT_EQ(textOf(control->getAbsoluteRect()), "10,20,30,40");
    EXPECT_EQ(textOf(control->getNormalisedArea()), "0,0,30,40");
    EXPECT_EQ(control->getDimension().getWidth(), 30);
    EXPECT_EQ(control->getDimension().getHeight(), 40);
    EXPECT_EQ(control->getPrimaryImage(), nullptr);
    EXPECT_EQ(control->getDisabledImage(), nullptr);
    EXPECT_EQ(control->getFrameColour(), CAlphaColour(0, 0, 0));
    EXPECT_EQ(control->getBackgroundColour(), CAlphaColour(255, 255, 255));
    EXPECT_TRUE(control->getClass() == "CControl");
}

TEST_F(CControlAlone, NeedsARoot) {
    const auto expectThrow = [](const auto &call) {
        try {
            call();
            FAIL() << "nothing thrown";
        } catch (const CException &exception) {
            EXPECT_STREQ(exception.getErrorReason().getString(), "Control root is null");
            EXPECT_STREQ(exception.getFunctionName().getString(),
                         "CControl::setControlRoot(IControlRoot *)");
        }
    };
    expectThrow([&] { control->setControlRoot(nullptr); });
    expectThrow([] { const CControl orphan(nullptr, 0, CRect(), nullptr); });
    EXPECT_EQ(control->getControlRoot(), &root);
}

TEST_F(CControlAlone, KeepsWhatIsSet) {
    control->setMouseEnabled(false);
    control->setKeyboardEnabled(true);
    control->setDropFileEnabled(true);
    control->setTransient(true);
    control->setUniqueId(-8);
    control->setDescription("Gain");
    control->setValue(-3.5);
    control->registerActionListener(nullptr);
    control->reservedHook();
    EXPECT_FALSE(control->isMouseEnabled());
    EXPECT_TRUE(control->isKeyboardEnabled());
    EXPECT_TRUE(control->isDropFileEnabled());
    EXPECT_TRUE(control->isTransient());
    EXPECT_EQ(control->getUniqueId(), -8);
    EXPECT_STREQ(control->getDescription().getString(), "Gain");
    EXPECT_EQ(control->getValue(), -3.5);
    EXPECT_EQ(control->getActionListener(), nullptr);
    char text[8];
    control->getObjectDescription(text, sizeof text);
    EXPECT_STREQ(text, "Gain");
}

TEST_F(CControlAlone, KeepsAllItsAreasInStep) {
    control->setArea(CRect(1, 2, 3, 4));
    EXPECT_EQ(textOf(control->getArea()), "1,2,3,4");
    EXPECT_EQ(textOf(control->getAbsoluteRect()), "1,2,3,4");
    EXPECT_EQ(textOf(control->getNormalisedArea()), "0,0,3,4");
    EXPECT_EQ(control->getDimension().getWidth(), 3);
    EXPECT_EQ(control->getDimension().getHeight(), 4);
    EXPECT_THAT(takeRedrawnAreas(), testing::IsEmpty());
    control->update();
    EXPECT_THAT(takeRedrawnAreas(), ElementsAre("1,2,3,4"));
}

TEST_F(CControlAlone, DoesNothingWithEvents) {
    control->handleLeftButtonDown(event);
    control->handleLeftButtonUp(event);
    control->handleRightButtonDown(event);
    control->handleRightButtonUp(event);
    control->handleDoubleClick(event);
    control->handleMouseScroll(event);
    control->handleMouseMovement(event);
    control->handleMouseLeaving(event);
    const Tessitor::GUI::Events::CKeyboardEvent key;
    EXPECT_FALSE(control->handleKeyDown(key));
    EXPECT_FALSE(control->handleKeyUp(key));
    control->handleFileDrop(Tessitor::GUI::Events::CDropEvent({0, 0}));
    EXPECT_EQ(control->getValue(), 1.0);
    EXPECT_FALSE(root.controlIsLocked());
    EXPECT_THAT(takeRedrawnAreas(), testing::IsEmpty());
}

TEST_F(CControlAlone, SharesItsImages) {
    auto *image = new CTestImage(4, 4, false);
    control->setPrimaryImage(image);
    control->setPrimaryImage(image);
    control->setDisabledImage(image);
    EXPECT_EQ(image->getReferenceCount(), 2);
    EXPECT_EQ(control->getPrimaryImage(), image);
    EXPECT_EQ(control->getDisabledImage(), image);
    control->setPrimaryImage(nullptr);
    EXPECT_EQ(image->getReferenceCount(), 1);
}

TEST_F(CControlAlone, ReportsToItsListener) {
    CSpyControl *sender = add(root, "a", CRect());
    sender->sendActionEvent();  // has no listener
    sender->sendActionEvent(event);
    int calls = 0;
    bool isShiftDown = false;
    listener.onAction = [&](const Tessitor::GUI::Events::CActionEvent &action) {
        ++calls;
        isShiftDown = action.isShiftDown();
        EXPECT_EQ(action.getSender(), sender);
    };
    sender->registerActionListener(&listener);
    event.setModifiers(false, true, false);
    sender->sendActionEvent();
    EXPECT_FALSE(isShiftDown);
    sender->sendActionEvent(event);
    EXPECT_TRUE(isShiftDown);
    EXPECT_EQ(calls, 2);
}

// Drawing

constexpr SNativeColour red{255, 0, 0}, blue{0, 0, 255};

TEST_F(CControlAlone, DrawsNothingUnlessAsked) {
    SCanvas canvas;
    control->drawControl(canvas.graphics);
    control->drawPrimaryImage(canvas.graphics, false);
    control->drawImage(canvas.graphics);
    EXPECT_TRUE(control->drawEnabledControl(canvas.graphics));
    control->disableControl();
    EXPECT_FALSE(control->drawEnabledControl(canvas.graphics));
    control->enableControl();
    EXPECT_TRUE(control->drawEnabledControl(canvas.graphics));
    EXPECT_TRUE(canvas.isBlank());
}

TEST_F(CControlAlone, DrawsBackgroundAndFrameWithoutAnImage) {
    SCanvas canvas(false);
    control->setArea(CRect(100, 100, 8, 6));
    control->setDefaultControlColours({255, 0, 0}, {0, 0, 255});
    control->drawPrimaryImage(canvas.graphics, true);
    EXPECT_EQ(canvas.at(0, 0), blue);
    EXPECT_EQ(canvas.at(7, 5), blue);
    EXPECT_EQ(canvas.at(1, 1), red);
    EXPECT_EQ(canvas.at(6, 4), red);
    EXPECT_EQ(canvas.at(8, 3), SCanvas::background);
    EXPECT_EQ(canvas.at(3, 6), SCanvas::background);
}

TEST_F(CControlAlone, DrawsItsPrimaryImageInsteadOfTheBackground) {
    SCanvas canvas;
    control->setArea(CRect(100, 100, 8, 6));
    control->setPrimaryImage(new CTestImage(8, 6, false));
    control->drawPrimaryImage(canvas.graphics, true);
    EXPECT_EQ(canvas.at(0, 0), CTestImage::opaqueColourAt(0, 0));
    EXPECT_EQ(canvas.at(7, 5), CTestImage::opaqueColourAt(7, 5));
    EXPECT_EQ(canvas.at(8, 5), SCanvas::background);
}

TEST_F(CControlAlone, ScalesAnImageToItsArea) {
    SCanvas canvas;
    control->setArea(CRect(0, 0, 16, 12));
    control->setPrimaryImage(new CTestImage(8, 6, false));
    control->drawImage(canvas.graphics);
    EXPECT_EQ(canvas.at(0, 0), CTestImage::opaqueColourAt(0, 0));
    EXPECT_EQ(canvas.at(15, 11), CTestImage::opaqueColourAt(7, 5));
}

TEST_F(CControlAlone, DrawsItsDisabledImageWhileItIsDisabled) {
    SCanvas canvas;
    control->setArea(CRect(0, 0, 8, 6));
    control->setDisabledImage(new CTestImage(8, 6, false));
    EXPECT_TRUE(control->drawEnabledControl(canvas.graphics));
    EXPECT_TRUE(canvas.isBlank());
    control->disableControl();
    EXPECT_FALSE(control->drawEnabledControl(canvas.graphics));
    EXPECT_EQ(canvas.at(7, 5), CTestImage::opaqueColourAt(7, 5));
}

}  // namespace
