#include "foundation/CApplicationInformation.h"

#include "foundation/CDLLLoader.h"
#include "foundation/ProcessorFeatures.h"
#include "platform/NativeModule.h"

#include <filesystem>
#include <gtest/gtest.h>

using Tessitor::Basics::CApplicationInformation;
using Tessitor::Basics::CString;
using Tessitor::Host::CDLLLoader;

namespace {

class CApplicationInformationStore : public testing::Test {
protected:
    ~CApplicationInformationStore() override {
        CApplicationInformation::destroyApplicationInformation();
    }

    static void set() {
        CApplicationInformation::setApplicationInformation("company", "application", "description",
                                                           "version", "registry path", "copyright",
                                                           nativeModuleHandle());
    }
};

TEST_F(CApplicationInformationStore, IsEmptyAtFirst) {
    EXPECT_STREQ(CApplicationInformation::getCompanyName().getString(), "");
    EXPECT_STREQ(CApplicationInformation::getApplicationName().getString(), "");
    EXPECT_STREQ(CApplicationInformation::getDescription().getString(), "");
    EXPECT_STREQ(CApplicationInformation::getVersionString().getString(), "");
    EXPECT_STREQ(CApplicationInformation::getRegistryPath().getString(), "");
    EXPECT_STREQ(CApplicationInformation::getCopyrightString().getString(), "");
    EXPECT_STREQ(CApplicationInformation::getApplicationPath().getString(), "");
}

TEST_F(CApplicationInformationStore, StoresEachText) {
    set();
    EXPECT_STREQ(CApplicationInformation::getCompanyName().getString(), "company");
    EXPECT_STREQ(CApplicationInformation::getApplicationName().getString(), "application");
    EXPECT_STREQ(CApplicationInformation::getDescription().getString(), "description");
    EXPECT_STREQ(CApplicationInformation::getVersionString().getString(), "version");
    EXPECT_STREQ(CApplicationInformation::getRegistryPath().getString(), "registry path");
    EXPECT_STREQ(CApplicationInformation::getCopyrightString().getString(), "copyright");
}

TEST_F(CApplicationInformationStore, StoresNullAsAnEmptyText) {
    set();
    CApplicationInformation::setApplicationInformation(nullptr, nullptr, nullptr, nullptr, nullptr,
                                                       nullptr, nullptr);
    EXPECT_STREQ(CApplicationInformation::getCompanyName().getString(), "");
    EXPECT_STREQ(CApplicationInformation::getApplicationName().getString(), "");
    EXPECT_STREQ(CApplicationInformation::getDescription().getString(), "");
    EXPECT_STREQ(CApplicationInformation::getVersionString().getString(), "");
    EXPECT_STREQ(CApplicationInformation::getRegistryPath().getString(), "");
    EXPECT_STREQ(CApplicationInformation::getCopyrightString().getString(), "");
}

TEST_F(CApplicationInformationStore, StoresTheHandle) {
    set();
    EXPECT_EQ(CApplicationInformation::getInstanceHandle(), nativeModuleHandle());
    EXPECT_EQ(CApplicationInformation::getModuleHandle(), nativeModuleHandle());
}

TEST_F(CApplicationInformationStore, ApplicationPathIsTheModulesFolderWithoutATrailingSeparator) {
    set();
    const std::filesystem::path module = nativeModulePath(nativeModuleHandle());
    EXPECT_EQ(CApplicationInformation::getApplicationPath().getString(),
              module.parent_path().string());
}

TEST_F(CApplicationInformationStore, ReadsTheProcessorFeatures) {
    set();
    EXPECT_TRUE(Tessitor::Basics::getProcessorFeatures().hasSse2);
}

TEST_F(CApplicationInformationStore, ReturnsThePathsOfProgramAndModule) {
    const CDLLLoader library(SAMPLE_MODULE);
    const auto handle = reinterpret_cast<void *(*)()>(library.getFunction("sampleModuleHandle"))();
    CApplicationInformation::setApplicationInformation("", "", "", "", "", "", handle);
    CString program, module;
    CApplicationInformation::getApplicationFileName(program);
    CApplicationInformation::getPluginFileName(module);
    EXPECT_EQ(std::filesystem::path(program.getString()).stem(), "foundation_tests");
    EXPECT_TRUE(std::filesystem::equivalent(module.getString(), SAMPLE_MODULE));
}

TEST_F(CApplicationInformationStore, DestroyingFreesEveryText) {
    const auto &record = CString().getClass();
    const auto before = record.getInstanceCount();
    set();
    EXPECT_EQ(record.getInstanceCount(), before + 7);
    CApplicationInformation::destroyApplicationInformation();
    EXPECT_EQ(record.getInstanceCount(), before);
    EXPECT_STREQ(CApplicationInformation::getCompanyName().getString(), "");
}

TEST_F(CApplicationInformationStore, RemembersTheMainWindow) {
    EXPECT_EQ(CApplicationInformation::getMainWindow(), nullptr);
    int window = 0;
    auto *address = reinterpret_cast<Tessitor::GUI::Windowing::IWindow *>(&window);
    CApplicationInformation::setMainWindow(address);
    EXPECT_EQ(CApplicationInformation::getMainWindow(), address);
    CApplicationInformation::setMainWindow(nullptr);
}

TEST_F(CApplicationInformationStore, QuittingEndsTheMessageLoopWithZero) {
    CApplicationInformation::quitApplication();
    EXPECT_EQ(CApplicationInformation::runMessageLoop(), 0);
}

}  // namespace
