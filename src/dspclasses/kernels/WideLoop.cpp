#include "dspclasses/kernels/WideLoop.h"

bool processorHasWideLanes() {
    return __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma");
}
