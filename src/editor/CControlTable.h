#pragma once

#include "dspclasses/parameters/ParameterIds.h"
#include "toolkit/controls/CTextLabel.h"

#include <array>

namespace Tessitor::Corvel {

/// What shows a parameter. Both are owned by the roots that they are in.
struct SParameterControls {
    GUI::Controls::IControl *control = nullptr;  // null for a parameter that is not shown
    GUI::Controls::CTextLabel *valueLabel = nullptr;
};

/// The controls of each parameter. [gui thread]
class CControlTable {
public:
    /// @param id  ignored outside 0 to 63.
    void record(long id, const SParameterControls &controls) {
        if (isParameter(id))
            m_controls[std::size_t(id)] = controls;
    }
    /// @return nulls for an id outside 0 to 63.
    SParameterControls at(long id) const {
        return isParameter(id) ? m_controls[std::size_t(id)] : SParameterControls();
    }

private:
    static bool isParameter(long id) { return id >= 0 && id < kParameterCount; }

    std::array<SParameterControls, kParameterCount> m_controls;
};

}  // namespace Tessitor::Corvel
