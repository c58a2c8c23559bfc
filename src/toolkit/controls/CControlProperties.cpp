// The properties of CControl as descriptors and in XML.
#include "foundation/CBool.h"
#include "foundation/CLong.h"
#include "foundation/CXMLNode.h"
#include "toolkit/controls/CControl.h"
#include "toolkit/controls/ChildNodes.h"
#include "toolkit/controls/ControlProperties.h"

namespace Tessitor::GUI::Controls {

using Basics::CAlphaColour;
using Graphics::IImage;
using MathTools::CRect;
using Tessitor::Basics::CBool;
using Tessitor::Basics::CLong;
using Tessitor::Basics::CString;
using Tessitor::IO::CXMLAttribute;
using Tessitor::IO::CXMLNode;

namespace {

using Property = SControlProperty<CControl>;

template <bool (CControl::*get)() const, void (CControl::*set)(bool)>
constexpr Property flag(const char *name) {
    return {name, EDescriptorType::Boolean,
            [](const CControl &control, CControlDescriptor &descriptor) {
                descriptor.setValue(new CBool((control.*get)()));
            },
            [](CControl &control, const CControlDescriptor &descriptor) {
                return applyValue<CBool>(
                    descriptor, [&](const CBool &value) { (control.*set)(value.getValue()); });
            }};
}

template <IImage *(CControl::*get)() const, void (CControl::*set)(IImage *)>
constexpr Property image(const char *name) {
    return {name, EDescriptorType::Image,
            [](const CControl &control, CControlDescriptor &descriptor) {
                descriptor.setValue((control.*get)());
            },
            [](CControl &control, const CControlDescriptor &descriptor) {
                return applyShared<IImage>(descriptor,
                                           [&](IImage *value) { (control.*set)(value); });
            }};
}

void setEnabled(CControl &control, bool isEnabled) {
    if (isEnabled)
        control.enableControl();
    else
        control.disableControl();
}

constexpr Property properties[] = {
    {"Control Name", EDescriptorType::String,
     [](const CControl &control, CControlDescriptor &descriptor) {
         descriptor.setValue(new CString(control.getDescription()));
     },
     [](CControl &control, const CControlDescriptor &descriptor) {
         return applyValue<CString>(descriptor,
                                    [&](const CString &value) { control.setDescription(value); });
     }},
    {"Control ID", EDescriptorType::Integer,
     [](const CControl &control, CControlDescriptor &descriptor) {
         descriptor.setValue(new CLong(control.getUniqueId()));
     },
     [](CControl &control, const CControlDescriptor &descriptor) {
         return applyValue<CLong>(descriptor, [&](const CLong &value) {
             control.setUniqueId(static_cast<std::int32_t>(value.getValue()));
         });
     }},
    flag<&CControl::isMouseEnabled, &CControl::setMouseEnabled>("Mouse Enabled"),
    flag<&CControl::isKeyboardEnabled, &CControl::setKeyboardEnabled>("Keyboard Enabled"),
    flag<&CControl::isDropFileEnabled, &CControl::setDropFileEnabled>("Drop File Enabled"),
    {"Is Enabled", EDescriptorType::Boolean,
     [](const CControl &control, CControlDescriptor &descriptor) {
         descriptor.setValue(new CBool(control.isEnabled()));
     },
     [](CControl &control, const CControlDescriptor &descriptor) {
         return applyValue<CBool>(
             descriptor, [&](const CBool &value) { setEnabled(control, value.getValue()); });
     }},
    flag<&CControl::isDefaultDrawing, &CControl::setDefaultDrawing>("Default Drawing"),
    {"Area", EDescriptorType::Rect,
     [](const CControl &control, CControlDescriptor &descriptor) {
         descriptor.setValue(new CRect(control.getArea()));
     },
     [](CControl &control, const CControlDescriptor &descriptor) {
         return applyValue<CRect>(descriptor, [&](const CRect &value) { control.setArea(value); });
     }},
    image<&CControl::getPrimaryImage, &CControl::setPrimaryImage>("Primary Image"),
    image<&CControl::getDisabledImage, &CControl::setDisabledImage>("Disabled Image"),
    {"Frame Colour", EDescriptorType::Colour,
     [](const CControl &control, CControlDescriptor &descriptor) {
         descriptor.setValue(new CAlphaColour(control.getFrameColour()));
     },
     [](CControl &control, const CControlDescriptor &descriptor) {
         return applyValue<CAlphaColour>(descriptor, [&](const CAlphaColour &value) {
             control.setDefaultControlColours(control.getBackgroundColour(), value);
         });
     }},
    {"Background Colour", EDescriptorType::Colour,
     [](const CControl &control, CControlDescriptor &descriptor) {
         descriptor.setValue(new CAlphaColour(control.getBackgroundColour()));
     },
     [](CControl &control, const CControlDescriptor &descriptor) {
         return applyValue<CAlphaColour>(descriptor, [&](const CAlphaColour &value) {
             control.setDefaultControlColours(value, control.getFrameColour());
         });
     }},
};

constexpr const char *nodeName = "descriptor", *countName = "number_of_descriptors";

}  // namespace

void CControl::getDescriptors(DescriptorList &descriptors) const {
    addDescriptors(properties, *this, descriptors);
}

bool CControl::setFromDescriptor(const CControlDescriptor &descriptor) {
    const Property *property = findProperty(properties, descriptor.getName());
    return property != nullptr && property->apply(*this, descriptor);
}

bool CControl::getDescriptorValue(CControlDescriptor &descriptor) const {
    const Property *property = findProperty(properties, descriptor.getName());
    if (property == nullptr)
        return false;
    property->read(*this, descriptor);
    return true;
}

void CControl::serialiseToXml(CXMLNode *node) const {
    if (node == nullptr)
        return;
    DescriptorList descriptors;
    getDescriptors(descriptors);
    const int count = descriptors.getInsertIndex();
    node->addAttribute(new CXMLAttribute(countName, count));
    for (int i = 0; i < count; ++i)
        descriptors.elementAtIndex(i)->serialiseToXml(addChildNode(*node, nodeName));
}

bool CControl::serialiseFromXml(CXMLNode *node) {
    if (node == nullptr || !hasCountedChildren(*node, nodeName, countName))
        return false;
    return forEachChild(*node, nodeName, [this](CXMLNode &child) {
        CControlDescriptor descriptor;
        return descriptor.serialiseFromXml(child) && setFromDescriptor(descriptor);
    });
}

}  // namespace Tessitor::GUI::Controls
