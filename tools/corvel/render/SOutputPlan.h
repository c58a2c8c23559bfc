#pragma once

#include "corvel/audio/CAudioReader.h"
#include "corvel/render/Render.h"

#include <cstdint>
#include <optional>

namespace Tessitor::Tool {

/// What the output of a job will be.
struct SOutputPlan {
    int format;      // of libsndfile
    int sampleRate;  // Hz
    int channels;
    std::optional<std::int64_t> frames;  // none if their number is not known
};

/// @param reader  with the part selected that is to be rendered.
/// @throws CJobError if the output would not be possible.
SOutputPlan planOutput(const SRenderJob &job, const SRenderOptions &options,
                       const CAudioReader &reader);

}  // namespace Tessitor::Tool
