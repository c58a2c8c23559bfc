#include "dspclasses/kernels/WideLoop.h"

// Replaces the library's definition, so that the kernels run as on a processor without AVX2.
bool processorHasWideLanes() {
    return false;
}
