#include "foundation/CDimension.h"

namespace Tessitor::MathTools {

Basics::TClassRecord<CDimension> CDimension::s_class("CDimension", "CCountedObject");

CDimension::CDimension(std::int32_t width, std::int32_t height) : m_width(width), m_height(height) {
    s_class.incrementInstanceCount();
}

void CDimension::setDimension(std::int32_t width, std::int32_t height) {
    m_width = width;
    m_height = height;
}

}  // namespace Tessitor::MathTools
