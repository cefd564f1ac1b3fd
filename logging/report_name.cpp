#include "logging/report_name.h"

#include "core/text.h"

#include <algorithm>
#include <vector>

namespace tarvelon {

std::string reportDate(const std::string& date) {
    std::string text = date;
    std::replace(text.begin(), text.end(), '/', '-');
    const std::vector<std::string> parts = split(text, '-');
    std::string padded;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const bool last = i + 1 == parts.size();
        padded.append(!last && parts[i].size() == 1 ? "0" : "").append(parts[i]).append(last ? "" : "-");
    }
    return padded;
}

std::string reportTimeStored(const TextRules& texts, const std::string& time) {
    return texts.replaceAll(texts.replaceAll(time, ":", "_"), " ", "");
}

std::string reportTimeShown(const TextRules& texts, const std::string& time) {
    std::string text = texts.replaceAll(time, "_", ":");
    for (const char* half : {"AM", "PM"}) {
        const std::size_t hit = text.find(half);
        if (hit != std::string::npos) {
            text.insert(hit, " ");
        }
    }
    return text;
}

} // namespace tarvelon
