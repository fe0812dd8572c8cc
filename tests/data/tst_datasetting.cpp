#include "data/datasetting.h"
#include "support/datafiles.h"
#include "support/testroot.h"

#include <QtTest>
#include <csignal>
#include <cstring>
#include <sys/resource.h>
#include <unistd.h>

static const char defaultFile[] = "#\n"
                                  "# krm510 configuration file\n"
                                  "#\n"
                                  "# do not edit!\n"
                                  "sn = 000000\n"
                                  "tclock = 0\n"
                                  "lang = it\n"
                                  "adci0 = 0.003200\n"
                                  "adci1 = 0.006400\n"
                                  "adci0offset = 0\n"
                                  "adci1offset = 0\n"
                                  "adcv0 = 0.141333\n"
                                  "adcv1 = 0.282624\n"
                                  "adcv0offset = -0.002624\n"
                                  "adcv1offset = 0.147721\n"
                                  "tmmod = 1.000000\n"
                                  "tomod = 0.000000\n"
                                  "tmenv = 1.000000\n"
                                  "toenv = 0.000000\n"
                                  "kpyra = 26.179630\n"
                                  "cpyar = 10.540000\n"
                                  "irrmin = 600.000000\n"
                                  "utemp = 45.000000\n"
                                  "tprobe = 1\n"
                                  "remote = 0\n"
                                  "bright = 100\n"
                                  "bluemac = 00:00:00:00:00:00\n"
                                  "bluename = KRM510\n";

class TestDataSetting : public QObject
{
    Q_OBJECT

    static _configParam readWith(const TestRoot& root, const QByteArray& content,
                                 int* result = nullptr)
    {
        root.write("/etc/krm510.conf", content);
        _configParam c;
        memset(&c, 0x55, sizeof c);
        int r = readConfigFile(&c);
        if (result != nullptr)
            *result = r;
        return c;
    }

