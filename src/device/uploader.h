#ifndef KRM_DEVICE_UPLOADER_H
#define KRM_DEVICE_UPLOADER_H

#include "device/memchip.h"

#include <QString>

#include <termios.h>

class QWidget;

// The greeting with which the boot loader of the measuring board makes itself
// known after a reset, behind a NUL.
extern const char BLKRM510[4];

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

#endif
