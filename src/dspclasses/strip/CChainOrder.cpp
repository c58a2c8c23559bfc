#include "dspclasses/strip/CChainOrder.h"

// The order of the writes matters for two reasons. Stale links that replace() leaves can make a
// slot its own neighbour. And a run in progress must find its way through a new slot, so the slot's
// `next` is written before the link that leads to it, and again with the whole entry.

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

// Kept: the successor's prev still names the target, and the target keeps its next. The chain runs
// correctly, but removing the successor later unlinks the wrong slot.
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
