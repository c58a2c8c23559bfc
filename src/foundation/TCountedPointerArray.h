#pragma once

#include "foundation/TPointerCollection.h"

namespace Tessitor::Collections {

/// A collection that holds one reference to each of its elements.
template <typename TypeName>
class TCountedPointerArray : public TPointerCollection<TypeName> {
public:
    TCountedPointerArray();
    ~TCountedPointerArray() override { s_class.decrementInstanceCount(); }
    Basics::CClass &getClass() const override { return s_class; }

private:
    static Basics::TClassRecord<TCountedPointerArray> s_class;
};

// Definitions
template <typename TypeName>
Basics::TClassRecord<TCountedPointerArray<TypeName>>
    TCountedPointerArray<TypeName>::s_class("TCountedPointerArray<TypeName>", typeid(TypeName),
                                            "TPointerCollection<TypeName>", typeid(TypeName));

template <typename TypeName>
TCountedPointerArray<TypeName>::TCountedPointerArray()
    : TPointerCollection<TypeName>(TCountedObjectDeleter<TypeName>::getStaticDeleter()) {
    s_class.incrementInstanceCount();
}

}  // namespace Tessitor::Collections
