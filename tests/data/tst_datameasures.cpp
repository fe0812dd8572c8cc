#include "data/datameasures.h"
#include "data/direntry.h"
#include "platform/systemroot.h"
#include "support/datafiles.h"
#include "support/testroot.h"

#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QSet>
#include <QtTest>

#include <cstdlib>
#include <cstring>

// Saved measures: one tag file with a table of 512 points each.
class TestDataMeasures : public QObject
{
    Q_OBJECT

    // The curve of the golden files: current and voltage in sixteenths.
    static float goldenCurrent(int k, int last)
    {
        qint64 d = last - k;
        qint64 l = last;
        return static_cast<float>(136 - (136 * d * d * d * d) / (l * l * l * l)) / 16.0f;
    }
    static float goldenVoltage(int k, int last) { return static_cast<float>(last - k) / 16.0f; }

    static _measure golden512()
    {
        _measure m;
        memset(&m, 0, sizeof m);
        m.version = {2, 0, 2};
        m.mdata = strdup("2010/06/15");
        m.mtime = strdup("10:30:00");
        m.mnpan = 1;
        m.misc = 8.5f;
        m.mvoc = 37.25f;
        m.mimpp = 7.875f;
        m.mvmpp = 30.5f;
        m.mtemp = 45.25f;
        m.mprobe = PROBE_MODULE;
        m.mirr = 850.5f;
        m.mcomp = 1;
        m.mpmax = 240.1875f;
        m.mdpmax = -2.125f;
        m.spmax = 234.875f;
        m.svoc = 36.75f;
        m.svmpp = 29.625f;
        m.simpp = 7.9375f;
        m.sisc = 8.625f;
        m.mtest = 1;
        m.mdegy = 2.0f;
        m.mdegp = 0.5f;
        m.rrimb = 0;
        m.mcom = strdup("Tetto est, fila 3");
        m.mrstest = 1;
        m.mrs = 0.4375f;
        m.mrsi1 = 820.25f;
        m.mrsi2 = 410.125f;
        m.rname = strdup("HIT 240");
        m.rbname = strdup("Solaria Italia");
        m.ref.pmax = 240.0f;
        m.ref.noct = 45.0f;
        m.ref.impp = 5.5f;
        m.ref.vmpp = 43.75f;
        m.ref.isc = 5.75f;
        m.ref.voc = 52.25f;
        m.ref.type = 1;
        m.ref.kisc = 0.0625f;
        m.ref.kvoc = -0.25f;
        m.ref.kpmax = -0.3125f;
        m.ref.tollp = 10.0f;
        m.ref.tollm = 5.0f;
        for (int k = 0; k < RAMP_POINTS; k++) {
            m.ramp.corrente[k] = goldenCurrent(k, 511);
            m.ramp.tensione[k] = goldenVoltage(k, 511);
        }
        return m;
    }

    static void directories()
    {
        checkDirData();
        QVERIFY(QFileInfo(SystemRoot::path(DIR_DATA_MEA_STRING).c_str()).isDir());
    }

    static QString text(const char* s) { return s == nullptr ? QString("<null>") : QString(s); }

    // Compares two records field by field; texts by content.
    static void compareMeasures(const _measure& a, const _measure& b)
    {
        QCOMPARE(a.version.major, b.version.major);
        QCOMPARE(a.version.minor, b.version.minor);
        QCOMPARE(a.version.patch, b.version.patch);
        QCOMPARE(text(a.mdata), text(b.mdata));
        QCOMPARE(text(a.mtime), text(b.mtime));
        QCOMPARE(text(a.mcom), text(b.mcom));
        QCOMPARE(text(a.rname), text(b.rname));
        QCOMPARE(text(a.rbname), text(b.rbname));
        _measure x = a, y = b;
        x.mdata = x.mtime = x.mcom = x.rname = x.rbname = nullptr;
        y.mdata = y.mtime = y.mcom = y.rname = y.rbname = nullptr;
        for (int k = 0; k < RAMP_POINTS; k++) {
            if (x.ramp.corrente[k] != y.ramp.corrente[k] ||
                x.ramp.tensione[k] != y.ramp.tensione[k])
                QFAIL(qPrintable(QString("point %1 differs").arg(k)));
        }
        QCOMPARE(memcmp(&x, &y, sizeof x), 0);
    }

    // A measure file: the given header lines, then the point lines.
    static void measureFile(const TestRoot& root, const char* file, const QByteArray& content,
                            _meaType type = MEA_PANEL)
    {
        QByteArray path = QByteArray(measureDir(type)) + "/" + file;
        QVERIFY(root.write(path.constData(), content));
    }

    static QByteArray points(int count, float c0 = 1.0f, float v0 = 40.0f)
    {
        QByteArray t;
        for (int k = 0; k < count; k++)
            t += QString::asprintf("%.4f\t%.4f\n", double(c0 + k * 0.01f), double(v0 - k * 0.05f))
                     .toLatin1();
        return t;
    }

private slots:
    // ---- Golden files

    void golden512ReadsAsExpectedRecord()
    {
        TestRoot root;
        directories();
        measureFile(root, "20100615-103000", golden("measure_512_points"));
        _measure m;
        QCOMPARE(readMeasureData("20100615-103000", &m, MEA_PANEL), 511);
        _measure want = golden512();
        compareMeasures(m, want);
        freeMeasureData(&m);
        freeMeasureData(&want);
    }

