#include "analysiscsv.h"
#include "csvreport.h"
#include "reportselection.h"
#include "stringcomparison.h"

#include "data/datacompany.h"
#include "data/datainstallation.h"
#include "data/datameasures.h"
#include "measure/panelfixture.h"
#include "measure/screenkinds.h"
#include "measure/stringIV.h"
#include "support/datafiles.h"
#include "support/modaldriver.h"
#include "support/screenshot.h"
#include "support/siminstrument.h"
#include "support/testroot.h"
#include "toolkit/look.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QtTest>

#include <cmath>
#include <cstring>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

// krm510-report, the installer's test report: run as the installer runs it,
// on a copy of a stick or on the machine folder, and its PDF read back with
// pdftotext and rendered with pdftoppm.
class TestReport : public QObject
{
    Q_OBJECT

    struct Run {
        int code = -1;
        QString out;
        QString err;
    };

    // The program with no display, as on a server or in CI.
    static Run report(const QStringList& arguments)
    {
        QProcess p;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.remove("DISPLAY");
        env.remove("WAYLAND_DISPLAY");
        env.remove("QT_QPA_PLATFORM");
        p.setProcessEnvironment(env);
        p.start(KRM_REPORT_PATH, arguments);
        p.waitForFinished(60000);
        return {p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1,
                QString::fromUtf8(p.readAllStandardOutput()),
                QString::fromUtf8(p.readAllStandardError())};
    }

    static QString pdfText(const QString& pdf)
    {
        QProcess p;
        p.start("pdftotext", {"-layout", pdf, "-"});
        p.waitForFinished(30000);
        return QString::fromUtf8(p.readAllStandardOutput());
    }

    // Renders the pages into <build>/screenshots/<name>-<n>.png.
    static QStringList renderPages(const QString& pdf, const QString& name)
    {
        const QString dir = QString(KRM_BINARY_DIR) + "/screenshots";
        QDir().mkpath(dir);
        // the pages of an earlier run, which may have had more or fewer
        for (const QString& f : QDir(dir).entryList({name + "-*.png"}, QDir::Files))
            QFile::remove(dir + "/" + f);
        QProcess p;
        p.start("pdftoppm", {"-r", "100", "-png", pdf, dir + "/" + name});
        p.waitForFinished(60000);
        QStringList pages;
        for (const QString& f : QDir(dir).entryList({name + "-*.png"}, QDir::Files, QDir::Name))
            pages << dir + "/" + f;
        return pages;
    }

    static bool put(const TestRoot& root, const char* devicePath, const char* goldenName)
    {
        return root.write(devicePath, golden(goldenName));
    }

    // The stored installation of the golden files: the company Rossi & Figli,
    // its installation Capannone Nord with two module measures (one with its
    // comment in Latin-1, from an older instrument, and no reference) and one
    // string measure with its comment in UTF-8.
    static void goldenInstallation(const TestRoot& root)
    {
        for (const char* d : {"/krm510data/datacompany", "/krm510data/datainstallation",
                              "/krm510data/datameapanel", "/krm510data/datameastring"})
            root.mkdir(d);
        put(root, "/krm510data/datacompany/rossi___figli", "company_rossi___figli");
        put(root, "/krm510data/datainstallation/capannone_nord", "installation_capannone_nord");
        put(root, "/krm510data/datameapanel/20100615-103000", "measure_512_points");
        put(root, "/krm510data/datameapanel/20100615-104500", "report_module_latin1");
        put(root, "/krm510data/datameastring/20100616-091500", "report_string_utf8");
    }

    // The golden installation's report (or what the arguments choose from
    // it) as the text of its PDF; empty when the program failed.
    static QString goldenPdfText(const TestRoot& root,
                                 const QStringList& choice = {"--installation", "Capannone Nord"},
                                 const QString& lang = "en")
    {
        goldenInstallation(root);
        const QString pdf = root.root() + "/report.pdf";
        const QStringList arguments =
            QStringList{root.path("/krm510data")} + choice + QStringList{"-o", pdf, "--lang", lang};
        if (report(arguments).code != 0)
            return QString();
        return pdfText(pdf);
    }

    // ---- The end-to-end installation on the simulated instrument.

