#include "app/application.h"
#include "core/text.h"
#include "regwatch/file_path.h"

#include <initializer_list>
#include <utility>

// What the keyboard, menus and things that are dropped lead to, and where windows stand.

namespace tarvelon {

namespace {

constexpr int refreshKey = 0x74; ///< F5.

} // namespace

void Application::bindKeys() {
    for (Control* control : {&mForm1.Command1, &mForm1.ref, &mForm1.cReports}) {
        control->shortcutKey = refreshKey;
    }
    mForm1.onHelp = [this] {
        const std::pair<const Frame&, const char*> pages[] = {
            {mForm1.intF, "integrity.html"}, {mForm1.regF, "regwatch.html"}, {mForm1.appF, "appwatch.html"},
            {mForm1.setFq, "options.html"},  {mForm1.advF, "advanced.html"}, {mForm1.qSett, "settings.html"},
            {mForm1.repF, "logs.html"}};
        for (const auto& [page, help] : pages) {
            if (page.isShown()) {
                mainForm.showHelp(help);
                return;
            }
        }
        mainForm.showHelp("index.html");
    };
    for (const auto& [screen, help] :
         std::initializer_list<std::pair<Screen&, const char*>>{{intCheck, "scan.html"},
                                                                {frmLogoff, "shutdown.html"},
                                                                {sProg, "shutdown.html"},
                                                                {s_avir, "scanners.html"},
                                                                {aVirHelp, "catalogue.html"},
                                                                {iCust, "folders.html"},
                                                                {vDct, "wizard.html"}}) {
        screen.onHelp = [this, page = help] { mainForm.showHelp(page); };
    }
}

/// Rows that name files lead to them, and fields that want files take what is dropped on them.
void Application::bindFiles() {
    const auto fileOf = [this](const std::string& row) {
        const std::string path = replaceExact(row, " *NEW*", "");
        return funcMod.fileThere(path)
                   ? path
                   : replaceExact(cutToFilePath(globals.texts, row, funcMod).path.value_or(""), "\"", "");
    };
    for (Control* rows : std::initializer_list<Control*>{&intCheck.List1, &mForm1.List5, &mForm1.TreeView1,
                                                         &mForm1.List6, &mForm1.List4}) {
        rows->fileOfRow = fileOf;
    }
    iCust.List1.fileOfRow = [this](const std::string&) { return customFolders.selectedFolder(); };
    iCust.List1.onDrop = [this](const std::string& path) { customFolders.addDropped(path); };
    const auto files = [this](auto take) {
        return [this, take](const std::string& path) {
            if (funcMod.fileThere(path)) {
                take(path);
            }
        };
    };
    s_avir.Text5.onDrop = files([this](const std::string& file) { scannerChoice.takeFirst(file); });
    s_avir.Text1.onDrop = files([this](const std::string& file) { scannerChoice.takeSecond(file); });
    vDct.vpath.onDrop = files([this](const std::string& file) { wizard.take(file); });
}

void Application::bindPlaces() {
    const char* names[] = {"main", "scan", "turnoff", "progress", "scanners", "known", "folders", "wizard"};
    const char* const* name = names;
    for (Screen* screen : screens()) {
        places.keep(*screen, *name++);
    }
}

} // namespace tarvelon
