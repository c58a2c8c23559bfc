#include "platform/linux/drawing/CFontLibrary.h"

namespace {

FT_Library startFreeType() {
    FT_Library library = nullptr;
    return FT_Init_FreeType(&library) == 0 ? library : nullptr;
}

}  // namespace

std::shared_ptr<CFontLibrary> CFontLibrary::get() {
    static std::weak_ptr<CFontLibrary> current;
    std::shared_ptr<CFontLibrary> library = current.lock();
    if (library == nullptr) {
        library.reset(new CFontLibrary);
        current = library;
    }
    return library;
}

CFontLibrary::CFontLibrary()
    : m_configuration(FcInitLoadConfigAndFonts()), m_freeType(startFreeType()) {}
