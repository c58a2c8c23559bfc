#include "foundation/CDouble.h"

namespace Tessitor::Basics {

TClassRecord<CDouble> CDouble::s_class("CDouble", "CCountedObject");

CDouble::CDouble(double value) : TRealNumber(value) {
    s_class.incrementInstanceCount();
}

CDouble::CDouble(const CDouble &other) : CDouble(other.getValue()) {}

}  // namespace Tessitor::Basics
