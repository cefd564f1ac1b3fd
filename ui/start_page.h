#pragma once

#include <functional>

namespace tarvelon {

class Overview;
struct MForm1Screen;

/// The start page: shows how the program's parts stand, and leads to where each is set.
class StartPage {
public:
    StartPage(MForm1Screen& screen, const Overview& overview);

    /// While a scan runs nothing is read: the listing of its folder must go on.
    std::function<bool()> scanRuns;

    /// Reads all anew as soon as the program rests, if the page is to be seen then.
    void update();

private:
    void bind();
    void read();

    MForm1Screen& screen_;
    const Overview& overview_;
};

} // namespace tarvelon