    void savedMeasureMatchesGolden512ByteForByte()
    {
        TestRoot root;
        directories();
        _measure m = golden512();
        int sum = saveMeasuresData(&m, MEA_PANEL, 42);
        QByteArray file = root.read(DIR_DATA_MEA_PANEL "/20100615-103000");
        QCOMPARE(file, golden("measure_512_points"));
        QCOMPARE(sum, file.size());
        freeMeasureData(&m);
    }

    // The old instrument wrote and read its numbers in the process locale: a
    // comma locale gave "1,2500" in the table. Files speak C whatever the locale.
    void filesSpeakC_measureUnderACommaLocaleMatchesGolden512AndReadsBack()
    {
        CommaLocale comma;
        if (!comma.active())
            QSKIP("no locale with a decimal comma on this machine");
        TestRoot root;
        directories();
        _measure m = golden512();
        QVERIFY(saveMeasuresData(&m, MEA_PANEL, 42) > 0);
        QCOMPARE(root.read(DIR_DATA_MEA_PANEL "/20100615-103000"), golden("measure_512_points"));
        _measure r;
        QCOMPARE(readMeasureData("20100615-103000", &r, MEA_PANEL), RAMP_POINTS - 1);
        compareMeasures(r, m);
        freeMeasureData(&m);
        freeMeasureData(&r);
    }

    void golden256IsPaddedWithPoint254()
    {
        TestRoot root;
        directories();
        measureFile(root, "20080901-150405", golden("measure_256_points"), MEA_STRING);
        _measure m;
        QCOMPARE(readMeasureData("20080901-150405", &m, MEA_STRING), 512);
        QCOMPARE(m.version.major, 1);
        QCOMPARE(m.version.minor, 2);
        QCOMPARE(m.version.patch, 0);
        QVERIFY(!isMeaMadeByBrask(m.version));
        QCOMPARE(text(m.mdata), QString("2008/09/01"));
        QCOMPARE(m.mnpan, 12);
        QCOMPARE(m.mvoc, 447.0f);
        QCOMPARE(m.mpmax, 2882.25f);
        QVERIFY(m.mcom == nullptr);
        QVERIFY(m.rname == nullptr);
        QVERIFY(m.rbname == nullptr);
        // keys the older software didn't write read as zero
        QCOMPARE(m.mrs, 0.0f);
        QCOMPARE(m.mdegy, 0.0f);
        QCOMPARE(m.ref.pmax, 0.0f);
        for (int k = 0; k < 255; k++) {
            QCOMPARE(m.ramp.corrente[k], goldenCurrent(k, 255));
            QCOMPARE(m.ramp.tensione[k], goldenVoltage(k, 255));
        }
        // from the last point read on, every slot holds point 254
        for (int k = 255; k < RAMP_POINTS; k++) {
            QCOMPARE(m.ramp.corrente[k], goldenCurrent(254, 255));
            QCOMPARE(m.ramp.tensione[k], goldenVoltage(254, 255));
        }
        freeMeasureData(&m);
    }

    // ---- Round trip

    void savedMeasureReadsBackToWrittenPrecision()
    {
        TestRoot root;
        directories();
        _measure m;
        memset(&m, 0, sizeof m);
        m.mdata = strdup("2011/02/03");
        m.mtime = strdup("04:05:06");
        m.mnpan = 7;
        m.misc = 1.0f / 3.0f;
        m.mvoc = 612.3456789f;
        m.mpmax = 4321.98765f;
        m.mtemp = -3.14159f;
        m.mirr = 987.654321f;
        m.mrs = 0.0123456f;
        m.mcomp = 1;
        m.mtest = 0;
        m.mprobe = PROBE_AUTO;
        m.mcom = strdup("Stringa 2, lato sud");
        m.rname = strdup("Modello");
        m.rbname = strdup("Marca");
        m.ref.kisc = 0.04567f;
        m.ref.tollm = 2.345f;
        m.ref.type = 3;
        QRandomGenerator random(7);
        for (int k = 0; k < RAMP_POINTS; k++) {
            m.ramp.corrente[k] = float(random.bounded(10.0)) + 0.001f;
            m.ramp.tensione[k] = float(random.bounded(800.0)) + 0.001f;
        }
        QVERIFY(saveMeasuresData(&m, MEA_STRING, 12345) > 0);
        _measure r;
        QCOMPARE(readMeasureData("20110203-040506", &r, MEA_STRING), 511);
        QCOMPARE(text(r.mdata), text(m.mdata));
        QCOMPARE(text(r.mtime), text(m.mtime));
        QCOMPARE(text(r.mcom), text(m.mcom));
        QCOMPARE(text(r.rname), text(m.rname));
        QCOMPARE(text(r.rbname), text(m.rbname));
        QCOMPARE(r.version.major, 2);
        QCOMPARE(r.version.minor, 0);
        QCOMPARE(r.version.patch, 2);
        QCOMPARE(r.mnpan, 7);
        QCOMPARE(r.mprobe, int(PROBE_AUTO));
        QCOMPARE(r.mcomp, 1);
        QCOMPARE(r.ref.type, 3);
        // six decimals for the measure, two or four for the reference, four for the points
        QVERIFY(qAbs(r.misc - m.misc) <= 0.5e-6f + 1e-7f);
        QVERIFY(qAbs(r.mvoc - m.mvoc) <= 1e-4f);
        QVERIFY(qAbs(r.mpmax - m.mpmax) <= 1e-3f);
        QVERIFY(qAbs(r.mtemp - m.mtemp) <= 1e-6f);
        QVERIFY(qAbs(r.mirr - m.mirr) <= 1e-4f);
        QVERIFY(qAbs(r.mrs - m.mrs) <= 1e-6f);
        QCOMPARE(r.ref.kisc, 0.0457f);
        QCOMPARE(r.ref.tollm, 2.35f);
        for (int k = 0; k < RAMP_POINTS; k++) {
            QVERIFY(qAbs(r.ramp.corrente[k] - m.ramp.corrente[k]) <= 0.5e-4f + 1e-6f);
            QVERIFY(qAbs(r.ramp.tensione[k] - m.ramp.tensione[k]) <= 0.5e-4f + 1e-4f);
        }
        freeMeasureData(&m);
        freeMeasureData(&r);
    }

