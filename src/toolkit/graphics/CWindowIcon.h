#pragma once

#include "foundation/CSystemString.h"

namespace Tessitor::GUI::Graphics {

/// The icon of a window. [gui thread]
class CWindowIcon : public Tessitor::Basics::CCountedObject {
public:
    explicit CWindowIcon(int resource);  ///< see loadNativeIcon()
    /// @param handle  a native icon, which now belongs to this object; null for none.
    explicit CWindowIcon(void *handle);
    /// @param index  of the icon in the file.
    CWindowIcon(const Tessitor::Basics::CSystemString &path, int index);
    CWindowIcon(const CWindowIcon &) = delete;
    CWindowIcon &operator=(const CWindowIcon &) = delete;
    ~CWindowIcon() override;
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    /// Destroys the old icon. The new one belongs to this object.
    void setIcon(void *handle);
    void *getIcon() const { return m_handle; }  ///< null if there is none

private:
    static Tessitor::Basics::TClassRecord<CWindowIcon> s_class;

    void *m_handle;
};

}  // namespace Tessitor::GUI::Graphics
