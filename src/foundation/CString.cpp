#include "foundation/CString.h"

#include "foundation/CPascalString.h"
#include "foundation/CStringFences.h"

#include <algorithm>
#include <cctype>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <stdexcept>
#include <utility>

namespace Tessitor::Basics {

namespace {

using Exceptions::fenced;

constexpr long pascalBlockSize = 256;

/// @param size  not below 0.
constexpr std::size_t sizeOf(long size) {
    return static_cast<std::size_t>(size);
}

/// A number as text. It is on the stack because some operations need it outside their fences.
template <typename Number>
struct SNumberText {
    SNumberText(const char *format, Number value) {
        std::snprintf(text, sizeof text, format, value);
    }

    char text[320];  // the longest double has 314 characters before its terminator
};

char upperCase(char character) {
    return static_cast<char>(std::toupper(static_cast<unsigned char>(character)));
}

char lowerCase(char character) {
    return static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
}

/// @return true if each replacement would be found again, so that replacing would never end.
bool isFoundAgain(const CString &find, char replacement) {
    const std::int32_t number = find.getNumberOfCharacters();
    return number == 1 || (number == 2 && find.characterAt(0) == replacement);
}

}  // namespace

TClassRecord<CString> CString::s_class("CString", "CCountedObject");

CString::CString(const char *text) : CString(text, text == nullptr ? 0 : std::strlen(text)) {}

CString::CString(const char *text, std::size_t length) {
    fenced(StringFences::construction, [&] {
        store(length + 1, {text, length}, "");
        s_class.incrementInstanceCount();
    });
}

// The base is not copied: nobody has referenced the copy yet.
// NOLINTNEXTLINE(bugprone-copy-constructor-init, readability-redundant-member-init)
CString::CString(const CString &other) : CCountedObject() {
    fenced(StringFences::construction, [&] {
        CString::setString(other.getString());
        s_class.incrementInstanceCount();
    });
}

CString::~CString() {
    fenced(StringFences::destruction, [&] {
        m_text.reset();
        s_class.decrementInstanceCount();
    });
}

void CString::getObjectDescription(char *array, long size) const {
    fenced(StringFences::getObjectDescription, [&] { getString(array, size); });
}

CString &CString::operator=(bool value) {
    fenced(StringFences::assignment, [&] { setString(value ? "True" : "False"); });
    return *this;
}

CString &CString::operator=(long value) {
    fenced(StringFences::assignment, [&] { setString(SNumberText("%.3li", value).text); });
    return *this;
}

CString &CString::operator=(int value) {
    fenced(StringFences::assignment, [&] { setString(SNumberText("%.3i", value).text); });
    return *this;
}

CString &CString::operator=(float value) {
    fenced(StringFences::assignment,
           [&] { setString(SNumberText("%.3f", static_cast<double>(value)).text); });
    return *this;
}

CString &CString::operator=(const char *text) {
    fenced(StringFences::assignment, [&] { setString(text); });
    return *this;
}

CString &CString::operator=(const CString &other) {
    fenced(StringFences::assignment, [&] {
        if (!equals(other.getString()))
            setString(other.getString());
    });
    return *this;
}

CString &CString::operator=(CString &other) {
    fenced(StringFences::assignment, [&] {
        if (&other != this)
            setString(other);
    });
    return *this;
}

CString &CString::operator+=(const char *text) {
    fenced(StringFences::addition, [&] { appendString(text); });
    return *this;
}

CString &CString::operator+=(const CString &other) {
    fenced(StringFences::addition, [&] { appendString(other); });
    return *this;
}

bool CString::operator==(const CString &other) const {
    return fenced(StringFences::equality, [&] { return equals(other); });
}

bool CString::operator==(const char *text) const {
    return fenced(StringFences::equality, [&] { return equals(text); });
}

bool CString::operator!=(const CString &other) const {
    return fenced(StringFences::inequality, [&] { return !(*this == other); });
}

bool CString::operator!=(const char *text) const {
    return fenced(StringFences::inequality, [&] { return !(*this == text); });
}

bool CString::operator!() const {
    return m_numberOfCharacters == 0;
}

char CString::operator[](long index) const {
    return fenced(StringFences::indexing, [&] { return characterAt(index); });
}

CString::operator CPascalString() const {
    return fenced(StringFences::conversion,
                  [&] { return CPascalString(getString(), pascalBlockSize); });
}

void CString::setString(const CString &other) {
    fenced(StringFences::setString, [&] { setString(other.getString()); });
}

void CString::setString(const char *text) {
    fenced(StringFences::setString, [&] {
        if (text != nullptr)
            store(std::strlen(text) + 1, text, "");
    });
}

void CString::setStringWithFormat(const char *format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    const int length = std::vsnprintf(nullptr, 0, format, arguments);
    va_end(arguments);
    if (length < 0)
        return;

    // Two fences, so that nothing is thrown between va_start and va_end.
    const std::size_t size = sizeOf(length) + 1;
    const auto text =
        fenced(StringFences::setStringWithFormat, [&] { return std::make_unique<char[]>(size); });
    va_start(arguments, format);
    std::vsnprintf(text.get(), size, format, arguments);
    va_end(arguments);
    fenced(StringFences::setStringWithFormat, [&] { setString(text.get()); });
}

void CString::appendString(const CString &other) {
    fenced(StringFences::appendString, [&] { appendString(other.getString()); });
}

void CString::appendString(const char *text) {
    fenced(StringFences::appendString, [&] {
        // Kept: the block grows by the length of the text, even if it has bytes to spare.
        store(sizeOf(m_numberOfCharacters) + std::strlen(text), m_text.get(), text);
    });
}

void CString::appendString(char character) {
    fenced(StringFences::appendString, [&] {
        const char text[] = {character, '\0'};
        appendString(text);
    });
}

const char *CString::getString() const {
    return fenced(StringFences::getString, [&] { return m_text.get(); });
}

void CString::getString(char *buffer) const {
    // Kept: the size of a pointer, not of the buffer.
    fenced(StringFences::getString, [&] { getString(buffer, 8); });
}

void CString::getString(char *buffer, long size) const {
    fenced(StringFences::getString, [&] {
        if (buffer == nullptr || size < 1)
            return;
        std::memset(buffer, 0, sizeOf(size));
        const bool isWhole = size >= m_numberOfCharacters;
        std::memcpy(buffer, m_text.get(), sizeOf(isWhole ? m_numberOfCharacters : size - 1));
    });
}

CString CString::getSubString(long start, long end) const {
    return fenced(StringFences::getSubString, [&] {
        if (start < 0 || start >= end || end > m_numberOfCharacters)
            return CString();
        // If end is the number of characters, its character would lie past the block.
        return charactersFrom(start, std::min(end + 1, long{m_numberOfCharacters}) - start);
    });
}

std::int32_t CString::getNumberOfCharacters() const {
    return m_numberOfCharacters;
}

char CString::characterAt(long index) const {
    return fenced(StringFences::characterAt,
                  [&] { return index < 0 || index >= m_numberOfCharacters ? ' ' : m_text[index]; });
}

void CString::toUpperCase() {
    fenced(StringFences::toUpperCase, [&] {
        std::transform(m_text.get(), m_text.get() + m_numberOfCharacters, m_text.get(), upperCase);
    });
}

void CString::toLowerCase() {
    fenced(StringFences::toLowerCase, [&] {
        std::transform(m_text.get(), m_text.get() + m_numberOfCharacters, m_text.get(), lowerCase);
    });
}

void CString::removeTrailingAndLeadingWhiteSpace() {
    fenced(StringFences::removeTrailingAndLeadingWhiteSpace, [&] {
        removeLeadingWhiteSpace();
        removeTrailingWhiteSpace();
    });
}

void CString::removeLeadingWhiteSpace() {
    fenced(StringFences::removeLeadingWhiteSpace, [&] {
        std::int32_t first = 0;
        while (isWhiteSpace(m_text[first]))
            ++first;
        setString(getSubString(first, m_numberOfCharacters));
    });
}

void CString::removeTrailingWhiteSpace() {
    fenced(StringFences::removeTrailingWhiteSpace, [&] {
        std::int32_t last = m_numberOfCharacters - 2;
        while (last >= 0 && isWhiteSpace(m_text[last]))
            --last;
        if (last >= 0)
            setString(getSubString(0, last));
    });
}

void CString::removeLastCharacter() {
    fenced(StringFences::removeLastCharacter, [&] {
        if (m_numberOfCharacters > 1)
            setString(charactersFrom(0, m_numberOfCharacters - 2));
    });
}

void CString::replaceCharWithChar(char find, char replacement) {
    fenced(StringFences::replaceCharWithChar, [&] {
        std::replace(m_text.get(), m_text.get() + m_numberOfCharacters - 1, find, replacement);
    });
}

void CString::replaceCharWithString(char find, const CString &replacement) {
    fenced(StringFences::replaceCharWithString, [&] {
        CString result;
        for (std::int32_t i = 0; i < m_numberOfCharacters - 1; ++i) {
            if (m_text[i] == find)
                result.appendString(replacement);
            else
                result.appendString(m_text[i]);
        }
        setString(result);
    });
}

void CString::replaceStringWithChar(char replacement, const CString &find) {
    fenced(StringFences::replaceStringWithChar, [&] {
        // A loop, not recursion: a text may hold more occurrences than the stack has room for.
        while (!isFoundAgain(find, replacement)) {
            const std::int32_t position = findSubString(find);
            if (position == -1)
                return;
            CString result = getSubString(0, position - 1);
            result.appendString(replacement);
            result.appendString(getSubString(position + find.getNumberOfCharacters() - 1,
                                             m_numberOfCharacters - 1));
            setString(result);
        }
    });
}

bool CString::equals(const CString &other) const {
    return fenced(StringFences::equals, [&] { return equals(other.getString()); });
}

bool CString::equals(const char *text) const {
    return fenced(StringFences::equals, [&] { return std::strcmp(m_text.get(), text) == 0; });
}

bool CString::equalsIgnoringCase(const CString &other) const {
    return fenced(StringFences::equalsIgnoringCase,
                  [&] { return equalsIgnoringCase(other.getString()); });
}

bool CString::equalsIgnoringCase(const char *text) const {
    return fenced(StringFences::equalsIgnoringCase, [&] {
        const std::string_view left(m_text.get()), right(text);
        return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                          [](char a, char b) { return lowerCase(a) == lowerCase(b); });
    });
}

