#include "device/memchip.h"

#include "device/ulserialport.h"

#include <cstdio>
#include <cstring>

// Device ids and process ids as the maker's programming documents give them.
const _device Device[DEVICE_ROWS + 1] = {
    {"dsPIC30F2010", 0x40, 1, FAMILY_DSPIC30F},
    {"dsPIC30F2011", 0xC0, 1, FAMILY_DSPIC30F},
    {"dsPIC30F2011", 0x240, 1, FAMILY_DSPIC30F},
    {"dsPIC30F2012", 0xC2, 1, FAMILY_DSPIC30F},
    {"dsPIC30F2012", 0x241, 1, FAMILY_DSPIC30F},
    {"dsPIC30F3010", 0x1C0, 1, FAMILY_DSPIC30F},
    {"dsPIC30F3011", 0x1C1, 1, FAMILY_DSPIC30F},
    {"dsPIC30F3012", 0xC1, 1, FAMILY_DSPIC30F},
    {"dsPIC30F3013", 0xC3, 1, FAMILY_DSPIC30F},
    {"dsPIC30F3014", 0x160, 1, FAMILY_DSPIC30F},
    {"dsPIC30F4011", 0x101, 1, FAMILY_DSPIC30F},
    {"dsPIC30F4012", 0x100, 1, FAMILY_DSPIC30F},
    {"dsPIC30F4013", 0x141, 1, FAMILY_DSPIC30F},
    {"dsPIC30F5011", 0x80, 1, FAMILY_DSPIC30F},
    {"dsPIC30F5013", 0x81, 1, FAMILY_DSPIC30F},
    {"dsPIC30F5015", 0x200, 1, FAMILY_DSPIC30F},
    {"dsPIC30F5016", 0x201, 1, FAMILY_DSPIC30F},
    {"dsPIC30F6010", 0x188, 1, FAMILY_DSPIC30F},
    {"dsPIC30F6010A", 0x281, 1, FAMILY_DSPIC30F},
    {"dsPIC30F6011", 0x192, 1, FAMILY_DSPIC30F},
    {"dsPIC30F6011A", 0x2C0, 1, FAMILY_DSPIC30F},
    {"dsPIC30F6012", 0x193, 1, FAMILY_DSPIC30F},
    {"dsPIC30F6012A", 0x2C2, 1, FAMILY_DSPIC30F},
    {"dsPIC30F6013", 0x197, 1, FAMILY_DSPIC30F},
    {"dsPIC30F6013A", 0x2C1, 1, FAMILY_DSPIC30F},
    {"dsPIC30F6014", 0x198, 1, FAMILY_DSPIC30F},
    {"dsPIC30F6014A", 0x2C3, 1, FAMILY_DSPIC30F},
    {"dsPIC30F6015", 0x280, 1, FAMILY_DSPIC30F},
    {"dsPIC33FJ64GP206", 0xC1, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ64GP306", 0xCD, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ64GP310", 0xCF, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ64GP706", 0xD5, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ64GP708", 0xD6, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ64GP710", 0xD7, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ128GP206", 0xD9, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ128GP306", 0xE5, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ128GP310", 0xE7, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ128GP706", 0xED, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ128GP708", 0xEE, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ128GP710", 0xEF, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ256GP506", 0xF5, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ256GP510", 0xF7, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ256GP710", 0xFF, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ64MC506", 0x89, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ64MC508", 0x8A, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ64MC510", 0x8B, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ64MC706", 0x91, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ64MC710", 0x97, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ128MC506", 0xA1, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ128MC510", 0xA3, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ128MC706", 0xA9, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ128MC708", 0xAE, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ128MC710", 0xAF, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ256MC510", 0xB7, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ256MC710", 0xBF, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ12GP201", 0x802, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ12GP202", 0x803, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ12MC201", 0x800, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ12MC202", 0x801, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ32GP204", 0xF0F, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ32GP202", 0xF0D, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ16GP304", 0xF07, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ32MC204", 0xF0B, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ32MC202", 0xF09, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ16MC304", 0xF03, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ128GP804", 0x62F, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ128GP802", 0x62D, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ128GP204", 0x627, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ128GP202", 0x625, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ64GP804", 0x61F, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ64GP802", 0x61D, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ64GP204", 0x617, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ64GP202", 0x615, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ32GP304", 0x607, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ32GP302", 0x605, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ128MC804", 0x62B, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ128MC802", 0x629, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ128MC204", 0x623, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ128MC202", 0x621, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ64MC804", 0x61B, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ64MC802", 0x619, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ64MC204", 0x613, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ64MC202", 0x611, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ32MC304", 0x603, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ32MC302", 0x601, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ06GS101", 0xC00, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ06GS102", 0xC01, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ06GS202", 0xC02, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ16GS402", 0xC04, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ16GS404", 0xC06, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ16GS502", 0xC03, 3, FAMILY_DSPIC33F},
    {"dsPIC33FJ16GS504", 0xC05, 3, FAMILY_DSPIC33F},
    {"PIC24HJ64GP206", 0x41, 3, FAMILY_PIC24H},
    {"PIC24HJ64GP210", 0x47, 3, FAMILY_PIC24H},
    {"PIC24HJ64GP506", 0x49, 3, FAMILY_PIC24H},
    {"PIC24HJ64GP510", 0x4B, 3, FAMILY_PIC24H},
    {"PIC24HJ128GP206", 0x5D, 3, FAMILY_PIC24H},
    {"PIC24HJ128GP210", 0x5F, 3, FAMILY_PIC24H},
    {"PIC24HJ128GP306", 0x65, 3, FAMILY_PIC24H},
    {"PIC24HJ128GP310", 0x67, 3, FAMILY_PIC24H},
    {"PIC24HJ128GP506", 0x61, 3, FAMILY_PIC24H},
    {"PIC24HJ128GP510", 0x63, 3, FAMILY_PIC24H},
    {"PIC24HJ256GP206", 0x71, 3, FAMILY_PIC24H},
    {"PIC24HJ256GP210", 0x73, 3, FAMILY_PIC24H},
    {"PIC24HJ256GP610", 0x7B, 3, FAMILY_PIC24H},
    {"PIC24HJ256GP610A", 0x77B, 3, FAMILY_PIC24H},
    {"PIC24HJ12GP201", 0x80A, 3, FAMILY_PIC24H},
    {"PIC24HJ12GP202", 0x80B, 3, FAMILY_PIC24H},
    {"PIC24HJ32GP204", 0xF1F, 3, FAMILY_PIC24H},
    {"PIC24HJ32GP202", 0xF1D, 3, FAMILY_PIC24H},
    {"PIC24HJ16GP304", 0xF17, 3, FAMILY_PIC24H},
    {"PIC24HJ128GP504", 0x67F, 3, FAMILY_PIC24H},
    {"PIC24HJ128GP502", 0x67D, 3, FAMILY_PIC24H},
    {"PIC24HJ128GP204", 0x667, 3, FAMILY_PIC24H},
    {"PIC24HJ128GP202", 0x665, 3, FAMILY_PIC24H},
    {"PIC24HJ64GP504", 0x677, 3, FAMILY_PIC24H},
    {"PIC24HJ64GP502", 0x675, 3, FAMILY_PIC24H},
    {"PIC24HJ64GP204", 0x657, 3, FAMILY_PIC24H},
    {"PIC24HJ64GP202", 0x655, 3, FAMILY_PIC24H},
    {"PIC24HJ32GP304", 0x647, 3, FAMILY_PIC24H},
    {"PIC24HJ32GP302", 0x645, 3, FAMILY_PIC24H},
    {"PIC24FJ64GA006", 0x405, 3, FAMILY_PIC24F},
    {"PIC24FJ64GA008", 0x408, 3, FAMILY_PIC24F},
    {"PIC24FJ64GA010", 0x40B, 3, FAMILY_PIC24F},
    {"PIC24FJ96GA006", 0x406, 3, FAMILY_PIC24F},
    {"PIC24FJ96GA008", 0x409, 3, FAMILY_PIC24F},
    {"PIC24FJ96GA010", 0x40C, 3, FAMILY_PIC24F},
    {"PIC24FJ128GA006", 0x407, 3, FAMILY_PIC24F},
    {"PIC24FJ128GA008", 0x40A, 3, FAMILY_PIC24F},
    {"PIC24FJ128GA010", 0x40D, 3, FAMILY_PIC24F},
    {nullptr, 0, 0, FAMILY_UNKNOWN},
};

