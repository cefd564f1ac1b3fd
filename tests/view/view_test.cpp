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
        : Screen("Sample", 400, 330) {
        lit.Visible = false;
    }

    Frame page{*this, at(0, 0, 400, 260)};
    Label label{page, "A label", at(8, 8, 120, 16)};
    Label gauge{page, "0%", at(200, 8, 192, 16), TextStyle::Gauge};
    FlatButton button{page, "A && B", at(8, 32, 120, 32)};
    Label action{page, "An action", at(136, 32, 120, 32), TextStyle::Action};
    FlatCheck check{page, "A check", at(8, 72, 120, 24)};
    OptionButton first{page, "First", at(8, 104, 120, 24)};
    OptionButton second{page, "Second", at(136, 104, 120, 24)};
    TextBox text{page, at(8, 136, 120, 24)};
    TextBox unseenText{page, at(136, 136, 120, 24), false};
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
        screen.show();
        form = FindWindowA("TarvelonForm", screen.Caption().c_str());
    }

    void pump() { platform.platform().messages.pump(); }

    void pumpFor(DWORD milliseconds) {
        const DWORD start = GetTickCount();
        while (GetTickCount() - start < milliseconds) {
            pump();
            Sleep(1);
        }
    }

    /// The child window in the given place, as another program would find it.
    HWND windowAt(const Control& control) const {
        HWND parent = form;
        if (control.frame()) {
            parent = GetWindow(form, GW_CHILD);
        }
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

    static std::string textOf(HWND window, WPARAM size = 256) {
        std::string text(256, '\0');
        const LRESULT length = SendMessageA(window, WM_GETTEXT, size, reinterpret_cast<LPARAM>(text.data()));
        text.resize(static_cast<std::size_t>(length));
        return text;
    }

    LRESULT ask(const Control& control, UINT message, WPARAM wide = 0, LPARAM low = 0) const {
        return SendMessageA(windowAt(control), message, wide, low);
    }

    bool isTabStop(const Control& control) const {
        return (GetWindowLongA(windowAt(control), GWL_STYLE) & WS_TABSTOP) != 0;
    }

    Win32Platform platform;
    SampleScreen screen;
    HWND form = nullptr;
};

TEST_F(View, CaptionsAnswerAtOnce) {
    EXPECT_EQ(textOf(windowAt(screen.button)), "A && B");
    for (int turn = 0; turn < 100; ++turn) {
        screen.label.Caption = "C:\\file" + std::to_string(turn);
        screen.Caption = "Sample " + std::to_string(turn);
        ASSERT_EQ(textOf(windowAt(screen.label)), screen.label.Caption());
        ASSERT_EQ(textOf(form), screen.Caption());
    }
    EXPECT_EQ(ask(screen.label, WM_GETTEXTLENGTH), 9);
    EXPECT_EQ(textOf(windowAt(screen.label), 5), "C:\\f") << "Cut to the buffer, its zero included";
    platform.platform().messages.pump();
    pumpFor(60);
    EXPECT_NE(FindWindowA("TarvelonForm", "Sample 99"), nullptr);
}

TEST_F(View, TheLastStateIsDrawn) {
    pumpFor(60);
    const HWND gauge = windowAt(screen.gauge);
    const HDC dc = GetDC(gauge);
    const COLORREF before = GetPixel(dc, 60, 8);
    for (int percent = 0; percent <= 100; ++percent) {
        screen.gauge.Caption = std::to_string(percent) + "%";
    }
    pumpFor(150);
    EXPECT_NE(GetPixel(dc, 60, 8), before) << "The bar reaches its middle";
    ReleaseDC(gauge, dc);
}

