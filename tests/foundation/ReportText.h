#pragma once

#include "CTemporaryFolder.h"
#include "foundation/CSystemString.h"
#include "foundation/ReadFile.h"

/// Passes a folder to a report, which must then write to the file of that name in it.
/// @return the text of the file; the path if the report chose another file.
inline std::string reportText(void (*writeReport)(Tessitor::Basics::CSystemString &path),
                              const char *fileName) {
    const CTemporaryFolder folder;
    Tessitor::Basics::CSystemString path = folder.path().string().c_str();
    writeReport(path);
    return path.getString() == (folder / fileName).string() ? readFile(path.getString())
                                                            : path.getString();
}
