#include "foundation/CSystemString.h"

#include "foundation/CStringTokeniser.h"
#include "foundation/ExceptionFence.h"
#include "platform/NativePath.h"

#include <memory>
#include <string_view>

namespace Tessitor::Basics {

namespace {

// The tokeniser and the returned string allocate outside the fences of CString.
constexpr Exceptions::SFence sectionFence{
    "Caught exception during path section get, more below\n\n",
    "Caught unknown exception during path section get",
    "Tessitor::Basics::CSystemString::getPathSection"};

char separator() {
    return nativePathSeparator[0];
}

}  // namespace

TClassRecord<CSystemString> CSystemString::s_class("CSystemString", "CString");

CSystemString::CSystemString(const char *text) : CString(text) {
    s_class.incrementInstanceCount();
}

CSystemString::CSystemString(const CString &text) : CString(text) {
    s_class.incrementInstanceCount();
}

CSystemString::CSystemString(const CSystemString &other) : CString(other) {
    s_class.incrementInstanceCount();
}

CSystemString &CSystemString::operator=(const char *text) {
    CString::operator=(text);
    return *this;
}

CSystemString &CSystemString::operator+=(const char *text) {
    const CString added(text);
    appendSeparator();
    appendString(added);
    return *this;
}

CSystemString &CSystemString::operator+=(const CString &other) {
    return *this += other.getString();
}

CSystemString &CSystemString::operator=(const CSystemString &other) {
    if (&other != this)
        setString(other);
    return *this;
}

bool CSystemString::operator==(const CSystemString &other) const {
    return equals(other);
}

bool CSystemString::operator!=(const CSystemString &other) const {
    return !(*this == other);
}

bool CSystemString::hasExtension(const CString &extension) const {
    return hasExtension(extension.getString());
}

bool CSystemString::hasExtension(const char *extension) const {
    const std::string_view wanted(extension);
    const std::string_view text(getString(), static_cast<std::size_t>(getNumberOfCharacters()) - 1);
    return wanted.size() > text.size() || text.ends_with(wanted);
}

bool CSystemString::hasExtension() const {
    return findBackwards('.') > 0;
}

void CSystemString::setNewExtension(const CString &extension, bool removeOld) {
    setNewExtension(extension.getString(), removeOld);
}

void CSystemString::setNewExtension(const char *extension, bool removeOld) {
    const CString added(extension);
    if (removeOld)
        removeExtension();
    appendString(".");
    appendString(added);
}

void CSystemString::removeExtension() {
    const std::int32_t dot = findBackwards('.');
    if (dot > 0)
        terminateAt(dot);
}

bool CSystemString::hasNoExtension() const {
    return !hasExtension();
}

void CSystemString::removeFileName() {
    const std::int32_t last = findBackwards(separator());
    if (last != -1)
        setString(charactersFrom(0, last + 1));
}

CString CSystemString::getPath() const {
    if (hasNoExtension())
        return *this;
    return charactersFrom(0, findBackwards(separator()) + 1);
}

void CSystemString::appendSeparator() {
    appendString(nativePathSeparator);
}

void CSystemString::appendPath(const CString &path) {
    const CString added(path.getString());
    if (characterAt(getNumberOfCharacters() - 2) != separator())
        appendSeparator();
    appendString(added);
}

CString CSystemString::getDrive(bool asPath) const {
    return charactersFrom(0, asPath ? findForward(separator()) + 1 : 1);
}

CString CSystemString::getExtension() const {
    const std::int32_t dot = findBackwards('.');
    return dot == -1 ? CString() : restFrom(dot);
}

CString CSystemString::getFileName() const {
    const std::int32_t last = findBackwards(separator());
    return last == -1 ? CString() : restFrom(last + 1);
}

std::int32_t CSystemString::getNumberOfPathSections() const {
    return CStringTokeniser(*this, separator()).countTokens();
}

CString *CSystemString::getPathSection(long index) const {
    return Exceptions::fenced(sectionFence, [&]() -> CString * {
        CStringTokeniser sections(*this, separator());
        CString section;
        for (long i = 0; i < index; ++i) {
            if (!sections.getNextToken(section))
                return nullptr;
        }
        if (!sections.getNextToken(section))
            return nullptr;
        // Kept: only the first section gets its separator.
        if (index == 0)
            section.appendString(nativePathSeparator);
        return new CString(section);
    });
}

CString CSystemString::getLastPathSection() const {
    const std::unique_ptr<CString> section(getPathSection(getNumberOfPathSections() - 1));
    return section == nullptr ? CString() : *section;
}

void CSystemString::removeLastPathSection() {
    const std::int32_t last = findBackwards(separator());
    if (last >= 2)
        setString(charactersFrom(0, last));
}

void CSystemString::removeFirstPathSection() {
    const std::int32_t first = findForward(separator());
    if (first != -1)
        setString(restFrom(first + 1));
}

void CSystemString::convertSlashes() {
    replaceCharWithChar('/', separator());
}

CString CSystemString::restFrom(std::int32_t index) const {
    return getSubString(index, getNumberOfCharacters() - 1);
}

}  // namespace Tessitor::Basics
