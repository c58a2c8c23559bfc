#pragma once

#include "corvel/live/CEditorWindow.h"
#include "corvel/live/CJackClient.h"
#include "corvel/live/CLiveRack.h"

#include <functional>
#include <optional>
#include <string>

namespace Tessitor::Tool {

/// Why a session ended.
enum class ELiveEnd { Interrupted, TimeIsUp, EditorClosed, ServerGone };

/// Runs the main thread while the audio thread plays. [main thread]
class CLiveSession {
public:
    /// Receives a line about a change while the session runs.
    using Listener = std::function<void(const std::string &line)>;

    /// @param client  active.
    /// @param editor  null for none.
    CLiveSession(CEffectInstance &effect, CLiveRack &rack, CJackClient &client,
                 CEditorWindow *editor, Listener listener);

    /// Starts the effect at the server's sample rate and block size.
    void start();
    /// Keeps it running, whatever changes on the server, until something ends the session.
    /// @param seconds  of sound to play; endless without.
    ELiveEnd run(const std::optional<double> &seconds);

    std::string format() const;  ///< "48000 Hz, blocks of 256 frames"

private:
    std::optional<ELiveEnd> findEnd(const std::optional<double> &seconds) const;
    void restartIfChanged();
    void changePrograms();

    CEffectInstance &m_effect;
    CLiveRack &m_rack;
    CJackClient &m_client;
    CEditorWindow *const m_editor;
    const Listener m_listener;
    std::uint32_t m_sampleRate = 0, m_blockFrames = 0;  // that the effect runs with
};

}  // namespace Tessitor::Tool