std::int32_t CString::findForward(char character) const {
    return fenced(StringFences::findForward, [&] {
        std::int32_t index = 0;
        while (index < m_numberOfCharacters && m_text[index] != character)
            ++index;
        return index < m_numberOfCharacters ? index : -1;
    });
}

std::int32_t CString::findBackwards(char character) const {
    return fenced(StringFences::findBackwards, [&] {
        std::int32_t index = m_numberOfCharacters - 1;
        while (index >= 0 && m_text[index] != character)
            --index;
        return index;
    });
}

std::int32_t CString::findSubString(const CString &needle) const {
    return fenced(StringFences::findSubString, [&] {
        const std::int32_t position = findForward(needle.m_text[0]);
        if (position == -1 || needle.m_numberOfCharacters > m_numberOfCharacters - position)
            return -1;
        // Kept: the first mismatch ends the search, even if the needle occurs further on.
        const bool isHere =
            std::equal(needle.m_text.get(), needle.m_text.get() + needle.m_numberOfCharacters - 1,
                       m_text.get() + position);
        return isHere ? position : -1;
    });
}

bool CString::isWhiteSpace(char character) {
    return character == ' ' || (character >= 9 && character <= 13);
}

bool CString::isWhiteSpace() const {
    return std::all_of(m_text.get(), m_text.get() + m_numberOfCharacters,
                       [](char character) { return isWhiteSpace(character); });
}

