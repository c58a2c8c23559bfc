#include "corvel/render/Render.h"

#include "corvel/audio/StandardStream.h"
#include "corvel/console/Errors.h"
#include "corvel/plot/PictureFile.h"
#include "corvel/render/RenderPicture.h"
#include "corvel/render/SOutputPlan.h"
#include "corvel/render/TRenderLoop.h"

#include <chrono>

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

SMeasurements measurementsFor(const SRenderJob &job, const SRenderOptions &options) {
    return {.loudness = options.loudness || options.normalize, .curves = !job.picture.empty()};
}

template <typename Sample>
void runLoop(const SRenderJob &job, const SRenderOptions &options, CAudioReader &reader,
             CEffectInstance &effect, CAudioWriter &writer,
             const std::optional<CAutomation> &automation, CSoundMeter &meterIn,
             CSoundMeter &meterOut, SRenderResult &result, const RenderListener &listener) {
    TRenderOutput<Sample> output(job, options, result, writer, meterOut);
    const double share = output.hasTwoPasses() ? 0.5 : 1.0;  // of the time, roughly
    TRenderLoop<Sample>(job, options, reader, effect, output, meterIn, automation)
        .run(result, [&](double done) { listener(share * done); });
    result.gain = output.finish([&](double done) { listener(share + (1.0 - share) * done); });
    result.levelsIn = meterIn.levels();
    result.levelsOut = meterOut.levels();
    result.loudnessIn = meterIn.finishLoudness();
    result.loudnessOut = meterOut.finishLoudness();
}

// Fails now rather than after the render.
void requirePlaceForPicture(const SRenderJob &job, const SRenderOptions &options) {
    if (!job.picture.empty())
        const CPendingFile trial(job.picture, options.existing);
}

std::string drawPicture(const SRenderJob &job, const CEffectSettings &settings,
                        const SRenderOptions &options, const CSoundMeter &before,
                        const CSoundMeter &after, const SRenderResult &result) {
    SPictureText text{nameOfOutput(job.out),
                      "from " + nameOfInput(job.in) + ", " + settings.programName()};
    if (result.gain)
        text.subtitle += ", gain " + describe(*result.gain, options.normalize);
    const EPictureFormat format = pictureFormatOf(job.picture);
    return drawRender({before, result.loudnessIn}, {after, result.loudnessOut}, text,
                      {.format = format, .theme = options.theme.value_or(usualTheme(format))});
}

[[noreturn]] void failSinceItClips(const SRenderJob &job, std::uint64_t samples) {
    throw CJobError(job.out.string() + ": " + std::to_string(samples) +
                    (samples == 1 ? " sample" : " samples") +
                    " would clip, so it was not written; --clip headroom turns it down");
}

}  // namespace

void requireRenderable(const CEffectInstance &effect, const SRenderOptions &options) {
    requireStereoEffect(effect);
    if (options.doublePrecision)
        requireDoublePrecision(effect);
}

CAudioReader openInput(const SRenderJob &job, const SRenderOptions &options) {
    CAudioReader reader(job.in, options.raw);
    const SExcerpt &excerpt = options.excerpt;
    reader.select(excerpt.startFrame(reader.sampleRate()), excerpt.frames(reader.sampleRate()));
    const std::string problem = problemOfName(job.out, options.format);
    if (!problem.empty())
        throw CJobError(job.out.string() + ": " + problem);
    planOutput(job, options, reader);
    return reader;
}

SRenderResult render(const SRenderJob &job, const CEffectLibrary &library,
                     const CEffectSettings &settings, const SRenderOptions &options,
                     const RenderListener &listener) {
    const auto begin = std::chrono::steady_clock::now();
    CAudioReader reader = openInput(job, options);
    const SOutputPlan plan = planOutput(job, options, reader);

    SRenderResult result;
    result.sampleRate = reader.sampleRate();
    result.channelsIn = reader.channels();
    result.sampleRateOut = plan.sampleRate;
    result.channelsOut = plan.channels;
    result.formatIn = reader.format();
    result.formatOut = plan.format;
    requirePlaceForPicture(job, options);
    CAudioWriter writer(job.out, options.existing, plan.format, plan.sampleRate, plan.channels,
                        plan.frames);
    const std::int64_t start = options.excerpt.startFrame(reader.sampleRate());
    writer.setTags(tagsOfPart(reader.tags(), start, reader.frames()));
    result.dithered = options.dither && writer.dither();

    const auto beforeEffect = std::chrono::steady_clock::now();
    CEffectInstance effect(library);
    settings.applyTo(effect);
    SRunSettings run;
    run.sampleRate = options.resample ? stripRate : result.sampleRate;
    run.tempo = options.tempo;
    run.blockSize = options.blockSize;
    run.doublePrecision = options.doublePrecision;
    run.rightInputConnected = result.channelsIn == 2;
    // Of a mono input, the strip makes the mono sum itself.
    run.rightOutputConnected = result.channelsIn == 2 || result.channelsOut == 2;
    effect.start(run);
    if (options.timed) {
        const std::chrono::duration<double> opening =
            std::chrono::steady_clock::now() - beforeEffect;
        result.openSeconds = opening.count();
    }
    const SMeasurements measurements = measurementsFor(job, options);
    CSoundMeter meterIn(reader.sampleRate(), reader.channels(), measurements);
    CSoundMeter meterOut(writer.sampleRate(), writer.channels(), measurements);
    const auto loop = options.doublePrecision ? runLoop<double> : runLoop<float>;
    loop(job, options, reader, effect, writer, settings.automation(), meterIn, meterOut, result,
         listener);
    effect.stop();

    result.framesMissing = reader.framesMissing();
    result.clippedSamples = writer.clippedSamples();
    if (options.clip == EClip::Fail && result.clippedSamples > 0)
        failSinceItClips(job, result.clippedSamples);
    const std::string picture =
        job.picture.empty() ? std::string()
                            : drawPicture(job, settings, options, meterIn, meterOut, result);
    writer.finish();
    if (!job.picture.empty())
        writePicture(job.picture, picture, options.existing);
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - begin;
    result.renderSeconds = elapsed.count();
    return result;
}

}  // namespace Tessitor::Tool
