#pragma once

#include "foundation/CString.h"

namespace Tessitor::MathTools {

/// A value and its range. Normalised values from 0 to 1 map linearly to the range. Starts at 0.5,
/// in a range from 0 to 1. The value is never clamped. [one thread at a time]
class CParameter : public Basics::CCountedObject {
public:
    CParameter() { s_class.incrementInstanceCount(); }
    CParameter(const CParameter &other);
    ~CParameter() override { s_class.decrementInstanceCount(); }
    Basics::CClass &getClass() const override { return s_class; }

    /// Leaves the value alone. Does nothing unless the maximum is at least the minimum.
    virtual void setRange(double minimum, double maximum);
    virtual double getValue() const { return m_value; }
    virtual void getValueAsString(Basics::CString &text) const;  ///< with two decimals
    virtual void setNormalisedValue(double value);
    /// Sets the normalised value. @return the new getValue().
    virtual double updateValue(double value);

    CParameter &operator=(const CParameter &other) = default;
    void setValue(double value) { m_value = value; }
    double getMinimum() const { return m_minimum; }
    double getMaximum() const { return m_maximum; }

private:
    static Basics::TClassRecord<CParameter> s_class;

    double m_value = 0.5;
    double m_minimum = 0.0, m_maximum = 1.0;
    double m_range = 1.0;  // maximum - minimum
};

}  // namespace Tessitor::MathTools
