#include "tools/live/CJackServer.h"

#include "tools/live/WaitUntil.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <jack/jack.h>
#include <sstream>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

std::vector<std::string> wordsOf(const std::string &text) {
    std::istringstream stream(text);
    std::vector<std::string> words;
    for (std::string word; stream >> word;)
        words.push_back(word);
    return words;
}

/// Becomes the server. It ends with the thread that has started it, however that one ends.
[[noreturn]] void run(const std::vector<std::string> &words) {
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    const int nowhere = open("/dev/null", O_RDWR);
    for (int stream = 0; stream < 3; ++stream)
        dup2(nowhere, stream);
    std::vector<char *> arguments;
    for (const std::string &word : words)
        arguments.push_back(const_cast<char *>(word.c_str()));
    arguments.push_back(nullptr);
    execvp(arguments[0], arguments.data());
    _exit(127);
}

bool answers(const std::string &server) {
    jack_client_t *client =
        jack_client_open("probe", static_cast<jack_options_t>(JackNoStartServer | JackServerName),
                         nullptr, server.c_str());
    if (client == nullptr)
        return false;
    jack_client_close(client);
    return true;
}

}  // namespace

CJackServer::CJackServer(const std::string &options, int sampleRate, int blockFrames)
    : m_name("corvel_tests_" + std::to_string(getpid())) {
    jack_set_error_function([](const char *) {});
    jack_set_info_function([](const char *) {});
    setenv("JACK_NO_AUDIO_RESERVATION", "1", 1);  // there is no session bus
    const auto words =
        wordsOf("jackd -n " + m_name + " -r -S -t 5000 -d dummy -r " + std::to_string(sampleRate) +
                " -p " + std::to_string(blockFrames) + " " + options);
    m_server = fork();
    if (m_server == 0)
        run(words);
    if (waitUntil([this] { return answers(m_name); }))
        return;
    stop(SIGKILL);
    throw std::runtime_error("jackd is not installed or did not start");
}

CJackServer::~CJackServer() {
    end();
}

void CJackServer::end() {
    stop(SIGTERM);
}

void CJackServer::crash() {
    stop(SIGKILL);
}

// A server that crashes or that still has clients leaves their semaphores.
void CJackServer::removeLeftovers() const {
    std::vector<std::filesystem::path> left;
    for (const auto &entry : std::filesystem::directory_iterator("/dev/shm"))
        if (entry.path().string().find(m_name) != std::string::npos)
            left.push_back(entry.path());
    for (const auto &file : left)
        std::filesystem::remove_all(file);
}

void CJackServer::stop(int signal) {
    if (m_server <= 0)
        return;
    kill(m_server, signal);
    waitpid(m_server, nullptr, 0);
    m_server = 0;
    removeLeftovers();
}
