// Rates of the CRC kernels over a buffer in memory.

#include "hash/crc16.h"
#include "hash/crc32.h"
#include "hash/crc32_kernels.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace {

using Update = std::uint32_t (*)(std::uint32_t state, std::span<const unsigned char> bytes);

/// The plain loop, for comparison: one look-up for each byte, each waiting for the one before.
std::uint32_t byteByByte(std::uint32_t state, std::span<const unsigned char> bytes) {
    static const auto table = [] {
        std::array<std::uint32_t, 256> entries{};
        for (std::size_t index = 0; index < entries.size(); ++index) {
            const auto byte = static_cast<unsigned char>(index);
            entries[index] = tarvelon::crc32Portable(0, {&byte, 1});
        }
        return entries;
    }();
    for (const unsigned char byte : bytes) {
        state = (state >> 8) ^ table[(state ^ byte) & 0xFF];
    }
    return state;
}

void rate(benchmark::State& run, Update update) {
    std::vector<unsigned char> bytes(static_cast<std::size_t>(run.range(0)));
    for (std::size_t place = 0; place < bytes.size(); ++place) {
        bytes[place] = static_cast<unsigned char>(place * 167);
    }
    std::uint32_t state = tarvelon::crc32Start;
    for (auto _ : run) {
        state = update(state, bytes);
        benchmark::DoNotOptimize(state);
    }
    run.SetBytesProcessed(static_cast<std::int64_t>(run.iterations()) * run.range(0));
}

void add(const std::string& name, Update update) {
    benchmark::RegisterBenchmark(name.c_str(), rate, update)->Arg(4 << 10)->Arg(64 << 10)->Arg(1 << 20);
}

} // namespace

int main(int argc, char** argv) {
    for (const tarvelon::Crc32Kernel& kernel : tarvelon::crc32Kernels) {
        if (kernel.runsHere()) {
            add(std::string("crc32 ") + kernel.name, kernel.update);
        }
    }
    add("crc32 byte by byte", byteByByte);
    add("crc16", tarvelon::updateCrc16);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
