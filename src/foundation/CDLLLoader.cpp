#include "foundation/CDLLLoader.h"

#include "foundation/CException.h"
#include "foundation/FileExists.h"
#include "foundation/Trace.h"
#include "platform/NativeLibrary.h"

#include <string>

namespace Tessitor::Host {

Basics::TClassRecord<CDLLLoader> CDLLLoader::s_class("CDLLLoader", "CCountedObject");

CDLLLoader::CDLLLoader() {
    s_class.incrementInstanceCount();
}

CDLLLoader::CDLLLoader(const Basics::CString &path) : CDLLLoader() {
    loadDll(path);
}

CDLLLoader::~CDLLLoader() {
    closeNativeLibrary(m_module);
    s_class.decrementInstanceCount();
}

void CDLLLoader::loadDll(const Basics::CString &path) {
    if (!fileExists(path)) {
        Basics::CString reason(path);
        reason += " doesnt exist";
        throw Exceptions::CException(reason, "CDLLLoader::loadDll(const CString &)", true);
    }
    closeNativeLibrary(m_module);
    m_fileName.setString(path);
    std::string reason;
    m_module = openNativeLibrary(m_fileName.getString(), reason);
    if (m_module == nullptr)
        IO::trace("Failed to load library with path = %s: %s", m_fileName.getString(),
                  reason.c_str());
}

void *CDLLLoader::getFunction(const Basics::CString &name) const {
    return m_module != nullptr ? nativeSymbol(m_module, name.getString()) : nullptr;
}

}  // namespace Tessitor::Host
