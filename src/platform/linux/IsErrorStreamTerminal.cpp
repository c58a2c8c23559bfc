#include "platform/IsErrorStreamTerminal.h"

#include <unistd.h>

bool isErrorStreamTerminal() {
    return isatty(STDERR_FILENO) == 1;
}
