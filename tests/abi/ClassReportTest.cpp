#include "CTemporaryFolder.h"
#include "abi/LoadedPlugin.h"
#include "dspclasses/support/Signals.h"
#include "foundation/ReadFile.h"
#include "hostlayer/EventBlock.h"
#include "hostlayer/FakeHost.h"

#include <cctype>
#include <gtest/gtest.h>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>

namespace {

/// The effect in a library that can also write its class report, once per load.
class CReportingFile : public CPluginFile {
public:
    CReportingFile() : CPluginFile(CORVEL_REPORTING_FILE, "openEffect") {}

    /// Ends the class library.
    /// @return the instance counts of all classes that still have instances.
    std::map<std::string, std::uint32_t> report() const {
        const CTemporaryFolder folder;
        const std::string path = (folder / "report.txt").string();
        reinterpret_cast<void (*)(const char *)>(symbol("endWithReport"))(path.c_str());

        const std::string text = readFile(path);
        if (text.empty())
            throw std::runtime_error("the class library has already ended");
        std::map<std::string, std::uint32_t> instances;
        std::istringstream lines(text);
        for (std::string line; std::getline(lines, line);) {
            std::istringstream columns(line);
            std::string edge, name, count;
            std::getline(columns, edge, '|');
            std::getline(columns, name, '|');
            std::getline(columns, count, '|');
            // Only the rows of classes have a name and a number: rules have no columns, headings no
            // number, sums no name.
            const std::size_t begin = name.find_first_not_of(' ');
            if (begin != std::string::npos && std::isdigit(count.back()) != 0)
                instances[name.substr(begin, name.size() - begin - 1)] =
                    static_cast<std::uint32_t>(std::stoul(count));
        }
        return instances;
    }
};

/// Calls everything that a host may call, except closing.
void use(const CLoadedEffect &effect) {
    effect.send(effSetSampleRate, 0, 0, nullptr, 96000.0f);
    effect.send(effSetBlockSize, 0, 500);
    effect.send(effMainsChanged, 0, 1);
    for (int program = 0; program < 20; ++program) {
        effect.send(effSetProgram, 0, program);
        EventBlock events;
        effect.send(effProcessEvents, 0, 0, events.midi(0x90, 60, 100).midi(0xB0, 7, 1).get());
        TStereo<float> voice = makeSignal<float>(ESignal::Bursts, 1, 500), out(500);
        effect.processReplacing(voice.pointers().data(), out.pointers().data(), 500);
        TStereo<double> precise = makeSignal<double>(ESignal::Noise, 2, 500), result(500);
        effect.processDoubleReplacing(precise.pointers().data(), result.pointers().data(), 500);
    }
    for (int id = 0; id < 64; ++id) {
        effect.setParameter(id, 0.3f);
        for (AEffectOpcode text : {effGetParamName, effGetParamDisplay, effGetParamLabel})
            effect.text(text, id);
    }
    for (bool isPreset : {false, true})
        effect.setChunk(effect.chunk(isPreset), isPreset);
    for (AEffectOpcode text : {effGetEffectName, effGetVendorString, effGetProductString})
        effect.text(text);
    effect.send(effMainsChanged, 0, 0);
}

class ClassReport : public testing::Test {
protected:
    FakeHost host;
    /// The objects that every report lists: the stream that writes it, the class manager, the trace
    /// and the colours of the library.
    const std::map<std::string, std::uint32_t> withoutAnEffect = CReportingFile().report();
};

TEST_F(ClassReport, ListsItsOwnStreamAndTheTraceWhenThereIsNoEffect) {
    EXPECT_EQ(withoutAnEffect.at("CTextStream"), 2u);
    EXPECT_EQ(withoutAnEffect.count("CCorvel"), 0u);
}

TEST_F(ClassReport, ListsOnlyTheSharedObjectsAfterEffectsWereUsedAndClosed) {
    const CReportingFile file;
    {
        const CLoadedEffect first(file, FakeHost::callback), second(file, FakeHost::callback);
        use(first);
        use(second);
    }
    auto expected = withoutAnEffect;
    // The deleters of the MIDI collections are static and shared by all effects.
    for (const char *deleter : {"TObjectDeleter<CLong>", "TPointerDeleter<CLong>",
                                "TObjectDeleter<CLong>>", "TPointerDeleter<CLong>>"})
        expected[deleter] = 1;
    // The default font with its face name, and the image manager with its root path and its two
    // lists, are released after the report has been written.
    for (const char *list : {"CAnimationReference", "CImageReference"})
        for (const char *part : {"TCountedPointerArray", "TPointerCollection",
                                 "TCountedObjectDeleter", "TPointerDeleter"})
            expected[std::string(part) + "<" + list + ">"] = 1;
    expected["CFont"] = 1;
    expected["CSystemString"] += 1;
    expected["CString"] += 2;
    expected["CCountedObject"] += 2 + 4 + 3;
    // The editors share deleters, a cursor and the pictures, none of which is beside this library.
    for (const char *shared : {"CFont", "CMenu", "CMenuItem", "CWindowIcon", "IControl", "IImage"})
        for (const char *part : {"TCountedObjectDeleter", "TPointerDeleter"})
            expected[std::string(part) + "<" + shared + ">"] = 1;
    expected["CCursor"] = 1;
    expected["TAutomaticPointer<IImage>"] = 19;
    expected["CCountedObject"] += 6 + 1 + 19;
    EXPECT_EQ(file.report(), expected);
}

TEST_F(ClassReport, ListsAnEffectThatIsStillOpen) {
    const CReportingFile file;
    const CLoadedEffect open(file, FakeHost::callback);
    { const CLoadedEffect closed(file, FakeHost::callback); }
    const auto instances = file.report();
    EXPECT_EQ(instances.at("CCorvel"), 1u);
    EXPECT_EQ(instances.at("CCriticalSection"), 1u);
}

}  // namespace
