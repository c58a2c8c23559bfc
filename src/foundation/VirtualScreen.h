#pragma once

#include "foundation/CRect.h"

namespace Tessitor::Host {

/// @return the rectangle around all screens; all zero if there is none. See nativeVirtualScreen().
///         [one thread at a time]
MathTools::CRect getVirtualScreen();

}  // namespace Tessitor::Host
