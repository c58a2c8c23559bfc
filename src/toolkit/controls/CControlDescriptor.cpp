#include "toolkit/controls/CControlDescriptor.h"

#include "foundation/CBool.h"
#include "foundation/CDouble.h"
#include "foundation/CLong.h"
#include "foundation/CRect.h"
#include "foundation/CXMLNode.h"
#include "toolkit/graphics/CAlphaColour.h"
#include "toolkit/graphics/CFont.h"
#include "toolkit/graphics/CImageManager.h"

#include <algorithm>
#include <iterator>

namespace Tessitor::GUI::Controls {

using Graphics::CImageManager;
using Graphics::IImage;
using Tessitor::Basics::CBool;
using Tessitor::Basics::CDouble;
using Tessitor::Basics::CLong;
using Tessitor::Basics::CString;
using Tessitor::Basics::ICountedObject;
using Tessitor::IO::CXMLAttribute;
using Tessitor::IO::CXMLNode;

Tessitor::Basics::TClassRecord<CControlDescriptor> CControlDescriptor::s_class("CControlDescriptor",
                                                                               "CCountedObject");

namespace {

// By the numbers of EDescriptorType.
constexpr const char *typeNames[] = {"rect",  "image",  "colour",    "boolean", "integer",
                                     "float", "string", "selection", "font"};

bool findType(const CString &name, EDescriptorType &type) {
    const auto *found = std::find(std::begin(typeNames), std::end(typeNames), name);
    if (found == std::end(typeNames))
        return false;
    type = static_cast<EDescriptorType>(found - std::begin(typeNames));
    return true;
}

template <typename Value>
void addAttribute(CXMLNode &node, const char *name, const Value &value) {
    node.addAttribute(new CXMLAttribute(name, value));
}

/// Images and animations share their names; see CImageManager::getReferenceName().
IImage *findImage(const CString &name) {
    IImage *image = CImageManager::getImage(name);
    std::int32_t frameHeight = 0, numberOfFrames = 0;
    return image != nullptr ? image
                            : CImageManager::getAnimation(name, frameHeight, numberOfFrames);
}

ICountedObject *readFont(const CXMLNode &node) {
    if (node.getAttribute("font_name") == nullptr)
        return nullptr;
    auto *font = new Fonts::CFont;
    font->deserializeFromNode(&node);
    return font;
}

/// @return the value of any type but a selection or a font, without references.
ICountedObject *readValue(EDescriptorType type, const CXMLAttribute &attribute) {
    switch (type) {
    case EDescriptorType::Rect:
        return new MathTools::CRect(attribute.getValue());
    case EDescriptorType::Image:
        return findImage(attribute.getValue());
    case EDescriptorType::Colour:
        return new Basics::CAlphaColour(attribute.getValue());
    case EDescriptorType::Boolean:
        return new CBool(attribute.getValueAsBool());
    case EDescriptorType::Integer:
        return new CLong(attribute.getValueAsLong());
    case EDescriptorType::Float:
        return new CDouble(attribute.getValueAsDouble());
    case EDescriptorType::String:
        return new CString(attribute.getValue());
    case EDescriptorType::Selection:
    case EDescriptorType::Font:
        break;
    }
    return nullptr;
}

}  // namespace

CControlDescriptor::CControlDescriptor(const CString &name, EDescriptorType type)
    : m_name(name), m_type(type),
      m_value(Collections::TCountedObjectDeleter<ICountedObject>::getStaticDeleter()) {
    s_class.incrementInstanceCount();
}

void CControlDescriptor::serialiseToXml(CXMLNode &node) const {
    addAttribute(node, "name", m_name);
    addAttribute(node, "type", typeNames[static_cast<std::size_t>(m_type)]);
    if (m_type == EDescriptorType::Selection)
        addAttribute(node, "value", static_cast<long>(m_selectionIndex));
    else if (m_type == EDescriptorType::Image)
        addAttribute(node, "value", CImageManager::getReferenceName(getValueAs<IImage>()));
    else if (const auto *font = getValueAs<Fonts::CFont>())
        font->serializeToNode(&node);
    else if (const auto *rect = getValueAs<MathTools::CRect>())
        addAttribute(node, "value", rect->toString());
    else if (const auto *colour = getValueAs<Basics::CAlphaColour>())
        addAttribute(node, "value", colour->toString());
    else if (const auto *boolean = getValueAs<CBool>())
        addAttribute(node, "value", boolean->getValue());
    else if (const auto *integer = getValueAs<CLong>())
        addAttribute(node, "value", integer->getValue());
    else if (const auto *real = getValueAs<CDouble>())
        addAttribute(node, "value", real->getValue());
    else if (const auto *text = getValueAs<CString>())
        addAttribute(node, "value", *text);
}

bool CControlDescriptor::serialiseFromXml(const CXMLNode &node) {
    const CXMLAttribute *name = node.getAttribute("name"), *type = node.getAttribute("type"),
                        *value = node.getAttribute("value");
    if (name == nullptr || type == nullptr || !findType(type->getValue(), m_type))
        return false;
    m_name = name->getValue();
    if (m_type == EDescriptorType::Font) {
        setValue(readFont(node));
        return true;
    }
    if (value == nullptr)
        return false;
    setValue(readValue(m_type, *value));
    if (m_type == EDescriptorType::Selection)
        m_selectionIndex = value->getValueAsInt();
    return true;
}

}  // namespace Tessitor::GUI::Controls
