#include "CEffectInHost.h"

#include <cstring>

CEffectInHost::CEffectInHost(CDesktop &screen, const CPluginFile &file)
    : effect(file, FakeHost::callback), m_desktop(screen) {
    effect.send(effOpen);
    // A new effect ignores a first value that happens to equal the initial one of its module in the
    // module's own unit. What tests see must not depend on that.
    const SStoredProgram program = stored();
    for (int id = 0; id < effect.record().numParams; ++id)
        effect.setParameter(id, 0.3f);
    restore(program);
}

namespace {

SNativeRect areaAt(SNativePoint position) {
    const auto [x, y] = position;
    return {x, y, x + Layout::width, y + Layout::height};
}

}  // namespace

void CEffectInHost::open(SNativePoint position) {
    m_window = m_desktop.createHostWindow(areaAt(position));
    effect.send(effEditOpen, 0, 0, m_window);
    settle();
}

void CEffectInHost::openInTinyWindow() {
    const auto [x, y] = upperPlace;
    m_window = m_desktop.createHiddenHostWindow({x, y, x + 1, y + 1});
    effect.send(effEditOpen, 0, 0, m_window);
    m_desktop.showHostWindow(m_window, areaAt(upperPlace));
    settle();
}

void CEffectInHost::close() {
    effect.send(effEditClose);
    destroyWindow();
}

void CEffectInHost::destroyWindow() {
    if (m_window != nullptr)
        m_desktop.destroyHostWindow(m_window);
    m_window = nullptr;
}

// The user

SNativePoint CEffectInHost::onScreen(SNativePoint position) const {
    const SNativePoint origin = m_desktop.originOf(m_window);
    return {origin.x + position.x, origin.y + position.y};
}

void CEffectInHost::moveTo(SNativePoint position) const {
    m_desktop.movePointer(onScreen(position));
    settle();
}

void CEffectInHost::pressAt(SNativePoint position) const {
    moveTo(Layout::empty);
    settlePress();
    settleRelease();
    moveTo(position);
    settlePress();
}

void CEffectInHost::clickAt(SNativePoint position) const {
    pressAt(position);
    settleRelease();
}

void CEffectInHost::doubleClickAt(SNativePoint position) const {
    clickAt(position);
    settlePress();
    settleRelease();
}

void CEffectInHost::drag(SNativePoint position, int right, int down) const {
    pressAt(position);
    moveTo({position.x + right, position.y + down});
    settleRelease();
}

void CEffectInHost::turnWheelAt(SNativePoint position, int notches) const {
    moveTo(position);
    m_desktop.turnWheel(notches);
    settle();
}

void CEffectInHost::pointAtItem(int number, int ofItems) const {
    const auto menu = m_desktop.openMenu();
    if (!menu)
        throw std::runtime_error("no menu is open");
    const int height = (menu->bottom - menu->top) / ofItems;
    m_desktop.movePointer(
        {(menu->left + menu->right) / 2, menu->top + number * height + height / 2});
    settle();
}

void CEffectInHost::pointAtModule(int module) const {
    constexpr int modules = kLastModuleSlot - kFirstModuleSlot + 1;
    pointAtItem(module == -1 ? modules : module - kFirstModuleSlot, modules + 1);
}

void CEffectInHost::choose(int number, int ofItems) const {
    pointAtItem(number, ofItems);
    settlePress();
    settleRelease();
}

void CEffectInHost::chooseModule(Layout::EHotSpot kind, int slot, int module) const {
    clickHotSpot(kind, slot);
    pointAtModule(module);
    settlePress();
    settleRelease();
}

// What became of it

SStoredProgram CEffectInHost::stored() const {
    const std::vector<char> chunk = effect.chunk(true);
    SStoredProgram program;
    if (chunk.size() != sizeof program)
        throw std::runtime_error("a program of another size");
    std::memcpy(&program, chunk.data(), sizeof program);
    return program;
}

void CEffectInHost::restore(const SStoredProgram &program) const {
    std::vector<char> chunk(sizeof program);
    std::memcpy(chunk.data(), &program, sizeof program);
    effect.setChunk(chunk, true);
}
