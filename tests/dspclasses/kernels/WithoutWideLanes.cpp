#include "dspclasses/kernels/WideLoop.h"

// Stands in for the library's own definition: the kernels run as on a processor without AVX2.
bool processorHasWideLanes() {
    return false;
}
