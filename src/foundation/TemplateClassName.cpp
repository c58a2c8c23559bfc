#include "foundation/TemplateClassName.h"

#include <cstdlib>
#include <cxxabi.h>
#include <memory>

namespace Tessitor::Basics {

namespace {

std::string_view shortName(std::string_view typeName) {
    auto before = typeName.rfind(':');
    if (before == std::string_view::npos)
        before = typeName.rfind(' ');
    return before == std::string_view::npos ? typeName : typeName.substr(before + 1);
}

struct SFree {
    void operator()(char *text) const { std::free(text); }
};

}  // namespace

std::string templateClassName(std::string_view templateName, std::string_view argumentName) {
    std::string name(templateName);
    const auto bracket = name.find('<');
    if (bracket != std::string::npos)
        name.replace(bracket + 1, std::string::npos, shortName(argumentName)).append(">");
    return name;
}

std::string templateClassName(std::string_view templateName, const std::type_info &argument) {
    int status = 0;
    const std::unique_ptr<char, SFree> plain(
        abi::__cxa_demangle(argument.name(), nullptr, nullptr, &status));
    return templateClassName(templateName, std::string_view(plain ? plain.get() : argument.name()));
}

}  // namespace Tessitor::Basics
