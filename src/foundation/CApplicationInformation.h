#pragma once

#include "foundation/CSystemString.h"

#include <memory>

namespace Tessitor::GUI::Windowing {
class IWindow;
}

namespace Tessitor::Basics {

/// What the program is called and where it is. Filled once at start-up, only read afterwards by
/// [any thread], and given back at the end.
class CApplicationInformation {
public:
    /// Stores the texts and the handle, finds the folder that the module lies in, and reads the
    /// processor's features.
    /// @param company  null, here and for the other texts, is taken as "".
    /// @param instanceHandle  the module of the effect, as nativeModuleHandle() gives it.
    static void setApplicationInformation(const char *company, const char *application,
                                          const char *description, const char *version,
                                          const char *registryPath, const char *copyright,
                                          void *instanceHandle);
    static void destroyApplicationInformation();

    // Each is empty as long as it has not been set.
    static const CString &getCompanyName();
    static const CString &getApplicationName();
    static const CString &getDescription();
    static const CString &getVersionString();
    static const CString &getRegistryPath();
    static const CString &getCopyrightString();
    /// The folder of the module, without a separator at its end.
    static const CSystemString &getApplicationPath();

    static void getApplicationFileName(CString &fileName);  ///< path of the process's program
    static void getPluginFileName(CString &fileName);       ///< path of the module

    static void *getInstanceHandle() { return s_instanceHandle; }
    static void *getModuleHandle() { return s_moduleHandle; }

    /// The window whose closing ends the program. A plug-in sets none: the host owns the process.
    static void setMainWindow(GUI::Windowing::IWindow *window) { s_mainWindow = window; }
    static GUI::Windowing::IWindow *getMainWindow() { return s_mainWindow; }

    /// Runs the messages of a program that has no host. @return what the loop was quit with.
    static int runMessageLoop();
    static void quitApplication();  ///< quits the message loop, with 0

private:
    static std::unique_ptr<CString> s_applicationName;
    static std::unique_ptr<CString> s_companyName;
    static std::unique_ptr<CString> s_versionString;
    static std::unique_ptr<CString> s_copyrightString;
    static std::unique_ptr<CString> s_description;
    static std::unique_ptr<CString> s_registryPath;
    static std::unique_ptr<CSystemString> s_applicationPath;
    // Both are the module of the effect: what windows belong to, and whose file it is.
    static void *s_instanceHandle;
    static void *s_moduleHandle;
    static GUI::Windowing::IWindow *s_mainWindow;  // not owned
};

}  // namespace Tessitor::Basics
