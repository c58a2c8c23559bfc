// A hand test: shows every control of the toolkit. With "--editing", a text field is open.
// Prints "ready" when the window has been painted.
#include "CDemoWindow.h"
#include "foundation/CApplicationInformation.h"
#include "foundation/CException.h"
#include "platform/NativeModule.h"
#include "toolkit/events/ITimedObject.h"
#include "toolkit/graphics/CImageManager.h"

#include <cstdio>
#include <cstring>

using Tessitor::Basics::CApplicationInformation;
using Tessitor::GUI::Fonts::CFont;
using Tessitor::GUI::Graphics::CImageManager;
using namespace Tessitor::GUI::Windowing;

namespace {

/// Says once that all is to be seen.
class CReadyNotice : public ITimedObject {
public:
    explicit CReadyNotice(IWindow &window) : m_window(window) {
        m_window.addTimedObject(this);
        m_window.startTimer(getTimerId(), 500);
    }
    void timerFired() override {
        m_window.removeTimedObject(this);
        std::puts("ready");
        std::fflush(stdout);
    }
    std::int32_t getTimerId() const override { return 1; }

private:
    IWindow &m_window;
};

int runDemo(bool isEditing) {
    CDemoWindow window;
    CWindowAttributes attributes(EWindowKind::FixedSize);
    attributes.setWindowTitle("Controls");
    CApplicationInformation::setMainWindow(&window);
    window.setWindowAttributes(&attributes, true);
    if (isEditing)
        window.startEditing();
    CReadyNotice notice(window);
    return CApplicationInformation::runMessageLoop();
}

}  // namespace

int main(int argc, char **argv) {
    CApplicationInformation::setApplicationInformation("", "Demo", "", "", "", "",
                                                       nativeModuleHandle());
    CFont::createDefaultFont();
    CImageManager::start();
    int result = 1;
    try {
        result = runDemo(argc > 1 && std::strcmp(argv[1], "--editing") == 0);
    } catch (const Tessitor::Exceptions::CException &exception) {
        std::fprintf(stderr, "demo: %s\n", exception.getErrorReason().getString());
    }
    CImageManager::end();
    CFont::releaseDefaultFont();
    CApplicationInformation::destroyApplicationInformation();
    return result;
}
