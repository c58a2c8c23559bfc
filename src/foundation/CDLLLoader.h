#pragma once

#include "foundation/CSystemString.h"

namespace Tessitor::Host {

/// A shared library, loaded for as long as this object lives. [one thread at a time]
class CDLLLoader : public Basics::CCountedObject {
public:
    CDLLLoader();
    explicit CDLLLoader(const Basics::CString &path);  ///< calls loadDll()
    CDLLLoader(const CDLLLoader &) = delete;
    CDLLLoader &operator=(const CDLLLoader &) = delete;
    ~CDLLLoader() override;  ///< unloads the library; its functions are then gone
    Basics::CClass &getClass() const override { return s_class; }

    /// Unloads the present library and loads this file. If the system refuses the file, because it
    /// is not a library or needs one that is missing, the reason goes to the trace, and
    /// getFunction() returns null from then on.
    /// @throws CException if there is no such file. The present library then stays loaded.
    void loadDll(const Basics::CString &path);
    /// @return the exported function, to be cast to its type; null if there is none of that name.
    void *getFunction(const Basics::CString &name) const;

private:
    static Basics::TClassRecord<CDLLLoader> s_class;

    Basics::CString m_fileName;
    void *m_module = nullptr;
};

}  // namespace Tessitor::Host
