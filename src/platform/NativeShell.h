#pragma once

#include <string>

/// Opens a file or an address with whatever the user has chosen for its kind, and does not wait.
/// @param document  a path or a URL, in the system's own narrow encoding.
/// @return false if the system refused. On Linux the request goes to xdg-open, whose own failure is
///         not seen. [any thread]
bool openNativeDocument(const std::string &document);
