// The service folder and the five raw files of the service screens.
#include "data/direntry.h"
#include "debugbrask/datasave.h"
#include "servicefixture.h"

#include <cstring>
#include <ctime>

using namespace service;

class TestDebugFiles : public QObject
{
    Q_OBJECT

    static _tstBrask tstRecord()
    {
        _tstBrask t;
        for (int k = 0; k < TST_BRASK_POINTS; k++) {
            t.corrente[k] = 10 * k;
            t.tensione[k] = 4000 - k;
            t.vGateImp[k] = 2000;
            t.vGateEff[k] = 1990 + k % 7;
        }
        return t;
    }

    static QList<QByteArray> lines(const QByteArray& file)
    {
        QList<QByteArray> all = file.split('\n');
        if (!all.isEmpty() && all.last().isEmpty())
            all.removeLast();
        return all;
    }

private slots:
    void serviceFolderIsMadeWhenMissing()
    {
        TestRoot root;
        QVERIFY(!root.exists(DIR_DATA_DEBUG));
        QCOMPARE(checkDebugDir(), 0);
        QVERIFY(QFileInfo(root.path(DIR_DATA_DEBUG)).isDir());
    }
    void serviceFolderWithFilesIsLeftAlone()
    {
        TestRoot root;
        QVERIFY(root.mkdir(DIR_DATA_DEBUG));
        QVERIFY(root.write(DIR_DATA_DEBUG "/old", "kept"));
        QCOMPARE(checkDebugDir(), 0);
        QCOMPARE(root.read(DIR_DATA_DEBUG "/old"), QByteArray("kept"));
    }
    // The moved file carries the present moment in universal time with the
    // hour one ahead, the data layer's backup name.
    void fileWhereTheServiceFolderBelongsIsMovedAside()
    {
        TestRoot root;
        QVERIFY(root.write(DIR_DATA_DEBUG, "a file, not a folder"));
        time_t before = time(nullptr);
        QCOMPARE(checkDebugDir(), 0);
        time_t after = time(nullptr);
        QVERIFY(QFileInfo(root.path(DIR_DATA_DEBUG)).isDir());
        QStringList names;
        for (time_t t : {before, after})
            names << QString::fromStdString(backupDirName(DIR_DATA_DEBUG, t));
        QByteArray moved;
        for (const QString& n : names)
            if (root.exists(n.toLocal8Bit().constData()))
                moved = root.read(n.toLocal8Bit().constData());
        QCOMPARE(moved, QByteArray("a file, not a folder"));
        struct tm utc;
        gmtime_r(&before, &utc);
        QVERIFY(names[0].endsWith(QString::asprintf("-%02d%02d", utc.tm_hour + 1, utc.tm_min)));
    }
    void nameKeepsOnlyLowerCaseLettersDigitsAndMinus()
    {
        TestRoot root;
        QVERIFY(root.mkdir(DIR_DATA_DEBUG));
        _tstBrask t = tstRecord();
        char date[] = "2026/Mar 15";
        char time[] = "10:20 Prova_X";
        char comment[] = "c";
        QCOMPARE(saveMeasureSweepBrask(date, time, comment, &t, 100, 20, 21), 0);
        QDir dir(root.path(DIR_DATA_DEBUG));
        QCOMPARE(dir.entryList(QDir::Files), QStringList{"2026mar15-1020provax"});
    }
    void nullCommentIsWrittenAsTheCLibraryPrintsIt()
    {
        TestRoot root;
        QVERIFY(root.mkdir(DIR_DATA_DEBUG));
        _tstBrask t = tstRecord();
        char date[] = "2026/03/15";
        char time[] = "10:20:30";
        QCOMPARE(saveMeasureZTstDatBrask(date, time, nullptr, &t, 2000, 20, 21), 0);
        QCOMPARE(lines(serviceFile(root, "20260315-102030")).value(3),
                 QByteArray("comment = (null)"));
    }
    void tstFilesHaveTheirHeadsAnd128Rows_data()
    {
        QTest::addColumn<int>("writer");
        QTest::addColumn<QByteArray>("kind");
        QTest::addColumn<QByteArray>("heads");
        QByteArray sweep = "Num\tI(dec)\tV(dec)\tvGateImp(dec)\tvGateEff(dec)";
        QTest::newRow("sweep") << 0 << QByteArray("comando = Sweep_brask") << sweep;
        QTest::newRow("kill, with a K") << 1 << QByteArray("comando = K_kill_brask") << sweep;
        QTest::newRow("test, with a K and capitals")
            << 2 << QByteArray("comando = K_tst_brask")
            << QByteArray("Num\tADI(dec)\tADV(dec)\tVGATEIMP(dec)\tVGATEEFF(dec)");
    }
    void tstFilesHaveTheirHeadsAnd128Rows()
    {
        QFETCH(int, writer);
        QFETCH(QByteArray, kind);
        QFETCH(QByteArray, heads);
        TestRoot root;
        QVERIFY(root.mkdir(DIR_DATA_DEBUG));
        _tstBrask t = tstRecord();
        char date[] = "2026/03/15";
        char time[] = "10:20:30";
        char comment[] = "gate";
        auto save = writer == 0   ? saveMeasureSweepBrask
                    : writer == 1 ? saveMeasureZKillDataBrask
                                  : saveMeasureZTstDatBrask;
        QCOMPARE(save(date, time, comment, &t, 2300, 20.5f, 21.25f), 0);
        QList<QByteArray> l = lines(serviceFile(root, "20260315-102030"));
        QCOMPARE(l.size(), 8 + 128);
        QCOMPARE(l.mid(0, 8),
                 (QList<QByteArray>{kind, "data = 2026/03/15", "time = 10:20:30", "comment = gate",
                                    "target = 2300", "temp_start = 20.500000",
                                    "temp_stop = 21.250000", heads}));
        QCOMPARE(l[8], QByteArray("0\t0\t4000\t2000\t1990"));
        QCOMPARE(l[8 + 127], QByteArray("127\t1270\t3873\t2000\t1991"));
    }
    void rampFilesHaveTheBoardReportAnd512Rows()
    {
        TestRoot root;
        QVERIFY(root.mkdir(DIR_DATA_DEBUG));
        _raw_ramp_vgate ramp;
        for (int k = 0; k < RAMP_POINTS; k++) {
            ramp.corrente[k] = k;
            ramp.tensione[k] = 2 * k;
            ramp.vgate1[k] = 3 * k;
            ramp.vgate2[k] = -k;
        }
        _info_last info = {1, 2, 8, 250, 127, 1400, 3000, 2047, 2100};
        char date[] = "2026/03/15";
        char time[] = "10:20";
        char comment[] = "";
        QCOMPARE(saveMeasureMeaBraskDebug(date, time, comment, &ramp, &info, 25, 25.5f), 0);
        QList<QByteArray> l = lines(serviceFile(root, "20260315-1020"));
        QCOMPARE(l.size(), 17 + 512);
        QCOMPARE(l.mid(0, 17),
                 (QList<QByteArray>{
                     "comando = Mea_brask Debug", "data = 2026/03/15", "time = 10:20",
                     "comment = ", "range = 1", "testmode = 2", "gatestep = 8", "timestep = 250",
                     "lastpoint = 127", "icc = 1400", "voc = 3000", "gateLastPoint = 2047",
                     "ntc_dac = 2100", "temp_start = 25.000000", "temp_stop = 25.500000", "Tabella",
                     "Num\tI(dec)\tV(dec)\tVGate1(dec)\tVGate2(dec)"}));
        QCOMPARE(l[17 + 511], QByteArray("511\t511\t1022\t1533\t-511"));
        _raw_ramp_iv iv;
        std::memcpy(iv.corrente, ramp.corrente, sizeof iv.corrente);
        std::memcpy(iv.tensione, ramp.tensione, sizeof iv.tensione);
        QCOMPARE(saveMeasureMeaBrask(date, time, comment, &iv, &info, 25, 25.5f), 0);
        l = lines(serviceFile(root, "20260315-1020"));
        QCOMPARE(l.size(), 17 + 512);
        QCOMPARE(l[0], QByteArray("comando = Mea_brask User"));
        QCOMPARE(l[16], QByteArray("Num\tI(dec)\tV(dec)"));
        QCOMPARE(l[17 + 300], QByteArray("300\t300\t600"));
    }
    void savingTwiceWithTheSameDateAndTimeOverwrites()
    {
        TestRoot root;
        QVERIFY(root.mkdir(DIR_DATA_DEBUG));
        _tstBrask t = tstRecord();
        char date[] = "2026/03/15";
        char time[] = "10:20:30";
        char first[] = "first";
        char second[] = "second";
        QCOMPARE(saveMeasureSweepBrask(date, time, first, &t, 1, 20, 21), 0);
        QCOMPARE(saveMeasureSweepBrask(date, time, second, &t, 2, 20, 21), 0);
        QList<QByteArray> l = lines(serviceFile(root, "20260315-102030"));
        QCOMPARE(l[3], QByteArray("comment = second"));
        QCOMPARE(l[4], QByteArray("target = 2"));
        QCOMPARE(QDir(root.path(DIR_DATA_DEBUG)).entryList(QDir::Files).size(), 1);
    }
    void withoutTheServiceFolderAWriterGivesMinus4()
    {
        TestRoot root;
        QVERIFY(root.write(DIR_DATA_DEBUG, "a file"));
        _tstBrask t = tstRecord();
        char date[] = "2026/03/15";
        char time[] = "10:20:30";
        QByteArray cwd = QDir::currentPath().toLocal8Bit();
        QCOMPARE(saveMeasureZKillDataBrask(date, time, nullptr, &t, 1, 20, 21), -4);
        QCOMPARE(QDir::currentPath().toLocal8Bit(), cwd);
    }
    void aFileThatCannotBeCreatedGivesMinus3()
    {
        TestRoot root;
        // a folder where the file would go
        QVERIFY(root.mkdir(DIR_DATA_DEBUG "/20260315-102030"));
        _tstBrask t = tstRecord();
        char date[] = "2026/03/15";
        char time[] = "10:20:30";
        QByteArray cwd = QDir::currentPath().toLocal8Bit();
        QCOMPARE(saveMeasureSweepBrask(date, time, nullptr, &t, 1, 20, 21), -3);
        QCOMPARE(QDir::currentPath().toLocal8Bit(), cwd);
    }
    // Files speak C: the temperatures keep their point in a German locale.
    void numberIsWrittenInTheCFormWhateverTheLocale()
    {
        TestRoot root;
        QVERIFY(root.mkdir(DIR_DATA_DEBUG));
        const char* set = setlocale(LC_NUMERIC, "de_DE.UTF-8");
        _tstBrask t = tstRecord();
        char date[] = "2026/03/15";
        char time[] = "10:20:30";
        int result = saveMeasureSweepBrask(date, time, nullptr, &t, 1, 20.5f, 21);
        setlocale(LC_NUMERIC, "C");
        if (set == nullptr)
            qInfo("no German locale on this machine: the C form is checked in C only");
        QCOMPARE(result, 0);
        QCOMPARE(lines(serviceFile(root, "20260315-102030")).value(5),
                 QByteArray("temp_start = 20.500000"));
    }
};

QTEST_GUILESS_MAIN(TestDebugFiles)
#include "tst_debugfiles.moc"
