#include "toolkit/windowing/CVstWindow.h"

#include "foundation/CException.h"
#include "foundation/CaughtException.h"
#include "foundation/ExceptionFence.h"
#include "foundation/Trace.h"
#include "hostlayer/AudioEffect.h"
#include "platform/NativeThread.h"

namespace Tessitor::Vst {

using MathTools::CRect;

namespace {

constexpr char nameOfOpen[] = "CVSTPanel::open(void *)";  // kept: another name than the class has
constexpr Exceptions::SFence initialising{
    "Caught an exception whilst initialising window. Further details below:\n\n",
    "Caught unknown exception whilst initialising window", nameOfOpen};

}  // namespace

CVstWindow::CVstWindow(AudioEffect *owner, const CRect &area,
                       const GUI::Windowing::CWindowAttributes &attributes)
    : AEffEditor(owner), CWindow(area), m_creator(numberNativeThread()),
      m_pendingValues(owner != nullptr ? owner->getAeffect()->numParams : 0) {
    constexpr std::uint32_t visibleChild = 0x50000000, acceptsFiles = 16;
    *getWindowAttributes() = attributes;
    getWindowAttributes()->setWindowStyles(visibleChild, acceptsFiles);
    if (effect != nullptr)
        effect->setEditor(this);
}

CVstWindow::~CVstWindow() {
    CVstWindow::detachFromParent();
}

bool CVstWindow::getRect(ERect **rect) {
    m_rect = {0, 0, static_cast<std::int16_t>(getWindowSize().getHeight()),
              static_cast<std::int16_t>(getWindowSize().getWidth())};
    *rect = &m_rect;
    return true;
}

bool CVstWindow::open(void *parent) {
    IO::trace("Calling create window");
    const std::lock_guard lock(m_mutex);
    attachToParent(parent);
    m_guiThread = numberNativeThread();
    showPendingValues();
    try {
        Exceptions::fenced(initialising, [this] { makeWindow(); });
    } catch (...) {
        close();
        throw;
    }
    return true;
}

void CVstWindow::attachToParent(void *parent) {
    if (parent == nullptr)
        throw Exceptions::CException("Parent window handle is NULL", nameOfOpen, true);
    detachFromParent();  // a host may move the editor to another parent without closing it
    systemWindow = parent;
    m_parent = std::make_unique<CParentWindow>(parent);
    setParentWindow(m_parent.get());
}

void CVstWindow::makeWindow() {
    setWindowAttributes(getWindowAttributes(), true);
}

void CVstWindow::close() {
    const std::lock_guard lock(m_mutex);
    detachFromParent();
    AEffEditor::close();
    m_guiThread = noThread;
}

void CVstWindow::detachFromParent() {
    setParentWindow(nullptr);
    m_parent.reset();
    destroyWindow();
    uninitialiseWindow();
}

void CVstWindow::idle() {
    if (isOpenOnAnotherThread() || !pumpWindow())
        return;
    const std::unique_lock lock(m_mutex, std::try_to_lock);
    if (!lock.owns_lock() || isOpenOnAnotherThread())
        return;
    showPendingValues();
    handleIdle();
}

// Parameters

void CVstWindow::handleParameterChange(long id, double value) {
    if (isOpenOnThisThread())
        showAtOnce(id, value);
    else if (!showWhileClosed(id, value))
        m_pendingValues.put(id);
}

bool CVstWindow::showWhileClosed(long id, double value) {
    if (m_guiThread != noThread || m_creator == noThread || nativeThreadNumber() != m_creator)
        return false;
    const std::unique_lock lock(m_mutex, std::try_to_lock);
    if (!lock.owns_lock() || m_guiThread != noThread)
        return false;
    showAtOnce(id, value);
    return true;
}

bool CVstWindow::isOpenOnThisThread() const {
    return m_guiThread != noThread && m_guiThread == nativeThreadNumber();
}

bool CVstWindow::isOpenOnAnotherThread() const {
    return m_guiThread != noThread && m_guiThread != nativeThreadNumber();
}

void CVstWindow::showAtOnce(long id, double value) {
    if (!getIsEditing())
        show(id, value);
}

// The host waits for this call, and cannot catch what a control throws.
void CVstWindow::show(long id, double value) {
    try {
        setParameter(id, value);
    } catch (...) {
        Exceptions::traceCaughtException("Caught an exception whilst showing a parameter");
    }
}

void CVstWindow::showPendingValues() {
    m_pendingValues.take([this](long id) { show(id, effect->getParameter(static_cast<int>(id))); });
}

void CVstWindow::redrawWindow() {
    if (!getIsEditing())
        CWindow::redrawWindow();
}

void CVstWindow::redrawWindow(const CRect &area) {
    if (!getIsEditing())
        CWindow::redrawWindow(area);
}

bool CVstWindow::handleKeyDown(const GUI::Events::CKeyboardEvent &event) {
    return getControlRoot()->handleKeyDown(event);
}

bool CVstWindow::handleKeyUp(const GUI::Events::CKeyboardEvent &event) {
    return getControlRoot()->handleKeyUp(event);
}

CVstWindow::CParentWindow::CParentWindow(void *handle) : CWindow(CRect(0, 0, 10, 10)) {
    getMutableWindowHandle()->native = handle;
}

}  // namespace Tessitor::Vst
