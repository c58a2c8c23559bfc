#include "platform/windowing/CTestUser.h"

#include "platform/linux/windowing/CTestClient.h"
#include "platform/linux/windowing/WindowIds.h"
#include "platform/linux/windowing/connection/CXcbConnection.h"
#include "platform/linux/windowing/keyboard/CXcbKeyboard.h"

#include <stdexcept>

struct CTestUser::SSystem {
    CTestClient client;

    void typeKey(CTestHost &host, const INativeTextField &field, xcb_keysym_t key) {
        const auto connection = CXcbConnection::find(idOf(field.getHandle()));
        const bool hasKeyboard = host.pumpUntil([&] {
            return connection && connection->keyboard().getFocus() == idOf(field.getHandle());
        });
        if (!hasKeyboard)
            throw std::runtime_error("The field has not taken the keyboard.");
        client.typeKey(key);
        pumpAll(client);
    }
};

CTestUser::CTestUser(CTestHost &host) : m_host(host), m_system(std::make_unique<SSystem>()) {}

CTestUser::~CTestUser() = default;

void CTestUser::type(const INativeTextField &field, const char *text) {
    for (; *text != '\0'; ++text)
        m_system->typeKey(m_host, field, static_cast<xcb_keysym_t>(*text));
}

void CTestUser::pressReturn(const INativeTextField &field) {
    m_system->typeKey(m_host, field, 0xFF0D);
}

void CTestUser::pressEscape(const INativeTextField &field) {
    m_system->typeKey(m_host, field, 0xFF1B);
}

void CTestUser::goTo(void *window) {
    m_system->client.focus(idOf(window));
    pumpAll(m_system->client);
}

SNativeRect CTestUser::screenAreaOf(const INativeTextField &field) {
    return m_system->client.areaOf(idOf(field.getHandle()));
}

std::uint32_t CTestUser::pixelOf(const INativeTextField &field, int x, int y) {
    return m_system->client.pixelOf(idOf(field.getHandle()), x, y);
}
