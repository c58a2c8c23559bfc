#include "corvel/render/SOutputPlan.h"

#include "corvel/audio/OpusRate.h"
#include "corvel/audio/PipeFormat.h"
#include "corvel/audio/StandardStream.h"
#include "corvel/console/Errors.h"
#include "corvel/render/RenderLengths.h"

namespace Tessitor::Tool {

namespace {

int channelsOf(const SRenderJob &job, const SRenderOptions &options) {
    if (options.channels)
        return *options.channels;
    return isStandardStream(job.out) && options.raw ? options.raw->channels : 2;
}

int sampleRateOf(const SRenderJob &job, const SRenderOptions &options, int format, int inputRate) {
    const bool isRaw = (format & SF_FORMAT_TYPEMASK) == SF_FORMAT_RAW;
    if (isRaw && options.raw->sampleRate != inputRate)
        throw CJobError(nameOfInput(job.in) + ": has " + std::to_string(inputRate) +
                        " Hz, but --raw asks for " + std::to_string(options.raw->sampleRate));
    if (!isOpus(format) || isOpusRate(inputRate))
        return inputRate;
    if (options.resample)
        return fullOpusRate;
    throw CJobError(nameOfOutput(job.out) + ": Opus does not support " + std::to_string(inputRate) +
                    " Hz; add --resample, which writes " + std::to_string(fullOpusRate) +
                    " Hz, or use another format, such as ogg:vorbis");
}

}  // namespace

SOutputPlan planOutput(const SRenderJob &job, const SRenderOptions &options,
                       const CAudioReader &reader) {
    SOutputPlan plan{};
    plan.format = isStandardStream(job.out)
                      ? pipeFormat(reader.format(), options.format, options.raw)
                      : outputFormat(reader.format(), options.format, job.out);
    plan.channels = channelsOf(job, options);
    plan.sampleRate = sampleRateOf(job, options, plan.format, reader.sampleRate());
    if (reader.isBounded()) {
        plan.frames = framesAtRate(reader.frames(), reader.sampleRate(), plan.sampleRate) +
                      tailFrames(options, plan.sampleRate);
    }
    if (!isStandardStream(job.out)) {
        plan.format = plan.frames
                          ? formatForLength(plan.format, *plan.frames, plan.channels, job.out)
                          : formatForUnknownLength(plan.format);
    }
    if (!reader.knowsLength() || options.tailAuto)
        plan.frames.reset();
    return plan;
}

}  // namespace Tessitor::Tool