    // ---- Names and directories

    void fileNameIsDateDigitsMinusTimeDigits()
    {
        TestRoot root;
        directories();
        char name[MEASURE_NAME_SIZE];
        QVERIFY(newFileNameMeasures("2010/06/15", "10:30:00", name, MEA_PANEL) == name);
        QCOMPARE(QString(name), QString("20100615-103000"));
    }

    void fileNameKeepsOnlyDigitsLowerLettersAndMinus()
    {
        TestRoot root;
        directories();
        char name[MEASURE_NAME_SIZE];
        QVERIFY(newFileNameMeasures("15 Giu. 2010", "10.30 PM", name, MEA_PANEL) != nullptr);
        QCOMPARE(QString(name), QString("15giu2010-1030pm"));
        QVERIFY(newFileNameMeasures(nullptr, "10:30:00", name, MEA_PANEL) == nullptr);
        QVERIFY(newFileNameMeasures("2010/06/15", nullptr, name, MEA_PANEL) == nullptr);
    }

    void fileNameStaysInMeasureDirectory()
    {
        TestRoot root;
        directories();
        char name[MEASURE_NAME_SIZE];
        QVERIFY(newFileNameMeasures("2010/06/15", "10:30:00", name, MEA_STRING) != nullptr);
        QCOMPARE(currentDir(), QFileInfo(root.path(DIR_DATA_MEA_STRING)).canonicalFilePath());
    }

    void saveLeavesWorkingDirectoryInMeasureDirectory()
    {
        TestRoot root;
        directories();
        _measure m = golden512();
        QVERIFY(saveMeasuresData(&m, MEA_PANEL, 42) > 0);
        QCOMPARE(currentDir(), QFileInfo(root.path(DIR_DATA_MEA_PANEL)).canonicalFilePath());
        freeMeasureData(&m);
    }

    void stringTypeSelectsStringDirectoryAndAnyOtherTheModules()
    {
        QCOMPARE(QString(measureDir(MEA_STRING)), QString(DIR_DATA_MEA_STRING));
        QCOMPARE(QString(measureDir(MEA_PANEL)), QString(DIR_DATA_MEA_PANEL));
        QCOMPARE(QString(measureDir(static_cast<_meaType>(7))), QString(DIR_DATA_MEA_PANEL));
        TestRoot root;
        directories();
        _measure m = golden512();
        QVERIFY(saveMeasuresData(&m, static_cast<_meaType>(-3), 42) > 0);
        QVERIFY(root.exists(DIR_DATA_MEA_PANEL "/20100615-103000"));
        QVERIFY(!root.exists(DIR_DATA_MEA_STRING "/20100615-103000"));
        freeMeasureData(&m);
    }

    void saveRefusesMissingRecordDateOrTime()
    {
        TestRoot root;
        directories();
        _measure m = golden512();
        QCOMPARE(saveMeasuresData(nullptr, MEA_PANEL, 1), -4);
        char* t = m.mtime;
        m.mtime = nullptr;
        QCOMPARE(saveMeasuresData(&m, MEA_PANEL, 1), -4);
        m.mtime = t;
        free(m.mdata);
        m.mdata = nullptr;
        QCOMPARE(saveMeasuresData(&m, MEA_PANEL, 1), -4);
        QVERIFY(QDir(root.path(DIR_DATA_MEA_PANEL)).isEmpty());
        freeMeasureData(&m);
    }

    void saveIntoMissingDirectoryGivesMinusThree()
    {
        TestRoot root;
        _measure m = golden512();
        QString before = currentDir();
        QCOMPARE(saveMeasuresData(&m, MEA_PANEL, 1), -3);
        QCOMPARE(currentDir(), before);
        freeMeasureData(&m);
    }

    void fileWhereMeasureDirectoryIsExpectedRefusesEverything()
    {
        TestRoot root;
        QVERIFY(root.write(DIR_DATA_MEA_PANEL, "not a directory\n"));
        _measure m = golden512();
        QCOMPARE(saveMeasuresData(&m, MEA_PANEL, 1), -3);
        _measure r;
        QCOMPARE(readMeasureData("20100615-103000", &r, MEA_PANEL), -2);
        QVERIFY(readListMeasures(nullptr, MEA_PANEL) == nullptr);
        QVERIFY(getSingleListMeasures("20100615-103000", MEA_PANEL) == nullptr);
        QCOMPARE(deleteMeasures("20100615-103000", MEA_PANEL), -1);
        char d[16], t[16], c[16];
        QCOMPARE(getDataTimeComment("x", d, 16, t, 16, c, 16, MEA_PANEL), -2);
        QCOMPARE(root.read(DIR_DATA_MEA_PANEL), QByteArray("not a directory\n"));
        freeMeasureData(&m);
    }

