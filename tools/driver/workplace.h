#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

/// The files around a run: the program's own folder, what is put into the system directory, and what the
/// data files should hold. Nothing here is shared with the program.
namespace e2e {

/// Where a run takes place.
struct Inputs {
    std::string program; ///< The program file to test.
    std::string folder;  ///< What the folders of the run are made in, with a backslash.
    /// The system belongs to somebody: nothing but the run's own folder and values of its own name is
    /// written, and nothing is done that the whole system feels.
    bool asGuest;
};

const Inputs& inputs();
/// Takes them as a program is handed them. Without a folder, the system is there for the tests alone.
void setInputs(const char* program, const char* folder = nullptr);

/// Throws as a guest: for what the whole system would feel.
void demandOwnSystem();

/// Where the program that asks lies, with a backslash.
std::string ownFolder();

/// The path as a command line begins with it: in quotes where it has blanks.
std::string asFirstWord(const std::string& path);

/// In the place of what may stand there.
void copyFile(const std::string& from, const std::string& to);

std::optional<std::string> readFile(const std::string& path);
void writeFile(const std::string& path, const std::string& bytes);

/// Bare names of the files and folders in a folder, which is given with a backslash.
std::vector<std::string> namesIn(const std::string& folder);

/// Of any length; with or without a backslash at its end.
bool makeFolder(const std::string& path);

/// With all in it, paths of any length. The folder is given with a backslash; true when it is not there any
/// more.
bool removeFolder(const std::string& path);

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

/// CRC-32 as the data files show it.
std::string crcText(const std::string& bytes);

/// The system baseline under CRC-32 that the program must come to.
const std::string& systemBaseline();

/// The lines of one section of a baseline, as they stand there, without the one that ends it.
std::vector<std::string> entriesOf(const std::string& baseline, const std::string& section);

/// The file that such a line is about.
std::string nameOf(const std::string& line);

/// A baseline with something else in the place of a line.
std::string withLine(std::string baseline, const std::string& line, const std::string& other);

/// A baseline with one more line at the end of a section.
std::string withEntry(std::string baseline, const std::string& section, const std::string& line);

/// A baseline with one section filled.
std::string smallBaseline(const std::string& section, const std::string& entries);

} // namespace e2e
