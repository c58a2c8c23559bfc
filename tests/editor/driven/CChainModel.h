#pragma once

#include <array>
#include <cstdint>
#include <vector>

/// A program as hosts store it.
struct SStoredProgram {
    struct SLink {
        std::int32_t prev, next;
        bool operator==(const SLink &) const = default;
    };
    std::array<float, 64> parameters;
    std::array<SLink, 18> links;
    std::array<char, 24> name;

    bool operator==(const SStoredProgram &) const = default;
};
static_assert(sizeof(SStoredProgram) == 424);

/// What the mouse is to do to the chain of modules. Written apart from the effect, to compare them.
class CChainModel {
public:
    using Links = std::array<SStoredProgram::SLink, 18>;

    explicit CChainModel(const Links &links) { load(links); }

    void load(const Links &links);
    const Links &getLinks() const { return m_links; }
    int getCount() const { return m_count; }
    bool isFree(int module) const {
        return m_links.at(static_cast<std::size_t>(module)).prev == -1;
    }
    bool hasEnd() const;  ///< false if it leads back to itself
    /// @return the modules from the first slot on; -1 for an empty slot.
    std::array<int, 6> getSlots() const;

    void append(int module);
    void insertBefore(int target, int module);
    void replace(int target, int module);
    void remove(int module);
    void moveBefore(int target, int module);

private:
    SStoredProgram::SLink &at(int module);

    Links m_links;
    SStoredProgram::SLink m_nowhere{};  // what is before and after the ends
    int m_count = 0;
};

/// @return the links of a chain of modules.
CChainModel::Links chainOf(const std::vector<int> &modules);