    void directoryWhereMeasureFileIsExpectedReadsAsEmptyFile()
    {
        TestRoot root;
        directories();
        QVERIFY(root.mkdir(DIR_DATA_MEA_PANEL "/20100615-103000"));
        _measure m = golden512();
        QCOMPARE(saveMeasuresData(&m, MEA_PANEL, 1), -1);
        // a directory opens for reading and gives no line: a file without points
        _measure r;
        QCOMPARE(readMeasureData("20100615-103000", &r, MEA_PANEL), 512);
        QVERIFY(r.mdata == nullptr);
        QCOMPARE(r.ramp.corrente[0], 0.0f);
        freeMeasureData(&m);
    }

    void savingTwiceInSameSecondOverwritesSameFile()
    {
        TestRoot root;
        directories();
        _measure m = golden512();
        QVERIFY(saveMeasuresData(&m, MEA_PANEL, 42) > 0);
        free(m.mcom);
        m.mcom = strdup("second");
        QVERIFY(saveMeasuresData(&m, MEA_PANEL, 42) > 0);
        QCOMPARE(QDir(root.path(DIR_DATA_MEA_PANEL)).entryList(QDir::Files),
                 QStringList({"20100615-103000"}));
        _measure r;
        QCOMPARE(readMeasureData("20100615-103000", &r, MEA_PANEL), 511);
        QCOMPARE(text(r.mcom), QString("second"));
        freeMeasureData(&m);
        freeMeasureData(&r);
    }

    // ---- Texts

    void commentWithEqualsReadsBackWhole()
    {
        TestRoot root;
        directories();
        _measure m = golden512();
        free(m.mcom);
        m.mcom = strdup("Voc = 37 # misura = ok");
        QVERIFY(saveMeasuresData(&m, MEA_PANEL, 42) > 0);
        _measure r;
        // the comment line has "=" and is no point in the second pass
        QCOMPARE(readMeasureData("20100615-103000", &r, MEA_PANEL), 511);
        QCOMPARE(text(r.mcom), QString("Voc = 37 # misura = ok"));
        QCOMPARE(r.ramp.corrente[0], m.ramp.corrente[0]);
        freeMeasureData(&m);
        freeMeasureData(&r);
    }

    void commentTildeReadsBackNull()
    {
        TestRoot root;
        directories();
        _measure m = golden512();
        free(m.mcom);
        m.mcom = strdup("~");
        QVERIFY(saveMeasuresData(&m, MEA_PANEL, 42) > 0);
        _measure r;
        QCOMPARE(readMeasureData("20100615-103000", &r, MEA_PANEL), 511);
        QVERIFY(r.mcom == nullptr);
        freeMeasureData(&m);
        freeMeasureData(&r);
    }

    void laterTildeClearsEarlierComment()
    {
        TestRoot root;
        directories();
        measureFile(root, "m", "mcom = first\nmcom = ~\n" + points(512));
        _measure r;
        QCOMPARE(readMeasureData("m", &r, MEA_PANEL), 511);
        QVERIFY(r.mcom == nullptr);
        freeMeasureData(&r);
    }

    void measureWithoutReferenceWritesTildeAndReadsNullAndZero()
    {
        TestRoot root;
        directories();
        _measure m = golden512();
        free(m.rname);
        free(m.rbname);
        m.rname = m.rbname = nullptr;
        memset(&m.ref, 0, sizeof m.ref);
        m.mcomp = 0;
        QVERIFY(saveMeasuresData(&m, MEA_PANEL, 42) > 0);
        QByteArray file = root.read(DIR_DATA_MEA_PANEL "/20100615-103000");
        QVERIFY(file.contains("\nrname = ~\nrbname = ~\nrpmax = 0.00\n"));
        _measure r;
        QCOMPARE(readMeasureData("20100615-103000", &r, MEA_PANEL), 511);
        QVERIFY(r.rname == nullptr);
        QVERIFY(r.rbname == nullptr);
        _panelFeature zero;
        memset(&zero, 0, sizeof zero);
        QCOMPARE(memcmp(&r.ref, &zero, sizeof zero), 0);
        freeMeasureData(&m);
        freeMeasureData(&r);
    }

