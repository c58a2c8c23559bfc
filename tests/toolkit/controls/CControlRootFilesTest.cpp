#include "CTemporaryFolder.h"
#include "foundation/CXMLNode.h"
#include "foundation/ReadFile.h"
#include "foundation/Trace.h"
#include "toolkit/controls/CRootTest.h"

#include <fstream>

namespace {

using Tessitor::Basics::CString;
using Tessitor::Basics::CSystemString;
using Tessitor::GUI::Controls::CControl;
using Tessitor::GUI::Controls::CControlRoot;
using Tessitor::GUI::Controls::IControl;
using Tessitor::GUI::Controls::IControlFactory;
using Tessitor::GUI::Controls::IControlRoot;
using Tessitor::IO::CXMLAttribute;
using Tessitor::IO::CXMLNode;
using Tessitor::IO::openTrace;
using Tessitor::MathTools::CRect;

/// Creates spies in place of plain controls.
class CSpyFactory : public IControlFactory {
public:
    explicit CSpyFactory(EventLog &log) : m_log(log) {}
    IControl *createControl(const CString &className, IControlRoot *root) const override {
        m_log.push_back(className.getString());
        if (className != "CControl")
            return Tessitor::GUI::Controls::standardControlFactory().createControl(className, root);
        auto *control = new CSpyControl(root, "", CRect(), m_log);
        control->isDestroyed = isDestroyed;
        return control;
    }

    std::shared_ptr<bool> isDestroyed;  // for the controls

private:
    EventLog &m_log;
};

class CControlRootFiles : public CRootTest {
protected:
    ~CControlRootFiles() override { openTrace(""); }

    /// Writes a file of these lines.
    void write(const std::string &lines) {
        std::ofstream(path.getString(), std::ios::binary) << "<?xml version=\"1.0\"?>\n" << lines;
    }

