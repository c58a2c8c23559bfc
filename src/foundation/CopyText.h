#pragma once

namespace Tessitor::Basics {

/// Copies at most size - 1 bytes of a text into a field of that size and fills the rest with zeros,
/// so the field is always terminated. Does nothing if target is null or size is below 1.
void copyText(char *target, long size, const char *text);

}  // namespace Tessitor::Basics
