#include "toolkit/menus/CMenuItem.h"

namespace Tessitor::GUI::Controls {

using Graphics::IImage;

Tessitor::Basics::TClassRecord<CMenuItem> CMenuItem::s_class("CMenuItem", "CCountedObject");

CMenuItem::CMenuItem(const Tessitor::Basics::CString &text, std::int32_t id, EMenuItemType type,
                     bool isEnabled)
    : m_text(text), m_id(id), m_type(type), m_isEnabled(isEnabled),
      m_normalImage(Collections::TCountedObjectDeleter<IImage>::getStaticDeleter()),
      m_disabledImage(Collections::TCountedObjectDeleter<IImage>::getStaticDeleter()) {
    s_class.incrementInstanceCount();
}

void CMenuItem::setImages(IImage *normal, IImage *disabled) {
    m_normalImage.setPointer(normal);
    m_disabledImage.setPointer(disabled);
}

void CMenuItem::setTextColour(const Basics::CAlphaColour &colour) {
    m_textColour = colour;
    m_usesOwnColour = true;
}

}  // namespace Tessitor::GUI::Controls
