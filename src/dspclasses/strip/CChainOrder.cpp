#include "dspclasses/strip/CChainOrder.h"

// The order of the writes matters where a slot is its own neighbour, which the stale links of
// replace can bring about. Where a slot is linked, its way out is written before the way in, and
// again with the pair: a run beside the edit should find its way through the new slot.

void CChainOrder::initialise() {
    order.fill({});
    entry(kInGainSlot).next = kInMonoSlot;
    entry(kInMonoSlot).prev = kInGainSlot;
    fxCount = 0;
}

void CChainOrder::recount() {
    int count = 0;
    for (int slot = nextOf(kInMonoSlot); slot != kNoSlot; slot = nextOf(slot)) {
        if (++count == kSlotCount) {
            count = 0;
            break;
        }
    }
    fxCount = count;
}

void CChainOrder::append(int slot) {
    int last = kInGainSlot;
    for (int next = nextOf(last); next != kNoSlot; next = nextOf(last))
        last = next;
    entry(slot).next = kNoSlot;
    entry(last).next = slot;
    entry(slot) = {last, kNoSlot};
    fxCount = fxCount + 1;
}

void CChainOrder::insertBefore(int target, int slot) {
    link(entry(target).prev, slot, target);
}

void CChainOrder::insertAfter(int target, int slot) {
    link(target, slot, entry(target).next);
}

void CChainOrder::link(int prev, int slot, int next) {
    entry(slot).next = next;
    entry(prev).next = slot;
    entry(next).prev = slot;
    entry(slot) = {prev, next};
    fxCount = fxCount + 1;
}

// Kept: the successor's prev goes on naming the target, the target keeps its next, and nothing is
// counted. The run is right at once; a later unlink of the successor goes astray.
void CChainOrder::replace(int target, int slot) {
    entry(slot).next = entry(target).next;
    entry(entry(target).prev).next = slot;
    entry(slot) = entry(target);
    entry(target).prev = kNoSlot;
}

void CChainOrder::remove(int slot) {
    const SOrderEntry links = entry(slot);
    entry(links.prev).next = links.next;
    if (links.next != kNoSlot)
        entry(links.next).prev = links.prev;
    entry(slot) = {kNoSlot, kNoSlot};
    fxCount = fxCount - 1;
}

void CChainOrder::moveBefore(int target, int slot) {
    remove(slot);
    insertBefore(target, slot);
}
