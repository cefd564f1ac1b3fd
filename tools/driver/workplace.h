#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

/// The files around a run: the program's own folder, what is put into the system directory, and what the
/// data files should hold. Nothing here is shared with the program.
namespace e2e {

/// Paths handed over by the script that starts the tests.
struct Inputs {
    std::string program;  ///< The program file to test.
    std::string expected; ///< Folder with the expected baselines, with a backslash.
};

const Inputs& inputs();
void setInputs(Inputs given);

std::optional<std::string> readFile(const std::string& path);
void writeFile(const std::string& path, const std::string& bytes);

/// Bare names of the files and folders in a folder, which is given with a backslash.
std::vector<std::string> namesIn(const std::string& folder);

/// A fresh folder with nothing in it but the program.
class ProgramFolder {
public:
    explicit ProgramFolder(const std::string& name);

    /// With a backslash.
    const std::string& path() const { return path_; }
    std::string program() const { return path_ + "TarvelonLow.exe"; }

    std::optional<std::string> data(const std::string& name) const {
        return readFile(path_ + "Data\\" + name);
    }
    void writeData(const std::string& name, const std::string& bytes) const;
    bool hasData(const std::string& name) const { return data(name).has_value(); }

    /// What the reports hold, one text a report.
    std::vector<std::string> logs() const;

    /// A settings file as the program makes it, with some lines changed: key (such as "algo", or "3/path"
    /// for one of the numbered sections) to value.
    void writeSettings(const std::map<std::string, std::string>& changes) const;

private:
    std::string path_;
};

/// A file that stands in a folder while the object lives.
class PlantedFile {
public:
    PlantedFile(std::string path, const std::string& bytes);
    PlantedFile(const PlantedFile&) = delete;
    ~PlantedFile();

    /// Makes a file of that many zero bytes that takes no room on the disk.
    static void stretch(const std::string& path, std::int64_t length);

    const std::string& path() const { return path_; }
    void rewrite(const std::string& bytes) const { writeFile(path_, bytes); }

private:
    std::string path_;
};

/// With a backslash.
std::string systemDirectory();

/// CRC-32 bit by bit, as the data files show it.
std::string crcText(const std::string& bytes);

/// The expected system baseline under CRC-32.
std::string systemBaseline();

/// A baseline with one more entry at the end of a section.
std::string withEntry(std::string baseline, const std::string& section, const std::string& name,
                      const std::string& checksum);

/// A baseline with one section filled.
std::string smallBaseline(const std::string& section, const std::string& entries);

} // namespace e2e