eFamily findDeviceFamily(unsigned short id, unsigned short process)
{
    int i = 0;
    for (; Device[i].name != nullptr; i++)
        if (Device[i].id == id && Device[i].process == process)
            break;
    return Device[i].name != nullptr ? Device[i].family : FAMILY_UNKNOWN;
}

mem_cMemRow::mem_cMemRow(eType type, unsigned start, int rowNumber, eFamily family)
    : buffer(nullptr), address(start), empty(1), type(type), rowNumber(rowNumber),
      family(family), rowSize(16), bufferSize(3)
{
    const unsigned number = rowNumber < 0 ? 0u : static_cast<unsigned>(rowNumber);
    switch (type) {
    case MEM_PROGRAM:
        rowSize = family == FAMILY_DSPIC30F ? 32 : 512;
        address = start + number * static_cast<unsigned>(rowSize) * 2;
        bufferSize = rowSize * 3;
        break;
    case MEM_EEPROM:
        address = start + number * 32;
        bufferSize = 32;
        break;
    case MEM_CONFIG:
        address = start + number * 2;
        bufferSize = 3;
        break;
    }
    buffer = new char[static_cast<size_t>(bufferSize)];
    std::memset(buffer, 0xFF, static_cast<size_t>(bufferSize));
    std::memset(data, 0xFF, sizeof data);
}

