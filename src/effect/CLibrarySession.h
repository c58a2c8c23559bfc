#pragma once

namespace Tessitor::Corvel {

/// Starts the class library's services when it is constructed: the application information, the
/// class manager, the default font and the image manager. Ends them when it is destroyed, the
/// default font last. The entry point holds the only one: its first call creates it, and unloading
/// the plug-in destroys it.
class CLibrarySession {
public:
    CLibrarySession();
    ~CLibrarySession();
    CLibrarySession(const CLibrarySession &) = delete;
    CLibrarySession &operator=(const CLibrarySession &) = delete;
};

}  // namespace Tessitor::Corvel
