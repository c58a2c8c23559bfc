#include "foundation/CParameter.h"

#include "foundation/CDouble.h"

namespace Tessitor::MathTools {

Basics::TClassRecord<CParameter> CParameter::s_class("CParameter", "CCountedObject");

CParameter::CParameter(const CParameter &other) : CParameter() {
    *this = other;
}

void CParameter::setRange(double minimum, double maximum) {
    if (!(maximum >= minimum))
        return;
    m_minimum = minimum;
    m_maximum = maximum;
    m_range = maximum - minimum;
}

void CParameter::getValueAsString(Basics::CString &text) const {
    text.setString(Basics::CDouble::toString(m_value, 2));
}

void CParameter::setNormalisedValue(double value) {
    m_value = value * m_range + m_minimum;
}

double CParameter::updateValue(double value) {
    setNormalisedValue(value);
    return getValue();
}

}  // namespace Tessitor::MathTools
