#include "CTemporaryFolder.h"
#include "PictureBytes.h"
#include "foundation/ReadFile.h"
#include "foundation/Trace.h"
#include "toolkit/graphics/CImageManager.h"
#include "toolkit/graphics/TargaBytes.h"

#include <gtest/gtest.h>

namespace {

using Tessitor::GUI::Graphics::CImageManager;
using Tessitor::GUI::Graphics::IImage;
using Tessitor::IO::openTrace;

class ImageLists : public testing::Test {
protected:
    ImageLists() {
        std::filesystem::create_directory(folder / "inner");
        writeBytes(path("one.tga"), STarga().bytes());
        writeBytes(path("inner/two.tga"), STarga().bytes());
        openTrace(path("trace.txt").c_str());
        restart();
    }
    ~ImageLists() override {
        CImageManager::end();
        openTrace("");  // closes it, so the folder can be deleted
    }

    static void restart(const char *root) {
        CImageManager::end();
        CImageManager::start();
        CImageManager::setRootPath(root);
    }
    void restart() { restart(folder.path().string().c_str()); }
    std::string path(const char *name) { return (folder / name).string(); }
    std::string traced() { return readFile(path("trace.txt")); }

    bool readDefinitions(const std::string &text) {
        writeBytes(path("list"), text);
        return CImageManager::loadFromDefinitionFile(path("list").c_str());
    }
    bool readXML(const std::string &text) {
        writeBytes(path("list"), text);
        return CImageManager::loadFromXML(path("list").c_str());
    }
    /// All names, each followed by a blank.
    static std::string names() {
        CImageManager::NameList list;
        CImageManager::getReferenceNames(list);
        std::string text;
        for (int i = 0; i < list.getInsertIndex(); ++i)
            text += list.elementAtIndex(i)->getString() + std::string(" ");
        return text;
    }

