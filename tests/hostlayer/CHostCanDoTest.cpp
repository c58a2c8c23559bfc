#include "hostlayer/CHostCanDo.h"

#include "foundation/CException.h"
#include "hostlayer/FakeHost.h"
#include "hostlayer/ProbeEffect.h"

#include <gtest/gtest.h>

using namespace Tessitor::Vst;
using Tessitor::Exceptions::CException;

namespace {

const char *const words[] = {"sendVstEvents",
                             "sendVstMidiEvent",
                             "sendVstTimeInfo",
                             "receiveVstEvents",
                             "receiveVstMidiEvent",
                             "receiveVstTimeInfo",
                             "reportConnectionChanges",
                             "acceptIOChanges",
                             "sizeWindow",
                             "asyncProcessing",
                             "offline",
                             "supplyIdle",
                             "supportShell",
                             "editFile",
                             "closeFileSelector",
                             "startStopProcess"};

EHostCapability capabilityAt(int index) {
    return static_cast<EHostCapability>(index);
}

void expectNothing(const CHostCanDo &host) {
    for (int i = 0; i < numberOfHostCapabilities; ++i)
        EXPECT_FALSE(host.canDo(capabilityAt(i))) << words[i];
    EXPECT_STREQ(host.getProduct().getString(), "");
    EXPECT_STREQ(host.getVendor().getString(), "");
    EXPECT_EQ(host.getVersion(), 0);
}

}  // namespace

TEST(CHostCanDo, IsEmptyAtFirst) {
    expectNothing(CHostCanDo());
}

TEST(CHostCanDo, AsksForSixteenCapabilitiesInOrderThenForTheNames) {
    FakeHost host;
    ProbeEffect effect(FakeHost::callback);
    CHostCanDo canDo;
    canDo.setFromAudioEffectX(&effect);
    const std::vector<SHostCall> calls = host.calls();
    ASSERT_EQ(calls.size(), 19u);
    for (std::size_t i = 0; i < 16; ++i) {
        EXPECT_EQ(calls[i].opcode, audioMasterCanDo);
        EXPECT_EQ(calls[i].text, words[i]);
    }
    EXPECT_EQ(calls[16].opcode, audioMasterGetProductString);
    EXPECT_EQ(calls[17].opcode, audioMasterGetVendorString);
    EXPECT_EQ(calls[18].opcode, audioMasterGetVendorVersion);
    EXPECT_EQ(calls[16].text, std::string(64, '\0'));
    EXPECT_EQ(calls[17].text, std::string(64, '\0'));
}

TEST(CHostCanDo, SetsOneFlagPerCapability) {
    FakeHost host;
    ProbeEffect effect(FakeHost::callback);
    CHostCanDo canDo;
    for (int yes = 0; yes < numberOfHostCapabilities; ++yes) {
        host.canDo = {{words[yes], 1}};
        canDo.setFromAudioEffectX(&effect);
        for (int i = 0; i < numberOfHostCapabilities; ++i)
            EXPECT_EQ(canDo.canDo(capabilityAt(i)), i == yes) << words[i];
    }
}

TEST(CHostCanDo, TreatsAHostsNoAsYes) {
    FakeHost host;
    host.canDo = {{"offline", -1}};
    ProbeEffect effect(FakeHost::callback);
    CHostCanDo canDo;
    canDo.setFromAudioEffectX(&effect);
    EXPECT_TRUE(canDo.canDo(hostWorksOffline));
}

TEST(CHostCanDo, ReadsNamesWithoutATerminator) {
    FakeHost host;
    host.product = std::string(64, 'p');
    host.vendor = "Some vendor";
    host.answers[audioMasterGetVendorVersion] = 50463744;
    ProbeEffect effect(FakeHost::callback);
    CHostCanDo canDo;
    canDo.setFromAudioEffectX(&effect);
    EXPECT_EQ(canDo.getProduct().getString(), std::string(64, 'p'));
    EXPECT_STREQ(canDo.getVendor().getString(), "Some vendor");
    EXPECT_EQ(canDo.getVersion(), 50463744);
}

TEST(CHostCanDo, ClearsEverything) {
    FakeHost host;
    for (const char *word : words)
        host.canDo[word] = 1;
    host.product = "Product";
    host.vendor = "Vendor";
    host.answers[audioMasterGetVendorVersion] = 900;
    ProbeEffect effect(FakeHost::callback);
    CHostCanDo canDo;
    canDo.setFromAudioEffectX(&effect);
    EXPECT_TRUE(canDo.canDo(hostSendsVstEvents));
    EXPECT_TRUE(canDo.canDo(hostStartsAndStopsProcess));
    canDo.clear();
    expectNothing(canDo);
}

TEST(CHostCanDo, StaysEmptyWithoutAHost) {
    ProbeEffect effect;
    CHostCanDo canDo;
    canDo.setFromAudioEffectX(&effect);
    expectNothing(canDo);
}

TEST(CHostCanDo, RefusesANullEffect) {
    CHostCanDo canDo;
    try {
        canDo.setFromAudioEffectX(nullptr);
        FAIL();
    } catch (const CException &exception) {
        EXPECT_STREQ(exception.getErrorReason().getString(), "Effect is NULL");
        EXPECT_STREQ(exception.getFunctionName().getString(),
                     "CHostCanDo::setFromAudioEffectX(AudioEffectX *)");
    }
}

TEST(CHostCanDo, CountsItsInstances) {
    const CHostCanDo canDo;
    EXPECT_STREQ(canDo.getClass().getClassName(), "CHostCanDo");
    EXPECT_EQ(canDo.getClass().getInstanceCount(), 1u);
}
