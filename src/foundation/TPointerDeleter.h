#pragma once

#include "foundation/CCountedObject.h"

#include <cstddef>
#include <new>

namespace Tessitor::Collections {

/// Decides who owns what a container points to. The container does not own its deleter, which must
/// outlive it. Null pointers may come and are ignored.
template <typename TypeName>
class TPointerDeleter : public Basics::CCountedObject {
public:
    TPointerDeleter() { s_class.incrementInstanceCount(); }
    ~TPointerDeleter() override { s_class.decrementInstanceCount(); }
    Basics::CClass &getClass() const override { return s_class; }

    virtual void pointerAdded(TypeName *pointer) = 0;   ///< a container took the pointer
    virtual void deletePointer(TypeName *pointer) = 0;  ///< a container lets the pointer go

private:
    static Basics::TClassRecord<TPointerDeleter> s_class;
};

/// Owns: what a container lets go is deleted.
template <typename TypeName>
class TObjectDeleter : public TPointerDeleter<TypeName> {
public:
    TObjectDeleter() { s_class.incrementInstanceCount(); }
    ~TObjectDeleter() override { s_class.decrementInstanceCount(); }
    Basics::CClass &getClass() const override { return s_class; }

    void pointerAdded(TypeName *) override {}
    void deletePointer(TypeName *pointer) override { delete pointer; }

    /// @return the one of this type that containers share.
    static TObjectDeleter *getStaticDeleter();

private:
    static Basics::TClassRecord<TObjectDeleter> s_class;
};

/// Owns nothing: a plain list of what others own.
template <typename TypeName>
class TObjectNuller : public TPointerDeleter<TypeName> {
public:
    TObjectNuller() { s_class.incrementInstanceCount(); }
    ~TObjectNuller() override { s_class.decrementInstanceCount(); }
    Basics::CClass &getClass() const override { return s_class; }

    void pointerAdded(TypeName *) override {}
    void deletePointer(TypeName *) override {}

private:
    static Basics::TClassRecord<TObjectNuller> s_class;
};

/// Shares: a container holds one reference on each of its counted objects.
template <typename TypeName>
class TCountedObjectDeleter : public TPointerDeleter<TypeName> {
public:
    TCountedObjectDeleter() { s_class.incrementInstanceCount(); }
    ~TCountedObjectDeleter() override { s_class.decrementInstanceCount(); }
    Basics::CClass &getClass() const override { return s_class; }

    void pointerAdded(TypeName *pointer) override;
    void deletePointer(TypeName *pointer) override;

    /// @return the one of this type that containers share.
    static TCountedObjectDeleter *getStaticDeleter();

private:
    static Basics::TClassRecord<TCountedObjectDeleter> s_class;
};

// Definitions
template <typename TypeName>
Basics::TClassRecord<TPointerDeleter<TypeName>>
    TPointerDeleter<TypeName>::s_class("TPointerDeleter<TypeName>", typeid(TypeName),
                                       "CCountedObject");

template <typename TypeName>
Basics::TClassRecord<TObjectDeleter<TypeName>>
    TObjectDeleter<TypeName>::s_class("TObjectDeleter<TypeName>", typeid(TypeName),
                                      "TPointerDeleter<TypeName>", typeid(TypeName));

template <typename TypeName>
Basics::TClassRecord<TObjectNuller<TypeName>>
    TObjectNuller<TypeName>::s_class("TObjectNuller<TypeName>", typeid(TypeName),
                                     "TPointerDeleter<TypeName>", typeid(TypeName));

template <typename TypeName>
Basics::TClassRecord<TCountedObjectDeleter<TypeName>>
    TCountedObjectDeleter<TypeName>::s_class("TCountedObjectDeleter<TypeName>", typeid(TypeName),
                                             "TPointerDeleter<TypeName>", typeid(TypeName));

/// @return the shared deleter of this type, made at the first call and never destroyed: at the end
///         of the program a static object may still have a container, or make one.
template <typename Deleter>
Deleter *sharedDeleter() {
    // Not on the heap, where each unloading of a plug-in would leak one.
    alignas(Deleter) static std::byte memory[sizeof(Deleter)];
    static Deleter *const deleter = new (memory) Deleter;
    return deleter;
}

template <typename TypeName>
TObjectDeleter<TypeName> *TObjectDeleter<TypeName>::getStaticDeleter() {
    return sharedDeleter<TObjectDeleter>();
}

template <typename TypeName>
TCountedObjectDeleter<TypeName> *TCountedObjectDeleter<TypeName>::getStaticDeleter() {
    return sharedDeleter<TCountedObjectDeleter>();
}

template <typename TypeName>
void TCountedObjectDeleter<TypeName>::pointerAdded(TypeName *pointer) {
    if (pointer != nullptr)
        pointer->reference();
}

template <typename TypeName>
void TCountedObjectDeleter<TypeName>::deletePointer(TypeName *pointer) {
    if (pointer != nullptr)
        pointer->dereference();
}

}  // namespace Tessitor::Collections
