#pragma once

namespace Tessitor::Basics {

/// Copies a text into a field of fixed size, cut to size - 1 bytes; what is left is zeroed, so the
/// field is always terminated. A null target, or a size below 1, is ignored.
void copyText(char *target, long size, const char *text);

}  // namespace Tessitor::Basics
