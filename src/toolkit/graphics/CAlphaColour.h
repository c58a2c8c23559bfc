#pragma once

#include "foundation/CString.h"
#include "toolkit/graphics/CColour.h"

namespace Tessitor::GUI::Basics {

/// A colour with alpha: 0 is transparent, 255 opaque. [one thread at a time]
class CAlphaColour : public CColour {
public:
    CAlphaColour() : CAlphaColour(255, 255, 255) {}
    CAlphaColour(std::int32_t red, std::int32_t green, std::int32_t blue, std::int32_t alpha = 255);
    explicit CAlphaColour(const CColour &colour);  ///< opaque
    /// Parses the result of toString(). Black with alpha 0 unless the text has four tokens.
    explicit CAlphaColour(const Tessitor::Basics::CString &text);
    CAlphaColour(const CAlphaColour &other);
    ~CAlphaColour() override { s_class.decrementInstanceCount(); }
    Tessitor::Basics::CClass &getClass() const override { return s_class; }
    void getObjectDescription(char *array, long size) const override;  ///< "[red,green,blue,alpha]"

    CAlphaColour &operator=(const CAlphaColour &other) = default;
    bool operator==(const CAlphaColour &other) const;
    using CColour::setAllColours;
    virtual void setAllColours(std::int32_t red, std::int32_t green, std::int32_t blue,
                               std::int32_t alpha);
    void setAlpha(std::int32_t alpha) { m_alpha = alpha; }
    std::int32_t getAlpha() const { return m_alpha; }

    void lighten();  ///< moves half way to white; alpha becomes 255
    void darken();   ///< moves half way to black; alpha becomes 255

    /// One channel of a colour drawn over another.
    /// @param alpha  0 returns the background, 255 the foreground.
    static std::int32_t alphaBlend(std::int32_t foreground, std::int32_t background,
                                   std::int32_t alpha);
    /// @param alpha  0 returns the first colour, 255 the second.
    /// @return an opaque colour.
    static CAlphaColour blend(const CAlphaColour &first, const CAlphaColour &second,
                              std::int32_t alpha);

    Tessitor::Basics::CString toString() const;  ///< for files: "red,green,blue,alpha"
    /// For drawing. Only the low byte of each channel counts.
    SNativeColour toNativeWithAlpha() const;

private:
    void moveTowards(const CColour &other);

    static Tessitor::Basics::TClassRecord<CAlphaColour> s_class;

    std::int32_t m_alpha;
};

}  // namespace Tessitor::GUI::Basics
