#include "platform/win32/parts.h"

#include "platform/win32/component.h"
#include "platform/win32/script_object.h"
#include "platform/win32/wide.h"

#include <shlobj.h>

namespace tarvelon {

namespace {

/// Needs the component library on its thread, which `Win32Platform` starts once.
class Win32Shortcuts : public Shortcuts {
public:
    bool saveShellLink(const std::string& linkPath, const ShellLink& link) override {
        const auto object = makeComponent<IShellLinkA>(CLSID_ShellLink);
        const auto file = object ? queryComponent<IPersistFile>(*object) : nullptr;
        const auto given = [](const std::string& text, const auto& call) {
            return text.empty() || SUCCEEDED(call(text.c_str()));
        };
        return file && SUCCEEDED(object->SetPath(link.path.c_str())) &&
               given(link.workingDirectory, [&](LPCSTR text) { return object->SetWorkingDirectory(text); }) &&
               given(link.arguments, [&](LPCSTR text) { return object->SetArguments(text); }) &&
               SUCCEEDED(object->SetDescription(link.description.c_str())) &&
               given(link.iconFile,
                     [&](LPCSTR text) { return object->SetIconLocation(text, link.iconIndex); }) &&
               SUCCEEDED(object->SetShowCmd(link.showCmd)) &&
               SUCCEEDED(object->Resolve(nullptr, link.resolveFlags)) &&
               SUCCEEDED(file->Save(wideText(linkPath).c_str(), FALSE));
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
