#pragma once

#include "foundation/CString.h"

namespace Tessitor::IO {

/// The texts that stand for characters which mean something in an XML file.

/// Replaces & " > < and the two bytes of line ends with their texts.
Basics::CString encodeEntities(const Basics::CString &text);

/// Puts the characters back, one kind after the other and & first, so that the text of one that was
/// itself encoded, "&amp;lt;", becomes the character. Each is found wherever it stands, which
/// CString::replaceStringWithChar() would not do: it looks at the first "&" only.
Basics::CString decodeEntities(const Basics::CString &text);

}  // namespace Tessitor::IO
