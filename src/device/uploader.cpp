#include "device/uploader.h"

#include "data/recordfiles.h"
#include "device/gpiopd.h"
#include "device/ulserialport.h"
#include "platform/clock.h"
#include "platform/systemroot.h"

#include <QProgressDialog>

#include <cstdio>
#include <cstring>
#include <strings.h>
#include <vector>

const char BLKRM510[4] = {0x09, 0x09, 0x09, 0x0D};

UpLoader::UpLoader(QString name, QWidget* parent)
    : bootUp(0), blVersion(0), family(FAMILY_UNKNOWN), fileName(name), fd(0), done(0), ending(UL_OK)
{
    std::memset(&oldtio, 0, sizeof oldtio);
    std::memset(&newtio, 0, sizeof newtio);
    int lines = 0;
    if (verifyFileHex(&lines) != 0) {
        ending = UL_NO_FILE;
        return;
    }
    fd = UlOpenSerialPort();
    if (fd < 1) {
        ending = UL_NO_LINE;
        return;
    }
    UlSettingSerialPort(fd, &oldtio, &newtio);
    // Cut the board off and power it again: its boot loader starts.
    powerDeviceStart(1);
    Clock::sleep(1);
    powerDeviceStart(0);
    if (isBlBootUp() != 0 || upgradeUp() != 0) {
        ending = UL_NO_GREETING;
        return;
    }
    if (readBLVer() != 0) {
        if (ending == UL_OK)
            ending = UL_OLD_LOADER;
        return;
    }
    family = readID();
    if (ending == UL_NO_ID)
        return;
    if (family == FAMILY_UNKNOWN)
        ending = UL_UNKNOWN_CHIP;
    else
        programmerChip(parent, lines);
    // A chip left as it was (unknown, or a file it cannot take) still counts
    // as done, as on the old instrument; a wait that ran out or a row 0 that
    // did not come back does not.
    done = ending == UL_OK || ending == UL_UNKNOWN_CHIP || ending == UL_FILE_OUTSIDE_CHIP ? 1 : 0;
}

UpLoader::~UpLoader()
{
    powerDeviceStart(1);
    if (fd != 0)
        UlCloseSerialPort(fd, &oldtio);
    powerDeviceStart(0);
    Clock::sleep(2);
}

int UpLoader::verifyFileHex(int* lines)
{
    *lines = 0;
    if (fileName.isEmpty()) {
        printf("File Hex : Unknown\n");
        return 1;
    }
    FILE* file = std::fopen(SystemRoot::path(fileName.toLocal8Bit().constData()).c_str(), "r");
    if (file == nullptr)
        return -1;
    char line[HEX_LINE_SIZE];
    while (std::fgets(line, sizeof line, file) != nullptr)
        (*lines)++;
    std::fclose(file);
    return 0;
}

int UpLoader::isBlBootUp()
{
    char buffer[10];
    std::memset(buffer, 0, sizeof buffer);
    bootUp = 0;
    // One read, bounded as every read of the loader: the old instrument tried
    // 2000 of them.
    UlReadSerialData(fd, buffer, 5);
    int nul = 0;
    while (nul < static_cast<int>(sizeof buffer) && buffer[nul] != '\0')
        nul++;
    if (nul > 4)
        return 1;
    if (strncasecmp(buffer + nul + 1, BLKRM510, sizeof BLKRM510) == 0)
        bootUp = 1;
    return 0;
}

int UpLoader::upgradeUp()
{
    if (bootUp != 1)
        return 1;
    const char command = 0x25;
    UlWriteSerialBlock(fd, &command, 1);
    Clock::sleep(1);
    return 0;
}

int UpLoader::readBLVer()
{
    const char command = 0x11;
    UlWriteSerialBlock(fd, &command, 1);
    unsigned char answer[2];
    if (UlReadSerialData(fd, reinterpret_cast<char*>(answer), 2) == 1)
        blVersion = answer[0];
    else
        ending = UL_NO_VERSION;
    return blVersion < 2 ? 1 : 0;
}

int UpLoader::readID()
{
    const char command = 0x09;
    UlWriteSerialBlock(fd, &command, 1);
    unsigned char answer[8];
    if (UlReadSerialData(fd, reinterpret_cast<char*>(answer), 8) != 1) {
        ending = UL_NO_ID;
        return FAMILY_UNKNOWN;
    }
    unsigned short id = static_cast<unsigned short>(answer[0] + answer[1] * 256);
    unsigned short process = static_cast<unsigned short>(answer[5] >> 4);
    return findDeviceFamily(id, process);
}

int UpLoader::programmerChip(QWidget* parent, int lines)
{
    QProgressDialog progress(QString(""), QString(""), 0, lines * 2 + 1, parent,
                             Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
    progress.reset(); // stops the show timer of the constructor (see PanelIV::measurePanel)
    progress.setStyleSheet(READ_PROGRESS_STYLE);
    progress.setMinimumDuration(1500);
    progress.setWindowModality(Qt::WindowModal);
    progress.setValue(0);
    progress.show();

    FILE* file = std::fopen(SystemRoot::path(fileName.toLocal8Bit().constData()).c_str(), "r");
    if (file == nullptr)
        return 1;
    MemRows rows = createMemRows(static_cast<eFamily>(family));
    char line[HEX_LINE_SIZE];
    unsigned extended = 0;
    int number = 0;
    while (std::fgets(line, sizeof line, file) != nullptr) {
        if (readHexLine(line, &extended, rows) != 0) {
            std::fclose(file);
            ending = UL_FILE_OUTSIDE_CHIP;
            return 1;
        }
        progress.setValue(++number);
    }
    std::fclose(file);

    // Row 0 as the chip holds it: its first two instructions jump to the
    // boot loader and must stay.
    const char command[4] = {0x02, 0, 0, 0};
    UlWriteSerialBlock(fd, command, 4);
    const int rowBytes = family == FAMILY_DSPIC30F ? 96 : 1536;
    std::vector<char> first(static_cast<size_t>(rowBytes));
    // Without that row nothing is written: a row 0 without the jump would
    // leave a chip that no longer starts its boot loader. The job then failed.
    if (UlReadSerialData(fd, first.data(), rowBytes) == 1) {
        keepBootJump(rows[0].get(), reinterpret_cast<const unsigned char*>(first.data()));
        for (auto& row : rows)
            row->formatData();
        for (auto& row : rows) {
            int sent = row->sendData(fd);
            if (sent != 1) {
                ending = sent == 0 ? UL_ROW_UNANSWERED : UL_ROW_REFUSED;
                break;
            }
            Clock::usleep(100);
            progress.setValue(++number);
        }
    } else {
        ending = UL_NO_ROW0;
    }
    const char reset = 0x08;
    UlWriteSerialBlock(fd, &reset, 1);
    Clock::sleep(1);
    return 0;
}
