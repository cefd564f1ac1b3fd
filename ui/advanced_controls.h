#pragma once

#include "ui/controls/bar_chart.h"
#include "ui/controls/lists.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

namespace tarvelon {

/// The controls of the advanced settings page, which hold their settings while the program runs.
struct AdvancedControls {
    explicit AdvancedControls(Frame& settF)
        : advF(settF, at(0, 0, 600, 488), false) {
        Label1.Visible = false;
        Label1.tone = Tone::Bad;
        bufferGroup.name = "Read buffer";
        List1.name = "Speed report";
        cSpeeds.ToolTip = "Times each algorithm and read buffer on this machine";
        cButton1.isCancel = true;
    }

    Frame advF;
    Icon advancedIcon{advF, at(24, 20, 24, 24), "options"};
    Label advancedTitle{advF, "Advanced Settings", at(56, 16, 520, 32), TextStyle::Title};
    Label Label22{advF, "Tarvelon Integrity Checker Read Buffer:", at(24, 52, 240, 24)};
    Frame bufferGroup{advF, at(264, 52, 312, 24)};
    OptionButton Option1{bufferGroup, "64 Kb", at(0, 0, 78, 24)};
    OptionButton Option2{bufferGroup, "128 Kb", at(78, 0, 78, 24)};
    OptionButton Option3{bufferGroup, "256 Kb", at(156, 0, 78, 24)};
    OptionButton Option4{bufferGroup, "512 Kb", at(234, 0, 78, 24)};
    Frame Frame1{advF, "Pass 'x' Files at a Time (500 is recommended)", at(24, 84, 312, 80)};
    OptionButton Option5{Frame1, "Pass All Files", at(16, 24, 128, 24)};
    OptionButton Option6{Frame1, "50", at(144, 24, 72, 24)};
    OptionButton Option7{Frame1, "100", at(224, 24, 72, 24)};
    OptionButton Option8{Frame1, "200", at(16, 50, 72, 24)};
    OptionButton Option9{Frame1, "350", at(144, 50, 72, 24)};
    OptionButton Option10{Frame1, "500", at(224, 50, 72, 24)};
    Frame Frame3{advF, "Integrity Checker Algorithm:", at(344, 84, 232, 80)};
    OptionButton Option11{Frame3, "CRC32", at(16, 24, 96, 24)};
    OptionButton Option12{Frame3, "MD5", at(128, 24, 88, 24)};
    OptionButton Option13{Frame3, "SHA-1", at(16, 50, 96, 24)};
    OptionButton Option14{Frame3, "MD4", at(128, 50, 88, 24)};
    Label Label28{advF, "Anti-Virus Shell Options:", at(24, 172, 552, 20), TextStyle::Heading};
    CheckBox Check10{advF, "Enclose Files with Quotes", at(24, 196, 240, 24)};
    Label Label1{advF, "Warning! Current options may cause errors!", at(264, 196, 312, 24)};
    CheckBox Check11{
        advF, "Use ShortPath File Names (For DOS-Based On-Demand Anti-Virus scanners...Example: McAfee)",
        at(24, 220, 568, 24)};
    CheckBox avfocus{advF, "Give anti-virus program Focus (Fixes GUI Errors with AVAST 4)",
                     at(24, 244, 552, 24)};
    Label Label30{advF, "Micellaneous:", at(24, 272, 88, 24)};
    check wsh{advF, "Use Windows Scripting Host (If Auto-Load won't create shortcut/save)",
              at(112, 272, 464, 24)};

    // Compare Speeds: the report, and one of its three tests as a chart.
    ListBox List1{advF, at(24, 304, 452, 126), true, "Press Compare Speeds to time this machine"};
    Label chartHeading{advF, "Time by buffer:", at(482, 302, 102, 18), TextStyle::Hint};
    BarChart speedChart{advF, "", 4, at(482, 320, 94, 110)};
    cButton cSpeeds{advF, "Compare Speeds", at(24, 440, 168, 32)};
    cButton cButton1{advF, "Cancel", at(320, 440, 112, 32)};
    cButton cSave2{advF, "Save", at(440, 440, 136, 32), Rank::Primary};

    /// The controls behind the positions of a stored list.
    std::array<CheckBox*, 3> shellChecks{&Check10, &Check11, &avfocus};

    /// The options of the advanced page, each with what it stands for.
    template<class Value, std::size_t count>
    using Choices = std::array<std::pair<OptionButton*, Value>, count>;
    Choices<std::int32_t, 4> bufferOptions{
        {{&Option1, 65536}, {&Option2, 131072}, {&Option3, 262144}, {&Option4, 524288}}};
    Choices<std::int32_t, 6> passOptions{{{&Option5, 99999},
                                          {&Option6, 50},
                                          {&Option7, 100},
                                          {&Option8, 200},
                                          {&Option9, 350},
                                          {&Option10, 500}}};
    Choices<std::string_view, 4> algorithmOptions{
        {{&Option11, "CRC32"}, {&Option12, "MD5"}, {&Option13, "SHA1"}, {&Option14, "MD4"}}};
};

} // namespace tarvelon
