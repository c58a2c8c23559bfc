#include "toolkit/menus/CMenuItemDisplay.h"

#include "foundation/CException.h"
#include "foundation/CPolygon.h"
#include "toolkit/graphics/CGraphics.h"
#include "toolkit/menus/CSelectableMenuItem.h"

namespace Tessitor::GUI::Controls {

using Basics::CAlphaColour;
using Graphics::CGraphics;
using MathTools::CPoint;
using MathTools::CRect;

namespace {

template <typename Counted>
auto *deleterOf() {
    return Collections::TCountedObjectDeleter<Counted>::getStaticDeleter();
}

}  // namespace

/// A part of a display that looks as its item says.
class CMenuItemDisplay::CPart : public CControl {
public:
    CPart(CMenuItemDisplay &display, const CRect &area)
        : CControl(&display, 0, area, nullptr), m_display(display) {
        CControl::setMouseEnabled(false);
    }

protected:
    const CMenuItemDisplay &m_display;
};

// The tick

class CMenuItemDisplay::CMenuItemSelectable : public CPart {
public:
    using CPart::CPart;
    void drawControl(CGraphics &graphics) override;
};

void CMenuItemDisplay::CMenuItemSelectable::drawControl(CGraphics &graphics) {
    const auto *item = dynamic_cast<const CSelectableMenuItem *>(m_display.getMenuItem());
    if (item == nullptr || !item->isSelected())
        return;
    const std::int32_t centreX = getNormalisedArea().getCentreX();
    const std::int32_t centreY = getNormalisedArea().getCentreY();
    graphics.getBrush().setColour(Basics::StaticColours::alphaBlack);
    std::int32_t x = centreX - 4;
    for (const std::int32_t rise : {4, 3, 2, 3, 4, 5, 6})
        graphics.fillRectangle(CRect(x++, centreY - rise, 1, 3));
}

// The arrow

class CMenuItemDisplay::CMenuItemSubMenuPointer : public CPart {
public:
    using CPart::CPart;
    void drawControl(CGraphics &graphics) override;
};

void CMenuItemDisplay::CMenuItemSubMenuPointer::drawControl(CGraphics &graphics) {
    CRect area = getNormalisedArea();
    area.inset(4);
    MathTools::CPolygon triangle(4);
    triangle.addPoint(CPoint(area.getLeft(), area.getTop()));
    triangle.addPoint(CPoint(area.getRight(), area.getCentreY()));
    triangle.addPoint(CPoint(area.getLeft(), area.getBottom()));
    triangle.addPoint(CPoint(area.getLeft(), area.getTop()));
    const SMenuColours &colours = m_display.m_colours;
    const CAlphaColour &colour =
        m_display.getMenuItem()->isEnabled() ? colours.pointer : colours.disabledText;
    graphics.getPen().setColour(colour);
    graphics.getBrush().setColour(colour);
    graphics.fillPolygon(triangle);
    if (m_display.m_isAntiAliased)
        graphics.drawAntiAliasedPolygon(triangle);
}

// The display

Tessitor::Basics::TClassRecord<CMenuItemDisplay> CMenuItemDisplay::s_class("CMenuItemDisplay",
                                                                           "CControlPanel");

CMenuItemDisplay::CMenuItemDisplay(Windowing::IWindow *window, IControlRoot *root,
                                   const CRect &area, const SMenuLayout &layout,
                                   const SMenuColours &colours)
    : CControlPanel(window, root, 0, area, nullptr), m_layout(layout), m_colours(colours),
      m_item(deleterOf<CMenuItem>()), m_icon(deleterOf<CImageLabel>()),
      m_text(deleterOf<CTextLabel>()), m_arrow(deleterOf<CMenuItemSubMenuPointer>()),
      m_tick(deleterOf<CMenuItemSelectable>()) {
    s_class.incrementInstanceCount();
}

CMenuItemDisplay::~CMenuItemDisplay() {
    s_class.decrementInstanceCount();
}

void CMenuItemDisplay::setMenuItem(CMenuItem *item, Fonts::CFont *font) {
    if (item == nullptr)
        throw Exceptions::CException("Menu item is null",
                                     "CMenuItemDisplay::setMenuItem(CMenuItem *)", true);
    clearControls();
    m_icon.freePointer();
    m_text.freePointer();
    m_arrow.freePointer();
    m_tick.freePointer();
    m_item.setPointer(item);
    if (item->getType() == EMenuItemType::Separator)
        return;
    addLead();
    addText(font);
    if (item->getType() == EMenuItemType::SubMenu)
        addArrow();
}

// An item without an image shows its tick in the column of the icons.
void CMenuItemDisplay::addLead() {
    const std::int32_t height = getDimension().getHeight();
    if (const Graphics::IImage *image =
            m_layout.hasIcons ? m_item.getPointer()->getNormalImage() : nullptr) {
        const MathTools::CDimension &size = image->getImageSize();
        m_icon.setPointer(new CImageLabel(
            this, 0,
            CRect(SMenuLayout::margin + (m_layout.leadWidth - size.getWidth()) / 2,
                  (height - size.getHeight()) / 2, size.getWidth(), size.getHeight()),
            nullptr));
        m_icon.getPointer()->setMouseEnabled(false);
        addControl(m_icon.getPointer());
    } else if (m_item.getPointer()->getType() == EMenuItemType::Selectable) {
        m_tick.setPointer(new CMenuItemSelectable(
            *this, CRect(SMenuLayout::margin, 0, m_layout.leadWidth, height)));
        addControl(m_tick.getPointer());
    }
}

void CMenuItemDisplay::addText(Fonts::CFont *font) {
    const std::int32_t left = SMenuLayout::margin + m_layout.leadWidth;
    const std::int32_t arrowWidth = m_layout.hasArrows ? m_layout.itemHeight : 0;
    const std::int32_t width = getDimension().getWidth() - left - arrowWidth;
    m_text.setPointer(new CTextLabel(this, 0, CRect(left, 0, width, getDimension().getHeight()),
                                     m_item.getPointer()->getText()));
    m_text.getPointer()->setFont(font);
    addControl(m_text.getPointer());
}

void CMenuItemDisplay::addArrow() {
    const std::int32_t size = m_layout.itemHeight;
    m_arrow.setPointer(
        new CMenuItemSubMenuPointer(*this, CRect(getDimension().getWidth() - size, 0, size, size)));
    addControl(m_arrow.getPointer());
}

// Drawing

void CMenuItemDisplay::drawControl(CGraphics &graphics) {
    if (getMenuItem() == nullptr)
        return;
    if (getMenuItem()->getType() == EMenuItemType::Separator)
        drawSeparator(graphics);
    else
        showState();
    CControlPanel::drawControl(graphics);
}

void CMenuItemDisplay::drawSeparator(CGraphics &graphics) const {
    const std::int32_t y = getDimension().getHeight() / 2;
    graphics.getPen().setColour(m_colours.separator);
    graphics.drawLine(CPoint(2, y), CPoint(getDimension().getWidth() - 2, y));
}

// The program may change the item between two openings of the menu.
void CMenuItemDisplay::showState() {
    const CMenuItem &item = *getMenuItem();
    m_text.getPointer()->setTextColour(colourOfText());
    if (CImageLabel *icon = m_icon.getPointer()) {
        Graphics::IImage *disabled = item.isEnabled() ? nullptr : item.getDisabledImage();
        icon->setPrimaryImage(disabled != nullptr ? disabled : item.getNormalImage());
    }
}

const CAlphaColour &CMenuItemDisplay::colourOfText() const {
    const CMenuItem &item = *getMenuItem();
    if (!item.isEnabled())
        return m_colours.disabledText;
    return item.usesOwnColour() ? item.getTextColour() : m_colours.text;
}

}  // namespace Tessitor::GUI::Controls
