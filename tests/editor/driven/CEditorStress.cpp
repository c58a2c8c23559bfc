#include "CEditorStress.h"

#include <algorithm>
#include <cstring>
#include <thread>

using Layout::EHotSpot;

CEditorStress::CEditorStress(CDesktop &desktop, const CPluginFile &file, unsigned seed)
    : m_desktop(desktop), m_file(file), m_random(seed), m_driven(desktop, file),
      m_chain(m_driven.stored().links) {
    m_driven.effect.send(effMainsChanged, 0, 1);
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
    constexpr Action actions[] = {&CEditorStress::insert,
                                  &CEditorStress::insert,
                                  &CEditorStress::insert,
                                  &CEditorStress::replace,
                                  &CEditorStress::moveLeft,
                                  &CEditorStress::moveRight,
                                  &CEditorStress::drag,
                                  &CEditorStress::turnWheel,
                                  &CEditorStress::click,
                                  &CEditorStress::doubleClick,
                                  &CEditorStress::typeKey,
                                  &CEditorStress::changeParameters,
                                  &CEditorStress::changeParametersInDrag,
                                  &CEditorStress::changeProgram,
                                  &CEditorStress::changeChunk,
                                  &CEditorStress::openAgain,
                                  &CEditorStress::look};
    return (this->*actions[below(std::size(actions))])();
}

std::string CEditorStress::difference() const {
    if (m_driven.stored().links != m_chain.getLinks())
        return "the chain is another one";
    return m_wrongValue + m_wrongPicture;
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
    automate(0, [this] { m_driven.settle(); });
    return "parameters";
}

const char *CEditorStress::changeParametersInDrag() {
    const auto dragGain = [this] {
        m_driven.drag(Layout::centreOf(Layout::topRow[0].area), below(100) - 50, 0);
    };
    automate(kInGain + 1, dragGain);
    return "parameters in a drag";
}

void CEditorStress::automate(int first, const std::function<void()> &user) {
    std::vector<float> expected = m_driven.effect.parameters();
    const auto seed = static_cast<unsigned>(m_random());
    const auto change = [&, seed] {
        std::mt19937 random(seed);
        std::uniform_real_distribution<float> value(0.0f, 1.0f);
        std::uniform_int_distribution<int> id(first, int(expected.size()) - 1);
        for (int i = 0; i < 200; ++i) {
            const int changed = id(random);
            expected.at(static_cast<std::size_t>(changed)) = value(random);
            m_driven.effect.setParameter(changed, expected.at(static_cast<std::size_t>(changed)));
        }
        play(4);
    };
    std::thread other(change);
    user();
    other.join();
    m_driven.settle();
    for (int id = first; id < int(expected.size()); ++id)
        if (m_driven.effect.getParameter(id) != expected.at(static_cast<std::size_t>(id)))
            m_wrongValue = "parameter " + std::to_string(id) + " has another value";
}

// A chain that leads back to itself would never end.
void CEditorStress::play(int blocks) const {
    if (!m_chain.hasEnd())
        return;
    constexpr std::size_t frames = 64;
    std::array<std::array<float, frames>, 4> channels{};
    std::array<float *, 2> in = {channels[0].data(), channels[1].data()},
                           out = {channels[2].data(), channels[3].data()};
    for (int i = 0; i < blocks; ++i)
        m_driven.effect.processReplacing(in.data(), out.data(), int(frames));
}

const char *CEditorStress::changeChunk() {
    constexpr int moreThanSlots = 8;
    restoreChain(moreThanSlots);
    m_driven.settle();
    return "chunk";
}

void CEditorStress::restoreChain(int limit) {
    std::vector<int> modules;
    for (int module = kFirstModuleSlot; module <= kLastModuleSlot; ++module)
        modules.push_back(module);
    std::ranges::shuffle(modules, m_random);
    modules.resize(static_cast<std::size_t>(below(limit + 1)));
    SStoredProgram program = m_driven.stored();
    program.links = chainOf(modules);
    m_driven.restore(program);
    m_chain.load(program.links);
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

namespace {

/// Sets all parameters to random values.
void randomise(const CLoadedEffect &effect, unsigned seed) {
    std::mt19937 random(seed);
    std::uniform_real_distribution<float> value(0.0f, 1.0f);
    // A delay time is rounded when it is set, if it is then synchronised.
    effect.setParameter(kDlySync, value(random));
    for (int id = 0; id < effect.record().numParams; ++id)
        if (id != kDlySync)
            effect.setParameter(id, value(random));
}

}  // namespace

// A panel without a slot stays where it was, so each module gets a slot. And what the user has done
// to a knob may differ from its value until the host sets another one.
const char *CEditorStress::look() {
    restoreChain(Layout::slotCount);
    const auto seed = static_cast<unsigned>(m_random());
    std::thread([this, seed] { randomise(m_driven.effect, seed); }).join();
    m_driven.moveTo(Layout::empty);
    CEffectInHost other(m_desktop, m_file);
    randomise(other.effect, seed);
    other.restore(m_driven.stored());
    other.open(CEffectInHost::lowerPlace);
    other.moveTo(Layout::empty);
    const auto [left, top, right, bottom] =
        differenceOutside(m_driven.picture(), other.picture(), {});
    if (right > 0)
        m_wrongPicture = "the editor shows something else at " + std::to_string(left) + ", " +
                         std::to_string(top);
    other.close();
    return "look";
}
