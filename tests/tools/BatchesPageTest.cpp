#include "tools/support/AudioFiles.h"
#include "tools/support/CTemporaryFolder.h"
#include "tools/support/Program.h"

#include <algorithm>
#include <gmock/gmock.h>

// The commands in docs/batches.md, run as they are written there.

namespace fs = std::filesystem;
using testing::HasSubstr;

namespace {

using Names = std::vector<std::string>;

class BatchesPage : public testing::Test {
protected:
    BatchesPage() {
        for (const char *name : {"a.wav", "b c.wav", "day 2/d.wav"}) {
            fs::create_directories((folder / "takes" / name).parent_path());
            writeSound(folder / "takes" / name, voice(5, 500));
        }
        writeFile(folder / "takes/list.txt", "");
        fs::last_write_time(folder / "takes/list.txt",
                            fs::file_time_type::clock::now() - std::chrono::hours(1));
        writeFile(folder / "machines.txt", ":\n");
    }

    /// Runs the shell commands of the page that contain certain words.
    void run(const std::string &words, const std::string &environment = "") {
        const std::string page = readFile(CORVEL_SCRIPTS "/../docs/batches.md");
        const std::string fence = "```sh\n";
        for (std::size_t begin = page.find(fence); begin != page.npos;
             begin = page.find(fence, begin)) {
            begin += fence.size();
            const std::string block = page.substr(begin, page.find("```", begin) - begin);
            if (block.find(words) == block.npos)
                continue;
            writeFile(folder / "script", "set -e\n" + block);
            const SProgramRun done =
                runProgram("bash", {folder / "script"},
                           "cd " + folder.path().string() +
                               "; PATH=" + fs::path(CORVEL_PROGRAM).parent_path().string() +
                               ":$PATH " + environment);
            EXPECT_EQ(done.status, 0) << block << done.errors;
            return;
        }
        ADD_FAILURE() << "the page has no commands with " << words;
    }

    Names filesIn(const std::string &name) const {
        Names names;
        for (const auto &entry : fs::recursive_directory_iterator(folder / name))
            if (entry.is_regular_file())
                names.push_back(fs::relative(entry.path(), folder / name));
        std::sort(names.begin(), names.end());
        return names;
    }

    CTemporaryFolder folder;
};

}  // namespace

TEST_F(BatchesPage, CommandsForOneMachine) {
    run("takes/*.wav mixed/");
    EXPECT_EQ(filesIn("mixed"), (Names{"a.wav", "b c.wav"}));
    EXPECT_EQ(filesIn("tree"), (Names{"a.wav", "b c.wav", "day 2/d.wav"}));
    EXPECT_EQ(filesIn("named"), (Names{"a-Choir.wav", "b c-Choir.wav", "day 2/d-Choir.wav"}));
    EXPECT_EQ(filesIn("new"), (Names{"a.wav", "b c.wav", "d.wav"}));
    run("tree --skip-existing");
}

TEST_F(BatchesPage, GnuParallelKeepsSubFolders) {
    run("spread/{//}");
    EXPECT_EQ(filesIn("spread"), (Names{"takes/a.wav", "takes/b c.wav", "takes/day 2/d.wav"}));
    run("spread/{//}");
}

TEST_F(BatchesPage, GnuParallelGivesEachMachineManyFiles) {
    run("--sshloginfile");
    EXPECT_EQ(filesIn("shared"), (Names{"a.wav", "b c.wav"}));
}

TEST_F(BatchesPage, TheTasksOfASlurmArrayShareTheFiles) {
    Names expected;
    for (int i = 10; i < 21; ++i) {
        expected.push_back(std::to_string(i) + ".wav");
        writeSound(folder / "takes" / expected.back(), voice(5, 100));
    }
    expected.insert(expected.end(), {"a.wav", "b c.wav"});
    std::size_t before = 0;
    for (int task = 0; task < 8; ++task) {
        run("#SBATCH", "SLURM_ARRAY_TASK_COUNT=8 SLURM_CPUS_PER_TASK=2 SLURM_ARRAY_TASK_ID=" +
                           std::to_string(task));
        const std::size_t now = filesIn("farm").size();
        EXPECT_THAT(now - before, testing::AnyOf(1u, 2u));
        before = now;
    }
    EXPECT_EQ(filesIn("farm"), expected);
}

TEST_F(BatchesPage, ATaskWithoutFilesSucceeds) {
    run("#SBATCH", "SLURM_ARRAY_TASK_COUNT=8 SLURM_CPUS_PER_TASK=2 SLURM_ARRAY_TASK_ID=7");
    EXPECT_FALSE(fs::exists(folder / "farm"));
}
