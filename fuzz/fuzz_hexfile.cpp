// Feeds arbitrary bytes, as a firmware file, to the reading of Intel HEX
// lines into the chip's memory rows, read in pieces as the loader reads its
// file: whatever the file holds, every group lands inside a row or is
// refused, and packing the rows stays inside their buffers.
#include "device/memchip.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    // The rows live across runs, as a long file would fill them.
    static MemRows large = createMemRows(FAMILY_DSPIC33F);
    static MemRows small = createMemRows(FAMILY_DSPIC30F);
    MemRows& rows = (size & 1) != 0 ? small : large;

    FILE* file = fmemopen(const_cast<uint8_t*>(data), size, "r");
    if (file == nullptr)
        return 0;
    char line[HEX_LINE_SIZE];
    unsigned extended = 0;
    while (std::fgets(line, sizeof line, file) != nullptr) {
        if (readHexLine(line, &extended, rows) != 0)
            break;
    }
    std::fclose(file);
    if (size >= 6)
        keepBootJump(rows[0].get(), data);
    for (auto& row : rows)
        row->formatData();
    return 0;
}
