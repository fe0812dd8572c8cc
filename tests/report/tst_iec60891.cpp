#include "curverecord.h"
#include "iec60891.h"
#include "reportmeasure.h"

#include "data/datasetting.h"
#include "device/gpiopd.h"
#include "measure/panelfixture.h"
#include "support/siminstrument.h"
#include "support/simmeasure.h"
#include "support/testroot.h"

#include <QtTest>

#include <cmath>
#include <cstring>

// The IEC 60891 translations of the report, on curves whose truth is known:
// the equations on made-up records, and the simulated instrument's curves
// against its own Pmax at 1000 W/m2 and 25 degrees C.
class TestIec60891 : public QObject
{
    Q_OBJECT

    // A record of a single-diode curve with known a and Rs (no shunt).
    static _measure diodeRecord(int modules, double g, double t, double a, double rs)
    {
        const double isc = 8.7 * g / 1000.0, voc = 37.0 * modules;
        return curveRecord(modules, g, t, isc, voc,
                           [=](double i) { return voc + a * std::log(1.0 - i / isc) - rs * i; });
    }

private slots:
    void seriesResistanceIsFittedToThePointsNotTakenFromTheRsFigure()
    {
        _measure m = diodeRecord(1, 800, 40, 1.8, 0.35);
        m.mrs = 4.5f; // the instrument's V/I at the maximum power point
        m.mrstest = 1;
        const Iec60891 iec(m);
        QVERIFY(iec.valid());
        QVERIFY(iec.rsFitted);
        QVERIFY2(std::fabs(iec.rs - 0.35) < 0.01, qPrintable(QString::number(iec.rs)));
        QVERIFY2(std::fabs(iec.diodeA - 1.8) < 0.02, qPrintable(QString::number(iec.diodeA)));
    }

    void stringCoefficientsArePerModuleTimesTheModules()
    {
        const _measure m = diodeRecord(4, 800, 40, 4 * 1.8, 4 * 0.35);
        const Iec60891 iec(m);
        QVERIFY(iec.valid());
        QCOMPARE(iec.kappa, 4 * 0.0025);
        QVERIFY(std::fabs(iec.beta - 4 * (-0.0032 * 37.5)) < 1e-6);
        QVERIFY(std::fabs(iec.alpha - 0.0005 * 8.7) < 1e-6); // the current of one module
        QVERIFY2(std::fabs(iec.rs - 4 * 0.35) < 0.04, qPrintable(QString::number(iec.rs)));
    }

    void atStandardConditionsBothProceduresLeaveTheCurve()
    {
        const _measure m = diodeRecord(1, 1000, 25, 1.7, 0.3);
        const Iec60891 iec(m);
        QVERIFY(iec.valid());
        for (size_t k = 1; k + 1 < iec.curve1.size(); k++) {
            QCOMPARE(iec.curve1[k].v, double(m.ramp.tensione[254 - 2 * (k - 1)]));
            QCOMPARE(iec.curve2[k].i, double(m.ramp.corrente[254 - 2 * (k - 1)]));
        }
        QVERIFY(std::fabs(iec.procedure1.voc - 37.0) < 1e-4);
        QVERIFY(std::fabs(iec.procedure2.isc - 8.7) < 1e-4);
    }

    void eachProcedureFollowsItsEquationPointByPoint()
    {
        const _measure m = diodeRecord(1, 800, 40, 1.8, 0.35);
        const Iec60891 iec(m);
        const double g = 1000.0 / 800.0, dt = 25.0 - 40.0, isc1 = m.misc, voc1 = m.mvoc;
        // the measured point at slot 100 is the 128 - 51 = 77th by rising voltage
        const double v1 = m.ramp.tensione[100], i1 = m.ramp.corrente[100];
        const CurvePoint p1 = iec.curve1[1 + 77], p2 = iec.curve2[1 + 77];
        const double i2 = i1 + isc1 * (g - 1) + iec.alpha * dt;
        QVERIFY(std::fabs(p1.i - i2) < 1e-9);
        QVERIFY(std::fabs(p1.v - (v1 - iec.rs * (i2 - i1) - iec.kappa * i2 * dt + iec.beta * dt)) <
                1e-9);
        const double j2 = i1 * (1 + iec.alphaRel * dt) * g;
        QVERIFY(std::fabs(p2.i - j2) < 1e-9);
        QVERIFY(std::fabs(p2.v - (v1 + voc1 * (iec.betaRel * dt + 0.06 * std::log(g)) -
                                  iec.rs * (j2 - i1) - iec.kappa * j2 * dt)) < 1e-9);
    }

