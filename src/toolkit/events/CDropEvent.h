#pragma once

#include "foundation/CPoint.h"
#include "foundation/CString.h"
#include "foundation/TCountedPointerArray.h"

namespace Tessitor::GUI::Events {

/// Files that were dropped. [gui thread]
class CDropEvent : public Tessitor::Basics::CCountedObject {
public:
    using NameList = Collections::TCountedPointerArray<Tessitor::Basics::CString>;

    /// @param position  relative to whoever receives the event.
    explicit CDropEvent(const MathTools::CPoint &position) : m_position(position) {
        s_class.incrementInstanceCount();
    }
    /// The same files at another position. The two events share the names.
    CDropEvent(const CDropEvent &other, const MathTools::CPoint &position);
    CDropEvent(const CDropEvent &) = delete;
    CDropEvent &operator=(const CDropEvent &) = delete;
    ~CDropEvent() override { s_class.decrementInstanceCount(); }
    Tessitor::Basics::CClass &getClass() const override { return s_class; }

    void addFilename(Tessitor::Basics::CString *name);  ///< holds a reference; null is ignored
    const NameList &getFilenames() const { return m_filenames; }
    /// @return null unless 0 <= index < number of files.
    const Tessitor::Basics::CString *getFilename(int index) const;
    int getNumberOfFiles() const { return m_filenames.getInsertIndex(); }

    const MathTools::CPoint &getPosition() const { return m_position; }

private:
    static Tessitor::Basics::TClassRecord<CDropEvent> s_class;

    NameList m_filenames;
    MathTools::CPoint m_position;
};

}  // namespace Tessitor::GUI::Events
