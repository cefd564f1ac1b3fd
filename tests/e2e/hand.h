#pragma once

#include "tools/driver/driver.h"

#include <cstdint>
#include <random>
#include <string>

namespace e2e {

/// What is drawn for one event. The same seed and number draw the same, whatever went before.
class Chance {
public:
    Chance(std::uint32_t seed, std::uint32_t number);

    std::uint32_t below(std::size_t count) { return draw_() % static_cast<std::uint32_t>(count); }
    bool oneIn(std::uint32_t count) { return below(count) == 0; }
    template<class Many>
    const auto& of(const Many& all) {
        return all[below(std::size(all))];
    }

private:
    std::mt19937 draw_;
};

/// A user's hand on the keyboard and the mouse, which does at random what can be done to what stands on the
/// screen. All of it goes through the system's input queue.
class Hand {
public:
    /// `scanner` is the file that it picks where a file is asked for.
    Hand(const Program& program, std::string scanner)
        : program_(program)
        , scanner_(std::move(scanner)) {}

    /// One event. Tells what was done.
    std::string act(Chance& chance);

private:
    std::string useSystemDialog(const Box& box, Chance& chance);

    const Program& program_;
    const std::string scanner_;
};

/// True for a dialog that is the system's own, not a message box.
bool isSystemDialog(HWND window);

} // namespace e2e
