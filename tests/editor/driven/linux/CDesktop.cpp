#include "editor/driven/CDesktop.h"

#include "platform/linux/CVirtualDisplay.h"
#include "platform/linux/windowing/CTestClient.h"
#include "platform/linux/windowing/CWindowManager.h"
#include "platform/linux/windowing/WindowIds.h"
#include "platform/linux/windowing/WindowProperty.h"

#include <filesystem>
#include <linux/sockios.h>
#include <sys/ioctl.h>
#include <utility>
#include <xcb/res.h>

namespace {

constexpr xcb_keysym_t spaceKey = ' ';
constexpr int leftButton = 1, wheelUp = 4, wheelDown = 5;

int countFiles(const char *folder) {
    return static_cast<int>(std::distance(std::filesystem::directory_iterator(folder), {}));
}

/// @return whether a socket of this process has bytes that the other side has not read.
bool hasUnreadRequests() {
    constexpr int first = STDERR_FILENO + 1, end = 256;
    for (int descriptor = first; descriptor < end; ++descriptor) {
        int unread = 0;
        if (ioctl(descriptor, SIOCOUTQ, &unread) == 0 && unread > 0)
            return true;
    }
    return false;
}

}  // namespace

struct CDesktop::SSystem {
    CVirtualDisplay display{"1024x900x24"};
    mutable CTestClient client;
    std::unique_ptr<CWindowManager> manager;
    std::map<xcb_window_t, int> keys;  // that a window has heard

    /// Waits until the server and the window manager have handled all that has happened.
    void synchronise() const {
        synchroniseWithServer();
        if (manager == nullptr)
            return;
        manager->synchronise(client);
        synchroniseWithServer();
    }
    /// Waits until the server has handled all that this process has asked for, and has sent what
    /// this led to. It serves its clients in any order, so round trips alone do not tell.
    void synchroniseWithServer() const {
        pumpUntil([this] {
            for (int i = 0; i < 4; ++i)
                client.synchronise();
            return !hasUnreadRequests();
        });
        client.synchronise();
        client.synchronise();
    }
    void readEvents() {
        while (const auto event = ownReply(xcb_poll_for_event(client.get())))
            if (typeOf(*event) == XCB_KEY_PRESS)
                ++keys[as<xcb_key_press_event_t>(*event).event];
    }
    std::vector<xcb_window_t> childrenOf(xcb_window_t window) const {
        const auto tree = ownReply(
            xcb_query_tree_reply(client.get(), xcb_query_tree(client.get(), window), nullptr));
        if (!tree)
            return {};
        const xcb_window_t *children = xcb_query_tree_children(tree.get());
        return {children, children + xcb_query_tree_children_length(tree.get())};
    }
    bool isMenu(xcb_window_t window) const {
        const auto attributes = ownReply(xcb_get_window_attributes_reply(
            client.get(), xcb_get_window_attributes(client.get(), window), nullptr));
        if (!attributes || attributes->map_state != XCB_MAP_STATE_VIEWABLE ||
            attributes->override_redirect == 0)
            return false;
        const std::vector<std::uint32_t> types = numbersOf(client, window, "_NET_WM_WINDOW_TYPE");
        return std::ranges::find(types, atomOf(client, "_NET_WM_WINDOW_TYPE_POPUP_MENU")) !=
               types.end();
    }
    std::vector<xcb_window_t> menus() const {
        std::vector<xcb_window_t> found = childrenOf(client.getScreen().root);
        std::erase_if(found, [this](xcb_window_t window) { return !isMenu(window); });
        return found;
    }
    CPicture pictureOf(xcb_window_t window, const SNativeRect &area) const {
        const int width = area.right - area.left, height = area.bottom - area.top;
        const auto image = ownReply(xcb_get_image_reply(
            client.get(),
            xcb_get_image(client.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, window,
                          static_cast<std::int16_t>(area.left), static_cast<std::int16_t>(area.top),
                          static_cast<std::uint16_t>(width), static_cast<std::uint16_t>(height),
                          0xFFFFFFFF),
            nullptr));
        if (!image)
            throw std::runtime_error("the window is not on the screen");
        CPicture picture(width, height);
        const std::uint8_t *bytes = xcb_get_image_data(image.get());
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x, bytes += 4)
                picture.at(x, y) =
                    std::uint32_t{bytes[2]} << 16 | std::uint32_t{bytes[1]} << 8 | bytes[0];
        return picture;
    }
    /// Adds what the server holds for one client to what it holds for the others.
    void addResourcesOf(const xcb_res_client_t &owner, Resources &resources) const {
        const auto reply = ownReply(xcb_res_query_client_resources_reply(
            client.get(), xcb_res_query_client_resources(client.get(), owner.resource_base),
            nullptr));
        const int kinds = reply ? xcb_res_query_client_resources_types_length(reply.get()) : 0;
        for (int i = 0; i < kinds; ++i) {
            const auto &kind = xcb_res_query_client_resources_types(reply.get())[i];
            resources["X resource " + std::to_string(kind.resource_type)] +=
                static_cast<int>(kind.count);
        }
    }
    xcb_window_t focus() const {
        const auto reply = ownReply(
            xcb_get_input_focus_reply(client.get(), xcb_get_input_focus(client.get()), nullptr));
        return reply ? reply->focus : XCB_NONE;
    }
};

std::vector<CDesktop::EWindowManager> CDesktop::windowManagers() {
    return {EWindowManager::None, EWindowManager::Some};
}

