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

    /// Gives back what is loaded and loads the file. One that the system refuses, for it is no
    /// library or lacks another, is no failure: it has no functions.
    /// Throws CException, and keeps what is loaded, if there is no such file.
    void loadDll(const Basics::CString &path);
    /// @return the exported function, to be cast to its type; null if there is none of that name.
    void *getFunction(const Basics::CString &name) const;

private:
    static Basics::TClassRecord<CDLLLoader> s_class;

    Basics::CString m_fileName;
    void *m_module = nullptr;
};

}  // namespace Tessitor::Host
