#pragma once

#include "foundation/CString.h"

#include <compare>

namespace Tessitor::Basics {

/// An integer as an object. Arithmetic never traps: it wraps at the ends of the range, and dividing
/// by 0 returns 0. [one thread at a time]
class CLong : public CCountedObject {
public:
    CLong(long value = 0);
    CLong(const CLong &other);
    ~CLong() override { s_class.decrementInstanceCount(); }
    CClass &getClass() const override { return s_class; }
    void getObjectDescription(char *array, long size) const override;  ///< "%li"

    CLong &operator=(const CLong &other);
    void setValue(long value) { m_value = value; }
    long getValue() const { return m_value; }

    CLong &operator+=(const CLong &other);
    CLong &operator-=(const CLong &other);
    CLong &operator*=(const CLong &other);
    CLong &operator/=(const CLong &other);

    friend CLong operator+(CLong left, const CLong &right) { return left += right; }
    friend CLong operator-(CLong left, const CLong &right) { return left -= right; }
    friend CLong operator*(CLong left, const CLong &right) { return left *= right; }
    friend CLong operator/(CLong left, const CLong &right) { return left /= right; }
    friend bool operator==(const CLong &left, const CLong &right) {
        return left.m_value == right.m_value;
    }
    friend std::strong_ordering operator<=>(const CLong &left, const CLong &right) {
        return left.m_value <=> right.m_value;
    }

    /// @param width  minimum number of characters with the sign; zeros pad the number on the left.
    static CString toString(long value, int width);

private:
    static TClassRecord<CLong> s_class;

    long m_value;
};

}  // namespace Tessitor::Basics
