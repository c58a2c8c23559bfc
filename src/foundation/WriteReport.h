#pragma once

#include "foundation/CTextStream.h"

namespace Tessitor::IO {

/// Writes a small report: the heading, a rule, the details and the rule again. If the file cannot
/// be created, nothing happens.
/// @param path      the file. Without an extension it is taken as a folder, and fileName is
///                  appended.
/// @param heading   ends in a line feed.
/// @param details   void(CTextStream &): writes the details.
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
