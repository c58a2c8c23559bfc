#pragma once

#include "toolkit/controls/CAnimation.h"

namespace Tessitor::GUI::Controls {

/// A knob. Dragging it to the right or upwards raises its value, and so does the wheel; a double
/// click restores its default. It reports to its listener whenever it has changed its value, and
/// after each double click.
class CKnob : public CAnimation {
public:
    CKnob(IControlRoot *root, std::int32_t id, const MathTools::CRect &area,
          Listeners::IActionListener *listener);
    ~CKnob() override { s_class.decrementInstanceCount(); }
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    void handleLeftButtonDown(Events::CMouseEvent &event) override;
    void handleLeftButtonUp(Events::CMouseEvent &event) override;
    /// Continues a drag. With the shift key it is ten times as fine.
    void handleMouseMovement(Events::CMouseEvent &event) override;
    /// Turns the knob by a fortieth, or with the shift key by a quarter of that, up for a positive
    /// wheel amount and down for any other.
    void handleMouseScroll(Events::CMouseEvent &event) override;
    void handleDoubleClick(Events::CMouseEvent &event) override;

    virtual void setDefaultValue(double value) { m_defaultValue = value; }
    /// @param coefficient  value per pixel of a drag. Kept: every drag sets it anew, so a value set
    ///                     here changes nothing.
    virtual void setCoefficient(double coefficient) { m_coefficient = coefficient; }
    double getDefaultValue() const { return m_defaultValue; }
    double getCoefficient() const { return m_coefficient; }
    bool isDragging() const { return m_isDragging; }

    void getDescriptors(DescriptorList &descriptors) const override;
    bool setFromDescriptor(const CControlDescriptor &descriptor) override;
    bool getDescriptorValue(CControlDescriptor &descriptor) const override;

private:
    void changeValue(double value);

    static Tessitor::Basics::TClassRecord<CKnob> s_class;

    // In value per pixel
    static constexpr double coarse = 1.0 / 200.0, fine = 1.0 / 2000.0;

    double m_defaultValue = 0.5;
    double m_referenceValue = 0.0;  // value for the place of the press, at the present coefficient
    double m_coefficient = coarse;
    bool m_isDragging = false;
    MathTools::CPoint m_clickPosition;
};

}  // namespace Tessitor::GUI::Controls
