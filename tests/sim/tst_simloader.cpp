// The board's boot loader in the simulator: greeting after a power cycle,
// the loader's commands, the flash image of the chip it reports, and the
// byte order of a row read that keeps the chip's first two instructions
// through a read-modify-write as the firmware loader does it.
#include "platform/bus.h"
#include "support/siminstrument.h"
#include "support/termiosclient.h"
#include "support/testroot.h"

#include <QtTest>
#include <fcntl.h>

namespace {

bool writePower(int level)
{
    int fd = Bus::open("/dev/gpio/106", O_RDWR);
    if (fd < 0)
        return false;
    bool ok = Bus::gpioRequest(fd, Bus::GPIO_SET_OUTPUT, nullptr) == 0 &&
              Bus::gpioRequest(fd, Bus::GPIO_WRITE, &level) == 0;
    Bus::close(fd);
    return ok;
}

QByteArray address(unsigned a)
{
    QByteArray b;
    b += static_cast<char>(a & 0xFF);
    b += static_cast<char>((a >> 8) & 0xFF);
    b += static_cast<char>((a >> 16) & 0xFF);
    return b;
}

// Power cycle and catch the loader with '%'.
bool enterLoader(TermiosClient& line)
{
    if (!writePower(1) || !writePower(0))
        return false;
    if (line.readExactly(5, 2000) != QByteArray("\0\x09\x09\x09\x0D", 5))
        return false;
    return line.write("%");
}

} // namespace

