#include "ui/start_page.h"

#include "core/failure.h"
#include "ui/mform1_screen.h"
#include "ui/overview.h"

#include <array>
#include <string>
#include <vector>

namespace tarvelon {

StartPage::StartPage(MForm1Screen& screen, const Overview& overview)
    : screen_(screen)
    , overview_(overview) {
    bind();
}

void StartPage::bind() {
    screen_.readTimer.onTick = [this] {
        const bool isShown = screen_.Frame2.isShown();
        if (isShown && scanRuns()) {
            return; // At the next tick, perhaps.
        }
        screen_.readTimer.Enabled = false;
        if (isShown) {
            read();
        }
    };
    const auto leadTo = [this](std::size_t line, const std::vector<Control*>& clicks) {
        screen_.lines[line].go.onClick = [clicks] {
            for (Control* control : clicks) {
                control->click();
            }
        };
    };
    leadTo(0, {&screen_.Image5});
    leadTo(1, {&screen_.addRem});
    leadTo(2, {&screen_.cButton10});
    leadTo(3, {&screen_.Image11, &screen_.cSettings});
    leadTo(4, {&screen_.Image11, &screen_.cReports});
}

void StartPage::update() {
    screen_.readTimer.Enabled = true;
}

/// What cannot be read stays as it was shown last.
void StartPage::read() {
    constexpr std::array parts{&Overview::systemFiles, &Overview::folders, &Overview::scanner,
                               &Overview::autoLoad, &Overview::reports};
    int wanting = 0;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        passOver([&] {
            const Standing standing = (overview_.*parts[i])();
            StatusLine& line = screen_.lines[i].status;
            line.text = standing.text;
            line.ToolTip = standing.text;
            line.tone = standing.tone;
            wanting += standing.tone == Tone::Attention ? 1 : 0;
        });
    }
    screen_.standing.tone = wanting > 0 ? Tone::Attention : Tone::Good;
    screen_.standing.Caption = wanting > 1    ? std::to_string(wanting) + " things want your attention"
                               : wanting == 1 ? "One thing wants your attention"
                                              : "Everything is set up";
}

} // namespace tarvelon
