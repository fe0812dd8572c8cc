#include "curvediagnosis.h"
#include "curverecord.h"
#include "reportmeasure.h"
#include "sheetmodel.h"

#include "data/datasetting.h"
#include "device/gpiopd.h"
#include "measure/panelfixture.h"
#include "support/siminstrument.h"
#include "support/simmeasure.h"
#include "support/testroot.h"

#include <QtTest>

#include <cmath>
#include <cstring>
#include <memory>

// What the report reads from a curve's shape, on the simulated instrument
// whose faults we set: one module and a string of 4, at 800 W/m2 and 40
// degrees C, with Gaussian noise of 2 counts on the board's readings.
class TestCurveDiagnosis : public QObject
{
    Q_OBJECT

    std::unique_ptr<TestRoot> root;
    std::unique_ptr<SimInstrument> sim;
    _configParam config{};
    int taken = 0;
    _measure last{}; // the record of the last curve diagnosed

    // The fault set on a clean source, the curve measured and saved as the
    // screens save it, read back as the report reads it, and diagnosed.
    CurveDiagnosis diagnose(int modules, const QList<QByteArray>& faults, int probe = PROBE_MODULE)
    {
        sim->setSeries(modules);
        sim->setFault("none");
        for (const QByteArray& f : faults)
            if (!sim->setFault(f))
                qWarning("fault refused: %s", f.constData());
        sim->setFault("noise 2 5");
        sim->value("pv figures"); // the source's tables, before the board asks
        SimMeasure how;
        how.modules = modules;
        how.irradiance = 800;
        how.temperature = 40;
        how.probe = probe;
        const QByteArray time =
            QStringLiteral("12:%1:00").arg(taken++, 2, 10, QChar('0')).toLatin1();
        how.time = time.constData();
        const QString file = takeSimulatedMeasure(config, panelfixture::simulatedSheet(), how);
        ReportMeasure m;
        QString error;
        if (file.isEmpty() || !m.load(file, modules > 1 ? MEA_STRING : MEA_PANEL, &error))
            qWarning("no measure: %s", qPrintable(error));
        last = m.record;
        const CurveDiagnosis d(m.record);
        QString line = QStringLiteral("%1 module(s), %2:")
                           .arg(modules)
                           .arg(QString::fromLatin1(faults.join(" + ")));
        for (const Finding& f : d.findings)
            line += QStringLiteral(" [kind %1 measured %2 expected %3 at %4 V, %5 ohm/module]")
                        .arg(f.kind)
                        .arg(f.measured, 0, 'f', 3)
                        .arg(f.expected, 0, 'f', 3)
                        .arg(f.voltage, 0, 'f', 1)
                        .arg(f.ohmPerModule, 0, 'f', 2);
        if (d.findings.empty())
            line += " no finding";
        qInfo("%s", qPrintable(line));
        return d;
    }

private slots:
    void initTestCase()
    {
        root = std::make_unique<TestRoot>(0.1);
        sim = std::make_unique<SimInstrument>(*root);
        QVERIFY(sim->isRunning());
        defaultConfig(&config);
        root->mkdir("/krm510data/datameastring");
        root->mkdir("/krm510data/datameapanel");
        QVERIFY(sim->setAdapter(true));
        QVERIFY(sim->setIrradiance(800));
        QVERIFY(sim->setCellTemperature(40));
        QVERIFY(sim->command("set tmodule cell"));
        QVERIFY(powerDeviceStart(0) >= 0);
    }

    void cleanupTestCase()
    {
        sim.reset();
        root.reset();
    }

    void cleanSourceGivesNoFinding()
    {
        for (int modules : {1, 4})
            QVERIFY(diagnose(modules, {}).healthy());
    }

    void shadedSubstringGivesAStepAtItsShareOfIsc()
    {
        for (int modules : {1, 4}) {
            for (double shade : {0.8, 0.5, 0.2}) {
                const CurveDiagnosis d =
                    diagnose(modules, {"shade " + QByteArray::number(shade) + " 0 0"});
                const Finding* step = d.first(Finding::Step);
                QVERIFY(step != nullptr);
                QVERIFY2(std::fabs(step->measured - shade) < 0.05,
                         qPrintable(QString::number(step->measured)));
                QVERIFY(!d.has(Finding::LowFillFactor));
            }
        }
    }

    void lightShadeNeedNotBeFound()
    {
        // 0.95 or lighter is not required either way: only that nothing
        // else is made of it
        for (int modules : {1, 4}) {
            const CurveDiagnosis d = diagnose(modules, {"shade 0.95 0 0"});
            QVERIFY(!d.has(Finding::VocDeficit));
            QVERIFY(!d.has(Finding::SteepIscSlope));
        }
    }

