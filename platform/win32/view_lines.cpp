#include "platform/win32/view_lines.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tarvelon {

namespace {

constexpr float pi = std::numbers::pi_v<float>;

/// What stands between the quotes behind `name="`, from `from` on; `from` moves behind it. Empty, and `from`
/// at the text's end, when there is none.
std::string_view attribute(std::string_view svg, std::string_view name, std::size_t& from) {
    const std::size_t found = svg.find(name, from);
    const std::size_t start = found == std::string_view::npos ? found : found + name.size();
    const std::size_t end = start == std::string_view::npos ? start : svg.find('"', start);
    from = std::min(end, svg.size());
    return end == std::string_view::npos ? std::string_view{} : svg.substr(start, end - start);
}

/// Takes apart a list of letters and numbers.
class Reader {
public:
    explicit Reader(std::string_view text)
        : text_(text) {}

    bool atEnd() {
        skipBlanks();
        return text_.empty();
    }

    bool atNumber() { return !atEnd() && (isDigit() || text_.front() == '-' || text_.front() == '.'); }

    char letter() {
        const char first = text_.front();
        text_.remove_prefix(1);
        return first;
    }

    float number() {
        skipBlanks();
        const bool negative = take('-');
        float value = 0;
        while (isDigit()) {
            value = value * 10 + static_cast<float>(letter() - '0');
        }
        if (take('.')) {
            for (float unit = 0.1F; isDigit(); unit /= 10) {
                value += unit * static_cast<float>(letter() - '0');
            }
        }
        return negative ? -value : value;
    }

    Spot spot() {
        const float x = number();
        return {x, number()};
    }

private:
    bool isDigit() const { return !text_.empty() && text_.front() >= '0' && text_.front() <= '9'; }

    bool take(char wanted) {
        const bool found = !text_.empty() && text_.front() == wanted;
        text_.remove_prefix(found ? 1 : 0);
        return found;
    }

    void skipBlanks() { text_.remove_prefix(std::min(text_.find_first_not_of(" ,\r\n\t"), text_.size())); }

    std::string_view text_;
};

void addCurve(std::vector<Spot>& line, Spot control1, Spot control2, Spot end) {
    constexpr int pieces = 16;
    const Spot start = line.back();
    for (int piece = 1; piece <= pieces; ++piece) {
        const float t = static_cast<float>(piece) / pieces;
        const float u = 1 - t;
        const float a = u * u * u;
        const float b = 3 * u * u * t;
        const float c = 3 * u * t * t;
        const float d = t * t * t;
        line.push_back({a * start.x + b * control1.x + c * control2.x + d * end.x,
                        a * start.y + b * control1.y + c * control2.y + d * end.y});
    }
}

/// Part of a circle through two spots; from ends to middle as in the implementation notes of SVG 1.1, F.6.5.
void addArc(std::vector<Spot>& line, float radius, bool longWay, bool clockwise, Spot end) {
    const Spot start = line.back();
    const Spot way{end.x - start.x, end.y - start.y};
    const float length = std::hypot(way.x, way.y);
    if (length <= 0) {
        return;
    }
    const float reach = std::max(radius, length / 2);
    const float aside = std::sqrt(std::max(reach * reach - length * length / 4, 0.0F)) / length *
                        (longWay == clockwise ? -1.0F : 1.0F);
    const Spot middle{(start.x + end.x) / 2 - aside * way.y, (start.y + end.y) / 2 + aside * way.x};
    const float first = std::atan2(start.y - middle.y, start.x - middle.x);
    float turn = std::atan2(end.y - middle.y, end.x - middle.x) - first;
    if (clockwise && turn < 0) {
        turn += 2 * pi;
    } else if (!clockwise && turn > 0) {
        turn -= 2 * pi;
    }
    const int pieces = static_cast<int>(std::fabs(turn) * 6) + 1;
    for (int piece = 1; piece <= pieces; ++piece) {
        const float angle = first + turn * static_cast<float>(piece) / static_cast<float>(pieces);
        line.push_back({middle.x + reach * std::cos(angle), middle.y + reach * std::sin(angle)});
    }
}

/// Adds what one command draws with one set of numbers. False for a command that is not known.
bool addPiece(std::vector<Spot>& line, char command, Reader& reader) {
    switch (command) {
    case 'L':
        line.push_back(reader.spot());
        return true;
    case 'H':
        line.push_back({reader.number(), line.back().y});
        return true;
    case 'V':
        line.push_back({line.back().x, reader.number()});
        return true;
    case 'C': {
        const Spot control1 = reader.spot();
        const Spot control2 = reader.spot();
        addCurve(line, control1, control2, reader.spot());
        return true;
    }
    case 'A': {
        const float radius = reader.spot().x;
        reader.number(); // The tilt: a circle has none.
        const bool longWay = reader.number() != 0;
        const bool clockwise = reader.number() != 0;
        addArc(line, radius, longWay, clockwise, reader.spot());
        return true;
    }
    default:
        return false;
    }
}

void addPath(std::vector<std::vector<Spot>>& lines, std::string_view path) {
    Reader reader(path);
    char command = 0;
    bool begun = false;
    while (!reader.atEnd()) {
        if (!reader.atNumber()) {
            command = reader.letter();
        }
        if (command == 'M' && reader.atNumber()) {
            lines.push_back({reader.spot()});
            begun = true;
            command = 'L';
        } else if (command == 'Z' && begun) {
            lines.back().push_back(lines.back().front());
            command = 0;
        } else if (!begun || !reader.atNumber() || !addPiece(lines.back(), command, reader)) {
            return;
        }
    }
}

} // namespace

LineDrawing readLineDrawing(std::string_view svg) {
    LineDrawing drawing;
    std::size_t from = 0;
    Reader box(attribute(svg, "viewBox=\"", from));
    box.spot();
    drawing.side = box.number();
    from = 0;
    drawing.thickness = Reader(attribute(svg, "stroke-width=\"", from)).number();
    for (from = 0; from < svg.size();) {
        addPath(drawing.lines, attribute(svg, " d=\"", from));
    }
    return drawing;
}

} // namespace tarvelon
