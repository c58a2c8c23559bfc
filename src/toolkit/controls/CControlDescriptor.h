#pragma once

#include "foundation/CString.h"
#include "foundation/TAutomaticPointer.h"

namespace Tessitor::IO {
class CXMLNode;
}

namespace Tessitor::GUI::Controls {

/// What a property holds, and the class of the object that holds it.
enum class EDescriptorType : std::int32_t {
    Rect,       ///< CRect
    Image,      ///< IImage, or null for none
    Colour,     ///< CAlphaColour
    Boolean,    ///< CBool
    Integer,    ///< CLong
    Float,      ///< CDouble
    String,     ///< CString
    Selection,  ///< the choices, a TCountedPointerArray of CString; null after reading from XML
    Font        ///< CFont, or null for none
};

/// A property of a control, for tools and files. [gui thread]
class CControlDescriptor : public Tessitor::Basics::CCountedObject {
public:
    CControlDescriptor() : CControlDescriptor("", EDescriptorType::String) {}
    CControlDescriptor(const Tessitor::Basics::CString &name, EDescriptorType type);
    CControlDescriptor(const CControlDescriptor &) = delete;
    CControlDescriptor &operator=(const CControlDescriptor &) = delete;
    ~CControlDescriptor() override { s_class.decrementInstanceCount(); }
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    const Tessitor::Basics::CString &getName() const { return m_name; }
    EDescriptorType getType() const { return m_type; }

    /// Holds a reference to the object; null for none.
    void setValue(Tessitor::Basics::ICountedObject *value) { m_value.setPointer(value); }
    Tessitor::Basics::ICountedObject *getValue() const { return m_value.getPointer(); }
    /// @return the value if it is of this class, otherwise null.
    template <typename Value>
    Value *getValueAs() const {
        return dynamic_cast<Value *>(m_value.getPointer());
    }

    /// Of a selection: the choice, from 0; -1 for none.
    void setSelectionIndex(std::int32_t index) { m_selectionIndex = index; }
    std::int32_t getSelectionIndex() const { return m_selectionIndex; }

    void serialiseToXml(IO::CXMLNode &node) const;  ///< as attributes
    /// Replaces name, type and value. An image is found by its name in the image manager; if it is
    /// not there, the value is null.
    /// @return false if an attribute is missing or the type is unknown.
    bool serialiseFromXml(const IO::CXMLNode &node);

private:
    static Tessitor::Basics::TClassRecord<CControlDescriptor> s_class;

    Tessitor::Basics::CString m_name;
    EDescriptorType m_type;
    Collections::TAutomaticPointer<Tessitor::Basics::ICountedObject> m_value;
    std::int32_t m_selectionIndex = -1;
};

}  // namespace Tessitor::GUI::Controls
