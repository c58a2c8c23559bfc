#include "tools/support/effects/TestEffect.h"

#include "effect/SProgram.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

namespace {

using Tessitor::Corvel::SProgram;

// The settings of a variant. Each variant is a library of its own.
#ifndef TEST_EFFECT_CHANNELS
#define TEST_EFFECT_CHANNELS 2
#endif
#ifndef TEST_EFFECT_FLAGS
#define TEST_EFFECT_FLAGS effFlagsCanReplacing | effFlagsProgramChunks | effFlagsCanDoubleReplacing
#endif
#ifndef TEST_EFFECT_LATENCY
#define TEST_EFFECT_LATENCY 0
#endif
#ifndef TEST_EFFECT_ID
#define TEST_EFFECT_ID 'Q' | 'r' << 8 | 'M' << 16 | 'k' << 24
#endif
#ifndef TEST_EFFECT_TAKES_MIDI
#define TEST_EFFECT_TAKES_MIDI 0
#endif
#ifndef TEST_EFFECT_CHUNK_BYTES
#define TEST_EFFECT_CHUNK_BYTES sizeof(SProgram)
#endif

constexpr int latency = TEST_EFFECT_LATENCY;
constexpr int parameters = 6;
constexpr int programs = 3;
constexpr const char *programNames[programs] = {"Plain", "Loud", "Empty"};
constexpr const char *parameterNames[parameters] = {"Gain", "Freq", "Link", "Ratio", "Route", ""};
constexpr const char *parameterUnits[parameters] = {"dB", "Hz", "", "", "", ""};

int instancesMade = 0;
std::mutex logLock;

class CTestEffect {
public:
    explicit CTestEffect(audioMasterCallback host) : m_host(host), m_number(instancesMade++) {
        m_record.magic = kEffectMagic;
        m_record.dispatcher = [](AEffect *effect, std::int32_t opcode, std::int32_t index,
                                 std::intptr_t value, void *ptr, float opt) {
            return self(effect).handle(opcode, index, value, ptr, opt);
        };
        m_record.setParameter = [](AEffect *effect, std::int32_t index, float value) {
            self(effect).values()[static_cast<std::size_t>(index)] = value;
        };
        m_record.getParameter = [](AEffect *effect, std::int32_t index) {
            return self(effect).values()[static_cast<std::size_t>(index)];
        };
        m_record.numPrograms = programs;
        m_record.numParams = parameters;
        m_record.numInputs = TEST_EFFECT_CHANNELS;
        m_record.numOutputs = TEST_EFFECT_CHANNELS;
        m_record.flags = TEST_EFFECT_FLAGS;
        m_record.initialDelay = latency;
        m_record.object = this;
        m_record.uniqueID = TEST_EFFECT_ID;
        m_record.version = 7;
        m_record.processReplacing = [](AEffect *effect, float **in, float **out,
                                       std::int32_t frames) {
            self(effect).process(in, out, frames);
        };
        m_record.processDoubleReplacing = [](AEffect *effect, double **in, double **out,
                                             std::int32_t frames) {
            self(effect).process(in, out, frames);
        };
        for (int program = 0; program < programs; ++program)
            initialise(m_programs[static_cast<std::size_t>(program)], program);
    }

    AEffect *record() { return &m_record; }

private:
    static CTestEffect &self(AEffect *effect) {
        return *static_cast<CTestEffect *>(effect->object);
    }

    // "Loud" is 6 dB louder and has a filter and a compressor in its chain.
    static void initialise(SProgram &program, int number) {
        program.parameters.fill(0.0f);
        program.parameters[0] = number == 1 ? 1.0f : 0.5f;
        program.parameters[1] = 0.25f;
        program.order.fill({-1, -1});
        program.order[0] = {-1, 1};
        program.order[1] = {0, -1};
        if (number == 1) {
            program.order[1].next = 6;
            program.order[6] = {1, 11};
            program.order[11] = {6, -1};
        }
        std::snprintf(program.name.data(), program.name.size(), "%s", programNames[number]);
    }

    SProgram &present() { return m_programs[m_program]; }
    std::array<float, kParameterCount> &values() { return present().parameters; }

