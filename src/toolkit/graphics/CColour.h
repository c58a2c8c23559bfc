#pragma once

#include "foundation/CCountedObject.h"
#include "platform/SNativeColour.h"

namespace Tessitor::GUI::Basics {

/// A colour; each channel runs from 0 to 255. [one thread at a time]
class CColour : public Tessitor::Basics::CCountedObject {
public:
    CColour() : CColour(255, 255, 255) {}
    CColour(std::int32_t red, std::int32_t green, std::int32_t blue);
    CColour(const CColour &other) : CColour(other.m_red, other.m_green, other.m_blue) {}
    ~CColour() override { s_class.decrementInstanceCount(); }
    Tessitor::Basics::CClass &getClass() const override { return s_class; }
    void getObjectDescription(char *array, long size) const override;  ///< "[red,green,blue]"

    CColour &operator=(const CColour &other) = default;
    bool operator==(const CColour &other) const;
    virtual void setAllColours(std::int32_t red, std::int32_t green, std::int32_t blue);
    void setRed(std::int32_t red) { m_red = red; }
    void setGreen(std::int32_t green) { m_green = green; }
    void setBlue(std::int32_t blue) { m_blue = blue; }
    std::int32_t getRed() const { return m_red; }
    std::int32_t getGreen() const { return m_green; }
    std::int32_t getBlue() const { return m_blue; }

    /// 0x00bbggrr, like COLORREF on Windows. Only the low byte of each channel counts.
    std::uint32_t getNativeColour() const;
    /// For drawing: opaque. Only the low byte of each channel counts.
    SNativeColour toNative() const;

private:
    static Tessitor::Basics::TClassRecord<CColour> s_class;

    std::int32_t m_red, m_green, m_blue;
};

}  // namespace Tessitor::GUI::Basics
