#pragma once

#include "foundation/CClass.h"

namespace Tessitor::Basics {

/// The record that a class of the library owns.
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
/// Static objects are built and destroyed in an order that nothing controls, so instances come
/// before their record and go after it. The counts therefore stand apart from it: they are there
/// before the first constructor of the program runs and are never destroyed, and counting, which is
/// static, does not touch the record. It is two plain increments, so a class counts its instances
/// on one thread at a time: code that runs beside the gui, the audio path above all, makes none.
template <typename Owner>
class TClassRecord : public CClass {
public:
    /// @param names  those of any constructor of CClass.
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
