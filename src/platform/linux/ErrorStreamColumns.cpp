#include "platform/ErrorStreamColumns.h"

#include <sys/ioctl.h>
#include <unistd.h>

int errorStreamColumns() {
    winsize size{};
    return ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 ? size.ws_col : 0;
}
