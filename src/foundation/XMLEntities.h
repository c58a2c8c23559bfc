#pragma once

#include "foundation/CString.h"

namespace Tessitor::IO {

/// Entities: the encoded forms of characters that have a special meaning in XML.

/// Replaces & " > < line feed and carriage return with their entities.
Basics::CString encodeEntities(const Basics::CString &text);

/// Replaces the entities with their characters, one kind after the other and "&amp;" first, so
/// "&amp;lt;" becomes "<". Does not use CString::replaceStringWithChar(), which would look only at
/// the first "&".
Basics::CString decodeEntities(const Basics::CString &text);

}  // namespace Tessitor::IO
