#include "tests/view/sample.h"

// Forms, and the keyboard among their controls.

namespace tarvelon {

struct Box {
    const char* title;
    Buttons buttons;
    int button;
    Answer answer;
    int missing; ///< A button that the box does not have.
};

static Box box; ///< Stands open while a test waits for its answer.

static void CALLBACK answerBox(HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    EXPECT_FALSE(IsWindowEnabled(FindWindowA("TarvelonForm", "Sample")));
    const HWND window = FindWindowA("#32770", *box.title ? box.title : "TarvelonLow");
    // An only button may be numbered so that Esc presses it.
    const int button = GetDlgItem(window, box.button) ? box.button : IDCANCEL;
    const int missing = button == box.button ? box.missing : box.button;
    EXPECT_TRUE(GetDlgItem(window, button) && !GetDlgItem(window, missing)) << box.button;
    SendMessageA(window, WM_COMMAND, static_cast<WPARAM>(button), 0);
}

TEST_F(View, KeysGoOnlyToWhatIsSeen) {
    SetFocus(windowOf(screen.check));
    screen.check.Visible = screen.navigation.Visible = false;
    pumpFor(90);
    EXPECT_EQ(GetFocus(), windowOf(screen.step)) << "The first that takes them";

    // The character of the key comes behind the click, to a button that is hidden by then.
    screen.button.onClick = [&] {
        screen.page.Visible = false;
        screen.plain.Caption = "Other"; // Drawn before all of the page is there.
        screen.navigation.Visible = true;
    };
    SetFocus(windowOf(screen.button));
    PostMessageA(windowOf(screen.button), WM_KEYDOWN, VK_RETURN, 1);
    pumpFor(0);
    EXPECT_EQ(GetFocus(), windowOf(screen.entry)) << "On the page that has come, without another pump";

    // A lit picture takes the mouse and leaves the keyboard to the plain one below.
    screen.plain.onFocusLost = [&] { screen.lit.Visible = false; };
    screen.plain.onKeyPress = hear("press ");
    screen.plain.onKeyClick = hear("plain ");
    screen.lit.onClick = hear("lit");
    screen.lit.Visible = true;
    press(screen.plain, VK_SPACE);
    press(screen.plain, VK_RETURN);
    SetFocus(windowOf(screen.plain));
    click(screen.lit, 32, 32);
    EXPECT_EQ(GetFocus(), windowOf(screen.plain));
    EXPECT_EQ(heard, "press plain press plain lit");
    RECT place;
    GetWindowRect(windowOf(screen.lit), &place);
    EXPECT_EQ(ask(screen.lit, WM_NCHITTEST, 0, MAKELPARAM(place.left + 2, place.top + 2)), HTTRANSPARENT);
    for (const bool usable : {false, true}) {
        screen.navigation.Visible = usable;
        screen.plain.Enabled = usable;
        pumpFor(60);
        EXPECT_EQ(GetFocus(), usable ? windowOf(screen.entry) : form) << "As soon as something takes them";
    }
    EXPECT_FALSE(IsWindowVisible(windowOf(screen.lit)) || isTabStop(screen.lit));
}

TEST_F(View, FormsComeForwardCloseAndAreAllBlockedByABox) {
    SampleScreen other;
    other.Caption = "Other";
    view.attach(other);
    screen.onKeyDown = [&](int key) { heard += std::to_string(key); };
    screen.onKeyUp = [&](int key) { heard += std::to_string(-key); };
    screen.button.onClick = [&] {
        other.show();
        pumpFor(0);
    };
    screen.onMouseMove = hear("over ");
    SendMessageA(form, WM_MOUSEMOVE, 0, 0);
    SetFocus(windowOf(screen.text));
    PostMessageA(windowOf(screen.button), BM_CLICK, 0, 0);
    PostMessageA(windowOf(screen.text), WM_KEYDOWN, VK_SHIFT, 1);
    PostMessageA(windowOf(screen.text), WM_KEYUP, VK_SHIFT, static_cast<LPARAM>(0xC0000001));
    pumpFor(0);
    EXPECT_EQ(heard, "over 16-16");
    const HWND otherForm = FindWindowA("TarvelonForm", "Other");
    SetForegroundWindow(form);
    SetFocus(windowOf(screen.check));
    ShowWindow(form, SW_MINIMIZE);
    ShowWindow(form, SW_RESTORE);
    EXPECT_EQ(GetFocus(), windowOf(screen.check)) << "As it was left";
    ShowWindow(otherForm, SW_MINIMIZE);
    EXPECT_TRUE(other.Minimized());
    other.show();
    other.Minimized = true;
    EXPECT_TRUE(IsIconic(otherForm));
    other.show();
    for (const Box& shown : {Box{"", Buttons::Ok, IDOK, Answer::Ok, IDCANCEL},
                             {"Own", Buttons::OkCancel, IDCANCEL, Answer::Cancel, IDYES},
                             {"", Buttons::YesNo, IDYES, Answer::Yes, IDOK},
                             {"", Buttons::YesNo, IDNO, Answer::No, IDCANCEL}}) {
        box = shown;
        SetTimer(nullptr, 0, 50, answerBox);
        EXPECT_EQ(platform.platform().dialogs.message({"A box", box.title, box.buttons}), box.answer);
        EXPECT_TRUE(IsWindowEnabled(form) && GetActiveWindow() == otherForm);
    }
    for (const bool closes : {false, true}) {
        other.onQueryClose = [closes] { return closes; };
        SendMessageA(otherForm, WM_CLOSE, 0, 0);
        EXPECT_EQ(IsWindowVisible(otherForm) == FALSE, closes);
        screen.canMinimize = !closes;
        SendMessageA(form, WM_COMMAND, IDCANCEL, 0);
        EXPECT_EQ(screen.Visible(), !closes) << "Esc does not close a main window";
    }
    EXPECT_EQ(platform.platform().messages.queueStatus(QS_HOTKEY), 0u);
    PostMessageA(form, WM_NULL, 0, 0);
    EXPECT_NE(platform.platform().messages.queueStatus(QS_POSTMESSAGE), 0u) << "Another question";
    PostQuitMessage(7);
    pumpFor(0);
    EXPECT_EQ(platform.runMessageLoop(), 7) << "Left by the pump for the loop";
}

} // namespace tarvelon
