#pragma once

#include "foundation/CString.h"

namespace Tessitor::GUI::Controls {

class IControl;
class IControlRoot;

/// Creates the controls that a root reads from XML. [gui thread]
class IControlFactory {
public:
    virtual ~IControlFactory() = default;

    /// @return a new control without references, with id -1, an empty area and no listener; null if
    ///         the class is unknown.
    virtual IControl *createControl(const Tessitor::Basics::CString &className,
                                    IControlRoot *root) const = 0;
};

/// @return a factory that knows the classes of this folder.
const IControlFactory &standardControlFactory();

}  // namespace Tessitor::GUI::Controls
