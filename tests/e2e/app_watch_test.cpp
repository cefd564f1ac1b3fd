// The windows of another process, as the program lists, raises and closes them.

#include "driver.h"
#include "workplace.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace e2e {
namespace {

using testing::Contains;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Not;

constexpr const char* className = "Stranger";

/// A window of this process, which lives while the object does or until it is asked to close.
class Stranger {
public:
    explicit Stranger(std::string title, DWORD style = WS_VISIBLE)
        : title_(std::move(title)) {
        WNDCLASSA kind{};
        kind.lpfnWndProc = DefWindowProcA;
        kind.lpszClassName = className;
        RegisterClassA(&kind);
        window_ = CreateWindowExA(WS_EX_NOACTIVATE, className, title_.c_str(), WS_POPUP | WS_CAPTION | style,
                                  0, 0, 200, 60, nullptr, nullptr, nullptr, nullptr);
    }
    Stranger(const Stranger&) = delete;
    ~Stranger() { close(); }

    HWND window() const { return window_; }
    std::string row() const { return std::to_string(GetCurrentProcessId()) + ": " + title_; }
    bool lives() const { return IsWindow(window_) != 0; }
    void close() const { DestroyWindow(window_); }

    bool isInFrontOf(const Stranger& other) const {
        HWND window = other.window_;
        while (window != nullptr && window != window_) {
            window = GetWindow(window, GW_HWNDPREV);
        }
        return window != nullptr;
    }

private:
    std::string title_;
    HWND window_ = nullptr;
};

/// Waits while the windows of this process answer to others.
bool comesTrueHere(const std::function<bool()>& holds) {
    return comesTrue([&] {
        for (MSG message{}; PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) != 0;) {
            DispatchMessageA(&message);
        }
        return holds();
    });
}

TEST(AppWatch, WindowsOfOtherProgramsAreListedRaisedAndClosed) {
    const ProgramFolder folder("app-watch");
    folder.writeData("Integrity.dat", systemBaseline());
    folder.writeSettings({});
    const Stranger watched("A window to watch");
    const Stranger front("Another window");
    const Stranger unseen("An unseen window", 0);
    ASSERT_TRUE(front.isInFrontOf(watched));
    const Program program(folder.program());
    const Form window = program.form("Welcome to Tarvelon");
    const auto isCounted = [&] {
        return window.shows(std::to_string(window.rows().size()) + " open Windows.");
    };
    window.click("AppWatch");
    window.awaitText("Please Click On Refresh");
    window.click("Activate Window");
    EXPECT_THAT(window.rows(), IsEmpty());
    window.click("Refresh");
    EXPECT_TRUE(comesTrueHere(isCounted)) << window.describe();
    EXPECT_THAT(window.rows(), IsSupersetOf({watched.row(), front.row(), unseen.row()}));

    window.clickRow(watched.row());
    window.awaitText(std::string("Class Name: ") + className);
    EXPECT_TRUE(window.shows("ProcessID: " + std::to_string(GetCurrentProcessId()))) << window.describe();
    EXPECT_EQ(window.field(), "A window to watch");
    EXPECT_TRUE(front.isInFrontOf(watched)) << "nothing is raised before it is asked for";
    window.click("Activate Window");
    EXPECT_TRUE(comesTrueHere([&] { return watched.isInFrontOf(front); }));

    const std::string question = "Are you sure you want to close A window to watch(" +
                                 std::to_string(reinterpret_cast<std::uintptr_t>(watched.window())) + ")";
    unseen.close();
    window.click("Close Window");
    program.answer(question, "No");
    EXPECT_TRUE(comesTrueHere([&] { return isCounted() && window.rows().size() > 1; }));
    EXPECT_THAT(window.rows(), Not(Contains(unseen.row()))) << "refreshed whatever the answer is";
    EXPECT_TRUE(watched.lives());
    window.click("Close Window");
    program.answer(question, "Yes");
    EXPECT_TRUE(comesTrueHere([&] { return !watched.lives(); }));
    EXPECT_TRUE(comesTrueHere(
        [&] { return isCounted() && !testing::Value(window.rows(), Contains(watched.row())); }));

    front.close();
    window.clickRow(front.row());
    window.awaitText("Window Not Found!!!");
    EXPECT_TRUE(window.shows("ProcessID: 0"));
}

} // namespace
} // namespace e2e