    std::intptr_t handle(std::int32_t opcode, std::int32_t index, std::intptr_t value, void *ptr,
                         float opt) {
        char *text = static_cast<char *>(ptr);
        switch (opcode) {
        case effOpen:
            log("open");
            return 0;
        case effClose:
            log("close");
            delete this;
            return 1;
        case effSetProgram:
            log("program " + std::to_string(value));
            m_program = static_cast<std::size_t>(value);
            return 0;
        case effGetProgramName:
            std::strcpy(text, present().name.data());
            return 0;
        case effGetProgramNameIndexed:
            std::strcpy(text, m_programs[static_cast<std::size_t>(index)].name.data());
            return 1;
        case effGetParamName:
            std::strcpy(text, parameterNames[index]);
            return 0;
        case effGetParamLabel:
            std::strcpy(text, parameterUnits[index]);
            return 0;
        case effGetParamDisplay:
            display(index, values()[static_cast<std::size_t>(index)], text);
            return 0;
        case effSetSampleRate:
            log("rate " + std::to_string(std::lround(opt)));
            return 0;
        case effSetBlockSize:
            log("block " + std::to_string(value));
            return 0;
        case effSetProcessPrecision:
            log(value == kVstProcessPrecision64 ? "double" : "single");
            return 0;
        case effMainsChanged:
            log("mains " + std::to_string(value));
            if (value == 1)
                resume();
            return 0;
        case effStartProcess:
            log("start");
            return 0;
        case effStopProcess:
            log("stop");
            return 0;
        case effGetChunk:
            *static_cast<void **>(ptr) = &present();
            return TEST_EFFECT_CHUNK_BYTES;
        case effSetChunk:
            log("chunk " + std::to_string(index) + " " + std::to_string(value));
            std::memcpy(&present(), ptr, sizeof(SProgram));
            return 1;
        case effGetEffectName:
            std::strcpy(text, "Test effect");
            return 1;
        case effGetVendorString:
            std::strcpy(text, "Test vendor");
            return 1;
        case effGetVstVersion:
            return kVstVersion;
        case effGetInputProperties:
            return describePin(index, "input", *static_cast<VstPinProperties *>(ptr));
        case effGetOutputProperties:
            return describePin(index, "output", *static_cast<VstPinProperties *>(ptr));
        case effCanDo:
            if (std::string(text) == "receiveVstMidiEvent")
                return TEST_EFFECT_TAKES_MIDI;
            return std::string(text) == "2in2out" ? 1 : std::string(text) == "bypass" ? -1 : 0;
        case effProcessEvents:
            logEvents(*static_cast<const VstEvents *>(ptr));
            return 1;
        case effEditGetRect:
            *static_cast<ERect **>(ptr) = &m_editorBounds;
            return 1;
        case effEditOpen:
            log("edit open");
            m_asksForSize = true;
            return 1;
        case effEditIdle:
            idle();
            return 1;
        case effEditClose:
            log("edit close");
            return 1;
        default:
            return 0;
        }
    }

    // Once open, the editor wants to be larger.
    void idle() {
        if (!std::exchange(m_asksForSize, false))
            return;
        m_editorBounds.right = 320;
        m_editorBounds.bottom = 240;
        log("edit size " +
            std::to_string(m_host(&m_record, audioMasterSizeWindow, 320, 240, nullptr, 0.0f)));
    }

    void logEvents(const VstEvents &events) const {
        VstEvent *const *list = events.events;
        for (std::int32_t i = 0; i < events.numEvents; ++i) {
            const auto &event = *reinterpret_cast<const VstMidiEvent *>(list[i]);
            const auto byte = [&](int index) {
                return static_cast<int>(static_cast<unsigned char>(event.midiData[index]));
            };
            std::array<char, 64> line{};
            std::snprintf(line.data(), line.size(), "event at %d %d %d %d", event.deltaFrames,
                          byte(0), byte(1), byte(2));
            log(line.data());
        }
    }

