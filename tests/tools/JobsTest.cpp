#include "corvel/Jobs.h"

#include "corvel/Errors.h"
#include "tools/support/CTemporaryFolder.h"

#include <gtest/gtest.h>
#include <sndfile.h>

using namespace Tessitor::Tool;

namespace {

const SFormatRequest noFormat;

std::vector<std::string> outputs(const std::vector<SRenderJob> &jobs) {
    std::vector<std::string> names;
    for (const SRenderJob &job : jobs)
        names.push_back(job.out);
    return names;
}

using Names = std::vector<std::string>;

}  // namespace

TEST(Jobs, OneInputGoesToTheNamedFile) {
    const auto jobs = jobsFromFiles({"a.wav", "b.wav"}, noFormat);
    ASSERT_EQ(jobs.size(), 1u);
    EXPECT_EQ(jobs[0].in, "a.wav");
    EXPECT_EQ(jobs[0].out, "b.wav");
}

TEST(Jobs, OutputsInAFolderAreNamedAfterTheInputs) {
    const CTemporaryFolder folder;
    EXPECT_EQ(outputs(jobsFromFiles({"x/a.wav", folder.path()}, noFormat)),
              Names{folder / "a.wav"});
    EXPECT_EQ(outputs(jobsFromFiles({"x/a.wav", "b.flac", folder.path()}, noFormat)),
              (Names{folder / "a.wav", folder / "b.flac"}));
}

TEST(Jobs, TheFolderForSeveralInputsMayBeMissing) {
    EXPECT_EQ(outputs(jobsFromFiles({"a.wav", "b.wav", "later"}, noFormat)),
              (Names{"later/a.wav", "later/b.wav"}));
}

TEST(Jobs, AnotherContainerChangesTheExtension) {
    EXPECT_EQ(outputs(jobsFromFiles({"a.wav", "b.aif", "c", "later"}, {SF_FORMAT_AIFF, 0})),
              (Names{"later/a.aiff", "later/b.aif", "later/c.aiff"}));
}

TEST(Jobs, SeveralInputsIntoAFileAreRefused) {
    const CTemporaryFolder folder;
    writeFile(folder / "file", "");
    EXPECT_THROW(jobsFromFiles({"a.wav", "b.wav", folder / "file"}, noFormat), CCallError);
}

TEST(Jobs, TwoInputsWithTheSameNameAreRefused) {
    EXPECT_THROW(jobsFromFiles({"x/a.wav", "y/a.wav", "later"}, noFormat), CCallError);
    EXPECT_THROW(jobsFromFiles({"a.wav", "a.flac", "later"}, {SF_FORMAT_OGG, 0}), CCallError);
}

TEST(Jobs, AnInputIsNotOverwritten) {
    const CTemporaryFolder folder;
    writeFile(folder / "a.wav", "");
    std::filesystem::create_symlink(folder / "a.wav", folder / "link.wav");
    EXPECT_THROW(jobsFromFiles({folder / "a.wav", folder / "a.wav"}, noFormat), CCallError);
    EXPECT_THROW(jobsFromFiles({folder / "a.wav", folder.path()}, noFormat), CCallError);
    EXPECT_THROW(jobsFromFiles({folder / "a.wav", folder / "link.wav"}, noFormat), CCallError);
    EXPECT_THROW(jobsFromFiles({folder / "link.wav", folder / "./a.wav"}, noFormat), CCallError);
}
