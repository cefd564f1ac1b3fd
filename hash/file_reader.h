#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace tarvelon {

class OpenFile;
struct Algorithm;
struct Platform;

/// Reads files from end to end by `readBuffer` bytes, one after another; its buffer serves them all.
class FileReader {
public:
    FileReader(Platform& platform, Algorithm& algorithm);
    ~FileReader();

    using Take = std::function<void(std::span<const unsigned char>)>;

    /// Hands the file's bytes over, a buffer at a time. Between two buffers window messages may run, so
    /// `readBuffer` may change and other files may be read meanwhile. A `readBuffer` of 0 becomes 65536.
    /// False when the file is empty or missing, and when a step fails, perhaps after some buffers.
    bool read(const std::string& path, const Take& take);

private:
    bool readToEnd(OpenFile& file, std::uint64_t total, const Take& take);
    bool provideBuffer(std::size_t size);
    bool fill(OpenFile& file, std::uint64_t position, std::size_t count);

    Platform& platform_;
    Algorithm& algorithm_;
    std::unique_ptr<unsigned char[]> buffer_;
    std::size_t bufferSize_ = 0;
    std::vector<std::unique_ptr<OpenFile>> unfinished_;
};

} // namespace tarvelon
