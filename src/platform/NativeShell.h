#pragma once

#include <string>

/// Opens a document in the application that the user has chosen for its type, and does not wait.
/// @param document  a path or a URL, in the system's narrow encoding.
/// @return false if the system refused. Linux runs xdg-open and does not learn whether that fails.
///         [any thread]
bool openNativeDocument(const std::string &document);
