// The simulator's photovoltaic source, seen through its scenario queries:
// the data sheet comes back at standard conditions, the temperature
// coefficients hold, shading gives two power maxima.
#include "support/siminstrument.h"
#include "support/testroot.h"

#include <QtTest>
#include <cmath>

class TestPvSource : public QObject
{
    Q_OBJECT

    static double f(const SimInstrument& sim, const char* key)
    {
        return sim.field("pv figures", key).toDouble();
    }
    static bool within(double value, double expected, double relative)
    {
        return std::fabs(value - expected) <= std::fabs(expected) * relative;
    }

private slots:
    void reproducesTheDataSheetAtStandardConditions_data()
    {
        QTest::addColumn<QByteArray>("sheet");
        QTest::addColumn<double>("pmax");
        QTest::addColumn<double>("impp");
        QTest::addColumn<double>("vmpp");
        QTest::addColumn<double>("isc");
        QTest::addColumn<double>("voc");
        QTest::newRow("poly 250") << QByteArray(
                                         "pmax=250 impp=8.2 vmpp=30.5 isc=8.7 voc=37.5 kisc=0.05 "
                                         "kvoc=-0.32 kpmax=-0.42 noct=45 cells=60")
                                  << 250.1 << 8.2 << 30.5 << 8.7 << 37.5;
        QTest::newRow("mono 400")
            << QByteArray("pmax=400 impp=10.26 vmpp=39.0 isc=10.82 voc=47.2 kisc=0.048 "
                          "kvoc=-0.28 kpmax=-0.36 noct=44 cells=72")
            << 400.14 << 10.26 << 39.0 << 10.82 << 47.2;
        QTest::newRow("thin film")
            << QByteArray("pmax=100 impp=1.4 vmpp=71.4 isc=1.6 voc=90 kisc=0.04 "
                          "kvoc=-0.29 kpmax=-0.28 noct=45 cells=100")
            << 99.96 << 1.4 << 71.4 << 1.6 << 90.0;
    }
    void reproducesTheDataSheetAtStandardConditions()
    {
        QFETCH(QByteArray, sheet);
        QFETCH(double, pmax);
        QFETCH(double, impp);
        QFETCH(double, vmpp);
        QFETCH(double, isc);
        QFETCH(double, voc);
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.command("set module " + sheet));
        QVERIFY(sim.command("set irradiance 1000"));
        QVERIFY(sim.command("set tcell 25"));
        QVERIFY(within(f(sim, "pmax"), pmax, 0.01));
        QVERIFY(within(f(sim, "impp"), impp, 0.01));
        QVERIFY(within(f(sim, "vmpp"), vmpp, 0.01));
        QVERIFY(within(f(sim, "isc"), isc, 0.01));
        QVERIFY(within(f(sim, "voc"), voc, 0.01));
        QCOMPARE(sim.field("pv figures", "maxima"), QByteArray("1"));
    }
    void followsTheTemperatureCoefficients()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.command(
            "set module pmax=250 impp=8.2 vmpp=30.5 isc=8.7 voc=37.5 kisc=0.05 kvoc=-0.32 "
            "kpmax=-0.42"));
        QVERIFY(sim.setCellTemperature(25));
        double isc25 = f(sim, "isc"), voc25 = f(sim, "voc"), p25 = f(sim, "pmax");
        QVERIFY(sim.setCellTemperature(45));
        double isc45 = f(sim, "isc"), voc45 = f(sim, "voc"), p45 = f(sim, "pmax");
        auto coefficient = [](double a, double b) { return (b - a) / a / 20.0 * 100.0; };
        QVERIFY2(within(coefficient(isc25, isc45), 0.05, 0.05),
                 qPrintable(QString::number(coefficient(isc25, isc45))));
        QVERIFY2(within(coefficient(voc25, voc45), -0.32, 0.05),
                 qPrintable(QString::number(coefficient(voc25, voc45))));
        QVERIFY2(within(coefficient(p25, p45), -0.42, 0.05),
                 qPrintable(QString::number(coefficient(p25, p45))));
    }
    void scalesWithIrradiance()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.setCellTemperature(25));
        QVERIFY(sim.setIrradiance(500));
        QVERIFY(within(f(sim, "isc"), 4.35, 0.01));
        QVERIFY(f(sim, "voc") < 37.5 && f(sim, "voc") > 35.0);
        QVERIFY(sim.setIrradiance(0));
        QCOMPARE(f(sim, "isc"), 0.0);
    }
    void stringAddsModulesInSeries()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.setCellTemperature(25));
        QVERIFY(sim.setSeries(12));
        QVERIFY(within(f(sim, "voc"), 12 * 37.5, 0.01));
        QVERIFY(within(f(sim, "isc"), 8.7, 0.01));
        QVERIFY(within(f(sim, "pmax"), 12 * 250.1, 0.01));
    }
    void addedSeriesResistanceDropsItsVoltageAtEveryCurrent()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.setCellTemperature(40));
        QVERIFY(sim.setIrradiance(800));
        QVERIFY(sim.setSeries(4));
        const double voc = f(sim, "voc"), isc = f(sim, "isc"), pmax = f(sim, "pmax");
        const double at6 = sim.value("pv voltage 6").toDouble();
        QVERIFY(sim.setFault("rs 1"));
        // four modules, one ohm each: 4 V less at 6 A, nothing at open circuit
        QVERIFY2(std::fabs(sim.value("pv voltage 6").toDouble() - (at6 - 4 * 6.0)) < 1e-3,
                 sim.value("pv voltage 6").constData());
        QVERIFY(within(f(sim, "voc"), voc, 1e-6));
        QVERIFY(f(sim, "isc") < isc);
        QVERIFY(f(sim, "pmax") < 0.9 * pmax);
        QVERIFY(!sim.setFault("rs -1"));
        QVERIFY(!sim.setFault("rs inf"));
        QVERIFY(sim.setFault("none"));
        QVERIFY(within(f(sim, "pmax"), pmax, 1e-9));
    }
    void shuntTakesItsCurrentAtEveryVoltage()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.setCellTemperature(40));
        QVERIFY(sim.setIrradiance(800));
        QVERIFY(sim.setSeries(4));
        const double voc = f(sim, "voc"), isc = f(sim, "isc");
        const double at100 = sim.value("pv current 100").toDouble();
        QVERIFY(sim.setFault("shunt 20"));
        // four modules, 20 ohm across each: 80 ohm across the string
        const double shunted = sim.value("pv current 100").toDouble();
        QVERIFY2(std::fabs(shunted - (at100 - 100.0 / 80.0)) < 1e-3,
                 qPrintable(QString("%1 %2").arg(shunted).arg(at100)));
        QVERIFY(within(f(sim, "isc"), isc, 1e-4)); // no voltage, no shunt current
        QVERIFY(f(sim, "voc") < voc);
        QVERIFY(sim.setFault("none"));
        QVERIFY(within(sim.value("pv current 100").toDouble(), at100, 1e-9));
    }
    void partialShadingGivesTwoMaxima()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.setCellTemperature(25));
        QVERIFY(sim.setFault("shade 0.4 0 0"));
        QCOMPARE(sim.field("pv figures", "maxima"), QByteArray("2"));
        QVERIFY(f(sim, "pmax") < 0.8 * 250.1);
        // The bypass diode holds the shaded substring near -0.5 V at full current.
        double v = sim.value("pv voltage 8").toDouble();
        QVERIFY(within(v, 2.0 / 3.0 * 30.0, 0.25));
        QVERIFY(sim.setFault("none"));
        QCOMPARE(sim.field("pv figures", "maxima"), QByteArray("1"));
    }
    void failedBypassDiode()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(sim.setCellTemperature(25));
        QVERIFY(sim.setFault("bypass short 0 1"));
        QVERIFY(within(f(sim, "voc"), 2.0 / 3.0 * 37.5, 0.02));
        QVERIFY(sim.setFault("none"));
        QVERIFY(sim.setFault("bypass open 0 0"));
        QVERIFY(sim.setFault("shade 0.3 0 0"));
        // Without its diode the shaded substring limits the whole module.
        QVERIFY(f(sim, "pmax") < 0.45 * 250.1);
    }
    void inconsistentDataSheetIsRefused()
    {
        TestRoot root;
        SimInstrument sim(root);
        QVERIFY(!sim.command("set module impp=9 isc=8.7"));
        QVERIFY(within(f(sim, "pmax"), 250.1, 0.01));
    }
};

QTEST_GUILESS_MAIN(TestPvSource)
#include "tst_pvsource.moc"
