// Hosts that look for plug-ins, perhaps on a machine without a screen.
#include "CTemporaryFolder.h"
#include "CVariable.h"
#include "abi/LoadedPlugin.h"
#include "dspclasses/support/Signals.h"
#include "hostlayer/FakeHost.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace {

void describeFlags(const CLoadedEffect &effect, std::ostream &out) {
    const AEffect &record = effect.record();
    for (const int number : {record.numPrograms, record.numParams, record.numInputs,
                             record.numOutputs, record.flags, record.uniqueID, record.version})
        out << number << '\n';
    ERect *rect = nullptr;
    EXPECT_EQ(effect.send(effEditGetRect, 0, 0, &rect), 1);
    out << rect->right - rect->left << ' ' << rect->bottom - rect->top << '\n';
    for (const char *ability : {"2in2out", "plugAsSend", "receiveVstMidiEvent", "bypass"})
        out << effect.send(effCanDo, 0, 0, const_cast<char *>(ability)) << '\n';
}

void describeTexts(const CLoadedEffect &effect, std::ostream &out) {
    for (const AEffectOpcode text : {effGetEffectName, effGetVendorString, effGetProductString})
        out << effect.text(text) << '\n';
    for (int program = 0; program < effect.record().numPrograms; ++program)
        out << effect.text(effGetProgramNameIndexed, program) << '\n';
    for (int id = 0; id < effect.record().numParams; ++id)
        for (const AEffectOpcode text : {effGetParamName, effGetParamLabel, effGetParamDisplay})
            out << effect.text(text, id) << '\n';
    for (const AEffectOpcode pins : {effGetInputProperties, effGetOutputProperties}) {
        VstPinProperties pin{};
        effect.send(pins, 0, 0, &pin);
        out << pin.label << '\n';
    }
}

void describeSound(const CLoadedEffect &effect, std::ostream &out) {
    constexpr int frames = 500;
    effect.send(effMainsChanged, 0, 1);
    TStereo<float> voice = makeSignal<float>(ESignal::Bursts, 1, frames), sound(frames);
    for (int program = 0; program < effect.record().numPrograms; ++program) {
        effect.send(effSetProgram, 0, program);
        effect.processReplacing(voice.pointers().data(), sound.pointers().data(), frames);
        for (int i = 0; i < frames; ++i)
            out << sound.pointers()[0][i] << ' ' << sound.pointers()[1][i] << '\n';
    }
    const std::vector<char> bank = effect.chunk(false);
    out.write(bank.data(), static_cast<std::streamsize>(bank.size()));
}

/// Loads a plug-in, asks for everything, plays a little and unloads it.
/// @return all that it has said.
std::string scan(const char *path) {
    FakeHost host;
    std::ostringstream out;
    const CPluginFile file(path);
    const CLoadedEffect effect(file, FakeHost::callback);
    effect.send(effOpen);
    describeFlags(effect, out);
    describeTexts(effect, out);
    describeSound(effect, out);
    effect.send(effEditIdle);
    return out.str();
}

class Scanner : public testing::Test {
protected:
    void expectAsUsual(const char *path = CORVEL_PLUGIN_FILE) {
        testing::internal::CaptureStderr();
        const std::string found = scan(path);
        EXPECT_TRUE(found == usual);
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    }

    const std::string usual = scan(CORVEL_PLUGIN_FILE);
    const CTemporaryFolder folder;
};

TEST_F(Scanner, NeedsNoDisplay) {
    const CVariable display("DISPLAY", std::nullopt);
    expectAsUsual();
}

TEST_F(Scanner, NeedsNoDisplayThatIsThere) {
    const CVariable display("DISPLAY", ":9999");
    expectAsUsual();
}

TEST_F(Scanner, NeedsNoFonts) {
    const std::string configuration = (folder / "fonts.conf").string();
    std::ofstream(configuration) << "<fontconfig></fontconfig>";
    const CVariable variable("FONTCONFIG_FILE", configuration);
    expectAsUsual();
}

TEST_F(Scanner, NeedsNoResources) {
    const std::string copy = (folder / "Corvel.so").string();
    std::filesystem::copy_file(CORVEL_PLUGIN_FILE, copy);
    expectAsUsual(copy.c_str());
}

}  // namespace
