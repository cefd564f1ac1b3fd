#include "view/form.h"

#include "platform/win32/common_controls.h"
#include "platform/win32/foremost.h"
#include "view/create.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace tarvelon {

namespace {

constexpr UINT_PTR refreshTimer = 1;
constexpr UINT_PTR firstControlTimer = 16;
constexpr int firstControlId = 100; ///< Above the numbers that Enter and Esc stand for.
constexpr DWORD refreshEvery = 33;  ///< Milliseconds.

DWORD styleOf(const Screen& screen) {
    return WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN |
           (screen.canMinimize ? WS_MINIMIZEBOX : 0) | (screen.canGrow ? WS_THICKFRAME : 0);
}

/// What can be minimised has a button of its own on the task bar, also while it belongs to another form.
DWORD extendedStyleOf(const Screen& screen) {
    return WS_EX_CONTROLPARENT | (screen.canMinimize ? WS_EX_APPWINDOW : 0);
}

/// The part of the desktop, without the task bar, that most of the rectangle is on or that is nearest to it.
RECT workAreaAt(const RECT& rect) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    if (!GetMonitorInfoA(MonitorFromRect(&rect, MONITOR_DEFAULTTONEAREST), &monitor)) {
        SystemParametersInfoA(SPI_GETWORKAREA, 0, &monitor.rcWork, 0);
    }
    return monitor.rcWork;
}

/// Where something of that length begins so that it lies within, or at least begins there.
LONG moveInside(LONG start, LONG length, LONG from, LONG to) {
    return std::max(std::min(start, to - length), from);
}

} // namespace

FormWindow::FormWindow(Screen& screen, ViewTools& tools)
    : screen_(screen)
    , tools_(tools) {
    createWindow();
    for (const Control* control : screen_.controls()) {
        if (control->kind() == ControlKind::Timer) {
            applyTimer(*control);
        }
    }
    applyVisible();
}