    static void measureOnTheStringScreen(StringIV& screen, const SimInstrument& sim, bool first,
                                         const QString& time, const QString& comment)
    {
        if (!screenkinds::measureOnTheStringScreen(screen, sim, first, time, comment))
            qWarning("string %s not saved", qPrintable(time));
    }

public:
    static void initMain() { useInstrumentScreen(); }

private slots:
    void initTestCase()
    {
        useInstrumentDpi();
        setInstrumentLook();
        QVERIFY2(!QStandardPaths::findExecutable("pdftotext").isEmpty(),
                 "pdftotext (poppler-utils) is needed");
    }

    // ---- Files and golden CSV.

    void csvSummaryAndCurvesMatchTheGoldenFiles()
    {
        TestRoot root;
        goldenInstallation(root);
        const QString csv = root.root() + "/csv";
        const Run run =
            report({root.path("/krm510data"), "--installation", "Capannone Nord", "--csv", csv});
        QCOMPARE(run.code, 0);
        QFile summary(csv + "/summary.csv");
        QVERIFY(summary.open(QIODevice::ReadOnly));
        QCOMPARE(summary.readAll(), golden("report_summary.csv"));
        QFile curve(csv + "/string-20100616-091500.csv");
        QVERIFY(curve.open(QIODevice::ReadOnly));
        QCOMPARE(curve.readAll(), golden("report_curve_string.csv"));
        QFile analysis(csv + "/analysis.csv");
        QVERIFY(analysis.open(QIODevice::ReadOnly));
        QCOMPARE(analysis.readAll(), golden("report_analysis.csv"));
        QCOMPARE(QDir(csv).entryList(QDir::Files).size(), 5);
    }
    void csvColumnsAreTheDocumentedSet()
    {
        QFile readme(QString(KRM_TEST_DATA_DIR) + "/../../report/README.md");
        QVERIFY(readme.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(readme.readAll());
        for (const QString& column :
             CsvReport::summaryColumns() + CsvReport::curveColumns() + AnalysisCsv::columns())
            QVERIFY2(text.contains("`" + column + "`"), qPrintable(column));
    }
    void csvNumbersSpeakCWhateverTheLocale()
    {
        CommaLocale comma;
        if (!comma.active())
            QSKIP("no locale with a decimal comma on this machine");
        TestRoot root;
        goldenInstallation(root);
        const QString csv = root.root() + "/csv";
        QProcess p;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.remove("DISPLAY");
        env.insert("LC_ALL", "de_DE.UTF-8");
        p.setProcessEnvironment(env);
        p.start(KRM_REPORT_PATH,
                {root.path("/krm510data"), "--installation", "Capannone Nord", "--csv", csv});
        QVERIFY(p.waitForFinished(60000));
        QFile summary(csv + "/summary.csv");
        QVERIFY(summary.open(QIODevice::ReadOnly));
        QCOMPARE(summary.readAll(), golden("report_summary.csv"));
    }

    // ---- The PDF's text.

    void pdfNamesTheInstrumentTheReportTheCompanyAndTheInstallation()
    {
        TestRoot root;
        goldenInstallation(root);
        const QString pdf = root.root() + "/report.pdf";
        const Run run = report({root.path("/krm510data"), "--installation", "capannone nord", "-o",
                                pdf, "--lang", "en", "--inspector", "Anna Bianchi"});
        QCOMPARE(run.code, 0);
        const QString t = pdfText(pdf);
        const QStringList expected{"I-V curve test report",
                                   "KRM 510",
                                   "Serial number",
                                   "42",
                                   "7",
                                   "Software version",
                                   "2.0.2",
                                   "1.2.0",
                                   "Report date",
                                   QDate::currentDate().toString("yyyy-MM-dd"),
                                   "Inspector",
                                   "Anna Bianchi",
                                   "Measures in the report",
                                   "Measures left out",
                                   "Rossi & Figli",
                                   "Marco",
                                   "01234567890",
                                   "C-0042",
                                   "Via dei Mille 12",
                                   "40128 Bologna BO",
                                   "051 6543210",
                                   "ufficio@rossifigli.example",
                                   "Installation Capannone Nord",
                                   "Via Galliera 88",
                                   "40013 Castel Maggiore BO",
                                   "Number of strings",
                                   "19.8"};
        for (const QString& e : expected)
            QVERIFY2(t.contains(e), qPrintable(e));
        QVERIFY(t.contains(QRegularExpression("Measures in the report\\s+3\\b")));
        QVERIFY(t.contains(QRegularExpression("Measures left out\\s+0\\b")));
    }
    void pdfShowsEveryFigureOfAMeasureWithItsUnit()
    {
        TestRoot root;
        const QString t = goldenPdfText(root);
        QVERIFY(!t.isEmpty());
        const QStringList expected{"Module measure - Tetto est, fila 3",
                                   "2010/06/15",
                                   "10:30:00",
                                   "Modules in series",
                                   "Irradiance",
                                   "851 W/m²",
                                   "Temperature",
                                   "45.3 °C",
                                   "Temperature taken by",
                                   "probe on the module",
                                   "Solaria Italia",
                                   "HIT 240",
                                   "Nominal Pmax",
                                   "240.00 W",
                                   "52.25 V / 5.75 A",
                                   "43.75 V / 5.50 A",
                                   "45.0 °C",
                                   "-5.00 % / +10.00 %",
                                   "0.0625 %/°C",
                                   "-0.2500 %/°C",
                                   "-0.3125 %/°C",
                                   "Operating conditions",
                                   "Standard conditions (STC)",
                                   "8.50 A",
                                   "37.25 V",
                                   "7.88 A",
                                   "30.50 V",
                                   "240.19 W",
                                   "8.63 A",
                                   "36.75 V",
                                   "7.94 A",
                                   "29.63 V",
                                   "234.88 W",
                                   "Fill factor",
                                   "75.9 %",
                                   "74.1 %",
                                   "Pmax deviation from nominal",
                                   "-2.13 %",
                                   "Verdict",
                                   "Passed",
                                   "Performance factor",
                                   "97.9 %",
                                   "Rs (V/I at the maximum power point of the first ramp)",
                                   "0.438 Ω",
                                   "820 W/m²",
                                   "410 W/m²",
                                   "I-V curve",
                                   "P-V curve",
                                   "Voltage (V)",
                                   "Current (A)",
                                   "Power (W)"};
        for (const QString& e : expected)
            QVERIFY2(t.contains(e), qPrintable(e));
    }
    void measureWithoutReferenceShowsItsOperatingFiguresAndNoReference()
    {
        TestRoot root;
        const QString t = goldenPdfText(root, {"--measures", "20100615-104500"});
        QVERIFY(!t.isEmpty());
        const QStringList expected{"2008/09/01", "15:04:05", "447.00 V",      "2,882.25 W",
                                   "910 W/m²",   "38.5 °C",  "ambient probe", "no reference"};
        for (const QString& e : expected)
            QVERIFY2(t.contains(e), qPrintable(e));
        QVERIFY(!t.contains("Standard conditions (STC)          8"));
        QVERIFY(!t.contains("Passed"));
        QVERIFY(!t.contains("Performance factor"));
        QVERIFY(t.contains(QRegularExpression("Measures in the report\\s+1\\b")));
    }
    void withoutReferenceTheSecondOpinionLooksOnlyForSteps()
    {
        TestRoot root;
        const QString t = goldenPdfText(root, {"--measures", "20100615-104500"});
        QVERIFY(t.contains("Second reading of the curve"));
        QVERIFY(t.contains(QRegularExpression("Without a reference module the curve is not\\s+"
                                              "translated by IEC 60891")));
        QVERIFY(!t.contains(QRegularExpression("Instrument\\s+Procedure 1\\s+Procedure 2")));
        QVERIFY(!t.contains("Verdict with the band"));
    }
    void latin1AndUtf8CommentsBothShowCorrectly()
    {
        TestRoot root;
        const QString t = goldenPdfText(root);
        QVERIFY(!t.isEmpty());
        QVERIFY(t.contains(QString::fromUtf8("Tetto più alto, lato nord")));
        QVERIFY(t.contains(QString::fromUtf8("Stringa 2 – falda sud, ½ ombra")));
    }
    void pagesAreNumberedNOfN()
    {
        TestRoot root;
        const QString t = goldenPdfText(root);
        QVERIFY(!t.isEmpty());
        // the first page, three measures and their analyses, the string alone
        // with its model, the appendix
        const QStringList pages = t.split('\f', Qt::SkipEmptyParts);
        QCOMPARE(pages.size(), 9);
        for (int n = 1; n <= 9; n++)
            QVERIFY2(pages[n - 1].contains(QRegularExpression(QString("\\b%1 ?/ ?9\\b").arg(n))),
                     qPrintable(QString::number(n)));
    }
    void reportSpeaksEachOfTheFiveLanguages_data()
    {
        QTest::addColumn<QString>("lang");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("figure");
        QTest::newRow("it") << "it"
                            << "Rapporto di prova delle curve I-V"
                            << "240,19 W";
        QTest::newRow("en") << "en"
                            << "I-V curve test report"
                            << "240.19 W";
        QTest::newRow("fr") << "fr"
                            << "Rapport d'essai des courbes I-V"
                            << "240,19 W";
        QTest::newRow("de") << "de" << QString::fromUtf8("Prüfbericht der I-U-Kennlinien")
                            << "240,19 W";
        QTest::newRow("es") << "es"
                            << "Informe de prueba de curvas I-V"
                            << "240,19 W";
    }
    void reportSpeaksEachOfTheFiveLanguages()
    {
        QFETCH(QString, lang);
        QFETCH(QString, title);
        QFETCH(QString, figure);
        TestRoot root;
        const QString t = goldenPdfText(root, {"--installation", "Capannone Nord"}, lang);
        QVERIFY(!t.isEmpty());
        QVERIFY2(t.contains(title), qPrintable(t.left(200)));
        QVERIFY(t.contains(figure));
    }

    // ---- Choosing what the report holds.

    void companyReportHoldsAllItsInstallations()
    {
        TestRoot root;
        goldenInstallation(root);
        _installation other;
        std::memset(&other, 0, sizeof other);
        other.id = const_cast<char*>("Tetto Uffici");
        other.headMeaPanel = addItemOnListFileMeaPanel(nullptr, "20100615-103000");
        QVERIFY(saveDataInstallation(&other) > 0);
        closeListFileMeaPanel(other.headMeaPanel);
        const QString pdf = root.root() + "/report.pdf";
        const Run run = report(
            {root.path("/krm510data"), "--company", "rossi & figli", "-o", pdf, "--lang", "en"});
        QCOMPARE(run.code, 0);
        const QString t = pdfText(pdf);
        QVERIFY(t.contains("Installation Capannone Nord"));
        QVERIFY(t.contains("Installation Tetto Uffici"));
        QVERIFY(t.contains(QRegularExpression("Measures in the report\\s+4\\b")));
        // the company lists a third installation that has no file
        QVERIFY(run.err.contains("pensilina_parcheggio"));
    }
    void fromAndToKeepTheMeasuresBetweenTheDates()
    {
        TestRoot root;
        goldenInstallation(root);
        const QString csv = root.root() + "/csv";
        QCOMPARE(report({root.path("/krm510data"), "--installation", "Capannone Nord", "--from",
                         "2010-06-01", "--to", "2010-06-15", "--csv", csv})
                     .code,
                 0);
        QCOMPARE(QDir(csv).entryList(QDir::Files),
                 (QStringList{"analysis.csv", "module-20100615-103000.csv", "summary.csv"}));
        QCOMPARE(report({root.path("/krm510data"), "--installation", "Capannone Nord", "--from",
                         "2010-13-01", "--csv", csv})
                     .code,
                 1);
    }
    void aStickCopyUnderAnotherNameIsReadToo()
    {
        TestRoot root;
        goldenInstallation(root);
        const QString copy = root.root() + "/stick-copy";
        QVERIFY(QFile::rename(root.path("/krm510data"), copy));
        const QString csv = root.root() + "/csv";
        QCOMPARE(report({copy, "--installation", "Capannone Nord", "--csv", csv}).code, 0);
        QFile summary(csv + "/summary.csv");
        QVERIFY(summary.open(QIODevice::ReadOnly));
        QCOMPARE(summary.readAll(), golden("report_summary.csv"));
    }
    void unknownNamesAndMissingOptionsAreRefused()
    {
        TestRoot root;
        goldenInstallation(root);
        const QString data = root.path("/krm510data");
        QCOMPARE(report({data, "--installation", "Nowhere", "-o", root.root() + "/r.pdf"}).code, 2);
        QCOMPARE(report({data, "--company", "Nobody", "-o", root.root() + "/r.pdf"}).code, 2);
        QCOMPARE(report({data, "-o", root.root() + "/r.pdf"}).code, 1);
        QCOMPARE(report({data, "--installation", "Capannone Nord"}).code, 1);
        QCOMPARE(report({root.root() + "/none", "--installation", "x", "--csv", "c"}).code, 1);
        QVERIFY(!QFile::exists(root.root() + "/r.pdf"));
    }

    // ---- Damaged files.

    void damagedOrUnreadableMeasureIsNamedAndLeftOut()
    {
        TestRoot root;
        goldenInstallation(root);
        // a measure cut before its date, and one whose name is a directory
        root.write("/krm510data/datameastring/20100616-091500", "fsn = 42\nversion = 2.0.2\n");
        QVERIFY(root.mkdir("/krm510data/datameapanel/20100615-104500.d"));
        QVERIFY(QFile::remove(root.path("/krm510data/datameapanel/20100615-104500")));
        QVERIFY(QFile::rename(root.path("/krm510data/datameapanel/20100615-104500.d"),
                              root.path("/krm510data/datameapanel/20100615-104500")));
        const QString pdf = root.root() + "/report.pdf";
        const Run run = report({root.path("/krm510data"), "--installation", "Capannone Nord", "-o",
                                pdf, "--lang", "en"});
        QCOMPARE(run.code, 0);
        QVERIFY2(run.err.contains("20100616-091500"), qPrintable(run.err));
        QVERIFY(run.err.contains("20100615-104500"));
        QVERIFY(!run.err.contains("20100615-103000"));
        const QString t = pdfText(pdf);
        QVERIFY(t.contains(QRegularExpression("Measures in the report\\s+1\\b")));
        QVERIFY(t.contains(QRegularExpression("Measures left out\\s+2\\b")));
        QVERIFY(t.contains("20100616-091500: damaged measure"));
        QVERIFY(t.contains("20100615-104500: damaged measure"));
    }
    void missingMeasureFileIsNamedAndLeftOut()
    {
        TestRoot root;
        goldenInstallation(root);
        QVERIFY(QFile::remove(root.path("/krm510data/datameapanel/20100615-103000")));
        const QString pdf = root.root() + "/report.pdf";
        const Run run = report({root.path("/krm510data"), "--installation", "Capannone Nord", "-o",
                                pdf, "--lang", "en"});
        QCOMPARE(run.code, 0);
        QVERIFY(run.err.contains("20100615-103000: unreadable file"));
        QVERIFY(pdfText(pdf).contains("20100615-103000: unreadable file"));
    }
    void pdfThatCannotBeWrittenIsAFailure()
    {
        TestRoot root;
        goldenInstallation(root);
        const Run run = report(
            {root.path("/krm510data"), "--installation", "Capannone Nord", "-o", "/dev/full"});
        QCOMPARE(run.code, 3);
    }

    // ---- Progress on a terminal.

    void longRunShowsItsProgressOnATerminal()
    {
        TestRoot root;
        goldenInstallation(root);
        const QByteArray data = root.path("/krm510data").toLocal8Bit();
        const QByteArray csv = (root.root() + "/csv").toLocal8Bit();
        int master = -1;
        const pid_t pid = forkpty(&master, nullptr, nullptr, nullptr);
        QVERIFY(pid >= 0);
        if (pid == 0) {
            unsetenv("DISPLAY");
            execl(KRM_REPORT_PATH, KRM_REPORT_PATH, data.constData(), "--installation",
                  "Capannone Nord", "--csv", csv.constData(), "--lang", "en", nullptr);
            _exit(127);
        }
        QByteArray seen;
        char buffer[512];
        ssize_t n;
        while ((n = read(master, buffer, sizeof buffer)) > 0)
            seen.append(buffer, n);
        int status = 0;
        waitpid(pid, &status, 0);
        close(master);
        QVERIFY(WIFEXITED(status) && WEXITSTATUS(status) == 0);
        QVERIFY2(seen.contains("\rReading measures 1 / 3"), seen.constData());
        QVERIFY(seen.contains("\rReading measures 3 / 3"));
        // without a terminal there is no progress
        const Run run = report({root.path("/krm510data"), "--installation", "Capannone Nord",
                                "--csv", root.root() + "/csv2", "--lang", "en"});
        QVERIFY(!run.err.contains("Reading measures"));
    }

    // ---- How the temperature was obtained.

    void temperatureSourceIsNamedForEveryProbeMode()
    {
        const QStringList texts{"sonda ambiente", "sonda sul modulo", "automatica da Voc",
                                "manuale"};
        const QStringList words{"ambient", "module", "auto", "manual"};
        ReportInstallation installation;
        for (int mode = PROBE_AMBIENT; mode <= PROBE_MANUAL; mode++) {
            ReportMeasure m;
            m.record.mprobe = mode;
            QCOMPARE(m.probeText(), texts[mode]);
            const QStringList cells = CsvReport::summaryRow(installation, m).split(',');
            QCOMPARE(cells[CsvReport::summaryColumns().indexOf("temperature_source")], words[mode]);
        }
        ReportMeasure odd;
        odd.record.mprobe = 7;
        QCOMPARE(odd.probeText(), QString("sconosciuta (7)"));
    }

    // ---- The comparison of strings.

    void comparisonMedianOfOddAndEvenCounts()
    {
        QCOMPARE(StringComparison::median({3, 1, 2}), 2.0);
        QCOMPARE(StringComparison::median({4, 1, 3, 2}), 2.5);
        QVERIFY(std::isnan(StringComparison::median({})));
    }
    void comparisonOnlyBetweenStringsOfTheSameModel()
    {
        auto string = [](const char* model, float pmax, int mcomp) {
            ReportMeasure m;
            m.type = MEA_STRING;
            m.model = model;
            m.record.mnpan = 4;
            m.record.mcomp = mcomp;
            m.record.svoc = 150;
            m.record.sisc = 8.7f;
            m.record.spmax = pmax;
            return m;
        };
        std::vector<ReportMeasure> all{string("A", 1000, 1), string("A", 1000, 1),
                                       string("A", 1000, 1), string("A", 940, 1),
                                       string("B", 500, 1),  string("A", 1000, 0)};
        all.push_back(ReportMeasure());
        all.back().type = MEA_PANEL;
        const StringComparison c(all);
        QCOMPARE(c.groups.size(), size_t(1));
        QCOMPARE(c.groups[0].rows.size(), size_t(4));
        QCOMPARE(c.groups[0].median[2], 250.0);
        QCOMPARE(c.groups[0].median[0], 37.5);
        QCOMPARE(c.groups[0].rows[3].deviation[2], -6.0);
        QVERIFY(c.groups[0].rows[3].marked[2]);
        QVERIFY(!c.groups[0].rows[0].marked[2]);
        QCOMPARE(c.apart.size(), 2); // B alone, and the string without reference
    }
    void comparisonMarksBeyondFivePercentOnly()
    {
        auto string = [](float pmax) {
            ReportMeasure m;
            m.type = MEA_STRING;
            m.record.mnpan = 1;
            m.record.mcomp = 1;
            m.record.svoc = 37;
            m.record.sisc = 8;
            m.record.spmax = pmax;
            return m;
        };
        const StringComparison c({string(100), string(100), string(105), string(94.9f)});
        QVERIFY(!c.groups[0].rows[2].marked[2]); // exactly 5 % is not beyond
        QVERIFY(c.groups[0].rows[3].marked[2]);
    }

    // ---- End to end on the simulated instrument.

    void shadedSubstringMarksThatStringsPmaxAndNothingElse()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.isRunning());
        // the instrument's serial number, which every measure file carries
        panelfixture::configure(root, [](_configParam& c) { c.sn = 4711; });
        root.mkdir("/krm510data/datacompany");
        root.mkdir("/krm510data/datainstallation");
        QVERIFY(panelfixture::addModule("Simul", "simul", "SIM 250", "sim_250",
                                        panelfixture::simulatedSheet()));
        QVERIFY(panelfixture::world(sim, 900, 40));
        QVERIFY(sim.setSeries(4));

