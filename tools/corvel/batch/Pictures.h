#pragma once

#include "corvel/batch/Jobs.h"

#include <string>

namespace Tessitor::Tool {

/// Names the picture of each job.
/// @param request  a file for the only job, or "svg" or "png" for a file beside each output, which
///                 is named after it: "voice.wav.svg".
/// @throws CCallError if there is one file for several jobs, its ending is another, or a picture
///         would overwrite an input.
void namePictures(SJobs &jobs, const std::string &request);

}  // namespace Tessitor::Tool
