#include "corvel/batch/CNamePattern.h"

#include "corvel/console/Errors.h"

#include <gtest/gtest.h>

using namespace Tessitor::Tool;

namespace {

const SNameFields fields{"takes/voice.1.flac", "Lead Vocal", 7, 120};

std::string nameFor(const std::string &pattern, const SNameFields &with = fields) {
    return CNamePattern(pattern).nameFor(with);
}

std::string refusal(const std::string &pattern) {
    try {
        nameFor(pattern, {"...wav", "..", 1, 1});
    } catch (const CCallError &error) {
        return error.what();
    }
    return "";
}

}  // namespace

TEST(CNamePattern, FieldsAreReplaced) {
    EXPECT_EQ(nameFor("{stem}-{program}"), "voice.1-Lead Vocal");
    EXPECT_EQ(nameFor("{index} {stem}.{ext}"), "007 voice.1.flac");
    EXPECT_EQ(nameFor("same"), "same");
    EXPECT_EQ(nameFor("{stem}{stem}"), "voice.1voice.1");
    EXPECT_EQ(nameFor("{stem}.{ext}", {"plain", "", 1, 1}), "plain.");
}

TEST(CNamePattern, TheNumberIsAsWideAsTheLargest) {
    EXPECT_EQ(nameFor("{index}", {"a", "", 3, 9}), "3");
    EXPECT_EQ(nameFor("{index}", {"a", "", 3, 10}), "03");
    EXPECT_EQ(nameFor("{index}", {"a", "", 10, 10}), "10");
}

TEST(CNamePattern, TwoBracesAreOne) {
    EXPECT_EQ(nameFor("{{{stem}}}"), "{voice.1}");
    EXPECT_EQ(nameFor("{{stem}}"), "{stem}");
}

TEST(CNamePattern, ASlashMakesAFolder) {
    EXPECT_EQ(nameFor("{program}/{stem}"), "Lead Vocal/voice.1");
}

TEST(CNamePattern, CharactersThatCannotBeInANameAreReplaced) {
    const auto programNamed = [](const std::string &name) {
        return nameFor("{program}", {"a", name, 1, 1});
    };
    EXPECT_EQ(programNamed("a/b\\c:d*e?f\"g<h>i|j\nk\x7Fl"), "a-b-c-d-e-f-g-h-i-j-k-l");
    EXPECT_EQ(programNamed("  Tr\xC3\xA4um \xFF "), "Tr\xC3\xA4um \xFF");
    EXPECT_EQ(programNamed(" "), "unnamed");
}

TEST(CNamePattern, OnlyAnEndingThatIsWrittenIsAnEnding) {
    for (const char *pattern : {"{stem}.flac", "{stem}.{ext}", "x.WAV", "{stem}-2.aif"})
        EXPECT_TRUE(CNamePattern(pattern).hasEnding()) << pattern;
    for (const char *pattern : {"{stem}", "{stem}.v2", "{stem}{ext}", "{stem}.{program}", "wav",
                                "{stem}.flac{index}", "{ext}", "{stem}."})
        EXPECT_FALSE(CNamePattern(pattern).hasEnding()) << pattern;
}

TEST(CNamePattern, ALiteralEndingIsCommonToAllNames) {
    EXPECT_EQ(CNamePattern("{stem}.flac").commonEnding(), ".flac");
    for (const char *pattern : {"{stem}", "{stem}.{ext}", "{stem}.v2", "x"})
        EXPECT_EQ(CNamePattern(pattern).commonEnding(), "") << pattern;
}

TEST(CNamePattern, AWrongPatternIsRefused) {
    EXPECT_EQ(refusal("{stem}-{programme}"),
              "--name: no field {programme}; use {stem}, {ext}, {program} or {index}");
    EXPECT_EQ(refusal("{}"), "--name: no field {}; use {stem}, {ext}, {program} or {index}");
    EXPECT_EQ(refusal("{STEM}"),
              "--name: no field {STEM}; use {stem}, {ext}, {program} or {index}");
    EXPECT_EQ(refusal("a{stem"),
              "--name: a brace is not closed in \"a{stem\"; write {{ for a brace");
    EXPECT_EQ(refusal("a}b"), "--name: a brace is not opened in \"a}b\"; write }} for a brace");
    EXPECT_EQ(refusal(""), "--name: \"\" leaves no name for the file");
    EXPECT_EQ(refusal("{stem}/"), "--name: \"{stem}/\" leaves no name for the file");
}

TEST(CNamePattern, NoNameLeadsOutOfTheFolder) {
    for (const char *pattern :
         {"/{stem}", "../{stem}", "a/../../{stem}", "{stem}/x", "{program}/x"})
        EXPECT_NE(refusal(pattern).find("leads out of the folder"), std::string::npos) << pattern;
}
