#include "foundation/Trace.h"

#include "foundation/CTextStream.h"

#include <cstdarg>
#include <cstdio>
#include <string>

namespace Tessitor::IO {

namespace {

CTextStream &traceStream() {
    static CTextStream stream;
    return stream;
}

// Constructs the stream during static initialisation, unless a static object has already traced.
[[maybe_unused]] const CTextStream &builtEarly = traceStream();

void writeLine(const std::string &text) {
    traceStream() << text.c_str() << "\n";
}

}  // namespace

bool openTrace(const Basics::CSystemString &path) {
    return traceStream().open(path, EStreamMode::Write);
}

void trace(const char *format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    const int length = std::vsnprintf(nullptr, 0, format, arguments);
    va_end(arguments);
    if (length < 0 || !traceStream().isOpenForWriting())
        return;

    std::string text(static_cast<std::size_t>(length), '\0');
    va_start(arguments, format);
    std::vsnprintf(text.data(), text.size() + 1, format, arguments);
    va_end(arguments);
    writeLine(text);
}

void trace(const Basics::ICountedObject &object, const char *text) {
    constexpr long size = 1024;
    char description[size + 1] = {};  // one byte more, since a description may lack a terminator
    object.getObjectDescription(description, size);
    writeLine(std::string(text) + description);
}

}  // namespace Tessitor::IO
