#pragma once

#include <cstdlib>
#include <optional>
#include <string>

/// Sets a variable of the environment for as long as it exists, or removes it.
class CVariable {
public:
    CVariable(const char *name, const std::optional<std::string> &value) : m_name(name) {
        if (const char *before = std::getenv(name))
            m_before = before;
        set(value);
    }
    CVariable(const CVariable &) = delete;
    CVariable &operator=(const CVariable &) = delete;
    ~CVariable() { set(m_before); }

private:
    void set(const std::optional<std::string> &value) const {
        if (value)
            setenv(m_name, value->c_str(), 1);
        else
            unsetenv(m_name);
    }

    const char *m_name;
    std::optional<std::string> m_before;
};
