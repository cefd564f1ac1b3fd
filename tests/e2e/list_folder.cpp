// Writes the names in a folder to a file, one a line, in the order in which the system lists them.
// usage: list_folder FOLDER FILE

#include <windows.h>

#include <cstdio>
#include <string>

int main(int count, char** arguments) {
    if (count != 3) {
        return 2;
    }
    std::FILE* const out = std::fopen(arguments[2], "wb");
    WIN32_FIND_DATAA entry{};
    HANDLE const search = FindFirstFileA((std::string(arguments[1]) + "\\*").c_str(), &entry);
    if (out == nullptr || search == INVALID_HANDLE_VALUE) {
        return 1;
    }
    do {
        std::fprintf(out, "%s\n", entry.cFileName);
    } while (FindNextFileA(search, &entry) != 0);
    FindClose(search);
    return std::fclose(out);
}
