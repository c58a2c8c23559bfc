#pragma once

#include "foundation/TPointerDeleter.h"

#include <utility>

namespace Tessitor::Collections {

/// Holds one pointer; the deleter decides who owns what it points to.
template <typename TypeName>
class TAutomaticPointer : public Basics::CCountedObject {
public:
    /// @param deleter  not owned; null to delete what is held.
    explicit TAutomaticPointer(TPointerDeleter<TypeName> *deleter = nullptr);
    TAutomaticPointer(const TAutomaticPointer &) = delete;
    TAutomaticPointer &operator=(const TAutomaticPointer &) = delete;
    ~TAutomaticPointer() override;
    Basics::CClass &getClass() const override { return s_class; }

    TypeName *getPointer() const { return m_pointer; }  ///< null if empty
    /// Lets the old one go, then takes the new one; null takes none, and the one that is held
    /// already stays. A new one that only the old one keeps alive must have another owner.
    void setPointer(TypeName *pointer);
    void freePointer();

private:
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
    freePointer();
    // Nothing of this object is touched after the last one was let go: in a ring of references that
    // may have destroyed this object as well.
    if (pointer == nullptr)
        return;
    m_pointer = pointer;
    if (m_deleter != nullptr)
        m_deleter->pointerAdded(pointer);
}

template <typename TypeName>
void TAutomaticPointer<TypeName>::freePointer() {
    TypeName *const pointer = std::exchange(m_pointer, nullptr);
    if (pointer == nullptr)
        return;
    if (m_deleter != nullptr)
        m_deleter->deletePointer(pointer);
    else
        delete pointer;
}

}  // namespace Tessitor::Collections
