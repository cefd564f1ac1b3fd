#pragma once

#include "platform/crypto.h"

#include <array>
#include <cstdint>
#include <string>

namespace tarvelon {

class FileReader;
struct Platform;

/// Digests of files by the system's cryptographic service. Order of use: `HashAlgorithm`, `CreateHash`,
/// `CalculateFile3`, `GetDigestedData`, `DestroyHash`.
class clsHash {
public:
    /// `provider` is shared by all objects, 0 until the first of them needs it, and never given up: the
    /// system takes it back at the end of the process.
    clsHash(Platform& platform, FileReader& reader, CryptoService::Handle& provider);

    /// 0 MD4, 1 MD5, 2 SHA-1, 3 none; other values are ignored. As long as nothing is chosen the service
    /// makes no digest.
    void HashAlgorithm(std::int32_t index);
    std::int32_t HashAlgorithm() const { return index_; }

    /// Must run before `CalculateFile3`. Tells the user when the machine has no service.
    void CreateHash();

    /// Takes a whole file's digest. Leaves the digest as it was for an empty or unreadable file. `label` has
    /// no effect.
    void CalculateFile3(const std::string& path, const std::string& label);

    /// The digest byte by byte. Format 0: two hexadecimal digits and a tab; 1: decimal digits without
    /// separators; 2: the character itself. Empty without a digest and for other formats.
    std::string GetDigestedData(int format) const;

    /// Throws `Failure`, and keeps the digest, when the service does not give the hash up.
    void DestroyHash();

private:
    void OpenProvider();
    void ReadDigest();

    Platform& platform_;
    FileReader& reader_;
    std::int32_t index_ = 0;
    std::uint32_t algorithm_ = 0;
    CryptoService::Handle& provider_;
    CryptoService::Handle hash_ = 0;
    bool hashExists_ = false;
    std::array<unsigned char, 21> digest_{};
    std::uint32_t digestLength_ = 0;
};

} // namespace tarvelon