        // the third string has one substring of its second module in half shade
        const QString times[] = {"10:00", "10:05", "10:10", "10:15"};
        const QString comments[] = {"Stringa 1", "Stringa 2", "Stringa 3", ""};
        {
            StringIV screen(nullptr);
            screen.show();
            for (int s = 0; s < 4; s++) {
                QVERIFY(sim.setFault(s == 2 ? "shade 0.5 1 0" : "none"));
                measureOnTheStringScreen(screen, sim, s == 0, times[s], comments[s]);
            }
        }
        const QStringList files =
            QDir(root.path("/krm510data/datameastring")).entryList(QDir::Files, QDir::Name);
        QCOMPARE(files.size(), 4);

        _installation inst;
        std::memset(&inst, 0, sizeof inst);
        inst.id = const_cast<char*>("Tetto Sud");
        inst.city = const_cast<char*>("Modena");
        inst.nstri = const_cast<char*>("4");
        inst.npowe = const_cast<char*>("4.0");
        for (const QString& f : files)
            inst.headMeaString =
                addItemOnListFileMeaString(inst.headMeaString, f.toLatin1().constData());
        QVERIFY(saveDataInstallation(&inst) > 0);
        closeListFileMeaString(inst.headMeaString);
        _company company;
        std::memset(&company, 0, sizeof company);
        company.surn = const_cast<char*>("Solare Emilia");
        company.headInst = addItemOnListInstallation(nullptr, "tetto_sud");
        QVERIFY(saveDataCompany(&company) > 0);
        closeListFileInstallation(company.headInst);

