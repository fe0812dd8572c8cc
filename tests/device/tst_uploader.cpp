// The firmware loader of the measuring board against the simulated boot
// loader over a real pseudo-terminal: the steps of the job, the rows it
// writes and what the flash holds afterwards, loaders that answer badly or
// not at all, and the reading of HEX files good and bad.
#include "device/gpiopd.h"
#include "device/memchip.h"
#include "device/ulserialport.h"
#include "device/uploader.h"
#include "platform/clock.h"
#include "support/siminstrument.h"
#include "support/testroot.h"

#include <QtTest>

#include <cstring>
#include <map>

namespace {

const char* const hexPath = "/home/ORVIAp.hex";

// One Intel HEX record, checksum included.
QByteArray record(int type, unsigned address, const QByteArray& data)
{
    QByteArray bytes;
    bytes += static_cast<char>(data.size());
    bytes += static_cast<char>((address >> 8) & 0xFF);
    bytes += static_cast<char>(address & 0xFF);
    bytes += static_cast<char>(type);
    bytes += data;
    unsigned sum = 0;
    for (char c : bytes)
        sum += static_cast<unsigned char>(c);
    bytes += static_cast<char>((0x100 - (sum & 0xFF)) & 0xFF);
    return ":" + bytes.toHex().toUpper() + "\r\n";
}

QByteArray extended(unsigned upper)
{
    QByteArray word;
    word += static_cast<char>((upper >> 8) & 0xFF);
    word += static_cast<char>(upper & 0xFF);
    return record(4, 0, word);
}

QByteArray bytes(std::initializer_list<int> list)
{
    QByteArray b;
    for (int v : list)
        b += static_cast<char>(v);
    return b;
}

// The instructions the simulated flash holds from address on, as it prints
// them.
QList<QByteArray> flash(const SimInstrument& sim, unsigned address, int count)
{
    return sim.value("flash read " + QByteArray::number(address) + " " + QByteArray::number(count))
        .split(' ');
}

// A program row as expected: erased but for the instructions given.
QList<QByteArray> expectedRow(int size, const std::map<int, QByteArray>& set)
{
    QList<QByteArray> row;
    for (int i = 0; i < size; i++) {
        auto found = set.find(i);
        row << (found == set.end() ? QByteArray("ffffff") : found->second);
    }
    return row;
}

// Power cycle by hand and an open loader line, for the single steps.
void openLine(UpLoader& up)
{
    up.fd = UlOpenSerialPort();
    UlSettingSerialPort(up.fd, &up.oldtio, &up.newtio);
    powerDeviceStart(1);
    powerDeviceStart(0);
}

bool writeHex(const TestRoot& root, const QByteArray& content)
{
    return root.write(hexPath, content);
}

} // namespace

