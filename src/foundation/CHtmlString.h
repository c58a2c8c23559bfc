#pragma once

#include "foundation/CSystemString.h"

namespace Tessitor::Basics {

/// A web or file address.
class CHtmlString : public CSystemString {
public:
    CHtmlString(const char *text = "");  ///< null counts as ""
    CHtmlString(const CString &text);
    CHtmlString(const CHtmlString &other);
    ~CHtmlString() override { s_class.decrementInstanceCount(); }
    CClass &getClass() const override { return s_class; }

    using CSystemString::operator=;
    CHtmlString &operator=(const CHtmlString &other) = default;

    virtual bool isFileAddress() const;  ///< kept: always false
    virtual bool isWebAddress() const;   ///< kept: always false
    /// Puts "http://" or "file://" in front of the text, even if it already has a protocol.
    virtual void addProtocol(bool asWeb);
    /// Opens the address in the user's default program and does not wait for it.
    /// @param localFile  if false, "http://" is first put in front of the text, for good.
    /// @return false if the system refused.
    virtual bool openInBrowser(bool localFile);

private:
    static TClassRecord<CHtmlString> s_class;
};

}  // namespace Tessitor::Basics
