#pragma once

#include "foundation/CSystemString.h"

#include <memory>

namespace Tessitor::GUI::Windowing {
class IWindow;
}

namespace Tessitor::Basics {

/// The names and texts of the program, and where its files are. Set once at start-up, read on
/// [any thread] afterwards, and freed at the end.
class CApplicationInformation {
public:
    /// Stores the texts and the handle, finds the folder of the module, and reads the processor's
    /// features. A null text counts as "".
    /// @param instanceHandle  the module of the effect; see nativeModuleHandle().
    static void setApplicationInformation(const char *company, const char *application,
                                          const char *description, const char *version,
                                          const char *registryPath, const char *copyright,
                                          void *instanceHandle);
    static void destroyApplicationInformation();

    // Each is empty until it is set.
    static const CString &getCompanyName();
    static const CString &getApplicationName();
    static const CString &getDescription();
    static const CString &getVersionString();
    static const CString &getRegistryPath();
    static const CString &getCopyrightString();
    /// The folder of the module, without a trailing separator.
    static const CSystemString &getApplicationPath();

    static void getApplicationFileName(CString &fileName);  ///< path of the host program
    static void getPluginFileName(CString &fileName);       ///< path of the module

    static void *getInstanceHandle() { return s_instanceHandle; }
    static void *getModuleHandle() { return s_moduleHandle; }

    /// The window whose closing ends the program. A plug-in sets none: the host owns the process.
    static void setMainWindow(GUI::Windowing::IWindow *window) { s_mainWindow = window; }
    static GUI::Windowing::IWindow *getMainWindow() { return s_mainWindow; }

    /// Runs the message loop of a program that has no host. @return the exit code.
    static int runMessageLoop();
    static void quitApplication();  ///< ends the message loop with exit code 0

private:
    static std::unique_ptr<CString> s_applicationName;
    static std::unique_ptr<CString> s_companyName;
    static std::unique_ptr<CString> s_versionString;
    static std::unique_ptr<CString> s_copyrightString;
    static std::unique_ptr<CString> s_description;
    static std::unique_ptr<CString> s_registryPath;
    static std::unique_ptr<CSystemString> s_applicationPath;
    // Both are the effect's module. Windows are created with the first; the second finds its path.
    static void *s_instanceHandle;
    static void *s_moduleHandle;
    static GUI::Windowing::IWindow *s_mainWindow;  // not owned
};

}  // namespace Tessitor::Basics
