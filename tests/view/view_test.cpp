#include "platform/win32/system_library.h"
#include "platform/win32/wide.h"
#include "platform/win32/win32_platform.h"
#include "platform/win32/windows_api.h"
#include "ui/controls/bar_chart.h"
#include "ui/controls/lists.h"
#include "ui/controls/tree.h"
#include "view/theme.h"
#include "view/view.h"

#include <gmock/gmock.h>

#include <commctrl.h>
#include <oleacc.h>

#include <algorithm>
#include <utility>

namespace tarvelon {

namespace {

struct Box {
    const char* title;
    Buttons buttons;
    int button;
    Answer answer;
    int missing; ///< A button that the box does not have.
};

Box box; ///< Stands open while a test waits for its answer.

void CALLBACK answerBox(HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    EXPECT_FALSE(IsWindowEnabled(FindWindowA("TarvelonForm", "Sample")));
    const HWND window = FindWindowA("#32770", *box.title ? box.title : "TarvelonLow");
    // An only button may be numbered so that Esc presses it.
    const int button = GetDlgItem(window, box.button) ? box.button : IDCANCEL;
    const int missing = button == box.button ? box.missing : box.button;
    EXPECT_TRUE(GetDlgItem(window, button) && !GetDlgItem(window, missing)) << box.button;
    SendMessageA(window, WM_COMMAND, static_cast<WPARAM>(button), 0);
}

struct SampleScreen : Screen {
    SampleScreen()
        : Screen("Sample", 400, 330) {}