        // the report of the machine folder, as scripts/krm510-sim makes it
        const QString pdf = root.root() + "/tetto-sud.pdf";
        const Run run = report({root.root(), "--installation", "Tetto Sud", "-o", pdf, "--lang",
                                "en", "--inspector", "Anna Bianchi"});
        QCOMPARE(run.code, 0);
        const QString t = pdfText(pdf);
        QVERIFY(t.contains(QRegularExpression("Measures in the report\\s+4\\b")));
        QVERIFY(t.contains("Solare Emilia"));
        QVERIFY(t.contains("4711"));
        QVERIFY(t.contains("Comparison of the strings"));
        // one mark, on the third string's row, in its Pmax column
        QCOMPARE(t.count(QString::fromUtf8("◄")), 2); // the legend and the row
        const QStringList marked =
            t.split('\n').filter(QRegularExpression(QString::fromUtf8("◄\\s*$")));
        QCOMPARE(marked.size(), 1);
        QVERIFY2(marked[0].contains("Stringa 3"), qPrintable(marked[0]));
        // the fourth string has no comment: its date and time stand for it
        QVERIFY(t.contains(QRegularExpression("\\d{4}/\\d\\d/\\d\\d 10:15 \\(4 x\\)")));

        // the same through the report's own reading
        ReportSelection selection;
        QString error;
        QVERIFY(selection.selectInstallation("Tetto Sud", &error));
        QCOMPARE(selection.measureCount(), 4);
        const StringComparison comparison(selection.installations[0].measures);
        QCOMPARE(comparison.groups.size(), size_t(1));
        for (const StringComparison::Row& r : comparison.groups[0].rows) {
            const bool shaded = r.measure->comment == "Stringa 3";
            QCOMPARE(r.marked[0], false);
            QCOMPARE(r.marked[1], false);
            QCOMPARE(r.marked[2], shaded);
            if (shaded)
                QVERIFY2(r.deviation[2] < -7 && r.deviation[2] > -12,
                         qPrintable(QString::number(r.deviation[2])));
        }
        const QStringList pages = renderPages(pdf, "report-tetto-sud");
        QCOMPARE(pages.size(), 11); // each measure with its analysis, and the appendix
    }
};

QTEST_MAIN(TestReport)
#include "tst_report.moc"
