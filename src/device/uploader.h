#ifndef KRM_DEVICE_UPLOADER_H
#define KRM_DEVICE_UPLOADER_H

#include "device/memchip.h"

#include <QString>

#include <termios.h>

class QWidget;

// The greeting with which the boot loader of the measuring board makes itself
// known after a reset, behind a NUL.
extern const char BLKRM510[4];

// Lines of a HEX file are read in pieces of at most this many bytes (with
// the NUL); a longer line goes on as a line of its own.
#define HEX_LINE_SIZE 4096

// Writes a new firmware into the measuring board: the whole job runs in the
// constructor. It checks the Intel HEX file, opens the board's line, cycles
// the board's power to start its boot loader, catches the loader, asks which
// chip it is, lays the file out in the chip's rows and writes the program
// rows. The destructor closes the line and restarts the board.
class UpLoader
{
public:
    UpLoader(QString fileName, QWidget* parent);
    ~UpLoader();
    UpLoader(const UpLoader&) = delete;
    UpLoader& operator=(const UpLoader&) = delete;

    // 0 when the file can be read, with its number of lines (as read in
    // pieces of HEX_LINE_SIZE); 1 for an empty name, -1 when it won't open.
    int verifyFileHex(int* lines);
    // Waits for the greeting; bootUp tells whether it was the right one.
    // 1 when the five bytes held no NUL, else 0.
    int isBlBootUp();
    // Keeps the greeted loader in command mode: 0, or 1 without a greeting.
    int upgradeUp();
    // Asks the loader's version: non-zero for none or one below 2.
    int readBLVer();
    // Asks the chip: its family, FAMILY_UNKNOWN when not in the table.
    int readID();
    // Reads the file into the rows, keeps the chip's first two instructions,
    // writes the program rows and resets the chip: 0, or 1 when the file has
    // data that no row takes (then nothing is written).
    int programmerChip(QWidget* parent, int lines);

    int bootUp;       // 1 when the greeting was seen
    int blVersion;    // version of the boot loader
    int family;       // eFamily, or FAMILY_UNKNOWN
    QString fileName;
    int fd;           // 0 until opened
    struct termios oldtio; // found at opening
    struct termios newtio; // working
    int done;         // 1 when the sequence reached its end
};

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
