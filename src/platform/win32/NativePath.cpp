#include "platform/NativePath.h"

const char nativePathSeparator[2] = "\\";
