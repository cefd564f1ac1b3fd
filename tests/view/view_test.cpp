#include "platform/win32/view_theme.h"
#include "platform/win32/win32_platform.h"
#include "platform/win32/windows_api.h"
#include "ui/controls/tree.h"

#include <gmock/gmock.h>

#include <commctrl.h>

#include <cstring>

namespace tarvelon {

namespace {

struct SampleScreen : Screen {
    SampleScreen()
        : Screen("Sample", 400, 330) {}

    Frame page{*this, at(0, 0, 400, 260)};
    Label label{page, "A label", at(8, 8, 120, 16)};
    Label gauge{page, "50%", at(200, 8, 192, 16), TextStyle::Gauge};
    FlatButton button{page, "A && B", at(8, 32, 120, 32)};
    Label action{page, "An action", at(136, 32, 120, 32), TextStyle::Action};
    FlatCheck check{page, "A check", at(8, 72, 120, 24)};
    OptionButton first{page, "First", at(8, 104, 120, 24)};
    OptionButton second{page, "Second", at(136, 104, 120, 24)};
    TextBox text{page, at(8, 136, 120, 24)};
    ListBox list{page, at(8, 168, 120, 80)};
    ListBox unseenList{page, at(136, 168, 120, 80), false};
    CheckListBox checkList{page, at(264, 168, 120, 80)};
    ComboBox combo{page, at(264, 136, 120, 24)};
    ProgressBar bar{page, at(264, 104, 120, 16)};
    Tree tree{page, at(264, 32, 120, 60)};
    Picture lit{*this, at(300, 262, 64, 64), "restart-lit", "Restart"};
    Picture plain{*this, at(300, 262, 64, 64), "restart", "Restart"};
};

class View : public testing::Test {
protected:
    View() {
        platform.view().attach(screen);
        screen.lit.Visible = false;
        screen.show();
        form = FindWindowA("TarvelonForm", "Sample");
    }

    void pumpFor(DWORD milliseconds) {
        const DWORD start = GetTickCount();
        do {
            platform.platform().messages.pump();
            Sleep(1);
        } while (GetTickCount() - start < milliseconds);
    }

    /// The child window in the given place, as another program would find it.
    HWND windowAt(const Control& control) const {
        const HWND parent = control.frame() ? GetWindow(form, GW_CHILD) : form;
        for (HWND child = GetWindow(parent, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
            RECT place;
            GetWindowRect(child, &place);
            MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&place), 2);
            if (place.left == control.place().x && place.top == control.place().y) {
                return child;
            }
        }
        ADD_FAILURE() << "There is no window at the control's place";
        return nullptr;
    }

    LRESULT ask(const Control& control, UINT message, WPARAM wide = 0, LPARAM low = 0) const {
        return SendMessageA(windowAt(control), message, wide, low);
    }

