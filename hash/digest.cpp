#include "hash/digest.h"

#include "core/failure.h"
#include "core/text.h"
#include "hash/file_reader.h"
#include "platform/dialogs.h"
#include "platform/platform.h"

#include <span>

namespace tarvelon {

namespace {

constexpr const char* enhancedProvider = "Microsoft Enhanced Cryptographic Provider v1.0";
constexpr const char* baseProvider = "Microsoft Base Cryptographic Provider v1.0";
constexpr std::uint32_t rsaFull = 1;            // PROV_RSA_FULL
constexpr std::uint32_t newKeySet = 8;          // CRYPT_NEWKEYSET
constexpr std::uint32_t hashValue = 2;          // HP_HASHVAL
constexpr std::uint32_t firstAlgorithm = 32770; // CALG_MD4; CALG_MD5 and CALG_SHA1 follow
constexpr std::uint32_t longestDigest = 20;

MessageBox noProviderBox() {
    MessageBox box;
    for (const char* line :
         {"Unable to get a handle to key containers...",
          "Check your registry for the following names:", baseProvider, enhancedProvider}) {
        box.text.append(line).append(lineEnd);
    }
    box.text.append("Without them, EzCryptoApi won't work.");
    box.title = "Fatal Error [EzCryptoApi]";
    box.icon = BoxIcon::Stop;
    return box;
}

void appendHexadecimal(std::string& text, unsigned char byte) {
    constexpr char digits[] = "0123456789ABCDEF";
    text.push_back(digits[byte >> 4]);
    text.push_back(digits[byte & 0xF]);
}

} // namespace

clsHash::clsHash(Platform& platform, FileReader& reader, CryptoService::Handle& provider)
    : platform_(platform)
    , reader_(reader)
    , provider_(provider) {}

void clsHash::HashAlgorithm(std::int32_t index) {
    if (index < 0 || index > 3) {
        return;
    }
    index_ = index;
    if (index < 3) {
        algorithm_ = firstAlgorithm + static_cast<std::uint32_t>(index);
    }
}

void clsHash::CreateHash() {
    if (hashExists_) {
        DestroyHash();
    }
    OpenProvider();
    platform_.crypto.createHash(provider_, algorithm_, hash_);
    hashExists_ = true;
}

void clsHash::CalculateFile3(const std::string& path, const std::string& /*label*/) {
    bool tookAll = true;
    const auto take = [this, &tookAll](std::span<const unsigned char> bytes) {
        tookAll = platform_.crypto.hashData(hash_, bytes.data(), bytes.size()) && tookAll;
    };
    if (!reader_.read(path, take)) {
        return;
    }
    ReadDigest();
    if (!tookAll) {
        digestLength_ = 0; // A digest of a part would pass for that of the file.
    }
}

std::string clsHash::GetDigestedData(int format) const {
    std::string text;
    for (const unsigned char byte : std::span(digest_).first(digestLength_)) {
        switch (format) {
        case 0:
            appendHexadecimal(text, byte);
            text.push_back('\t');
            break;
        case 1:
            text.append(std::to_string(byte));
            break;
        case 2:
            text.push_back(static_cast<char>(byte));
            break;
        default:
            break;
        }
    }
    return text;
}

void clsHash::DestroyHash() {
    if (hashExists_ && !platform_.crypto.destroyHash(hash_)) {
        throw Failure("Cannot end a digest (0x80040000)");
    }
    digestLength_ = 0;
    hashExists_ = false;
}

void clsHash::OpenProvider() {
    if (provider_ != 0) {
        return;
    }
    for (const char* name : {enhancedProvider, baseProvider}) {
        for (const std::uint32_t flags : {std::uint32_t{0}, newKeySet}) {
            if (platform_.crypto.acquireContext(provider_, "", name, rsaFull, flags)) {
                return;
            }
        }
    }
    platform_.dialogs.message(noProviderBox());
}

void clsHash::ReadDigest() {
    digestLength_ = longestDigest;
    if (!platform_.crypto.getHashParam(hash_, hashValue, digest_.data(), digestLength_)) {
        digestLength_ = 0;
    }
}

} // namespace tarvelon
