#pragma once

#include "foundation/TPointerCollection.h"

#include <memory>

namespace Tessitor::IO {
class CTextStream;
}

namespace Tessitor::Basics {

/// The list of the class records, none of which it owns. CClass makes and keeps the only one that
/// the program uses.
class CClassManager {
public:
    CClassManager();
    CClassManager(const CClassManager &) = delete;
    CClassManager &operator=(const CClassManager &) = delete;

    /// Adds the record, which must outlive the manager or withdraw. Ignores null, and a record
    /// whose name is there already: of two with one name the first stands for both.
    void registerClass(CClass *record);
    /// Takes this very record out; a record of the same name that was never added stays out.
    void withdrawClass(const CClass *record);
    bool isClassRegistered(const CClass *record) const;  ///< by name; null is not
    CClass *getClassWithName(const char *name) const;    ///< null if there is none
    bool isEmpty() const;

    /// Orders the slots by class name as unsigned bytes, the empty ones last.
    void sortClasses();
    /// Writes the table of the classes that have instances now, with their sums. Does nothing
    /// unless the stream is open for writing.
    void writeClassInformation(IO::CTextStream &stream) const;

    const Collections::TPointerCollection<CClass> &getClasses() const { return *m_classes; }

private:
    // The nuller outlives the collection, which uses it to the end.
    std::unique_ptr<Collections::TObjectNuller<CClass>> m_nuller;
    std::unique_ptr<Collections::TPointerCollection<CClass>> m_classes;
};

}  // namespace Tessitor::Basics
