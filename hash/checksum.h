#pragma once

#include "hash/file_reader.h"

#include <string>

namespace tarvelon {

struct Globals;
struct Platform;

/// Checksum texts of files under the algorithm in force, and the names of the baselines that hold them.
class Checksum {
public:
    Checksum(Globals& globals, Platform& platform);

    /// The file's checksum as it stands in the baselines. CRC-32: upper-case hexadecimal without leading
    /// zeros, "0" for an empty or unreadable file. MD4, MD5, SHA-1: the digest's bytes as decimal numbers
    /// without separators, empty for an empty or unreadable file. Window messages may run once per read
    /// buffer.
    std::string getChecksum(const std::string& path);

    /// Makes `intFile` follow `algoName`.
    void setDatName();

    /// The baseline file of a custom folder's slot, 1 to 20.
    std::string getCustomDat(int number) const;

private:
    std::string dataFile(const std::string& stem) const;

    Globals& globals_;
    Platform& platform_;
    FileReader reader_;
};

} // namespace tarvelon
