#include "platform/Terminal.h"

#include <unistd.h>

bool isErrorStreamTerminal() {
    return isatty(STDERR_FILENO) == 1;
}
