#pragma once

#include "toolkit/controls/CControlDescriptor.h"
#include "toolkit/controls/IControl.h"

#include <string>
#include <vector>

/// Sets a property from a new value. @return false if the control rejects it.
inline bool setProperty(Tessitor::GUI::Controls::IControl &control, const char *name,
                        Tessitor::GUI::Controls::EDescriptorType type,
                        Tessitor::Basics::ICountedObject *value) {
    Tessitor::GUI::Controls::CControlDescriptor descriptor(name, type);
    descriptor.setValue(value);
    return control.setFromDescriptor(descriptor);
}

/// The properties of a control that follow those of CControl, as "name: type number".
inline std::vector<std::string>
listOwnProperties(const Tessitor::GUI::Controls::IControl &control) {
    constexpr int numberInCControl = 12;
    Tessitor::GUI::Controls::IControl::DescriptorList list;
    control.getDescriptors(list);
    std::vector<std::string> found;
    for (int i = numberInCControl; i < list.getInsertIndex(); ++i) {
        const auto &descriptor = *list.elementAtIndex(i);
        found.push_back(std::string(descriptor.getName().getString()) + ": " +
                        std::to_string(static_cast<int>(descriptor.getType())));
    }
    return found;
}
