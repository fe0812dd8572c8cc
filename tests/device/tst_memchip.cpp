// The chips the board's boot loader may report, and the memory rows a
// firmware image is laid out in: their geometry, what they take, how they
// are packed, and which of them go to the loader.
#include "device/memchip.h"
#include "platform/clock.h"
#include "support/testroot.h"

#include <QtTest>

#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

class TestMemChip : public QObject
{
    Q_OBJECT

private slots:
    void deviceTableHasOneHundredThirtyChipsAndANullRow()
    {
        int rows = 0;
        while (Device[rows].name != nullptr)
            rows++;
        QCOMPARE(rows, DEVICE_ROWS);
        QCOMPARE(Device[0].name, "dsPIC30F2010");
        QCOMPARE(Device[DEVICE_ROWS - 1].name, "PIC24FJ128GA010");
        int count[4] = {0, 0, 0, 0};
        for (int i = 0; i < DEVICE_ROWS; i++) {
            count[Device[i].family]++;
            // Process 1 for the dsPIC30F, 3 for all others.
            QCOMPARE(Device[i].process,
                     static_cast<unsigned short>(Device[i].family == FAMILY_DSPIC30F ? 1 : 3));
        }
        QCOMPARE(count[FAMILY_DSPIC30F], 28);
        QCOMPARE(count[FAMILY_DSPIC33F], 64);
        QCOMPARE(count[FAMILY_PIC24H], 29);
        QCOMPARE(count[FAMILY_PIC24F], 9);
    }

    void deviceTableTellingRows()
    {
        struct Row {
            const char* name;
            unsigned short id, process;
            eFamily family;
        };
        const Row telling[] = {{"dsPIC30F2010", 0x40, 1, FAMILY_DSPIC30F},
                               {"dsPIC30F2011", 0xC0, 1, FAMILY_DSPIC30F},
                               {"dsPIC30F2011", 0x240, 1, FAMILY_DSPIC30F},
                               {"dsPIC33FJ64GP206", 0xC1, 3, FAMILY_DSPIC33F},
                               {"dsPIC33FJ256MC710", 0xBF, 3, FAMILY_DSPIC33F},
                               {"PIC24HJ64GP206", 0x41, 3, FAMILY_PIC24H},
                               {"PIC24HJ256GP610A", 0x77B, 3, FAMILY_PIC24H},
                               {"PIC24FJ128GA010", 0x40D, 3, FAMILY_PIC24F}};
        for (const Row& t : telling) {
            bool found = false;
            for (int i = 0; Device[i].name != nullptr; i++)
                if (std::strcmp(Device[i].name, t.name) == 0 && Device[i].id == t.id)
                    found = Device[i].process == t.process && Device[i].family == t.family;
            QVERIFY2(found, t.name);
        }
        // A part number twice where the chip has two ids.
        QCOMPARE(Device[1].name, "dsPIC30F2011");
        QCOMPARE(Device[2].name, "dsPIC30F2011");
    }

    void chipIsFoundByIdAndProcessTogether()
    {
        // 0xC1 stands on two rows with different processes.
        QCOMPARE(findDeviceFamily(0xC1, 1), FAMILY_DSPIC30F); // dsPIC30F3012
        QCOMPARE(findDeviceFamily(0xC1, 3), FAMILY_DSPIC33F); // dsPIC33FJ64GP206
        QCOMPARE(findDeviceFamily(0x40D, 3), FAMILY_PIC24F);
        QCOMPARE(findDeviceFamily(0x77B, 3), FAMILY_PIC24H);
        // The id matches, the process does not.
        QCOMPARE(findDeviceFamily(0xBF, 1), FAMILY_UNKNOWN);
        QCOMPARE(findDeviceFamily(0x0000, 0), FAMILY_UNKNOWN);
        QCOMPARE(findDeviceFamily(0xFFFF, 15), FAMILY_UNKNOWN);
    }

