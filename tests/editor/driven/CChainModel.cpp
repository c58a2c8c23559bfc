#include "CChainModel.h"

#include <cstddef>

SStoredProgram::SLink &CChainModel::at(int module) {
    return module < 0 ? m_nowhere : m_links.at(static_cast<std::size_t>(module));
}

void CChainModel::load(const Links &links) {
    m_links = links;
    m_count = -1;
    for (int module = 1; module != -1; module = at(module).next) {
        if (++m_count == 18) {
            m_count = 0;
            return;
        }
    }
}

bool CChainModel::hasEnd() const {
    int module = 1;
    for (std::size_t i = 0; i < m_links.size() && module != -1; ++i)
        module = m_links.at(static_cast<std::size_t>(module)).next;
    return module == -1;
}

std::array<int, 6> CChainModel::getSlots() const {
    std::array<int, 6> modules{};
    int module = m_links[1].next;
    for (int &shown : modules) {
        shown = module;
        if (module != -1)
            module = m_links.at(static_cast<std::size_t>(module)).next;
    }
    return modules;
}

void CChainModel::append(int module) {
    int last = 0;
    while (at(last).next != -1)
        last = at(last).next;
    at(last).next = module;
    at(module) = {last, -1};
    ++m_count;
}

void CChainModel::insertBefore(int target, int module) {
    const int before = at(target).prev;
    at(before).next = module;
    at(target).prev = module;
    at(module) = {before, target};
    ++m_count;
}

// The links back to the target stay.
void CChainModel::replace(int target, int module) {
    at(at(target).prev).next = module;
    at(module) = at(target);
    at(target).prev = -1;
}

void CChainModel::remove(int module) {
    const SStoredProgram::SLink links = at(module);
    at(links.prev).next = links.next;
    if (links.next != -1)
        at(links.next).prev = links.prev;
    at(module) = {-1, -1};
    --m_count;
}

void CChainModel::moveBefore(int target, int module) {
    remove(module);
    insertBefore(target, module);
}

CChainModel::Links chainOf(const std::vector<int> &modules) {
    CChainModel::Links links;
    links.fill({-1, -1});
    links[0] = {-1, 1};
    links[1] = {0, -1};
    CChainModel chain(links);
    for (const int module : modules)
        chain.append(module);
    return chain.getLinks();
}