CDesktop::CDesktop(EWindowManager manager) : m_system(std::make_unique<SSystem>()) {
    if (manager == EWindowManager::Some)
        m_system->manager = std::make_unique<CWindowManager>(m_system->client);
}

CDesktop::~CDesktop() = default;

// The host

void *CDesktop::createHostWindow(const SNativeRect &area) {
    void *window = createHiddenHostWindow(area);
    showHostWindow(window, area);
    return window;
}

void *CDesktop::createHiddenHostWindow(const SNativeRect &area) {
    CTestClient &client = m_system->client;
    const xcb_window_t window = client.createWindow(area, 0, m_system->manager != nullptr);
    m_system->synchronise();  // or the window manager maps it after it was unmapped
    xcb_unmap_window(client.get(), window);
    constexpr std::uint32_t events = XCB_EVENT_MASK_KEY_PRESS;
    xcb_change_window_attributes(client.get(), window, XCB_CW_EVENT_MASK, &events);
    client.synchronise();
    return handleOf(window);
}

void CDesktop::showHostWindow(void *window, const SNativeRect &area) {
    CTestClient &client = m_system->client;
    const std::uint32_t values[] = {static_cast<std::uint32_t>(area.left),
                                    static_cast<std::uint32_t>(area.top),
                                    static_cast<std::uint32_t>(area.right - area.left),
                                    static_cast<std::uint32_t>(area.bottom - area.top)};
    xcb_configure_window(client.get(), idOf(window),
                         XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH |
                             XCB_CONFIG_WINDOW_HEIGHT,
                         values);
    xcb_map_window(client.get(), idOf(window));
    client.synchronise();
    m_system->synchronise();
    client.focus(idOf(window));
}

void CDesktop::moveHostWindow(void *window, SNativePoint position) {
    CTestClient &client = m_system->client;
    const std::uint32_t values[] = {static_cast<std::uint32_t>(position.x),
                                    static_cast<std::uint32_t>(position.y)};
    xcb_configure_window(client.get(), idOf(window), XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y,
                         values);
    client.synchronise();
}

void CDesktop::minimiseHostWindow(void *window) {
    CTestClient &client = m_system->client;
    if (m_system->manager != nullptr)
        CWindowManager::minimise(client, idOf(window));
    else
        xcb_unmap_window(client.get(), idOf(window));
    client.synchronise();
}

void CDesktop::destroyHostWindow(void *window) {
    m_system->client.destroyWindow(idOf(window));
}

SNativePoint CDesktop::originOf(void *window) const {
    const SNativeRect area = m_system->client.areaOf(idOf(window));
    return {area.left, area.top};
}

bool CDesktop::hasKeyboard(void *window) const {
    return m_system->focus() == idOf(window);
}

int CDesktop::takeKeys(void *window) {
    m_system->synchronise();
    m_system->readEvents();
    return std::exchange(m_system->keys[idOf(window)], 0);
}

// The user

void CDesktop::movePointer(SNativePoint position) {
    m_system->client.movePointer(position.x, position.y);
}

void CDesktop::press() {
    m_system->client.press(leftButton);
}

void CDesktop::release() {
    m_system->client.release(leftButton);
}

void CDesktop::turnWheel(int notches) {
    m_system->client.click(notches > 0 ? wheelUp : wheelDown, std::abs(notches));
}

void CDesktop::typeSpace() {
    m_system->client.typeKey(spaceKey);
}

void CDesktop::settle(const std::function<void()> &idle) {
    for (int i = 0; i < 3; ++i) {
        m_system->synchronise();
        idle();
    }
    m_system->synchronise();
}

// What can be seen

CPicture CDesktop::pictureOf(void *window, int width, int height) const {
    return m_system->pictureOf(idOf(window), {0, 0, width, height});
}

CPicture CDesktop::pictureOfScreen(const SNativeRect &area) const {
    return m_system->pictureOf(m_system->client.getScreen().root, area);
}

std::optional<SNativeRect> CDesktop::openMenu() const {
    const std::vector<xcb_window_t> menus = m_system->menus();
    if (menus.empty())
        return std::nullopt;
    return m_system->client.areaOf(menus.back());
}

int CDesktop::countMenus() const {
    return static_cast<int>(m_system->menus().size());
}

int CDesktop::countChildren(void *window) const {
    return static_cast<int>(m_system->childrenOf(idOf(window)).size());
}

bool CDesktop::isPointerFree() const {
    // A window manager holds it for a moment after each press.
    return pumpUntil([this] { return m_system->client.canGrabPointer(); });
}

bool CDesktop::isKeyboardFree() const {
    return pumpUntil([this] { return m_system->client.canGrabKeyboard(); });
}

CDesktop::Resources CDesktop::countResources() const {
    m_system->synchronise();
    Resources resources = {{"descriptors", countFiles("/proc/self/fd")},
                           {"threads", countFiles("/proc/self/task")}};
    CTestClient &client = m_system->client;
    const auto clients = ownReply(
        xcb_res_query_clients_reply(client.get(), xcb_res_query_clients(client.get()), nullptr));
    const int count = clients ? xcb_res_query_clients_clients_length(clients.get()) : 0;
    resources["X clients"] = count;
    for (int i = 0; i < count; ++i)
        m_system->addResourcesOf(xcb_res_query_clients_clients(clients.get())[i], resources);
    return resources;
}

bool CDesktop::willHave(const Resources &resources) const {
    // The server does not hear of the end of a connection at once.
    return pumpUntil([&] { return countResources() == resources; });
}
