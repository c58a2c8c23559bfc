#pragma once

#include "foundation/CClass.h"

namespace Tessitor::Basics {

/// The class record that each class of the library owns.
///
///     // CPoint.h
///     class CPoint : public Basics::CCountedObject {
///     public:
///         CPoint() { s_class.incrementInstanceCount(); }  // in every constructor
///         ~CPoint() override { s_class.decrementInstanceCount(); }
///         Basics::CClass &getClass() const override { return s_class; }
///
///     private:
///         static Basics::TClassRecord<CPoint> s_class;
///     };
///
///     // CPoint.cpp
///     Basics::TClassRecord<CPoint> CPoint::s_class("CPoint", "CCountedObject");
///
/// A template has a record per instantiation, defined below the class:
///
///     template <typename TypeName>
///     Basics::TClassRecord<TList<TypeName>> TList<TypeName>::s_class(
///         "TList<TypeName>", typeid(TypeName), "CCountedObject");
///
/// Static objects of different files are constructed and destroyed in no fixed order, so an
/// instance may be constructed before its record and outlive it. The counts are therefore kept
/// outside the record: they exist before the first constructor of the program runs and are never
/// destroyed. Instances may be created and destroyed on several threads at once: a host may draw
/// the editor of one effect while it creates another.
template <typename Owner>
class TClassRecord : public CClass {
public:
    /// @param names  the arguments of any constructor of CClass.
    template <typename... Names>
    explicit TClassRecord(const Names &...names) : CClass(names...) {
        countIn(s_counts);
    }
    TClassRecord(const TClassRecord &) = delete;
    TClassRecord &operator=(const TClassRecord &) = delete;

    static void incrementInstanceCount() { s_counts.increment(); }
    static void decrementInstanceCount() { s_counts.decrement(); }

private:
    static constinit inline SInstanceCounts s_counts;
};

}  // namespace Tessitor::Basics
