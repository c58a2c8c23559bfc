#include "CTemporaryFolder.h"
#include "toolkit/graphics/CImageManager.h"
#include "toolkit/graphics/CJPEGImage.h"
#include "toolkit/graphics/CPNGImage.h"
#include "toolkit/graphics/CTGAImage.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

using namespace Tessitor::GUI::Graphics;

// A pipe that is opened for reading waits for a writer, and these tests would not end.
class ImagePipes : public testing::Test {
protected:
    std::string pipe(const char *name) {
        const std::string path = (folder / name).string();
        EXPECT_EQ(mkfifo(path.c_str(), 0600), 0);
        return path;
    }

    CTemporaryFolder folder;
};

TEST_F(ImagePipes, AreNoImages) {
    EXPECT_FALSE(CTGAImage().loadFromFile(pipe("one.tga").c_str()));
    EXPECT_FALSE(CPNGImage().loadFromFile(pipe("one.png").c_str()));
    EXPECT_FALSE(CJPEGImage().loadFromFile(pipe("one.jpg").c_str()));
    EXPECT_EQ(CImageManager::getImageFromFile(pipe("two.tga").c_str()), nullptr);
}

TEST_F(ImagePipes, AreNoListsOfImages) {
    CImageManager::start();
    EXPECT_FALSE(CImageManager::loadFromDefinitionFile(pipe("list").c_str()));
    EXPECT_FALSE(CImageManager::loadFromXML(pipe("list.xml").c_str()));
    CImageManager::end();
}

}  // namespace
