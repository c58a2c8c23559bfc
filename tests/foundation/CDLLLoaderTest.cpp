#include "foundation/CDLLLoader.h"

#include "CTemporaryFolder.h"
#include "foundation/CException.h"
#include "foundation/ReadFile.h"
#include "foundation/Trace.h"
#include "platform/NativeLibrary.h"

#include <fstream>
#include <gtest/gtest.h>
#include <string>

using Tessitor::Exceptions::CException;
using Tessitor::Host::CDLLLoader;

namespace {

/// @return true if the loader finds the function of the sample library and it works.
bool hasSample(const CDLLLoader &loader) {
    const auto ask = reinterpret_cast<std::size_t (*)(char *, std::size_t)>(
        loader.getFunction("sampleModulePath"));
    char path[4096];
    return ask != nullptr && ask(path, sizeof path) > 0;
}

/// @return the number of calls since the sample library was loaded, this one included.
int sampleCalls(const CDLLLoader &loader) {
    return reinterpret_cast<int (*)()>(loader.getFunction("sampleCalls"))();
}

TEST(CDLLLoader, FindsTheFunctionsOfALibrary) {
    const CDLLLoader loader(SAMPLE_MODULE);
    EXPECT_TRUE(hasSample(loader));
    EXPECT_EQ(loader.getFunction("noFunction"), nullptr);
}

TEST(CDLLLoader, WithoutALibraryHasNoFunctions) {
    EXPECT_EQ(CDLLLoader().getFunction("sampleModulePath"), nullptr);
    EXPECT_EQ(CDLLLoader().getFunction("malloc"), nullptr);
}

TEST(CDLLLoader, ThrowsIfTheFileDoesNotExist) {
    CDLLLoader loader;
    try {
        loader.loadDll("none.dll");
        FAIL() << "nothing thrown";
    } catch (const CException &exception) {
        EXPECT_STREQ(exception.getErrorReason().getString(), "none.dll doesnt exist");
        EXPECT_STREQ(exception.getFunctionName().getString(),
                     "CDLLLoader::loadDll(const CString &)");
    }
    EXPECT_THROW(CDLLLoader("none.dll"), CException);
}

TEST(CDLLLoader, KeepsTheLibraryIfTheNextFileDoesNotExist) {
    CDLLLoader loader(SAMPLE_MODULE);
    EXPECT_THROW(loader.loadDll("none.dll"), CException);
    EXPECT_TRUE(hasSample(loader));
}

TEST(CDLLLoader, LoadsTheSameLibraryAgain) {
    CDLLLoader loader(SAMPLE_MODULE);
    loader.loadDll(SAMPLE_MODULE);
    EXPECT_TRUE(hasSample(loader));
}

TEST(CDLLLoader, AFileThatIsNoLibraryHasNoFunctions) {
    const CTemporaryFolder folder;
    const std::string path = (folder / "text.dll").string();
    std::ofstream(path) << "no library";
    CDLLLoader loader(SAMPLE_MODULE);
    EXPECT_EQ(sampleCalls(loader), 1);
    loader.loadDll(path.c_str());
    EXPECT_EQ(loader.getFunction("sampleModulePath"), nullptr);
    EXPECT_EQ(sampleCalls(CDLLLoader(SAMPLE_MODULE)), 1) << "the first library was not unloaded";
}

TEST(CDLLLoader, UnloadsTheLibraryWhenItIsDestroyed) {
    EXPECT_EQ(sampleCalls(CDLLLoader(SAMPLE_MODULE)), 1);
    EXPECT_EQ(sampleCalls(CDLLLoader(SAMPLE_MODULE)), 1);
}

TEST(CDLLLoader, TracesWhyTheSystemRefusesAFile) {
    const CTemporaryFolder folder;
    const std::string path = (folder / "text.dll").string(), log = (folder / "log").string();
    std::ofstream(path) << "no library";
    std::string reason;
    openNativeLibrary(path, reason);
    ASSERT_NE(reason, "");

    Tessitor::IO::openTrace(log.c_str());
    { const CDLLLoader refused(path.c_str()), loaded(SAMPLE_MODULE); }
    Tessitor::IO::openTrace("");
    EXPECT_EQ(readFile(log), "Failed to load library with path = " + path + ": " + reason + "\n");
}

TEST(CDLLLoader, EveryConstructorCounts) {
    const CDLLLoader loader;
    EXPECT_TRUE(loader.getClass() == "CDLLLoader");
    const auto instances = loader.getClass().getInstanceCount();
    {
        const CDLLLoader another(SAMPLE_MODULE);
        EXPECT_EQ(loader.getClass().getInstanceCount(), instances + 1);
    }
    EXPECT_THROW(CDLLLoader("none.dll"), CException);
    EXPECT_EQ(loader.getClass().getInstanceCount(), instances);
}

}  // namespace
