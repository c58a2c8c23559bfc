#pragma once

#include "foundation/CSystemString.h"

namespace Tessitor::Host {

/// A shared library, open as long as this lives. [one thread at a time]
class CDLLLoader : public Basics::CCountedObject {
public:
    CDLLLoader();
    explicit CDLLLoader(const Basics::CString &path);  ///< loads at once, and may throw
    CDLLLoader(const CDLLLoader &) = delete;
    CDLLLoader &operator=(const CDLLLoader &) = delete;
    ~CDLLLoader() override;  ///< gives the library back, and its functions with it
    Basics::CClass &getClass() const override { return s_class; }

    /// Gives back the library that is loaded and loads this file. If the system refuses it, because
    /// it is not a library or needs one that is missing, the reason goes to the trace and there are
    /// no functions.
    /// @throws CException if there is no such file; the old library then stays loaded.
    void loadDll(const Basics::CString &path);
    /// @return the exported function, to be cast to its type; null if there is none of that name.
    void *getFunction(const Basics::CString &name) const;

private:
    static Basics::TClassRecord<CDLLLoader> s_class;

    Basics::CString m_fileName;
    void *m_module = nullptr;
};

}  // namespace Tessitor::Host
