#pragma once

#include "foundation/CSystemString.h"

namespace Tessitor::Basics {

/// A web or file address.
class CHtmlString : public CSystemString {
public:
    CHtmlString(const char *text = "");  ///< null is taken as ""
    CHtmlString(const CString &text);
    CHtmlString(const CHtmlString &other);
    ~CHtmlString() override { s_class.decrementInstanceCount(); }
    CClass &getClass() const override { return s_class; }

    using CSystemString::operator=;
    CHtmlString &operator=(const CHtmlString &other) = default;

    virtual bool isFileAddress() const;  ///< always false
    virtual bool isWebAddress() const;   ///< always false
    /// Puts "http://" in front of the text, or "file://", whether it has one or not.
    virtual void addProtocol(bool asWeb);
    /// Opens the address with what the user has chosen for it, and does not wait.
    /// @param localFile  if false, "http://" is put in front of the text first, and stays there.
    /// @return false if the system refused.
    virtual bool openInBrowser(bool localFile);

private:
    static TClassRecord<CHtmlString> s_class;
};

}  // namespace Tessitor::Basics
