#pragma once

#include "foundation/CCountedObject.h"

/// Sets a flag when it is destroyed.
class CWatchedObject : public Tessitor::Basics::CCountedObject {
public:
    explicit CWatchedObject(bool &destroyed) : m_destroyed(destroyed) {
        s_class.incrementInstanceCount();
    }
    ~CWatchedObject() override {
        m_destroyed = true;
        s_class.decrementInstanceCount();
    }
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

private:
    static inline Tessitor::Basics::TClassRecord<CWatchedObject> s_class{"CWatchedObject",
                                                                         "CCountedObject"};

    bool &m_destroyed;
};

/// A copy, made by the copy constructor.
template <typename Object>
Object copyOf(const Object &object) {
    return object;
}
