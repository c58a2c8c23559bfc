#include "toolkit/graphics/CWindowIcon.h"

#include "platform/NativeIcon.h"

namespace Tessitor::GUI::Graphics {

Tessitor::Basics::TClassRecord<CWindowIcon> CWindowIcon::s_class("CWindowIcon", "CCountedObject");

CWindowIcon::CWindowIcon(int resource) : CWindowIcon(loadNativeIcon(resource)) {}

CWindowIcon::CWindowIcon(void *handle) : m_handle(handle) {
    s_class.incrementInstanceCount();
}

CWindowIcon::CWindowIcon(const Tessitor::Basics::CSystemString &path, int index)
    : CWindowIcon(loadNativeIcon(path.getString(), index)) {}

CWindowIcon::~CWindowIcon() {
    destroyNativeIcon(m_handle);
    s_class.decrementInstanceCount();
}

void CWindowIcon::setIcon(void *handle) {
    if (handle == m_handle)
        return;
    destroyNativeIcon(m_handle);
    m_handle = handle;
}

}  // namespace Tessitor::GUI::Graphics
