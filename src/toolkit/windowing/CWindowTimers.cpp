// The timers of a window.
#include "foundation/CException.h"
#include "toolkit/windowing/CWindow.h"

#include <vector>

namespace Tessitor::GUI::Windowing {

namespace {

/// Calls visit(object) for each timed object. Objects that it removes are left out.
template <typename Visit>
void forEachTimedObject(SWindowParts &parts, Visit visit) {
    std::vector<ITimedObject *> objects;
    for (int i = 0; i < parts.timedObjects.getArraySize(); ++i)
        if (ITimedObject *object = parts.timedObjects.elementAtIndex(i))
            objects.push_back(object);
    for (ITimedObject *object : objects)
        if (parts.timedObjects.isPointerInArray(object))
            visit(*object);
}

}  // namespace

void CWindow::timerEvent(long id) {
    const std::shared_ptr<SWindowParts> held = m_parts;  // an object may delete the window
    forEachTimedObject(*held, [id](ITimedObject &object) {
        if (object.getTimerId() == id)
            object.timerFired();
    });
}

void CWindow::startTimer(long id, long milliseconds) {
    if (id == 0)
        throw Exceptions::CException("Timer id's cannot be zero on Windows platforms",
                                     "CWindow::startTimer(const long, const long)", true);
    if (isCreated())
        m_native->startTimer(static_cast<int>(id), static_cast<int>(milliseconds));
}

void CWindow::stopTimer(long id) {
    if (isCreated() && hasTimedObject(id))
        m_native->stopTimer(static_cast<int>(id));
}

bool CWindow::hasTimedObject(long id) const {
    for (int i = 0; i < m_parts->timedObjects.getArraySize(); ++i) {
        const ITimedObject *object = m_parts->timedObjects.elementAtIndex(i);
        if (object != nullptr && object->getTimerId() == id)
            return true;
    }
    return false;
}

void CWindow::addTimedObject(ITimedObject *object) {
    if (object != nullptr)
        m_parts->timedObjects.addElement(object);
}

void CWindow::removeTimedObject(ITimedObject *object) {
    if (object == nullptr || !m_parts->timedObjects.isPointerInArray(object))
        return;
    stopTimer(object->getTimerId());
    m_parts->timedObjects.deletePointerAtIndex(m_parts->timedObjects.getIndexOfPointer(object));
    m_parts->timedObjects.compactArray(true);
}

void CWindow::stopAllTimers() {
    forEachTimedObject(*m_parts, [this](const ITimedObject &object) {
        if (isCreated())
            m_native->stopTimer(static_cast<int>(object.getTimerId()));
    });
    m_parts->timedObjects.clearArray();
}

}  // namespace Tessitor::GUI::Windowing
