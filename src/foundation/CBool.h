#pragma once

#include "foundation/CString.h"

namespace Tessitor::Basics {

/// A truth value as an object. [one thread at a time]
class CBool : public CCountedObject {
public:
    CBool(bool value = false);
    CBool(const char *text);     ///< parsed by setValue()
    CBool(const CString &text);  ///< parsed by setValue()
    CBool(const CBool &other);
    ~CBool() override { s_class.decrementInstanceCount(); }
    CClass &getClass() const override { return s_class; }
    void getObjectDescription(char *array, long size) const override;  ///< toString()

    CBool &operator=(const CBool &other) = default;
    void setValue(bool value) { m_value = value; }
    void setValue(const char *text);  ///< true only for "True"
    void setValue(const CString &text);
    bool getValue() const { return m_value; }

    bool operator!() const { return !m_value; }
    friend bool operator==(const CBool &left, const CBool &right) {
        return left.m_value == right.m_value;
    }

    CString toString() const;  ///< "True" or "False"

private:
    static TClassRecord<CBool> s_class;

    bool m_value;
};

}  // namespace Tessitor::Basics
