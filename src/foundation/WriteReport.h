#pragma once

#include "foundation/CTextStream.h"

namespace Tessitor::IO {

/// Writes a small report: the heading, a rule, the details and the rule again. Writes nothing if
/// the file cannot be made.
/// @param path      the file; without an extension it is a folder, and the name is added to it.
/// @param heading   with its line end.
/// @param details   void(CTextStream &), which writes them.
template <typename Details>
void writeReport(Basics::CSystemString &path, const char *fileName, const char *heading,
                 Details details) {
    static constexpr char rule[] = "----------------------------------\n";
    if (path.hasNoExtension())
        path.appendPath(fileName);
    CTextStream report(path, EStreamMode::Write);
    report << heading << rule;
    details(report);
    report << rule;
}

}  // namespace Tessitor::IO
