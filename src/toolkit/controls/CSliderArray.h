#pragma once

#include "toolkit/controls/CControl.h"

#include <vector>

namespace Tessitor::GUI::Controls {

/// A row of thin vertical bars. Pressing or dragging sets the bar under the mouse to its height.
/// When it first gets an area that is not empty, as many bars as fit are made, but no more than
/// 1000, each 4 pixels wide with 1 pixel between them.
class CSliderArray : public CControl {
public:
    CSliderArray(IControlRoot *root, std::int32_t id, const MathTools::CRect &area,
                 Listeners::IActionListener *listener);
    ~CSliderArray() override { s_class.decrementInstanceCount(); }
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    void handleLeftButtonDown(Events::CMouseEvent &event) override;
    void handleLeftButtonUp(Events::CMouseEvent &event) override;
    void handleMouseMovement(Events::CMouseEvent &event) override;
    void handleMouseLeaving(Events::CMouseEvent &event) override;

    /// Moves and sizes the control. Bars that are there keep their number and values.
    void setArea(const MathTools::CRect &area) override;
    /// Starts anew with bars of the value 1. @param width, gap  pixels.
    void setBars(std::int32_t number, std::int32_t width, std::int32_t gap);
    void setBarColours(const Basics::CAlphaColour &normal, const Basics::CAlphaColour &highlight);
    std::int32_t getNumberOfBars() const { return static_cast<std::int32_t>(m_values.size()); }
    // An index outside 0 to getNumberOfBars() - 1 sets nothing and reads 0.
    void setBarValue(std::int32_t index, double value);
    double getBarValue(std::int32_t index) const;
    std::int32_t getLastBar() const { return m_lastBar; }  ///< the bar last touched; -1 if none
    bool isDragging() const { return m_isDragging; }

    void drawControl(Graphics::CGraphics &graphics) override;

private:
    bool hasBar(std::int32_t index) const { return index >= 0 && index < getNumberOfBars(); }
    std::int32_t barLeft(std::int32_t index) const;
    std::int32_t findBar(const MathTools::CPoint &point) const;
    void fillWithBars();
    void placeBar(std::int32_t index, std::int32_t top);
    void placeBarByValue(std::int32_t index);
    void dragBar(const Events::CMouseEvent &event);
    void endDrag();

    static Tessitor::Basics::TClassRecord<CSliderArray> s_class;

    std::vector<double> m_values;              // per bar
    std::vector<MathTools::CRect> m_barRects;  // per bar, in the control
    std::int32_t m_barWidth = 4;               // pixels
    std::int32_t m_barGap = 1;                 // pixels
    bool m_isDragging = false;
    std::int32_t m_lastBar = -1;
    Basics::CAlphaColour m_normalColour{85, 86, 200};
    Basics::CAlphaColour m_highlightColour{239, 149, 41};
};

}  // namespace Tessitor::GUI::Controls
