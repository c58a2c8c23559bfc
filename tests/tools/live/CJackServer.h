#pragma once

#include <string>
#include <sys/types.h>

/// Runs a JACK server without a sound card, for the tests of one program. It waits for its clients
/// in every cycle, so that no sound is lost on a slow machine.
class CJackServer {
public:
    /// @param options  of the dummy driver, besides rate and period.
    explicit CJackServer(const std::string &options = "", int sampleRate = 44100,
                         int blockFrames = 256);
    ~CJackServer();
    CJackServer(const CJackServer &) = delete;
    CJackServer &operator=(const CJackServer &) = delete;

    std::string name() const { return m_name; }
    void end();    ///< as its user ends it
    void crash();  ///< without giving it time to tell its clients

private:
    void stop(int signal);
    void removeLeftovers() const;

    const std::string m_name;
    pid_t m_server = 0;
};
