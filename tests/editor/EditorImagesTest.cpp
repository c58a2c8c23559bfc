#include "editor/EditorImages.h"

#include "CEditorFixture.h"
#include "PictureBytes.h"

using Tessitor::Corvel::editorImage;
using Tessitor::Corvel::EImageSlot;

namespace {

std::string fileOf(int slot) {
    const auto *image = editorImage(static_cast<EImageSlot>(slot));
    return image != nullptr
               ? std::filesystem::path(image->getFilename().getString()).filename().string()
               : "";
}

}  // namespace

class EditorImages : public CEditorFixture {};

TEST_F(EditorImages, EachSlotHasItsFile) {
    const char *const files[] = {"Background.png",
                                 "Balance.png",
                                 "Blue.png",
                                 "DelayType.png",
                                 "Blue.png",
                                 "Blue.png",
                                 "Green2Red_Centred.png",
                                 "Blue.png",
                                 "Modulation.png",
                                 "MonoStereoText.png",
                                 "Balance.png",
                                 "Blue.png",
                                 "Blue.png",
                                 "Red2Green_Reversed.png",
                                 "Red.png",
                                 "Blue.png",
                                 "ButtonUp.png",
                                 "ButtonDown.png",
                                 "Help.png"};
    EXPECT_EQ(Tessitor::Corvel::kImageSlotCount, 19);
    for (int slot = 0; slot < 19; ++slot)
        EXPECT_EQ(fileOf(slot), files[slot]) << slot;
}

TEST_F(EditorImages, AreLoadedWhenAnEditorOpensForTheFirstTime) {
    const auto *image = editorImage(EImageSlot(2));
    EXPECT_FALSE(image->hasImageLoaded());
    EXPECT_EQ(image->getImageSize().getWidth(), 1);
    open();
    EXPECT_TRUE(image->hasImageLoaded());
    EXPECT_EQ(image->getImageSize().getWidth(), 1);
    const auto *handle = image->getImageHandle();
    editor->close();
    open();
    EXPECT_EQ(image->getImageHandle(), handle);
}

TEST_F(EditorImages, ADamagedFileDrawsNothing) {
    effect.reset();
    Tessitor::Corvel::releaseEditorImages();
    writeBytes((folder / "Corvel" / "Resources" / "Blue.png").string(), "no picture");
    effect = std::make_unique<CSpyEffect>();
    editor = dynamic_cast<CCorvelEditor *>(effect->getEditor());
    open();
    EXPECT_EQ(fileOf(2), "Blue.png");
    EXPECT_FALSE(editorImage(EImageSlot(2))->hasImageLoaded());
    EXPECT_TRUE(editorImage(EImageSlot(1))->hasImageLoaded());
}

TEST_F(EditorImages, SlotsWithTheSameFileShareIt) {
    EXPECT_EQ(editorImage(EImageSlot(2)), editorImage(EImageSlot(15)));
    EXPECT_EQ(editorImage(EImageSlot(1)), editorImage(EImageSlot(10)));
}

TEST_F(EditorImages, SurviveTheirEditor) {
    const auto *before = editorImage(EImageSlot(0));
    effect.reset();
    EXPECT_EQ(editorImage(EImageSlot(0)), before);
    effect = std::make_unique<CSpyEffect>();
    EXPECT_EQ(editorImage(EImageSlot(0)), before);
}

TEST_F(EditorImages, AreGoneOnceReleased) {
    Tessitor::Corvel::releaseEditorImages();
    EXPECT_EQ(fileOf(0), "");
}

TEST_F(EditorImages, AMissingFileLeavesItsSlotsEmpty) {
    effect.reset();
    Tessitor::Corvel::releaseEditorImages();
    std::filesystem::remove(folder / "Corvel" / "Resources" / "Blue.png");
    effect = std::make_unique<CSpyEffect>();
    EXPECT_EQ(fileOf(2), "");
    EXPECT_EQ(fileOf(15), "");
    EXPECT_EQ(fileOf(1), "Balance.png");
}
