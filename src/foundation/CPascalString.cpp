#include "foundation/CPascalString.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace Tessitor::Basics {

TClassRecord<CPascalString> CPascalString::s_class("CPascalString", "CCountedObject");

CPascalString::CPascalString(const char *text, long size) {
    CPascalString::setString(text, size);
    s_class.incrementInstanceCount();
}

void CPascalString::setString(const char *text, long size) {
    const auto blockSize = static_cast<std::size_t>(std::max(size, 2L));
    const std::string_view kept = std::string_view(text).substr(0, blockSize - 2);
    auto block = std::make_unique<unsigned char[]>(blockSize);
    block[0] = static_cast<unsigned char>(kept.size());
    std::copy(kept.begin(), kept.end(), &block[1]);
    m_block = std::move(block);
}

}  // namespace Tessitor::Basics
