#include "ui/places.h"

#include "core/failure.h"
#include "core/globals.h"
#include "core/settings_file.h"
#include "core/text.h"

#include <vector>

namespace tarvelon {

namespace {

constexpr const char* key = "places";

/// "name:x,y,width,height", or empty.
std::optional<ScreenPlace> placeFrom(const std::string& text, const std::string& name) {
    if (!text.starts_with(name + ":")) {
        return std::nullopt;
    }
    std::vector<std::int32_t> numbers;
    for (const std::string& part : split(std::string_view(text).substr(name.size() + 1), ',')) {
        const auto number = toNumber(part);
        if (!number) {
            return std::nullopt;
        }
        numbers.push_back(*number);
    }
    return numbers.size() == 4 ? std::optional(ScreenPlace{numbers[0], numbers[1], numbers[2], numbers[3]})
                               : std::nullopt;
}

} // namespace

void Places::keep(Screen& screen, const std::string& name) {
    screen.placeBefore = [this, name] { return find(name); };
    screen.onPlaced = [this, name](const ScreenPlace& place) { store(name, place); };
}

std::vector<std::string> Places::all() {
    return split(settings.readIni(globals.app.settFile, key, "Tarvelon"), ';');
}

std::optional<ScreenPlace> Places::find(const std::string& name) {
    for (const std::string& entry : all()) {
        if (const auto place = placeFrom(entry, name)) {
            return place;
        }
    }
    return std::nullopt;
}

void Places::store(const std::string& name, const ScreenPlace& place) {
    std::string value = name + ":" + std::to_string(place.x) + "," + std::to_string(place.y) + "," +
                        std::to_string(place.width) + "," + std::to_string(place.height);
    for (const std::string& entry : all()) {
        if (!entry.empty() && !entry.starts_with(name + ":")) {
            value.append(";").append(entry);
        }
    }
    passOver([this] { settings.checkSettFile(); });
    settings.saveSetting(key, value);
}

} // namespace tarvelon
