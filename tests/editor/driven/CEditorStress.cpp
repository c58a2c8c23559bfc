#include "CEditorStress.h"

#include <algorithm>
#include <cstring>
#include <thread>

using Layout::EHotSpot;

CEditorStress::CEditorStress(CDesktop &desktop, const CPluginFile &file, unsigned seed)
    : m_desktop(desktop), m_random(seed), m_driven(desktop, file),
      m_chain(m_driven.stored().links) {
    const std::vector<char> bank = m_driven.effect.chunk(false);
    for (std::size_t start = 0; start < bank.size(); start += sizeof(SStoredProgram)) {
        SStoredProgram program;
        std::memcpy(&program, bank.data() + start, sizeof program);
        m_programs.push_back(program.links);
    }
    m_driven.open();
}

const char *CEditorStress::act() {
    using Action = const char *(CEditorStress::*)();
    constexpr Action actions[] = {&CEditorStress::insert,           &CEditorStress::insert,
                                  &CEditorStress::replace,          &CEditorStress::moveLeft,
                                  &CEditorStress::moveRight,        &CEditorStress::drag,
                                  &CEditorStress::turnWheel,        &CEditorStress::click,
                                  &CEditorStress::doubleClick,      &CEditorStress::typeKey,
                                  &CEditorStress::changeParameters, &CEditorStress::insert,
                                  &CEditorStress::changeProgram,    &CEditorStress::changeChunk,
                                  &CEditorStress::openAgain};
    return (this->*actions[below(std::size(actions))])();
}

// The user

SNativePoint CEditorStress::randomPlace() {
    constexpr int belowHotSpots = 125;
    const SNativePoint place = {below(Layout::width),
                                belowHotSpots + below(Layout::height - belowHotSpots)};
    const int slot = randomSlot();
    if (moduleIn(slot) < kFirstModuleSlot || below(4) == 0)
        return below(4) == 0 ? Layout::centreOf(Layout::topRow[below(3)].area) : place;
    const auto controls = Layout::controlsIn(slot, moduleIn(slot));
    return Layout::centreOf(controls[static_cast<std::size_t>(below(int(controls.size())))].area);
}

int CEditorStress::chooseModule(bool isInserted) {
    constexpr int modules = kLastModuleSlot - kFirstModuleSlot + 1;
    const int item = below(modules + 1);
    m_driven.choose(item, modules + 1);
    if (item == modules)
        return -1;
    const int module = kFirstModuleSlot + item;
    const bool isFull = isInserted && m_chain.getCount() >= Layout::slotCount;
    return m_chain.isFree(module) && !isFull ? module : -2;
}

const char *CEditorStress::insert() {
    const int slot = randomSlot(), present = moduleIn(slot);
    m_driven.clickHotSpot(EHotSpot::Insert, slot);
    const int chosen = chooseModule(true);
    if (chosen == -1 && present != -1)
        m_chain.remove(present);
    else if (chosen >= 0 && present == -1)
        m_chain.append(chosen);
    else if (chosen >= 0)
        m_chain.insertBefore(present, chosen);
    endMenu();
    return "insert";
}

const char *CEditorStress::replace() {
    const int slot = randomSlot(), present = moduleIn(slot);
    m_driven.clickHotSpot(EHotSpot::Replace, slot);
    if (present == -1)
        return "replace nothing";
    const int chosen = chooseModule(false);
    if (chosen == -1)
        m_chain.remove(present);
    else if (chosen >= 0)
        m_chain.replace(present, chosen);
    endMenu();
    return "replace";
}

const char *CEditorStress::moveLeft() {
    const int slot = 1 + below(Layout::slotCount - 1);
    m_driven.clickHotSpot(EHotSpot::MoveLeft, slot);
    if (moduleIn(slot) != -1)
        m_chain.moveBefore(moduleIn(slot - 1), moduleIn(slot));
    return "move left";
}

const char *CEditorStress::moveRight() {
    const int slot = below(Layout::slotCount - 1);
    m_driven.clickHotSpot(EHotSpot::MoveRight, slot);
    if (moduleIn(slot) != -1 && moduleIn(slot + 1) != -1)
        m_chain.moveBefore(moduleIn(slot), moduleIn(slot + 1));
    return "move right";
}

const char *CEditorStress::drag() {
    m_driven.drag(randomPlace(), below(600) - 300, below(600) - 300);
    endMenu();
    return "drag";
}

const char *CEditorStress::turnWheel() {
    m_driven.turnWheelAt(randomPlace(), below(2) == 0 ? 1 : -1);
    endMenu();
    return "wheel";
}

const char *CEditorStress::click() {
    m_driven.clickAt(randomPlace());
    if (m_desktop.openMenu().has_value())
        m_driven.choose(below(3), 3);  // an item of some menu of values
    endMenu();
    return "click";
}

const char *CEditorStress::doubleClick() {
    m_driven.doubleClickAt(randomPlace());
    endMenu();
    return "double click";
}

const char *CEditorStress::typeKey() {
    m_desktop.typeSpace();
    m_driven.settle();
    return "key";
}

void CEditorStress::endMenu() {
    if (m_desktop.openMenu().has_value())
        m_driven.clickAt(Layout::empty);
}

// The host

const char *CEditorStress::changeProgram() {
    const int program = below(int(m_programs.size()));
    m_programs[static_cast<std::size_t>(m_program)] = m_chain.getLinks();
    m_driven.effect.send(effSetProgram, 0, program);
    if (program != m_program)
        m_chain.load(m_programs[static_cast<std::size_t>(program)]);
    m_program = program;
    m_driven.settle();
    return "program";
}

const char *CEditorStress::changeParameters() {
    const auto seed = static_cast<unsigned>(m_random());
    const auto change = [this, seed] {
        std::mt19937 random(seed);
        std::uniform_real_distribution<float> value(0.0f, 1.0f);
        for (int i = 0; i < 200; ++i)
            m_driven.effect.setParameter(static_cast<int>(random() % 64), value(random));
    };
    std::thread other(change);
    m_driven.settle();
    other.join();
    m_driven.settle();
    return "parameters";
}

const char *CEditorStress::changeChunk() {
    std::vector<int> modules;
    for (int module = kFirstModuleSlot; module <= kLastModuleSlot; ++module)
        modules.push_back(module);
    std::ranges::shuffle(modules, m_random);
    modules.resize(static_cast<std::size_t>(below(9)));  // a chunk may have more than six
    SStoredProgram program = m_driven.stored();
    program.links = chainOf(modules);
    m_driven.restore(program);
    m_chain.load(program.links);
    m_driven.settle();
    return "chunk";
}

const char *CEditorStress::openAgain() {
    if (below(2) == 0)
        m_driven.clickAt(randomPlace());
    if (below(2) == 0)
        m_driven.destroyWindow();
    m_driven.close();
    m_driven.open();
    return "open again";
}
