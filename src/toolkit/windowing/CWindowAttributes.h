#pragma once

#include "foundation/CString.h"
#include "foundation/TAutomaticPointer.h"
#include "toolkit/graphics/CColour.h"
#include "toolkit/graphics/CWindowIcon.h"

namespace Tessitor::GUI::Windowing {

enum class EWindowKind {
    Standard,   ///< can be resized
    FixedSize,  ///< with a title bar
    Dialog,     ///< the same styles as FixedSize
    Popup       ///< without a frame, above all others, never active, can be translucent
};

/// What a window is created with. [gui thread]
class CWindowAttributes : public Tessitor::Basics::CCountedObject {
public:
    /// An unknown kind counts as Standard.
    explicit CWindowAttributes(EWindowKind kind = EWindowKind::Standard);
    CWindowAttributes(const CWindowAttributes &other);
    ~CWindowAttributes() override { s_class.decrementInstanceCount(); }
    Tessitor::Basics::CClass &getClass() const override { return s_class; }
    CWindowAttributes &operator=(const CWindowAttributes &other);

    void setWindowKind(EWindowKind kind);  ///< sets both styles
    /// @param style          a sum of the WS_ bits of Windows.
    /// @param extendedStyle  a sum of the WS_EX_ bits.
    void setWindowStyles(std::uint32_t style, std::uint32_t extendedStyle);
    std::uint32_t getWindowStyle() const { return m_style; }
    std::uint32_t getExtendedWindowStyle() const { return m_extendedStyle; }

    /// Windows of the same title share their icon and shadow: those of the first one that exists.
    void setWindowTitle(const Tessitor::Basics::CString &title) { m_title = title; }
    const Tessitor::Basics::CString &getWindowTitle() const { return m_title; }
    void setBackgroundColour(const Basics::CColour &colour) { m_backgroundColour = colour; }
    const Basics::CColour &getBackgroundColour() const { return m_backgroundColour; }
    void setAlpha(double alpha) { m_alpha = alpha; }
    double getAlpha() const { return m_alpha; }  ///< 0 to 1
    /// Holds a reference to the icon; null for none.
    void setWindowIcon(Graphics::CWindowIcon *icon) { m_icon.setPointer(icon); }
    Graphics::CWindowIcon *getWindowIcon() const { return m_icon.getPointer(); }
    void setEnabled(bool isEnabled) { m_isEnabled = isEnabled; }
    bool isEnabled() const { return m_isEnabled; }
    void setDropShadow(bool hasDropShadow) { m_hasDropShadow = hasDropShadow; }
    bool hasDropShadow() const { return m_hasDropShadow; }

private:
    static Tessitor::Basics::TClassRecord<CWindowAttributes> s_class;

    Tessitor::Basics::CString m_title = "Application";
    Basics::CColour m_backgroundColour;  // white
    double m_alpha = 1.0;
    Collections::TAutomaticPointer<Graphics::CWindowIcon> m_icon;
    bool m_isEnabled = true;
    bool m_hasDropShadow = false;
    std::uint32_t m_style = 0;
    std::uint32_t m_extendedStyle = 0;
};

}  // namespace Tessitor::GUI::Windowing
