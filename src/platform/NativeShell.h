#pragma once

#include <string>

/// Opens a document in the application that the user has chosen for its type, and does not wait.
/// @param document  a path or a URL, in the system's narrow encoding.
/// @return false if the system refused. A failure of xdg-open on Linux goes unnoticed.
///         [any thread]
bool openNativeDocument(const std::string &document);
