#include "corvel/effect/CEffectInstance.h"

#include "corvel/console/Errors.h"

#include <array>

namespace Tessitor::Tool {

namespace {

AEffect *enter(const CEffectLibrary &library) {
    const std::lock_guard guard(library.lifetimeLock());
    AEffect *effect = library.enter(hostCallback);
    if (effect == nullptr)
        throw CJobError(library.file().string() + ": the effect does not start");
    // Without the magic number no function pointer in the record can be trusted, not even the one
    // that closes the effect.
    if (effect->magic != kEffectMagic || effect->dispatcher == nullptr)
        throw CJobError(library.file().string() + ": not a VST 2 effect (no valid record)");
    return effect;
}

}  // namespace

void CEffectInstance::SCloser::operator()(AEffect *effect) const {
    const std::lock_guard guard(lock);
    effect->dispatcher(effect, effClose, 0, 0, nullptr, 0.0f);
}

CEffectInstance::CEffectInstance(const CEffectLibrary &library)
    : m_library(library), m_owner(enter(library), SCloser{library.lifetimeLock()}),
      m_effect(m_owner.get()) {
    if (m_effect->setParameter == nullptr || m_effect->getParameter == nullptr ||
        m_effect->numParams < 0 || m_effect->numPrograms < 0)
        throw CJobError(fileName() + ": not a VST 2 effect (no valid record)");
    m_effect->resvd1 = reinterpret_cast<std::intptr_t>(&m_host);
    dispatch(effOpen);
}

CEffectInstance::~CEffectInstance() {
    stop();
}

std::intptr_t CEffectInstance::dispatch(AEffectOpcode opcode, std::int32_t index,
                                        std::intptr_t value, void *ptr, float opt) {
    return m_effect->dispatcher(m_effect, opcode, index, value, ptr, opt);
}

std::string CEffectInstance::text(AEffectOpcode opcode, std::int32_t index, std::intptr_t value) {
    // The published interface allows at most 64 bytes, but some effects write more.
    std::array<char, 512> buffer{};
    dispatch(opcode, index, value, buffer.data());
    buffer.back() = '\0';
    return buffer.data();
}

std::span<const std::byte> CEffectInstance::programChunk() {
    void *data = nullptr;
    const std::intptr_t bytes = dispatch(effGetChunk, 1, 0, &data);
    if (data == nullptr || bytes <= 0)
        throw CJobError(fileName() + ": the effect returned no program state");
    return {static_cast<const std::byte *>(data), static_cast<std::size_t>(bytes)};
}

void CEffectInstance::setProgramChunk(std::span<const std::byte> chunk) {
    dispatch(effSetChunk, 1, static_cast<std::intptr_t>(chunk.size()),
             const_cast<std::byte *>(chunk.data()));
}

void CEffectInstance::start(const SRunSettings &settings) {
    m_host.time = {};
    m_host.time.sampleRate = settings.sampleRate;
    m_host.time.tempo = settings.tempo;
    m_host.time.flags =
        kVstTempoValid | kVstPpqPosValid | kVstTransportPlaying | kVstTransportChanged;
    m_host.blockSize = settings.blockSize;
    m_host.rightInputConnected = settings.rightInputConnected;
    m_host.rightOutputConnected = settings.rightOutputConnected;

    dispatch(effSetSampleRate, 0, 0, nullptr, static_cast<float>(settings.sampleRate));
    dispatch(effSetBlockSize, 0, settings.blockSize);
    dispatch(effSetProcessPrecision, 0,
             settings.doublePrecision ? kVstProcessPrecision64 : kVstProcessPrecision32);
    dispatch(effMainsChanged, 0, 1);
    dispatch(effStartProcess);
    m_running = true;
}

void CEffectInstance::stop() {
    if (!m_running)
        return;
    dispatch(effStopProcess);
    dispatch(effMainsChanged, 0, 0);
    m_running = false;
}

void CEffectInstance::process(float **in, float **out, std::int32_t frames) {
    m_effect->processReplacing(m_effect, in, out, frames);
    advanceTransport(frames);
}

void CEffectInstance::process(double **in, double **out, std::int32_t frames) {
    m_effect->processDoubleReplacing(m_effect, in, out, frames);
    advanceTransport(frames);
}

void CEffectInstance::advanceTransport(std::int32_t frames) {
    VstTimeInfo &time = m_host.time;
    time.samplePos += frames;
    time.ppqPos = time.samplePos / time.sampleRate * time.tempo / 60.0;
    time.flags &= ~kVstTransportChanged;
}

}  // namespace Tessitor::Tool
