#pragma once

#include <cstddef>
#include <cstdint>

// The name is the fuzzer's.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);
