#pragma once

#include "toolkit/controls/CControlDescriptor.h"
#include "toolkit/controls/IControl.h"

#include <cstddef>

namespace Tessitor::GUI::Controls {

/// A property of a class of controls. Each class has one table of its own properties, and falls
/// back on the table of its base.
template <typename Control>
struct SControlProperty {
    const char *name;
    EDescriptorType type;
    void (*read)(const Control &control, CControlDescriptor &descriptor);
    /// @return false if the value is of the wrong class.
    bool (*apply)(Control &control, const CControlDescriptor &descriptor);
};

/// Appends a descriptor with its value for each property.
template <typename Control, std::size_t size>
void addDescriptors(const SControlProperty<Control> (&properties)[size], const Control &control,
                    IControl::DescriptorList &descriptors) {
    for (const SControlProperty<Control> &property : properties) {
        auto *descriptor = new CControlDescriptor(property.name, property.type);
        descriptors.addElement(descriptor);
        property.read(control, *descriptor);
    }
}

/// @return null if the table has no such property.
template <typename Control, std::size_t size>
const SControlProperty<Control> *findProperty(const SControlProperty<Control> (&properties)[size],
                                              const Tessitor::Basics::CString &name) {
    for (const SControlProperty<Control> &property : properties)
        if (name == property.name)
            return &property;
    return nullptr;
}

/// setFromDescriptor() of a class that has a table, and of its base for all other names.
template <typename Base, typename Control, std::size_t size>
bool setFromTable(const SControlProperty<Control> (&properties)[size], Control &control,
                  const CControlDescriptor &descriptor) {
    const SControlProperty<Control> *property = findProperty(properties, descriptor.getName());
    return property != nullptr ? property->apply(control, descriptor)
                               : control.Base::setFromDescriptor(descriptor);
}

/// Same for getDescriptorValue().
template <typename Base, typename Control, std::size_t size>
bool readFromTable(const SControlProperty<Control> (&properties)[size], const Control &control,
                   CControlDescriptor &descriptor) {
    const SControlProperty<Control> *property = findProperty(properties, descriptor.getName());
    if (property == nullptr)
        return control.Base::getDescriptorValue(descriptor);
    property->read(control, descriptor);
    return true;
}

/// Calls set(value). @return false if the descriptor holds no value of this class.
template <typename Value, typename Set>
bool applyValue(const CControlDescriptor &descriptor, Set set) {
    const Value *value = descriptor.getValueAs<Value>();
    if (value == nullptr)
        return false;
    set(*value);
    return true;
}

/// Same for an object that is shared, not copied, or null for none.
template <typename Value, typename Set>
bool applyShared(const CControlDescriptor &descriptor, Set set) {
    auto *value = descriptor.getValueAs<Value>();
    if (value == nullptr && descriptor.getValue() != nullptr)
        return false;
    set(value);
    return true;
}

}  // namespace Tessitor::GUI::Controls
