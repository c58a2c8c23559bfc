#include "foundation/NormalisedInteger.h"

#include "values/Truncation.h"

#include <cmath>

namespace Tessitor::MathTools {

std::int32_t normalisedToInteger(std::int32_t minimum, std::int32_t maximum, double value) {
    const double range = static_cast<double>(maximum) - minimum;
    return truncated(std::ceil(range * value + minimum));
}

double integerToNormalised(std::int32_t minimum, std::int32_t maximum, std::int32_t index) {
    const double range = static_cast<double>(maximum) - minimum;
    return 0.99999 / range * (static_cast<double>(index) - minimum);
}

}  // namespace Tessitor::MathTools
