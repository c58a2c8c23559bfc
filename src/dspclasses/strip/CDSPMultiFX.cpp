#include "dspclasses/strip/CDSPMultiFX.h"

#include "dspclasses/blocks/Assertion.h"
#include "dspclasses/modules/CDSP3EQ.h"
#include "dspclasses/modules/CDSPBalance.h"
#include "dspclasses/modules/CDSPComp.h"
#include "dspclasses/modules/CDSPDeEsser.h"
#include "dspclasses/modules/CDSPDelay.h"
#include "dspclasses/modules/CDSPGain.h"
#include "dspclasses/modules/CDSPGate.h"
#include "dspclasses/modules/CDSPHiPass.h"
#include "dspclasses/modules/CDSPModulation.h"
#include "dspclasses/modules/CDSPPan.h"
#include "dspclasses/modules/CDSPParametric.h"
#include "dspclasses/modules/CDSPPresence.h"
#include "dspclasses/modules/CDSPReverb.h"
#include "dspclasses/modules/CDSPWarmer.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <string_view>
#include <utility>

static CDSPMultiFX::Modules buildModules() {
    CDSPMultiFX::Modules modules;
    modules[kInGainSlot] = std::make_unique<CDSPGain>();
    modules[kInMonoSlot] = std::make_unique<CDSPMono>();
    modules[kBalanceSlot] = std::make_unique<CDSPBalance>();
    modules[kPanSlot] = std::make_unique<CDSPPan>();
    modules[kGainSlot] = std::make_unique<CDSPGain>();
    modules[k3BandSlot] = std::make_unique<CDSP3EQ>();
    modules[kRumbleFilterSlot] = std::make_unique<CDSPHiPass>();
    modules[kHiPassSlot] = std::make_unique<CDSPHiPass>();
    modules[kPresenceSlot] = std::make_unique<CDSPPresence>();
    modules[kParametricSlot] = std::make_unique<CDSPParametric>();
    modules[kGateSlot] = std::make_unique<CDSPGate>();
    modules[kCompressorSlot] = std::make_unique<CDSPComp>();
    modules[kDeEsserSlot] = std::make_unique<CDSPDeEsser>();
    modules[kModulator1Slot] = std::make_unique<CDSPModulation>();
    modules[kModulator2Slot] = std::make_unique<CDSPModulation>();
    modules[kWarmerSlot] = std::make_unique<CDSPWarmer>();
    modules[kDelaySlot] = std::make_unique<CDSPDelay>();
    modules[kReverbSlot] = std::make_unique<CDSPReverb>();
    return modules;
}

CDSPMultiFX::CDSPMultiFX() : CDSPMultiFX(buildModules()) {}

CDSPMultiFX::CDSPMultiFX(Modules slots) : modules(std::move(slots)) {
    setTempo(120.0f);
    outMono = std::make_unique<CDSPMono>();
    readParameterCache();
    initOrder();
}

CDSPMultiFX::~CDSPMultiFX() {
    // In slot order: an array would destroy its last element first.
    for (auto &module : modules)
        module.reset();
}

// The run

static void process(CDSPBase &module, float **in, float **out, int frames) {
    module.processReplacing(in, out, frames);
}

static void process(CDSPBase &module, double **in, double **out, int frames) {
    module.processDoubleReplacing(in, out, frames);
}

void CDSPMultiFX::processReplacing(float **in, float **out, int frames) {
    floatBuffers.grow(frames);
    const float *dry = floatBuffers.DryBuf[0];
    // Kept: the texts and line numbers of these reports are fixed. 0xcdcdcdcd is how a debug heap
    // marks memory that nobody has written yet.
    assertAlways(reinterpret_cast<std::uintptr_t>(dry) != 0xcdcdcdcd,
                 "DryBuf[0]!=(float *)0xcdcdcdcd", "DSPMultiFX", 502);
    assertAlways(dry != nullptr, "DryBuf[0]!=(float *)0", "DSPMultiFX", 503);
    run(in, out, frames, floatBuffers);
}

void CDSPMultiFX::processDoubleReplacing(double **in, double **out, int frames) {
    doubleBuffers.grow(frames);
    run(in, out, frames, doubleBuffers);
}

template <typename Sample>
static void halveSum(const Sample *left, const Sample *right, Sample *out, int frames) {
    for (int i = 0; i < frames; ++i)
        out[i] = (left[i] + right[i]) * Sample(0.5);
}

/// @return whether a module may write to both: a host may pass one buffer twice, or no right one.
template <typename Sample>
static bool areSeparate(const Sample *left, const Sample *right, int frames) {
    const std::less_equal<const Sample *> isUpTo;
    return left != nullptr && right != nullptr &&
           (isUpTo(left + frames, right) || isUpTo(right + frames, left));
}

