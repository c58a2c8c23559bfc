#pragma once

#include "foundation/TRealNumber.h"

namespace Tessitor::Basics {

/// A single-precision number as an object.
class CFloat : public TRealNumber<CFloat, float> {
public:
    CFloat(float value = 0);
    CFloat(const CFloat &other);
    ~CFloat() override { s_class.decrementInstanceCount(); }
    CClass &getClass() const override { return s_class; }

    CFloat &operator=(const CFloat &other) = default;

private:
    static TClassRecord<CFloat> s_class;
};

}  // namespace Tessitor::Basics
