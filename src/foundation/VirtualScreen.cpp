#include "foundation/VirtualScreen.h"

#include "platform/NativeScreen.h"

namespace Tessitor::Host {

MathTools::CRect getVirtualScreen() {
    MathTools::CRect screen;
    screen.fromNative(nativeVirtualScreen());
    return screen;
}

}  // namespace Tessitor::Host
