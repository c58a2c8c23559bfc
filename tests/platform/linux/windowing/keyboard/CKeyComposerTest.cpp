#include "platform/linux/windowing/keyboard/CKeyComposer.h"

#include <array>
#include <cstdlib>
#include <gtest/gtest.h>
#include <optional>
#include <xkbcommon/xkbcommon-keysyms.h>

namespace {

using enum CKeyComposer::EResult;

/// Sets the variables that name the locale; null removes one. Puts them back at the end.
class CLocaleVariables {
public:
    CLocaleVariables(const char *all, const char *types, const char *language) {
        const std::array values = {all, types, language};
        for (std::size_t i = 0; i < names.size(); ++i) {
            if (const char *value = std::getenv(names[i]))
                m_before[i] = value;
            set(names[i], values[i]);
        }
    }
    CLocaleVariables(const CLocaleVariables &) = delete;
    CLocaleVariables &operator=(const CLocaleVariables &) = delete;
    ~CLocaleVariables() {
        for (std::size_t i = 0; i < names.size(); ++i)
            set(names[i], m_before[i] ? m_before[i]->c_str() : nullptr);
    }

private:
    static constexpr std::array names = {"LC_ALL", "LC_CTYPE", "LANG"};

    static void set(const char *name, const char *value) {
        if (value != nullptr)
            setenv(name, value, 1);
        else
            unsetenv(name);
    }

    std::optional<std::string> m_before[names.size()];
};

/// @return what an acute accent and a c make: another letter in Brazil than elsewhere.
std::string accentedC(const char *all, const char *types, const char *language) {
    const CLocaleVariables variables(all, types, language);
    CKeyComposer composer;
    EXPECT_EQ(composer.feed(XKB_KEY_dead_acute), Waiting);
    EXPECT_EQ(composer.feed(XKB_KEY_c), Composed);
    return composer.getText();
}

constexpr const char *america = "en_US.UTF-8", *brazil = "pt_BR.UTF-8";
constexpr const char *withAcute = "\u0107", *withCedilla = "\u00E7";

TEST(CKeyComposer, GoesByTheLocaleOfTheUser) {
    EXPECT_EQ(accentedC(america, brazil, brazil), withAcute);
    EXPECT_EQ(accentedC(brazil, america, america), withCedilla);
    EXPECT_EQ(accentedC(nullptr, brazil, america), withCedilla);
    EXPECT_EQ(accentedC("", brazil, america), withCedilla);
    EXPECT_EQ(accentedC(nullptr, nullptr, brazil), withCedilla);
}

TEST(CKeyComposer, KnowsBothSpellingsOfUtf8) {
    EXPECT_EQ(accentedC("pt_BR.utf8", nullptr, nullptr), withCedilla);
}

TEST(CKeyComposer, TypesAllCharactersInOtherLocales) {
    EXPECT_EQ(accentedC(nullptr, nullptr, nullptr), withAcute);
    EXPECT_EQ(accentedC("C", nullptr, nullptr), withAcute);
    EXPECT_EQ(accentedC("pt_BR.ISO8859-1", nullptr, nullptr), withAcute);
}

}  // namespace
