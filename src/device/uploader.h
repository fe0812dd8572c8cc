#ifndef KRM_DEVICE_UPLOADER_H
#define KRM_DEVICE_UPLOADER_H

#include "device/memchip.h"

#include <QString>

#include <termios.h>

class QWidget;

// The greeting with which the boot loader of the measuring board makes itself
// known after a reset, behind a NUL.
extern const char BLKRM510[4];

// Why a firmware job ended as it did: UL_OK when it ran to its end.
enum _ulReason : int {
    UL_OK = 0,
    UL_NO_FILE,           // no file name, or the file does not open
    UL_NO_LINE,           // "/dev/ttyS1" does not open
    UL_NO_GREETING,       // no greeting, or not the boot loader's
    UL_NO_VERSION,        // the loader did not tell its version
    UL_OLD_LOADER,        // a boot loader below version 2
    UL_NO_ID,             // the loader did not tell which chip it is
    UL_UNKNOWN_CHIP,      // a chip not in the table: nothing written
    UL_FILE_OUTSIDE_CHIP, // file data that no row takes: nothing written
    UL_NO_ROW0,           // row 0 could not be read back: nothing written
    UL_ROW_UNANSWERED,    // the loader did not answer a row
    UL_ROW_REFUSED,       // the loader refused a row maxRowSends times
};

// Writes a new firmware into the measuring board: the whole job runs in the
// constructor. It checks the Intel HEX file, opens the board's line, cycles
// the board's power to start its boot loader, catches the loader, asks which
// chip it is, lays the file out in the chip's rows and writes the program
// rows. The destructor closes the line and restarts the board.
//
// Every wait on the loader ends: each read (greeting, version, chip, row 0,
// each row's answer) gives up after 10 s of silence (UL_READ_TIMEOUTS), and a
// refused row is sent at most mem_cMemRow::maxRowSends times. Reaching a
// bound ends the job with `done` 0 and its reason. The old instrument waited
// over half an hour per read and resent a refused row for ever.
//
// When row 0 cannot be read back no row is sent: its first two instructions
// are the chip's jump to its boot loader, and a row 0 written without them
// would leave a chip that never starts its loader again. That job counts as
// failed (`done` 0, UL_NO_ROW0), where the old instrument called it done.
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

    int bootUp;    // 1 when the greeting was seen
    int blVersion; // version of the boot loader
    int family;    // eFamily, or FAMILY_UNKNOWN
    QString fileName;
    int fd;                // 0 until opened
    struct termios oldtio; // found at opening
    struct termios newtio; // working
    int done;              // 1 when the sequence reached its end

    // Why the job ended: UL_OK when it ran to its end.
    _ulReason reason() const { return ending; }

private:
    _ulReason ending;
};

#endif
