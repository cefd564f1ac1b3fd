// The checksum of one file, as the program computes it:
//
//     checksum_file ALGORITHM FILE
//
// or, for comparison, the same file read by the same buffers straight into the cryptographic service:
//
//     checksum_file --service ALGORITHM FILE

#include "core/globals.h"
#include "hash/checksum.h"
#include "platform/sim/workstation.h"

#include <array>
#include <cstdio>
#include <fcntl.h>
#include <map>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

using namespace tarvelon;

std::string checksumByProgram(const std::string& algorithm, const std::string& hostFile) {
    const std::size_t slash = hostFile.rfind('/');
    SimWorkstation machine(hostFile.substr(0, slash));
    Globals globals;
    globals.settings.algoName = algorithm;
    return Checksum(globals.settings, globals, machine.platform())
        .getChecksum("C:\\" + hostFile.substr(slash + 1));
}

std::string checksumByService(const std::string& algorithm, const std::string& hostFile) {
    const std::map<std::string, std::uint32_t> identifiers = {
        {"MD4", 32770}, {"MD5", 32771}, {"SHA1", 32772}};
    SimWorkstation machine("/");
    CryptoService& service = machine.crypto;
    CryptoService::Handle provider = 0;
    CryptoService::Handle hash = 0;
    service.acquireContext(provider, "", "Microsoft Enhanced Cryptographic Provider v1.0", 1, 8);
    service.createHash(provider, identifiers.at(algorithm), hash);

    std::vector<char> buffer(65536);
    const int file = ::open(hostFile.c_str(), O_RDONLY);
    for (ssize_t got = 0; (got = ::read(file, buffer.data(), buffer.size())) > 0;) {
        service.hashData(hash, buffer.data(), static_cast<std::size_t>(got));
    }
    ::close(file);

    std::array<unsigned char, 20> digest{};
    std::uint32_t length = digest.size();
    service.getHashParam(hash, 2, digest.data(), length);
    std::string text;
    for (std::uint32_t place = 0; place < length; ++place) {
        text += std::to_string(digest[place]);
    }
    return text;
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    const bool service = !arguments.empty() && arguments.front() == "--service";
    const std::size_t first = service ? 1 : 0;
    if (arguments.size() != first + 2 || arguments.back().find('/') == std::string::npos) {
        std::fputs("usage: checksum_file [--service] ALGORITHM /FOLDER/FILE\n", stderr);
        return 2;
    }
    const auto checksum = service ? checksumByService : checksumByProgram;
    const std::string text = checksum(arguments[first], arguments.back());
    std::printf("%s\n", text.c_str());
    return text.empty() || text == "0" ? 1 : 0;
}
