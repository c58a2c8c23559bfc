#pragma once

#include <string>
#include <vector>

namespace Tessitor::Tool {

enum class EScale { Linear, Logarithmic };

struct STick {
    double value;
    std::string label;  // empty for a line of the grid without one
};

/// One direction of a chart: what it shows and where.
struct SAxis {
    std::string title;  // with the unit
    double low, high;   // low < high; both above 0 if logarithmic
    EScale scale = EScale::Linear;
    std::vector<STick> ticks{};

    /// @return 0 at the low end, 1 at the high end; beyond them at most one length away. Not a
    ///         number if the value is not, and far below the low end for 0 on a logarithmic axis.
    double position(double value) const;
};

// Axes with ticks at round numbers

/// Logarithmic, in Hz, with labels such as "500" and "2k".
SAxis frequencyAxis(double low, double high);

/// With steps such as 3, 6 and 12 dB.
/// @param title     what is shown, without the unit.
/// @param maxTicks  1 or more.
SAxis decibelAxis(const std::string &title, double low, double high, int maxTicks);

/// In ms, s, minutes or hours, whichever gives short labels.
/// @param low, high  seconds.
SAxis timeAxis(double low, double high, int maxTicks);

/// Linear, with plain numbers.
SAxis plainAxis(const std::string &title, double low, double high, int maxTicks);

}  // namespace Tessitor::Tool