    // The old reader took the comment's line in pieces of 255 bytes: a
    // 300-character comment was cut to 248 and its tail was read as a point
    // that shifted the whole curve by one. Stored data is never lost.
    void storedDataNeverLost_commentOf255CharactersReadsBackWholeAndTheCurveStays()
    {
        // 255 characters of two bytes each in UTF-8, and 300 plain ones
        const QByteArray comments[] = {QString(255, QChar(0xE8)).toUtf8(), QByteArray(300, 'c')};
        for (const QByteArray& comment : comments) {
            TestRoot root;
            directories();
            _measure m = golden512();
            free(m.mcom);
            m.mcom = strdup(comment.constData());
            QVERIFY(saveMeasuresData(&m, MEA_PANEL, 42) > 0);
            _measure r;
            QCOMPARE(readMeasureData("20100615-103000", &r, MEA_PANEL), RAMP_POINTS - 1);
            QCOMPARE(QByteArray(r.mcom), comment);
            compareMeasures(r, m);
            freeMeasureData(&m);
            freeMeasureData(&r);
        }
    }
    void storedDataNeverLost_commentBeyondTheLineBoundIsCutButTheCurveStays()
    {
        TestRoot root;
        directories();
        _measure m = golden512();
        free(m.mcom);
        m.mcom = strdup(QByteArray(5000, 'c').constData());
        QVERIFY(saveMeasuresData(&m, MEA_PANEL, 42) > 0);
        _measure r;
        QCOMPARE(readMeasureData("20100615-103000", &r, MEA_PANEL), RAMP_POINTS - 1);
        // "mcom = " and the rest of the 1023 bytes of the line
        QCOMPARE(QByteArray(r.mcom), QByteArray(TAG_LINE_SIZE - 1 - 7, 'c'));
        for (int k = 0; k < RAMP_POINTS; k++) {
            QCOMPARE(r.ramp.corrente[k], m.ramp.corrente[k]);
            QCOMPARE(r.ramp.tensione[k], m.ramp.tensione[k]);
        }
        QCOMPARE(r.mtest, m.mtest); // the header after the comment is whole
        freeMeasureData(&m);
        freeMeasureData(&r);
    }

    // ---- The point table

    void zeroPointInMiddleRepeatsPointBefore()
    {
        TestRoot root;
        directories();
        QByteArray table = points(512);
        QList<QByteArray> lines = table.split('\n');
        lines[100] = "0\t0";
        lines[101] = "0.0000\t0.0000";
        lines[102] = "0.0000\t5.0000";
        measureFile(root, "m", "mdata = 2010/06/15\n" + lines.join('\n'));
        _measure r;
        QCOMPARE(readMeasureData("m", &r, MEA_PANEL), 511);
        QCOMPARE(r.ramp.corrente[100], r.ramp.corrente[99]);
        QCOMPARE(r.ramp.tensione[100], r.ramp.tensione[99]);
        QCOMPARE(r.ramp.corrente[101], r.ramp.corrente[99]);
        QCOMPARE(r.ramp.tensione[101], r.ramp.tensione[99]);
        // only a point of two zeros repeats
        QCOMPARE(r.ramp.corrente[102], 0.0f);
        QCOMPARE(r.ramp.tensione[102], 5.0f);
        QVERIFY(r.ramp.corrente[99] != 0.0f);
        freeMeasureData(&r);
    }

    void zeroFirstPointTakesTollmAndZeroVoltage()
    {
        TestRoot root;
        directories();
        measureFile(root, "m", "rtollm = 3.50\n0.0000\t0.0000\n" + points(511));
        _measure r;
        QCOMPARE(readMeasureData("m", &r, MEA_PANEL), 511);
        QCOMPARE(r.ramp.corrente[0], 3.5f);
        QCOMPARE(r.ramp.tensione[0], 0.0f);
        QCOMPARE(r.ref.tollm, 3.5f);
        QCOMPARE(r.ramp.corrente[1], 1.0f);
        freeMeasureData(&r);
    }

    void fileWithoutPointsReadsAllZerosWithTollmZeroedAndGives512()
    {
        TestRoot root;
        directories();
        measureFile(root, "m", "mdata = 2010/06/15\nrtollm = 5.00\nrtollp = 10.00\n");
        _measure r;
        QCOMPARE(readMeasureData("m", &r, MEA_PANEL), 512);
        QCOMPARE(r.ref.tollm, 0.0f);
        QCOMPARE(r.ref.tollp, 10.0f);
        for (int k = 0; k < RAMP_POINTS; k++) {
            QCOMPARE(r.ramp.corrente[k], 0.0f);
            QCOMPARE(r.ramp.tensione[k], 0.0f);
        }
        QCOMPARE(text(r.mdata), QString("2010/06/15"));
        freeMeasureData(&r);
    }

    void fileWith300PointsKeepsZerosBehindAndGives299()
    {
        TestRoot root;
        directories();
        measureFile(root, "m", "mnpan = 1\n" + points(300));
        _measure r;
        QCOMPARE(readMeasureData("m", &r, MEA_PANEL), 299);
        QCOMPARE(r.ramp.corrente[299], 1.0f + 299 * 0.01f);
        for (int k = 300; k < RAMP_POINTS; k++) {
            QCOMPARE(r.ramp.corrente[k], 0.0f);
            QCOMPARE(r.ramp.tensione[k], 0.0f);
        }
        freeMeasureData(&r);
    }

    void fileWith257PointsIsNotPadded()
    {
        TestRoot root;
        directories();
        measureFile(root, "m", points(257));
        _measure r;
        QCOMPARE(readMeasureData("m", &r, MEA_PANEL), 256);
        QCOMPARE(r.ramp.corrente[256], 1.0f + 256 * 0.01f);
        QCOMPARE(r.ramp.corrente[257], 0.0f);
        freeMeasureData(&r);
    }

    void fileWith100PointsTakesEmptyPoint254FromItsLastPointOn()
    {
        TestRoot root;
        directories();
        measureFile(root, "m", points(100));
        _measure r;
        QCOMPARE(readMeasureData("m", &r, MEA_PANEL), 512);
        QCOMPARE(r.ramp.corrente[98], 1.0f + 98 * 0.01f);
        // point 254 was never read: the last point and all behind it become zero
        for (int k = 99; k < RAMP_POINTS; k++) {
            QCOMPARE(r.ramp.corrente[k], 0.0f);
            QCOMPARE(r.ramp.tensione[k], 0.0f);
        }
        freeMeasureData(&r);
    }

