#pragma once

#include "foundation/ICountedObject.h"
#include "foundation/TClassRecord.h"

#include <atomic>

namespace Tessitor::Basics {

/// The base of all classes of the library. An object starts with a reference count of 0, not 1. It
/// lives either by value, at that count, or on the heap until its last reference is released. Fonts
/// are shared by editors that live on different threads, so the count is atomic.
class CCountedObject : public ICountedObject {
public:
    CCountedObject() { s_class.incrementInstanceCount(); }
    /// Kept: copies the reference count and leaves the instance count alone, although the
    /// destructor lowers it.
    CCountedObject(const CCountedObject &other) : m_referenceCount(other.getReferenceCount()) {}
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

    std::atomic<std::int32_t> m_referenceCount = 0;
};

}  // namespace Tessitor::Basics
