#include "corvel/presets/PresetFile.h"

#include "corvel/console/Errors.h"
#include "tools/support/CTemporaryFolder.h"
#include "tools/support/StoredPrograms.h"

#include <gmock/gmock.h>

using namespace Tessitor::Tool;
using testing::HasSubstr;

namespace {

class PresetFile : public testing::Test {
protected:
    std::string faultOf(const std::function<void()> &action) {
        try {
            action();
        } catch (const CJobError &error) {
            return error.what();
        }
        return "";
    }

    std::string faultOf(const std::string &name) {
        return faultOf([&] { readPreset(folder / name); });
    }

    CTemporaryFolder folder;
    const SPreset program{{factoryPrograms()[5]}, 0};
    const SPreset bank{factoryPrograms(), 5};
};

}  // namespace

TEST_F(PresetFile, EachFormatKeepsEveryByte) {
    for (const char *name : {"a.fxp", "a.json", "A.FXP"}) {
        writePreset(folder / name, program, false);
        EXPECT_EQ(bytesOf(readPreset(folder / name)), bytesOf(program)) << name;
    }
    for (const char *name : {"b.fxb", "b.json"}) {
        writePreset(folder / name, bank, false);
        EXPECT_EQ(readPreset(folder / name), bank) << name;
    }
}

TEST_F(PresetFile, TheContentsTellTheFormat) {
    writePreset(folder / "a.fxp", program, false);
    std::filesystem::rename(folder / "a.fxp", folder / "a.preset");
    EXPECT_EQ(readPreset(folder / "a.preset"), program);
    writePreset(folder / "b.fxb", bank, false);
    std::filesystem::rename(folder / "b.fxb", folder / "b.fxp");
    EXPECT_EQ(readPreset(folder / "b.fxp"), bank);
}

TEST_F(PresetFile, AProgramOfABankIsChosenByNumber) {
    writePreset(folder / "b.fxb", bank, false);
    const std::string file = folder / "b.fxb";
    EXPECT_EQ(readProgram(file + ":3"), bank.programs[3]);
    EXPECT_EQ(readProgram(file + ":19"), bank.programs[19]);
    EXPECT_EQ(readProgram(file), bank.programs[5]);  // the current one
    EXPECT_EQ(readPreset(presetPlaceFrom(file)), bank);
    EXPECT_EQ(readPreset(presetPlaceFrom(file + ":3")), (SPreset{{bank.programs[3]}, 0}));
    EXPECT_EQ(faultOf([&] { readProgram(file + ":20"); }),
              file + ": has no program 20, only 0 to 19");
    EXPECT_EQ(faultOf([&] { readProgram(file + ":x"); }), file + ":x: no such file");
    EXPECT_EQ(faultOf([&] { readProgram(file + ":"); }), file + ":: no such file");
}

TEST_F(PresetFile, ASingleProgramHasTheNumberZero) {
    writePreset(folder / "a.fxp", program, false);
    const std::string file = folder / "a.fxp";
    EXPECT_EQ(readProgram(file + ":0"), program.programs[0]);
    EXPECT_EQ(faultOf([&] { readProgram(file + ":1"); }),
              file + ": has no program 1, only one program");
}

TEST_F(PresetFile, AFileWithAColonInItsNameComesFirst) {
    writePreset(folder / "b.fxb", bank, false);
    writePreset(folder / "a.fxp", program, false);
    std::filesystem::rename(folder / "a.fxp", folder / "b.fxb:3");
    EXPECT_EQ(readProgram(folder / "b.fxb:3"), program.programs[0]);
}

TEST_F(PresetFile, WhatIsNoPresetIsRefusedByName) {
    EXPECT_EQ(faultOf("missing.fxp"), (folder / "missing.fxp").string() + ": no such file");
    std::filesystem::create_directory(folder / "folder.fxp");
    EXPECT_EQ(faultOf("folder.fxp"), (folder / "folder.fxp").string() + ": not a file");
    EXPECT_EQ(faultOf([] { readPreset(std::filesystem::path("/dev/zero")); }),
              "/dev/zero: not a file");
    writeFile(folder / "empty.fxp", "");
    EXPECT_THAT(faultOf("empty.fxp"), HasSubstr("empty.fxp: not a preset"));
    writeFile(folder / "text.fxb", "Dear Sir");
    EXPECT_THAT(faultOf("text.fxb"), HasSubstr("text.fxb: not a preset"));
    writeFile(folder / "text.json", "Dear Sir");
    EXPECT_THAT(faultOf("text.json"), HasSubstr("text.json: line 1, column 1: not valid JSON"));
}

TEST_F(PresetFile, AHugeFileIsNotRead) {
    writeFile(folder / "huge.json", "{");
    std::filesystem::resize_file(folder / "huge.json", std::uintmax_t(1) << 40);
    EXPECT_THAT(faultOf("huge.json"), HasSubstr("huge.json: too large for a preset"));
}

TEST_F(PresetFile, AnExistingFileIsOnlyReplacedOnRequest) {
    writeFile(folder / "a.fxp", "old");
    EXPECT_THAT(faultOf([&] { writePreset(folder / "a.fxp", program, false); }),
                HasSubstr("a.fxp: exists already"));
    EXPECT_EQ(readFile(folder / "a.fxp"), "old");
    writePreset(folder / "a.fxp", program, true);
    EXPECT_EQ(readPreset(folder / "a.fxp"), program);
    EXPECT_EQ(folder.names(), std::vector<std::string>{"a.fxp"});
}

TEST_F(PresetFile, AFormatHoldsEitherAProgramOrABank) {
    EXPECT_THAT(faultOf([&] { writePreset(folder / "b.fxp", bank, false); }),
                HasSubstr("b.fxp: an .fxp file holds one program"));
    EXPECT_THAT(faultOf([&] { writePreset(folder / "a.fxb", program, false); }),
                HasSubstr("a.fxb: an .fxb file holds a bank of 20 programs"));
    EXPECT_THROW(writePreset(folder / "a.wav", program, false), CCallError);
    EXPECT_TRUE(folder.names().empty());
}

TEST_F(PresetFile, AMissingFolderIsReported) {
    EXPECT_THAT(faultOf([&] { writePreset(folder / "missing/a.fxp", program, false); }),
                HasSubstr("missing/a.fxp: cannot be written"));
}
