#include "tools/support/CTemporaryFolder.h"
#include "tools/support/Program.h"

#include <gmock/gmock.h>

// scripts/run.sh and scripts/build.sh in a tree with stand-ins for what they call

namespace fs = std::filesystem;
using testing::HasSubstr;

namespace {

class RunScript : public testing::Test {
protected:
    RunScript() {
        fs::create_directories(folder / "scripts");
        fs::create_directories(folder / "build/linux/bin");
        for (const char *const name : {"run.sh", "build.sh"})
            fs::copy(fs::path(CORVEL_SCRIPTS) / name, folder / "scripts");
        writeScript("scripts/setup.sh", "");
        writeScript("cmake", "echo \"cmake $*\"");
        writeScript("build/linux/bin/corvel", "for word; do echo \"<$word>\"; done");
    }

    void writeScript(const std::string &name, const std::string &commands) {
        writeFile(folder / name, "#!/bin/sh\n" + commands + "\n");
        fs::permissions(folder / name, fs::perms::owner_all);
    }

    SProgramRun run(const std::string &script, const std::vector<std::string> &arguments) {
        return runProgram(folder / "scripts" / script, arguments,
                          "PATH=" + folder.path().string() + ":$PATH");
    }

    std::string rendered(const std::string &voice, const std::string &options) {
        return "<render>\n<" + voice + ">\n<" +
               (folder / "build/voices" / fs::path(voice).filename()).string() + ">\n<--force>\n" +
               options;
    }

    CTemporaryFolder folder;
};

}  // namespace

TEST_F(RunScript, TakesAFileAndOptionsOrEither) {
    const std::string usual = "/usr/share/sounds/alsa/Front_Center.wav";
    EXPECT_EQ(run("run.sh", {}).out, rendered(usual, ""));
    EXPECT_EQ(run("run.sh", {"a b.wav"}).out, rendered("a b.wav", ""));
    EXPECT_EQ(run("run.sh", {"--program", "Pop Vocal"}).out,
              rendered(usual, "<--program>\n<Pop Vocal>\n"));
    EXPECT_EQ(run("run.sh", {"x/a.wav", "--json"}).out, rendered("x/a.wav", "<--json>\n"));
}

TEST_F(RunScript, ShowsWhatItIsBuilding) {
    EXPECT_THAT(run("run.sh", {}).errors,
                HasSubstr("cmake --build --preset linux --target Corvel corvel\n"));
}

TEST_F(RunScript, ABuildIsSilentUnlessAsked) {
    const SProgramRun silent = run("build.sh", {"linux", "corvel"});
    EXPECT_EQ(silent.out + silent.errors, "");
    EXPECT_EQ(run("build.sh", {"--progress", "linux", "corvel"}).errors,
              "cmake --build --preset linux --target corvel\n");
}
