#include "hash/checksum.h"

#include "core/failure.h"
#include "core/globals.h"
#include "core/text.h"
#include "hash/crc.h"
#include "hash/digest.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <string_view>
#include <utility>

namespace tarvelon {

namespace {

constexpr std::string_view crc32Name = "CRC32";

/// Upper case, without leading zeros; "0" for no value.
std::string hexadecimal(std::optional<std::int32_t> value) {
    char digits[9];
    std::snprintf(digits, sizeof digits, "%X", static_cast<unsigned>(value.value_or(0)));
    return digits;
}

std::string crcText(FileReader& reader, const std::string& path) {
    return hexadecimal(clsCRC(reader).CalculateFile2(path, path));
}

/// A name that is none of the three chooses nothing.
void chooseAlgorithm(clsHash& hash, std::string_view upperName) {
    constexpr std::array<std::pair<std::string_view, std::int32_t>, 3> indexes = {
        {{"MD4", 0}, {"MD5", 1}, {"SHA1", 2}}};
    for (const auto& [name, index] : indexes) {
        if (upperName == name) {
            hash.HashAlgorithm(index);
        }
    }
}

std::string digestText(clsHash hash, std::string_view upperName, const std::string& path) {
    chooseAlgorithm(hash, upperName);
    hash.CreateHash();
    hash.CalculateFile3(path, path);
    const std::string text = hash.GetDigestedData(1);
    // A machine without the service, or a name that it does not know, has no digest to end: the user sees an
    // empty checksum and no further box.
    passOver([&hash] { hash.DestroyHash(); });
    return text;
}

} // namespace

Checksum::Checksum(Algorithm& algorithm, Globals& globals, Platform& platform)
    : algorithm_(algorithm)
    , globals_(globals)
    , platform_(platform)
    , reader_(platform, algorithm) {}

std::string Checksum::getChecksum(const std::string& path) {
    // Blanks around the name do not hinder the data file's name, but here they make it an unknown one.
    const std::string& name = algorithm_.algoName;
    const std::string upperName = globals_.texts.upper(name);
    if (upperName == crc32Name || trim(name).empty()) {
        return crcText(reader_, path);
    }
    return digestText(clsHash(platform_, reader_, globals_.digest.provider), upperName, path);
}

void Checksum::setDatName() {
    globals_.app.intFile = getIntFile();
}

std::string Checksum::getIntFile() const {
    return dataFile("Integrity");
}

std::string Checksum::getCustomDat(int number) const {
    return dataFile(std::to_string(number));
}

std::string Checksum::dataFile(const std::string& stem) const {
    const std::string name = trim(algorithm_.algoName);
    std::string path = globals_.app.dataFolder() + stem;
    if (!name.empty() && globals_.texts.upper(name) != crc32Name) {
        path.append("-").append(lowerAscii(name));
    }
    return path + ".dat";
}

} // namespace tarvelon
