/// Checks SingleMath with every float: the logarithm of each float above 0, the exponential of
/// each, and the powers of 2 and 5 (the bases of the parameter laws) with each as the exponent. It
/// takes more than two hours (the logarithm about 6 minutes, the exponential about 10, each power
/// about an hour), so it is a separate program: singlemath_sweep [exp|log|pow2|pow5]...

#include "dspclasses/kernels/SingleMath.h"
#include "dspclasses/kernels/SingleMathLanes.h"
#include "dspclasses/kernels/SingleReference.h"
#include "dspclasses/kernels/WideLoop.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <functional>
#include <limits>
#include <vector>

namespace {

using Chunk = std::array<float, 4096>;

struct SForm {
    const char *name;
    std::function<void(const Chunk &, Chunk &)> run;
};

struct SFunction {
    const char *name;
    std::function<bool(float)> isArgument;
    std::function<float(float)> reference;
    std::vector<SForm> forms;
};

template <typename One>
SForm oneByOne(One one) {
    return {"scalar", [one](const Chunk &x, Chunk &y) {
                std::transform(x.begin(), x.end(), y.begin(), one);
            }};
}

/// @return the scalar form, the one for four lanes and, if the processor can, the same with fused
///         multiply-add.
template <typename One, typename FourLanes>
std::vector<SForm> allForms(One one, FourLanes onFourLanes) {
    const auto loop = [onFourLanes](const Chunk &x, Chunk &y) {
        return [onFourLanes, from = x.data(), to = y.data()](auto processor) {
            for (std::size_t i = 0; i < std::tuple_size_v<Chunk>; i += 4)
                storeFour(to + i, onFourLanes(processor, loadFour(from + i)));
        };
    };
    std::vector<SForm> forms{
        oneByOne(one),
        {"four lanes of SSE2", [loop](const Chunk &x, Chunk &y) { loop(x, y)(SNarrowLanes()); }}};
    if (processorHasWideLanes()) {
        forms.push_back({"four lanes of AVX2",
                         [loop](const Chunk &x, Chunk &y) { runOnWideLanes(loop(x, y)); }});
    }
    return forms;
}

bool same(float a, float b) {
    return std::bit_cast<std::uint32_t>(a) == std::bit_cast<std::uint32_t>(b) ||
           (std::isnan(a) && std::isnan(b));
}

/// @return how many results are wrong.
long sweep(const SFunction &function) {
    long arguments = 0, wrong = 0;
    const auto check = [&](const char *form, float x, float got, float expected) {
        if (!same(got, expected) && ++wrong <= 20)
            std::printf("%s, %s: of %a got %a, nearest is %a\n", function.name, form,
                        static_cast<double>(x), static_cast<double>(got),
                        static_cast<double>(expected));
    };
    Chunk x, expected, got;
    for (std::uint64_t first = 0; first < 0x100000000u; first += x.size()) {
        for (std::size_t i = 0; i < x.size(); ++i) {
            const auto value = std::bit_cast<float>(static_cast<std::uint32_t>(first + i));
            x[i] = function.isArgument(value) ? value : 1.0f;
        }
        std::transform(x.begin(), x.end(), expected.begin(), function.reference);
        for (const SForm &form : function.forms) {
            form.run(x, got);
            for (std::size_t i = 0; i < x.size(); ++i)
                check(form.name, x[i], got[i], expected[i]);
        }
        arguments += static_cast<long>(x.size());
    }
    std::printf("%s: %ld arguments in %zu forms, %ld wrong\n", function.name, arguments,
                function.forms.size(), wrong);
    return wrong;
}

bool anyFloat(float) {
    return true;
}

bool positiveFinite(float x) {
    return x > 0.0f && x <= std::numeric_limits<float>::max();
}

SFunction powersOf(const char *name, float base) {
    return {name,
            anyFloat,
            [base](float x) { return SingleReference::power(base, x); },
            {oneByOne([base](float x) { return powSingle(base, x); })}};
}

}  // namespace

int main(int argc, char **argv) {
    const SFunction functions[] = {
        {"exp", anyFloat, SingleReference::exponential,
         allForms([](float x) { return expSingle(x); },
                  [](auto processor, SFloats4 x) { return expSingle<decltype(processor)>(x); })},
        {"log", positiveFinite, SingleReference::logarithm,
         allForms([](float x) { return logSingle(x); },
                  [](auto processor, SFloats4 x) { return logSingle<decltype(processor)>(x); })},
        powersOf("pow2", 2.0f),
        powersOf("pow5", 5.0f),
    };
    long wrong = 0;
    for (const SFunction &function : functions) {
        bool wanted = argc == 1;
        for (int i = 1; i < argc; ++i)
            wanted = wanted || std::strcmp(argv[i], function.name) == 0;
        if (wanted)
            wrong += sweep(function);
    }
    return wrong == 0 ? 0 : 1;
}
