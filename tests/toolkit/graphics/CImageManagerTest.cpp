#include "toolkit/graphics/CImageManager.h"

#include "CTemporaryFolder.h"
#include "PictureBytes.h"
#include "toolkit/graphics/TargaBytes.h"

#include <gmock/gmock.h>

namespace {

using Tessitor::Basics::CString;
using Tessitor::GUI::Graphics::CImageManager;
using Tessitor::GUI::Graphics::EImageFormat;
using Tessitor::GUI::Graphics::IImage;
using testing::ElementsAre;

class CImages : public testing::Test {
protected:
    CImages() {
        CImageManager::start();
        CImageManager::setRootPath(folder.path().string().c_str());
        std::filesystem::create_directories(folder / "inner" / "deep");
    }
    ~CImages() override { CImageManager::end(); }

    std::string write(const char *name, const std::string &bytes) {
        const std::string path = (folder / name).string();
        writeBytes(path, bytes);
        return path;
    }
    void writePicture(const char *name) { write(name, STarga().bytes()); }

    CTemporaryFolder folder;
};

std::vector<std::string> names(void (*get)(CImageManager::NameList &)) {
    CImageManager::NameList list;
    get(list);
    std::vector<std::string> found;
    for (int i = 0; i < list.getInsertIndex(); ++i)
        found.push_back(list.elementAtIndex(i)->getString());
    return found;
}

auto instances() {
    const IImage *image = CImageManager::getImage("counter");
    return image->getClass().getInstanceCount();
}

TEST_F(CImages, AreFoundByTheirNames) {
    writePicture("one.tga");
    EXPECT_TRUE(CImageManager::addImage("{}", "one.tga", "knob"));
    const IImage *image = CImageManager::getImage("knob");
    ASSERT_NE(image, nullptr);
    EXPECT_TRUE(image->hasImageLoaded());
    EXPECT_EQ(image->getReferenceCount(), 1);
    EXPECT_EQ(CImageManager::getImageReference("knob")->getImage(), image);
    EXPECT_STREQ(CImageManager::getReferenceName(image).getString(), "knob");
    EXPECT_EQ(CImageManager::getImage("Knob"), nullptr);
    EXPECT_EQ(CImageManager::getImageReference("button"), nullptr);
}

TEST_F(CImages, RememberWhereTheyCameFrom) {
    writePicture("inner/deep/one.tga");
    ASSERT_TRUE(CImageManager::addImage("inner/deep", "one.tga", "knob"));
    const auto *reference = CImageManager::getImageReference("knob");
    EXPECT_STREQ(reference->getRelativePath().getString(), "inner/deep");
    EXPECT_STREQ(reference->getFilename().getString(), "one.tga");
    EXPECT_STREQ(reference->getReferenceName().getString(), "knob");
    EXPECT_EQ(reference->getImage()->getFilename(),
              (folder / "inner" / "deep" / "one.tga").make_preferred().string().c_str());
}

TEST_F(CImages, ComeFromTheRootPathItself) {
    writePicture("one.tga");
    EXPECT_TRUE(CImageManager::addImage("{}", "one.tga", "knob"));
    EXPECT_FALSE(CImageManager::addImage("inner", "one.tga", "other"));
}

TEST_F(CImages, WithTheSameNameHideEachOther) {
    writePicture("one.tga");
    writePicture("two.tga");
    EXPECT_TRUE(CImageManager::addImage("{}", "one.tga", "knob"));
    EXPECT_TRUE(CImageManager::addImage("{}", "two.tga", "knob"));
    EXPECT_STREQ(CImageManager::getImageReference("knob")->getFilename().getString(), "one.tga");
}

TEST_F(CImages, AreNotAddedWithoutAFile) {
    EXPECT_FALSE(CImageManager::addImage("{}", "none.tga", "knob"));
    EXPECT_FALSE(CImageManager::addAnimation("{}", "none.tga", "knob", 10, 5));
    EXPECT_FALSE(CImageManager::addImage("{}", "", "knob")) << "a folder";
    EXPECT_THAT(names(CImageManager::getReferenceNames), ElementsAre());
}

TEST_F(CImages, AreAddedEvenIfTheyCannotBeRead) {
    write("bad.tga", "no picture");
    EXPECT_TRUE(CImageManager::addImage("{}", "bad.tga", "knob"));
    EXPECT_FALSE(CImageManager::getImage("knob")->hasImageLoaded());
}

TEST_F(CImages, MayBeAnimations) {
    writePicture("one.tga");
    EXPECT_TRUE(CImageManager::addAnimation("{}", "one.tga", "knob", 24, 11));
    std::int32_t height = 0, number = 0;
    const IImage *image = CImageManager::getAnimation("knob", height, number);
    ASSERT_NE(image, nullptr);
    EXPECT_TRUE(image->hasImageLoaded());
    EXPECT_EQ(image->getReferenceCount(), 1);
    EXPECT_EQ(height, 24);
    EXPECT_EQ(number, 11);
    EXPECT_EQ(CImageManager::getAnimationReference("knob")->getFrameHeight(), 24);
    EXPECT_EQ(CImageManager::getAnimationReference("knob")->getNumberOfFrames(), 11);
    EXPECT_STREQ(CImageManager::getReferenceName(image).getString(), "knob");
    EXPECT_EQ(CImageManager::getImage("knob"), nullptr) << "animations are a list of their own";
    EXPECT_EQ(CImageManager::getAnimation("none", height, number), nullptr);
    EXPECT_EQ(CImageManager::getAnimationReference("none"), nullptr);
    EXPECT_EQ(height, 24);
}

TEST_F(CImages, HaveNoNameIfUnknown) {
    writePicture("one.tga");
    ASSERT_TRUE(CImageManager::addImage("{}", "one.tga", "knob"));
    const std::unique_ptr<IImage> other(
        CImageManager::getImageFromFile((folder / "one.tga").string().c_str()));
    EXPECT_STREQ(CImageManager::getReferenceName(other.get()).getString(), "");
    EXPECT_STREQ(CImageManager::getReferenceName(nullptr).getString(), "");
}

TEST_F(CImages, AreListedBeforeAnimations) {
    writePicture("one.tga");
    CImageManager::addAnimation("{}", "one.tga", "animation", 1, 2);
    CImageManager::addImage("{}", "one.tga", "first");
    CImageManager::addImage("{}", "one.tga", "second");
    EXPECT_THAT(names(CImageManager::getReferenceNames),
                ElementsAre("first", "second", "animation"));
    EXPECT_THAT(names(CImageManager::getImageReferenceNames), ElementsAre("first", "second"));
    EXPECT_THAT(names(CImageManager::getAnimationReferenceNames), ElementsAre("animation"));
    CImageManager::NameList list;
    list.addElement(new CString("kept"));
    CImageManager::getReferenceNames(list);
    EXPECT_EQ(list.getInsertIndex(), 4) << "names are appended";
}

TEST_F(CImages, CanBeClearedListByList) {
    writePicture("one.tga");
    const auto fill = [] {
        CImageManager::addImage("{}", "one.tga", "image");
        CImageManager::addAnimation("{}", "one.tga", "animation", 1, 2);
    };
    fill();
    CImageManager::clearImages();
    EXPECT_THAT(names(CImageManager::getReferenceNames), ElementsAre("animation"));
    CImageManager::clearAll();
    fill();
    CImageManager::clearAnimations();
    EXPECT_THAT(names(CImageManager::getReferenceNames), ElementsAre("image"));
    CImageManager::clearAll();
    EXPECT_THAT(names(CImageManager::getReferenceNames), ElementsAre());
}

TEST_F(CImages, OutliveTheListWhileReferenced) {
    writePicture("one.tga");
    CImageManager::addImage("{}", "one.tga", "counter");
    const auto before = instances();
    CImageManager::addImage("{}", "one.tga", "knob");
    CImageManager::addAnimation("{}", "one.tga", "film", 1, 1);
    EXPECT_EQ(instances(), before + 2);
    IImage *image = CImageManager::getImage("knob");
    image->reference();
    CImageManager::clearAll();
    EXPECT_TRUE(image->hasImageLoaded());
    EXPECT_EQ(image->getReferenceCount(), 1);
    EXPECT_EQ(image->getClass().getInstanceCount(), before);
    image->dereference();
}

TEST_F(CImages, StartEmptyAgainAfterTheEnd) {
    writePicture("one.tga");
    CImageManager::addImage("{}", "one.tga", "image");
    CImageManager::start();
    EXPECT_NE(CImageManager::getImage("image"), nullptr) << "a second start changes nothing";
    CImageManager::end();
    CImageManager::start();
    EXPECT_THAT(names(CImageManager::getReferenceNames), ElementsAre());
    EXPECT_STREQ(CImageManager::getRootPath().getString(), "");
    CImageManager::setRootPath(folder.path().string().c_str());
    EXPECT_TRUE(CImageManager::addImage("{}", "one.tga", "image"));
}

TEST_F(CImages, DoNothingBeforeTheStart) {
    writePicture("one.tga");
    const std::string list = write("list.xml", "<?xml?>\n<image_manager_root>\n");
    CImageManager::end();
    CImageManager::end();
    CImageManager::setRootPath(folder.path().string().c_str());
    EXPECT_STREQ(CImageManager::getRootPath().getString(), "");
    EXPECT_FALSE(CImageManager::addImage("{}", "one.tga", "image"));
    EXPECT_FALSE(CImageManager::addAnimation("{}", "one.tga", "image", 1, 1));
    std::int32_t height = 0, number = 0;
    EXPECT_EQ(CImageManager::getImage("image"), nullptr);
    EXPECT_EQ(CImageManager::getAnimation("image", height, number), nullptr);
    EXPECT_STREQ(CImageManager::getReferenceName(nullptr).getString(), "");
    EXPECT_THAT(names(CImageManager::getReferenceNames), ElementsAre());
    CImageManager::clearAll();
    EXPECT_FALSE(CImageManager::saveToXML((folder / "saved.xml").string().c_str()));
    EXPECT_FALSE(CImageManager::loadFromXML(list.c_str()));
    EXPECT_FALSE(CImageManager::loadFromDefinitionFile(list.c_str()));
}

class CImageFiles : public CImages {
protected:
    std::unique_ptr<IImage> get(const char *name) {
        return std::unique_ptr<IImage>(
            CImageManager::getImageFromFile(folder.path().string().c_str(), name));
    }
};

TEST_F(CImageFiles, AreLoadedByExtension) {
    write("one.tga", STarga().bytes());
    write("one.png", SPng().bytes());
    write("one.jpg", SJpeg().bytes());
    write("one.jpeg", SJpeg().bytes());
    const std::pair<const char *, EImageFormat> files[] = {{"one.tga", EImageFormat::TGA},
                                                           {"one.png", EImageFormat::PNG},
                                                           {"one.jpg", EImageFormat::JPEG},
                                                           {"one.jpeg", EImageFormat::JPEG}};
    for (const auto &[name, format] : files) {
        const auto image = get(name);
        ASSERT_NE(image, nullptr) << name;
        EXPECT_EQ(image->getImageFormat(), format);
        EXPECT_TRUE(image->hasImageLoaded());
        EXPECT_EQ(image->getReferenceCount(), 0);
    }
}

TEST_F(CImageFiles, InUpperCaseGiveAnImageThatRefusesThem) {
    write("one.TGA", STarga().bytes());
    write("one.PNG", SPng().bytes());
    write("one.JPG", SJpeg().bytes());
    write("one.JPEG", SJpeg().bytes());
    const std::pair<const char *, EImageFormat> files[] = {{"one.TGA", EImageFormat::TGA},
                                                           {"one.PNG", EImageFormat::PNG},
                                                           {"one.JPG", EImageFormat::JPEG},
                                                           {"one.JPEG", EImageFormat::JPEG}};
    for (const auto &[name, format] : files) {
        const auto image = get(name);
        ASSERT_NE(image, nullptr) << name;
        EXPECT_EQ(image->getImageFormat(), format);
        EXPECT_FALSE(image->hasImageLoaded());
    }
}

TEST_F(CImageFiles, OfOtherKindsGiveNoImage) {
    for (const char *name : {"one.bmp", "one.Png", "one.tga.txt", "picture"}) {
        write(name, SPng().bytes());
        EXPECT_EQ(get(name), nullptr) << name;
    }
    EXPECT_EQ(get("none.png"), nullptr);
    std::filesystem::create_directory(folder / "folder.png");
    EXPECT_EQ(get("folder.png"), nullptr);
}

}  // namespace
