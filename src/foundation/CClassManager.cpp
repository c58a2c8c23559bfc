#include "foundation/CClassManager.h"

#include "foundation/CTextStream.h"

#include <cstdio>
#include <cstring>

namespace Tessitor::Basics {

namespace {

bool comesBefore(const CClass *left, const CClass *right) {
    if (left == nullptr || right == nullptr)
        return left != nullptr;
    return std::strcmp(left->getClassName(), right->getClassName()) < 0;
}

}  // namespace

CClassManager::CClassManager()
    : m_nuller(std::make_unique<Collections::TObjectNuller<CClass>>()),
      m_classes(std::make_unique<Collections::TPointerCollection<CClass>>(m_nuller.get())) {}

void CClassManager::registerClass(CClass *record) {
    if (record != nullptr && !isClassRegistered(record))
        m_classes->addElement(record);
}

void CClassManager::withdrawClass(const CClass *record) {
    m_classes->deletePointerAtIndex(m_classes->getIndexOfPointer(record));
}

bool CClassManager::isClassRegistered(const CClass *record) const {
    return record != nullptr && getClassWithName(record->getClassName()) != nullptr;
}

CClass *CClassManager::getClassWithName(const char *name) const {
    for (int i = 0; i < m_classes->getArraySize(); ++i) {
        CClass *record = m_classes->elementAtIndex(i);
        if (record != nullptr && *record == name)
            return record;
    }
    return nullptr;
}

bool CClassManager::isEmpty() const {
    for (int i = 0; i < m_classes->getArraySize(); ++i)
        if (m_classes->elementAtIndex(i) != nullptr)
            return false;
    return true;
}

void CClassManager::sortClasses() {
    m_classes->sortSlots(comesBefore);
}

void CClassManager::writeClassInformation(IO::CTextStream &stream) const {
    if (!stream.isOpenForWriting())
        return;

    static constexpr char rule[] = "+--------------------------------------------------------------"
                                   "---+----------+----------+\n";
    stream << rule
           << "| Tessitor class information                                      |          |      "
              "    |\n"
           << rule
           << "| Class Name                                                      | Instance |   "
              "Total  |\n"
           << rule;

    // Copies can drive a count below zero. It is then printed as an unsigned 32-bit number.
    unsigned long long instances = 0, total = 0;
    char row[1024];
    for (int i = 0; i < m_classes->getArraySize(); ++i) {
        const CClass *record = m_classes->elementAtIndex(i);
        if (record == nullptr || record->getInstanceCount() == 0)
            continue;
        std::snprintf(row, sizeof row, "| %63s |%10lu|%10lu|\n", record->getClassName(),
                      static_cast<unsigned long>(record->getInstanceCount()),
                      static_cast<unsigned long>(record->getTotalCount()));
        stream << row;
        instances += record->getInstanceCount();
        total += record->getTotalCount();
    }

    std::snprintf(row, sizeof row, "| %63s |%10llu|%10llu|\n", "", instances, total);
    stream << rule << row << rule;
}

}  // namespace Tessitor::Basics