    void click(const Control& control, int x, int y) const {
        ask(control, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
        ask(control, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    }

    static std::string textOf(HWND window, WPARAM size = 256) {
        char text[256] = "";
        SendMessageA(window, WM_GETTEXT, size, reinterpret_cast<LPARAM>(text));
        return text;
    }

    bool isTabStop(const Control& control) const {
        return (GetWindowLongA(windowAt(control), GWL_STYLE) & WS_TABSTOP) != 0;
    }

    struct Spot {
        const Control& control;
        int x;
        int y;
        Color color;
    };
    void expectDrawn(std::initializer_list<Spot> spots) {
        pumpFor(60);
        for (const Spot& spot : spots) {
            const HWND window = windowAt(spot.control);
            const HDC dc = GetDC(window);
            EXPECT_EQ(GetPixel(dc, spot.x, spot.y), spot.color) << textOf(window) << " at " << spot.x;
            ReleaseDC(window, dc);
        }
    }

    Win32Platform platform;
    SampleScreen screen;
    HWND form = nullptr;
    const Theme theme = currentTheme();
};

TEST_F(View, CaptionsAnswerAtOnce) {
    for (int turn = 0; turn < 100; ++turn) {
        screen.label.Caption = "C:\\file" + std::to_string(turn);
        screen.Caption = "Sample " + std::to_string(turn);
        ASSERT_EQ(textOf(windowAt(screen.label)), screen.label.Caption());
        ASSERT_EQ(textOf(form), screen.Caption());
    }
    EXPECT_EQ(ask(screen.label, WM_GETTEXTLENGTH), 9);
    EXPECT_EQ(textOf(windowAt(screen.label), 5), "C:\\f") << "Cut to the buffer, its zero included";
    pumpFor(60);
    EXPECT_EQ(FindWindowA("TarvelonForm", "Sample 99"), form);
}

TEST_F(View, ControlsAreDrawnInTheirLastState) {
    screen.list.add("one");
    screen.list.add("two");
    screen.list.setListIndex(1);
    screen.bar.setMax(400);
    screen.bar.setValue(300);
    screen.second.setValue(true);
    expectDrawn({{screen.label, 110, 8, theme.page.ground},
                 {screen.gauge, 40, 8, theme.bar},
                 {screen.gauge, 100, 8, theme.track},
                 {screen.button, 4, 16, theme.button.normal},
                 {screen.action, 0, 16, theme.action.border},
                 {screen.action, 4, 16, theme.action.normal},
                 {screen.check, 9, 12, theme.field},
                 {screen.second, 4, 12, theme.selected},
                 {screen.second, 9, 12, theme.selectedText},
                 {screen.list, 2, 4, theme.field},
                 {screen.list, 2, 30, theme.selected},
                 {screen.combo, 3, 12, theme.field},
                 {screen.bar, 60, 8, theme.bar},
                 {screen.bar, 110, 8, theme.track},
                 {screen.plain, 15, 32, theme.restart.normal}});
    EXPECT_EQ(ask(screen.bar, PBM_GETPOS), 300);

    for (int percent = 0; percent <= 80; ++percent) {
        screen.gauge.Caption = std::to_string(percent) + "%";
    }
    ask(screen.button, WM_MOUSEMOVE, 0, MAKELPARAM(60, 16));
    ask(screen.action, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(60, 16));
    ask(screen.check, BM_CLICK);
    screen.second.Enabled = screen.plain.Enabled = false;
    expectDrawn({{screen.gauge, 100, 8, theme.bar},
                 {screen.button, 4, 16, theme.button.hovered},
                 {screen.action, 4, 16, theme.action.pressed},
                 {screen.check, 4, 6, theme.selected},
                 {screen.second, 4, 12, theme.disabledText},
                 {screen.plain, 15, 32, theme.restart.disabled}});
}

TEST_F(View, ButtonsArePressedByMouseAndByOtherPrograms) {
    int clicks = 0;
    screen.button.onClick = screen.check.onClick = [&] { ++clicks; };
    ask(screen.button, BM_CLICK);
    ask(screen.check, BM_CLICK);
    EXPECT_EQ(ask(screen.check, BM_GETCHECK), BST_CHECKED);
    click(screen.button, 60, 16);
    EXPECT_EQ(clicks, 3);
    ask(screen.button, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(60, 16));
    EXPECT_EQ(screen.button.foreColor(), colors::white);
    ask(screen.button, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(60, 90));
    EXPECT_EQ(screen.button.foreColor(), colors::black) << "The mouse has left while held";
    ask(screen.button, WM_LBUTTONUP, 0, MAKELPARAM(60, 90));
    screen.button.Enabled = false;
    EXPECT_FALSE(IsWindowEnabled(windowAt(screen.button)));
    ask(screen.button, BM_CLICK);
    EXPECT_EQ(clicks, 3);

    std::string course;
    screen.action.onMouseDown = [&] { course += "down "; };
    screen.action.onMouseUp = [&] { course += "up "; };
    screen.action.onClick = [&] { course += "click"; };
    click(screen.action, 60, 16);
    EXPECT_EQ(course, "down up click") << "A label hears of the press as well";

    EXPECT_TRUE(isTabStop(screen.first) && isTabStop(screen.second));
    ask(screen.second, BM_CLICK);
    EXPECT_TRUE(isTabStop(screen.second) && !isTabStop(screen.first)) << "Tab leads to the choice";
    ask(screen.first, BM_CLICK);
    EXPECT_EQ(ask(screen.second, BM_GETCHECK), BST_UNCHECKED);

    ask(screen.check, WM_MOUSEMOVE, 0, MAKELPARAM(40, 12));
    EXPECT_TRUE(screen.check.hovered());
    ask(screen.check, WM_MOUSEMOVE, 0, MAKELPARAM(4, 12));
    EXPECT_FALSE(screen.check.hovered()) << "The box has no look of its own";
}

TEST_F(View, KeysGoOnlyToWhatIsSeen) {
    int clicks = 0;
    screen.action.onClick = [&] { ++clicks; };
    const HWND action = windowAt(screen.action);
    SetFocus(action);
    SendMessageA(action, WM_KEYDOWN, VK_SPACE, 1);
    SetFocus(windowAt(screen.text));
    SendMessageA(action, WM_LBUTTONUP, 0, MAKELPARAM(60, 16));
    EXPECT_EQ(clicks, 0) << "The keyboard has gone elsewhere";
    SetFocus(action);
    SendMessageA(action, WM_KEYDOWN, VK_SPACE, 1);
    SendMessageA(action, WM_KEYUP, VK_SPACE, static_cast<LPARAM>(0xC0000001));
    EXPECT_EQ(clicks, 1);

    screen.unseenList.add("row");
    pumpFor(60);
    EXPECT_FALSE(IsWindowVisible(windowAt(screen.unseenList))) << "New rows bring nothing to light";
    SetFocus(windowAt(screen.check));
    screen.check.Visible = false;
    pumpFor(60);
    EXPECT_TRUE(GetFocus() != windowAt(screen.check) && GetFocus() != form);

    // The character of the key comes behind the click, to a button that is hidden by then.
    screen.button.onClick = [&] { screen.page.Visible = false; };
    SetFocus(windowAt(screen.button));
    PostMessageA(windowAt(screen.button), WM_KEYDOWN, VK_RETURN, 1);
    pumpFor(60);
    EXPECT_FALSE(IsWindowVisible(windowAt(screen.label)));
    EXPECT_EQ(GetFocus(), GetWindow(windowAt(screen.lit), GW_HWNDNEXT));
}

TEST_F(View, RowsFollowAndAreChosen) {
    for (int row = 0; row < 1000; ++row) {
        screen.list.add("row " + std::to_string(row));
    }
    screen.list.remove(0);
    screen.list.replace(1, "new");
    EXPECT_EQ(ask(screen.list, LB_GETCOUNT), 999);
    char text[32] = {};
    ask(screen.list, LB_GETTEXT, 1, reinterpret_cast<LPARAM>(text));
    EXPECT_STREQ(text, "new");
    std::string chosen;
    screen.list.onClick = [&] { chosen = screen.list.text(); };
    screen.list.setListIndex(2);
    EXPECT_EQ(chosen, "") << "Selected by code, it raises no click";
    EXPECT_EQ(ask(screen.list, LB_GETCURSEL), 2);
    click(screen.list, 30, 30);
    EXPECT_EQ(chosen, "new");

    screen.checkList.add("first");
    screen.checkList.add("second");
    EXPECT_EQ(ask(screen.checkList, LB_GETCOUNT), 2);
    click(screen.checkList, 30, 26);
    EXPECT_TRUE(screen.checkList.ticked(1) && ask(screen.checkList, LB_GETITEMDATA, 1) == 1);
    click(screen.checkList, 30, 70);
    EXPECT_TRUE(screen.checkList.ticked(1)) << "Below the last row there is nothing to click";
    ask(screen.checkList, WM_KEYDOWN, VK_SPACE);
    EXPECT_FALSE(screen.checkList.ticked(1));

    int changes = 0;
    screen.text.onChange = [&] { ++changes; };
    screen.text.Caption = "by code";
    ask(screen.text, EM_SETSEL, 7, 7);
    ask(screen.text, WM_CHAR, '!');
    EXPECT_EQ(screen.text.Caption(), "by code!");
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(LOWORD(ask(screen.text, EM_GETSEL)), 8) << "The caret stays behind what was typed";
}

TEST_F(View, ATreeMayBeFilledAnewByItsOwnClickAndKeys) {
    const auto fill = [this] {
        screen.tree.clear();
        screen.tree.addRoot("root", "Root");
        screen.tree.addChild("root", "value", std::string("seen\0unseen", 11));
    };
    fill();
    const HWND tree = windowAt(screen.tree);
    std::string heard;
    screen.tree.onDoubleClick = [&] { heard += "twice "; };
    screen.tree.onExpandOrCollapse = [&] { heard += "opened "; };
    screen.tree.onNodeClick = [&] {
        heard += screen.tree.selected()->key + " ";
        fill();
        pumpFor(0);
        platform.view().refresh();
    };
    // Every key may fill the tree anew, and the keyboard still gets on.
    screen.tree.onKeyDown = [&](int) { fill(); };
    SendMessageA(tree, TVM_SELECTITEM, TVGN_CARET, SendMessageA(tree, TVM_GETNEXTITEM, TVGN_ROOT, 0));
    const LRESULT root = SendMessageA(tree, TVM_GETNEXTITEM, TVGN_ROOT, 0);
    EXPECT_EQ(SendMessageA(tree, TVM_GETNEXTITEM, TVGN_CARET, 0), root) << "It is still the same node";
    for (const WPARAM key : {VK_RIGHT, VK_DOWN}) {
        SendMessageA(tree, WM_KEYDOWN, key, 1);
        platform.view().refresh();
    }
    EXPECT_EQ(heard, "root opened value ");
    screen.tree.clear();
    screen.tree.addRoot("other", "Other");
    screen.tree.onKeyDown = {};
    SendMessageA(tree, WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_EQ(heard, "root opened value other ") << "The keyboard finds its way in where nothing is selected";
    platform.view().refresh();
    RECT place{};
    const LRESULT first = SendMessageA(tree, TVM_GETNEXTITEM, TVGN_ROOT, 0);
    std::memcpy(&place, &first, sizeof first);
    ask(screen.tree, TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&place));
    ask(screen.tree, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(place.left + 2, place.top + 2));
    EXPECT_THAT(heard, testing::HasSubstr("twice "));
}

TEST_F(View, ALitPictureTakesTheMouseAndLeavesTheKeyboard) {
    const HWND lit = windowAt(screen.lit);
    const HWND plain = GetWindow(lit, GW_HWNDNEXT);
    std::string heard;
    screen.plain.onFocus = [&] { screen.lit.Visible = true; };
    screen.plain.onFocusLost = [&] { screen.lit.Visible = false; };
    screen.plain.onKeyPress = [&] { heard += "press "; };
    screen.plain.onKeyClick = [&] { heard += "plain "; };
    screen.lit.onClick = [&] { heard += "lit"; };
    SetFocus(plain);
    EXPECT_TRUE(IsWindowVisible(lit));
    SendMessageA(plain, WM_KEYDOWN, VK_RETURN, 1);
    click(screen.lit, 32, 32);
    EXPECT_EQ(GetFocus(), plain) << "It is gone as soon as the mouse moves on";
    EXPECT_EQ(heard, "press plain lit");
    RECT place;
    GetWindowRect(lit, &place);
    EXPECT_EQ(SendMessageA(lit, WM_NCHITTEST, 0, MAKELPARAM(place.left + 32, place.top + 32)), HTCLIENT);
    EXPECT_EQ(SendMessageA(lit, WM_NCHITTEST, 0, MAKELPARAM(place.left + 2, place.top + 2)), HTTRANSPARENT);
    EXPECT_FALSE(isTabStop(screen.lit));
    SetFocus(windowAt(screen.button));
    EXPECT_FALSE(IsWindowVisible(lit));
}

TEST_F(View, ClosingIsUpToTheScreen) {
    bool lets = false;
    screen.onQueryClose = [&] { return lets; };
    SendMessageA(form, WM_CLOSE, 0, 0);
    EXPECT_TRUE(screen.Visible());
    lets = true;
    SendMessageA(form, WM_COMMAND, IDCANCEL, 0);
    EXPECT_TRUE(screen.Visible()) << "Esc does not close a main window";
    screen.canMinimize = false;
    SendMessageA(form, WM_COMMAND, IDCANCEL, 0);
    EXPECT_FALSE(IsWindowVisible(form));
    EXPECT_TRUE(IsWindow(form)) << "A screen is hidden, not unmade";
}

TEST_F(View, FormsComeForwardAndABoxBlocksThemAll) {
    SampleScreen other;
    other.Caption = "Other";
    platform.view().attach(other);
    std::vector<int> keys;
    screen.onKeyDown = [&](int key) { keys.push_back(key); };
    screen.onKeyUp = [&](int key) { keys.push_back(-key); };
    screen.button.onClick = [&] {
        other.show();
        pumpFor(0);
    };
    PostMessageA(windowAt(screen.button), BM_CLICK, 0, 0);
    PostMessageA(windowAt(screen.text), WM_KEYDOWN, VK_SHIFT, 1);
    PostMessageA(windowAt(screen.text), WM_KEYUP, VK_SHIFT, static_cast<LPARAM>(0xC0000001));
    pumpFor(0);
    EXPECT_THAT(keys, testing::ElementsAre(VK_SHIFT, -VK_SHIFT));
    const HWND otherForm = FindWindowA("TarvelonForm", "Other");
    for (const bool iconic : {false, true}) {
        iconic ? ShowWindow(otherForm, SW_MINIMIZE) : SetForegroundWindow(form);
        other.show();
        EXPECT_EQ(GetActiveWindow(), otherForm);
        EXPECT_FALSE(IsIconic(otherForm));
    }
    struct {
        Buttons buttons;
        int button;
        Answer answer;
        int missing; ///< A button that the box does not have.
    } const boxes[] = {{Buttons::Ok, IDOK, Answer::Ok, IDCANCEL},
                       {Buttons::OkCancel, IDCANCEL, Answer::Cancel, IDYES},
                       {Buttons::YesNo, IDYES, Answer::Yes, IDOK},
                       {Buttons::YesNo, IDNO, Answer::No, IDCANCEL}};
    static int button;
    static int missing;
    for (const auto& box : boxes) {
        button = box.button;
        missing = box.missing;
        SetTimer(nullptr, 0, 50, [](HWND, UINT, UINT_PTR timer, DWORD) {
            KillTimer(nullptr, timer);
            EXPECT_FALSE(IsWindowEnabled(FindWindowA("TarvelonForm", "Sample")));
            EXPECT_FALSE(IsWindowEnabled(FindWindowA("TarvelonForm", "Other")));
            const HWND shown = FindWindowA("#32770", "TarvelonLow");
            EXPECT_TRUE(GetDlgItem(shown, button) && !GetDlgItem(shown, missing)) << button;
            SendMessageA(shown, WM_COMMAND, static_cast<WPARAM>(button), 0);
        });
        EXPECT_EQ(platform.platform().dialogs.message({.text = "A box", .buttons = box.buttons}), box.answer);
        EXPECT_TRUE(IsWindowEnabled(form) && IsWindowEnabled(otherForm));
        EXPECT_EQ(GetActiveWindow(), otherForm);
    }
    other.hide();
    PostQuitMessage(7);
    pumpFor(0);
    EXPECT_EQ(platform.runMessageLoop(), 7) << "Left by the pump for the loop";
}

} // namespace

} // namespace tarvelon