FormWindow::~FormWindow() {
    const WindowCalls& calls = windowCalls();
    calls.setWindowLongPtr(window(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(calls.defWindowProc));
}

void FormWindow::createWindow() {
    const WindowCalls& calls = windowCalls();
    window_.reset(makeWindow(extendedStyleOf(screen_), formWindowClass, screen_.Caption(), styleOf(screen_),
                             RECT{}, nullptr));
    calls.setWindowLongPtr(window(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    calls.setWindowLongPtr(window(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
    darkenTitleBar(window(), tools_.theme);
    scale_ = Scale(tools_.scaling.dotsPerInch(window()));
    const SIZE size = outerSize(screen_.width(), screen_.height());
    RECT desktop;
    SystemParametersInfoA(SPI_GETWORKAREA, 0, &desktop, 0);
    const int x = desktop.left + std::max((widthOf(desktop) - static_cast<int>(size.cx)) / 2, 0);
    const int y = desktop.top + std::max((heightOf(desktop) - static_cast<int>(size.cy)) / 2, 0);
    SetWindowPos(window(), nullptr, x, y, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE);
    const auto takesFiles = [](const Control* control) { return static_cast<bool>(control->onDrop); };
    DragAcceptFiles(window(), std::ranges::any_of(screen_.controls(), takesFiles));
    showAccessKeys(false);
}

/// They show while the user holds Alt or has done so on this form, or always if the system is set so.
void FormWindow::showAccessKeys(bool wanted) {
    BOOL always = TRUE; // What systems do that know no such setting.
    SystemParametersInfoA(SPI_GETKEYBOARDCUES, 0, &always, 0);
    if (std::exchange(showsAccessKeys_, wanted || always) != showsAccessKeys_) {
        themeChanged();
    }
}

/// With its frame, of an inside at 96 dots an inch.
SIZE FormWindow::outerSize(int width, int height) const {
    RECT frame = scale_(at(0, 0, width, height));
    tools_.scaling.addFrame(frame, styleOf(screen_), extendedStyleOf(screen_), scale_.dotsPerInch());
    return {widthOf(frame), heightOf(frame)};
}

/// Where it was left, as far as there is still a screen.
void FormWindow::placeFirst() {
    if (std::exchange(isPlaced_, true) || !screen_.placeBefore) {
        return;
    }
    const std::optional<ScreenPlace> before = screen_.placeBefore();
    if (!before) {
        return;
    }
    const SIZE least = outerSize(screen_.width(), screen_.height());
    SIZE size = screen_.canGrow ? outerSize(before->width, before->height) : least;
    const RECT area = workAreaAt({before->x, before->y, before->x + size.cx, before->y + size.cy});
    size.cx = std::max(std::min(size.cx, static_cast<LONG>(widthOf(area))), least.cx);
    size.cy = std::max(std::min(size.cy, static_cast<LONG>(heightOf(area))), least.cy);
    SetWindowPos(window(), nullptr, moveInside(before->x, size.cx, area.left, area.right),
                 moveInside(before->y, size.cy, area.top, area.bottom), size.cx, size.cy,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

/// The user has let go of the window's frame.
void FormWindow::placed() {
    RECT now;
    GetWindowRect(window(), &now);
    if (EqualRect(&now, &placeBefore_) || IsIconic(window()) || !screen_.onPlaced) {
        return;
    }
    RECT inside;
    GetClientRect(window(), &inside);
    const int dots = static_cast<int>(scale_.dotsPerInch());
    const ScreenPlace place{now.left, now.top, MulDiv(inside.right, 96, dots),
                            MulDiv(inside.bottom, 96, dots)};
    screen_.dispatch([&] { screen_.onPlaced(place); });
}

void FormWindow::sized(SIZE inside) {
    const RECT design = scale_(at(0, 0, screen_.width(), screen_.height()));
    const SIZE extra{std::max<LONG>(inside.cx - design.right, 0),
                     std::max<LONG>(inside.cy - design.bottom, 0)};
    if (!screen_.canGrow || (extra.cx == extra_.cx && extra.cy == extra_.cy)) {
        return;
    }
    extra_ = extra;
    for (const auto& [control, window] : controls_) {
        window->arrange();
    }
    themeChanged();
}

/// By how much the frame is larger than its place; null for the form.
SIZE FormWindow::extraIn(const Frame* frame) const {
    if (!frame) {
        return extra_;
    }
    const SIZE around = extraIn(frame->frame());
    return {frame->onGrowth.widens ? around.cx : 0, frame->onGrowth.heightens ? around.cy : 0};
}

RECT FormWindow::placeOf(const Control& control) const {
    const SIZE extra = extraIn(control.frame());
    const auto& [movesRight, movesDown, widens, heightens] = control.onGrowth;
    RECT place = scale_(control.place());
    place.left += movesRight ? extra.cx : 0;
    place.top += movesDown ? extra.cy : 0;
    place.right += movesRight || widens ? extra.cx : 0;
    place.bottom += movesDown || heightens ? extra.cy : 0;
    return place;
}

/// Makes the windows of the controls in a frame, or of those in none, unless they are there. Frames that are
/// hidden get theirs later.
void FormWindow::createControls(const Frame* within) {
    if (!created_.insert(within).second) {
        return;
    }
    needCommonControls();
    constexpr ControlKind none = ControlKind::Frame;
    ControlKind before = none;
    for (Control* control : screen_.controls()) {
        if (control->kind() == ControlKind::Timer || control->frame() != within) {
            continue;
        }
        if (control->kind() == ControlKind::Frame) {
            before = none;
            if (control->Visible()) {
                createFrame(static_cast<Frame&>(*control));
            }
            continue;
        }
        // The arrow keys go round among neighbours of one kind; what takes no keys is a group of its own.
        ControlWindow& made = *(controls_[control] = makeControlWindow(*this, *control));
        const ControlKind group = made.takesKeys() ? control->kind() : none;
        made.create(parentOf(*control), idOf(*control), group == none || group != before);
        before = group;
    }
}

/// With the controls in it.
void FormWindow::createFrame(Frame& frame) {
    std::unique_ptr<ControlWindow>& window = controls_[&frame];
    if (!window) {
        window = makeControlWindow(*this, frame);
        window->create(parentOf(frame), idOf(frame), true);
        // Behind what the keyboard comes to before it, since its neighbours may be there already.
        HWND before = HWND_TOP;
        for (const Control* control : screen_.controls()) {
            if (control == &frame) {
                break;
            }
            if (const ControlWindow* neighbour = windowOf(*control);
                neighbour && control->frame() == frame.frame()) {
                before = neighbour->window();
            }
        }
        SetWindowPos(window->window(), before, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }
    createControls(&frame);
}

HWND FormWindow::parentOf(const Control& control) const {
    return control.frame() ? windowOf(*control.frame())->window() : window();
}

int FormWindow::idOf(const Control& control) const {
    const auto& all = screen_.controls();
    return firstControlId + static_cast<int>(std::ranges::find(all, &control) - all.begin());
}

bool FormWindow::makeReady() {
    const auto found = std::ranges::find_if(screen_.controls(), [this](const Control* control) {
        return control->kind() == ControlKind::Frame && created_.contains(control->frame()) &&
               !created_.contains(static_cast<const Frame*>(control));
    });
    if (found == screen_.controls().end()) {
        return false;
    }
    createFrame(static_cast<Frame&>(**found));
    return true;
}

ControlWindow* FormWindow::windowOf(const Control& control) const {
    const auto found = controls_.find(&control);
    return found == controls_.end() ? nullptr : found->second.get();
}

bool FormWindow::isNavigation(const Frame& frame) const {
    return std::ranges::any_of(screen_.controls(), [&](const Control* control) {
        return control->kind() == ControlKind::NavButton && control->frame() == &frame;
    });
}

void FormWindow::changed(Aspect aspect) {
    switch (aspect) {
    case Aspect::Visible:
        refresh();
        applyVisible();
        break;
    case Aspect::Value:
        applyMinimized();
        break;
    case Aspect::Front:
        bringToFront();
        break;
    default:
        captionWaits_ = true;
        refreshIfDue();
        break;
    }
}

void FormWindow::changed(Control& control, Aspect aspect) {
    const bool comesOrGoes = aspect == Aspect::Visible || aspect == Aspect::Enabled;
    if (control.kind() == ControlKind::Frame && comesOrGoes && control.Visible() && control.Enabled()) {
        pageShown_ = &control;
    }
    if (control.kind() == ControlKind::Timer) {
        applyTimer(control);
        return;
    }
    if (control.kind() == ControlKind::Frame && control.Visible() && created_.contains(control.frame())) {
        createFrame(static_cast<Frame&>(control));
    }
    if (ControlWindow* window = windowOf(control)) {
        window->changed(aspect);
    }
}

void FormWindow::applyVisible() {
    if (!screen_.Visible()) {
        hide();
        return;
    }
    placeFirst();
    cameFrom_ = GetActiveWindow();
    if (blocked_ || !screen_.Minimized()) {
        createControls(nullptr);
    }
    if (blocked_) {
        SetWindowPos(window(), foremostUsable(), 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    } else if (screen_.Minimized()) {
        ShowWindow(window(), SW_SHOWMINIMIZED);
    } else {
        bringToFront();
    }
}

/// The keyboard goes back to where it came from.
void FormWindow::hide() {
    const HWND before = std::exchange(cameFrom_, nullptr);
    if (GetActiveWindow() == window() && before != window() && IsWindowVisible(before) &&
        IsWindowEnabled(before) && !IsIconic(before)) {
        SetActiveWindow(before);
    }
    ShowWindow(window(), SW_HIDE);
}

void FormWindow::belongTo(HWND owner) {
    windowCalls().setWindowLongPtr(window(), GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owner));
}

void FormWindow::bringToFront() {
    if (!blocked_) {
        ShowWindow(window(), SW_SHOWNORMAL);
        SetForegroundWindow(window());
    }
}

void FormWindow::setBlocked(bool blocked) {
    blocked_ = blocked;
    EnableWindow(window(), !blocked);
}

void FormWindow::applyMinimized() {
    const bool already = (IsIconic(window()) != FALSE) == screen_.Minimized();
    if (screen_.Visible() && !already) {
        ShowWindow(window(), screen_.Minimized() ? SW_MINIMIZE : SW_RESTORE);
    }
}

/// A timer's number is its place among the controls.
void FormWindow::applyTimer(const Control& timer) {
    const auto place = std::ranges::find(screen_.controls(), &timer) - screen_.controls().begin();
    const UINT_PTR id = firstControlTimer + static_cast<UINT_PTR>(place);
    if (timer.Enabled()) {
        SetTimer(window(), id, static_cast<UINT>(static_cast<const Timer&>(timer).interval()), nullptr);
    } else {
        KillTimer(window(), id);
    }
}

void FormWindow::timerFired(UINT_PTR id) {
    const auto& controls = screen_.controls();
    const UINT_PTR place = id - firstControlTimer;
    if (id == refreshTimer) {
        KillTimer(window(), refreshTimer);
        timerRuns_ = false;
        refresh();
    } else if (place < controls.size() && controls[place]->kind() == ControlKind::Timer) {
        static_cast<Timer*>(controls[place])->tick();
    }
}

void FormWindow::refreshLater(ControlWindow& window) {
    if (!window.waitsForRefresh) {
        window.waitsForRefresh = true;
        waiting_.push_back(&window);
    }
    // Not the focus: what has gone may have something come in its place yet.
    if (isDue()) {
        showChanges();
    }
    wakeIfAnythingWaits();
}

bool FormWindow::isDue() const {
    return GetTickCount() - refreshedAt_ >= refreshEvery;
}

bool FormWindow::wakeIfAnythingWaits() {
    const bool waits = !waiting_.empty() || captionWaits_ || focusLost_ || emptied_;
    if (waits && !timerRuns_) {
        timerRuns_ = SetTimer(window(), refreshTimer, refreshEvery, nullptr) != 0;
    }
    return waits;
}

void FormWindow::refreshIfDue() {
    if (wakeIfAnythingWaits() && isDue()) {
        refresh();
    }
}

void FormWindow::showChanges() {
    refreshedAt_ = GetTickCount();
    if (captionWaits_) {
        captionWaits_ = false;
        windowCalls().defWindowProc(window(), WM_SETTEXT, 0, WindowText(screen_.Caption()).parameter());
    }
    for (ControlWindow* window : std::exchange(waiting_, {})) {
        window->waitsForRefresh = false;
        window->refresh();
    }
}

void FormWindow::settleFocus() {
    if (std::exchange(focusLost_, false)) {
        giveFocus();
    }
}

void FormWindow::refresh() {
    showChanges();
    settleFocus();
    const ControlWindow* emptied = std::exchange(emptied_, nullptr);
    if (emptied && emptied->isFocused() && emptied->isEmpty()) {
        moveFocus(FALSE, FALSE);
    }
}

void FormWindow::scaleTo(unsigned dotsPerInch, const RECT& place) {
    const int before = static_cast<int>(scale_.dotsPerInch());
    const auto scaled = [&](LONG pixels) { return MulDiv(pixels, 96, before); };
    const SIZE extra{scaled(extra_.cx), scaled(extra_.cy)};
    scale_ = Scale(dotsPerInch);
    const SIZE size = outerSize(screen_.width() + extra.cx, screen_.height() + extra.cy);
    SetWindowPos(window(), nullptr, place.left, place.top, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE);
    for (const auto& [control, window] : controls_) {
        window->arrange();
    }
    themeChanged();
}

void FormWindow::themeChanged() {
    darkenTitleBar(window(), tools_.theme);
    for (const auto& [control, window] : controls_) {
        window->followTheme();
    }
    RedrawWindow(window(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

} // namespace tarvelon
