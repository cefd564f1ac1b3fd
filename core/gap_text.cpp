#include "core/gap_text.h"

#include <algorithm>
#include <cstring>

namespace tarvelon {

void GapText::set(std::string text) {
    room_ = std::move(text);
    gapStart_ = room_.size();
    gapEnd_ = room_.size();
}

std::string GapText::whole() const {
    return room_.substr(0, gapStart_).append(room_, gapEnd_);
}

std::string_view GapText::piece(std::size_t position, std::size_t length) {
    length = std::min(length, size() - position);
    if (position < gapStart_ && gapStart_ < position + length) {
        moveGap(position);
    }
    const std::size_t place = position < gapStart_ ? position : position + (gapEnd_ - gapStart_);
    return std::string_view(room_).substr(place, length);
}

void GapText::replace(std::size_t position, std::size_t length, std::string_view with) {
    moveGap(position);
    changedAt_ = position;
    putLength_ = with.size();
    taken_.assign(room_, gapEnd_, length);
    gapEnd_ += length;
    widenGap(with.size());
    with.copy(room_.data() + gapStart_, with.size());
    gapStart_ += with.size();
}

void GapText::undo() {
    replace(changedAt_, putLength_, std::string(taken_));
}

void GapText::moveGap(std::size_t position) {
    char* const text = room_.data();
    if (position < gapStart_) {
        const std::size_t between = gapStart_ - position;
        std::memmove(text + gapEnd_ - between, text + position, between);
    } else {
        std::memmove(text + gapStart_, text + gapEnd_, position - gapStart_);
    }
    gapEnd_ = gapEnd_ - gapStart_ + position;
    gapStart_ = position;
}

void GapText::widenGap(std::size_t wanted) {
    if (gapEnd_ - gapStart_ >= wanted) {
        return;
    }
    const std::size_t more = wanted + room_.size() / 8;
    room_.insert(gapEnd_, more, '\0');
    gapEnd_ += more;
}

} // namespace tarvelon
