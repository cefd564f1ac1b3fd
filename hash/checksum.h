#pragma once

#include "hash/file_reader.h"

#include <string>

namespace tarvelon {

struct Algorithm;
struct Globals;
struct Platform;

/// Checksum texts of files under an algorithm, and the names of the baselines that hold them.
class Checksum {
public:
    /// `algorithm` may change at any time: that of the settings, or that of the scan in hand.
    Checksum(Algorithm& algorithm, Globals& globals, Platform& platform);

    /// The file's checksum as it stands in the baselines. CRC-32: upper-case hexadecimal without leading
    /// zeros, "0" for an empty or unreadable file. MD4, MD5, SHA-1: the digest's bytes as decimal numbers
    /// without separators, empty for an empty or unreadable file. Window messages may run once per read
    /// buffer.
    std::string getChecksum(const std::string& path);

    /// Makes `intFile` the system baseline of this algorithm.
    void setDatName();

    /// The file of the system baseline.
    std::string getIntFile() const;

    /// The baseline file of a custom folder's slot, 1 to 20.
    std::string getCustomDat(int number) const;

private:
    std::string dataFile(const std::string& stem) const;

    Algorithm& algorithm_;
    Globals& globals_;
    Platform& platform_;
    FileReader reader_;
};

} // namespace tarvelon
