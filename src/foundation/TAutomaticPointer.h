#pragma once

#include "foundation/TPointerDeleter.h"

#include <utility>

namespace Tessitor::Collections {

/// Holds one pointer. The deleter decides who owns the object.
template <typename TypeName>
class TAutomaticPointer : public Basics::CCountedObject {
public:
    /// @param deleter  not owned; if null, objects are deleted directly.
    explicit TAutomaticPointer(TPointerDeleter<TypeName> *deleter = nullptr);
    TAutomaticPointer(const TAutomaticPointer &) = delete;
    TAutomaticPointer &operator=(const TAutomaticPointer &) = delete;
    ~TAutomaticPointer() override;
    Basics::CClass &getClass() const override { return s_class; }

    TypeName *getPointer() const { return m_pointer; }  ///< null if empty
    /// Takes the pointer, which may be null, and then releases the old one. Does nothing if the two
    /// are the same. Releasing may destroy the object that this pointer is a member of.
    void setPointer(TypeName *pointer);
    void freePointer();

private:
    static void release(TypeName *pointer, TPointerDeleter<TypeName> *deleter);

    static Basics::TClassRecord<TAutomaticPointer> s_class;

    TypeName *m_pointer = nullptr;
    TPointerDeleter<TypeName> *m_deleter;  // not owned, may be null
};

// Definitions
template <typename TypeName>
Basics::TClassRecord<TAutomaticPointer<TypeName>>
    TAutomaticPointer<TypeName>::s_class("TAutomaticPointer<TypeName>", typeid(TypeName),
                                         "CCountedObject");

template <typename TypeName>
TAutomaticPointer<TypeName>::TAutomaticPointer(TPointerDeleter<TypeName> *deleter)
    : m_deleter(deleter) {
    s_class.incrementInstanceCount();
}

template <typename TypeName>
TAutomaticPointer<TypeName>::~TAutomaticPointer() {
    freePointer();
    s_class.decrementInstanceCount();
}

template <typename TypeName>
void TAutomaticPointer<TypeName>::setPointer(TypeName *pointer) {
    if (pointer == m_pointer)
        return;
    if (pointer != nullptr && m_deleter != nullptr)
        m_deleter->pointerAdded(pointer);
    release(std::exchange(m_pointer, pointer), m_deleter);
}

template <typename TypeName>
void TAutomaticPointer<TypeName>::freePointer() {
    release(std::exchange(m_pointer, nullptr), m_deleter);
}

// Static, since references can form a cycle: releasing the pointer may destroy this object.
template <typename TypeName>
void TAutomaticPointer<TypeName>::release(TypeName *pointer, TPointerDeleter<TypeName> *deleter) {
    if (pointer == nullptr)
        return;
    if (deleter != nullptr)
        deleter->deletePointer(pointer);
    else
        delete pointer;
}

}  // namespace Tessitor::Collections