    static void compareToDefaults(const _configParam& c)
    {
        _configParam d;
        defaultConfig(&d);
        QCOMPARE(memcmp(&c, &d, sizeof c), 0);
    }

private slots:
    void defaultsAreTheInstrumentsOwn()
    {
        _configParam d;
        defaultConfig(&d);
        QCOMPARE(d.sn, 0u);
        QCOMPARE(d.tclock, CLOCK_DATE_TIME);
        QCOMPARE(d.lang, LANG_IT);
        QCOMPARE(d.adci0, 0.0032f);
        QCOMPARE(d.adci1, 0.0064f);
        QCOMPARE(d.adcv0, 0.141333f);
        QCOMPARE(d.adcv1, 0.282624f);
        QCOMPARE(d.adcv0offset, -0.002624f);
        QCOMPARE(d.adcv1offset, 0.147721f);
        QCOMPARE(d.kpyra, 26.17963f);
        QCOMPARE(d.cpyar, 10.54f);
        QCOMPARE(d.irrmin, 600.0f);
        QCOMPARE(d.utemp, 45.0f);
        QCOMPARE(d.tprobe, PROBE_MODULE);
        QCOMPARE(d.remote, LINK_LOCAL);
        QCOMPARE(d.bright, 100);
        QCOMPARE(QByteArray(d.bluemac), QByteArray("00:00:00:00:00:00"));
        QCOMPARE(QByteArray(d.bluename), QByteArray("KRM510"));
    }
    // The device image ships system/etc/krm510.conf as the instrument's
    // first settings: it is the file the program writes for its defaults.
    void imageSettingsAreTheDefaultsAsTheProgramWritesThem()
    {
        TestRoot root;
        _configParam d;
        defaultConfig(&d);
        QVERIFY(saveConfigFile(d) > 0);
        QFile shipped(QStringLiteral(KRM_TEST_DATA_DIR "/../../system/etc/krm510.conf"));
        QVERIFY(shipped.open(QIODevice::ReadOnly));
        QCOMPARE(root.read("/etc/krm510.conf"), shipped.readAll());
    }
    void fileWithNoKeysYieldsDefaults()
    {
        TestRoot root;
        int r = -9;
        _configParam c = readWith(root, "#\n# krm510 configuration file\n#\n\n   \n", &r);
        QCOMPARE(r, 0);
        compareToDefaults(c);
    }
    void missingFileYieldsDefaultsAndMinusOne()
    {
        TestRoot root;
        _configParam c;
        memset(&c, 0x55, sizeof c);
        QCOMPARE(readConfigFile(&c), -1);
        compareToDefaults(c);
    }
    void etcThatCannotBeEnteredYieldsDefaultsAndMinusTwo()
    {
        TestRoot root;
        QVERIFY(QDir(root.path("/etc")).removeRecursively());
        QVERIFY(root.write("/etc", "a plain file where the directory should be\n"));
        _configParam c;
        memset(&c, 0x55, sizeof c);
        QCOMPARE(readConfigFile(&c), -2);
        compareToDefaults(c);
    }
    void readingLeavesTheWorkingDirectoryAsItWas()
    {
        TestRoot root;
        char before[4096];
        QVERIFY(getcwd(before, sizeof before) != nullptr);
        readWith(root, "sn = 5\n");
        char after[4096];
        QVERIFY(getcwd(after, sizeof after) != nullptr);
        QCOMPARE(QByteArray(after), QByteArray(before));
    }
    void everyKeyIsRead()
    {
        TestRoot root;
        _configParam c = readWith(root, "sn = 000123\ntclock = 2\nlang = de\nadci0 = 0.5\n"
                                        "adci1 = 0.25\nadci0offset = -3\nadci1offset = 4\n"
                                        "adcv0 = 1.5\nadcv1 = 2.5\nadcv0offset = 0.125\n"
                                        "adcv1offset = -0.125\ntmmod = 1.25\ntomod = -2\n"
                                        "tmenv = 0.75\ntoenv = 3\nkpyra = 27\ncpyar = 8.5\n"
                                        "irrmin = 500\nutemp = 30\ntprobe = 3\nremote = 2\n"
                                        "bright = 40\nbluemac = 00:11:22:33:44:55\n"
                                        "bluename = Remote 7\n");
        QCOMPARE(c.sn, 123u);
        QCOMPARE(c.tclock, CLOCK_TIME);
        QCOMPARE(c.lang, LANG_DE);
        QCOMPARE(c.adci0, 0.5f);
        QCOMPARE(c.adci1, 0.25f);
        QCOMPARE(c.adci0offset, -3);
        QCOMPARE(c.adci1offset, 4);
        QCOMPARE(c.adcv0, 1.5f);
        QCOMPARE(c.adcv1, 2.5f);
        QCOMPARE(c.adcv0offset, 0.125f);
        QCOMPARE(c.adcv1offset, -0.125f);
        QCOMPARE(c.tmmod, 1.25f);
        QCOMPARE(c.tomod, -2.0f);
        QCOMPARE(c.tmenv, 0.75f);
        QCOMPARE(c.toenv, 3.0f);
        QCOMPARE(c.kpyra, 27.0f);
        QCOMPARE(c.cpyar, 8.5f);
        QCOMPARE(c.irrmin, 500.0f);
        QCOMPARE(c.utemp, 30.0f);
        QCOMPARE(c.tprobe, PROBE_MANUAL);
        QCOMPARE(c.remote, LINK_BLUETOOTH);
        QCOMPARE(c.bright, 40);
        QCOMPARE(QByteArray(c.bluemac), QByteArray("00:11:22:33:44:55"));
        QCOMPARE(QByteArray(c.bluename), QByteArray("Remote 7"));
    }
    void tclockOf7ReadsAs0()
    {
        TestRoot root;
        QCOMPARE(readWith(root, "tclock = 7\n").tclock, CLOCK_DATE_TIME);
        QCOMPARE(readWith(root, "tclock = 3\n").tclock, CLOCK_DATE_TIME);
    }
    void negativeTclockStaysAsRead()
    {
        TestRoot root;
        QCOMPARE(static_cast<int>(readWith(root, "tclock = -1\n").tclock), -1);
    }
    void langInUpperCaseReadsLikeLowerCase()
    {
        TestRoot root;
        QCOMPARE(readWith(root, "LANG = FR\n").lang, LANG_FR);
        QCOMPARE(readWith(root, "lang = Es\n").lang, LANG_ES);
        QCOMPARE(readWith(root, "lang = en\n").lang, LANG_EN);
    }
    void unknownLangCodeLeavesItalian()
    {
        TestRoot root;
        QCOMPARE(readWith(root, "lang = pt\n").lang, LANG_IT);
        QCOMPARE(readWith(root, "lang = english\n").lang, LANG_IT);
    }
    void unknownLangCodeLeavesAnEarlierValue()
    {
        TestRoot root;
        QCOMPARE(readWith(root, "lang = de\nlang = xx\n").lang, LANG_DE);
    }
    void bluemacOf18CharactersReadsAsDefault()
    {
        TestRoot root;
        QCOMPARE(QByteArray(readWith(root, "bluemac = 00:11:22:33:44:556\n").bluemac),
                 QByteArray("00:00:00:00:00:00"));
        QCOMPARE(QByteArray(readWith(root, "bluemac = 00:11:22:33:44:55\n").bluemac),
                 QByteArray("00:11:22:33:44:55"));
    }
    void bluenameOfExactly59CharactersIsKept()
    {
        TestRoot root;
        QByteArray name(59, 'n');
        QCOMPARE(QByteArray(readWith(root, "bluename = " + name + "\n").bluename), name);
    }
    // The old reader replaced a name of 60 characters, which the settings
    // screen accepts, by the default; stored data is never lost.
    void storedDataNeverLost_bluenameOf60CharactersIsKept()
    {
        TestRoot root;
        QByteArray name(60, 'n');
        QCOMPARE(QByteArray(readWith(root, "bluename = " + name + "\n").bluename), name);
    }
    void bluenameOf61CharactersReadsAsDefault()
    {
        TestRoot root;
        QByteArray name(61, 'n');
        QCOMPARE(QByteArray(readWith(root, "bluename = " + name + "\n").bluename),
                 QByteArray("KRM510"));
    }
    void oldKeyAdciSetsBothCurrentGainsAndClearsOffsets()
    {
        TestRoot root;
        _configParam c = readWith(root, "adci0offset = 7\nadci1offset = 9\nadci = 0.004\n");
        QCOMPARE(c.adci0, 0.004f);
        QCOMPARE(c.adci1, 0.008f);
        QCOMPARE(c.adci0offset, 0);
        QCOMPARE(c.adci1offset, 0);
    }
    void adci0LaterThanOldKeyWinsForAdci0()
    {
        TestRoot root;
        _configParam c = readWith(root, "adci = 0.004\nadci0 = 0.005\n");
        QCOMPARE(c.adci0, 0.005f);
        QCOMPARE(c.adci1, 0.008f);
    }
    void oldKeyAdcvSetsBothVoltageGainsAndDefaultOffsets()
    {
        TestRoot root;
        _configParam c = readWith(root, "adcv0offset = 1\nadcv1offset = 2\nADCV = 0.15\n");
        QCOMPARE(c.adcv0, 0.15f);
        QCOMPARE(c.adcv1, 0.15f + 0.15f);
        QCOMPARE(c.adcv0offset, -0.002624f);
        QCOMPARE(c.adcv1offset, 0.147721f);
    }
    void laterOccurrenceOfAKeyOverrides()
    {
        TestRoot root;
        QCOMPARE(readWith(root, "bright = 10\nbright = 20\n").bright, 20);
    }
    void unknownKeysAndBrokenLinesAreSkipped()
    {
        TestRoot root;
        _configParam c = readWith(root, "future = 1\nbright 30\nbright =\n= 4\nutemp = 25\n");
        QCOMPARE(c.bright, 100);
        QCOMPARE(c.utemp, 25.0f);
    }
    void binaryNoiseYieldsDefaults()
    {
        TestRoot root;
        QByteArray noise;
        quint32 x = 12345;
        for (int i = 0; i < 20000; i++) {
            x = x * 1103515245u + 12345u;
            noise.append(static_cast<char>((x >> 16) & 0xff));
        }
        noise.replace('=', '-');
        int r = -9;
        _configParam c = readWith(root, noise, &r);
        QCOMPARE(r, 0);
        compareToDefaults(c);
    }
    void nulBytesDoNotStopTheReading()
    {
        TestRoot root;
        _configParam c = readWith(root, QByteArray("bright = 3\0\0\0\nutemp = 20\n", 26));
        QCOMPARE(c.bright, 3);
        QCOMPARE(c.utemp, 20.0f);
    }
    void serialNumber42IsWrittenWithSixDigitsAndReadsBack()
    {
        TestRoot root;
        _configParam c;
        defaultConfig(&c);
        c.sn = 42;
        QVERIFY(saveConfigFile(c) > 0);
        QVERIFY(root.read("/etc/krm510.conf").contains("\nsn = 000042\n"));
        _configParam back;
        readConfigFile(&back);
        QCOMPARE(back.sn, 42u);
    }
    void defaultsAreWrittenInTheFileOrder()
    {
        TestRoot root;
        _configParam c;
        defaultConfig(&c);
        int r = saveConfigFile(c);
        QCOMPARE(root.read("/etc/krm510.conf"), QByteArray(defaultFile));
        QCOMPARE(r, static_cast<int>(strlen(defaultFile)) - 1);
    }
    void languageOutOfRangeIsWrittenAsItalian()
    {
        TestRoot root;
        _configParam c;
        defaultConfig(&c);
        c.lang = LANG_DEFAULT;
        saveConfigFile(c);
        QVERIFY(root.read("/etc/krm510.conf").contains("\nlang = it\n"));
        c.lang = LANG_ES;
        saveConfigFile(c);
        QVERIFY(root.read("/etc/krm510.conf").contains("\nlang = es\n"));
    }
    void savedRecordReadsBackTheSame()
    {
        TestRoot root;
        _configParam c;
        defaultConfig(&c);
        c.sn = 999999;
        c.tclock = CLOCK_DATE;
        c.lang = LANG_FR;
        c.adci0offset = -12;
        c.tprobe = PROBE_AUTO;
        c.remote = LINK_USB;
        c.bright = 55;
        strcpy(c.bluemac, "AA:BB:CC:DD:EE:FF");
        strcpy(c.bluename, "Unit B");
        saveConfigFile(c);
        _configParam back;
        QCOMPARE(readConfigFile(&back), 0);
        QCOMPARE(memcmp(&c, &back, sizeof c), 0);
    }
    // The old instrument read and wrote the settings' numbers in the process
    // locale; files speak C whatever the locale.
    void filesSpeakC_settingsUnderACommaLocaleAreWrittenWithAPointAndReadBack()
    {
        CommaLocale comma;
        if (!comma.active())
            QSKIP("no locale with a decimal comma on this machine");
        TestRoot root;
        _configParam c;
        defaultConfig(&c);
        c.utemp = 21.75f;
        c.irrmin = 350.5f;
        saveConfigFile(c);
        QByteArray file = root.read("/etc/krm510.conf");
        QVERIFY(file.contains("\nutemp = 21.750000\n"));
        QVERIFY(file.contains("\nirrmin = 350.500000\n"));
        QVERIFY(!file.contains(','));
        _configParam back;
        QCOMPARE(readConfigFile(&back), 0);
        QCOMPARE(memcmp(&c, &back, sizeof c), 0);
    }
    void storedDataNeverLost_bluenameOf60CharactersIsWrittenAndReadBack()
    {
        TestRoot root;
        _configParam c;
        defaultConfig(&c);
        memset(c.bluename, 'b', 60);
        c.bluename[60] = '\0';
        saveConfigFile(c);
        QVERIFY(root.read("/etc/krm510.conf").contains("bluename = " + QByteArray(60, 'b') + "\n"));
        _configParam back;
        readConfigFile(&back);
        QCOMPARE(QByteArray(back.bluename), QByteArray(60, 'b'));
    }
    void saveWithEtcNotEnterableGivesMinusThree()
    {
        TestRoot root;
        QVERIFY(QDir(root.path("/etc")).removeRecursively());
        QVERIFY(root.write("/etc", "file\n"));
        _configParam c;
        defaultConfig(&c);
        QCOMPARE(saveConfigFile(c), -3);
    }
    void saveWithFileNotOpenableGivesMinusTwo()
    {
        TestRoot root;
        QVERIFY(root.mkdir("/etc/krm510.conf"));
        _configParam c;
        defaultConfig(&c);
        QCOMPARE(saveConfigFile(c), -2);
    }
    void saveOnAFullDiskCountsWhatItWroteAndReadsBackAsDefaults()
    {
        TestRoot root;
        QVERIFY(QFile::link("/dev/full", root.path("/etc/krm510.conf")));
        _configParam c;
        defaultConfig(&c);
        c.bright = 10;
        // the writes land in the stream's buffer; the loss shows only at close
        QCOMPARE(saveConfigFile(c), static_cast<int>(strlen(defaultFile)) - 2);
        QFile::remove(root.path("/etc/krm510.conf"));
        _configParam back;
        QCOMPARE(readConfigFile(&back), -1);
        compareToDefaults(back);
    }
    void saveCutByFileSizeLimitLeavesAShortFileReadWithDefaults()
    {
        TestRoot root;
        _configParam c;
        defaultConfig(&c);
        c.bright = 10;
        c.sn = 77;
        struct rlimit old;
        getrlimit(RLIMIT_FSIZE, &old);
        void (*oldHandler)(int) = signal(SIGXFSZ, SIG_IGN);
        struct rlimit small = {100, old.rlim_max};
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &small), 0);
        saveConfigFile(c);
        setrlimit(RLIMIT_FSIZE, &old);
        signal(SIGXFSZ, oldHandler);
        QByteArray file = root.read("/etc/krm510.conf");
        QCOMPARE(file.size(), 100);
        _configParam back;
        QCOMPARE(readConfigFile(&back), 0);
        QCOMPARE(back.sn, 77u);     // in the first 100 bytes
        QCOMPARE(back.bright, 100); // lost with the rest of the file
        QCOMPARE(back.utemp, 45.0f);
    }
};

QTEST_GUILESS_MAIN(TestDataSetting)
#include "tst_datasetting.moc"
