#include "foundation/CFloat.h"

namespace Tessitor::Basics {

TClassRecord<CFloat> CFloat::s_class("CFloat", "CCountedObject");

CFloat::CFloat(float value) : TRealNumber(value) {
    s_class.incrementInstanceCount();
}

CFloat::CFloat(const CFloat &other) : CFloat(other.getValue()) {}

}  // namespace Tessitor::Basics
