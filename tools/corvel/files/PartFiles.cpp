#include "corvel/files/PartFiles.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdio>
#include <string>

namespace Tessitor::Tool {

namespace {

enum EEntryState : int { kFree, kReserved, kInUse };

// A signal handler reads this table, so it has a fixed place in memory and no lock. An entry is
// only used by the thread that reserved it.
struct SEntry {
    std::atomic<int> state = kFree;
    std::array<char, 4096> path;  // the longest that Linux accepts
};
static_assert(std::atomic<int>::is_always_lock_free);

constexpr std::size_t entryCount = 512;
std::array<SEntry, entryCount> entries;

std::size_t reserveEntry() {
    for (std::size_t i = 0; i < entryCount; ++i) {
        int expected = kFree;
        if (entries[i].state.compare_exchange_strong(expected, kReserved))
            return i;
    }
    return entryCount;
}

}  // namespace

CPartFile::CPartFile(const std::filesystem::path &path) : m_entry(reserveEntry()) {
    const std::string text = path.string();
    if (m_entry == entryCount || text.size() >= entries[m_entry].path.size())
        return;
    *std::copy(text.begin(), text.end(), entries[m_entry].path.begin()) = '\0';
    entries[m_entry].state = kInUse;
}

CPartFile::~CPartFile() {
    if (m_entry != entryCount)
        entries[m_entry].state = kFree;
}

void removePartFiles() {
    for (const SEntry &entry : entries)
        if (entry.state == kInUse)
            std::remove(entry.path.data());
}

}  // namespace Tessitor::Tool
