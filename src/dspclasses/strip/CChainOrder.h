#pragma once

#include "dspclasses/parameters/Slots.h"
#include "values/TRelaxed.h"

#include <array>
#include <cstddef>
#include <cstdint>

/// The neighbours of a slot in the running order; kNoSlot means none. A slot without a predecessor
/// counts as free, except kInGainSlot.
struct SOrderEntry {
    TRelaxed<std::int32_t> prev = -1;
    TRelaxed<std::int32_t> next = -1;
};

/// The running order of the strip: a doubly linked list over the module slots that starts with the
/// fixed head. Slot numbers are trusted. No operation allocates or locks.
///
/// The editor's thread edits the list while the audio thread follows its `next` links. This is by
/// design. A run during an edit may end early or visit slots twice.
class CChainOrder {
public:
    CChainOrder() { initialise(); }
    void initialise();  ///< the empty chain: only the fixed head

    SOrderEntry &entry(int slot) { return order[placeOf(slot)]; }
    int nextOf(int slot) const { return order[placeOf(slot)].next; }
    int getCount() const { return fxCount; }  ///< modules after the fixed head

    void recount();  ///< counts along the links; 0 if they form a cycle
    void append(int slot);
    void insertBefore(int target, int slot);
    void insertAfter(int target, int slot);  ///< `target` must not be the last node
    void replace(int target, int slot);
    void remove(int slot);
    void moveBefore(int target, int slot);

private:
    static std::size_t placeOf(int slot) {
        const int place = slot + 1;
        return static_cast<std::size_t>(place);
    }
    void link(int prev, int slot, int next);

    TRelaxed<std::int32_t> fxCount;
    // kNoSlot has an entry too, which is written but never read: after a replacement, a slot in use
    // may have no predecessor, and an edit there writes to the predecessor's entry.
    std::array<SOrderEntry, kSlotCount + 1> order;
};
