#pragma once

#include <cstdio>
#include <string>

/// Opens a temporary file for reading and writing that has no name, so that the system deletes it
/// when the program ends, whatever ends it.
/// @return null if that fails, with the reason in errno.
std::FILE *openNamelessFile(const std::string &folder);

/// @return a path by which this process can open the file once more.
std::string pathOfNamelessFile(std::FILE *file);
