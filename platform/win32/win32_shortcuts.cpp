#include "platform/win32/parts.h"

#include "platform/win32/component.h"
#include "platform/win32/script_object.h"
#include "platform/win32/wide.h"

#include <shlobj.h>

#include <functional>

namespace tarvelon {

namespace {

/// By the interface for wide or narrow texts, into which `turned` turns each text.
template<class Interface, class Turned>
bool save(const std::string& linkPath, const ShellLink& link, const Turned& turned) {
    const auto object = makeComponent<Interface>(CLSID_ShellLink);
    const auto file = object ? queryComponent<IPersistFile>(*object) : nullptr;
    const auto given = [&](const std::string& text, const auto& call) {
        return text.empty() || SUCCEEDED(call(turned(text).c_str()));
    };
    const bool isFilled =
        file && SUCCEEDED(object->SetPath(turned(link.path).c_str())) &&
        given(link.workingDirectory, [&](auto text) { return object->SetWorkingDirectory(text); }) &&
        given(link.arguments, [&](auto text) { return object->SetArguments(text); }) &&
        SUCCEEDED(object->SetDescription(turned(link.description).c_str())) &&
        given(link.iconFile, [&](auto text) { return object->SetIconLocation(text, link.iconIndex); });
    if (!isFilled) {
        return false;
    }
    object->SetShowCmd(link.showCmd); // Where only the three usual ways are taken, the first of them stays.
    return SUCCEEDED(object->Resolve(nullptr, link.resolveFlags)) &&
           SUCCEEDED(file->Save(briefPath(linkPath).c_str(), FALSE));
}

/// Needs the component library on its thread, which `Win32Platform` starts once.
class Win32Shortcuts : public Shortcuts {
public:
    bool saveShellLink(const std::string& linkPath, const ShellLink& link) override {
        return hasWideCalls() ? save<IShellLinkW>(linkPath, link, wideText)
                              : save<IShellLinkA>(linkPath, link, std::identity());
    }

    bool saveScripted(const std::string& linkPath, const ScriptedShortcut& shortcut) override {
        const ScriptObject shell(L"WScript.Shell");
        ScriptValue created;
        if (!shell || !shell.call(L"CreateShortcut", linkPath, created)) {
            return false;
        }
        const ScriptObject file(created);
        return file && (shortcut.arguments.empty() || file.set(L"Arguments", shortcut.arguments)) &&
               file.set(L"Description", shortcut.description) &&
               file.set(L"TargetPath", shortcut.targetPath) &&
               file.set(L"WindowStyle", shortcut.windowStyle) && file.call(L"Save");
    }
};

} // namespace

std::unique_ptr<Shortcuts> makeShortcuts() {
    return std::make_unique<Win32Shortcuts>();
}

} // namespace tarvelon
