#include "link_file.h"

#include "workplace.h"

#include <windows.h>

#include <shlobj.h>

#include <cstdint>
#include <cstring>
#include <memory>

namespace e2e {

namespace {

struct Release {
    void operator()(IUnknown* object) const { object->Release(); }
};
template<class Interface>
using Held = std::unique_ptr<Interface, Release>;

class Component {
public:
    Component() { CoInitialize(nullptr); }
    Component(const Component&) = delete;
    ~Component() { CoUninitialize(); }
};

/// As the link file has it at this place; the object tells only of the usual few.
int showCommandIn(const std::string& path) {
    constexpr std::size_t place = 60;
    const std::string bytes = readFile(path).value_or("");
    std::int32_t command = -1;
    if (bytes.size() >= place + sizeof command) {
        std::memcpy(&command, bytes.data() + place, sizeof command);
    }
    return command;
}

LinkFile contentsOf(IShellLinkA& link) {
    char text[1024] = {};
    int iconIndex = 0;
    LinkFile file;
    link.GetPath(text, sizeof text, nullptr, SLGP_RAWPATH);
    file.target = text;
    link.GetArguments(text, sizeof text);
    file.arguments = text;
    link.GetWorkingDirectory(text, sizeof text);
    file.workingFolder = text;
    link.GetDescription(text, sizeof text);
    file.description = text;
    link.GetIconLocation(text, sizeof text, &iconIndex);
    file.icon = std::string(text) + "," + std::to_string(iconIndex);
    return file;
}

} // namespace

std::optional<LinkFile> readLink(const std::string& path) {
    const Component component;
    IShellLinkA* made = nullptr;
    if (FAILED(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkA,
                                reinterpret_cast<void**>(&made)))) {
        return std::nullopt;
    }
    const Held<IShellLinkA> link(made);
    IPersistFile* persistent = nullptr;
    if (FAILED(link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&persistent)))) {
        return std::nullopt;
    }
    const Held<IPersistFile> file(persistent);
    wchar_t wide[MAX_PATH] = {};
    MultiByteToWideChar(CP_ACP, 0, path.c_str(), -1, wide, MAX_PATH);
    if (FAILED(file->Load(wide, STGM_READ))) {
        return std::nullopt;
    }
    LinkFile contents = contentsOf(*link);
    contents.show = showCommandIn(path);
    return contents;
}

} // namespace e2e
