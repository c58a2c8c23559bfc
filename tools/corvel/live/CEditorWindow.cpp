#include "corvel/live/CEditorWindow.h"

#include "corvel/console/Errors.h"
#include "corvel/console/Printable.h"
#include "platform/NativeScreen.h"

namespace Tessitor::Tool {

namespace {

constexpr std::uint32_t fixedSizeWindow = 0xCA0000;  // caption, menu and minimize box
constexpr auto idleInterval = std::chrono::milliseconds(25);

struct SSize {
    std::int32_t width, height;
};

// Some effects know their size only while the editor is open.
std::optional<SSize> editorSize(CEffectInstance &effect) {
    ERect *bounds = nullptr;
    effect.dispatch(effEditGetRect, 0, 0, &bounds);
    if (bounds == nullptr || bounds->right <= bounds->left || bounds->bottom <= bounds->top)
        return std::nullopt;
    return SSize{bounds->right - bounds->left, bounds->bottom - bounds->top};
}

SNativeRect inMiddleOfScreen(SSize size) {
    const SNativeRect screen = nativeVirtualScreen();
    const std::int32_t left = (screen.left + screen.right - size.width) / 2;
    const std::int32_t top = (screen.top + screen.bottom - size.height) / 2;
    return {left, top, left + size.width, top + size.height};
}

// Names may be in any encoding.
std::string titleOf(CEffectInstance &effect) {
    std::string name = effect.text(effGetEffectName);
    if (name.empty())
        name = std::filesystem::path(effect.fileName()).stem().string();
    const std::string program = effect.text(effGetProgramName);
    return printable(program.empty() ? name : name + ": " + program);
}

}  // namespace

void requireEditor(const CEffectInstance &effect) {
    if (!effect.has(effFlagsHasEditor))
        throw CCallError("--editor: " + effect.fileName() + " has no editor");
}

CEditorWindow::CEditorWindow(CEffectInstance &effect) : m_effect(effect), m_title(titleOf(effect)) {
    createWindow();
    openEditor();
    m_window->show();
    m_window->bringToFront();
}

CEditorWindow::~CEditorWindow() {
    m_effect.setEditorHost(nullptr);
    if (m_isOpen)
        m_effect.dispatch(effEditClose);
}

void CEditorWindow::createWindow() {
    SNativeWindowOptions options;
    options.className = "corvel";
    options.title = m_title;
    options.style = fixedSizeWindow;
    options.bounds = inMiddleOfScreen(editorSize(m_effect).value_or(SSize{400, 300}));
    std::string reason;
    m_window = createNativeWindow(options, *this, reason);
    if (m_window == nullptr)
        throw CJobError("the editor cannot be opened" + (reason.empty() ? "" : ": " + reason));
}

void CEditorWindow::openEditor() {
    m_effect.setEditorHost(this);
    m_effect.dispatch(effEditOpen, 0, 0, m_window->getHandle());
    m_isOpen = true;
    if (const auto size = editorSize(m_effect))
        resizeEditor(size->width, size->height);
}

void CEditorWindow::pump() {
    m_window->pump();
    const auto now = std::chrono::steady_clock::now();
    if (m_isClosed || now < m_nextIdle)
        return;
    m_nextIdle = now + idleInterval;
    m_effect.dispatch(effEditIdle);
    updateTitle();
}

// The program may also change in the editor.
void CEditorWindow::updateTitle() {
    const std::string title = titleOf(m_effect);
    if (title == m_title)
        return;
    m_title = title;
    m_window->setTitle(title);
}

std::optional<std::intptr_t> CEditorWindow::handleMessage(unsigned message, std::uintptr_t,
                                                          std::intptr_t) {
    if (message != NativeClose)
        return std::nullopt;
    m_isClosed = true;  // the effect closes its editor before the window goes
    return 0;
}

void CEditorWindow::resizeEditor(std::int32_t width, std::int32_t height) {
    const SNativeRect area = m_window->getScreenArea();
    if (area.right - area.left == width && area.bottom - area.top == height)
        return;
    m_window->moveAndResize({area.left, area.top, area.left + width, area.top + height});
}

}  // namespace Tessitor::Tool
