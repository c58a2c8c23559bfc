#include "corvel/commands/PrepareStreams.h"

#include "corvel/console/Errors.h"
#include "platform/StandardStreams.h"

#include <algorithm>
#include <sndfile.h>

namespace Tessitor::Tool {

namespace {

constexpr const char *stream = "-";

}  // namespace

void prepareStreams(const SFileRequest &files, const SRenderOptions &options) {
    const bool writes = !files.folder && files.files.back() == stream;
    const auto inputs = files.files.end() - (files.folder ? 0 : 1);
    const bool reads = std::find(files.files.begin(), inputs, stream) != inputs;
    if (options.raw && !reads && !writes)
        throw CCallError("--raw: is for standard input or output; name one of them with \"-\"");
    if (reads && isStandardInputTerminal())
        throw CCallError("standard input is a terminal; pipe a sound into corvel");
    if (!writes)
        return;
    if (isStandardOutputTerminal())
        throw CCallError("standard output is a terminal; pipe the sound into a program or a file");
    if (options.format.container == SF_FORMAT_AIFF)
        throw CCallError("--format: AIFF cannot be written to standard output; use wav, flac or "
                         "ogg");
    if (!divertStandardOutput())
        throw CJobError("standard output: cannot be used");
}

}  // namespace Tessitor::Tool