    void fileOf5000PointLinesStopsAt512Points()
    {
        TestRoot root;
        directories();
        measureFile(root, "m", "mdata = 2010/06/15\n" + points(5000) + "mtime = 23:59:59\n");
        _measure r;
        QCOMPARE(readMeasureData("m", &r, MEA_PANEL), 511);
        QCOMPARE(r.ramp.corrente[511], 1.0f + 511 * 0.01f);
        QCOMPARE(r.ramp.tensione[0], 40.0f);
        // the first pass still reads the whole file
        QCOMPARE(text(r.mtime), QString("23:59:59"));
        freeMeasureData(&r);
    }

    void binaryNoiseReadsWithoutHarm()
    {
        TestRoot root;
        directories();
        QRandomGenerator random(510);
        for (int round = 0; round < 20; round++) {
            QByteArray noise(4096 + round * 777, '\0');
            for (char& c : noise)
                c = char(random.bounded(256));
            measureFile(root, "noise", noise);
            _measure r;
            int result = readMeasureData("noise", &r, MEA_PANEL);
            QVERIFY2(result == 512 || (result >= 256 && result <= 511),
                     qPrintable(QString::number(result)));
            freeMeasureData(&r);
        }
        _listMeasures* list = readListMeasures(nullptr, MEA_PANEL);
        QVERIFY(list != nullptr);
        QCOMPARE(QString(list->file), QString("noise"));
        closeListMeasures(list);
    }

    void keysInUpperCaseAreAccepted()
    {
        TestRoot root;
        directories();
        QByteArray g = golden("measure_512_points");
        int tableStart = g.indexOf("\n0.0000\t") + 1;
        measureFile(root, "m", g.left(tableStart).toUpper() + g.mid(tableStart));
        _measure r;
        QCOMPARE(readMeasureData("m", &r, MEA_PANEL), 511);
        _measure want = golden512();
        QCOMPARE(r.mirr, want.mirr);
        QCOMPARE(r.ref.kpmax, want.ref.kpmax);
        QCOMPARE(r.mrstest, 1);
        QCOMPARE(text(r.mcom), QString("TETTO EST, FILA 3")); // the values were raised too
        QCOMPARE(r.ramp.corrente[511], want.ramp.corrente[511]);
        freeMeasureData(&r);
        freeMeasureData(&want);
    }

    void fileCutInMiddleOfPointLineKeepsHalfAPoint()
    {
        TestRoot root;
        directories();
        QByteArray g = golden("measure_512_points");
        int tableStart = g.indexOf("\n0.0000\t") + 1;
        QList<QByteArray> lines = g.mid(tableStart).split('\n');
        QCOMPARE(lines[299],
                 QString::asprintf("%.4f\t13.2500", double(goldenCurrent(299, 511))).toLatin1());
        // the file ends in the middle of point 299: "x.xxxx\t13" of "x.xxxx\t13.2500"
        QByteArray part = g.left(tableStart) + lines.mid(0, 299).join('\n') + '\n' +
                          lines[299].left(lines[299].indexOf('\t') + 3);
        measureFile(root, "m", part);
        _measure r;
        QCOMPARE(readMeasureData("m", &r, MEA_PANEL), 299);
        QCOMPARE(r.ramp.corrente[299], goldenCurrent(299, 511));
        QCOMPARE(r.ramp.tensione[299], 13.0f);
        QCOMPARE(r.ramp.corrente[300], 0.0f);
        QCOMPARE(text(r.rbname), QString("Solaria Italia"));
        freeMeasureData(&r);
    }

    void fileCutInMiddleOfHeaderKeepsWhatWasWhole()
    {
        TestRoot root;
        directories();
        QByteArray g = golden("measure_512_points");
        int cut = g.indexOf("mimpp = ") + 3;
        measureFile(root, "m", g.left(cut)); // ends with "mim"
        _measure r;
        QCOMPARE(readMeasureData("m", &r, MEA_PANEL), 512);
        QCOMPARE(r.mvoc, 37.25f);
        QCOMPARE(r.mimpp, 0.0f);
        QCOMPARE(r.mtest, 0);
        QVERIFY(r.mcom == nullptr);
        // "mim" has no "=" and is the one point: all slots take the empty point 254
        QCOMPARE(r.ramp.corrente[0], 0.0f);
        freeMeasureData(&r);
    }

    void noteBlockInHeaderIsSkipped()
    {
        TestRoot root;
        directories();
        measureFile(root, "m",
                    "mdata = 2010/06/15\nnote <\nmcom = inside the note\n  < end\n"
                    "mtime = 10:30:00\n");
        _measure r;
        readMeasureData("m", &r, MEA_PANEL);
        QCOMPARE(text(r.mdata), QString("2010/06/15"));
        QVERIFY(r.mcom == nullptr);
        QCOMPARE(text(r.mtime), QString("10:30:00"));
        freeMeasureData(&r);
    }

