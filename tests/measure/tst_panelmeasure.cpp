#include "measure/panelfixture.h"
#include "math/rndf.h"
#include "platform/clock.h"
#include "shell/language.h"
#include "support/modaldriver.h"
#include "support/screenshot.h"

#include <QLabel>
#include <QTranslator>
#include <cmath>

using namespace panelfixture;

// The acquisition of the module screen on the simulated instrument: the
// environment before and after the ramp, the board's ramp, the conversion of
// the counts, the irradiance check and every failure, driven by touches on
// the screen's buttons as the operator makes them.
class TestPanelMeasure : public QObject
{
    Q_OBJECT

    static const char* coolingText()
    {
        return "Attendere raffreddamento...\nStrumento surriscaldato.\nAttendere prima di "
               "riprendere i test.";
    }

public:
    static void initMain() { useInstrumentScreen(); }

private slots:
    void initTestCase()
    {
        useInstrumentDpi();
        QApplication::setFont(instrumentFont());
    }

    void goodMeasureDrawsTheCurveAndEnablesSave()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        PanelIV panel(nullptr);
        QVERIFY(!child<QPushButton>(&panel, "Salva")->isEnabled());
        QCOMPARE(entries(measuresMenu(&panel)), QStringList());
        touch(&panel, "Start");
        QVERIFY(panel._measureDone);
        QVERIFY(panel._curveValid);
        QVERIFY(panel._stcValid);
        QVERIFY(child<QPushButton>(&panel, "Salva")->isEnabled());
        QCOMPARE(entries(measuresMenu(&panel)), (QStringList{"-", "Modulo", "-", "Potenza"}));
        QCOMPARE(panel.plotter()->curves().value(0).size(), RAMP_POINTS);
        QVERIFY(!panel.plotter()->curves().contains(1));
        // the curve begins on Voc and ends on Isc
        QCOMPARE(panel._rampSmooth.corrente[511], panel._isc);
        QVERIFY(std::fabs(panel._rampSmooth.tensione[0] - panel._voc) < 0.01f);
        const double isc = sim.field("pv figures", "isc").toDouble();
        const double voc = sim.field("pv figures", "voc").toDouble();
        const double pmax = sim.field("pv figures", "pmax").toDouble();
        QVERIFY2(std::fabs(panel._isc - isc) < 0.02, qPrintable(QString::number(panel._isc)));
        QVERIFY2(std::fabs(panel._voc - voc) < 0.5, qPrintable(QString::number(panel._voc)));
        QVERIFY2(std::fabs(panel._pmax - pmax) < 0.01 * pmax,
                 qPrintable(QString("%1 %2").arg(panel._pmax).arg(pmax)));
        QCOMPARE(panel._vmpp, rndf(panel._pmax / panel._impp, 2));
        QCOMPARE(panel._deltaPmax, 0.0f);
        QCOMPARE(panel._temperature, panel._temperatureProbe);
        QVERIFY(std::fabs(panel._temperature - 45) < 0.5f);
        QVERIFY(std::fabs(panel._irradiance - 850) < 1.0f);
        QVERIFY(sim.boardCommands().join(' ').contains("mea_brask"));
    }
};

QTEST_MAIN(TestPanelMeasure)
#include "tst_panelmeasure.moc"
