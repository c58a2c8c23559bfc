#include "toolkit/controls/CControlRoot.h"

#include "foundation/CException.h"
#include "toolkit/controls/CRootTest.h"
#include "toolkit/graphics/TestImage.h"

namespace {

using Tessitor::Collections::TCountedObjectDeleter;
using Tessitor::Collections::TTreeNode;
using Tessitor::Exceptions::CException;
using Tessitor::GUI::Controls::CControl;
using Tessitor::GUI::Controls::CControlRoot;
using testing::ElementsAre;
using testing::IsEmpty;

class CControlRootLists : public CRootTest {};

TEST_F(CControlRootLists, NeedsAWindow) {
    try {
        const CControlRoot orphan(nullptr);
        FAIL() << "nothing thrown";
    } catch (const CException &exception) {
        EXPECT_STREQ(exception.getErrorReason().getString(), "Parent window is NULL");
        EXPECT_STREQ(exception.getFunctionName().getString(),
                     "CControlRoot::CControlRoot(IWindow *)");
    }
    EXPECT_THROW(root.setParentWindow(nullptr), CException);
    EXPECT_EQ(root.getParentWindow(), &window);
    CFakeWindow other;
    root.setParentWindow(&other);
    EXPECT_EQ(root.getParentWindow(), &other);
    EXPECT_EQ(root.getRootWindow(), &other);
    EXPECT_EQ(textOf(root.getWindowOffset()), "0,0");
}

TEST_F(CControlRootLists, HoldsAReferenceToEachControlOnce) {
    const auto isDestroyed = std::make_shared<bool>(false);
    {
        CControlRoot other(&window);
        CSpyControl *control = add(other, "a", CRect());
        control->isDestroyed = isDestroyed;
        other.addControl(control);
        other.addControl(nullptr);
        EXPECT_EQ(other.getNumberOfInsertedControls(), 1);
        EXPECT_EQ(control->getReferenceCount(), 1);
        EXPECT_EQ(control->getParentControl(), nullptr);
    }
    EXPECT_TRUE(*isDestroyed);
}

TEST_F(CControlRootLists, KeepsTheHoleOfARemovedControl) {
    IControl *a = add(root, "a", CRect(0, 0, 10, 10));
    IControl *b = add(root, "b", CRect(0, 0, 10, 10));
    IControl *c = add(root, "c", CRect(0, 0, 10, 10));
    EXPECT_GE(root.getNumberOfControls(), 3);
    root.removeControl(b);
    root.removeControl(nullptr);
    EXPECT_EQ(root.getNumberOfInsertedControls(), 3);
    EXPECT_EQ(root.getControlAtIndex(1, true), nullptr);
    EXPECT_EQ(root.getControlIndex(c), 2);
    IControl *d = add(root, "d", CRect());
    EXPECT_EQ(root.getControlAtIndex(3, true), d);
    EXPECT_EQ(root.getNumberOfInsertedControls(), 4);
    root.removeControl(a);
    EXPECT_EQ(root.getControlAtPoint({5, 5}), c);
    EXPECT_EQ(root.getControlByDescription("d"), d);
    EXPECT_EQ(root.getControlByDescription("a"), nullptr);
}

TEST_F(CControlRootLists, ClearsAllControls) {
    const auto isDestroyed = std::make_shared<bool>(false);
    add(root, "a", CRect(0, 0, 10, 10))->isDestroyed = isDestroyed;
    root.clearControls();
    EXPECT_TRUE(*isDestroyed);
    EXPECT_EQ(root.getNumberOfControls(), 0);
    EXPECT_EQ(root.getNumberOfInsertedControls(), 0);
    EXPECT_EQ(root.getControlAtPoint({5, 5}), nullptr);
}

TEST_F(CControlRootLists, FindsControlsByPlaceOrId) {
    IControl *a = add(root, "a", CRect()), *b = add(root, "b", CRect());
    a->setUniqueId(1);
    b->setUniqueId(7);
    add(root, "c", CRect())->setUniqueId(7);
    EXPECT_EQ(root.getControlAtIndex(1, true), b);
    EXPECT_EQ(root.getControlAtIndex(1, false), a);
    EXPECT_EQ(root.getControlAtIndex(7, false), b);
    EXPECT_EQ(root.getControlAtIndex(-1, true), nullptr);
    EXPECT_EQ(root.getControlAtIndex(1000, true), nullptr);
    EXPECT_EQ(root.getControlAtIndex(1000, false), nullptr);
    EXPECT_EQ(root.getControlIndex(b), 1);
    EXPECT_TRUE(root.isControlAttached(b));
    root.removeControl(a);  // leaves a hole that null would be found in
    EXPECT_EQ(root.getControlIndex(nullptr), -1);
    EXPECT_FALSE(root.isControlAttached(nullptr));
    EXPECT_EQ(root.getControlIndex(a), -1);
}

TEST_F(CControlRootLists, KeepsExtraControlsApart) {
    const auto isDestroyed = std::make_shared<bool>(false);
    auto *extra = new CSpyControl(&root, "extra", CRect(0, 0, 10, 10), log);
    extra->isDestroyed = isDestroyed;
    root.addExtraControl(extra);
    root.addExtraControl(extra);
    root.addExtraControl(nullptr);
    EXPECT_EQ(extra->getReferenceCount(), 1);
    EXPECT_EQ(root.getExtraControl(extra), extra);
    EXPECT_EQ(root.getExtraControl(nullptr), nullptr);
    EXPECT_FALSE(root.isControlAttached(extra));
    press(5, 5);
    EXPECT_THAT(takeLog(), IsEmpty());
    root.removeExtraControl(nullptr);
    EXPECT_FALSE(*isDestroyed);
    root.removeExtraControl(extra);
    EXPECT_TRUE(*isDestroyed);
    EXPECT_EQ(root.getExtraControl(extra), nullptr);
}

TEST_F(CControlRootLists, FindsTheFirstControlThatTakesAnEvent) {
    const CRect area(0, 0, 10, 10);
    IControl *plain = add(root, "plain", area);
    plain->setMouseEnabled(false);
    IControl *mouseControl = add(root, "mouse", area), *keys = add(root, "keys", area),
             *drops = add(root, "drops", area);
    keys->setKeyboardEnabled(true);
    drops->setDropFileEnabled(true);
    const CPoint inside(10, 10), outside(11, 10);
    EXPECT_EQ(root.getControlAtPoint(inside), plain);
    EXPECT_EQ(root.getMouseEnabledControlAtPoint(inside), mouseControl);
    EXPECT_EQ(root.getKeyEnabledControlAtPoint(inside), keys);
    EXPECT_EQ(root.getDropFileControlAtPoint(inside), drops);
    EXPECT_EQ(root.getControlAtPoint(outside), nullptr);
    EXPECT_EQ(root.getMouseEnabledControlAtPoint(outside), nullptr);
    EXPECT_EQ(root.getKeyEnabledControlAtPoint(outside), nullptr);
    EXPECT_EQ(root.getDropFileControlAtPoint(outside), nullptr);
}

TEST_F(CControlRootLists, RedrawsAControlByItsIdOrAddress) {
    IControl *control = add(root, "a", CRect(1, 2, 3, 4));
    control->setUniqueId(9);
    root.updateControl(9);
    root.updateControl(control);
    root.updateControl(10);
    root.updateControl(nullptr);
    root.updateArea(CRect(5, 6, 7, 8));
    EXPECT_THAT(takeRedrawnAreas(), ElementsAre("1,2,3,4", "1,2,3,4", "5,6,7,8"));
}

TEST_F(CControlRootLists, TellsWhereAControlIsInTheWindowAndOnTheScreen) {
    window.setWindowPosition({1000, 2000});
    IControl *control = add(root, "a", CRect(1, 2, 3, 4));
    CPoint point;
    root.getWindowCoordinatesOfControl(control, point);
    EXPECT_EQ(textOf(point), "1,2");
    root.getGlobalCoordinatesOfControl(control, point);
    EXPECT_EQ(textOf(point), "1001,2002");
    root.getGlobalCoordinatesOfControl(nullptr, point);
    root.getWindowCoordinatesOfControl(nullptr, point);
    EXPECT_EQ(textOf(point), "1001,2002");
}

TEST_F(CControlRootLists, RedrawsWhereAModalControlComesAndGoes) {
    const auto isDestroyed = std::make_shared<bool>(false);
    auto *first = new CSpyControl(&root, "first", CRect(1, 1, 1, 1), log);
    auto *second = new CSpyControl(&root, "second", CRect(2, 2, 2, 2), log);
    first->isDestroyed = isDestroyed;
    root.clearModalControl();
    root.setModalControl(first);
    EXPECT_EQ(root.getModalControl(), first);
    root.setModalControl(second);
    EXPECT_TRUE(*isDestroyed);
    root.setModalControl(nullptr);
    EXPECT_EQ(root.getModalControl(), nullptr);
    EXPECT_THAT(takeRedrawnAreas(), ElementsAre("1,1,1,1", "1,1,1,1", "2,2,2,2", "2,2,2,2"));
}

TEST_F(CControlRootLists, KeepsAModalControlThatIsSetAgain) {
    const auto isDestroyed = std::make_shared<bool>(false);
    auto *modal = new CSpyControl(&root, "modal", CRect(), log);
    modal->isDestroyed = isDestroyed;
    root.setModalControl(modal);
    root.setModalControl(modal);
    EXPECT_EQ(root.getModalControl(), modal);
    EXPECT_FALSE(*isDestroyed);
    EXPECT_EQ(modal->getReferenceCount(), 1);
    root.clearModalControl();
    EXPECT_TRUE(*isDestroyed);
}

TEST_F(CControlRootLists, ConnectsAControlOfTheRightClass) {
    CActionSpy listener;
    CSpyControl *control = add(root, "knob", CRect());
    CControlPanel *panel = addPanel(root, CRect());
    panel->setDescription("panel");
    const Tessitor::Basics::CClass &anyControl = control->getClass(), &anyPanel = panel->getClass();
    EXPECT_EQ(root.connectControl("knob", 12, &listener, anyPanel), nullptr);
    EXPECT_EQ(root.connectControl("button", 12, &listener, anyControl), nullptr);
    EXPECT_EQ(control->getActionListener(), nullptr);
    EXPECT_EQ(control->getUniqueId(), 0);
    EXPECT_EQ(root.connectControl("knob", 12, &listener, anyControl), control);
    EXPECT_EQ(control->getActionListener(), &listener);
    EXPECT_EQ(control->getUniqueId(), 12);
    EXPECT_EQ(root.connectControl("panel", 13, nullptr, anyControl),
              static_cast<IControl *>(panel));
}

TEST_F(CControlRootLists, BuildsATreeOfControlsAndPanels) {
    IControl *a = add(root, "a", CRect());
    IControl *removed = add(root, "removed", CRect());
    CControlPanel *panel = addPanel(root, CRect());
    IControl *inside = add(*panel, "inside", CRect());
    root.removeControl(removed);
    root.createTree(nullptr);

    auto *tree = new TTreeNode<IControl>(TCountedObjectDeleter<IControl>::getStaticDeleter());
    tree->reference();
    root.createTree(tree);
    EXPECT_EQ(tree->getValue(), nullptr);
    ASSERT_EQ(tree->getChildren().getInsertIndex(), 2);
    TTreeNode<IControl> *first = tree->getChildren().elementAtIndex(0);
    TTreeNode<IControl> *second = tree->getChildren().elementAtIndex(1);
    EXPECT_EQ(first->getValue(), a);
    EXPECT_EQ(first->getParent(), tree);
    EXPECT_EQ(first->getChildren().getInsertIndex(), 0);
    EXPECT_EQ(second->getValue(), static_cast<IControl *>(panel));
    ASSERT_EQ(second->getChildren().getInsertIndex(), 1);
    EXPECT_EQ(second->getChildren().elementAtIndex(0)->getValue(), inside);
    EXPECT_EQ(second->getChildren().elementAtIndex(0)->getParent(), second);
    EXPECT_EQ(a->getReferenceCount(), 2);
    second->getChildren().clearArray();
    tree->getChildren().clearArray();
    tree->dereference();
}

TEST_F(CControlRootLists, SharesItsBackgroundImage) {
    auto *image = new CTestImage(4, 4, false);
    root.setBackgroundImage(image);
    EXPECT_EQ(root.getBackgroundImage(), image);
    EXPECT_EQ(image->getReferenceCount(), 1);
    image->reference();
    root.setBackgroundImage(nullptr);
    EXPECT_EQ(image->getReferenceCount(), 1);
    image->dereference();
}

}  // namespace
