#include "reportmeasure.h"
#include "verdictband.h"

#include "data/datasetting.h"
#include "device/gpiopd.h"
#include "measure/panelfixture.h"
#include "support/siminstrument.h"
#include "support/simmeasure.h"
#include "support/testroot.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QtTest>

#include <cmath>
#include <cstring>

// The band of uncertainty on the instrument's verdict.
class TestVerdictBand : public QObject
{
    Q_OBJECT

    static _measure withDeviation(float deviation)
    {
        _measure m;
        std::memset(&m, 0, sizeof m);
        m.mcomp = 1;
        m.ref = panelfixture::simulatedSheet(); // +-3 %, kpmax -0.42 %/C
        m.mdpmax = deviation;
        return m;
    }

private slots:
    void bandIsTheRootSumSquareOfItsThreeParts()
    {
        const VerdictBand b(withDeviation(0));
        QVERIFY(b.valid());
        QCOMPARE(b.irradiancePart, 5.0);
        QVERIFY(std::fabs(b.temperaturePart - 0.84) < 1e-6);
        QCOMPARE(b.translationPart, 1.0);
        QVERIFY(std::fabs(b.band - std::sqrt(25.0 + 0.84 * 0.84 + 1.0)) < 1e-6);
        QCOMPARE(b.lowerLimit, -3.0);
        QCOMPARE(b.upperLimit, 3.0);
    }

    void withinTheBandOfEitherLimitIsInconclusive()
    {
        const double u = VerdictBand(withDeviation(0)).band;
        QVERIFY(VerdictBand(withDeviation(float(-3 + 0.5 * u))).inconclusive);
        QVERIFY(VerdictBand(withDeviation(float(3 + 0.9 * u))).inconclusive);
        QVERIFY(!VerdictBand(withDeviation(float(-3 - 1.1 * u))).inconclusive);
        QVERIFY(!VerdictBand(withDeviation(float(3 + 1.1 * u))).inconclusive);
        _measure none = withDeviation(0);
        none.mcomp = 0;
        QVERIFY(!VerdictBand(none).valid());
    }

    // A simulated module whose nominal power puts it half a band inside the
    // lower limit: the instrument passes it, the report says "inconclusive".
    void moduleHalfABandInsideALimitIsInconclusive()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.isRunning());
        _configParam c;
        defaultConfig(&c);
        root.mkdir("/krm510data/datameapanel");
        QVERIFY(sim.setAdapter(true));
        QVERIFY(sim.setIrradiance(800));
        QVERIFY(sim.setCellTemperature(40));
        QVERIFY(sim.command("set tmodule cell"));
        QVERIFY(sim.setFault("noise 2 9"));
        QVERIFY(powerDeviceStart(0) >= 0);
        const _panelFeature ref = panelfixture::simulatedSheet();
        SimMeasure how;
        how.irradiance = 800;
        how.temperature = 40;
        ReportMeasure first;
        QString error;
        QVERIFY(first.load(takeSimulatedMeasure(c, ref, how), MEA_PANEL, &error));
        const VerdictBand probe(first.record);
        const double inside = probe.lowerLimit + 0.5 * probe.band;
        how.time = "10:01:00";
        how.nominalPmax = float(first.record.spmax / (1.0 + inside / 100.0));
        ReportMeasure placed;
        QVERIFY(placed.load(takeSimulatedMeasure(c, ref, how), MEA_PANEL, &error));
        const VerdictBand band(placed.record);
        QVERIFY2(std::fabs(band.deviation - inside) < 0.05,
                 qPrintable(QString::number(band.deviation)));
        QCOMPARE(placed.record.mtest, 1);
        QVERIFY(band.inconclusive);
        // the report says so beside the instrument's verdict
        const QString pdf = root.root() + "/band.pdf";
        QProcess run;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("QT_QPA_PLATFORM", "offscreen");
        run.setProcessEnvironment(env);
        run.start(KRM_REPORT_PATH,
                  {root.path("/krm510data"), "--measures", placed.file, "-o", pdf, "--lang", "en"});
        QVERIFY(run.waitForFinished(60000));
        QCOMPARE(run.exitCode(), 0);
        QProcess text;
        text.start("pdftotext", {"-layout", pdf, "-"});
        QVERIFY(text.waitForFinished(30000));
        const QString t = QString::fromUtf8(text.readAllStandardOutput());
        QVERIFY(t.contains("Second reading of the curve"));
        QVERIFY(t.contains(QRegularExpression("Verdict of the instrument\\s+Passed")));
        QVERIFY(t.contains(QRegularExpression("Verdict with the band\\s+inconclusive")));
        QVERIFY(t.contains("No finding: the curve has the expected shape."));
        QVERIFY(
            t.contains(QRegularExpression("Pmax\\s+[0-9.]+ W\\s+[0-9.]+ W \\([-+][0-9.]+ %\\)")));
        QVERIFY(t.contains("Appendix: how the report reads the curve"));
        const QString shots = QString(KRM_BINARY_DIR) + "/screenshots";
        QDir().mkpath(shots);
        QProcess render;
        render.start("pdftoppm",
                     {"-r", "100", "-png", "-f", "3", "-l", "4", pdf, shots + "/report-analysis"});
        QVERIFY(render.waitForFinished(60000));

        qInfo("U %.3f %%: irradiance %.1f, temperature %.3f, translation %.1f; deviation %.2f %%",
              band.band, band.irradiancePart, band.temperaturePart, band.translationPart,
              band.deviation);
    }
};

QTEST_MAIN(TestVerdictBand)
#include "tst_verdictband.moc"
