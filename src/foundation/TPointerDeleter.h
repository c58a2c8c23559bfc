#pragma once

#include "foundation/CCountedObject.h"

#include <cstddef>
#include <new>

namespace Tessitor::Collections {

/// Decides who owns the elements of a container. The container does not own its deleter, which must
/// outlive it. Null pointers are ignored.
template <typename TypeName>
class TPointerDeleter : public Basics::CCountedObject {
public:
    TPointerDeleter() { s_class.incrementInstanceCount(); }
    ~TPointerDeleter() override { s_class.decrementInstanceCount(); }
    Basics::CClass &getClass() const override { return s_class; }

    virtual void pointerAdded(TypeName *pointer) = 0;   ///< a container has added it
    virtual void deletePointer(TypeName *pointer) = 0;  ///< a container releases it

private:
    static Basics::TClassRecord<TPointerDeleter> s_class;
};

/// The container owns its elements: a released element is deleted.
template <typename TypeName>
class TObjectDeleter : public TPointerDeleter<TypeName> {
public:
    TObjectDeleter() { s_class.incrementInstanceCount(); }
    ~TObjectDeleter() override { s_class.decrementInstanceCount(); }
    Basics::CClass &getClass() const override { return s_class; }

    void pointerAdded(TypeName *) override {}
    void deletePointer(TypeName *pointer) override { delete pointer; }

    /// @return the deleter that all containers of this type share.
    static TObjectDeleter *getStaticDeleter();

private:
    static Basics::TClassRecord<TObjectDeleter> s_class;
};

/// The container does not own its elements: releasing one does nothing.
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

/// The container shares its elements and holds one reference to each.
template <typename TypeName>
class TCountedObjectDeleter : public TPointerDeleter<TypeName> {
public:
    TCountedObjectDeleter() { s_class.incrementInstanceCount(); }
    ~TCountedObjectDeleter() override { s_class.decrementInstanceCount(); }
    Basics::CClass &getClass() const override { return s_class; }

    void pointerAdded(TypeName *pointer) override;
    void deletePointer(TypeName *pointer) override;

    /// @return the deleter that all containers of this type share.
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

/// @return the shared deleter of this type, constructed by the first call. It is never destroyed:
///         static objects may use or create containers until the program ends.
template <typename Deleter>
Deleter *sharedDeleter() {
    // Not on the heap: a plug-in that is unloaded would leak it.
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
