#pragma once

#include <string>
#include <vector>

/// What openNativeDocument() was asked to open in a program that links FakeNativeShell.cpp.
std::vector<std::string> &openedDocuments();
