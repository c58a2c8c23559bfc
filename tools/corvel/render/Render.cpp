#include "corvel/render/Render.h"

#include "corvel/console/Errors.h"
#include "corvel/render/TRenderLoop.h"

#include <chrono>
#include <cmath>

namespace Tessitor::Tool {

namespace {

void requireStereoEffect(const CEffectInstance &effect) {
    const AEffect &record = effect.record();
    if (record.numInputs != 2 || record.numOutputs != 2) {
        throw CJobError(effect.fileName() + ": has " + std::to_string(record.numInputs) +
                        " inputs and " + std::to_string(record.numOutputs) +
                        " outputs; only a stereo effect can render");
    }
    if (!effect.has(effFlagsCanReplacing) || record.processReplacing == nullptr)
        throw CJobError(effect.fileName() + ": cannot process (no processReplacing)");
}

void requireDoublePrecision(const CEffectInstance &effect) {
    if (!effect.has(effFlagsCanDoubleReplacing) ||
        effect.record().processDoubleReplacing == nullptr)
        throw CJobError(effect.fileName() + ": cannot process in double precision");
}

template <typename Sample>
void runLoop(const SRenderJob &job, const SRenderOptions &options, CAudioReader &reader,
             CEffectInstance &effect, CAudioWriter &writer,
             const std::optional<CAutomation> &automation, SRenderResult &result,
             const RenderListener &listener) {
    TRenderLoop<Sample>(job, options, reader, effect, writer, automation).run(result, listener);
}

}  // namespace

std::int64_t tailFrames(const SRenderOptions &options, int sampleRate) {
    return std::llround(options.tailSeconds * sampleRate);
}

void requireRenderable(const CEffectInstance &effect, const SRenderOptions &options) {
    requireStereoEffect(effect);
    if (options.doublePrecision)
        requireDoublePrecision(effect);
}

void requireMatching(const CAudioReader &input, const SRenderJob &job,
                     const SRenderOptions &options) {
    const std::string problem = problemOfName(job.out, options.format);
    if (!problem.empty())
        throw CJobError(job.out.string() + ": " + problem);
    if (options.mono && input.channels() != 1)
        throw CJobError(job.in.string() + ": is stereo; --mono is for mono files");
}

SRenderResult render(const SRenderJob &job, const CEffectLibrary &library,
                     const CEffectSettings &settings, const SRenderOptions &options,
                     const RenderListener &listener) {
    const auto begin = std::chrono::steady_clock::now();
    CAudioReader reader(job.in);
    requireMatching(reader, job, options);

    SRenderResult result;
    result.sampleRate = reader.sampleRate();
    result.channelsIn = reader.channels();
    result.channelsOut = options.mono ? 1 : 2;
    result.formatIn = reader.format();
    const std::int64_t framesExpected =
        reader.knowsLength() ? reader.frames() + tailFrames(options, reader.sampleRate()) : 0;
    result.formatOut = formatForLength(outputFormat(reader.format(), options.format, job.out),
                                       framesExpected, result.channelsOut, job.out);
    CAudioWriter writer(job.out, options.existing, result.formatOut, result.sampleRate,
                        result.channelsOut);

    const auto beforeEffect = std::chrono::steady_clock::now();
    CEffectInstance effect(library);
    settings.applyTo(effect);
    SRunSettings run;
    run.sampleRate = options.resample ? stripRate : result.sampleRate;
    run.tempo = options.tempo;
    run.blockSize = options.blockSize;
    run.doublePrecision = options.doublePrecision;
    run.rightInputConnected = result.channelsIn == 2;
    run.rightOutputConnected = result.channelsOut == 2;
    effect.start(run);
    if (options.timed) {
        const std::chrono::duration<double> opening =
            std::chrono::steady_clock::now() - beforeEffect;
        result.openSeconds = opening.count();
    }
    const auto loop = options.doublePrecision ? runLoop<double> : runLoop<float>;
    loop(job, options, reader, effect, writer, settings.automation(), result, listener);
    effect.stop();

    writer.finish();
    result.clippedSamples = writer.clippedSamples();
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - begin;
    result.renderSeconds = elapsed.count();
    return result;
}

}  // namespace Tessitor::Tool
