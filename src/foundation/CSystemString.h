#pragma once

#include "foundation/CString.h"

namespace Tessitor::Basics {

/// A path, with nativePathSeparator between its sections. A search for the first or last "." or
/// separator covers every position of the string, even after a terminator (see CString).
class CSystemString : public CString {
public:
    CSystemString(const char *text = "");  ///< null counts as ""
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

    /// Copies even an equal text; does nothing only if other is this object.
    virtual CSystemString &operator=(const CSystemString &other);
    virtual bool operator==(const CSystemString &other) const;
    virtual bool operator!=(const CSystemString &other) const;

    virtual bool hasExtension(const CString &extension) const;
    /// True if the string ends with the text, whether that is an extension or not. Kept: also true
    /// for "" and for any text longer than the string.
    virtual bool hasExtension(const char *extension) const;
    virtual bool hasExtension() const;  ///< true if the last "." has an index above 0
    virtual void setNewExtension(const CString &extension, bool removeOld);
    /// Adds "." and the extension, after removeExtension() if removeOld is set.
    virtual void setNewExtension(const char *extension, bool removeOld);
    /// Writes a terminator over the last "." if its index is above 0. The number of characters does
    /// not change.
    virtual void removeExtension();
    virtual bool hasNoExtension() const;
    virtual void removeFileName();  ///< cuts after the last separator, if there is one
    /// The whole string if it has no extension. Otherwise everything up to and including the last
    /// separator, or "" if there is none.
    virtual CString getPath() const;
    virtual void appendSeparator();
    virtual void appendPath(const CString &path);  ///< adds a separator unless one is there
    /// @param asPath  false returns the first character alone. True returns everything up to and
    ///                including the first separator, or "" if there is none.
    virtual CString getDrive(bool asPath) const;
    virtual CString getExtension() const;  ///< from the last "." on; "" without one
    virtual CString getFileName() const;   ///< after the last separator; "" without one
    /// Counts like CStringTokeniser, which ignores the end of a long path. The next two operations
    /// also use it.
    virtual std::int32_t getNumberOfPathSections() const;
    /// @return the section on the heap, for the caller to delete; null if there is none. Kept: only
    ///         section 0 comes with its separator; an index below 0 returns it without. If the path
    ///         begins with a separator, section 0 is empty.
    virtual CString *getPathSection(long index) const;
    virtual CString getLastPathSection() const;  ///< "" if there is none
    /// Cuts before the last separator. Does nothing if its index is below 2.
    virtual void removeLastPathSection();
    virtual void removeFirstPathSection();  ///< cuts after the first separator, if there is one
    virtual void convertSlashes();          ///< each "/" to the separator

private:
    static TClassRecord<CSystemString> s_class;

    CString restFrom(std::int32_t index) const;
};

}  // namespace Tessitor::Basics