CString CString::toString(double value) {
    return SNumberText("%.3f", value).text;
}

CString CString::toString(float value) {
    return SNumberText("%.3f", static_cast<double>(value)).text;
}

CString CString::toString(int value) {
    return SNumberText("%03i", value).text;
}

CString CString::toString(long value) {
    return SNumberText("%03li", value).text;
}

double CString::toDouble(const char *text) {
    return std::strtod(text, nullptr);
}

double CString::toDouble(const CString &text) {
    return toDouble(text.getString());
}

float CString::toFloat(const char *text) {
    return static_cast<float>(toDouble(text));
}

float CString::toFloat(const CString &text) {
    return toFloat(text.getString());
}

long CString::toLong(const char *text) {
    return std::strtol(text, nullptr, 10);
}

long CString::toLong(const CString &text) {
    return toLong(text.getString());
}

int CString::toInt(const char *text) {
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(std::clamp<long>(toLong(text), Limits::min(), Limits::max()));
}

int CString::toInt(const CString &text) {
    return toInt(text.getString());
}

void CString::terminateAt(std::int32_t index) {
    m_text[sizeOf(index)] = '\0';
}

CString CString::charactersFrom(long index, long number) const {
    const std::string_view characters(m_text.get() + index, sizeOf(number));
    return CString(characters.data(), std::min(characters.find('\0'), characters.size()));
}

// Creates a zeroed block and copies both texts to its start. They may point into the old block.
void CString::store(std::size_t size, std::string_view text, std::string_view appended) {
    if (size > sizeOf(std::numeric_limits<std::int32_t>::max()))
        throw std::length_error("string longer than 2 GiB");
    auto block = std::make_unique<char[]>(size);
    std::copy(appended.begin(), appended.end(), std::copy(text.begin(), text.end(), block.get()));
    m_text = std::move(block);
    m_numberOfCharacters = static_cast<std::int32_t>(size);
}

}  // namespace Tessitor::Basics
