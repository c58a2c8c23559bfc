#include "toolkit/controls/CTextLabel.h"

#include "toolkit/controls/ControlProperties.h"
#include "toolkit/events/CDropEvent.h"
#include "toolkit/graphics/CGraphics.h"

#include <iterator>

namespace Tessitor::GUI::Controls {

using Basics::CAlphaColour;
using Fonts::CFont;
using Tessitor::Basics::CString;

Tessitor::Basics::TClassRecord<CTextLabel> CTextLabel::s_class("CTextLabel", "CControl");

namespace {

// By the numbers of the text format.
constexpr const char *alignments[] = {"Left / Top",    "Center / Top",       "Right / Top",
                                      "Left / Center", "Center / Center",    "Right / Center",
                                      "Left / Bottom", "Center / Bottom",    "Right / Bottom",
                                      "Default Label", "Default Single Line"};

void readAlignment(const CTextLabel &control, CControlDescriptor &descriptor) {
    auto *choices = new Collections::TCountedPointerArray<CString>;
    descriptor.setValue(choices);
    for (const char *alignment : alignments)
        choices->addElement(new CString(alignment));
    descriptor.setSelectionIndex(control.getTextFormat());
}

bool applyAlignment(CTextLabel &control, const CControlDescriptor &descriptor) {
    const std::int32_t index = descriptor.getSelectionIndex();
    if (index < 0 || index >= static_cast<std::int32_t>(std::size(alignments)))
        return false;
    control.setTextFormat(index);
    return true;
}

constexpr SControlProperty<CTextLabel> properties[] = {
    {"Font", EDescriptorType::Font,
     [](const CTextLabel &control, CControlDescriptor &descriptor) {
         descriptor.setValue(control.getFont());
     },
     [](CTextLabel &control, const CControlDescriptor &descriptor) {
         return applyShared<CFont>(descriptor, [&](CFont *value) { control.setFont(value); });
     }},
    {"Text", EDescriptorType::String,
     [](const CTextLabel &control, CControlDescriptor &descriptor) {
         descriptor.setValue(new CString(control.getText()));
     },
     [](CTextLabel &control, const CControlDescriptor &descriptor) {
         return applyValue<CString>(descriptor,
                                    [&](const CString &value) { control.setText(value); });
     }},
    {"Text Colour", EDescriptorType::Colour,
     [](const CTextLabel &control, CControlDescriptor &descriptor) {
         descriptor.setValue(new CAlphaColour(control.getTextColour()));
     },
     [](CTextLabel &control, const CControlDescriptor &descriptor) {
         return applyValue<CAlphaColour>(
             descriptor, [&](const CAlphaColour &value) { control.setTextColour(value); });
     }},
    {"Alignment", EDescriptorType::Selection, readAlignment, applyAlignment},
};

}  // namespace

CTextLabel::CTextLabel(IControlRoot *root, std::int32_t id, const MathTools::CRect &area,
                       const CString &text)
    : CControl(root, id, area, nullptr),
      m_font(Collections::TCountedObjectDeleter<CFont>::getStaticDeleter()), m_text(text) {
    m_font.setPointer(CFont::getDefaultFont());
    CControl::setMouseEnabled(false);
    CControl::setDropFileEnabled(true);
    s_class.incrementInstanceCount();
}

void CTextLabel::handleFileDrop(const Events::CDropEvent &event) {
    if (const CString *name = event.getFilename(0)) {
        setText(*name);
        update();  // a derived label's setText() may not
    }
}

void CTextLabel::setColours(const CAlphaColour &frame, const CAlphaColour &background,
                            const CAlphaColour &text) {
    setDefaultControlColours(background, frame);
    setTextColour(text);
}

void CTextLabel::setText(const CString &text) {
    m_text = text;
    update();
}

void CTextLabel::drawControl(Graphics::CGraphics &graphics) {
    if (!drawEnabledControl(graphics))
        return;
    drawPrimaryImage(graphics, isDefaultDrawing());
    drawText(graphics);
}

// The text keeps clear of the frame.
void CTextLabel::drawText(Graphics::CGraphics &graphics) {
    graphics.setTextColour(m_textColour);
    graphics.drawText(m_text, MathTools::CRect({1, 1}, getDimension()), getFont(), m_textFormat);
}

// Properties

void CTextLabel::getDescriptors(DescriptorList &descriptors) const {
    CControl::getDescriptors(descriptors);
    addDescriptors(properties, *this, descriptors);
}

bool CTextLabel::setFromDescriptor(const CControlDescriptor &descriptor) {
    return setFromTable<CControl>(properties, *this, descriptor);
}

bool CTextLabel::getDescriptorValue(CControlDescriptor &descriptor) const {
    return readFromTable<CControl>(properties, *this, descriptor);
}

}  // namespace Tessitor::GUI::Controls