    Frame page{*this, "", at(0, 0, 400, 260)};
    Label step{page, "Step", at(8, 8, 120, 16), TextStyle::Step};
    Label gauge{page, "50%", at(200, 8, 192, 16), TextStyle::Gauge};
    cButton button{page, "A && B", at(8, 32, 120, 32)};
    Label action{page, "An action", at(136, 32, 120, 32), TextStyle::Action};
    tarvelon::check check{page, "A check", at(8, 72, 120, 24)};
    OptionButton first{page, "First", at(8, 104, 120, 24)};
    OptionButton second{page, "Second", at(136, 104, 120, 24)};
    TextBox text{page, at(8, 136, 120, 24)};
    ListBox list{page, at(8, 168, 120, 80)};
    BarChart chart{page, "Chart", 2, at(136, 168, 120, 80)};
    CheckListBox checkList{page, at(264, 168, 120, 80)};
    ProgressBar bar{page, at(264, 104, 120, 16)};
    Tree tree{page, at(264, 32, 120, 60)};
    Picture lit{*this, at(300, 262, 64, 64), "restart-lit", "Restart"};
    Picture plain{*this, at(300, 262, 64, 64), "restart", "Restart"};
    Frame navigation{*this, at(8, 264, 120, 60)};
    NavButton entry{navigation, "Entry", at(0, 0, 120, 60), "integrity"};
};

class View : public testing::Test {
protected:
    explicit View(ThemeKind kind = ThemeKind::Light)
        : view(kind)
        , theme(themeFor(kind)) {
        view.attach(screen);
        screen.lit.Visible = false;
        screen.checkList.Enabled = false;
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

    /// The control's window, as another program finds it by its number.
    HWND windowOf(const Control& control) const {
        const auto number = 100 + std::ranges::find(screen.controls(), &control) - screen.controls().begin();
        return GetDlgItem(control.frame() ? windowOf(*control.frame()) : form, static_cast<int>(number));
    }

    LRESULT ask(const Control& control, UINT message, WPARAM wide = 0, LPARAM low = 0) const {
        return SendMessageA(windowOf(control), message, wide, low);
    }

    void press(const Control& control, WPARAM key) const {
        ask(control, WM_KEYDOWN, key, 1);
        ask(control, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
    }

    void click(const Control& control, int x, int y) const {
        ask(control, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
        ask(control, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    }

    Screen::Handler hear(const char* what) {
        return [this, what] { heard += what; };
    }

    static std::string textOf(HWND window) {
        char text[256] = "";
        SendMessageA(window, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
        return text;
    }

    bool isTabStop(const Control& control) const {
        return (GetWindowLongA(windowOf(control), GWL_STYLE) & WS_TABSTOP) != 0;
    }

    /// Half-way down the control, so many pixels from its left edge.
    void expectDrawn(std::initializer_list<std::tuple<const Control&, int, Color>> spots) {
        pumpFor(60);
        for (const auto& [control, x, color] : spots) {
            const HDC dc = GetDC(windowOf(control));
            EXPECT_EQ(GetPixel(dc, x, control.place().height / 2), color) << control.captionOrName() << x;
            ReleaseDC(windowOf(control), dc);
        }
    }

    Win32View view;
    Win32Platform platform{view};
    SampleScreen screen;
    HWND form = nullptr;
    std::string heard;
    const Theme theme;
};

TEST_F(View, TextsOfEveryScriptAnswerAtOnceAndWhole) {
    const std::wstring wide = L"\u0416\u03C9\u65E5\u00E9\U0001F600";
    const std::string text = narrowText(wide);
    for (const std::string& caption : {std::string("Sample 1"), text}) {
        screen.Caption = caption;
        screen.gauge.Caption = caption;
        EXPECT_EQ(textOf(form), caption);
        EXPECT_EQ(textOf(windowOf(screen.gauge)), caption);
    }
    screen.text.Caption = "by code";
    ask(screen.text, EM_SETSEL, 7, 7);
    std::ranges::for_each(wide, [&](wchar_t c) { PostMessageW(windowOf(screen.text), WM_CHAR, c, 0); });
    screen.list.add(text);
    screen.list.ToolTip = text;
    ask(screen.list, WM_MOUSEMOVE);
    screen.tree.addRoot("root", text);
    pumpFor(60);
    EXPECT_EQ(screen.text.Caption(), "by code" + text);
    EXPECT_EQ(LOWORD(ask(screen.text, EM_GETSEL)), 13) << "The caret stays behind what was typed";
    EXPECT_EQ(FindWindowW(L"TarvelonForm", wide.c_str()), form);
    wchar_t given[9] = L"";
    const HWND list = windowOf(screen.list);
    auto* const root = reinterpret_cast<HTREEITEM>(ask(screen.tree, TVM_GETNEXTITEM, TVGN_ROOT));
    const TVITEMW item{TVIF_TEXT, root, 0, 0, given, 9, 0, 0, 0, 0};
    const TOOLINFOW tip{
        TTTOOLINFOW_V1_SIZE, 0, list, reinterpret_cast<UINT_PTR>(list), {}, nullptr, given, 0, nullptr};
    const std::tuple<HWND, UINT, WPARAM, const void*> texts[] = {
        {form, WM_GETTEXT, 9, given},
        {list, LB_GETTEXT, 0, given},
        {windowOf(screen.tree), TVM_GETITEMW, 0, &item},
        {FindWindowA(TOOLTIPS_CLASSA, nullptr), TTM_GETTEXTW, 9, &tip}};
    for (const auto& [window, message, size, answer] : texts) {
        *given = L'\0';
        SendMessageW(window, message, size, reinterpret_cast<LPARAM>(answer));
        EXPECT_TRUE(given == wide && IsWindowUnicode(window)) << message;
    }
    EXPECT_EQ(SendMessageW(form, WM_GETTEXTLENGTH, 0, 0), 6);
    SendMessageW(form, WM_GETTEXT, 6, reinterpret_cast<LPARAM>(given));
    EXPECT_EQ(given, wide.substr(0, 4)) << "Cut to the buffer, at the end of a character";
}

struct ThemedView : View, testing::WithParamInterface<ThemeKind> {
    ThemedView()
        : View(GetParam()) {}
};

INSTANTIATE_TEST_SUITE_P(Each, ThemedView,
                         testing::Values(ThemeKind::Light, ThemeKind::Dark, ThemeKind::HighContrast));

TEST_P(ThemedView, ControlsAreDrawnInTheirLastState) {
    const Surface captions = theme.captions.value_or(theme.card);
    EXPECT_EQ(ChildWindowFromPoint(windowOf(screen.page), {383, 247}), windowOf(screen.checkList));
    for (const char* row : {"one", "two", "three"}) {
        screen.list.add(row);
        screen.checkList.add(row);
    }
    screen.list.setListIndex(2);
    screen.chart.add("1", 5);
    screen.chart.add("2", 10);
    screen.chart.mark(1);
    screen.entry.Current = true;
    screen.bar.setMax(400);
    screen.bar.setValue(300);
    screen.second.setValue(true);
    expectDrawn({{screen.gauge, 100, theme.track},
                 {screen.button, 4, theme.card.button(Rank::Ordinary).normal},
                 {screen.action, 4, theme.card.button(Rank::Ordinary).normal},
                 {screen.check, 9, captions.mark.field},
                 {screen.check, 110, captions.ground},
                 {screen.chart, 90, theme.bar},
                 {screen.entry, 110, theme.navigationCurrent},
                 {screen.second, 4, theme.card.mark.ticked},
                 {screen.list, 2, theme.selectedElsewhere},
                 {screen.bar, 60, theme.bar},
                 {screen.bar, 110, theme.track},
                 {screen.plain, 15, theme.restart.normal}});
    EXPECT_EQ(ask(screen.bar, PBM_GETPOS), 300);
    screen.gauge.Caption = "80%";
    ask(screen.button, WM_MOUSEMOVE, 0, MAKELPARAM(60, 16));
    ask(screen.action, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(60, 16));
    ask(screen.check, BM_CLICK);
    screen.second.Enabled = screen.plain.Enabled = false;
    expectDrawn({{screen.gauge, 100, theme.bar},
                 {screen.button, 4, theme.card.button(Rank::Ordinary).hovered},
                 {screen.action, 4, theme.card.button(Rank::Ordinary).pressed},
                 {screen.check, 10, captions.mark.tick},
                 {screen.second, 4, theme.card.mark.edge},
                 {screen.plain, 15, theme.restart.disabled}});
}

TEST_F(View, ButtonsArePressedByMouseKeysAndOtherPrograms) {
    screen.button.onClick = screen.check.onClick = screen.step.onClick = screen.gauge.onClick =
        hear("click ");
    screen.action.onMouseDown = hear("down ");
    screen.action.onMouseUp = hear("up ");
    screen.action.onClick = hear("action ");
    ask(screen.button, BM_CLICK);
    ask(screen.check, BM_CLICK);
    ask(screen.step, BM_CLICK);
    EXPECT_EQ(ask(screen.gauge, WM_NCHITTEST), HTCLIENT);
    click(screen.gauge, 5, 5);
    click(screen.button, 60, 16);
    EXPECT_EQ(std::exchange(heard, ""), "click click click click click ");
    ask(screen.action, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(60, 16));
    ask(screen.action, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(60, 90));
    ask(screen.action, WM_LBUTTONUP, 0, MAKELPARAM(60, 90));
    screen.action.Enabled = false;
    click(screen.action, 60, 16);
    EXPECT_EQ(std::exchange(heard, ""), "down up up ");
    screen.action.Enabled = true;
    for (const bool stays : {false, true}) {
        SetFocus(windowOf(screen.action));
        ask(screen.action, WM_KEYDOWN, VK_SPACE, 1);
        SetFocus(windowOf(stays ? screen.action : static_cast<const Control&>(screen.text)));
        ask(screen.action, WM_KEYUP, VK_SPACE, static_cast<LPARAM>(0xC0000001));
    }
    EXPECT_EQ(heard, "down up down up action ");

    ask(screen.second, BM_CLICK);
    EXPECT_TRUE(isTabStop(screen.second) && !isTabStop(screen.first)) << "Tab leads to the choice";
    SetFocus(windowOf(screen.second));
    PostMessageA(windowOf(screen.second), WM_KEYDOWN, VK_RIGHT, 1);
    pumpFor(0);
    EXPECT_EQ(GetFocus(), windowOf(screen.first)) << "The arrows go round among the choices";
    ask(screen.first, BM_CLICK);
    EXPECT_EQ(ask(screen.second, BM_GETCHECK), BST_UNCHECKED);
    for (const int x : {40, 4}) {
        ask(screen.check, WM_MOUSEMOVE, 0, MAKELPARAM(x, 12));
        EXPECT_EQ(screen.check.hovered(), x == 40) << "The box has no look of its own";
    }
}

TEST_F(View, ReadersAreToldWhatIsSeen) {
    const SystemLibrary library("oleacc.dll");
    const auto find = library.find<HRESULT WINAPI(HWND, DWORD, REFIID, void**)>("AccessibleObjectFromWindow");
    screen.list.name = "Rows";
    screen.check.setValue(true);
    screen.chart.add("64 Kb", 2.5);
    screen.bar.setValue(57);
    std::string told;
    for (const Control* control : screen.controls()) {
        IAccessible* reader = nullptr;
        find(windowOf(*control), static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
             reinterpret_cast<void**>(&reader));
        VARIANT self{}, role{}, state{};
        self.vt = VT_I4;
        BSTR texts[2]{};
        reader->get_accRole(self, &role);
        reader->get_accState(self, &state);
        reader->get_accName(self, &texts[0]);
        reader->get_accValue(self, &texts[1]);
        told += std::to_string(role.lVal) + (state.lVal & STATE_SYSTEM_CHECKED ? "+" : "");
        for (BSTR text : texts) {
            told += text ? "|" + narrowText(text) : "";
        }
        told += "\n";
        reader->Release();
    }
    EXPECT_EQ(told, "21\n43|Step\n41|50%\n43|A & B\n43|An action\n44+|A check\n45|First\n45|Second\n42\n"
                    "33|Rows\n17|Chart|64 Kb: 2.5\n33\n48|57%\n35\n43|Restart\n43|Restart\n16\n43|Entry\n");
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

TEST_F(View, RowsFollowAndAreChosen) {
    for (int row = 0; row < 1000; ++row) {
        screen.list.add("row " + std::to_string(row));
    }
    EXPECT_EQ(ask(screen.list, LB_GETCOUNT), 1000);
    screen.list.onClick = [&] { heard += screen.list.text(); };
    screen.list.setListIndex(2);
    EXPECT_EQ(ask(screen.list, LB_GETCURSEL), 2);
    screen.list.replace(1, "new");
    click(screen.list, 30, 30);
    EXPECT_EQ(heard, "new") << "Selected by code, it raises no click";
    ask(screen.list, LB_SETTOPINDEX, 500);
    screen.list.replace(5, std::string(99, 'w'));
    EXPECT_EQ(ask(screen.list, LB_GETTOPINDEX), 500) << "Rows that change do not move";
    EXPECT_GT(ask(screen.list, LB_GETHORIZONTALEXTENT), 400) << "As far as the longest";
    SetFocus(windowOf(screen.list));
    screen.list.clear();
    pumpFor(60);
    EXPECT_EQ(GetFocus(), windowOf(screen.tree)) << "Nothing is left to choose from";

    EXPECT_FALSE(IsWindowEnabled(windowOf(screen.checkList)));
    screen.checkList.Enabled = true;
    screen.checkList.add("first");
    screen.checkList.add("second");
    EXPECT_EQ(ask(screen.checkList, LB_GETCOUNT), 2);
    click(screen.checkList, 30, 26);
    click(screen.checkList, 30, 70); // Below the last row there is nothing to click.
    EXPECT_TRUE(screen.checkList.ticked(1) && ask(screen.checkList, LB_GETITEMDATA, 1) == 1);
    for (const WPARAM key : {VK_SPACE, VK_UP, VK_SPACE}) {
        press(screen.checkList, key);
    }
    EXPECT_TRUE(screen.checkList.ticked(0) && !screen.checkList.ticked(1));
}

TEST_F(View, ATreeMayBeFilledAnewByItsOwnClickAndKeys) {
    const auto fill = [this] {
        screen.tree.clear();
        screen.tree.addRoot("root", "Root");
        screen.tree.addChild("root", "value", std::string("seen\0unseen", 11));
        screen.tree.addChild("root", "last", "Last");
    };
    fill();
    LRESULT shown = 3;
    screen.tree.onDoubleClick = hear("twice ");
    screen.tree.onExpandOrCollapse = hear("opened ");
    screen.tree.onNodeClick = [&] {
        heard += screen.tree.selected()->key + " ";
        fill();
        pumpFor(0);
        view.refresh();
        EXPECT_EQ(ask(screen.tree, TVM_GETCOUNT), shown) << "Those that the window is telling of";
    };
    screen.tree.onKeyDown = [&](int) { fill(); };
    const LRESULT root = ask(screen.tree, TVM_GETNEXTITEM, TVGN_ROOT);
    ask(screen.tree, TVM_SELECTITEM, TVGN_CARET, root);
    EXPECT_EQ(ask(screen.tree, TVM_GETNEXTITEM, TVGN_CARET), ask(screen.tree, TVM_GETNEXTITEM, TVGN_ROOT));
    press(screen.tree, VK_RIGHT);
    press(screen.tree, VK_DOWN);
    screen.tree.clear();
    screen.tree.addRoot("other", "Other");
    screen.tree.onKeyDown = {};
    shown = 1;
    ask(screen.tree, WM_KEYDOWN, VK_DOWN, 1); // The keyboard finds its way in where nothing is selected.
    view.refresh();
    ask(screen.tree, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(30, 10));
    EXPECT_EQ(heard, "root opened value other twice opened ") << "The keyboard coming in selects nothing";
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

} // namespace

} // namespace tarvelon
