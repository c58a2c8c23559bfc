#pragma once

#include "foundation/ICountedObject.h"
#include "foundation/TClassRecord.h"

namespace Tessitor::Basics {

/// The root of the library. An object begins with a count of 0, not 1, and lives by value at that
/// count, or on the heap until the last of those who referenced it lets go.
class CCountedObject : public ICountedObject {
public:
    CCountedObject() { s_class.incrementInstanceCount(); }
    /// Kept: copies the count and is not counted as an instance, though its destructor counts down.
    CCountedObject(const CCountedObject &other) : m_referenceCount(other.m_referenceCount) {}
    ~CCountedObject() override { s_class.decrementInstanceCount(); }

    /// Each object keeps its own count.
    CCountedObject &operator=(const CCountedObject &) { return *this; }

    void reference() override { ++m_referenceCount; }
    void dereference() override;
    std::int32_t getReferenceCount() const override { return m_referenceCount; }
    void getObjectDescription(char *array, long size) const override;
    CClass &getClass() const override { return s_class; }

private:
    static TClassRecord<CCountedObject> s_class;

    std::int32_t m_referenceCount = 0;
};

}  // namespace Tessitor::Basics
