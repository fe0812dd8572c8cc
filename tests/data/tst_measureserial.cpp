#include "data/measureserial.h"
#include "support/datafiles.h"
#include "support/testroot.h"

#include <QtTest>

// The serial number of the instrument that took a measure, from the FSN line
// that the measure reader passes over.
class TestMeasureSerial : public QObject
{
    Q_OBJECT

private slots:
    void serialIsTheFsnOfTheFile()
    {
        TestRoot root;
        root.mkdir("/krm510data/datameapanel");
        root.write("/krm510data/datameapanel/20100615-103000", golden("measure_512_points"));
        const QString before = currentDir();
        QCOMPARE(readMeasureSerial("20100615-103000", MEA_PANEL), 42L);
        QCOMPARE(currentDir(), before);
    }
    void serialOfAStringIsReadInTheStringDirectory()
    {
        TestRoot root;
        root.mkdir("/krm510data/datameastring");
        root.write("/krm510data/datameastring/a", "VERSION = 2.0.2\nFSN = 1234\n");
        QCOMPARE(readMeasureSerial("a", MEA_STRING), 1234L);
        QCOMPARE(readMeasureSerial("a", MEA_PANEL), -2L);
    }
    void fileWithoutFsnOrMissingGivesMinusOne()
    {
        TestRoot root;
        root.mkdir("/krm510data/datameapanel");
        root.write("/krm510data/datameapanel/nofsn", "version = 2.0.2\nmdata = 2010/06/15\n");
        root.write("/krm510data/datameapanel/bad", "fsn = nan\n");
        QCOMPARE(readMeasureSerial("nofsn", MEA_PANEL), -1L);
        QCOMPARE(readMeasureSerial("bad", MEA_PANEL), -1L);
        QCOMPARE(readMeasureSerial("missing", MEA_PANEL), -1L);
        QCOMPARE(readMeasureSerial(nullptr, MEA_PANEL), -1L);
    }
};

QTEST_MAIN(TestMeasureSerial)
#include "tst_measureserial.moc"
