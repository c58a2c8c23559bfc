#pragma once

#include "foundation/CString.h"
#include "foundation/TAutomaticPointer.h"
#include "toolkit/graphics/CAlphaColour.h"
#include "toolkit/graphics/IImage.h"

namespace Tessitor::GUI::Controls {

enum class EMenuItemType : std::int32_t {
    Normal,      ///< a click reports the item
    Address,     ///< a click opens its address and reports it
    Separator,   ///< a thin line
    Selectable,  ///< a click toggles its tick and reports it
    SubMenu,     ///< the mouse over it opens its menu
    ColumnBreak  ///< the items after it start a new column
};

/// An entry of a menu. [gui thread]
class CMenuItem : public Tessitor::Basics::CCountedObject {
public:
    /// @param id  for the caller, who finds it in events.
    CMenuItem(const Tessitor::Basics::CString &text, std::int32_t id,
              EMenuItemType type = EMenuItemType::Normal, bool isEnabled = true);
    CMenuItem(const CMenuItem &) = delete;
    CMenuItem &operator=(const CMenuItem &) = delete;
    ~CMenuItem() override { s_class.decrementInstanceCount(); }
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    virtual void setText(const Tessitor::Basics::CString &text) { m_text = text; }
    virtual void setId(std::int32_t id) { m_id = id; }
    virtual void setType(EMenuItemType type) { m_type = type; }
    virtual void setEnabled(bool isEnabled) { m_isEnabled = isEnabled; }
    virtual void setIndex(std::int32_t index) { m_index = index; }
    /// Holds references to the images; null for none.
    virtual void setImages(Graphics::IImage *normal, Graphics::IImage *disabled);
    virtual const Tessitor::Basics::CString &getText() const { return m_text; }
    virtual std::int32_t getId() const { return m_id; }
    virtual EMenuItemType getType() const { return m_type; }
    virtual std::int32_t getIndex() const { return m_index; }  ///< for the caller; 0 at first
    virtual bool isEnabled() const { return m_isEnabled; }
    virtual Graphics::IImage *getNormalImage() const { return m_normalImage.getPointer(); }
    virtual Graphics::IImage *getDisabledImage() const { return m_disabledImage.getPointer(); }

    /// Replaces the menu's text colour for this item while it is enabled.
    void setTextColour(const Basics::CAlphaColour &colour);
    const Basics::CAlphaColour &getTextColour() const { return m_textColour; }
    bool usesOwnColour() const { return m_usesOwnColour; }

private:
    static Tessitor::Basics::TClassRecord<CMenuItem> s_class;

    Tessitor::Basics::CString m_text;
    std::int32_t m_id;
    std::int32_t m_index = 0;
    EMenuItemType m_type;
    bool m_isEnabled;
    Collections::TAutomaticPointer<Graphics::IImage> m_normalImage;
    Collections::TAutomaticPointer<Graphics::IImage> m_disabledImage;
    Basics::CAlphaColour m_textColour{0, 0, 0};
    bool m_usesOwnColour = false;
};

}  // namespace Tessitor::GUI::Controls