    static void display(std::int32_t index, float value, char *text) {
        constexpr const char *routes[] = {"Combine", "AllLeft", "AllRight", "Stereo"};
        switch (index) {
        case 0:
            std::snprintf(text, kVstMaxParamStrLen, "%.2f", static_cast<double>(decibels(value)));
            break;
        case 1:
            std::snprintf(text, kVstMaxParamStrLen, "%.0f",
                          100.0 * std::pow(2.0, static_cast<double>(value) * 4.0));
            break;
        case 2:
            std::strcpy(text, value < 0.5f ? "Separate" : "Linked");
            break;
        case 3:
            std::snprintf(text, kVstMaxParamStrLen, "%.1f:1", static_cast<double>(value) * 7.0 + 1);
            break;
        case 4:
            std::strcpy(text, routes[static_cast<int>(value * 3.0f)]);
            break;
        default:
            break;
        }
    }

    static float decibels(float value) { return (value - 0.5f) * 12.0f; }

    static bool describePin(std::int32_t index, const char *side, VstPinProperties &pin) {
        if (index > 1)
            return false;
        std::snprintf(pin.label, sizeof(pin.label), "%s %s", index == 0 ? "Left" : "Right", side);
        std::strcpy(pin.shortLabel, index == 0 ? "L" : "R");
        pin.flags = kVstPinIsActive | kVstPinIsStereo;
        return true;
    }

    void resume() {
        // audioMasterPinConnected returns 0 for a connected pin.
        m_mono = m_host(&m_record, audioMasterPinConnected, 1, 0, nullptr, 0.0f) != 0;
        m_held.fill(std::vector<double>(latency, 0.0));
        m_tempo = -1.0;
        log(m_mono ? "mono" : "stereo");
        if (m_host(&m_record, audioMasterPinConnected, 1, 1, nullptr, 0.0f) != 0)
            log("one output");
    }

    template <typename Sample>
    void process(Sample **in, Sample **out, std::int32_t frames) {
        const auto *time = reinterpret_cast<const VstTimeInfo *>(
            m_host(&m_record, audioMasterGetTime, 0, kVstTempoValid, nullptr, 0.0f));
        if (time->tempo != m_tempo) {
            m_tempo = time->tempo;
            log("tempo " + std::to_string(std::lround(m_tempo)));
        }
        log("process " + std::to_string(frames) + " at " +
            std::to_string(std::lround(time->samplePos)));
        if ((time->flags & kVstBarsValid) != 0) {
            std::array<char, 64> line{};
            std::snprintf(line.data(), line.size(), "quarter %g, bar from %g", time->ppqPos,
                          time->barStartPos);
            log(line.data());
        }

        const double gain = std::pow(10.0, static_cast<double>(decibels(values()[0])) / 20.0);
        for (std::int32_t i = 0; i < frames; ++i) {
            const double left = held(0, static_cast<double>(in[0][i]) * gain);
            const double right = held(1, static_cast<double>(in[m_mono ? 0 : 1][i]) * gain);
            if (out[1] == nullptr) {
                out[0][i] = static_cast<Sample>((left + right) * 0.5);
            } else {
                out[0][i] = static_cast<Sample>(left);
                out[1][i] = static_cast<Sample>(right);
            }
        }
    }

    double held(std::size_t channel, double sample) {
        std::vector<double> &line = m_held[channel];
        line.push_back(sample);
        const double oldest = line.front();
        line.erase(line.begin());
        return oldest;
    }

    void log(const std::string &line) const {
        const char *file = std::getenv("CORVEL_TEST_LOG");
        if (file == nullptr)
            return;
        const std::lock_guard guard(logLock);
        std::ofstream(file, std::ios::app) << m_number << " " << line << "\n";
    }

    AEffect m_record{};
    audioMasterCallback m_host;
    int m_number;
    std::array<SProgram, programs> m_programs{};
    std::size_t m_program = 0;
    bool m_mono = false;
    double m_tempo = -1.0;
    ERect m_editorBounds = {0, 0, 100, 200};
    bool m_asksForSize = false;
    std::array<std::vector<double>, 2> m_held;  // the latest frames, as many as the latency
};

}  // namespace

AEffect *enterTestEffect(audioMasterCallback host) {
    if (host(nullptr, audioMasterVersion, 0, 0, nullptr, 0.0f) == 0)
        return nullptr;
    return (new CTestEffect(host))->record();
}
