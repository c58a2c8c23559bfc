#include "foundation/CFileInformation.h"

#include "platform/NativeFile.h"

namespace Tessitor::Host {

using Basics::CSystemString;

namespace {

CTime timeOf(std::uint64_t fileTime) {
    CTime time;
    if (fileTime != 0)
        time.fromFileTime(fileTime);
    return time;
}

}  // namespace

Basics::TClassRecord<CFileInformation> CFileInformation::s_class("CFileInformation",
                                                                 "CCountedObject");

CFileInformation::CFileInformation() {
    s_class.incrementInstanceCount();
}

CFileInformation::CFileInformation(const CSystemString &path) : CFileInformation() {
    readInformation(path);
}

CFileInformation::CFileInformation(const CFileInformation &other) : CFileInformation() {
    CFileInformation::operator=(other);
}

CFileInformation &CFileInformation::operator=(const CFileInformation &other) = default;

bool CFileInformation::readInformation(const CSystemString &path) {
    const auto file = nativeFile(path.getString());
    if (!file)
        return false;
    m_attributes = file->attributes;
    m_creationTime = timeOf(file->creationTime);
    m_lastAccessTime = timeOf(file->lastAccessTime);
    m_lastWriteTime = timeOf(file->lastWriteTime);
    m_fileSize = file->size;
    m_displayName = file->name.c_str();
    m_shortName = file->shortName.empty() ? file->name.c_str() : file->shortName.c_str();
    m_extension = CSystemString(m_displayName).getExtension();
    m_fullPath = path;
    return true;
}

bool CFileInformation::isFolder() const {
    return (m_attributes & nativeFolderAttribute) != 0;
}

}  // namespace Tessitor::Host
