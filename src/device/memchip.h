#ifndef KRM_DEVICE_MEMCHIP_H
#define KRM_DEVICE_MEMCHIP_H

#include <memory>
#include <vector>

// The microcontroller of the measuring board as its boot loader sees it: the
// chips it may be, and the memory rows a firmware image is laid out in.

enum eFamily : int {
    FAMILY_DSPIC30F = 0,
    FAMILY_DSPIC33F = 1,
    FAMILY_PIC24H = 2,
    FAMILY_PIC24F = 3,
    FAMILY_UNKNOWN = 4 // no row of the Device table matches
};

enum eType : int { MEM_PROGRAM = 0, MEM_EEPROM = 1, MEM_CONFIG = 2 };

// One chip and silicon process as the boot loader reports them.
struct _device {
    const char* name; // the maker's part number
    unsigned short id;
    unsigned short process;
    eFamily family;
};

#define DEVICE_ROWS 130
// DEVICE_ROWS chips, then a closing row with a null name. A part number
// stands twice where the chip has two ids; an id stands twice where two
// processes share it, so both decide.
extern const _device Device[DEVICE_ROWS + 1];

// The family of the first row whose id and process both match, from the
// start of the table; FAMILY_UNKNOWN at the closing row.
eFamily findDeviceFamily(unsigned short id, unsigned short process);

#define MEM_DATA_WORDS 1024

// One row of the chip's memory: the 16-bit words a HEX file gives for it,
// and the bytes that go to the boot loader.
class mem_cMemRow
{
public:
    // Program rows are rowSize instructions of two words each (32 on a
    // dsPIC30F, else 512), EEPROM rows 16 words, configuration rows one
    // instruction; start and the row's number give its first address.
    mem_cMemRow(eType type, unsigned start, int rowNumber, eFamily family);
    ~mem_cMemRow();
    mem_cMemRow(const mem_cMemRow&) = delete;
    mem_cMemRow& operator=(const mem_cMemRow&) = delete;

    // Takes the four hexadecimal digits at text as the word at address: 1,
    // or 0 when the address is not in this row. Reads at most four digits
    // and never past the text's NUL.
    int insertData(unsigned address, const char* text);
    // Packs the words into buffer, in the byte order the loader writes them:
    // of each instruction the low, middle and upper byte; the HEX file's
    // phantom byte is dropped. EEPROM words go as they are. Nothing for an
    // empty row.
    void formatData();
    // Sends a program row to the loader and waits for its 0x01, sending it
    // again after any other answer, at most maxRowSends times in all. Empty,
    // EEPROM and configuration rows are not sent and count as done. 1 when
    // done, 0 when no answer came, -1 when every send was refused.
    int sendData(int fd);

    // Sends of one row before a loader that keeps refusing it is given up.
    // The old instrument sent a refused row again for ever.
    static constexpr int maxRowSends = 10;

    char* buffer;      // the row packed for sending
    unsigned address;  // first address, in 16-bit words
    int empty;         // 1 until data is inserted
    eType type;
    unsigned short data[MEM_DATA_WORDS]; // all bits set at the start
    int rowNumber;
    eFamily family;
    int rowSize;       // instructions (or EEPROM words) of the row
    int bufferSize;    // bytes of buffer
};

typedef std::vector<std::unique_ptr<mem_cMemRow>> MemRows;

#define MEM_PROGRAM_ROWS 1536
#define MEM_EEPROM_ROWS 128
#define MEM_CONFIG_ROWS 8
#define MEM_EEPROM_START 0x7FF000u
#define MEM_CONFIG_START 0xF80000u

// The 1672 rows of a chip in the order they are tried: program memory from
// 0, EEPROM from 0x7FF000, configuration from 0xF80000.
MemRows createMemRows(eFamily family);

// Lines of a HEX file are read in pieces of at most this many bytes (with
// the NUL); a longer line goes on as a line of its own.
#define HEX_LINE_SIZE 4096

// ---- The reading of the HEX file, without a line.

// One line of an Intel HEX file (NUL-terminated) into the rows. Past the
// first character the line gives length, address and record type; a data
// record (0) puts each group of four digits from column 9 on, length x 2
// digits in all, at (extended + address) / 2 and on, into the first row that
// takes it; an extended address record (4) sets extended. Other records, and
// lines whose head can't be read, are passed over; checksums are not looked
// at. Groups stop at the end of the line when the length field promises more
// than it holds. 0, or 1 when a group fits no row.
int readHexLine(const char* line, unsigned* extended, MemRows& rows);

// The first two instructions of the chip as the loader read them (b, the
// first six bytes of row 0, upper byte first), put back at addresses 0 to 3
// of the first row in the file's word order: the jump to the boot loader
// survives whatever the file holds there.
void keepBootJump(mem_cMemRow* first, const unsigned char* b);

#endif