    void fsnIsNotReadBack()
    {
        TestRoot root;
        directories();
        _measure m = golden512();
        QVERIFY(saveMeasuresData(&m, MEA_PANEL, 987654) > 0);
        QVERIFY(root.read(DIR_DATA_MEA_PANEL "/20100615-103000").startsWith("fsn = 987654\n"));
        _measure r;
        QCOMPARE(readMeasureData("20100615-103000", &r, MEA_PANEL), 511);
        compareMeasures(r, m);
        freeMeasureData(&m);
        freeMeasureData(&r);
    }

    void versionIsReadIntoThreeNumbers()
    {
        TestRoot root;
        directories();
        measureFile(root, "m", "version = 1.6.9\n");
        _measure r;
        readMeasureData("m", &r, MEA_PANEL);
        QCOMPARE(r.version.major, 1);
        QCOMPARE(r.version.minor, 6);
        QCOMPARE(r.version.patch, 9);
        QVERIFY(isMeaMadeByBrask(r.version));
        freeMeasureData(&r);
    }

    void secondGenerationBoardFromVersion16()
    {
        QVERIFY(!isMeaMadeByBrask({1, 5, 99}));
        QVERIFY(isMeaMadeByBrask({1, 6, 0}));
        QVERIFY(isMeaMadeByBrask({2, 0, 0}));
        QVERIFY(isMeaMadeByBrask({0, 7, 0}));
        QVERIFY(!isMeaMadeByBrask({0, 0, 0}));
    }

    void missingFileGivesMinusOneAndMissingDirectoryMinusTwo()
    {
        TestRoot root;
        _measure r;
        QCOMPARE(readMeasureData("m", &r, MEA_PANEL), -2);
        directories();
        QString before = currentDir();
        QCOMPARE(readMeasureData("m", &r, MEA_PANEL), -1);
        QCOMPARE(currentDir(), before);
    }

    void readGoesBackToWorkingDirectory()
    {
        TestRoot root;
        directories();
        measureFile(root, "m", golden("measure_512_points"));
        QString before = currentDir();
        _measure r;
        QCOMPARE(readMeasureData("m", &r, MEA_PANEL), 511);
        QCOMPARE(currentDir(), before);
        freeMeasureData(&r);
    }

    // ---- Full disk

    void fullDiskWhileSavingLeavesShortFileUnnoticed()
    {
        TestRoot root;
        directories();
        _measure m = golden512();
        int sum;
        {
            FileSizeLimit limit(1000);
            sum = saveMeasuresData(&m, MEA_PANEL, 42);
        }
        // the failed writes count -1 each instead of their characters: the only sign
        QVERIFY(sum > 0);
        QVERIFY(sum < golden("measure_512_points").size());
        QByteArray file = root.read(DIR_DATA_MEA_PANEL "/20100615-103000");
        QCOMPARE(file, golden("measure_512_points").left(1000));
        // the header and a few points are there: a short table is padded
        _measure r;
        QCOMPARE(readMeasureData("20100615-103000", &r, MEA_PANEL), 512);
        QCOMPARE(text(r.rbname), QString("Solaria Italia"));
        QCOMPARE(r.ref.tollm, 5.0f);
        freeMeasureData(&m);
        freeMeasureData(&r);
    }

    void writeErrorIsNotDetectedBeyondTheCounts()
    {
        TestRoot root;
        directories();
        QVERIFY(QFile::link("/dev/full", root.path(DIR_DATA_MEA_PANEL "/20100615-103000")));
        _measure m = golden512();
        int sum = saveMeasuresData(&m, MEA_PANEL, 42);
        QVERIFY(sum > 0);
        QVERIFY(sum < golden("measure_512_points").size());
        QVERIFY(QFileInfo(root.path(DIR_DATA_MEA_PANEL "/20100615-103000")).isSymLink());
        freeMeasureData(&m);
    }

    // ---- Headers and lists

    void headerTakesSixTagsAsRawText()
    {
        TestRoot root;
        directories();
        measureFile(root, "20100615-103000", golden("measure_512_points"));
        QDir::setCurrent(root.path(DIR_DATA_MEA_PANEL));
        _listMeasures node;
        memset(&node, 0, sizeof node);
        QCOMPARE(getHeaderMeasures("20100615-103000", &node), 0);
        QCOMPARE(text(node.mdata), QString("2010/06/15"));
        QCOMPARE(text(node.mtime), QString("10:30:00"));
        QCOMPARE(text(node.mnpan), QString("1"));
        QCOMPARE(text(node.mcom), QString("Tetto est, fila 3"));
        QCOMPARE(text(node.mcomp), QString("1"));
        QCOMPARE(text(node.mtest), QString("1"));
        QVERIFY(node.unused1 == nullptr && node.unused2 == nullptr);
        node.next = nullptr;
        _listMeasures* heap = static_cast<_listMeasures*>(malloc(sizeof node));
        *heap = node;
        closeListMeasures(heap);
        _listMeasures empty;
        memset(&empty, 0, sizeof empty);
        QCOMPARE(getHeaderMeasures("missing", &empty), 1);
        QVERIFY(empty.mdata == nullptr);
    }

    void headerCommentTildeLeavesNullField()
    {
        TestRoot root;
        directories();
        measureFile(root, "m", "MCOM = ~\nMTEST = 0\n");
        _listMeasures* list = getSingleListMeasures("m", MEA_PANEL);
        QVERIFY(list != nullptr);
        QVERIFY(list->mcom == nullptr);
        QCOMPARE(text(list->mtest), QString("0"));
        QVERIFY(list->next == nullptr);
        closeListMeasures(list);
    }