mem_cMemRow::~mem_cMemRow()
{
    delete[] buffer;
}

int mem_cMemRow::insertData(unsigned at, const char* text)
{
    if (at < address)
        return 0;
    const unsigned span = type == MEM_CONFIG ? 2u : static_cast<unsigned>(rowSize) * 2;
    if (at - address >= span)
        return 0;
    empty = 0;
    std::sscanf(text, "%4hx", &data[at - address]);
    return 1;
}

void mem_cMemRow::formatData()
{
    if (empty != 0)
        return;
    unsigned char* out = reinterpret_cast<unsigned char*>(buffer);
    if (type == MEM_EEPROM) {
        for (int i = 0; i < rowSize; i++) {
            out[2 * i] = static_cast<unsigned char>(data[2 * i] >> 8);
            out[2 * i + 1] = static_cast<unsigned char>(data[2 * i] & 0xFF);
        }
        return;
    }
    const int instructions = type == MEM_CONFIG ? 1 : rowSize;
    for (int i = 0; i < instructions; i++) {
        out[3 * i] = static_cast<unsigned char>(data[2 * i] >> 8);
        out[3 * i + 1] = static_cast<unsigned char>(data[2 * i] & 0xFF);
        out[3 * i + 2] = static_cast<unsigned char>(data[2 * i + 1] >> 8);
    }
}

int mem_cMemRow::sendData(int fd)
{
    // Only program memory is written by this loader; the others are read
    // from the file and kept.
    if (type != MEM_PROGRAM || empty != 0)
        return 1;
    char command[4] = {0x03, static_cast<char>(address & 0xFF),
                       static_cast<char>((address >> 8) & 0xFF),
                       static_cast<char>((address >> 16) & 0xFF)};
    for (int send = 0; send < maxRowSends; send++) {
        UlWriteSerialBlock(fd, command, 4);
        UlWriteSerialBlock(fd, buffer, rowSize * 3);
        char answer = 0;
        if (UlReadSerialData(fd, &answer, 1) == 0) {
            printf("%s ret = false\n", "sendData");
            return 0;
        }
        if (answer == 0x01)
            return 1;
    }
    printf("%s refused\n", "sendData");
    return -1;
}

MemRows createMemRows(eFamily family)
{
    MemRows rows;
    rows.reserve(MEM_PROGRAM_ROWS + MEM_EEPROM_ROWS + MEM_CONFIG_ROWS);
    for (int i = 0; i < MEM_PROGRAM_ROWS; i++)
        rows.emplace_back(new mem_cMemRow(MEM_PROGRAM, 0, i, family));
    for (int i = 0; i < MEM_EEPROM_ROWS; i++)
        rows.emplace_back(new mem_cMemRow(MEM_EEPROM, MEM_EEPROM_START, i, family));
    for (int i = 0; i < MEM_CONFIG_ROWS; i++)
        rows.emplace_back(new mem_cMemRow(MEM_CONFIG, MEM_CONFIG_START, i, family));
    return rows;
}

int readHexLine(const char* line, unsigned* extended, MemRows& rows)
{
    const size_t size = std::strlen(line);
    if (size < 1)
        return 0;
    unsigned length = 0, address = 0, kind = 0;
    if (std::sscanf(line + 1, "%2x%4x%2x", &length, &address, &kind) != 3)
        return 0;
    if (kind == 4) {
        unsigned word = 0;
        if (size > 9 && std::sscanf(line + 9, "%4x", &word) == 1)
            *extended = word << 16;
        return 0;
    }
    if (kind != 0)
        return 0;
    unsigned at = (*extended + address) / 2;
    const unsigned long digits = static_cast<unsigned long>(length) * 2;
    for (unsigned long used = 0, column = 9; used < digits && column < size;
         used += 4, column += 4, at++) {
        bool taken = false;
        for (auto& row : rows) {
            if (row->insertData(at, line + column) != 0) {
                taken = true;
                break;
            }
        }
        if (!taken)
            return 1;
    }
    return 0;
}

void keepBootJump(mem_cMemRow* first, const unsigned char* b)
{
    char text[20];
    std::snprintf(text, sizeof text, "%02x%02x%02x00%02x%02x%02x00", b[2], b[1], b[0], b[5], b[4],
                  b[3]);
    for (unsigned i = 0; i < 4; i++)
        first->insertData(i, text + 4 * i);
}