    CTemporaryFolder folder;
    CSystemString path{(folder / "layout.xml").string().c_str()};
    CControlRoot loaded{&window};
};

TEST_F(CControlRootFiles, SaveAndLoadPanelsWithinPanels) {
    CControlPanel *outer = addPanel(root, CRect(10, 20, 200, 200));
    outer->setDescription("outer");
    outer->setUniqueId(5);
    CControlPanel *inner = addPanel(*outer, CRect(1, 2, 3, 4));
    inner->setDescription("inner");
    inner->disableControl();
    addPanel(root, CRect())->setTransient(true);
    root.removeControl(addPanel(root, CRect()));
    addPanel(root, CRect())->setDescription("last");
    ASSERT_TRUE(root.saveToFile(path));
    ASSERT_TRUE(loaded.loadFromFile(path));

    EXPECT_EQ(loaded.getNumberOfInsertedControls(), 2);
    IControl *control = loaded.getControlByDescription("outer");
    auto *panel = dynamic_cast<CControlPanel *>(control);
    ASSERT_NE(panel, nullptr);
    EXPECT_EQ(panel->getReferenceCount(), 1);
    EXPECT_EQ(panel->getControlRoot(), &loaded);
    EXPECT_EQ(panel->getParentWindow(), &window);
    EXPECT_EQ(panel->getUniqueId(), 5);
    EXPECT_EQ(panel->getNumberOfInsertedControls(), 1);
    IControl *child = panel->getControlByDescription("inner");
    ASSERT_NE(child, nullptr);
    EXPECT_EQ(textOf(child->getAbsoluteRect()), "11,22,3,4");
    EXPECT_EQ(child->getParentControl(), control);
    EXPECT_FALSE(dynamic_cast<CControlPanel *>(child)->isEnabled());
    EXPECT_NE(loaded.getControlByDescription("last"), nullptr);
}

TEST_F(CControlRootFiles, WriteTheNumberAndTheClassOfTheControls) {
    add(root, "a", CRect());
    addPanel(root, CRect());
    CXMLNode node("controls", nullptr);
    root.serialiseToXml(&node);
    root.serialiseToXml(nullptr);
    EXPECT_EQ(node.getAttribute("number_of_controls")->getValueAsInt(), 2);
    ASSERT_EQ(node.getNumberOfChildren(), 2);
    EXPECT_STREQ(node.getChild(0)->getName().getString(), "control");
    EXPECT_STREQ(node.getChild(0)->getAttribute("type")->getValue().getString(), "CControl");
    EXPECT_STREQ(node.getChild(1)->getAttribute("type")->getValue().getString(), "CControlPanel");
    EXPECT_STREQ(node.getChild(1)->getChild("controls")->getName().getString(), "controls");
}

TEST_F(CControlRootFiles, TraceAWrongRootNode) {
    const CSystemString tracePath((folder / "trace.txt").string().c_str());
    openTrace(tracePath);
    write("<control number_of_controls=\"0\">\n</control>\n");
    EXPECT_FALSE(loaded.loadFromFile(path));
    EXPECT_EQ(readFile(tracePath.getString()),
              "The node name of a control root xml file must be \"controls\"\n");
}

TEST_F(CControlRootFiles, RejectWhatCannotBeRead) {
    EXPECT_FALSE(loaded.loadFromFile(path));
    EXPECT_FALSE(loaded.serialiseFromXml(nullptr));
    write("");
    EXPECT_FALSE(loaded.loadFromFile(path));
    write("<controls>\n</controls>\n");
    EXPECT_FALSE(loaded.loadFromFile(path));
    write("<controls number_of_controls=\"1\">\n</controls>\n");
    EXPECT_FALSE(loaded.loadFromFile(path));
    write("<controls number_of_controls=\"1\">\n<control type=\"CUnknown\">\n</control>\n"
          "</controls>\n");
    EXPECT_FALSE(loaded.loadFromFile(path));
    write("<controls number_of_controls=\"1\">\n<control>\n</control>\n</controls>\n");
    EXPECT_FALSE(loaded.loadFromFile(path));
    write("<controls number_of_controls=\"1\">\n<control type=\"CControlPanel\">\n</control>\n"
          "</controls>\n");
    EXPECT_FALSE(loaded.loadFromFile(path));
    EXPECT_EQ(loaded.getNumberOfInsertedControls(), 0);
    write("<controls number_of_controls=\"0\">\n</controls>\n");
    EXPECT_TRUE(loaded.loadFromFile(path));
    EXPECT_FALSE(loaded.saveToFile((folder / "none" / "layout.xml").string().c_str()));
}

TEST_F(CControlRootFiles, RejectPanelsNestedWithoutEnd) {
    const auto nest = [this](int panels) {
        CXMLNode tree("controls", nullptr);
        CXMLNode *list = &tree;
        for (int i = 0; i < panels; ++i) {
            auto *panel = new CXMLNode("control", list), *inside = new CXMLNode("controls", panel);
            list->addAttribute(new CXMLAttribute("number_of_controls", 1));
            list->addChild(panel);
            panel->addAttribute(new CXMLAttribute("type", "CControlPanel"));
            panel->addAttribute(new CXMLAttribute("number_of_descriptors", 0));
            panel->addChild(inside);
            list = inside;
        }
        list->addAttribute(new CXMLAttribute("number_of_controls", 0));
        return loaded.serialiseFromXml(&tree);
    };
    EXPECT_TRUE(nest(99));
    EXPECT_FALSE(nest(100));
    EXPECT_FALSE(nest(10000));
}

TEST_F(CControlRootFiles, CreateTheClassesOfAnotherFactoryInPanelsToo) {
    add(*addPanel(root, CRect()), "inside", CRect(1, 2, 3, 4));
    ASSERT_TRUE(root.saveToFile(path));
    EXPECT_FALSE(loaded.loadFromFile(path));

    const CSpyFactory factory(log);
    loaded.setControlFactory(factory);
    EXPECT_TRUE(loaded.loadFromFile(path));
    EXPECT_THAT(takeLog(), testing::ElementsAre("CControlPanel", "CControl"));
}

TEST_F(CControlRootFiles, FreeAControlThatCannotBeRead) {
    const auto isDestroyed = std::make_shared<bool>(false);
    CSpyFactory factory(log);
    factory.isDestroyed = isDestroyed;
    loaded.setControlFactory(factory);
    write("<controls number_of_controls=\"1\">\n<control type=\"CControl\">\n</control>\n"
          "</controls>\n");
    EXPECT_FALSE(loaded.loadFromFile(path));
    EXPECT_TRUE(*isDestroyed);
}

TEST_F(CControlRootFiles, CreateEveryStandardClassWithItsDefaults) {
    const auto &factory = Tessitor::GUI::Controls::standardControlFactory();
    for (const char *name : {"CAnimation", "CClickableKnob", "CClickableLabel", "CControlPanel",
                             "CImageLabel", "CKnob", "CLatchingButton", "CMomentaryButton",
                             "CSlider", "CSliderArray", "CTextEdit", "CTextLabel"}) {
        SCOPED_TRACE(name);
        auto *control = dynamic_cast<CControl *>(factory.createControl(name, &root));
        ASSERT_NE(control, nullptr);
        root.addControl(control);
        EXPECT_TRUE(control->getClass() == name);
        EXPECT_EQ(control->getReferenceCount(), 1);
        EXPECT_EQ(control->getUniqueId(), -1);
        EXPECT_EQ(textOf(control->getArea()), "0,0,0,0");
        EXPECT_EQ(control->getActionListener(), nullptr);
    }
    EXPECT_EQ(factory.createControl("CControl", &root), nullptr);
    ASSERT_TRUE(root.saveToFile(path));
    EXPECT_TRUE(loaded.loadFromFile(path));
    EXPECT_EQ(loaded.getNumberOfInsertedControls(), 12);
}

}  // namespace
