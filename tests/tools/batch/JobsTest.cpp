#include "corvel/batch/Jobs.h"

#include "corvel/console/Errors.h"
#include "tools/support/CTemporaryFolder.h"

#include <gtest/gtest.h>
#include <sndfile.h>

using namespace Tessitor::Tool;

namespace {

const SFormatRequest noFormat;

using Names = std::vector<std::string>;

SJobs jobsFor(const Names &files, const SFormatRequest &format = noFormat) {
    return jobsFromFiles({files, {}}, format, "Plain");
}

Names outputs(const SJobs &jobs) {
    Names names;
    for (const SRenderJob &job : jobs.jobs)
        names.push_back(job.out);
    return names;
}

}  // namespace

TEST(Jobs, OneInputGoesToTheNamedFile) {
    const auto jobs = jobsFor({"a.wav", "b.wav"}).jobs;
    ASSERT_EQ(jobs.size(), 1u);
    EXPECT_EQ(jobs[0].in, "a.wav");
    EXPECT_EQ(jobs[0].out, "b.wav");
}

TEST(Jobs, OutputsInAFolderAreNamedAfterTheInputs) {
    const CTemporaryFolder folder;
    EXPECT_EQ(outputs(jobsFor({"x/a.wav", folder.path()})), Names{folder / "a.wav"});
    EXPECT_EQ(outputs(jobsFor({"x/a.wav", "b.flac", folder.path()})),
              (Names{folder / "a.wav", folder / "b.flac"}));
}

TEST(Jobs, TheFolderForSeveralInputsMayBeMissing) {
    EXPECT_EQ(outputs(jobsFor({"a.wav", "b.wav", "later/"})),
              (Names{"later/a.wav", "later/b.wav"}));
}

TEST(Jobs, AnotherContainerChangesTheExtension) {
    EXPECT_EQ(outputs(jobsFor({"a.wav", "b.aif", "c", "later/"}, {SF_FORMAT_AIFF, 0})),
              (Names{"later/a.aiff", "later/b.aif", "later/c.aiff"}));
}

TEST(Jobs, ANamedFolderMakesAllFilesInputs) {
    const SJobs jobs = jobsFromFiles({{"x/a.wav", "b.wav"}, "later"}, noFormat, "");
    EXPECT_EQ(jobs.folder, "later");
    EXPECT_EQ(outputs(jobs), (Names{"later/a.wav", "later/b.wav"}));
    EXPECT_EQ(outputs(jobsFromFiles({{"a.wav"}, "later"}, noFormat, "")), Names{"later/a.wav"});
}

TEST(Jobs, ASlashMakesAFolderForOneInput) {
    EXPECT_EQ(jobsFor({"a.wav", "later/"}).folder, "later/");
    EXPECT_FALSE(jobsFor({"a.wav", "later"}).folder.has_value());
}

TEST(Jobs, AnIncompleteCallIsRefused) {
    EXPECT_THROW(jobsFor({}), CCallError);
    EXPECT_THROW(jobsFor({"a.wav"}), CCallError);
    EXPECT_THROW(jobsFor({"a.wav", ""}), CCallError);
    EXPECT_THROW(jobsFor({"", "b.wav"}), CCallError);
    EXPECT_THROW(jobsFromFiles({{}, "later"}, noFormat, ""), CCallError);
    EXPECT_THROW(jobsFromFiles({{"a.wav"}, ""}, noFormat, ""), CCallError);
}

TEST(Jobs, SeveralInputsIntoAFileAreRefused) {
    const CTemporaryFolder folder;
    writeFile(folder / "file", "");
    EXPECT_THROW(jobsFor({"a.wav", "b.wav", folder / "missing"}), CCallError);
    EXPECT_THROW(jobsFor({"a.wav", "b.wav", folder / "file"}), CCallError);
}

TEST(Jobs, TwoInputsWithTheSameNameAreRefused) {
    EXPECT_THROW(jobsFor({"x/a.wav", "y/a.wav", "later/"}), CCallError);
    EXPECT_THROW(jobsFor({"a.wav", "a.flac", "later/"}, {SF_FORMAT_OGG, 0}), CCallError);
}

TEST(Jobs, AnInputIsNotOverwritten) {
    const CTemporaryFolder folder;
    writeFile(folder / "a.wav", "");
    std::filesystem::create_symlink(folder / "a.wav", folder / "link.wav");
    EXPECT_THROW(jobsFor({folder / "a.wav", folder / "a.wav"}), CCallError);
    EXPECT_THROW(jobsFor({folder / "a.wav", folder.path()}), CCallError);
    EXPECT_THROW(jobsFor({folder / "a.wav", folder / "link.wav"}), CCallError);
    EXPECT_THROW(jobsFor({folder / "link.wav", folder / "./a.wav"}), CCallError);
    std::filesystem::create_hard_link(folder / "a.wav", folder / "second.wav");
    EXPECT_THROW(jobsFor({folder / "a.wav", folder / "second.wav"}), CCallError);
}

TEST(Jobs, ADashIsAStream) {
    const CTemporaryFolder folder;
    EXPECT_EQ(outputs(jobsFor({"-", "b.wav"})), Names{"b.wav"});
    EXPECT_EQ(outputs(jobsFor({"a.wav", "-"})), Names{"-"});
    EXPECT_EQ(outputs(jobsFor({"-", "-"})), Names{"-"});
    EXPECT_EQ(outputs(jobsFor({"./-", "./--"})), Names{"./--"});
}

TEST(Jobs, AStreamIsAlone) {
    const CTemporaryFolder folder;
    EXPECT_THROW(jobsFor({"-", folder.path()}), CCallError);
    EXPECT_THROW(jobsFor({"-", "later/"}), CCallError);
    EXPECT_THROW(jobsFor({"-", "a.wav", "later/"}), CCallError);
    EXPECT_THROW(jobsFor({"a.wav", "b.wav", "-"}), CCallError);
    EXPECT_THROW(jobsFromFiles({{"-"}, "later"}, noFormat, ""), CCallError);
}