    void programRowIsThirtyTwoInstructionsOnADsPic30f()
    {
        mem_cMemRow small(MEM_PROGRAM, 0, 3, FAMILY_DSPIC30F);
        QCOMPARE(small.rowSize, 32);
        QCOMPARE(small.address, 3u * 64);
        QCOMPARE(small.bufferSize, 96);
        mem_cMemRow large(MEM_PROGRAM, 0, 3, FAMILY_PIC24F);
        QCOMPARE(large.rowSize, 512);
        QCOMPARE(large.address, 3u * 1024);
        QCOMPARE(large.bufferSize, 1536);
        QCOMPARE(large.empty, 1);
        QCOMPARE(large.rowNumber, 3);
        QCOMPARE(large.type, MEM_PROGRAM);
        QCOMPARE(large.family, FAMILY_PIC24F);
        for (unsigned short word : large.data)
            QCOMPARE(word, static_cast<unsigned short>(0xFFFF));
    }

    void eepromAndConfigurationRowGeometry()
    {
        mem_cMemRow eeprom(MEM_EEPROM, MEM_EEPROM_START, 5, FAMILY_DSPIC30F);
        QCOMPARE(eeprom.rowSize, 16);
        QCOMPARE(eeprom.address, 0x7FF000u + 5 * 32);
        QCOMPARE(eeprom.bufferSize, 32);
        mem_cMemRow config(MEM_CONFIG, MEM_CONFIG_START, 5, FAMILY_DSPIC33F);
        QCOMPARE(config.rowSize, 16);
        QCOMPARE(config.address, 0xF80000u + 5 * 2);
        QCOMPARE(config.bufferSize, 3);
    }

    void rowsAreCreatedInTheOrderTheyAreTried()
    {
        MemRows rows = createMemRows(FAMILY_DSPIC33F);
        QCOMPARE(rows.size(), size_t(1672));
        QCOMPARE(rows[0]->type, MEM_PROGRAM);
        QCOMPARE(rows[1535]->address, 1535u * 1024);
        QCOMPARE(rows[1536]->type, MEM_EEPROM);
        QCOMPARE(rows[1536]->address, 0x7FF000u);
        QCOMPARE(rows[1536]->rowNumber, 0);
        QCOMPARE(rows[1664]->type, MEM_CONFIG);
        QCOMPARE(rows[1671]->address, 0xF80000u + 14);
    }

    void insertDataTakesOnlyTheRowsAddresses()
    {
        mem_cMemRow row(MEM_PROGRAM, 0, 1, FAMILY_DSPIC33F); // words 0x400 to 0x7FF
        QCOMPARE(row.insertData(0x3FF, "1234"), 0);
        QCOMPARE(row.insertData(0x800, "1234"), 0);
        QCOMPARE(row.empty, 1);
        QCOMPARE(row.insertData(0x7FF, "abCD"), 1);
        QCOMPARE(row.data[0x3FF], static_cast<unsigned short>(0xABCD));
        QCOMPARE(row.empty, 0);
        QCOMPARE(row.insertData(0x400, "123456"), 1); // four digits at most
        QCOMPARE(row.data[0], static_cast<unsigned short>(0x1234));

        mem_cMemRow config(MEM_CONFIG, MEM_CONFIG_START, 0, FAMILY_DSPIC33F);
        QCOMPARE(config.insertData(0xF80001, "0102"), 1);
        QCOMPARE(config.insertData(0xF80002, "0102"), 0);
        mem_cMemRow eeprom(MEM_EEPROM, MEM_EEPROM_START, 0, FAMILY_DSPIC33F);
        QCOMPARE(eeprom.insertData(0x7FF01F, "0102"), 1);
        QCOMPARE(eeprom.insertData(0x7FF020, "0102"), 0);
    }

    void unreadableDigitsLeaveTheWordSetButTheRowTaken()
    {
        mem_cMemRow row(MEM_PROGRAM, 0, 0, FAMILY_DSPIC33F);
        QCOMPARE(row.insertData(5, "ZZZZ"), 1);
        QCOMPARE(row.data[5], static_cast<unsigned short>(0xFFFF));
        QCOMPARE(row.empty, 0);
        QCOMPARE(row.insertData(6, ""), 1);
        QCOMPARE(row.data[6], static_cast<unsigned short>(0xFFFF));
    }

