#include "corvel/audio/PipeFormat.h"

#include <sndfile.h>

namespace Tessitor::Tool {

int pipeFormat(int inputFormat, const SFormatRequest &request,
               const std::optional<SRawFormat> &raw) {
    if (raw && request.container == 0)
        return SF_FORMAT_RAW | raw->sampleType | SF_ENDIAN_LITTLE;
    SFormatRequest wanted = request;
    if (wanted.container == 0)
        wanted.container = SF_FORMAT_WAV;
    const int format = outputFormat(inputFormat, wanted, "");
    // A pipe needs no 64-bit form: an unknown length has no limit.
    if ((format & SF_FORMAT_TYPEMASK) == SF_FORMAT_RF64)
        return SF_FORMAT_WAV | (format & SF_FORMAT_SUBMASK);
    return format;
}

}  // namespace Tessitor::Tool
