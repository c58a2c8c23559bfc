#include "foundation/CCountedObject.h"

#include "foundation/CopyText.h"

#include <cstdio>

namespace Tessitor::Basics {

TClassRecord<CCountedObject> CCountedObject::s_class("CCountedObject", "ICountedObject");

void CCountedObject::dereference() {
    if (--m_referenceCount < 1)
        delete this;
}

void CCountedObject::getObjectDescription(char *array, long size) const {
    char text[1024];
    std::snprintf(text, sizeof text, "[CCounted Object Base Reference Count = %li",
                  static_cast<long>(m_referenceCount));
    copyText(array, size, text);
}

}  // namespace Tessitor::Basics
