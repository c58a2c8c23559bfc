#pragma once

#include "foundation/CString.h"

namespace Tessitor::Exceptions {

/// The only exception of the library, thrown and caught by value. It holds a reason and the
/// signature of the function that threw it.
class CException : public Basics::CCountedObject {
public:
    /// @param errorFlag  ignored: the flag of every exception is 1.
    CException(const Basics::CString &errorReason, const Basics::CString &functionName,
               bool errorFlag);
    /// Kept: leaves the instance count alone, although the destructor lowers it.
    CException(const CException &other);
    CException &operator=(const CException &) = delete;
    ~CException() override { s_class.decrementInstanceCount(); }
    Basics::CClass &getClass() const override { return s_class; }

    virtual const Basics::CString &getErrorReason() const { return m_errorReason; }
    virtual const Basics::CString &getFunctionName() const { return m_functionName; }
    virtual std::uint8_t getErrorFlag() const { return m_errorFlag; }

private:
    static Basics::TClassRecord<CException> s_class;

    Basics::CString m_errorReason;
    Basics::CString m_functionName;
    std::uint8_t m_errorFlag = 1;
};

}  // namespace Tessitor::Exceptions
