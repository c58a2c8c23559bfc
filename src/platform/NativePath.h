#pragma once

/// What stands between the folders of a path: a text of one byte, "/" or "\\".
extern const char nativePathSeparator[2];