TEST_F(View, OtherProgramsPressWhatTheUserPresses) {
    int clicks = 0;
    screen.button.onClick = screen.action.onClick = screen.check.onClick = [&] { ++clicks; };
    ask(screen.button, BM_CLICK);
    ask(screen.action, BM_CLICK);
    ask(screen.check, BM_CLICK);
    EXPECT_EQ(clicks, 3);
    EXPECT_EQ(ask(screen.check, BM_GETCHECK), BST_CHECKED);

    screen.button.Enabled = false;
    EXPECT_FALSE(IsWindowEnabled(windowAt(screen.button)));
    ask(screen.button, BM_CLICK);
    EXPECT_EQ(clicks, 3) << "A disabled button gives no click";

    EXPECT_TRUE(isTabStop(screen.first) && isTabStop(screen.second));
    ask(screen.second, BM_CLICK);
    EXPECT_TRUE(screen.second.value());
    EXPECT_TRUE(isTabStop(screen.second)) << "Tab leads to the choice that is made";
    EXPECT_FALSE(isTabStop(screen.first));
    ask(screen.first, BM_CLICK);
    EXPECT_EQ(ask(screen.second, BM_GETCHECK), BST_UNCHECKED);
    EXPECT_TRUE(isTabStop(screen.first));
}

TEST_F(View, TheMouseGivesLooks) {
    const LPARAM onBox = MAKELPARAM(4, 12);
    const LPARAM onText = MAKELPARAM(40, 12);
    ask(screen.check, WM_MOUSEMOVE, 0, onText);
    EXPECT_TRUE(screen.check.hovered());
    ask(screen.check, WM_MOUSEMOVE, 0, onBox);
    EXPECT_FALSE(screen.check.hovered());
    ask(screen.check, WM_MOUSEMOVE, 0, onText);
    ask(screen.check, WM_MOUSELEAVE);
    EXPECT_FALSE(screen.check.hovered());

    int clicks = 0;
    screen.button.onClick = [&] { ++clicks; };
    const LPARAM inside = MAKELPARAM(60, 16);
    ask(screen.button, WM_LBUTTONDOWN, MK_LBUTTON, inside);
    EXPECT_EQ(screen.button.foreColor(), colors::white);
    ask(screen.button, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(60, 90));
    EXPECT_EQ(screen.button.foreColor(), colors::black) << "The mouse has left while held";
    ask(screen.button, WM_LBUTTONUP, 0, MAKELPARAM(60, 90));
    EXPECT_EQ(clicks, 0);
    ask(screen.button, WM_LBUTTONDOWN, MK_LBUTTON, inside);
    ask(screen.button, WM_LBUTTONUP, 0, inside);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(screen.button.foreColor(), colors::black);

    std::string course;
    screen.action.onMouseDown = [&] { course += "down "; };
    screen.action.onMouseUp = [&] { course += "up "; };
    screen.action.onClick = [&] { course += "click"; };
    ask(screen.action, WM_LBUTTONDOWN, MK_LBUTTON, inside);
    ask(screen.action, WM_LBUTTONUP, 0, inside);
    EXPECT_EQ(course, "down up click") << "A label hears of the press as well";
}

TEST_F(View, AKeyThatGoesElsewhereLetsGo) {
    int clicks = 0;
    screen.action.onClick = [&] { ++clicks; };
    const HWND action = windowAt(screen.action);
    SetForegroundWindow(form);
    SetFocus(action);
    SendMessageA(action, WM_KEYDOWN, VK_SPACE, 1);
    SetFocus(windowAt(screen.text));
    SendMessageA(action, WM_LBUTTONUP, 0, MAKELPARAM(60, 16));
    EXPECT_EQ(clicks, 0);
    SetFocus(action);
    SendMessageA(action, WM_KEYDOWN, VK_SPACE, 1);
    SendMessageA(action, WM_KEYUP, VK_SPACE, static_cast<LPARAM>(0xC0000001));
    EXPECT_EQ(clicks, 1);

    // The character of the key comes behind the click, to a button that is hidden by then.
    screen.button.onClick = [&] { screen.page.Visible = false; };
    SetFocus(windowAt(screen.button));
    PostMessageA(windowAt(screen.button), WM_KEYDOWN, VK_RETURN, 1);
    pumpFor(60);
    EXPECT_FALSE(screen.page.Visible());
    EXPECT_EQ(GetFocus(), GetWindow(windowAt(screen.lit), GW_HWNDNEXT));
}

