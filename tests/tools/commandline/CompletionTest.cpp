#include "tools/support/Program.h"

#include <gmock/gmock.h>
#include <sstream>

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

// `corvel complete`, which the scripts for the shells run

namespace {

using Lines = std::vector<std::string>;

Lines complete(Lines words) {
    words.insert(words.begin(), "complete");
    const SProgramRun run = corvel(words);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.errors, "");
    std::istringstream text(run.out);
    Lines lines;
    for (std::string line; std::getline(text, line);)
        lines.push_back(line);
    return lines;
}

// What the shell would insert, without the descriptions
Lines texts(const Lines &words) {
    Lines lines = complete(words);
    for (std::string &line : lines)
        line.resize(std::min(line.find('\t'), line.size()));
    return lines;
}

}  // namespace

TEST(Completion, NamesTheCommandsWithTheirMeaning) {
    EXPECT_THAT(complete({""}), Contains("render\tRender audio files through the effect"));
    EXPECT_THAT(texts({"pre"}), ElementsAre("preset"));
    EXPECT_THAT(texts({"preset", ""}), ElementsAre("show", "save", "convert", "check"));
}

TEST(Completion, NamesTheOptionsOfTheCommand) {
    EXPECT_THAT(complete({"render", "in.wav", "--te"}),
                ElementsAre("--tempo\tTempo in beats per minute, 10 to 1000"));
    EXPECT_THAT(texts({"preset", "convert", "--"}), ElementsAre("--help", "--force"));
    EXPECT_THAT(texts({"--v"}), ElementsAre("--version"));
}

TEST(Completion, OffersAnOptionOnceUnlessItMayBeRepeated) {
    const Lines options =
        texts({"render", "--mono", "--program=Pub", "--set", "Pan=0:100", "in.wav", "--"});
    EXPECT_THAT(options, Not(Contains("--mono")));
    EXPECT_THAT(options, Not(Contains("--program")));
    EXPECT_THAT(options, Contains("--set"));
}

TEST(Completion, NamesThePrograms) {
    EXPECT_THAT(complete({"render", "--program", "pop v"}), ElementsAre(StartsWith("Pop Vocal\t")));
    EXPECT_THAT(texts({"params", "--program", ""}), Contains("Rock Vocal (Send)"));
    EXPECT_THAT(texts({"params", "--program=Ch"}), ElementsAre("--program=Choir"));
}

TEST(Completion, NamesTheParametersAndTheirChoices) {
    EXPECT_THAT(complete({"render", "--set", "inm"}),
                ElementsAre("InMono=\tCombine, AllLeft, AllRight, Stereo"));
    EXPECT_THAT(complete({"render", "--set", "InMono=All"}),
                ElementsAre("InMono=AllLeft", "InMono=AllRight"));
    EXPECT_THAT(complete({"render", "--set", "InGain="}), IsEmpty());
    EXPECT_THAT(complete({"render", "--set", ""}), Not(Contains(StartsWith("="))));
}

TEST(Completion, ContinuesAChain) {
    EXPECT_THAT(complete({"render", "--chain", "Pan,mod"}),
                ElementsAre("Pan,Modulator 1", "Pan,Modulator 2"));
    EXPECT_THAT(complete({"render", "--chain", "pan,P"}),
                ElementsAre("pan,Presence", "pan,Parametric"));
}

TEST(Completion, NamesTheFormats) {
    EXPECT_THAT(complete({"render", "--format", "flac"}),
                ElementsAre("flac", "flac:24", "flac:16", "flac:8"));
}

TEST(Completion, AsksTheShellForFilesAndFolders) {
    EXPECT_THAT(complete({"render", ""}), ElementsAre("@files"));
    EXPECT_THAT(complete({"render", "--", "-x"}), ElementsAre("@files"));
    EXPECT_THAT(complete({"render", "--plugin", "x"}), ElementsAre("@files"));
    EXPECT_THAT(complete({"render", "--plugin=x"}), ElementsAre("@files"));
    EXPECT_THAT(complete({"render", "--out-dir", ""}), ElementsAre("@folders"));
}

TEST(Completion, TakesTheNamesFromTheEffectThatIsNamed) {
    EXPECT_THAT(texts({"render", "--plugin", testEffect("Whole"), "--program", ""}),
                ElementsAre("Plain", "Loud", "Empty"));
}

TEST(Completion, IsSilentWhereNothingFits) {
    EXPECT_THAT(complete({}), IsEmpty());
    EXPECT_THAT(complete({"play"}), IsEmpty());
    EXPECT_THAT(complete({"render", "--tempo", ""}), IsEmpty());
    EXPECT_THAT(complete({"render", "--loud=x"}), IsEmpty());
    EXPECT_THAT(complete({"render", "--mono=x"}), IsEmpty());
    EXPECT_THAT(complete({"render", "--plugin", "missing.so", "--program", ""}), IsEmpty());
}
