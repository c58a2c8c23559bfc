#pragma once

#include "hostlayer/VstInterface.h"

#include <filesystem>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace Tessitor::Tool {

/// A loaded effect file. It must outlive the instances made from it.
class CEffectLibrary {
public:
    /// @throws CJobError if the file is missing, is no library or exports no entry function.
    explicit CEffectLibrary(const std::filesystem::path &file);
    ~CEffectLibrary();
    CEffectLibrary(const CEffectLibrary &) = delete;
    CEffectLibrary &operator=(const CEffectLibrary &) = delete;

    /// @return the named file, else the effect beside this program: ../plugin/Corvel.so, or
    ///         Corvel.so in its own folder.
    /// @throws CJobError if none is named and neither is there.
    static std::filesystem::path choose(const std::optional<std::string> &named);

    const std::filesystem::path &file() const { return m_file; }
    /// The entry functions that the file exports; the first is the one in use.
    const std::vector<std::string> &entryNames() const { return m_entryNames; }

    /// Calls the entry function. @return null if the effect refuses.
    AEffect *enter(audioMasterCallback host) const { return m_entry(host); }

    /// To be held while an instance comes to life or ends: effects keep unguarded counts of their
    /// instances, since hosts do both on one thread.
    std::mutex &lifetimeLock() const { return m_lifetimeLock; }

private:
    using Entry = AEffect *(*)(audioMasterCallback host);

    std::filesystem::path m_file;
    void *m_handle;
    Entry m_entry = nullptr;
    std::vector<std::string> m_entryNames;
    mutable std::mutex m_lifetimeLock;
};

}  // namespace Tessitor::Tool
