#include "platform/NamelessFile.h"

#include <fcntl.h>
#include <unistd.h>

std::FILE *openNamelessFile(const std::string &folder) {
    const int file = open(folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0600);
    if (file < 0)
        return std::tmpfile();  // for file systems that give every file a name at first
    return fdopen(file, "w+b");
}

std::string pathOfNamelessFile(std::FILE *file) {
    return "/proc/self/fd/" + std::to_string(fileno(file));
}
