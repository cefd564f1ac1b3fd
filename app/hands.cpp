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
    // Of what shows at once no two have the same letter.
    const std::pair<Control&, char> letters[] = {
        {mForm1.Image5, 'I'},      {mForm1.Image7, 'R'},      {mForm1.Image9, 'A'},
        {mForm1.Image11, 'O'},     {mForm1.cButton6, 'H'},    {mForm1.cButton7, 'B'},
        {mForm1.cButton9, 'X'},    {mForm1.addRem, 'D'},      {mForm1.bDLL, 'Y'},
        {mForm1.bDRV, 'V'},        {mForm1.bSYS, 'M'},        {mForm1.bOCX, 'F'},
        {mForm1.bEXE, 'E'},        {mForm1.bEXE2, 'T'},       {mForm1.bFULL, 'L'},
        {mForm1.bCLEAR, 'C'},      {mForm1.bSCAN, 'S'},       {mForm1.Command1, 'F'},
        {mForm1.Command3, 'D'},    {mForm1.Command11, 'S'},   {mForm1.cScnUpd, 'U'},
        {mForm1.cMod, 'C'},        {mForm1.act, 'T'},         {mForm1.cl, 'C'},
        {mForm1.ref, 'F'},         {mForm1.cSettings, 'E'},   {mForm1.cButton2, 'D'},
        {mForm1.cSetW, 'W'},       {mForm1.cCreateSS, 'S'},   {mForm1.cReports, 'L'},
        {mForm1.cViewReport, 'V'}, {mForm1.cButton3, 'T'},    {mForm1.cUpdates, 'U'},
        {mForm1.cButton10, 'C'},   {mForm1.cSave, 'S'},       {mForm1.cSave2, 'S'},
        {mForm1.cSpeeds, 'C'},     {mForm1.cScnLog, 'S'},     {mForm1.cDelLog, 'D'},
        {mForm1.lines[0].go, 'C'}, {mForm1.lines[1].go, 'M'}, {mForm1.lines[2].go, 'S'},
        {mForm1.lines[3].go, 'L'}, {mForm1.lines[4].go, 'P'}, {mForm1.cButton4, 'V'},
        {mForm1.cButton5, 'Q'},    {mForm1.cX, 'C'},          {intCheck.Image9, 'P'},
        {intCheck.Label11, 'R'},   {intCheck.Image11, 'C'},   {intCheck.Label2, 'U'},
        {intCheck.Label12, 'S'},   {frmLogoff.Label1, 'C'},   {frmLogoff.Label2, 'L'},
        {s_avir.cChoose, 'C'},     {s_avir.chlpFind, 'H'},    {s_avir.cButton10, 'O'},
        {s_avir.cButton1, 'E'},    {s_avir.cButton3, 'S'},    {aVirHelp.Command4, 'S'},
        {aVirHelp.Command2, 'T'},  {aVirHelp.Command3, 'U'},  {aVirHelp.Command1, 'M'},
        {iCust.cButton2, 'A'},     {iCust.Command2, 'R'},     {iCust.Check1, 'U'},
        {iCust.Check2, 'D'},       {iCust.Command3, 'S'},     {vDct.Label2, 'B'},
        {vDct.Label1, 'N'},        {vDct.Command2, 'S'},      {vDct.locate, 'L'},
        {vDct.helpme, 'H'},        {vDct.Command1, 'T'},      {vDct.cButton1, 'C'},
        {vDct.aload, 'E'}};
    for (const auto& [control, letter] : letters) {
        control.accessKey = letter;
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
