#include "foundation/CClass.h"

#include "foundation/CClassManager.h"
#include "foundation/CTextStream.h"
#include "foundation/CopyText.h"
#include "foundation/TemplateClassName.h"

#include <cstring>

namespace Tessitor::Basics {

namespace {

template <std::size_t size>
void copyName(char (&field)[size], const char *name) {
    if (name != nullptr)
        copyText(field, static_cast<long>(size), name);
}

}  // namespace

// constinit: whichever static record is constructed first must find null here.
constinit CClassManager *CClass::s_manager = nullptr;

CClass::CClass() {
    makeManager();
}

CClass::CClass(const char *className) {
    copyName(m_className, className);
    enrol();
}

CClass::CClass(const char *className, const char *parentClassName) {
    copyName(m_className, className);
    copyName(m_parentClassName, parentClassName);
    enrol();
}

CClass::CClass(const CClass &other) : CClass(other.m_className) {}

CClass::CClass(const char *templateName, const std::type_info &argument)
    : CClass(templateClassName(templateName, argument).c_str()) {}

CClass::CClass(const char *templateName, const std::type_info &argument,
               const char *parentClassName)
    : CClass(templateClassName(templateName, argument).c_str(), parentClassName) {}

CClass::CClass(const char *templateName, const std::type_info &argument,
               const char *parentTemplateName, const std::type_info &parentArgument)
    : CClass(templateClassName(templateName, argument).c_str(),
             templateClassName(parentTemplateName, parentArgument).c_str()) {}

CClass::~CClass() {
    if (s_manager == nullptr)
        return;
    s_manager->withdrawClass(this);
    // If the library was loaded but never used, nobody else deletes the manager.
    if (s_manager->isEmpty())
        destroyClassManager(nullptr);
}

CClass &CClass::operator=(const CClass &other) {
    if (this != &other)
        copyName(m_className, other.m_className);
    return *this;
}

void CClass::setClassName(const char *className) {
    copyName(m_className, className);
}

bool CClass::operator==(const CClass &other) const {
    return *this == other.m_className;
}

bool CClass::operator==(const char *className) const {
    return std::strcmp(m_className, className) == 0;
}

bool CClass::isTypeOf(const CClass &target) const {
    if (s_manager != nullptr) {
        // Parent names can form a cycle, so take no more steps than there are records.
        int steps = s_manager->getClasses().getInsertIndex();
        const CClass *ancestor = s_manager->getClassWithName(m_parentClassName);
        for (; ancestor != nullptr && steps > 0; --steps) {
            if (*ancestor == target)
                return true;
            ancestor = s_manager->getClassWithName(ancestor->m_parentClassName);
        }
    }
    return *this == target;
}

void CClass::destroyClassManager(const char *reportPath) {
    if (s_manager != nullptr && reportPath != nullptr) {
        IO::CTextStream report(reportPath, IO::EStreamMode::Write);
        s_manager->sortClasses();
        s_manager->writeClassInformation(report);
    }
    delete s_manager;
    s_manager = nullptr;
}

void CClass::makeManager() {
    if (s_manager == nullptr)
        s_manager = new CClassManager;
}

void CClass::enrol() {
    makeManager();
    s_manager->registerClass(this);
}

}  // namespace Tessitor::Basics
