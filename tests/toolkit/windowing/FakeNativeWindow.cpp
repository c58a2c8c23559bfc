#include "FakeNativeWindow.h"

#include "platform/NativeIcon.h"

namespace {

void note(const std::string &what) {
    fakeNatives().log.push_back(what);
}

std::string textOf(const SNativeRect &rect) {
    return std::to_string(rect.left) + "," + std::to_string(rect.top) + "," +
           std::to_string(rect.right) + "," + std::to_string(rect.bottom);
}

}  // namespace

SFakeNatives &fakeNatives() {
    static SFakeNatives natives;
    return natives;
}

CFakeNativeWindow::CFakeNativeWindow(const SNativeWindowOptions &windowOptions,
                                     INativeWindowListener &windowListener)
    : options(windowOptions), listener(windowListener) {
    fakeNatives().windows.push_back(this);
}

CFakeNativeWindow::~CFakeNativeWindow() {
    note("destroy");
    if (fakeNatives().onDestroy)
        fakeNatives().onDestroy(listener);
    std::erase(fakeNatives().windows, this);
}

void *CFakeNativeWindow::getHandle() const {
    return const_cast<CFakeNativeWindow *>(this);
}

void CFakeNativeWindow::show() {
    change("show");
}

void CFakeNativeWindow::hide() {
    change("hide");
}

void CFakeNativeWindow::enable(bool isEnabled) {
    note(isEnabled ? "enable" : "disable");
}

void CFakeNativeWindow::bringToFront() {
    note("bring to front");
}

void CFakeNativeWindow::setTitle(const std::string &title) {
    note("title " + title);
}

void CFakeNativeWindow::setAlpha(std::uint8_t alpha) {
    note("alpha " + std::to_string(alpha));
}

void CFakeNativeWindow::move(SNativePoint position) {
    change("move " + std::to_string(position.x) + "," + std::to_string(position.y));
}

void CFakeNativeWindow::moveAndResize(const SNativeRect &bounds) {
    change("place " + textOf(bounds));
}

void CFakeNativeWindow::change(const std::string &what) {
    note(what);
    if (fakeNatives().onChange)
        fakeNatives().onChange(listener);
}

void CFakeNativeWindow::invalidate(const SNativeRect &area) {
    note("invalidate " + textOf(area));
}

void CFakeNativeWindow::update() {
    note("update");
}

void CFakeNativeWindow::paint(const PaintCallback &callback) {
    INativeSurface &screen = *fakeNatives().screen;
    callback(screen, SNativeRect(dirty));
}

bool CFakeNativeWindow::startTimer(int id, int milliseconds) {
    note("start timer " + std::to_string(id) + " " + std::to_string(milliseconds));
    return true;
}

void CFakeNativeWindow::stopTimer(int id) {
    note("stop timer " + std::to_string(id));
}

void CFakeNativeWindow::pump() {
    note("pump");
    if (fakeNatives().onPump)
        fakeNatives().onPump(listener);
}

void CFakeNativeWindow::trackMouseLeave() {
    note("track leave");
}

void CFakeNativeWindow::hookWheel() {
    note("hook");
}

void CFakeNativeWindow::unhookWheel() {
    note("unhook");
}

std::unique_ptr<INativeWindow> createNativeWindow(const SNativeWindowOptions &options,
                                                  INativeWindowListener &listener,
                                                  std::string &reason) {
    fakeNatives().lastOptions = options;
    note("create");
    if (fakeNatives().refusesWindows) {
        reason = fakeNatives().reason;
        return nullptr;
    }
    auto window = std::make_unique<CFakeNativeWindow>(options, listener);
    if (fakeNatives().onCreate)
        fakeNatives().onCreate(listener);
    return window;
}

SNativeModifiers nativeModifierKeys() {
    return fakeNatives().modifiers;
}

SNativeCharacter nativeCharacterOf(std::uintptr_t, std::intptr_t) {
    return fakeNatives().character;
}

SNativeDrop readNativeDrop(std::uintptr_t wParam) {
    note("read drop " + std::to_string(wParam));
    return fakeNatives().drop;
}

void finishNativeDrop(std::uintptr_t wParam) {
    note("finish drop " + std::to_string(wParam));
}

void *loadNativeIcon(int) {
    return nullptr;
}

void *loadNativeIcon(const std::string &, int) {
    return nullptr;
}

void destroyNativeIcon(void *) {}