TEST_F(View, HiddenControlsStayWindows) {
    EXPECT_FALSE(IsWindowVisible(windowAt(screen.unseenText)));
    screen.unseenText.Caption = "scanner.exe";
    EXPECT_EQ(textOf(windowAt(screen.unseenText)), "scanner.exe");
    screen.unseenList.add("row");
    pumpFor(60);
    EXPECT_FALSE(IsWindowVisible(windowAt(screen.unseenList))) << "New rows bring nothing to light";

    SetForegroundWindow(form);
    SetFocus(windowAt(screen.button));
    screen.button.Visible = false;
    EXPECT_FALSE(IsWindowVisible(windowAt(screen.button)));
    pumpFor(60);
    EXPECT_NE(GetFocus(), windowAt(screen.button)) << "The keyboard would be lost";
    screen.page.Visible = false;
    EXPECT_FALSE(IsWindowVisible(windowAt(screen.label)));
}

TEST_F(View, RowsFollow) {
    for (int row = 0; row < 1000; ++row) {
        screen.list.add("row " + std::to_string(row));
    }
    EXPECT_EQ(ask(screen.list, LB_GETCOUNT), 1000);
    screen.list.remove(0);
    screen.list.replace(1, "new");
    char text[32] = {};
    ask(screen.list, LB_GETTEXT, 1, reinterpret_cast<LPARAM>(text));
    EXPECT_STREQ(text, "new");
    EXPECT_EQ(ask(screen.list, LB_GETCOUNT), 999);

    std::string chosen;
    screen.list.onClick = [&] { chosen = screen.list.text(); };
    screen.list.setListIndex(5);
    EXPECT_EQ(chosen, "") << "Selected by code, it raises no click";
    EXPECT_EQ(ask(screen.list, LB_GETCURSEL), 5);
    const HWND list = windowAt(screen.list);
    SendMessageA(list, LB_SETCURSEL, 1, 0);
    SendMessageA(GetParent(list), WM_COMMAND, MAKEWPARAM(0, LBN_SELCHANGE), reinterpret_cast<LPARAM>(list));
    EXPECT_EQ(chosen, "new");
    screen.list.clear();
    EXPECT_EQ(ask(screen.list, LB_GETCOUNT), 0);

    screen.combo.add("one");
    screen.combo.add("two");
    screen.combo.setListIndex(1);
    EXPECT_EQ(textOf(windowAt(screen.combo)), "two");
}

TEST_F(View, TicksFlipByMouseAndSpace) {
    int clicks = 0;
    screen.checkList.onClick = [&] { ++clicks; };
    screen.checkList.add("first");
    screen.checkList.add("second");
    EXPECT_EQ(ask(screen.checkList, LB_GETCOUNT), 2);
    const LPARAM onSecond = MAKELPARAM(30, 26);
    ask(screen.checkList, WM_LBUTTONDOWN, MK_LBUTTON, onSecond);
    ask(screen.checkList, WM_LBUTTONUP, 0, onSecond);
    EXPECT_TRUE(screen.checkList.ticked(1));
    EXPECT_EQ(ask(screen.checkList, LB_GETITEMDATA, 1), 1);
    EXPECT_EQ(clicks, 1);
    ask(screen.checkList, WM_KEYDOWN, VK_SPACE);
    EXPECT_FALSE(screen.checkList.ticked(1));
    ask(screen.checkList, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(30, 70));
    ask(screen.checkList, WM_LBUTTONUP, 0, MAKELPARAM(30, 70));
    EXPECT_EQ(clicks, 2) << "Below the last row there is nothing to click";
}

TEST_F(View, NodesFollowAndAreClicked) {
    std::string heard;
    screen.tree.onDoubleClick = [&] { heard += "twice "; };
    screen.tree.onExpandOrCollapse = [&] { heard += "opened "; };
    screen.tree.onKeyDown = [&](int key) { heard += std::to_string(key); };
    std::string clicked;
    screen.tree.onNodeClick = [&] { clicked = Tree::fullPath(*screen.tree.selected()); };
    screen.tree.addRoot("gone", "Gone");
    EXPECT_EQ(ask(screen.tree, TVM_GETCOUNT), 1);
    screen.tree.clear();
    screen.tree.addRoot("day", "1-2-2004");
    screen.tree.addChild("day", "log", "10:30");
    EXPECT_EQ(ask(screen.tree, TVM_GETCOUNT), 2);
    EXPECT_EQ(clicked, "") << "Nodes that come and go are no clicks";
    const LRESULT root = ask(screen.tree, TVM_GETNEXTITEM, TVGN_ROOT);
    const LRESULT child = ask(screen.tree, TVM_GETNEXTITEM, TVGN_CHILD, root);
    ask(screen.tree, TVM_SELECTITEM, TVGN_CARET, child);
    EXPECT_EQ(clicked, "1-2-2004\\10:30");

    ask(screen.tree, TVM_EXPAND, TVE_EXPAND, root);
    RECT place{};
    std::memcpy(&place, &root, sizeof root);
    ask(screen.tree, TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&place));
    ask(screen.tree, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(place.left + 2, place.top + 2));
    ask(screen.tree, WM_KEYDOWN, VK_DELETE);
    EXPECT_EQ(heard, "opened twice opened 46");
}

