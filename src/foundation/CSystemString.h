#pragma once

#include "foundation/CString.h"

namespace Tessitor::Basics {

/// A path. The separator is the system's, nativePathSeparator; where "the last" or "the first" of
/// something is told, that goes over all positions of the string, as CString tells.
class CSystemString : public CString {
public:
    CSystemString(const char *text = "");  ///< null is taken as ""
    CSystemString(const CString &text);
    CSystemString(const CSystemString &other);
    ~CSystemString() override { s_class.decrementInstanceCount(); }
    CClass &getClass() const override { return s_class; }

    using CString::operator=;
    using CString::operator==;
    using CString::operator!=;
    CSystemString &operator=(const char *text) override;
    /// Joins paths: always adds a separator, then the text.
    CSystemString &operator+=(const char *text) override;
    CSystemString &operator+=(const CString &other) override;

    /// Does nothing only if other is this very object.
    virtual CSystemString &operator=(const CSystemString &other);
    virtual bool operator==(const CSystemString &other) const;
    virtual bool operator!=(const CSystemString &other) const;

    virtual bool hasExtension(const CString &extension) const;
    /// Whether the string ends with the text, which may as well be no extension. True also for ""
    /// and for any text that is longer than the string.
    virtual bool hasExtension(const char *extension) const;
    virtual bool hasExtension() const;  ///< a "." stands at an index above 0
    virtual void setNewExtension(const CString &extension, bool removeOld);
    /// Adds "." and the extension, with removeOld in the place of the last "." and what follows it.
    virtual void setNewExtension(const char *extension, bool removeOld);
    /// Writes a terminator over the last "." above index 0. The number of characters stays.
    virtual void removeExtension();
    virtual bool hasNoExtension() const;
    virtual void removeFileName();  ///< cuts behind the last separator, if there is one
    /// The whole if there is no extension; else up to the last separator and with it, "" without
    /// one.
    virtual CString getPath() const;
    virtual void appendSeparator();
    virtual void appendPath(const CString &path);  ///< adds a separator unless one is there
    /// @param asPath  false for the first character alone, true for all up to the first separator
    ///                and with it, "" if there is none.
    virtual CString getDrive(bool asPath) const;
    virtual CString getExtension() const;  ///< from the last ".", else ""
    virtual CString getFileName() const;   ///< behind the last separator; "" without one
    /// Counts as CStringTokeniser does, which also says where a path is too long for these three.
    virtual std::int32_t getNumberOfPathSections() const;
    /// @return the section on the heap, for the caller to delete; null if there is none. Section 0,
    ///         and only that, has a separator behind it, and an index below 0 gives it without one.
    ///         A path that begins with a separator has "" as its section 0.
    virtual CString *getPathSection(long index) const;
    virtual CString getLastPathSection() const;  ///< "" if there is none
    virtual void removeLastPathSection();  ///< with its separator, unless that has an index below 2
    virtual void removeFirstPathSection();  ///< with its separator; nothing if there is none
    virtual void convertSlashes();          ///< each "/" to the separator

private:
    static TClassRecord<CSystemString> s_class;

    CString restFrom(std::int32_t index) const;
};

}  // namespace Tessitor::Basics
