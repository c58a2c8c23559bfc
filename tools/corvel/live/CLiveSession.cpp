#include "corvel/live/CLiveSession.h"

#include "corvel/console/Interrupt.h"
#include "corvel/settings/CEffectSettings.h"

#include <chrono>
#include <thread>
#include <utility>

namespace Tessitor::Tool {

namespace {

// Short enough for a program change and for the mouse in the editor
constexpr auto pause = std::chrono::milliseconds(5);

}  // namespace

CLiveSession::CLiveSession(CEffectInstance &effect, CLiveRack &rack, CJackClient &client,
                           CEditorWindow *editor, Listener listener)
    : m_effect(effect), m_rack(rack), m_client(client), m_editor(editor),
      m_listener(std::move(listener)) {}

ELiveEnd CLiveSession::run(const std::optional<double> &seconds) {
    for (;;) {
        restartIfChanged();
        changePrograms();
        if (m_editor != nullptr)
            m_editor->pump();
        if (const auto end = findEnd(seconds))
            return *end;
        std::this_thread::sleep_for(pause);
    }
}

std::optional<ELiveEnd> CLiveSession::findEnd(const std::optional<double> &seconds) const {
    if (m_client.isServerGone())
        return ELiveEnd::ServerGone;
    if (isInterrupted())
        return ELiveEnd::Interrupted;
    if (m_editor != nullptr && m_editor->isClosed())
        return ELiveEnd::EditorClosed;
    if (seconds && m_rack.secondsPlayed() >= *seconds)
        return ELiveEnd::TimeIsUp;
    return std::nullopt;
}

void CLiveSession::start() {
    m_sampleRate = m_client.sampleRate();
    m_blockFrames = m_client.blockFrames();
    m_rack.start(m_sampleRate, static_cast<std::int32_t>(m_blockFrames));
}

std::string CLiveSession::format() const {
    return std::to_string(m_sampleRate) + " Hz, blocks of " + std::to_string(m_blockFrames) +
           " frames";
}

void CLiveSession::restartIfChanged() {
    if (m_client.sampleRate() == m_sampleRate && m_client.blockFrames() == m_blockFrames)
        return;
    start();
    m_listener("now at " + format());
}

void CLiveSession::changePrograms() {
    for (const std::int32_t program : m_rack.runErrands()) {
        const std::int32_t programs = m_effect.record().numPrograms;
        const std::string number = "program " + std::to_string(program);
        if (program < programs)
            m_listener(number + ": " + programName(m_effect, program));
        else
            m_listener(number + ": the effect has only " + std::to_string(programs) + " programs");
    }
}

}  // namespace Tessitor::Tool
