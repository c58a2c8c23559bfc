#pragma once

#include <cstdint>

namespace Tessitor::Basics {

class CClass;

/// The interface of every object of the library. Whoever keeps an object calls reference(), and
/// dereference() when done with it.
class ICountedObject {
public:
    virtual ~ICountedObject() = default;

    virtual void reference() = 0;
    /// Destroys the object when its count falls below 1, even if it was never referenced.
    virtual void dereference() = 0;
    virtual std::int32_t getReferenceCount() const = 0;

    /// Writes a text about the object, cut to fit; the rest is zeroed. A text of `size` bytes or
    /// more may fill the array without a terminator.
    /// @param array  `size` bytes; null, or a size below 1, is ignored.
    virtual void getObjectDescription(char *array, long size) const = 0;

    /// @return the one static record of the object's class.
    virtual CClass &getClass() const = 0;
};

}  // namespace Tessitor::Basics
