#pragma once

#include "foundation/CSystemString.h"
#include "foundation/CTime.h"

namespace Tessitor::Host {

/// A copy of what the system says about a file or folder. [one thread at a time]
class CFileInformation : public Basics::CCountedObject {
public:
    CFileInformation();
    explicit CFileInformation(const Basics::CSystemString &path);  ///< calls readInformation()
    CFileInformation(const CFileInformation &other);
    ~CFileInformation() override { s_class.decrementInstanceCount(); }
    Basics::CClass &getClass() const override { return s_class; }

    virtual CFileInformation &operator=(const CFileInformation &other);

    /// @return false if there is no such file or folder. Nothing is changed in that case.
    bool readInformation(const Basics::CSystemString &path);

    /// See SNativeFile::attributes. 11 before anything is read.
    std::uint32_t getAttributes() const { return m_attributes; }
    bool isFolder() const;
    // UTC. All zero if the file system does not record that time.
    const CTime &getCreationTime() const { return m_creationTime; }
    const CTime &getLastAccessTime() const { return m_lastAccessTime; }
    const CTime &getLastWriteTime() const { return m_lastWriteTime; }
    std::uint64_t getFileSize() const { return m_fileSize; }  ///< bytes
    /// The 8.3 name if Windows keeps one, otherwise the name.
    const Basics::CString &getShortName() const { return m_shortName; }
    const Basics::CString &getExtension() const { return m_extension; }  ///< with its dot, or ""
    const Basics::CString &getDisplayName() const { return m_displayName; }  ///< without the folder
    const Basics::CSystemString &getFullPath() const { return m_fullPath; }  ///< as it was given

private:
    static Basics::TClassRecord<CFileInformation> s_class;

    std::uint32_t m_attributes = 11;
    CTime m_creationTime, m_lastAccessTime, m_lastWriteTime;
    std::uint64_t m_fileSize = 0;
    Basics::CString m_shortName, m_extension, m_displayName;
    Basics::CSystemString m_fullPath;
};

}  // namespace Tessitor::Host