    void shortedBypassDiodeGivesAVocDeficitOfOneSubstring()
    {
        for (int modules : {1, 4}) {
            const CurveDiagnosis d = diagnose(modules, {"bypass short 0 0"});
            const Finding* f = d.first(Finding::VocDeficit);
            QVERIFY(f != nullptr);
            QVERIFY2(std::fabs(f->measured - 1.0) < 0.2, qPrintable(QString::number(f->measured)));
            QVERIFY(!d.has(Finding::Step));
        }
        // modules of six substrings (--substrings 6): the same volts are two
        const CurveDiagnosis six(last, 6);
        const Finding* f = six.first(Finding::VocDeficit);
        QVERIFY(f != nullptr);
        QVERIFY2(std::fabs(f->measured - 2.0) < 0.3, qPrintable(QString::number(f->measured)));
    }

    void withoutReferenceOnlyTheStepsAreLookedFor()
    {
        diagnose(1, {"shade 0.5 0 0", "rs 1"});
        _measure m = last;
        m.mcomp = 0;
        std::memset(&m.ref, 0, sizeof m.ref);
        const CurveDiagnosis d(m);
        QVERIFY(!d.reference);
        QCOMPARE(d.findings.size(), size_t(1));
        QCOMPARE(d.findings[0].kind, Finding::Step);
    }

    // A knee stretched by a resistance that acts only between 45 % of Isc and
    // Isc (no fault of the simulator does that alone): ends, slopes and Voc as
    // the data sheet's, the fill factor low, nothing else to explain it.
    void lowFillFactorWhenNothingElseExplainsIt()
    {
        const _panelFeature sheet = panelfixture::simulatedSheet();
        const SheetModel model(sheet, 1, 800, 40);
        const double isc = model.isc(), voc = model.voc();
        const _measure m = curveRecord(1, 800, 40, isc, voc, [&](double i) {
            return std::max(0.0, model.voltageAt(i) - 2.0 * std::max(0.0, i - 0.45 * isc));
        });
        const CurveDiagnosis d(m);
        QCOMPARE(d.findings.size(), size_t(1));
        QCOMPARE(d.findings[0].kind, Finding::LowFillFactor);
        QVERIFY2(d.findings[0].measured < d.findings[0].expected - 5,
                 qPrintable(QString::number(d.findings[0].measured)));
    }

    void vocDeficitIsNotJudgedWhenTheTemperatureCameFromVoc()
    {
        const CurveDiagnosis d = diagnose(1, {"bypass short 0 0"}, PROBE_AUTO);
        QVERIFY(!d.vocJudged);
        QVERIFY(!d.has(Finding::VocDeficit));
    }

    void shadeBehindAnOpenBypassDiodeLooksLikeLowCurrent()
    {
        for (int modules : {1, 4}) {
            const CurveDiagnosis d = diagnose(modules, {"shade 0.5 0 0", "bypass open 0 0"});
            const Finding* f = d.first(Finding::LowCurrent);
            QVERIFY(f != nullptr);
            QVERIFY2(std::fabs(f->measured - 0.5) < 0.1, qPrintable(QString::number(f->measured)));
            QVERIFY(!d.has(Finding::Step));
        }
    }

    void addedSeriesResistanceGivesAShallowSlopeNearVoc()
    {
        for (int modules : {1, 4}) {
            const CurveDiagnosis d = diagnose(modules, {"rs 1"});
            const Finding* f = d.first(Finding::ShallowVocSlope);
            QVERIFY(f != nullptr);
            QVERIFY2(std::fabs(f->ohmPerModule - 1.0) < 0.3,
                     qPrintable(QString::number(f->ohmPerModule)));
            QVERIFY(!d.has(Finding::SteepIscSlope));
            QVERIFY(!d.has(Finding::LowFillFactor));
        }
    }

    void lowShuntGivesASteepSlopeNearIsc()
    {
        for (int modules : {1, 4}) {
            const CurveDiagnosis d = diagnose(modules, {"shunt 20"});
            const Finding* f = d.first(Finding::SteepIscSlope);
            QVERIFY(f != nullptr);
            QVERIFY2(std::fabs(f->ohmPerModule - 20.0) < 4.0,
                     qPrintable(QString::number(f->ohmPerModule)));
            QVERIFY(!d.has(Finding::ShallowVocSlope));
            QVERIFY(!d.has(Finding::LowFillFactor));
        }
    }
};

QTEST_MAIN(TestCurveDiagnosis)
#include "tst_curvediagnosis.moc"
