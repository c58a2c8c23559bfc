#pragma once

#include "corvel/audio/CAudioReader.h"
#include "corvel/audio/CLevels.h"
#include "corvel/audio/OutputFormat.h"
#include "corvel/audio/SExcerpt.h"
#include "corvel/audio/SRawFormat.h"
#include "corvel/files/CPendingFile.h"
#include "corvel/plot/Palette.h"
#include "corvel/render/OutputGain.h"
#include "corvel/settings/CEffectSettings.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>

namespace Tessitor::Tool {

/// The sample rate that the strip is tuned for, Hz.
inline constexpr int stripRate = 44100;

/// Settings for all files of a command.
struct SRenderOptions {
    SFormatRequest format;
    std::optional<SRawFormat> raw;  // of standard input and output
    std::optional<int> channels;    // of the output
    SExcerpt excerpt;
    double tempo = 120.0;           // beats per minute
    double tailSeconds = 0.0;       // of silence after the input
    bool tailAuto = false;          // until the output is silent
    std::int32_t blockSize = 1024;  // frames
    bool doublePrecision = false;
    bool resample = false;  // to stripRate and back
    bool keepNan = false;   // otherwise samples that are not finite are rendered as 0
    bool timed = false;     // measure the effect's own time
    EExisting existing = EExisting::Kept;  // output files
    bool loudness = false;                 // measured also without a reason below
    std::optional<SLoudnessTarget> normalize;
    EClip clip = EClip::Warn;
    bool dither = false;          // outputs of 8 and 16 bits
    std::optional<ETheme> theme;  // of pictures
};

struct SRenderJob {
    std::filesystem::path in;
    std::filesystem::path out;
    std::string problem{};            // why it cannot be rendered; empty if nothing is known
    std::filesystem::path picture{};  // of the sound before and after; empty for none
};

struct SRenderResult {
    int sampleRate = 0;     // Hz, of the input
    int sampleRateOut = 0;  // Hz
    int channelsIn = 0, channelsOut = 0;
    int formatIn = 0, formatOut = 0;  // of libsndfile
    std::int64_t framesIn = 0, framesOut = 0;
    std::int64_t framesMissing = 0;  // at the end of standard input, by its header
    CLevels levelsIn, levelsOut;
    std::optional<SLoudness> loudnessIn, loudnessOut;  // if measured
    std::optional<SOutputGain> gain;                   // if the options may ask for one
    bool dithered = false;
    std::uint64_t clippedSamples = 0;
    std::uint64_t nonFiniteSamples = 0;  // in the input
    double renderSeconds = 0.0;          // wall clock
    // Until the effect was ready, and in its process calls; only with SRenderOptions::timed
    std::optional<double> openSeconds{}, effectSeconds{};

    double seconds() const { return static_cast<double>(framesOut) / sampleRateOut; }
    double timesRealTime() const { return renderSeconds > 0.0 ? seconds() / renderSeconds : 0.0; }
};

/// Receives the progress, from 0 to 1.
using RenderListener = std::function<void(double done)>;

/// @throws CJobError if the effect is not stereo, or cannot process in the precision of the
///         options.
void requireRenderable(const CEffectInstance &effect, const SRenderOptions &options);

/// @return the part of the input that the options select.
/// @throws CJobError if it cannot be read, or if the options do not suit it or the name of the
///         output; or CInterruption.
CAudioReader openInput(const SRenderJob &job, const SRenderOptions &options);

/// Renders one file with a new instance, so that earlier files leave no trace.
/// @param library  must pass requireRenderable().
/// @throws CJobError if it fails, or CInterruption. The output file is then unchanged.
/// [any thread] May run several times in parallel.
SRenderResult render(const SRenderJob &job, const CEffectLibrary &library,
                     const CEffectSettings &settings, const SRenderOptions &options,
                     const RenderListener &listener);

}  // namespace Tessitor::Tool
