#include "tests/workstation/session.h"

#include <cstdio>

namespace tarvelon {

std::string crcText(const std::string& bytes) {
    std::uint32_t state = 0xffffffff;
    for (const char byte : bytes) {
        state ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit) {
            state = (state >> 1) ^ ((state & 1) != 0 ? 0xedb88320u : 0u);
        }
    }
    char text[9];
    std::snprintf(text, sizeof text, "%X", ~state);
    return text;
}

std::string settingsWith(const std::string& settings, const std::string& more) {
    return "[Tarvelon]\r\nsettings=" + settings +
           "\r\nadvanced=65536,500,0\r\nantivirus=\r\nav2=\r\nantivirus2=1,0,0\r\nalgo=crc32\r\n\r\n" + more;
}

void Session::TearDown() {
    EXPECT_EQ(pc.dialogs.problems(), "");
    EXPECT_TRUE(pc.messages.scriptDone());
}

bool Session::start(const std::string& arguments) {
    app.reset();
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
    pc.dialogs.expect({.text = firstRunQuestion, .answer = Answer::Yes});
    ASSERT_FALSE(start());
    ASSERT_FALSE(settle());
    ASSERT_TRUE(app->mForm1.Visible());
}

} // namespace tarvelon
