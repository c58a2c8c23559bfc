#pragma once

#include "foundation/CCountedObject.h"

#include <memory>

namespace Tessitor::Basics {

/// A copy of a text for interfaces that expect its length first: a length byte, the text and a
/// terminator. For a text of 256 bytes or more, the length byte wraps.
///
/// The block has the requested size, but at least 2 bytes. A text that does not fit is cut, and the
/// length byte is that of the cut text.
class CPascalString : public CCountedObject {
public:
    /// @param text  not null.
    /// @param size  bytes of the block.
    CPascalString(const char *text, long size);
    CPascalString(const CPascalString &) = delete;
    CPascalString &operator=(const CPascalString &) = delete;
    ~CPascalString() override { s_class.decrementInstanceCount(); }
    CClass &getClass() const override { return s_class; }

    /// Replaces the block. Parameters as in the constructor; the text may point into the old block.
    virtual void setString(const char *text, long size);
    /// The block, length byte first; owned by this object, valid until the next setString().
    virtual const unsigned char *getString() const { return m_block.get(); }

private:
    static TClassRecord<CPascalString> s_class;

    std::unique_ptr<unsigned char[]> m_block;
};

}  // namespace Tessitor::Basics
