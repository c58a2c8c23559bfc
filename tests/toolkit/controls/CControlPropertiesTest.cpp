#include "CTemporaryFolder.h"
#include "PictureBytes.h"
#include "foundation/CBool.h"
#include "foundation/CLong.h"
#include "foundation/CXMLNode.h"
#include "toolkit/controls/CControlDescriptor.h"
#include "toolkit/controls/CRootTest.h"
#include "toolkit/controls/Properties.h"
#include "toolkit/graphics/CImageManager.h"
#include "toolkit/graphics/TargaBytes.h"

namespace {

using Tessitor::Basics::CBool;
using Tessitor::Basics::CLong;
using Tessitor::Basics::CString;
using Tessitor::GUI::Basics::CAlphaColour;
using Tessitor::GUI::Controls::CControl;
using Tessitor::GUI::Controls::CControlDescriptor;
using Tessitor::GUI::Controls::EDescriptorType;
using Tessitor::GUI::Graphics::CImageManager;
using Tessitor::IO::CXMLAttribute;
using Tessitor::IO::CXMLNode;
using testing::ElementsAre;

class CControlProperties : public CRootTest {
protected:
    CControl *addPlain(const CRect &area) {
        auto *made = new CControl(&root, 3, area, nullptr);
        root.addControl(made);
        return made;
    }

