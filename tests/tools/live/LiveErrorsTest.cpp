#include "tools/support/CTemporaryFolder.h"
#include "tools/support/ExpectOneError.h"

// Calls of `corvel live` that fail before a sound is heard. None needs a server.

namespace {

void expectWrongCall(std::vector<std::string> arguments, const std::string &words) {
    arguments.insert(arguments.begin(), "live");
    SCOPED_TRACE(testing::PrintToString(arguments));
    expectOneError(corvel(arguments), 2, words);
}

}  // namespace

TEST(LiveErrors, NoServerIsOneLine) {
    expectOneError(corvel({"live"}, "JACK_DEFAULT_SERVER=nobody"), 1,
                   "corvel: no JACK server is running; start JACK or PipeWire, or name a server "
                   "with --server\n");
    expectOneError(corvel({"live", "--server", "nobody"}), 1,
                   "corvel: no JACK server \"nobody\" is running\n");
}

TEST(LiveErrors, OnlyPlayingLiveNeedsJack) {
    const CTemporaryFolder folder;
    writeFile(folder / "libjack.so.0", "no library");
    const std::string broken = "LD_LIBRARY_PATH=" + folder.path().string();
    EXPECT_EQ(corvel({"programs"}, broken).status, 0);
    expectOneError(corvel({"live"}, broken), 1,
                   "libjack.so.0: cannot be loaded; corvel live plays through it");
}

TEST(LiveErrors, WrongValuesAreWrongCalls) {
    for (const std::string value : {"x", "", "9", "1001", "-1", "nan"})
        expectWrongCall({"--tempo", value}, value + " is not a number from 10 to 1000");
    for (const std::string value : {"x", "", "-1", "1000001", "nan"})
        expectWrongCall({"--seconds", value}, value + " is not a number from 0 to 1000000");
    for (const std::string value : {"0", "17", "-1"})
        expectWrongCall({"--channel", value}, value + " is not a number from 1 to 16");
    for (const std::string value : {"x", "", "1.5"})
        expectWrongCall({"--channel", value}, value + " is not a whole number");
    expectWrongCall({"--cc", "21"}, "--cc: \"21\" is not NUMBER=PARAMETER");
    expectWrongCall({"--cc", ""}, "--cc: \"\" is not NUMBER=PARAMETER");
    expectWrongCall({"--cc", "120=InGain"}, "--cc: \"120\" is not a controller's number");
    expectWrongCall({"--cc", "21=Nothing"}, "--cc: no parameter \"Nothing\"");
    expectWrongCall({"--program", "20"}, "--program: no program \"20\"");
    expectWrongCall({"--set", "InGain"}, "--set: \"InGain\" is not NAME=VALUE");
    expectWrongCall({"--chain", "Nothing"}, "--chain:");
    expectWrongCall({"voice.wav"}, "corvel live does not expect \"voice.wav\"");
}

TEST(LiveErrors, NamesThatJackCannotHaveAreWrongCalls) {
    expectWrongCall({"--name", ""}, "--name: the name is empty");
    expectWrongCall({"--name", "a:b"}, "--name: a name has no colon");
    expectWrongCall({"--name", "a\nb"}, "--name: a name has no control characters");
    expectWrongCall({"--name", std::string(65, 'a')}, "--name: the name is longer than 64 bytes");
}

TEST(LiveErrors, AnEffectHasToBeStereo) {
    expectOneError(corvel({"live", "--plugin", testEffect("OneChannel")}), 1,
                   "has 1 inputs and 1 outputs; only a stereo effect can render");
}

TEST(LiveErrors, AnEditorHasToBeThere) {
    expectOneError(corvel({"live", "--editor", "--plugin", testEffect("Whole")}), 2,
                   "--editor: " + testEffect("Whole") + " has no editor");
}

TEST(LiveErrors, APresetThatIsMissingFails) {
    const CTemporaryFolder folder;
    expectOneError(corvel({"live", "--preset", folder / "no.fxp"}), 1, "no such file");
}

TEST(LiveErrors, APresetThatCannotBeSavedFailsAtOnce) {
    const CTemporaryFolder folder;
    writeFile(folder / "my.fxp", "old");
    expectOneError(corvel({"live", "--save-preset", folder / "my.fxp"}), 1,
                   "my.fxp: exists already; --force replaces it");
    expectOneError(corvel({"live", "--save-preset", folder / "my.wav"}), 2, "my.wav");
    expectOneError(
        corvel({"live", "--save-preset", folder / "new.fxp", "--plugin", testEffect("Lively")}), 2,
        "not a Corvel effect; its presets cannot be saved");
    EXPECT_EQ(readFile(folder / "my.fxp"), "old");
}
