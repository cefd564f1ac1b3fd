#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarvelon {

/// A text that is changed at places close to one another. It keeps free room where it was changed last, so
/// that a change moves only what stands between the two places, not all that stands behind.
class GapText {
public:
    std::size_t size() const { return room_.size() - (gapEnd_ - gapStart_); }

    void set(std::string text);
    std::string whole() const;

    /// The text from `position` on, at most `length` characters of it. Good until the next call.
    std::string_view piece(std::size_t position, std::size_t length);

    /// `with` must not lie in this text.
    void replace(std::size_t position, std::size_t length, std::string_view with);
    /// Takes the last `replace` back.
    void undo();

private:
    void moveGap(std::size_t position);
    void widenGap(std::size_t wanted);

    std::string room_; ///< The text, with the gap inside.
    std::size_t gapStart_ = 0;
    std::size_t gapEnd_ = 0;
    std::size_t changedAt_ = 0;
    std::size_t putLength_ = 0; ///< What stands there since the last replacement,
    std::string taken_;         ///< and what stood there before.
};

} // namespace tarvelon
