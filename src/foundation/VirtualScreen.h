#pragma once

#include "foundation/CRect.h"

namespace Tessitor::Host {

/// @return the rectangle that holds all screens, as nativeVirtualScreen() tells it; all zero if
///         there is none. [gui thread]
MathTools::CRect getVirtualScreen();

}  // namespace Tessitor::Host