    CControl *control = addPlain(CRect(1, 2, 3, 4));
};

TEST_F(CControlProperties, AreListedInOrder) {
    IControl::DescriptorList list;
    control->getDescriptors(list);
    std::vector<std::pair<std::string, EDescriptorType>> found;
    for (int i = 0; i < list.getInsertIndex(); ++i)
        found.emplace_back(list.elementAtIndex(i)->getName().getString(),
                           list.elementAtIndex(i)->getType());
    using enum EDescriptorType;
    EXPECT_THAT(
        found,
        ElementsAre(std::pair("Control Name", String), std::pair("Control ID", Integer),
                    std::pair("Mouse Enabled", Boolean), std::pair("Keyboard Enabled", Boolean),
                    std::pair("Drop File Enabled", Boolean), std::pair("Is Enabled", Boolean),
                    std::pair("Default Drawing", Boolean), std::pair("Area", Rect),
                    std::pair("Primary Image", Image), std::pair("Disabled Image", Image),
                    std::pair("Frame Colour", Colour), std::pair("Background Colour", Colour)));
    EXPECT_STREQ(list.elementAtIndex(0)->getValueAs<CString>()->getString(), "Control");
}

TEST_F(CControlProperties, AreReadOneByOne) {
    CControlDescriptor id("Control ID", EDescriptorType::Integer);
    EXPECT_TRUE(control->getDescriptorValue(id));
    EXPECT_EQ(id.getValueAs<CLong>()->getValue(), 3);
    CControlDescriptor area("Area", EDescriptorType::Rect);
    EXPECT_TRUE(control->getDescriptorValue(area));
    EXPECT_EQ(textOf(*area.getValueAs<CRect>()), "1,2,3,4");
    CControlDescriptor unknown("Size", EDescriptorType::Integer);
    EXPECT_FALSE(control->getDescriptorValue(unknown));
}

TEST_F(CControlProperties, AreSetOneByOne) {
    using enum EDescriptorType;
    EXPECT_TRUE(setProperty(*control, "Control Name", String, new CString("Gain")));
    EXPECT_TRUE(setProperty(*control, "Control ID", Integer, new CLong(-6)));
    EXPECT_TRUE(setProperty(*control, "Mouse Enabled", Boolean, new CBool(false)));
    EXPECT_TRUE(setProperty(*control, "Keyboard Enabled", Boolean, new CBool(true)));
    EXPECT_TRUE(setProperty(*control, "Drop File Enabled", Boolean, new CBool(true)));
    EXPECT_TRUE(setProperty(*control, "Is Enabled", Boolean, new CBool(false)));
    EXPECT_TRUE(setProperty(*control, "Default Drawing", Boolean, new CBool(true)));
    EXPECT_TRUE(setProperty(*control, "Area", Rect, new CRect(5, 6, 7, 8)));
    EXPECT_TRUE(setProperty(*control, "Frame Colour", Colour, new CAlphaColour(1, 2, 3, 4)));
    EXPECT_TRUE(setProperty(*control, "Background Colour", Colour, new CAlphaColour(5, 6, 7, 8)));
    EXPECT_STREQ(control->getDescription().getString(), "Gain");
    EXPECT_EQ(control->getUniqueId(), -6);
    EXPECT_FALSE(control->isMouseEnabled());
    EXPECT_TRUE(control->isKeyboardEnabled());
    EXPECT_TRUE(control->isDropFileEnabled());
    EXPECT_FALSE(control->isEnabled());
    EXPECT_TRUE(control->isDefaultDrawing());
    EXPECT_EQ(textOf(control->getAbsoluteRect()), "5,6,7,8");
    EXPECT_EQ(control->getFrameColour(), CAlphaColour(1, 2, 3, 4));
    EXPECT_EQ(control->getBackgroundColour(), CAlphaColour(5, 6, 7, 8));
    EXPECT_TRUE(setProperty(*control, "Is Enabled", Boolean, new CBool(true)));
    EXPECT_TRUE(control->isEnabled());
}

TEST_F(CControlProperties, RejectUnknownNamesAndWrongClasses) {
    using enum EDescriptorType;
    EXPECT_FALSE(setProperty(*control, "Size", Integer, new CLong(6)));
    EXPECT_FALSE(setProperty(*control, "Control ID", Integer, new CBool(true)));
    EXPECT_FALSE(setProperty(*control, "Control ID", Integer, nullptr));
    EXPECT_FALSE(setProperty(*control, "Area", Rect, nullptr));
    EXPECT_FALSE(setProperty(*control, "Primary Image", Image, new CLong(6)));
    EXPECT_TRUE(setProperty(*control, "Primary Image", Image, nullptr));
    EXPECT_EQ(control->getUniqueId(), 3);
}

TEST_F(CControlProperties, SurviveXml) {
    const CTemporaryFolder folder;
    CImageManager::start();
    CImageManager::setRootPath(folder.path().string().c_str());
    writeBytes((folder / "one.tga").string(), STarga().bytes());
    CImageManager::addImage("{}", "one.tga", "still");
    CImageManager::addAnimation("{}", "one.tga", "film", 1, 2);
    std::int32_t ignored = 0;
    auto *film = CImageManager::getAnimation("film", ignored, ignored);

    control->setDescription("Gain \"&\"");
    control->setUniqueId(12);
    control->disableControl();
    control->setPrimaryImage(CImageManager::getImage("still"));
    control->setDisabledImage(film);
    CXMLNode node("control", nullptr);
    control->serialiseToXml(&node);
    EXPECT_STREQ(node.getAttribute("number_of_descriptors")->getValue().getString(), "12");
    EXPECT_EQ(node.getNumberOfChildren(), 12);
    EXPECT_STREQ(node.getChild(11)->getName().getString(), "descriptor");

    CControl *copy = addPlain(CRect());
    EXPECT_TRUE(copy->serialiseFromXml(&node));
    EXPECT_STREQ(copy->getDescription().getString(), "Gain \"&\"");
    EXPECT_EQ(copy->getUniqueId(), 12);
    EXPECT_FALSE(copy->isEnabled());
    EXPECT_EQ(textOf(copy->getArea()), "1,2,3,4");
    EXPECT_EQ(copy->getPrimaryImage(), CImageManager::getImage("still"));
    EXPECT_EQ(copy->getDisabledImage(), film);

    CImageManager::clearAll();  // a missing picture breaks nothing
    EXPECT_TRUE(copy->serialiseFromXml(&node));
    EXPECT_EQ(copy->getPrimaryImage(), nullptr);
    CImageManager::end();
}

TEST_F(CControlProperties, CountTheirNodes) {
    const auto isRead = [this](const char *count, int descriptors, const char *property) {
        CXMLNode node("control", nullptr);
        if (count != nullptr)
            node.addAttribute(new CXMLAttribute("number_of_descriptors", count));
        node.addChild(new CXMLNode("other", &node));
        for (int i = 0; i < descriptors; ++i) {
            auto *child = new CXMLNode("descriptor", &node);
            node.addChild(child);
            child->addAttribute(new CXMLAttribute("name", property));
            child->addAttribute(new CXMLAttribute("type", "integer"));
            child->addAttribute(new CXMLAttribute("value", 44));
        }
        return control->serialiseFromXml(&node);
    };
    EXPECT_FALSE(control->serialiseFromXml(nullptr));
    EXPECT_FALSE(isRead(nullptr, 0, ""));
    EXPECT_FALSE(isRead("2", 1, "Control ID"));
    EXPECT_FALSE(isRead("0", 1, "Control ID"));
    EXPECT_EQ(control->getUniqueId(), 3);
    EXPECT_FALSE(isRead("1", 1, "Size"));
    EXPECT_TRUE(isRead("0", 0, ""));
    EXPECT_TRUE(isRead("1", 1, "Control ID"));
    EXPECT_EQ(control->getUniqueId(), 44);
    control->serialiseToXml(nullptr);
}

}  // namespace
