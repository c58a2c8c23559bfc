#include "foundation/CBool.h"

namespace Tessitor::Basics {

TClassRecord<CBool> CBool::s_class("CBool", "CCountedObject");

CBool::CBool(bool value) : m_value(value) {
    s_class.incrementInstanceCount();
}

CBool::CBool(const char *text) : CBool(CString(text)) {}

CBool::CBool(const CString &text) : CBool() {
    setValue(text);
}

CBool::CBool(const CBool &other) : CBool(other.m_value) {}

void CBool::getObjectDescription(char *array, long size) const {
    toString().getString(array, size);
}

void CBool::setValue(const char *text) {
    setValue(CString(text));
}

void CBool::setValue(const CString &text) {
    m_value = text == "True";
}

CString CBool::toString() const {
    return m_value ? "True" : "False";
}

}  // namespace Tessitor::Basics
