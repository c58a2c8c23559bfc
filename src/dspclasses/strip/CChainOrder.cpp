#include "dspclasses/strip/CChainOrder.h"

// The order of the writes matters where a slot is its own neighbour, which the stale links of
// replace can bring about. Where a slot is linked, its way out is written before the way in, and
// again with the pair: a run beside the edit should find its way through the new slot.

void CChainOrder::initialise() {
    order.fill({});
    entry(0).next = 1;
    entry(1).prev = 0;
    fxCount = 0;
}

void CChainOrder::recount() {
    int count = 0;
    for (int slot = nextOf(1); slot != -1; slot = nextOf(slot)) {
        if (++count == slotCount) {
            count = 0;
            break;
        }
    }
    fxCount = count;
}

void CChainOrder::append(int slot) {
    int last = 0;
    for (int next = nextOf(last); next != -1; next = nextOf(last))
        last = next;
    entry(slot).next = -1;
    entry(last).next = slot;
    entry(slot) = {last, -1};
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
    entry(target).prev = -1;
}

void CChainOrder::remove(int slot) {
    const SOrderEntry links = entry(slot);
    entry(links.prev).next = links.next;
    if (links.next != -1)
        entry(links.next).prev = links.prev;
    entry(slot) = {-1, -1};
    fxCount = fxCount - 1;
}

void CChainOrder::moveBefore(int target, int slot) {
    remove(slot);
    insertBefore(target, slot);
}
