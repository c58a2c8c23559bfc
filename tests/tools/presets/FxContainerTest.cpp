#include "corvel/presets/FxContainer.h"

#include "tools/support/StoredPrograms.h"

#include <gmock/gmock.h>

using namespace Tessitor::Tool;
using namespace std::string_literals;
using testing::HasSubstr;

namespace {

constexpr std::size_t versionPlace = 12;
constexpr std::size_t idPlace = 16;
constexpr std::size_t sizePlaceInProgram = 56;
constexpr std::size_t sizePlaceInBank = 156;

SPreset leadVocal() {
    return {{factoryPrograms()[0]}, 0};
}

SPreset factoryBank(std::size_t current = 0) {
    return {factoryPrograms(), current};
}

std::string faultOf(const std::string &bytes) {
    try {
        presetFromFx(bytes);
    } catch (const CPresetError &error) {
        return error.what();
    }
    return "";
}

std::string with(std::string bytes, std::size_t place, const std::string &other) {
    return bytes.replace(place, other.size(), other);
}

}  // namespace

TEST(FxContainer, AProgramHasThePublishedLayout) {
    const SPreset preset = leadVocal();
    EXPECT_EQ(fxFromPreset(preset), "CcnK\0\0\x01\xDC"
                                    "FPCh\0\0\0\x01"
                                    "kMrQ\0\0\0\x01\0\0\0\x40"s +
                                        "Lead Vocal" + std::string(18, '\0') + "\0\0\x01\xA8"s +
                                        bytesOf(preset));
}

TEST(FxContainer, ABankHasThePublishedLayout) {
    const SPreset bank = factoryBank();
    EXPECT_EQ(fxFromPreset(bank), "CcnK\0\0\x21\xB8"
                                  "FBCh\0\0\0\x01"
                                  "kMrQ\0\0\0\x01\0\0\0\x14"s +
                                      std::string(128, '\0') + "\0\0\x21\x20"s + bytesOf(bank));
}

TEST(FxContainer, TheCurrentProgramOfABankNeedsTheSecondVersion) {
    const std::string bytes = fxFromPreset(factoryBank(3));
    EXPECT_EQ(bytes.substr(versionPlace, 4), "\0\0\0\x02"s);
    EXPECT_EQ(bytes.substr(28, 4), "\0\0\0\x03"s);
    EXPECT_EQ(presetFromFx(bytes).current, 3u);
    // In the first version, the field has no meaning.
    EXPECT_EQ(presetFromFx(with(bytes, versionPlace, "\0\0\0\x01"s)).current, 0u);
}

TEST(FxContainer, WhatIsWrittenIsReadBack) {
    for (unsigned seed = 0; seed < 100; ++seed) {
        const SPreset program{{randomProgram(seed)}, 0}, bank = randomBank(seed);
        EXPECT_EQ(bytesOf(presetFromFx(fxFromPreset(program))), bytesOf(program)) << seed;
        EXPECT_EQ(bytesOf(presetFromFx(fxFromPreset(bank))), bytesOf(bank)) << seed;
        EXPECT_EQ(presetFromFx(fxFromPreset(bank)).current, bank.current);
    }
}

TEST(FxContainer, ASizeOfZeroIsUnknown) {
    EXPECT_EQ(faultOf(with(fxFromPreset(leadVocal()), 4, "\0\0\0\0"s)), "");
}

TEST(FxContainer, AWrongSizeIsRefused) {
    EXPECT_EQ(faultOf(with(fxFromPreset(leadVocal()), 4, "\0\0\x01\xDD"s)),
              "states a size of 477 bytes, but has 476");
}

TEST(FxContainer, EveryTruncationIsRefused) {
    for (const std::string &whole : {fxFromPreset(leadVocal()), fxFromPreset(factoryBank(2))})
        for (std::size_t length = 0; length < whole.size(); ++length)
            ASSERT_THAT(faultOf(whole.substr(0, length)),
                        HasSubstr(length < 4 ? "not a preset" : "truncated"))
                << length;
}

TEST(FxContainer, BytesAfterTheEndAreRefused) {
    EXPECT_EQ(faultOf(fxFromPreset(leadVocal()) + "abc"), "has 3 bytes too many at its end");
}

TEST(FxContainer, AChunkOfAnotherSizeIsRefused) {
    EXPECT_EQ(faultOf(with(fxFromPreset(leadVocal()), sizePlaceInProgram, "\0\0\0\x64"s)),
              "its chunk has 100 bytes, not 424");
    EXPECT_EQ(faultOf(with(fxFromPreset(leadVocal()), sizePlaceInProgram, "\xFF\xFF\xFF\xFF"s)),
              "its chunk has 4294967295 bytes, not 424");
    EXPECT_EQ(faultOf(with(fxFromPreset(factoryBank()), sizePlaceInBank, "\0\0\x01\xA8"s)),
              "its chunk has 424 bytes, not 8480");
}

TEST(FxContainer, APresetOfAnotherEffectIsRefused) {
    EXPECT_EQ(faultOf(with(fxFromPreset(leadVocal()), idPlace, "Abcd")),
              "a preset of another effect (id \"Abcd\", not \"kMrQ\")");
    EXPECT_EQ(faultOf(with(fxFromPreset(leadVocal()), idPlace, "\x1b\0\n\xFF"s)),
              "a preset of another effect (id \"\\x1B\\x00\\n\\xFF\", not \"kMrQ\")");
}

TEST(FxContainer, OtherKindsAndVersionsAreRefused) {
    const std::string program = fxFromPreset(leadVocal()), bank = fxFromPreset(factoryBank());
    EXPECT_THAT(faultOf(with(program, 0, "RIFF")), HasSubstr("not a preset"));
    EXPECT_THAT(faultOf(with(program, 8, "FxCk")), HasSubstr("values without the chain"));
    EXPECT_THAT(faultOf(with(bank, 8, "FxBk")), HasSubstr("values without the chain"));
    EXPECT_EQ(faultOf(with(program, 8, "Fxxx")), "not a preset (unknown kind \"Fxxx\")");
    EXPECT_EQ(faultOf(with(program, versionPlace, "\0\0\0\x02"s)),
              "unknown version 2 of the file format");
    EXPECT_EQ(faultOf(with(bank, versionPlace, "\0\0\0\x03"s)),
              "unknown version 3 of the file format");
    EXPECT_EQ(faultOf(with(bank, versionPlace, "\0\0\0\0"s)),
              "unknown version 0 of the file format");
}

TEST(FxContainer, ACurrentProgramOutsideTheBankIsRefused) {
    EXPECT_EQ(faultOf(with(fxFromPreset(factoryBank(2)), 28, "\0\0\0\x14"s)),
              "its current program is 20, outside 0 to 19");
}

TEST(FxContainer, AnUnsoundProgramIsRefused) {
    SPreset preset = leadVocal();
    preset.programs[0].parameters[kGain] = 2.0f;
    EXPECT_EQ(faultOf(fxFromPreset(preset)), "parameter Gain is 2, outside 0 to 1");
}
