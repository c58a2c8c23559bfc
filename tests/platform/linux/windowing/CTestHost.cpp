#include "platform/windowing/CTestHost.h"

#include "platform/linux/CVirtualDisplay.h"
#include "platform/linux/windowing/CTestClient.h"
#include "platform/linux/windowing/WindowIds.h"

struct CTestHost::SSystem {
    CVirtualDisplay display = CVirtualDisplay("640x480x24");
    CTestClient client;
};

CTestHost::CTestHost() : m_system(std::make_unique<SSystem>()) {}

CTestHost::~CTestHost() = default;

void *CTestHost::createWindow() {
    return handleOf(m_system->client.createWindow({50, 60, 350, 260}));
}

void CTestHost::destroyWindow(void *window) {
    m_system->client.destroyWindow(idOf(window));
}

bool CTestHost::pumpUntil(const std::function<bool()> &isMet) {
    return ::pumpUntil(isMet);
}
