#include "foundation/CApplicationInformation.h"

#include "foundation/ProcessorFeatures.h"
#include "platform/NativeMessageLoop.h"
#include "platform/NativeModule.h"
#include "platform/NativePath.h"

#include <string>

namespace Tessitor::Basics {

constinit std::unique_ptr<CString> CApplicationInformation::s_applicationName;
constinit std::unique_ptr<CString> CApplicationInformation::s_companyName;
constinit std::unique_ptr<CString> CApplicationInformation::s_versionString;
constinit std::unique_ptr<CString> CApplicationInformation::s_copyrightString;
constinit std::unique_ptr<CString> CApplicationInformation::s_description;
constinit std::unique_ptr<CString> CApplicationInformation::s_registryPath;
constinit std::unique_ptr<CSystemString> CApplicationInformation::s_applicationPath;
constinit void *CApplicationInformation::s_instanceHandle = nullptr;
constinit void *CApplicationInformation::s_moduleHandle = nullptr;
constinit GUI::Windowing::IWindow *CApplicationInformation::s_mainWindow = nullptr;

namespace {

template <typename Text>
Text &createdOnDemand(std::unique_ptr<Text> &text) {
    if (text == nullptr)
        text = std::make_unique<Text>();
    return *text;
}

// A CString built from null is "", while setString(null) would keep the old text.
void store(std::unique_ptr<CString> &value, const char *text) {
    createdOnDemand(value).setString(CString(text));
}

std::string folderOf(const std::string &path) {
    return path.substr(0, path.rfind(nativePathSeparator));
}

}  // namespace

void CApplicationInformation::setApplicationInformation(
    const char *company, const char *application, const char *description, const char *version,
    const char *registryPath, const char *copyright, void *instanceHandle) {
    s_instanceHandle = instanceHandle;
    s_moduleHandle = instanceHandle;
    store(s_companyName, company);
    store(s_applicationName, application);
    store(s_description, description);
    store(s_versionString, version);
    store(s_registryPath, registryPath);
    store(s_copyrightString, copyright);
    createdOnDemand(s_applicationPath)
        .setString(folderOf(nativeModulePath(instanceHandle)).c_str());
    readProcessorFeatures();
}

void CApplicationInformation::destroyApplicationInformation() {
    s_applicationName.reset();
    s_companyName.reset();
    s_versionString.reset();
    s_copyrightString.reset();
    s_description.reset();
    s_registryPath.reset();
    s_applicationPath.reset();
}

const CString &CApplicationInformation::getCompanyName() {
    return createdOnDemand(s_companyName);
}

const CString &CApplicationInformation::getApplicationName() {
    return createdOnDemand(s_applicationName);
}

const CString &CApplicationInformation::getDescription() {
    return createdOnDemand(s_description);
}

const CString &CApplicationInformation::getVersionString() {
    return createdOnDemand(s_versionString);
}

const CString &CApplicationInformation::getRegistryPath() {
    return createdOnDemand(s_registryPath);
}

const CString &CApplicationInformation::getCopyrightString() {
    return createdOnDemand(s_copyrightString);
}

const CSystemString &CApplicationInformation::getApplicationPath() {
    return createdOnDemand(s_applicationPath);
}

void CApplicationInformation::getApplicationFileName(CString &fileName) {
    fileName.setString(nativeModulePath(nullptr).c_str());
}

void CApplicationInformation::getPluginFileName(CString &fileName) {
    fileName.setString(nativeModulePath(s_moduleHandle).c_str());
}

int CApplicationInformation::runMessageLoop() {
    return runNativeMessageLoop();
}

void CApplicationInformation::quitApplication() {
    quitNativeMessageLoop(0);
}

}  // namespace Tessitor::Basics