    void dateTimeCommentAreCopiedIntoZeroedBuffers()
    {
        TestRoot root;
        directories();
        measureFile(root, "m", golden("measure_512_points"));
        char date[32], time[32], comment[8];
        memset(date, 'x', sizeof date);
        memset(time, 'x', sizeof time);
        memset(comment, 'x', sizeof comment);
        QCOMPARE(getDataTimeComment("m", date, sizeof date, time, sizeof time, comment,
                                    sizeof comment, MEA_PANEL),
                 0);
        QCOMPARE(QString(date), QString("2010/06/15"));
        QCOMPARE(QString(time), QString("10:30:00"));
        QCOMPARE(QString(comment), QString("Tetto e")); // cut to its buffer
        QCOMPARE(date[31], '\0');
        memset(date, 'x', sizeof date);
        QCOMPARE(getDataTimeComment("missing", date, sizeof date, time, sizeof time, comment,
                                    sizeof comment, MEA_PANEL),
                 -1);
        QCOMPARE(date[0], '\0');
        QCOMPARE(date[31], '\0');
    }

    void measureListHoldsRegularFilesWithTheirHeaders()
    {
        TestRoot root;
        directories();
        measureFile(root, "20100615-103000", golden("measure_512_points"));
        measureFile(root, "20080901-150405", golden("measure_256_points"));
        QVERIFY(root.mkdir(DIR_DATA_MEA_PANEL "/subdir"));
        measureFile(root, "20080901-150405", golden("measure_256_points"), MEA_STRING);
        QString before = currentDir();
        _listMeasures* list = readListMeasures(nullptr, MEA_PANEL);
        QCOMPARE(currentDir(), before);
        QSet<QString> got;
        for (_listMeasures* n = list; n != nullptr; n = n->next)
            got.insert(QString(n->file) + " " + text(n->mdata) + " " + text(n->mnpan) + " " +
                       text(n->mcom));
        QCOMPARE(got, QSet<QString>({"20100615-103000 2010/06/15 1 Tetto est, fila 3",
                                     "20080901-150405 2008/09/01 12 <null>"}));
        QVERIFY(closeListMeasures(list) == nullptr);
    }

    void measureListIsInReverseDirectoryOrder()
    {
        TestRoot root;
        directories();
        for (const char* f : {"a", "b", "c", "d", "e"})
            measureFile(root, f, "mdata = x\n");
        QStringList walk =
            QDir(root.path(DIR_DATA_MEA_PANEL)).entryList(QDir::Files, QDir::Unsorted);
        _listMeasures* list = readListMeasures(nullptr, MEA_PANEL);
        QStringList got;
        for (_listMeasures* n = list; n != nullptr; n = n->next)
            got.prepend(n->file);
        QCOMPARE(got, walk);
        closeListMeasures(list);
    }

    void missingMeasureDirectoryGivesEmptyList()
    {
        TestRoot root;
        QVERIFY(readListMeasures(nullptr, MEA_STRING) == nullptr);
    }

    void measureListShowsProgressDialogReadMeasures()
    {
        TestRoot root;
        directories();
        measureFile(root, "a", "mdata = x\n");
        measureFile(root, "b", "mdata = y\n");
        ProgressProbe probe;
        closeListMeasures(readListMeasures(nullptr, MEA_PANEL));
        QVERIFY(probe.seen.seen);
        QCOMPARE(probe.seen.label, QString("Read Measures..."));
        QCOMPARE(probe.seen.maximum, 2);
        QCOMPARE(probe.seen.modality, int(Qt::WindowModal));
        QVERIFY(!probe.seen.cancelButton);
    }

    void singleListOfGoneMeasureHasNullTexts()
    {
        TestRoot root;
        directories();
        _listMeasures* list = getSingleListMeasures("20100615-103000", MEA_PANEL);
        QVERIFY(list != nullptr);
        QCOMPARE(QString(list->file), QString("20100615-103000"));
        QVERIFY(list->mdata == nullptr && list->mtime == nullptr && list->mcom == nullptr);
        QVERIFY(list->next == nullptr);
        closeListMeasures(list);
        QVERIFY(getSingleListMeasures(nullptr, MEA_PANEL) == nullptr);
    }

    void deleteRemovesMeasureFile()
    {
        TestRoot root;
        directories();
        measureFile(root, "m", "mdata = x\n", MEA_STRING);
        QCOMPARE(deleteMeasures("m", MEA_PANEL), -1);
        QVERIFY(root.exists(DIR_DATA_MEA_STRING "/m"));
        QCOMPARE(deleteMeasures("m", MEA_STRING), 0);
        QVERIFY(!root.exists(DIR_DATA_MEA_STRING "/m"));
        QCOMPARE(deleteMeasures(".", MEA_STRING), -1);
        QVERIFY(root.exists(DIR_DATA_MEA_STRING));
    }

    void freeMeasureDataReleasesTheFiveTexts()
    {
        _measure m = golden512();
        freeMeasureData(&m);
        QVERIFY(m.mdata == nullptr && m.mtime == nullptr && m.mcom == nullptr);
        QVERIFY(m.rname == nullptr && m.rbname == nullptr);
        QCOMPARE(m.mpmax, 240.1875f);
        freeMeasureData(&m); // twice is harmless
    }
};

QTEST_MAIN(TestDataMeasures)
#include "tst_datameasures.moc"
