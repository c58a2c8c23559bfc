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
    /// Takes the new one and lets the old one go, which may destroy whoever holds this object; null
    /// takes none, and the one that is held already stays.
    void setPointer(TypeName *pointer);
    void freePointer();

private:
    static void letGo(TypeName *pointer, TPointerDeleter<TypeName> *deleter);

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
    letGo(std::exchange(m_pointer, pointer), m_deleter);
}

template <typename TypeName>
void TAutomaticPointer<TypeName>::freePointer() {
    letGo(std::exchange(m_pointer, nullptr), m_deleter);
}

// Touches nothing of the object: in a ring of references the last one may take it along.
template <typename TypeName>
void TAutomaticPointer<TypeName>::letGo(TypeName *pointer, TPointerDeleter<TypeName> *deleter) {
    if (pointer == nullptr)
        return;
    if (deleter != nullptr)
        deleter->deletePointer(pointer);
    else
        delete pointer;
}

}  // namespace Tessitor::Collections
