#pragma once

#include <fontconfig/fontconfig.h>
#include <freetype/freetype.h>
#include <memory>

/// Deletes what a C library gave us.
template <auto release>
struct SReleaseBy {
    template <typename Object>
    void operator()(Object *object) const {
        release(object);
    }
};

using FontPattern = std::unique_ptr<FcPattern, SReleaseBy<FcPatternDestroy>>;

/// A configuration of fontconfig and a FreeType of our own: fontconfig's default configuration
/// belongs to the host. Both exist only while a font needs them. [gui thread]
class CFontLibrary {
public:
    /// @return the one that other fonts use, or a new one, which takes some 10 ms.
    static std::shared_ptr<CFontLibrary> get();

    CFontLibrary(const CFontLibrary &) = delete;
    CFontLibrary &operator=(const CFontLibrary &) = delete;

    FcConfig *getConfiguration() const { return m_configuration.get(); }  ///< null without memory
    FT_Library getFreeType() const { return m_freeType.get(); }           ///< null without memory

private:
    CFontLibrary();

    std::unique_ptr<FcConfig, SReleaseBy<FcConfigDestroy>> m_configuration;
    std::unique_ptr<FT_LibraryRec_, SReleaseBy<FT_Done_FreeType>> m_freeType;
};
