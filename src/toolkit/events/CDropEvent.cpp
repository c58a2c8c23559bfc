#include "toolkit/events/CDropEvent.h"

namespace Tessitor::GUI::Events {

using Tessitor::Basics::CString;

Tessitor::Basics::TClassRecord<CDropEvent> CDropEvent::s_class("CDropEvent", "CCountedObject");

CDropEvent::CDropEvent(const CDropEvent &other, const MathTools::CPoint &position)
    : CDropEvent(position) {
    for (int i = 0; i < other.getNumberOfFiles(); ++i)
        m_filenames.addElement(other.m_filenames.elementAtIndex(i));
}

void CDropEvent::addFilename(CString *name) {
    if (name != nullptr)
        m_filenames.addElement(name);
}

const CString *CDropEvent::getFilename(int index) const {
    return m_filenames.elementAtIndex(index);
}

}  // namespace Tessitor::GUI::Events