/// The first stage reads the host's buffers, and the last one, unless it is a routing, writes to
/// them. That is safe since the second stage runs only when all input has been read.
template <typename Sample>
void CDSPMultiFX::run(Sample **in, Sample **out, int frames, TStripBuffers<Sample> &buffers) {
    if (in == nullptr || out == nullptr)
        return;
    const bool isMono = monoInput;
    Sample *source[] = {in[0], in[isMono ? 0 : 1]};
    Sample **cur = buffers.DryBuf, **alt = buffers.WetBuf;
    // After a routing that writes nothing, one hears what its output holds from the stages before.
    // So all of them must then write to the buffers.
    const bool mayTakeShortcuts = moduleIn(kInMonoSlot).getOutput() != EOutput::Unwritten &&
                                  outMono->getOutput() != EOutput::Unwritten;
    if (!mayTakeShortcuts) {
        std::copy_n(source[0], frames, cur[0]);
        std::copy_n(source[1], frames, cur[1]);
    }
    process(moduleIn(kInGainSlot), source, alt, frames);
    std::swap(cur, alt);

    const bool isRouted = outMono->getMode() != CDSPMono::kStereo;
    const bool mayEndInOut = mayTakeShortcuts && !isRouted && areSeparate(out[0], out[1], frames);
    for (int slot = order.nextOf(kInGainSlot); slot != kNoSlot;) {
        CDSPBase &module = moduleIn(slot);
        slot = order.nextOf(slot);
        if (mayEndInOut && slot == kNoSlot) {
            process(module, cur, out, frames);
            return;
        }
        if (mayTakeShortcuts && module.getOutput() == EOutput::Copied)
            continue;
        process(module, cur, alt, frames);
        std::swap(cur, alt);
    }
    if (isRouted) {
        process(*outMono, cur, alt, frames);
        cur = alt;
    }

    if (out[1] == nullptr && isMono) {
        halveSum(cur[0], cur[1], out[0], frames);
    } else {
        std::copy_n(cur[0], frames, out[0]);
        std::copy_n(cur[1], frames, out[1]);
    }
}

void CDSPMultiFX::reset() {
    for (int slot = kInGainSlot; slot != kNoSlot; slot = order.nextOf(slot))
        moduleIn(slot).reset();
}

void CDSPMultiFX::resetAllModules() {
    for (auto &module : modules)
        module->reset();
}

void CDSPMultiFX::setTempo(float bpm) {
    if (bpm == tempo)
        return;
    tempo = bpm;
    moduleIn(kDelaySlot).setParameter(CDSPDelay::kTempo, bpm);
}

void CDSPMultiFX::setMonoInput(bool isMono) {
    monoInput = isMono;
}

/// Copies a text into the caller's buffer, which must be long enough.
static void copyText(std::string_view from, char *to) {
    to[from.copy(to, from.size())] = '\0';
}

// The running order

void CDSPMultiFX::initOrder() {
    order.initialise();
}

SOrderEntry &CDSPMultiFX::orderEntry(int slot) {
    return order.entry(slot);
}

void CDSPMultiFX::setOrderEntry(int slot, int prev, int next) {
    order.entry(slot) = {prev, next};
}

void CDSPMultiFX::recountFX() {
    order.recount();
}

int CDSPMultiFX::getFXCount() const {
    return order.getCount();
}

void CDSPMultiFX::appendFX(int slot) {
    order.append(slot);
}

void CDSPMultiFX::insertFX(int target, int slot, bool before, bool resetModule) {
    if (before)
        order.insertBefore(target, slot);
    else
        order.insertAfter(target, slot);
    if (resetModule)
        moduleIn(slot).reset();
}

void CDSPMultiFX::replaceFX(int target, int slot) {
    order.replace(target, slot);
}

void CDSPMultiFX::removeFX(int slot) {
    order.remove(slot);
}

void CDSPMultiFX::moveFXBefore(int target, int slot) {
    order.moveBefore(target, slot);
}

void CDSPMultiFX::getFXName(int slot, char *text) const {
    if (slot < kSlotCount)
        copyText(slotLabels[static_cast<std::size_t>(slot)], text);
}

// The parameters

static const SParameter &parameterOf(int id) {
    return parameterTable[static_cast<std::size_t>(id)];
}

CDSPBase &CDSPMultiFX::moduleOf(const SParameter &parameter) {
    return parameter.slot == kOutMonoSlot ? *outMono : moduleIn(parameter.slot);
}

void CDSPMultiFX::readParameterCache() {
    for (int id = 0; id < kParameterCount; ++id) {
        const SParameter &parameter = parameterOf(id);
        if (parameter.slot != kNoSlot)
            paramCache[static_cast<std::size_t>(id)] =
                moduleOf(parameter).getParameter(parameter.index);
    }
}

void CDSPMultiFX::setStripParameter(int id, float value) {
    TRelaxed<float> &last = paramCache[static_cast<std::size_t>(id)];
    if (value == last)
        return;
    last = value;
    const SParameter &parameter = parameterOf(id);
    if (parameter.slot != kNoSlot)
        moduleOf(parameter).setParameter(parameter.index, parameter.law(value));
}

float CDSPMultiFX::getStripParameter(int id) const {
    return id < kParameterCount ? paramCache[static_cast<std::size_t>(id)].load() : 0.0f;
}

void CDSPMultiFX::getParameterName(int id, char *text) const {
    if (id < kParameterCount)
        copyText(parameterOf(id).name, text);
}

void CDSPMultiFX::getParameterDisplay(int id, char *text) {
    if (id >= kParameterCount)
        return;
    const SParameter &parameter = parameterOf(id);
    const float value =
        parameter.slot == kNoSlot ? 0.0f : moduleOf(parameter).getParameter(parameter.index);
    copyText(parameter.text(value), text);
}

void CDSPMultiFX::getParameterLabel(int id, char *text) const {
    if (id < kParameterCount)
        copyText(parameterOf(id).unit, text);
}
