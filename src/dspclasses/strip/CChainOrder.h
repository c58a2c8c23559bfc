#pragma once

#include "dspclasses/parameters/Slots.h"
#include "values/TRelaxed.h"

#include <array>
#include <cstddef>
#include <cstdint>

/// The neighbours of a slot in the running order, by slot; -1 means none. A slot without a
/// predecessor, other than slot 0, is free.
struct SOrderEntry {
    TRelaxed<std::int32_t> prev = -1;
    TRelaxed<std::int32_t> next = -1;
};

/// The running order of the strip: a doubly linked list over the 18 module slots that begins with
/// slots 0 and 1. Slots are trusted, from 0 to 17. None of the operations allocates or locks.
///
/// The editor's thread edits it beside the audio, by design: a run follows `next` only. In the
/// block during which the order changes it may end early, or meet slots again until the edit is
/// complete.
class CChainOrder {
public:
    CChainOrder() { initialise(); }
    void initialise();  ///< the empty chain: 0 and 1

    SOrderEntry &entry(int slot) { return order[placeOf(slot)]; }
    int nextOf(int slot) const { return order[placeOf(slot)].next; }
    int getCount() const { return fxCount; }  ///< nodes behind slot 1

    void recount();  ///< the count from the links; 0 if they hold a cycle
    void append(int slot);
    void insertBefore(int target, int slot);
    void insertAfter(int target, int slot);  ///< not behind the last node
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
    // Slot -1 has a pair too, which nobody reads: a list that a replacement has left uneven can
    // hold a running slot without a predecessor, and an edit there writes to it.
    std::array<SOrderEntry, kSlotCount + 1> order;
};
