#include "foundation/CClassManager.h"

#include <cstring>

namespace Tessitor::Basics {

namespace {

bool standsBefore(const CClass *left, const CClass *right) {
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

void CClassManager::sortClasses() {
    m_classes->sortSlots(standsBefore);
}

}  // namespace Tessitor::Basics
