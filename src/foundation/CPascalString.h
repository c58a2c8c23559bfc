#pragma once

#include "foundation/CCountedObject.h"

#include <memory>

namespace Tessitor::Basics {

/// A copy of a text for interfaces that want its length in front: one byte of length, the text, a
/// terminator. A text of 256 bytes or more wraps in the length byte.
///
/// The block has the size that is asked for, and 2 bytes if that is less. A text that does not fit
/// with its length and terminator is cut, and the length is that of what was kept.
class CPascalString : public CCountedObject {
public:
    /// @param text  not null.
    /// @param size  bytes of the block.
    CPascalString(const char *text, long size);
    CPascalString(const CPascalString &) = delete;
    CPascalString &operator=(const CPascalString &) = delete;
    ~CPascalString() override { s_class.decrementInstanceCount(); }
    CClass &getClass() const override { return s_class; }

    /// Replaces the block; parameters as for construction. The text may lie in the old block.
    virtual void setString(const char *text, long size);
    /// The block, length byte first; owned by this object, valid until the next setString().
    virtual const unsigned char *getString() const { return m_block.get(); }

private:
    static TClassRecord<CPascalString> s_class;

    std::unique_ptr<unsigned char[]> m_block;
};

}  // namespace Tessitor::Basics
