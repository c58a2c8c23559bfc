#pragma once

#include "CTemporaryFolder.h"
#include "foundation/CSystemString.h"
#include "foundation/ReadFile.h"

/// @return what a report writes if it is given a folder, or the path that it writes to if that is
///         not the file of that name in the folder.
inline std::string reportText(void (*writeReport)(Tessitor::Basics::CSystemString &path),
                              const char *fileName) {
    const CTemporaryFolder folder;
    Tessitor::Basics::CSystemString path = folder.path().string().c_str();
    writeReport(path);
    return path.getString() == (folder / fileName).string() ? readFile(path.getString())
                                                            : path.getString();
}
