#pragma once

#include "foundation/TRealNumber.h"

namespace Tessitor::Basics {

/// A double-precision number as an object.
class CDouble : public TRealNumber<CDouble, double> {
public:
    CDouble(double value = 0);
    CDouble(const CDouble &other);
    ~CDouble() override { s_class.decrementInstanceCount(); }
    CClass &getClass() const override { return s_class; }

    CDouble &operator=(const CDouble &other) = default;

private:
    static TClassRecord<CDouble> s_class;
};

}  // namespace Tessitor::Basics
