#include "foundation/DisplayMessage.h"

#include "platform/NativeMessageBox.h"

namespace Tessitor {

void displayMessage(const char *text, const char *caption, bool isError) {
    showNativeMessage(text, caption, isError);
}

}  // namespace Tessitor