    CTemporaryFolder folder;
};

using CImageDefinitions = ImageLists;
using CImageXML = ImageLists;

TEST_F(CImageDefinitions, AddImagesAndAnimations) {
    EXPECT_TRUE(readDefinitions("<start_skin>\n"
                                "# a comment\n"
                                "<images>\n"
                                "{},one.tga,knob\r\n"
                                "\t inner,two.tga,two words \n"
                                "<animations>\n"
                                "{},one.tga,film,24,11\n"
                                "<images>\n"
                                "{},one.tga,later\n"
                                "<end_skin>\n"
                                "{},one.tga,after the end\n"));
    EXPECT_EQ(names(), "knob two words later film ");
    std::int32_t height = 0, number = 0;
    EXPECT_NE(CImageManager::getAnimation("film", height, number), nullptr);
    EXPECT_EQ(height, 24);
    EXPECT_EQ(number, 11);
    EXPECT_EQ(traced(), "");
}

TEST_F(CImageDefinitions, MayLackTheirLastLine) {
    EXPECT_TRUE(readDefinitions("<start_skin>\n<images>\n{},one.tga,knob"));
    EXPECT_EQ(names(), "knob ");
    EXPECT_TRUE(readDefinitions("<start_skin>"));
    EXPECT_TRUE(readDefinitions("<start_skin>\n<images>\n"));
    EXPECT_EQ(traced(), "");
}

TEST_F(CImageDefinitions, SkipAndTraceBadLines) {
    EXPECT_TRUE(readDefinitions("<start_skin>\n"
                                "too,soon,name\n"
                                "<images>\n"
                                "{},one.tga\n"
                                "{},one.tga,name,1\n"
                                "{},none.tga,name\n"
                                "{},one.tga,knob\n"
                                "<animations>\n"
                                "{},one.tga,name,1\n"
                                "{},one.tga,name,1,2,3\n"
                                "{},none.tga,name,1,2\n"
                                "{},one.tga,film,1,2\n"
                                "<end_skin>\n"));
    EXPECT_EQ(names(), "knob film ");
    EXPECT_EQ(traced(), "Unknown line with buffer too,soon,name\n"
                        "Failed to load image with buffer {},one.tga\n"
                        "Failed to load image with buffer {},one.tga,name,1\n"
                        "Failed to load image with filename {},none.tga,name\n"
                        "Failed to load animation with buffer {},one.tga,name,1\n"
                        "Failed to load animation with buffer {},one.tga,name,1,2,3\n"
                        "Failed to load animation with buffer {},none.tga,name,1,2\n");
}

TEST_F(CImageDefinitions, CutNumbersToTheirRange) {
    EXPECT_TRUE(readDefinitions("<start_skin>\n<animations>\n"
                                "{},one.tga,film,99999999999999999999,-99999999999999999999\n"
                                "{},one.tga,text,many,-3\n<end_skin>\n"));
    const auto *reference = CImageManager::getAnimationReference("film");
    EXPECT_EQ(reference->getFrameHeight(), 2147483647);
    EXPECT_EQ(reference->getNumberOfFrames(), -2147483647 - 1);
    EXPECT_EQ(CImageManager::getAnimationReference("text")->getFrameHeight(), 0);
}

TEST_F(CImageDefinitions, EndAtALineThatIsTooLong) {
    std::string text = "<start_skin>\n<images>\n{},one.tga,knob\n";
    text.append(2048, 'x').append("\n{},one.tga,later\n<end_skin>\n");
    EXPECT_FALSE(readDefinitions(text));
    EXPECT_EQ(names(), "knob ");
    EXPECT_FALSE(readDefinitions(std::string(5000, '<')));
}

TEST_F(CImageDefinitions, WithAnotherFirstLineAreReadAsXML) {
    EXPECT_TRUE(readDefinitions("<?xml version=\"1.0\"?>\n"
                                "<image_manager_root>\n<images>\n"
                                "<image relative_path=\"{}\" filename=\"one.tga\" "
                                "reference_name=\"knob\"/>\n"
                                "</images>\n</image_manager_root>\n"));
    EXPECT_EQ(names(), "knob ");
    EXPECT_FALSE(readDefinitions("<images>\n{},one.tga,other\n<end_skin>\n"));
    EXPECT_FALSE(readDefinitions(""));
    EXPECT_EQ(names(), "knob ");
}

TEST_F(CImageDefinitions, NeedAFile) {
    EXPECT_FALSE(CImageManager::loadFromDefinitionFile(path("none").c_str()));
    EXPECT_FALSE(CImageManager::loadFromDefinitionFile(path("inner").c_str()));
    EXPECT_FALSE(CImageManager::loadFromXML(path("none").c_str()));
    EXPECT_FALSE(CImageManager::loadFromXML(path("inner").c_str()));
}

TEST_F(CImageXML, IsReadAsItWasWritten) {
    CImageManager::addImage("{}", "one.tga", "knob <1> & \"2\"");
    CImageManager::addImage("inner", "two.tga", "button");
    CImageManager::addAnimation("inner", "two.tga", "film", 24, -11);
    ASSERT_TRUE(CImageManager::saveToXML(path("saved.xml").c_str()));
    restart();
    ASSERT_TRUE(CImageManager::loadFromXML(path("saved.xml").c_str()));
    EXPECT_EQ(names(), "knob <1> & \"2\" button film ");
    const auto *reference = CImageManager::getImageReference("button");
    EXPECT_STREQ(reference->getRelativePath().getString(), "inner");
    EXPECT_STREQ(reference->getFilename().getString(), "two.tga");
    EXPECT_EQ(CImageManager::getAnimationReference("film")->getFrameHeight(), 24);
    EXPECT_EQ(CImageManager::getAnimationReference("film")->getNumberOfFrames(), -11);
    EXPECT_EQ(traced(), "");
}

TEST_F(CImageXML, HasOneNodePerImage) {
    CImageManager::addImage("{}", "one.tga", "knob");
    CImageManager::addAnimation("inner", "two.tga", "film", 24, 11);
    ASSERT_TRUE(CImageManager::saveToXML(path("saved.xml").c_str()));
    const std::string text = readFile(path("saved.xml"));
    EXPECT_NE(text.find("<image_manager_root>\n"
                        "\t<images>\n"
                        "\t\t<image relative_path=\"{}\" filename=\"one.tga\" "
                        "reference_name=\"knob\"/>\n"
                        "\t</images>\n"
                        "\t<animations>\n"
                        "\t\t<image relative_path=\"inner\" filename=\"two.tga\" "
                        "reference_name=\"film\" frame_height=\"24\" number_of_frames=\"11\"/>\n"
                        "\t</animations>\n"
                        "</image_manager_root>"),
              std::string::npos)
        << text;
}

TEST_F(CImageXML, WithoutImagesIsReadToo) {
    ASSERT_TRUE(CImageManager::saveToXML(path("saved.xml").c_str()));
    EXPECT_TRUE(CImageManager::loadFromXML(path("saved.xml").c_str()));
    EXPECT_TRUE(readXML("<?xml?>\n<image_manager_root/>\n"));
    EXPECT_EQ(names(), "");
}

TEST_F(CImageXML, IgnoresNodesOfOtherNames) {
    EXPECT_TRUE(
        readXML("<?xml?>\n<image_manager_root>\n<images>\n"
                "<picture relative_path=\"{}\" filename=\"one.tga\" reference_name=\"a\"/>\n"
                "<image relative_path=\"{}\" filename=\"one.tga\" reference_name=\"b\"/>\n"
                "</images>\n</image_manager_root>\n"));
    EXPECT_EQ(names(), "b ");
    EXPECT_EQ(traced(), "");
}

TEST_F(CImageXML, CannotBeWrittenEverywhere) {
    EXPECT_FALSE(CImageManager::saveToXML((folder / "none" / "saved.xml").string().c_str()));
}

TEST_F(CImageXML, NeedsItsRoot) {
    EXPECT_FALSE(readXML(""));
    EXPECT_FALSE(readXML("<?xml?>\n"));
    EXPECT_FALSE(readXML("<?xml?>\n<other>\n<images>\n"));
    EXPECT_FALSE(readXML("<image_manager_root>\n</image_manager_root>\n"));
}

TEST_F(CImageXML, SkipsAndTracesBadEntries) {
    EXPECT_TRUE(
        readXML("<?xml?>\n<image_manager_root>\n"
                "<animations>\n"
                "<image relative_path=\"{}\" filename=\"no film.tga\"/>\n"
                "<image relative_path=\"{}\" filename=\"one.tga\" reference_name=\"film\"/>\n"
                "</animations>\n"
                "<images>\n"
                "<image/>\n"
                "<image relative_path=\"{}\" filename=\"none.tga\"/>\n"
                "<image relative_path=\"{}\" filename=\"one.tga\" reference_name=\"knob\"/>\n"
                "</images>\n</image_manager_root>\n"));
    EXPECT_EQ(names(), "knob film ");
    EXPECT_EQ(CImageManager::getAnimationReference("film")->getFrameHeight(), 0);
    EXPECT_EQ(traced(), "Failed to load image with filename \n"
                        "Failed to load image with filename none.tga\n"
                        "Failed to load animation with filename no film.tga\n");
}

TEST_F(CImageXML, AddsNothingIfALineIsTooLong) {
    std::string text =
        "<?xml?>\n<image_manager_root>\n<images>\n"
        "<image relative_path=\"{}\" filename=\"one.tga\" reference_name=\"knob\"/>\n";
    EXPECT_FALSE(readXML(text.append(3000, 'x')));
    EXPECT_EQ(names(), "");
}

}  // namespace
