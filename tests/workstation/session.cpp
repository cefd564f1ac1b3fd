#include "tests/workstation/session.h"

namespace tarvelon {

void Session::TearDown() {
    EXPECT_EQ(pc.dialogs.problems(), "");
    EXPECT_TRUE(pc.messages.scriptDone());
    EXPECT_EQ(pc.files.movedUnflushed(), Rows());
}

bool Session::start(const std::string& arguments) {
    app.reset();
    pc.view.forgetTimers();
    pc.processes.arguments = arguments;
    app = std::make_unique<Application>(pc.platform());
    for (Screen* screen : app->screens()) {
        pc.attach(*screen);
    }
    return ends([this] { app->start(); });
}

bool Session::settle() {
    return ends([this] { pc.messages.advance(1000); });
}

bool Session::ends(const std::function<void()>& action) {
    try {
        action();
    } catch (const ProcessEnded&) {
        return true;
    }
    return false;
}

void Session::makeBaseline() {
    asks(firstRunQuestion, Answer::Yes);
    ASSERT_FALSE(start());
    ASSERT_FALSE(settle());
    ASSERT_TRUE(app->mForm1.Visible());
}

void Session::putSettings(const SettingsText& text) {
    pc.files.put(dataFolder + "Tarvelon.dat",
                 "[Tarvelon]\r\nsettings=" + text.settings + "\r\nadvanced=65536," + text.passCount +
                     ",0\r\nantivirus=" + text.antivirus + "\r\nav2=" + text.av2 +
                     "\r\nantivirus2=" + text.antivirus2 + "\r\nalgo=crc32\r\n\r\n" + text.folders);
}

void Session::tells(const std::string& text, const std::string& title) {
    if (text.empty()) {
        return;
    }
    pc.dialogs.expect({.text = text, .title = title, .buttons = Buttons::Ok});
}

void Session::asks(const std::string& text, Answer answer, const std::string& title) {
    pc.dialogs.expect({.text = text, .answer = answer, .title = title, .buttons = Buttons::YesNo});
}

void Session::pendingRenames(const std::string& bytes) {
    pc.registry.setValue(Registry::localMachine, R"(System\CurrentControlSet\Control\Session Manager)",
                         "PendingFileRenameOperations", {SimRegistry::TextList, bytes});
}

Rows Session::lines() const {
    Rows all;
    for (const StartedProcess& process : pc.processes.started()) {
        all.push_back(process.commandLine);
    }
    return all;
}

} // namespace tarvelon
