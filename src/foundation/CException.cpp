#include "foundation/CException.h"

namespace Tessitor::Exceptions {

Basics::TClassRecord<CException> CException::s_class("CException", "CCountedObject");

CException::CException(const Basics::CString &errorReason, const Basics::CString &functionName,
                       bool /*errorFlag*/)
    : m_errorReason(errorReason), m_functionName(functionName) {
    s_class.incrementInstanceCount();
}

CException::CException(const CException &other) = default;

}  // namespace Tessitor::Exceptions
