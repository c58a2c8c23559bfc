#pragma once

#include <string>
#include <string_view>
#include <typeinfo>

namespace Tessitor::Basics {

/// Names the record of an instantiated template: "TPointerDeleter<TypeName>" and a type called
/// `Tessitor::Basics::CClass` make "TPointerDeleter<CClass>".
/// @param templateName  the literal; without a "<" it is the result as it stands.
/// @param argumentName  cut to what follows its last ":", or else its last blank.
std::string templateClassName(std::string_view templateName, std::string_view argumentName);

/// The same with the name that the compiler keeps of a type, unmangled.
std::string templateClassName(std::string_view templateName, const std::type_info &argument);

}  // namespace Tessitor::Basics
