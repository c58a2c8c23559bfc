#pragma once

#include <string>
#include <string_view>
#include <typeinfo>

namespace Tessitor::Basics {

/// @return the record name of an instantiated template: "TPointerDeleter<TypeName>" with
///         "Tessitor::Basics::CClass" becomes "TPointerDeleter<CClass>".
/// @param templateName  returned unchanged if it has no "<".
/// @param argumentName  only the part after its last ":" is used; without a ":", the part after its
///                      last blank.
std::string templateClassName(std::string_view templateName, std::string_view argumentName);

/// The same with the demangled name of a type.
std::string templateClassName(std::string_view templateName, const std::type_info &argument);

}  // namespace Tessitor::Basics
