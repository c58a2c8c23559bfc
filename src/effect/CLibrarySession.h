#pragma once

namespace Tessitor::Corvel {

/// The class library's services for as long as this library is loaded: its application information
/// and its class manager. One lives in the entry point, built by the first call and destroyed when
/// the library is unloaded.
class CLibrarySession {
public:
    CLibrarySession();
    ~CLibrarySession();
    CLibrarySession(const CLibrarySession &) = delete;
    CLibrarySession &operator=(const CLibrarySession &) = delete;
};

}  // namespace Tessitor::Corvel
