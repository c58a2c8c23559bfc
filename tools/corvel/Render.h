#pragma once

#include "corvel/CEffectSettings.h"
#include "corvel/CLevels.h"
#include "corvel/OutputFormat.h"

#include <cstdint>
#include <filesystem>
#include <functional>

namespace Tessitor::Tool {

/// The only rate that the strip's constants are right for, Hz.
inline constexpr int stripRate = 44100;

/// How every file of a call is rendered.
struct SRenderOptions {
    SFormatRequest format;
    double tempo = 120.0;           // beats per minute
    double tailSeconds = 0.0;       // of silence behind the input
    std::int32_t blockSize = 1024;  // frames
    bool doublePrecision = false;
    bool resample = false;  // to stripRate and back
    bool mono = false;      // the strip's own sum, of mono files only
};

std::int64_t tailFrames(const SRenderOptions &options, int sampleRate);

struct SRenderJob {
    std::filesystem::path in;
    std::filesystem::path out;
};

struct SRenderResult {
    int sampleRate = 0;  // Hz, of both files
    int channelsIn = 0, channelsOut = 0;
    int formatIn = 0, formatOut = 0;  // as libsndfile numbers them
    std::int64_t framesIn = 0, framesOut = 0;
    CLevels levelsIn, levelsOut;
    std::uint64_t clippedSamples = 0;
    double renderSeconds = 0.0;  // wall clock

    double seconds() const { return static_cast<double>(framesOut) / sampleRate; }
    double timesRealTime() const { return renderSeconds > 0.0 ? seconds() / renderSeconds : 0.0; }
};

/// Hears of the progress, from 0 to 1.
using RenderListener = std::function<void(double done)>;

/// @throws CJobError if the effect is not stereo, or lacks the process call that is wanted.
void requireRenderable(const CEffectInstance &effect, const SRenderOptions &options);

/// Renders one file through an instance of its own, so that no file hears what came before it.
/// @param library  of an effect that is renderable.
/// @throws CJobError if it cannot be done; the output file is then as it was before.
/// [any thread] Several at the same time are fine.
SRenderResult render(const SRenderJob &job, const CEffectLibrary &library,
                     const CEffectSettings &settings, const SRenderOptions &options,
                     const RenderListener &listener);

}  // namespace Tessitor::Tool
