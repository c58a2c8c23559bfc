#include "platform/win32/drawing/SmoothSession.h"

#include "platform/INativeSmoothDrawing.h"
#include "platform/win32/drawing/GdiplusObjects.h"

#include <atomic>

using namespace Gdiplus;

namespace {

std::atomic<int> openSessions = 0;

}  // namespace

bool isSmoothSessionOpen() {
    return openSessions > 0;
}

CNativeSmoothSession::CNativeSmoothSession() {
    static_assert(sizeof m_token == sizeof(ULONG_PTR));
    const GdiplusStartupInput input;  // version 1
    ULONG_PTR token = 0;
    m_isAvailable = GdiplusStartup(&token, &input, nullptr) == Ok;
    m_token = token;
    if (m_isAvailable)
        ++openSessions;
}

CNativeSmoothSession::~CNativeSmoothSession() {
    if (!m_isAvailable)
        return;
    --openSessions;
    GdiplusShutdown(m_token);
}
