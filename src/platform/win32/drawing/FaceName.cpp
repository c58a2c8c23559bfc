#include "platform/INativeFont.h"

#include <algorithm>
#include <mbstring.h>

void copyNativeFaceName(char (&target)[32], const char *face) {
    std::ranges::fill(target, '\0');
    _mbsnbcpy(reinterpret_cast<unsigned char *>(target),
              reinterpret_cast<const unsigned char *>(face), sizeof target - 1);
}
