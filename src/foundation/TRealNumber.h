#pragma once

#include "foundation/CString.h"

#include <algorithm>
#include <compare>

namespace Tessitor::Basics {

/// What CFloat and CDouble have in common: a number as an object, with the arithmetic of its type,
/// which never traps. [one thread at a time]
/// @tparam Owner  the derived class, which must be constructible from a Value.
template <typename Owner, typename Value>
class TRealNumber : public CCountedObject {
public:
    void getObjectDescription(char *array, long size) const override;  ///< "%f"

    void setValue(Value value) { m_value = value; }
    Value getValue() const { return m_value; }

    Owner &operator+=(const Owner &other) { return store(m_value + other.m_value); }
    Owner &operator-=(const Owner &other) { return store(m_value - other.m_value); }
    Owner &operator*=(const Owner &other) { return store(m_value * other.m_value); }
    Owner &operator/=(const Owner &other) { return store(m_value / other.m_value); }

    friend Owner operator+(Owner left, const Owner &right) { return left += right; }
    friend Owner operator-(Owner left, const Owner &right) { return left -= right; }
    friend Owner operator*(Owner left, const Owner &right) { return left *= right; }
    friend Owner operator/(Owner left, const Owner &right) { return left /= right; }
    friend bool operator==(const Owner &left, const Owner &right) {
        return left.m_value == right.m_value;
    }
    friend std::partial_ordering operator<=>(const Owner &left, const Owner &right) {
        return left.m_value <=> right.m_value;
    }

    /// @param places  digits after the decimal point, rounded; below 0 counts as 0.
    static CString toString(Value value, int places);

protected:
    explicit TRealNumber(Value value) : m_value(value) {}
    TRealNumber(const TRealNumber &other) : TRealNumber(other.m_value) {}
    TRealNumber &operator=(const TRealNumber &other) = default;

private:
    Owner &store(Value value);

    Value m_value;
};

// Definitions
template <typename Owner, typename Value>
void TRealNumber<Owner, Value>::getObjectDescription(char *array, long size) const {
    CString text;
    text.setStringWithFormat("%f", static_cast<double>(m_value));
    text.getString(array, size);
}

template <typename Owner, typename Value>
CString TRealNumber<Owner, Value>::toString(Value value, int places) {
    CString text;
    text.setStringWithFormat("%.*f", std::max(places, 0), static_cast<double>(value));
    return text;
}

template <typename Owner, typename Value>
Owner &TRealNumber<Owner, Value>::store(Value value) {
    m_value = value;
    return static_cast<Owner &>(*this);
}

}  // namespace Tessitor::Basics
