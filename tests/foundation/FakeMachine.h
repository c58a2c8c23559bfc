#pragma once

#include "platform/NativeDrive.h"
#include "platform/NativeFile.h"
#include "platform/NativeScreen.h"
#include "platform/NativeTime.h"

#include <gtest/gtest.h>
#include <map>
#include <string>

struct SFakeDrive {
    SNativeVolume volume;
    ENativeDriveType type = ENativeDriveType::Fixed;
};

/// The fake machine of a program that links FakeMachine.cpp. That file replaces the platform's
/// functions for drives, files, clock and screen: no real machine has drives of every type and a
/// second screen to the left.
struct SFakeMachine {
    std::map<std::string, SFakeDrive> drives;  // by their roots
    std::map<std::string, SNativeFile> files;  // by their paths
    std::map<std::string, int> fileCounts;     // by the paths of folders
    std::string systemFolder;
    SNativeTime localTime;
    SNativeRect virtualScreen;
};

/// Empty until a test fills it.
SFakeMachine &fakeMachine();

/// Empties the machine before each test.
class CFakeMachineTest : public testing::Test {
protected:
    CFakeMachineTest() { machine = {}; }

    SFakeMachine &machine = fakeMachine();
};
