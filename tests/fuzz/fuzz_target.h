#ifndef FUZZ_TARGET_H
#define FUZZ_TARGET_H

#include <cstddef>
#include <cstdint>

/// Feeds one input to a reader. Any input must be taken without a crash, a hang or a leak.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

#endif // FUZZ_TARGET_H