TEST_F(View, ATreeMayBeFilledAnewByItsOwnClick) {
    const auto fill = [this](const std::string& text) {
        screen.tree.clear();
        screen.tree.addRoot("root", text);
        screen.tree.addChild("root", "value", std::string("seen\0unseen", 11));
    };
    fill("old");
    const HWND tree = windowAt(screen.tree);
    const auto textNow = [tree](LRESULT item) {
        char text[32] = {};
        TVITEMA asked{};
        asked.mask = TVIF_TEXT;
        asked.hItem = reinterpret_cast<HTREEITEM>(item);
        asked.pszText = text;
        asked.cchTextMax = sizeof text;
        SendMessageA(tree, TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&asked));
        return std::string(text);
    };
    const LRESULT root = SendMessageA(tree, TVM_GETNEXTITEM, TVGN_ROOT, 0);
    int clicks = 0;
    screen.tree.onNodeClick = [&] {
        ++clicks;
        fill("new");
        pump();
        platform.view().refresh();
        EXPECT_EQ(textNow(root), "old") << "The window still works with the items it is telling of";
    };
    SendMessageA(tree, TVM_SELECTITEM, TVGN_CARET, root);
    EXPECT_EQ(clicks, 1);
    const LRESULT newRoot = SendMessageA(tree, TVM_GETNEXTITEM, TVGN_ROOT, 0);
    EXPECT_EQ(textNow(newRoot), "new");
    EXPECT_EQ(textNow(SendMessageA(tree, TVM_GETNEXTITEM, TVGN_CHILD, newRoot)), "seen");
    EXPECT_EQ(SendMessageA(tree, TVM_GETNEXTITEM, TVGN_CARET, 0), newRoot) << "It is still the same node";

    // Every key may fill the tree anew, and the keyboard still gets on.
    screen.tree.onNodeClick = [&] { ++clicks; };
    screen.tree.onKeyDown = [&](int) { fill("again"); };
    SendMessageA(tree, WM_KEYDOWN, VK_RIGHT, 1);
    platform.view().refresh();
    SendMessageA(tree, WM_KEYDOWN, VK_DOWN, 1);
    platform.view().refresh();
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(screen.tree.selected(), screen.tree.find("value"));

    screen.tree.onKeyDown = {};
    screen.tree.clear();
    screen.tree.addRoot("other", "Other");
    SendMessageA(tree, WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_EQ(clicks, 3) << "The keyboard finds its way in where nothing is selected";
}

TEST_F(View, ALitPictureTakesTheMouseAndLeavesTheKeyboard) {
    const HWND lit = windowAt(screen.lit);
    HWND plain = GetWindow(lit, GW_HWNDNEXT);
    EXPECT_FALSE(IsWindowVisible(lit));
    int focused = 0;
    std::string clicked;
    screen.plain.onFocus = [&] {
        ++focused;
        screen.lit.Visible = true;
    };
    screen.plain.onFocusLost = [&] { screen.lit.Visible = false; };
    screen.plain.onKeyPress = [&] { clicked += "press "; };
    screen.plain.onKeyClick = [&] { clicked += "plain "; };
    screen.lit.onClick = [&] { clicked += "lit "; };
    SetForegroundWindow(form);
    SetFocus(plain);
    EXPECT_EQ(focused, 1);
    EXPECT_TRUE(IsWindowVisible(lit));
    SendMessageA(plain, WM_KEYDOWN, VK_RETURN, 1);
    const LPARAM middle = MAKELPARAM(32, 32);
    SendMessageA(lit, WM_LBUTTONDOWN, MK_LBUTTON, middle);
    EXPECT_EQ(GetFocus(), plain) << "It is gone as soon as the mouse moves on";
    SendMessageA(lit, WM_LBUTTONUP, 0, middle);
    EXPECT_EQ(clicked, "press plain lit ");
    EXPECT_FALSE(isTabStop(screen.lit));
    SetFocus(windowAt(screen.button));
    EXPECT_FALSE(IsWindowVisible(lit));

    RECT place;
    GetWindowRect(lit, &place);
    EXPECT_EQ(SendMessageA(lit, WM_NCHITTEST, 0, MAKELPARAM(place.left + 32, place.top + 32)), HTCLIENT);
    EXPECT_EQ(SendMessageA(lit, WM_NCHITTEST, 0, MAKELPARAM(place.left + 2, place.top + 2)), HTTRANSPARENT);
}

