#pragma once

#include "foundation/CCountedObject.h"

namespace Tessitor::MathTools {

/// A size in pixels. [one thread at a time]
class CDimension : public Basics::CCountedObject {
public:
    CDimension() : CDimension(0, 0) {}
    CDimension(std::int32_t width, std::int32_t height);
    CDimension(const CDimension &other) : CDimension(other.m_width, other.m_height) {}
    ~CDimension() override { s_class.decrementInstanceCount(); }
    Basics::CClass &getClass() const override { return s_class; }

    CDimension &operator=(const CDimension &other) = default;
    void setDimension(std::int32_t width, std::int32_t height);
    void setWidth(std::int32_t width) { m_width = width; }
    void setHeight(std::int32_t height) { m_height = height; }
    std::int32_t getWidth() const { return m_width; }
    std::int32_t getHeight() const { return m_height; }

private:
    static Basics::TClassRecord<CDimension> s_class;

    std::int32_t m_width, m_height;
};

}  // namespace Tessitor::MathTools
