#pragma once

#include "CTemporaryFolder.h"

#include <cstdlib>
#include <fstream>
#include <string>

/// Has fontconfig read a configuration of our own. Only fonts that are first used during its
/// lifetime, while no other font is in use, are looked for with it.
class CFontConfiguration {
public:
    /// @param rules  XML in the language of fontconfig.
    explicit CFontConfiguration(const std::string &rules) {
        std::ofstream(m_folder / "fonts.conf")
            << R"(<?xml version="1.0"?><fontconfig>)" << rules << "</fontconfig>";
        setenv("FONTCONFIG_FILE", (m_folder / "fonts.conf").c_str(), 1);
    }
    CFontConfiguration(const CFontConfiguration &) = delete;
    CFontConfiguration &operator=(const CFontConfiguration &) = delete;
    ~CFontConfiguration() { unsetenv("FONTCONFIG_FILE"); }

    /// The fonts of the system, with more rules.
    static std::string systemFontsWith(const std::string &rules) {
        return "<include>fonts.conf</include>" + rules;
    }

private:
    CTemporaryFolder m_folder;
};