    void noReferenceNoTranslation()
    {
        _measure m = diodeRecord(1, 800, 40, 1.8, 0.35);
        m.mcomp = 0;
        QVERIFY(!Iec60891(m).valid());
    }

    // The accuracy table: both procedures, kappa 0 and the default, against
    // the simulator's own Pmax at 1000 W/m2 and 25 degrees C.
    void translationsLandWithinTwoPercentOfTheSimulatorsPmax()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.isRunning());
        _configParam c;
        defaultConfig(&c);
        root.mkdir("/krm510data/datameastring");
        root.mkdir("/krm510data/datameapanel");
        QVERIFY(sim.setAdapter(true));
        QVERIFY(sim.command("set tmodule cell"));
        QCOMPARE(powerDeviceStart(0) >= 0, true);
        const _panelFeature ref = panelfixture::simulatedSheet();
        int n = 0;
        QString table = "\nmodules G T | P1 k0 | P1 k | P2 k0 | P2 k | instrument (percent from "
                        "the simulator's Pmax at STC)\n";
        double worst1 = 0, worst2Mild = 0, worst2Hot = 0;
        for (int modules : {1, 4}) {
            QVERIFY(sim.setSeries(modules));
            QVERIFY(sim.setFault("none"));
            QVERIFY(sim.setIrradiance(1000));
            QVERIFY(sim.setCellTemperature(25));
            const double truth = sim.field("pv figures", "pmax").toDouble();
            QVERIFY(truth > 0);
            QVERIFY(sim.setFault("noise 2 3"));
            for (double g : {600.0, 800.0, 1000.0}) {
                for (double t : {25.0, 40.0, 60.0}) {
                    QVERIFY(sim.setIrradiance(g));
                    QVERIFY(sim.setCellTemperature(t));
                    QVERIFY(!sim.value("pv figures").isNull());
                    SimMeasure how;
                    how.modules = modules;
                    how.irradiance = float(g);
                    how.temperature = float(t);
                    const QByteArray time =
                        QStringLiteral("11:%1:00").arg(n++, 2, 10, QChar('0')).toLatin1();
                    how.time = time.constData();
                    const QString file = takeSimulatedMeasure(c, ref, how);
                    QVERIFY(!file.isEmpty());
                    ReportMeasure m;
                    QString error;
                    QVERIFY(m.load(file, modules > 1 ? MEA_STRING : MEA_PANEL, &error));
                    const Iec60891 k0(m.record, 0.0), kd(m.record);
                    QVERIFY(k0.valid() && kd.valid());
                    const auto off = [truth](double p) { return (p / truth - 1.0) * 100.0; };
                    table += QStringLiteral("%1 %2 %3 | %4 | %5 | %6 | %7 | %8\n")
                                 .arg(modules)
                                 .arg(g)
                                 .arg(t)
                                 .arg(off(k0.procedure1.pmax), 0, 'f', 2)
                                 .arg(off(kd.procedure1.pmax), 0, 'f', 2)
                                 .arg(off(k0.procedure2.pmax), 0, 'f', 2)
                                 .arg(off(kd.procedure2.pmax), 0, 'f', 2)
                                 .arg(off(m.record.spmax), 0, 'f', 2);
                    worst1 = std::max(worst1, std::fabs(off(kd.procedure1.pmax)));
                    double& worst2 = t < 50 ? worst2Mild : worst2Hot;
                    worst2 = std::max(worst2, std::fabs(off(kd.procedure2.pmax)));
                }
            }
        }
        qInfo("%s", qPrintable(table));
        QVERIFY2(worst1 < 2.0, qPrintable(QString::number(worst1)));
        QVERIFY2(worst2Mild < 2.0, qPrintable(QString::number(worst2Mild)));
        // Procedure 2 scales the voltage with the measured Voc1, which at 60
        // degrees C is some 10 % below the data sheet's; with the kappa of
        // procedure 1, as prescribed, it lands 1.7 to 2.4 % low there. The
        // equation is kept; the bound at 60 degrees C is 3 %.
        QVERIFY2(worst2Hot < 3.0, qPrintable(QString::number(worst2Hot)));
    }
};

QTEST_MAIN(TestIec60891)
#include "tst_iec60891.moc"
