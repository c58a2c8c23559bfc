#include "corvel/effect/HostCallback.h"

#include <gtest/gtest.h>
#include <thread>
#include <utility>

using namespace Tessitor::Tool;

namespace {

class HostCallback : public testing::Test {
protected:
    HostCallback() { effect.resvd1 = reinterpret_cast<std::intptr_t>(&state); }

    std::intptr_t ask(std::int32_t opcode, std::int32_t index = 0, std::intptr_t value = 0,
                      void *ptr = nullptr) {
        return hostCallback(&effect, opcode, index, value, ptr, 0.0f);
    }

    SHostState state;
    AEffect effect{};
};

}  // namespace

TEST_F(HostCallback, ReturnsItsVersionWithoutAnEffect) {
    EXPECT_EQ(hostCallback(nullptr, audioMasterVersion, 0, 0, nullptr, 0.0f), 2400);
}

TEST_F(HostCallback, AnswersEveryQuestionWithoutAnEffectOrState) {
    effect.resvd1 = 0;
    for (std::int32_t opcode = -1; opcode < 60; ++opcode) {
        hostCallback(nullptr, opcode, 0, 0, nullptr, 0.0f);
        hostCallback(&effect, opcode, 0, 0, nullptr, 0.0f);
    }
    EXPECT_EQ(ask(audioMasterGetTime), 0);
}

TEST_F(HostCallback, AnswersZeroForAConnectedPin) {
    EXPECT_EQ(ask(audioMasterPinConnected, 0), 0);
    EXPECT_EQ(ask(audioMasterPinConnected, 1), 0);
    EXPECT_NE(ask(audioMasterPinConnected, 2), 0);
    state.rightInputConnected = false;
    EXPECT_EQ(ask(audioMasterPinConnected, 0), 0);
    EXPECT_NE(ask(audioMasterPinConnected, 1), 0);
    EXPECT_EQ(ask(audioMasterPinConnected, 1, 1), 0);  // the output's pin
    state.rightOutputConnected = false;
    EXPECT_NE(ask(audioMasterPinConnected, 1, 1), 0);
}

TEST_F(HostCallback, ReturnsTimeRateAndBlockSizeOfTheInstance) {
    state.time.tempo = 97.0;
    state.time.sampleRate = 48000.0;
    state.blockSize = 256;
    const auto *time = reinterpret_cast<VstTimeInfo *>(ask(audioMasterGetTime));
    ASSERT_NE(time, nullptr);
    EXPECT_EQ(time->tempo, 97.0);
    EXPECT_EQ(ask(audioMasterGetSampleRate), 48000);
    EXPECT_EQ(ask(audioMasterGetBlockSize), 256);
}

TEST_F(HostCallback, ReturnsItsNamesAndCapabilities) {
    char text[64] = {};
    EXPECT_EQ(ask(audioMasterGetProductString, 0, 0, text), 1);
    EXPECT_STREQ(text, "corvel");
    EXPECT_EQ(ask(audioMasterGetVendorString, 0, 0, text), 1);
    EXPECT_STREQ(text, "Lumatic");
    EXPECT_EQ(ask(audioMasterCanDo, 0, 0, const_cast<char *>("sendVstTimeInfo")), 1);
    EXPECT_EQ(ask(audioMasterCanDo, 0, 0, const_cast<char *>("sizeWindow")), 1);
    EXPECT_EQ(ask(audioMasterCanDo, 0, 0, const_cast<char *>("shellCategory")), 0);
    EXPECT_EQ(ask(audioMasterGetCurrentProcessLevel), kVstProcessLevelOffline);
}

TEST_F(HostCallback, SaysWhatTheCallingThreadWorksFor) {
    std::thread([this] {
        setProcessLevelOfThread(kVstProcessLevelRealtime);
        EXPECT_EQ(ask(audioMasterGetCurrentProcessLevel), kVstProcessLevelRealtime);
    }).join();
    EXPECT_EQ(ask(audioMasterGetCurrentProcessLevel), kVstProcessLevelOffline);
}

TEST_F(HostCallback, ResizesTheEditorsWindowIfThereIsOne) {
    struct CWindow : IEditorHost {
        void resizeEditor(std::int32_t width, std::int32_t height) override {
            size = {width, height};
        }
        std::pair<int, int> size;
    } window;
    EXPECT_EQ(ask(audioMasterSizeWindow, 300, 200), 0);
    state.editor = &window;
    EXPECT_EQ(ask(audioMasterSizeWindow, 300, 200), 1);
    EXPECT_EQ(window.size, std::pair(300, 200));
    EXPECT_EQ(ask(audioMasterSizeWindow, 0, 200), 0);
    EXPECT_EQ(window.size, std::pair(300, 200));
}
