#pragma once

#include "foundation/TPointerCollection.h"

#include <memory>

namespace Tessitor::IO {
class CTextStream;
}

namespace Tessitor::Basics {

/// The list of class records. It owns none of them. The program has one manager, which CClass owns.
class CClassManager {
public:
    CClassManager();
    CClassManager(const CClassManager &) = delete;
    CClassManager &operator=(const CClassManager &) = delete;

    /// Adds the record, which must outlive the manager or be withdrawn. Ignores null, and a record
    /// whose name is already listed.
    void registerClass(CClass *record);
    /// Removes this record, found by its address. Does nothing if the list has another record of
    /// the same name instead.
    void withdrawClass(const CClass *record);
    bool isClassRegistered(const CClass *record) const;  ///< compares names; false for null
    CClass *getClassWithName(const char *name) const;    ///< null if there is none
    bool isEmpty() const;

    /// Sorts by class name, compared as unsigned bytes, with the empty slots last.
    void sortClasses();
    /// Writes a table of the classes that have instances now, with totals. Does nothing unless the
    /// stream is open for writing.
    void writeClassInformation(IO::CTextStream &stream) const;

    const Collections::TPointerCollection<CClass> &getClasses() const { return *m_classes; }

private:
    // Declared first: the collection uses the nuller until it is destroyed.
    std::unique_ptr<Collections::TObjectNuller<CClass>> m_nuller;
    std::unique_ptr<Collections::TPointerCollection<CClass>> m_classes;
};

}  // namespace Tessitor::Basics
