#include "tests/fuzz/fuzzing.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    check(FuzzInput(QByteArray(reinterpret_cast<const char *>(data), int(size))));
    return 0;
}
