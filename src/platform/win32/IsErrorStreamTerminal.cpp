#include "platform/IsErrorStreamTerminal.h"

#include <cstdio>
#include <io.h>

bool isErrorStreamTerminal() {
    return _isatty(_fileno(stderr)) != 0;
}
