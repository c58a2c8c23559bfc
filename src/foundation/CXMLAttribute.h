#pragma once

#include "foundation/CString.h"

namespace Tessitor::IO {

/// An attribute of an XML node: a name and a value. Numbers are written with "%f", "%li" and "%d"
/// and read by the rules of CString, but in decimal only. The decimal separator is a point,
/// whatever the host's locale. A bool is "True" or "False".
class CXMLAttribute : public Basics::CCountedObject {
public:
    /// @param name   trimmed, with each blank replaced by "_". Kept: a single letter becomes "";
    ///               see CString::removeTrailingWhiteSpace().
    /// @param value  any type that setValue() accepts.
    template <typename Value>
    CXMLAttribute(const Basics::CString &name, const Value &value) : CXMLAttribute(name) {
        setValue(value);
    }
    CXMLAttribute(const CXMLAttribute &) = delete;
    CXMLAttribute &operator=(const CXMLAttribute &) = delete;
    ~CXMLAttribute() override { s_class.decrementInstanceCount(); }
    Basics::CClass &getClass() const override { return s_class; }

    void setValue(const Basics::CString &value);
    void setValue(const char *value);  ///< null is ignored
    void setValue(bool value);
    void setValue(double value);
    void setValue(float value);
    void setValue(long value);
    void setValue(int value);

    const Basics::CString &getName() const { return m_name; }
    const Basics::CString &getValue() const { return m_value; }
    double getValueAsDouble() const;
    float getValueAsFloat() const;
    long getValueAsLong() const;
    int getValueAsInt() const;
    bool getValueAsBool() const;  ///< true only for "True"

private:
    explicit CXMLAttribute(const Basics::CString &name);

    static Basics::TClassRecord<CXMLAttribute> s_class;

    Basics::CString m_name;
    Basics::CString m_value;
};

}  // namespace Tessitor::IO
