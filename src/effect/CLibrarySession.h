#pragma once

namespace Tessitor::Corvel {

/// Starts the class library's services, the application information and the class manager, and ends
/// them when it is destroyed. The entry point holds the only one: its first call creates it, and
/// unloading the plug-in destroys it.
class CLibrarySession {
public:
    CLibrarySession();
    ~CLibrarySession();
    CLibrarySession(const CLibrarySession &) = delete;
    CLibrarySession &operator=(const CLibrarySession &) = delete;
};

}  // namespace Tessitor::Corvel
