#include "corvel/plot/Fourier.h"

#include <gtest/gtest.h>
#include <numbers>
#include <random>

using namespace Tessitor::Tool;
using Values = std::vector<std::complex<double>>;

TEST(Fourier, EqualsTheSumThatDefinesIt) {
    std::mt19937 random(5);
    std::uniform_real_distribution<double> number(-1.0, 1.0);
    for (const std::size_t count : {1u, 2u, 4u, 8u, 64u}) {
        Values values(count);
        for (auto &value : values)
            value = {number(random), number(random)};
        Values found = values;
        transform(found);
        for (std::size_t k = 0; k < count; ++k) {
            std::complex<double> sum;
            for (std::size_t n = 0; n < count; ++n)
                sum += values[n] *
                       std::polar(1.0, -2.0 * std::numbers::pi * static_cast<double>(k * n) /
                                           static_cast<double>(count));
            EXPECT_NEAR(std::abs(found[k] - sum), 0.0, 1e-12) << k << " of " << count;
        }
    }
}