class TestSimLoader : public QObject
{
    Q_OBJECT

private slots:
    void greetingAfterPowerCycle()
    {
        TestRoot root;
        SimInstrument sim(root);
        TermiosClient line(root.path("/dev/ttyS1"), 38400);
        QVERIFY(enterLoader(line));
        QCOMPARE(sim.field("board state", "mode"), QByteArray("loader"));
    }
    void versionAndChipId()
    {
        TestRoot root;
        SimInstrument sim(root);
        TermiosClient line(root.path("/dev/ttyS1"), 38400);
        QVERIFY(enterLoader(line));
        QVERIFY(line.write(QByteArray(1, 0x11)));
        QCOMPARE(line.readExactly(2, 1000), QByteArray("\x02\x00", 2));
        QVERIFY(line.write(QByteArray(1, 0x09)));
        QByteArray id = line.readExactly(8, 1000);
        QCOMPARE(id.size(), 8);
        QCOMPARE(static_cast<uint8_t>(id[0]) + 256 * static_cast<uint8_t>(id[1]), 0xBF);
        QCOMPARE(static_cast<uint8_t>(id[5]) >> 4, 3);
        QVERIFY(sim.command("loader chip 0x40 1 0")); // dsPIC30F2010
        QVERIFY(line.write(QByteArray(1, 0x09)));
        id = line.readExactly(8, 1000);
        QCOMPARE(static_cast<uint8_t>(id[0]), uint8_t(0x40));
        QCOMPARE(static_cast<uint8_t>(id[5]) >> 4, 1);
    }
    void rowReadKeepsTheFirstInstructionsThroughTheLoader()
    {
        TestRoot root;
        SimInstrument sim(root);
        TermiosClient line(root.path("/dev/ttyS1"), 38400);
        QVERIFY(enterLoader(line));
        QVERIFY(line.write(QByteArray(1, 0x02) + address(0)));
        QByteArray row = line.readExactly(1536, 2000);
        QCOMPARE(row.size(), 1536);
        const auto b = [&row](int i) { return static_cast<uint8_t>(row[i]); };
        // As the firmware loader rebuilds them: HEX-like text of b2 b1 b0 00 b5 b4 b3 00,
        // four 16-bit words, packed back as high, low, high of each word pair.
        QString text = QString::asprintf("%02x%02x%02x00%02x%02x%02x00", b(2), b(1), b(0), b(5), b(4), b(3));
        unsigned short words[4];
        for (int i = 0; i < 4; i++)
            words[i] = static_cast<unsigned short>(text.mid(4 * i, 4).toUInt(nullptr, 16));
        QByteArray packed(1536, '\xff');
        for (int i = 0; i < 2; i++) {
            packed[3 * i] = static_cast<char>(words[2 * i] >> 8);
            packed[3 * i + 1] = static_cast<char>(words[2 * i] & 0xFF);
            packed[3 * i + 2] = static_cast<char>(words[2 * i + 1] >> 8);
        }
        QVERIFY(line.write(QByteArray(1, 0x03) + address(0) + packed));
        QCOMPARE(line.readExactly(1, 2000), QByteArray(1, 0x01));
        // The jump to the boot loader is still where it was.
        QCOMPARE(sim.value("flash read 0 2"), QByteArray("040c00 000000"));
    }
    void rowWriteLandsInTheFlashImage()
    {
        TestRoot root;
        SimInstrument sim(root);
        TermiosClient line(root.path("/dev/ttyS1"), 38400);
        QVERIFY(enterLoader(line));
        QByteArray row(1536, '\xff');
        row[0] = 0x12; // instruction 0: 0x563412, low byte first
        row[1] = 0x34;
        row[2] = 0x56;
        row[3] = static_cast<char>(0xAB);
        row[4] = static_cast<char>(0xCD);
        row[5] = static_cast<char>(0xEF);
        QVERIFY(line.write(QByteArray(1, 0x03) + address(0x400) + row));
        QCOMPARE(line.readExactly(1, 2000), QByteArray(1, 0x01));
        QCOMPARE(sim.flashRows(), QList<unsigned>{0x400});
        QCOMPARE(sim.value("flash read 0x400 3"), QByteArray("563412 efcdab ffffff"));
        // Read back: high byte first.
        QVERIFY(line.write(QByteArray(1, 0x02) + address(0x400)));
        QCOMPARE(line.readExactly(1536, 2000).left(6), QByteArray("\x56\x34\x12\xef\xcd\xab"));
    }
    void refusedRowIsAnsweredWithZero()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.command("loader nak 1"));
        TermiosClient line(root.path("/dev/ttyS1"), 38400);
        QVERIFY(enterLoader(line));
        QByteArray write = QByteArray(1, 0x03) + address(0x800) + QByteArray(1536, '\0');
        QVERIFY(line.write(write));
        QCOMPARE(line.readExactly(1, 2000), QByteArray(1, 0x00));
        QVERIFY(sim.flashRows().isEmpty());
        QVERIFY(line.write(write));
        QCOMPARE(line.readExactly(1, 2000), QByteArray(1, 0x01));
        QCOMPARE(sim.flashRows(), QList<unsigned>{0x800});
    }
    void resetGoesBackToTheFirmware()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.command("loader window 100"));
        TermiosClient line(root.path("/dev/ttyS1"), 38400);
        QVERIFY(enterLoader(line));
        QVERIFY(line.write(QByteArray(1, 0x08)));
        QCOMPARE(line.readExactly(5, 2000), QByteArray("\0\x09\x09\x09\x0D", 5));
        QTRY_COMPARE_WITH_TIMEOUT(sim.field("board state", "mode"), QByteArray("app"), 2000);
        QCOMPARE(line.exchange("ver\r"), QByteArray("ver\rKRM510PD FP 2.1 BRASK\rERROR 0\r"));
    }
    void withoutThePercentTheFirmwareAnswers()
    {
        TestRoot root;
        SimInstrument sim(root);
        TermiosClient line(root.path("/dev/ttyS1"));
        QVERIFY(writePower(1));
        QVERIFY(writePower(0));
        QCOMPARE(line.readExactly(5, 2000).size(), 5);
        QCOMPARE(line.exchange("ver\r"), QByteArray("ver\rKRM510PD FP 2.1 BRASK\rERROR 0\r"));
    }
    void greetingCanBeChanged()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.command("loader greeting AB\\x00CD"));
        TermiosClient line(root.path("/dev/ttyS1"), 38400);
        QVERIFY(writePower(1) && writePower(0));
        QCOMPARE(line.readExactly(5, 2000), QByteArray("AB\0CD", 5));
    }
    void forcedAnswersGoToTheirCommandOnly()
    {
        TestRoot root;
        SimInstrument sim(root);
        TermiosClient line(root.path("/dev/ttyS1"), 38400);
        QVERIFY(enterLoader(line));
        QCOMPARE(sim.value("loader reply 0x11 \\x07\\x07\\x07"), QByteArray("1"));
        QCOMPARE(sim.value("loader reply 0x03 \\x55"), QByteArray("1"));
        QVERIFY(!sim.command("loader reply 0x25 \\x00"));
        QVERIFY(line.write(QByteArray(1, 0x09)));
        QCOMPARE(line.readExactly(8, 1000).size(), 8); // its own answer
        QVERIFY(line.write(QByteArray(1, 0x11)));
        QCOMPARE(line.readExactly(3, 1000), QByteArray("\x07\x07\x07"));
        QByteArray row(1536, '\x11');
        // A garbled acknowledgement: the row is in the image but not counted.
        QVERIFY(line.write(QByteArray(1, 0x03) + address(0x400) + row));
        QCOMPARE(line.readExactly(1, 2000), QByteArray("\x55"));
        QCOMPARE(sim.flashRows(), QList<unsigned>());
        QVERIFY(line.write(QByteArray(1, 0x03) + address(0x400) + row));
        QCOMPARE(line.readExactly(1, 2000), QByteArray("\x01"));
        QCOMPARE(sim.flashRows(), QList<unsigned>({0x400}));
    }
};

QTEST_GUILESS_MAIN(TestSimLoader)
#include "tst_simloader.moc"
