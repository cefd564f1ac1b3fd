#pragma once

#include "platform/win32/window_host.h"
#include "ui/controls/screen.h"
#include "view/theme.h"

#include <memory>
#include <vector>

namespace tarvelon {

class FormWindow;
struct ViewTools;

/// Turns screens into windows. A screen's own window is made when it is loaded, those of its controls when it
/// first comes to light; they go with the view.
class Win32View : public ScreenListener, public WindowHost {
public:
    explicit Win32View(ThemeKind theme = wantedTheme());
    Win32View(const Win32View&) = delete;
    ~Win32View() override;

    /// From now on the screen is drawn by this view. The first is the main one: while it is visible, the
    /// windows of the others belong to its own.
    void attach(Screen& screen);

    void loaded(Screen& screen) override;
    void changed(Screen& screen, Aspect aspect) override;
    void changed(Control& control, Aspect aspect) override;

    void handle(MSG& message) override;
    void block(HWND owner) override;
    void unblock() override;
    void refresh() override;
    void refreshIfDue() override;
    bool makeReady() override;

private:
    FormWindow* formOf(const Screen& screen) const;
    void belongToMain();

    std::unique_ptr<ViewTools> tools_;
    std::vector<std::unique_ptr<FormWindow>> forms_; ///< Grows while messages are handled.
    const Screen* main_ = nullptr;
    int blocks_ = 0;
};

} // namespace tarvelon
