#pragma once

#include "dspclasses/strip/CDSPMultiFX.h"
#include "foundation/CString.h"

namespace Tessitor::Corvel {

/// What the editor needs of its effect, besides what every effect has.
class IStripOwner {
public:
    virtual CDSPMultiFX &getStrip() = 0;  ///< lives as long as the effect
    /// @param id  0 to 63, not checked.
    virtual const Basics::CString &getParameterUnit(int id) const = 0;

protected:
    ~IStripOwner() = default;
};

}  // namespace Tessitor::Corvel