class TestUpLoader : public QObject
{
    Q_OBJECT

private slots:
    void emptyFileNameNeverOpensThePort()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        {
            UpLoader up(QString(), nullptr);
            QCOMPARE(up.done, 0);
            QCOMPARE(up.fd, 0);
            int lines = -1;
            QCOMPARE(up.verifyFileHex(&lines), 1);
            QCOMPARE(sim.field("power", "writes"), QByteArray("0"));
        }
        // The destructor still restarts the board.
        QCOMPARE(sim.field("power", "writes"), QByteArray("2"));
        QCOMPARE(sim.powerLineLevel(), 0);
        QVERIFY(Clock::waits() == std::vector<Clock::Wait>({{Clock::Sleep, 2000000, 1}}));
    }

    void missingFileEndsTheJobBeforeThePort()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        UpLoader up(QString(hexPath), nullptr);
        QCOMPARE(up.done, 0);
        QCOMPARE(up.fd, 0);
        int lines = 0;
        QCOMPARE(up.verifyFileHex(&lines), -1);
    }

    void linesAreCountedInPiecesOfTheLineBuffer()
    {
        TestRoot root(0.1);
        QVERIFY(writeHex(root, record(0, 0, "ab") + QByteArray(5000, '0') + "\n" +
                                   record(1, 0, QByteArray())));
        UpLoader up(QString(), nullptr);
        up.fileName = hexPath;
        int lines = 0;
        QCOMPARE(up.verifyFileHex(&lines), 0);
        QCOMPARE(lines, 4); // the long line is two pieces
    }

    void firmwareUploadWritesTheTouchedProgramRowsOnly()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QByteArray hex;
        hex += extended(0);
        // Instructions 0 and 1 (the jump to the loader) and 2.
        hex += record(0, 0x0000, bytes({0x11, 0x22, 0x33, 0x00, 0x44, 0x55, 0x66, 0x00}));
        hex += record(0, 0x0008, bytes({0x77, 0x88, 0x99, 0x00}));
        // Row 1: a whole instruction, then the low word of the next only.
        hex += record(0, 0x0810, bytes({0xAA, 0xBB, 0xCC, 0x00, 0xDD, 0xEE}));
        // Row 32, behind an extended address.
        hex += extended(0x0001);
        hex += record(0, 0x0000, bytes({0x01, 0x02, 0x03, 0x00}));
        // EEPROM and configuration: read, never written.
        hex += extended(0x00FF);
        hex += record(0, 0xE000, bytes({0x12, 0x34, 0x56, 0x78}));
        hex += extended(0x01F0);
        hex += record(0, 0x0000, bytes({0xCF, 0x00, 0x00, 0x00}));
        hex += record(1, 0, QByteArray());
        // The end record does not end the reading.
        hex += extended(0);
        hex += record(0, 0x1800, bytes({0x5A, 0x5A, 0x5A, 0x00}));
        QVERIFY(writeHex(root, hex));
        {
            UpLoader up(QString(hexPath), nullptr);
            QCOMPARE(up.bootUp, 1);
            QCOMPARE(up.blVersion, 2);
            QCOMPARE(up.family, int(FAMILY_DSPIC33F));
            QCOMPARE(up.done, 1);
            QVERIFY(up.fd > 0);
            // One 100 us pause behind each of the 1672 rows, sent or not,
            // then the reset and its second.
            QCOMPARE(Clock::requested(Clock::Usleep), 1672LL * 100);
            QVERIFY(Clock::waits().back() == (Clock::Wait{Clock::Sleep, 1000000, 1}));
        }
        QVERIFY(Clock::waits().back() == (Clock::Wait{Clock::Sleep, 2000000, 1}));
        QCOMPARE(sim.flashRows(), QList<unsigned>({0x0000, 0x0400, 0x0C00, 0x8000}));
        QCOMPARE(flash(sim, 0x0000, 512),
                 expectedRow(512, {{0, "040c00"}, {1, "000000"}, {2, "998877"}}));
        QCOMPARE(flash(sim, 0x0400, 512), expectedRow(512, {{4, "ccbbaa"}, {5, "ffeedd"}}));
        QCOMPARE(flash(sim, 0x0C00, 512), expectedRow(512, {{0, "5a5a5a"}}));
        QCOMPARE(flash(sim, 0x8000, 512), expectedRow(512, {{0, "030201"}}));
        QCOMPARE(flash(sim, 0x7FF000, 16), expectedRow(16, {}));
        QCOMPARE(flash(sim, 0xF80000, 8), expectedRow(8, {}));
        // The board was restarted: power line low again.
        QCOMPARE(sim.powerLineLevel(), 0);
        QCOMPARE(sim.field("power", "writes"), QByteArray("4"));
    }

    void dsPic30fRowsAreThirtyTwoInstructions()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.command("loader chip 0x40 1 0")); // dsPIC30F2010
        QVERIFY(writeHex(root, record(0, 0x0080, bytes({0x01, 0x02, 0x03, 0x00})) +
                                   record(0, 0x0100, bytes({0x04, 0x05, 0x06, 0x00}))));
        {
            UpLoader up(QString(hexPath), nullptr);
            QCOMPARE(up.family, int(FAMILY_DSPIC30F));
            QCOMPARE(up.done, 1);
        }
        QCOMPARE(sim.flashRows(), QList<unsigned>({0x00, 0x40, 0x80}));
        QCOMPARE(flash(sim, 0x40, 32), expectedRow(32, {{0, "030201"}}));
        QCOMPARE(flash(sim, 0x80, 32), expectedRow(32, {{0, "060504"}}));
        QCOMPARE(flash(sim, 0x00, 2), QList<QByteArray>({"040c00", "000000"}));
    }

    void extendedAddressIsAddedBeforeHalving()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        // 0x10000 + 0x0810 = 0x10810 bytes: word 0x8408, instruction 4 of
        // row 33 (0x8400). Halved first, it would be word 0x10408.
        QVERIFY(writeHex(root, extended(0x0001) +
                                   record(0, 0x0810, bytes({0x0A, 0x0B, 0x0C, 0x00}))));
        {
            UpLoader up(QString(hexPath), nullptr);
            QCOMPARE(up.done, 1);
        }
        QCOMPARE(sim.flashRows(), QList<unsigned>({0x0000, 0x8400}));
        QCOMPARE(flash(sim, 0x8408, 1), QList<QByteArray>({"0c0b0a"}));
    }

    void dataAtAddressZeroIsReplacedByTheChipsFirstInstructions()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(writeHex(root, record(0, 0, QByteArray(16, '\x5A'))));
        {
            UpLoader up(QString(hexPath), nullptr);
            QCOMPARE(up.done, 1);
        }
        QCOMPARE(sim.flashRows(), QList<unsigned>({0x0000}));
        QCOMPARE(flash(sim, 0, 5),
                 QList<QByteArray>({"040c00", "000000", "5a5a5a", "5a5a5a", "ffffff"}));
    }

    void addressOutsideTheThreeRangesWritesNothing()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        // Byte 0x400000: word 0x200000, past program memory, below EEPROM.
        QVERIFY(writeHex(root, record(0, 0x0000, bytes({0x01, 0x02, 0x03, 0x00})) +
                                   extended(0x0040) +
                                   record(0, 0x0000, bytes({0x01, 0x02, 0x03, 0x00}))));
        {
            UpLoader up(QString(hexPath), nullptr);
            QCOMPARE(up.family, int(FAMILY_DSPIC33F));
            QCOMPARE(up.done, 1); // set also when the chip could not be written
            // No row read, no row, no reset: the last wait was a read.
            QCOMPARE(Clock::requested(Clock::Usleep), 0LL);
            QCOMPARE(Clock::waits().back().kind, Clock::Select);
        }
        QVERIFY(sim.flashRows().isEmpty());
        QCOMPARE(flash(sim, 0, 1), QList<QByteArray>({"040c00"}));
    }

    void loaderVersionOneEndsTheJobBeforeTheChipQuery()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.command("loader version 1"));
        QVERIFY(writeHex(root, record(0, 0x0810, bytes({1, 2, 3, 0}))));
        UpLoader up(QString(hexPath), nullptr);
        QCOMPARE(up.bootUp, 1);
        QCOMPARE(up.blVersion, 1);
        QCOMPARE(up.family, int(FAMILY_UNKNOWN)); // the known chip was never asked
        QCOMPARE(up.done, 0);
        QVERIFY(sim.flashRows().isEmpty());
    }

    void chipWithMatchingIdAndOtherProcessIsUnknown()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.command("loader chip 0xBF 1 1")); // dsPIC33FJ256MC710 is process 3
        QVERIFY(writeHex(root, record(0, 0x0810, bytes({1, 2, 3, 0}))));
        UpLoader up(QString(hexPath), nullptr);
        QCOMPARE(up.family, int(FAMILY_UNKNOWN));
        QCOMPARE(up.done, 1);
        QCOMPARE(Clock::requested(Clock::Usleep), 0LL);
        QVERIFY(sim.flashRows().isEmpty());
    }

    void rowRefusedWithZeroIsSentAgain()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.command("loader nak 3"));
        QVERIFY(writeHex(root, record(0, 0x0810, bytes({1, 2, 3, 0}))));
        {
            UpLoader up(QString(hexPath), nullptr);
            QCOMPARE(up.done, 1);
        }
        // Only acknowledged rows count in the simulator: both got there.
        QCOMPARE(sim.flashRows(), QList<unsigned>({0x0000, 0x0400}));
        QCOMPARE(flash(sim, 0x0408, 1), QList<QByteArray>({"030201"}));
    }

    void garbledAcknowledgementSendsTheRowAgain()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.command("loader reply 0x03 \\x7f"));
        QVERIFY(sim.command("loader reply 0x03 \\x81"));
        QVERIFY(writeHex(root, record(0, 0x0810, bytes({1, 2, 3, 0}))));
        {
            UpLoader up(QString(hexPath), nullptr);
            QCOMPARE(up.done, 1);
        }
        QCOMPARE(sim.flashRows(), QList<unsigned>({0x0000, 0x0400}));
    }

    void loaderAnsweringGarbageToTheChipQueryIsAnUnknownChip()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.command("loader reply 0x09 \\x55\\xaa\\x12\\x34\\x56\\x78\\x9a\\xbc"));
        QVERIFY(writeHex(root, record(0, 0x0810, bytes({1, 2, 3, 0}))));
        UpLoader up(QString(hexPath), nullptr);
        QCOMPARE(up.family, int(FAMILY_UNKNOWN));
        QCOMPARE(up.done, 1);
        QVERIFY(sim.flashRows().isEmpty());
    }

    void loaderAnsweringGarbageToTheVersionIsRefused()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.command("loader reply 0x11 \\x00\\xff"));
        QVERIFY(writeHex(root, record(0, 0x0810, bytes({1, 2, 3, 0}))));
        UpLoader up(QString(hexPath), nullptr);
        QCOMPARE(up.blVersion, 0);
        QCOMPARE(up.done, 0);
        QVERIFY(sim.flashRows().isEmpty());
    }

    void wrongGreetingLeavesTheLoaderAlone()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.command("loader greeting X\\x00\\x09\\x09\\x09"));
        QVERIFY(writeHex(root, record(0, 0x0810, bytes({1, 2, 3, 0}))));
        UpLoader up(QString(hexPath), nullptr);
        QCOMPARE(up.bootUp, 0);
        QCOMPARE(up.done, 0);
        // No '%' went out: the loader is not in command mode.
        QVERIFY(sim.field("board state", "mode") != QByteArray("loader"));
        QVERIFY(sim.flashRows().isEmpty());
    }

    void greetingWithoutNulGivesOne()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.command("loader greeting ABCDE"));
        UpLoader up(QString(), nullptr);
        openLine(up);
        QCOMPARE(up.isBlBootUp(), 1);
        QCOMPARE(up.bootUp, 0);
        QCOMPARE(up.upgradeUp(), 1);
    }

    void rightGreetingSetsBootUp()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        UpLoader up(QString(), nullptr);
        openLine(up);
        QCOMPARE(up.isBlBootUp(), 0);
        QCOMPARE(up.bootUp, 1);
        QCOMPARE(up.upgradeUp(), 0);
        QCOMPARE(up.readBLVer(), 0);
        QCOMPARE(up.blVersion, 2);
        QCOMPARE(up.readID(), int(FAMILY_DSPIC33F));
        QCOMPARE(sim.field("board state", "mode"), QByteArray("loader"));
    }

    // The old instrument read the greeting 2000 times, each read given up
    // after 2001 waits of a second: over 46 days for a board that never
    // answers. The greeting is now one read of at most 10 s.
    void everyWaitEnds_silentLoaderEndsTheJobAfterTenSeconds()
    {
        TestRoot root(0.0); // silence needs no pacing
        SimInstrument sim(root);
        // The power line can't be switched: no reset, no loader, no word.
        QVERIFY(sim.removeNode("/dev/gpio/106"));
        QVERIFY(writeHex(root, record(0, 0x0810, bytes({1, 2, 3, 0}))));
        {
            UpLoader up(QString(hexPath), nullptr);
            QCOMPARE(up.bootUp, 0);
            QCOMPARE(up.done, 0);
            QCOMPARE(up.reason(), UL_NO_GREETING);
            std::vector<Clock::Wait> expected = {{Clock::Sleep, 1000000, 1},
                                                 {Clock::Select, 1000000, 10}};
            QVERIFY(Clock::waits() == expected);
        }
        QVERIFY(Clock::waits().back() == (Clock::Wait{Clock::Sleep, 2000000, 1}));
    }

    void everyWaitEnds_loaderWithoutGreetingEndsTheJobAndTheBoardRestarts()
    {
        TestRoot root(0.0);
        SimInstrument sim(root);
        QVERIFY(sim.command("loader greeting"));
        QVERIFY(writeHex(root, record(0, 0x0810, bytes({1, 2, 3, 0}))));
        {
            UpLoader up(QString(hexPath), nullptr);
            QCOMPARE(up.done, 0);
            QCOMPARE(up.reason(), UL_NO_GREETING);
        }
        // the destructor still cycles the board's supply
        QCOMPARE(sim.field("power", "writes"), QByteArray("4"));
        QCOMPARE(sim.powerLineLevel(), 0);
        QVERIFY(sim.flashRows().isEmpty());
    }

    void everyWaitEnds_loaderSilentToAQuestionEndsTheJob_data()
    {
        QTest::addColumn<QByteArray>("command");
        QTest::addColumn<int>("reason");
        QTest::newRow("version") << QByteArray("0x11") << int(UL_NO_VERSION);
        QTest::newRow("chip") << QByteArray("0x09") << int(UL_NO_ID);
        QTest::newRow("row 0") << QByteArray("0x02") << int(UL_NO_ROW0);
        QTest::newRow("row answer") << QByteArray("0x03") << int(UL_ROW_UNANSWERED);
    }
    void everyWaitEnds_loaderSilentToAQuestionEndsTheJob()
    {
        QFETCH(QByteArray, command);
        QFETCH(int, reason);
        TestRoot root(0.1); // the loader answers the other questions: paced
        SimInstrument sim(root);
        QVERIFY(sim.command("loader silent " + command));
        QVERIFY(writeHex(root, record(0, 0x0810, bytes({1, 2, 3, 0}))));
        {
            UpLoader up(QString(hexPath), nullptr);
            QCOMPARE(up.bootUp, 1);
            QCOMPARE(up.done, 0);
            QCOMPARE(int(up.reason()), reason);
            // the silent read gave up after ten waits of a second
            bool tenWaits = false;
            for (const Clock::Wait& w : Clock::waits())
                tenWaits =
                    tenWaits || (w.kind == Clock::Select && w.micros == 1000000 && w.count >= 10);
            QVERIFY(tenWaits);
        }
        QCOMPARE(sim.field("power", "writes"), QByteArray("4"));
        QCOMPARE(sim.powerLineLevel(), 0);
    }

    // The choice stays that no row is sent when row 0 cannot be read back:
    // its first two instructions are the chip's jump to its boot loader. The
    // old instrument then called the job done; it has failed.
    void everyWaitEnds_noRowIsSentWithoutRowZeroAndTheJobFails()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.command("loader silent 0x02"));
        QVERIFY(writeHex(root, record(0, 0, QByteArray(16, '\x5A')) +
                                   record(0, 0x0810, bytes({1, 2, 3, 0}))));
        {
            UpLoader up(QString(hexPath), nullptr);
            QCOMPARE(up.done, 0);
            QCOMPARE(up.reason(), UL_NO_ROW0);
        }
        QVERIFY(sim.flashRows().isEmpty());
        // the chip keeps its first instructions: the jump to its loader
        QCOMPARE(flash(sim, 0, 2), QList<QByteArray>({"040c00", "000000"}));
    }

    // The old instrument sent a refused row again for ever.
    void everyWaitEnds_rowIsSentAtMostTenTimes()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(writeHex(root, record(0, 0x0810, bytes({1, 2, 3, 0}))));
        // nine refusals: the tenth send goes through
        QVERIFY(sim.command("loader nak 9"));
        {
            UpLoader up(QString(hexPath), nullptr);
            QCOMPARE(up.done, 1);
            QCOMPARE(up.reason(), UL_OK);
        }
        QCOMPARE(sim.flashRows(), QList<unsigned>({0x0000, 0x0400}));
        QVERIFY(sim.command("flash reset"));
        // ten refusals: no eleventh send
        QVERIFY(sim.command("loader nak 10"));
        {
            UpLoader up(QString(hexPath), nullptr);
            QCOMPARE(up.done, 0);
            QCOMPARE(up.reason(), UL_ROW_REFUSED);
        }
        QVERIFY(sim.flashRows().isEmpty());
        // a loader that refuses for ever
        QVERIFY(sim.command("loader nak forever"));
        {
            UpLoader up(QString(hexPath), nullptr);
            QCOMPARE(up.done, 0);
            QCOMPARE(up.reason(), UL_ROW_REFUSED);
        }
        QVERIFY(sim.flashRows().isEmpty());
        QCOMPARE(sim.powerLineLevel(), 0);
    }

    void badHexInputGivesWhatTheRulesSay()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QByteArray hex;
        // A line of 5000 characters: its tail, from the 4096th character
        // on, is read as a line of its own.
        QByteArray head = ":10080000" + QByteArray("00112233445566778899AABBCCDDEEFF") + "00";
        QByteArray tail = ":04180000A1B2C3D4";
        QByteArray longLine = head + QByteArray(4095 - head.size(), '0') + tail;
        longLine += QByteArray(5000 - longLine.size(), '0');
        QCOMPARE(longLine.size(), 5000);
        hex += longLine + "\n";
        // Non-hex characters in the data, and in the head.
        hex += ":081000001234ZZZZ5678WXYZ00\n";
        hex += ":0G100800ABCD\n";
        // A length field larger than its data.
        hex += ":2014000012345678FF\n";
        // Cut short: the last line ends in the middle of its data.
        hex += ":10200000ABCDEF";
        QVERIFY(writeHex(root, hex));
        {
            UpLoader up(QString(hexPath), nullptr);
            QCOMPARE(up.done, 1);
        }
        QCOMPARE(sim.flashRows(), QList<unsigned>({0x0000, 0x0400, 0x0800, 0x0C00, 0x1000}));
        QCOMPARE(flash(sim, 0x0400, 512), expectedRow(512, {{0, "221100"},
                                                            {1, "665544"},
                                                            {2, "aa9988"},
                                                            {3, "eeddcc"}}));
        QCOMPARE(flash(sim, 0x0C00, 512), expectedRow(512, {{0, "c3b2a1"}}));
        // Unreadable groups keep their bits set; the ":0G" line is passed over.
        QCOMPARE(flash(sim, 0x0800, 512), expectedRow(512, {{0, "ff3412"},
                                                            {1, "ff7856"},
                                                            {256, "563412"},
                                                            {257, "ffff00"}}));
        QCOMPARE(flash(sim, 0x1000, 512), expectedRow(512, {{0, "00cdab"}}));
    }

    // ---- The HEX reading without a line.

    void dataRecordTakesGroupsOfFourDigitsAtHalfTheAddress()
    {
        MemRows rows = createMemRows(FAMILY_DSPIC33F);
        unsigned ext = 0;
        QCOMPARE(readHexLine(":0408100001020300E4\r\n", &ext, rows), 0);
        QCOMPARE(rows[1]->empty, 0);
        QCOMPARE(rows[1]->data[8], static_cast<unsigned short>(0x0102));
        QCOMPARE(rows[1]->data[9], static_cast<unsigned short>(0x0300));
        QCOMPARE(rows[1]->data[10], static_cast<unsigned short>(0xFFFF));
        QCOMPARE(rows[0]->empty, 1);
    }

    void extendedRecordShiftsUpSixteenBits()
    {
        MemRows rows = createMemRows(FAMILY_DSPIC33F);
        unsigned ext = 0;
        QCOMPARE(readHexLine(":0200000401F009\r\n", &ext, rows), 0);
        QCOMPARE(ext, 0x01F00000u);
        QCOMPARE(readHexLine(":02000200CF000D\r\n", &ext, rows), 0);
        // Word 0xF80001: the second word of configuration row 0.
        const mem_cMemRow& config = *rows[MEM_PROGRAM_ROWS + MEM_EEPROM_ROWS];
        QCOMPARE(config.data[1], static_cast<unsigned short>(0xCF00));
        QCOMPARE(config.empty, 0);
        // A head that cannot be read leaves the extended address alone.
        QCOMPARE(readHexLine(":02000004\n", &ext, rows), 0);
        QCOMPARE(ext, 0x01F00000u);
    }

    void otherRecordsAndUnreadableHeadsArePassedOver()
    {
        MemRows rows = createMemRows(FAMILY_DSPIC33F);
        unsigned ext = 0;
        QCOMPARE(readHexLine(":00000001FF\r\n", &ext, rows), 0);
        QCOMPARE(readHexLine(":0400000512345678E8\r\n", &ext, rows), 0);
        QCOMPARE(readHexLine(":040000021234567800\r\n", &ext, rows), 0);
        QCOMPARE(readHexLine(":zz\n", &ext, rows), 0);
        QCOMPARE(readHexLine("\n", &ext, rows), 0);
        QCOMPARE(readHexLine("", &ext, rows), 0);
        QCOMPARE(ext, 0u);
        for (const auto& row : rows)
            QCOMPARE(row->empty, 1);
    }

    void groupThatFitsNoRowGivesOne()
    {
        MemRows rows = createMemRows(FAMILY_DSPIC33F);
        unsigned ext = 0x00400000; // word 0x200000
        QCOMPARE(readHexLine(":0400000001020300F6\n", &ext, rows), 1);
        ext = 0x02000000; // past the configuration words
        QCOMPARE(readHexLine(":0400000001020300F6\n", &ext, rows), 1);
    }

    void lengthLargerThanTheDataStopsAtTheLineEnd()
    {
        MemRows rows = createMemRows(FAMILY_DSPIC33F);
        unsigned ext = 0;
        QCOMPARE(readHexLine(":FF0000001234", &ext, rows), 0);
        QCOMPARE(rows[0]->data[0], static_cast<unsigned short>(0x1234));
        QCOMPARE(rows[0]->data[1], static_cast<unsigned short>(0xFFFF));
    }

    void bootJumpGoesBackInTheFilesWordOrder()
    {
        MemRows rows = createMemRows(FAMILY_DSPIC33F);
        // As the loader reads them: upper byte first, 0x040C00 then 0x000000.
        const unsigned char first[6] = {0x04, 0x0C, 0x00, 0x00, 0x00, 0x00};
        keepBootJump(rows[0].get(), first);
        QCOMPARE(rows[0]->data[0], static_cast<unsigned short>(0x000C));
        QCOMPARE(rows[0]->data[1], static_cast<unsigned short>(0x0400));
        QCOMPARE(rows[0]->data[2], static_cast<unsigned short>(0x0000));
        QCOMPARE(rows[0]->data[3], static_cast<unsigned short>(0x0000));
        rows[0]->formatData();
        QCOMPARE(QByteArray(rows[0]->buffer, 6), QByteArray("\x00\x0C\x04\x00\x00\x00", 6));
    }
};

QTEST_MAIN(TestUpLoader)
#include "tst_uploader.moc"
