#pragma once

#include "CTemporaryFolder.h"
#include "foundation/CSystemString.h"
#include "foundation/ReadFile.h"

/// What a report writes when it is given a folder, which must become a file of that name.
inline std::string reportText(void (*writeReport)(Tessitor::Basics::CSystemString &path),
                              const char *fileName) {
    const CTemporaryFolder folder;
    Tessitor::Basics::CSystemString path = folder.path().string().c_str();
    writeReport(path);
    return path.getString() == (folder / fileName).string() ? readFile(path.getString())
                                                            : path.getString();
}
