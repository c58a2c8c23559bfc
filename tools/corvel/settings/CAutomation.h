#pragma once

#include "corvel/effect/CEffectInstance.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Tessitor::Tool {

/// Parameters that change with the time, read from a file.
class CAutomation {
public:
    struct SPoint {
        double seconds;
        float value;  // normalised
    };

    /// The points of one parameter.
    struct SLane {
        std::int32_t index;
        bool isStepped;              // a choice: it keeps each value until the next point
        std::vector<SPoint> points;  // by time; those of the same time as in the file
    };

    /// @param file   lines as automationLines() reads them.
    /// @param trial  an instance to look up names and try values on; in the end it has its earlier
    ///               values.
    /// @throws CJobError if the file cannot be read, or if a line is wrong, names a parameter that
    ///         the effect does not have, or a value that is not possible.
    CAutomation(const std::string &file, CEffectInstance &trial);

    const std::string &file() const { return m_file; }
    const std::vector<SLane> &lanes() const { return m_lanes; }
    const std::vector<std::string> &notes() const { return m_notes; }  ///< one line each

private:
    std::string m_file;
    std::vector<SLane> m_lanes;
    std::vector<std::string> m_notes;
};

}  // namespace Tessitor::Tool