TEST_F(View, TypingAndSettingText) {
    int changes = 0;
    screen.text.onChange = [&] { ++changes; };
    screen.text.Caption = "by code";
    EXPECT_EQ(changes, 0);
    ask(screen.text, EM_SETSEL, 7, 7);
    ask(screen.text, WM_CHAR, '!');
    EXPECT_EQ(screen.text.Caption(), "by code!");
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(LOWORD(ask(screen.text, EM_GETSEL)), 8) << "The caret stays behind what was typed";
}

TEST_F(View, ProgressCanBeRead) {
    screen.bar.setMax(400);
    screen.bar.setValue(300);
    pumpFor(60);
    EXPECT_EQ(ask(screen.bar, PBM_GETRANGE, FALSE), 400);
    EXPECT_EQ(ask(screen.bar, PBM_GETPOS), 300);
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
    EXPECT_FALSE(screen.Visible());
    EXPECT_FALSE(IsWindowVisible(form));
    EXPECT_TRUE(IsWindow(form)) << "A screen is hidden, not unmade";
}

TEST_F(View, AHandlerMayOpenAnotherScreenAndSeesKeys) {
    SampleScreen other;
    other.Caption = "Other";
    platform.view().attach(other);
    std::vector<int> keys;
    screen.onKeyDown = [&](int key) { keys.push_back(key); };
    screen.onKeyUp = [&](int key) { keys.push_back(-key); };
    screen.button.onClick = [&] {
        other.show();
        pump();
    };
    PostMessageA(windowAt(screen.button), BM_CLICK, 0, 0);
    PostMessageA(windowAt(screen.text), WM_KEYDOWN, VK_SHIFT, 1);
    PostMessageA(windowAt(screen.text), WM_KEYUP, VK_SHIFT, static_cast<LPARAM>(0xC0000001));
    pump();
    EXPECT_TRUE(other.isLoaded());
    EXPECT_NE(FindWindowA("TarvelonForm", "Other"), nullptr);
    EXPECT_THAT(keys, testing::ElementsAre(VK_SHIFT, -VK_SHIFT));
    const HWND otherForm = FindWindowA("TarvelonForm", "Other");

    SetForegroundWindow(form);
    other.show();
    EXPECT_EQ(GetActiveWindow(), otherForm) << "It was covered";
    ShowWindow(otherForm, SW_MINIMIZE);
    other.show();
    EXPECT_FALSE(IsIconic(otherForm));
    EXPECT_EQ(GetActiveWindow(), otherForm);

    SetTimer(nullptr, 0, 50, [](HWND, UINT, UINT_PTR timer, DWORD) {
        KillTimer(nullptr, timer);
        EXPECT_FALSE(IsWindowEnabled(FindWindowA("TarvelonForm", "Sample")));
        EXPECT_FALSE(IsWindowEnabled(FindWindowA("TarvelonForm", "Other")));
        SendMessageA(FindWindowA("#32770", "TarvelonLow"), WM_COMMAND, IDOK, 0);
    });
    platform.platform().dialogs.message({.text = "A box"});
    EXPECT_TRUE(IsWindowEnabled(form) && IsWindowEnabled(otherForm));
    EXPECT_EQ(GetActiveWindow(), otherForm);
    other.hide();
}

} // namespace

} // namespace tarvelon