    void programRowIsPackedWithoutThePhantomByte()
    {
        mem_cMemRow row(MEM_PROGRAM, 0, 0, FAMILY_DSPIC30F);
        row.insertData(0, "1122");
        row.insertData(1, "33EE"); // EE: the phantom byte
        row.insertData(2, "4455");
        row.formatData();
        QCOMPARE(QByteArray(row.buffer, 6), QByteArray("\x11\x22\x33\x44\x55\xFF", 6));
        QCOMPARE(QByteArray(row.buffer + 93, 3), QByteArray("\xFF\xFF\xFF", 3));
    }

    void eepromAndConfigurationRowsArePackedByWord()
    {
        mem_cMemRow eeprom(MEM_EEPROM, MEM_EEPROM_START, 0, FAMILY_DSPIC33F);
        eeprom.insertData(MEM_EEPROM_START, "1234");
        eeprom.insertData(MEM_EEPROM_START + 1, "5678"); // an odd word is not packed
        eeprom.insertData(MEM_EEPROM_START + 2, "9ABC");
        eeprom.formatData();
        QCOMPARE(QByteArray(eeprom.buffer, 4), QByteArray("\x12\x34\x9A\xBC", 4));
        mem_cMemRow config(MEM_CONFIG, MEM_CONFIG_START, 0, FAMILY_DSPIC33F);
        config.insertData(MEM_CONFIG_START, "CF00");
        config.insertData(MEM_CONFIG_START + 1, "0100");
        config.formatData();
        QCOMPARE(QByteArray(config.buffer, 3), QByteArray("\xCF\x00\x01", 3));
    }

    void emptyRowIsNotPacked()
    {
        mem_cMemRow row(MEM_PROGRAM, 0, 0, FAMILY_DSPIC30F);
        std::memset(row.buffer, 0x5A, static_cast<size_t>(row.bufferSize));
        row.formatData();
        QCOMPARE(QByteArray(row.buffer, row.bufferSize), QByteArray(96, '\x5A'));
    }

    void onlyProgramRowsWithDataGoToTheLoader()
    {
        TestRoot root(0.0);
        // A real terminal whose far end the test reads.
        int master = posix_openpt(O_RDWR | O_NOCTTY);
        QVERIFY(master >= 0 && grantpt(master) == 0 && unlockpt(master) == 0);
        int line = ::open(ptsname(master), O_RDWR | O_NOCTTY | O_NONBLOCK);
        QVERIFY(line >= 0);
        fcntl(master, F_SETFL, fcntl(master, F_GETFL) | O_NONBLOCK);
        struct termios raw;
        tcgetattr(line, &raw);
        cfmakeraw(&raw);
        tcsetattr(line, TCSANOW, &raw);

        mem_cMemRow empty(MEM_PROGRAM, 0, 0, FAMILY_DSPIC30F);
        mem_cMemRow eeprom(MEM_EEPROM, MEM_EEPROM_START, 0, FAMILY_DSPIC30F);
        eeprom.insertData(MEM_EEPROM_START, "1234");
        mem_cMemRow config(MEM_CONFIG, MEM_CONFIG_START, 0, FAMILY_DSPIC30F);
        config.insertData(MEM_CONFIG_START, "1234");
        QCOMPARE(empty.sendData(line), 1);
        QCOMPARE(eeprom.sendData(line), 1);
        QCOMPARE(config.sendData(line), 1);
        char sink[16];
        QCOMPARE(::read(master, sink, sizeof sink), ssize_t(-1)); // nothing went out
        QVERIFY(Clock::waits().empty());

        // A program row goes out, command and address low byte first; with
        // no answer it fails after the read's time-outs.
        mem_cMemRow row(MEM_PROGRAM, 0, 2, FAMILY_DSPIC30F); // address 0x80
        row.insertData(0x80, "A1B2");
        row.formatData();
        QCOMPARE(row.sendData(line), 0);
        QByteArray sent(200, '\0');
        ssize_t n = ::read(master, sent.data(), 200);
        QCOMPARE(n, ssize_t(4 + 96));
        QCOMPARE(sent.left(7), QByteArray("\x03\x80\x00\x00\xA1\xB2\xFF", 7));
        QVERIFY(Clock::waits() == std::vector<Clock::Wait>({{Clock::Select, 1000000, 10}}));
        ::close(line);
        ::close(master);
    }
};

QTEST_MAIN(TestMemChip)
#include "tst_memchip.moc"
