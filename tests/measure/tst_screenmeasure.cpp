#include "math/rndf.h"
#include "measure/dialogshutdown.h"
#include "measure/panelfixture.h"
#include "measure/screenkinds.h"
#include "platform/clock.h"
#include "shell/language.h"
#include "support/modaldriver.h"
#include "support/screenshot.h"
#include "toolkit/infobar.h"
#include "toolkit/look.h"

#include <QLabel>
#include <QRegularExpression>
#include <QTranslator>
#include <cmath>

using namespace panelfixture;
using namespace screenkinds;

// The acquisition of the module and the string screens on the simulated
// instrument: the environment before and after the ramp, the board's ramp,
// the conversion of the counts, the irradiance check and every failure,
// driven by touches on the screen's buttons as the operator makes them. Each
// body runs on both screens, so that a slip in one of them shows.
namespace
{

const char* coolingText()
{
    return "Attendere raffreddamento...\nStrumento surriscaldato.\nAttendere prima di "
           "riprendere i test.";
}

QString shot(const char* name, const char* what)
{
    return QString("%1_%2").arg(name, what);
}

template <class S> void goodMeasure()
{
    TestRoot root(0.1);
    SimInstrument sim(root);
    configure(root);
    QVERIFY(world(sim, 850, 45));
    ModalDriver driver;
    Kind<S>::count(driver);
    S panel(nullptr);
    panel.show();
    QVERIFY(!child<QPushButton>(&panel, "Salva")->isEnabled());
    QCOMPARE(entries(measuresMenu(&panel)), Kind<S>::menu());
    touch(&panel, "Start");
    QCOMPARE(driver.pending(), 0);
    QVERIFY(panel._measureDone);
    QVERIFY(panel._curveValid);
    QVERIFY(panel._stcValid);
    QVERIFY(child<QPushButton>(&panel, "Salva")->isEnabled());
    QCOMPARE(entries(measuresMenu(&panel)),
             (Kind<S>::menu() + QStringList{"-", Kind<S>::dataEntry, "-", "Potenza"}));
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

template <class S> void heatSink65()
{
    TestRoot root(0.1);
    SimInstrument sim(root);
    configure(root);
    QVERIFY(world(sim, 850, 45));
    // resting at 65: the heat sink cools towards the ambient
    QVERIFY(sim.setAmbientTemperature(65));
    QVERIFY(sim.command("board hsink 65"));
    QVERIFY(sim.command("board log clear"));
    ModalDriver driver;
    Kind<S>::count(driver);
    driver.answerBox();
    S panel(nullptr);
    panel.show();
    touch(&panel, "Start");
    QCOMPARE(driver.boxes.size(), 1);
    QCOMPARE(driver.boxes[0].title, QString("Power Device"));
    QCOMPARE(driver.boxes[0].text, QString(coolingText()));
    QCOMPARE(driver.boxes[0].icon, QMessageBox::Warning);
    // the box's title drawn on it, its texts legible
    QCOMPARE(driver.boxes[0].drawnTitle, QString("Power Device"));
    QVERIFY2(driver.boxes[0].legibility.isEmpty(),
             qPrintable(driver.boxes[0].legibility.join('\n')));
    QVERIFY(!sim.boardCommands().join(' ').contains("mea_brask"));
    QVERIFY(!panel._measureDone);
    QVERIFY(!panel._curveValid);
    saveScreenshot(&panel, shot(Kind<S>::name, "after_cooling_box"));
}

template <class S> void heatSink64_9()
{
    TestRoot root(0.1);
    SimInstrument sim(root);
    configure(root);
    QVERIFY(world(sim, 850, 45));
    QVERIFY(sim.setAmbientTemperature(64.9));
    QVERIFY(sim.command("board hsink 64.9"));
    ModalDriver driver;
    Kind<S>::count(driver);
    S panel(nullptr);
    panel.show();
    touch(&panel, "Start");
    QCOMPARE(driver.boxes.size(), 0);
    QVERIFY(sim.boardCommands().join(' ').contains("mea_brask"));
    QVERIFY(panel._measureDone);
}

template <class S> void automaticAndManual()
{
    QFETCH(int, probe);
    QFETCH(float, expected);
    TestRoot root(0.1);
    SimInstrument sim(root);
    configure(root, [probe](_configParam& c) {
        c.tprobe = static_cast<_probeTemp>(probe);
        c.utemp = 37.5f;
    });
    QVERIFY(world(sim, 850, 45));
    QVERIFY(sim.command("set pt100 open"));
    ModalDriver driver;
    Kind<S>::count(driver);
    S panel(nullptr);
    panel.show();
    touch(&panel, "Start");
    QCOMPARE(driver.boxes.size(), 0);
    QVERIFY(panel._measureDone);
    QVERIFY(panel._temperatureValid);
    QCOMPARE(panel._temperature, expected);
}

template <class S> void openTemperatureProbe()
{
    TestRoot root(0.1);
    SimInstrument sim(root);
    configure(root);
    QVERIFY(world(sim, 850, 45));
    QVERIFY(sim.command("set pt100 open"));
    QVERIFY(sim.command("board log clear"));
    ModalDriver driver;
    Kind<S>::count(driver);
    driver.answerBox();
    S panel(nullptr);
    panel.show();
    touch(&panel, "Start");
    QCOMPARE(driver.boxes.size(), 1);
    QCOMPARE(driver.boxes[0].title, QString("Misure Ambiente"));
    QCOMPARE(driver.boxes[0].text, QString("Temperatura non rilevata."));
    QCOMPARE(driver.boxes[0].icon, QMessageBox::Warning);
    QVERIFY(sim.boardCommands().isEmpty());
}

template <class S> void bothMissing()
{
    TestRoot root(0.1);
    SimInstrument sim(root);
    configure(root);
    QVERIFY(world(sim, 850, 45));
    QVERIFY(sim.command("set pt100 open"));
    QVERIFY(sim.forceAdc("pyrano", 0));
    ModalDriver driver;
    Kind<S>::count(driver);
    driver.answerBox();
    driver.answerBox();
    S panel(nullptr);
    panel.show();
    touch(&panel, "Start");
    QTest::qWait(20);
    QCOMPARE(driver.boxes.size(), 1);
    QCOMPARE(driver.boxes[0].text, QString("Temperatura non rilevata."));
    QVERIFY(!panel._temperatureValid);
    QVERIFY(!panel._irradianceValid);
}

template <class S> void missingIrradiance()
{
    TestRoot root(0.1);
    SimInstrument sim(root);
    configure(root);
    QVERIFY(world(sim, 850, 45));
    QVERIFY(sim.forceAdc("pyrano", 0));
    ModalDriver driver;
    Kind<S>::count(driver);
    driver.answerBox();
    S panel(nullptr);
    panel.show();
    touch(&panel, "Start");
    QCOMPARE(driver.boxes.size(), 1);
    QCOMPARE(driver.boxes[0].title, QString("Misure Ambiente"));
    QCOMPARE(driver.boxes[0].text, QString("Irradiazione non rilevata."));
    QVERIFY(!panel._measureDone);
}

template <class S> void irrminBoundary()
{
    TestRoot root(0.1);
    SimInstrument sim(root);
    configure(root);
    QVERIFY(world(sim, 850, 45));
    QVERIFY(sim.forceAdc("pyrano", 31000));
    char ok = 0;
    const float g = irradiationAcquire(&ok);
    QVERIFY(ok);
    ModalDriver driver;
    Kind<S>::count(driver);
    S panel(nullptr);
    panel.show();
    panel._config.irrmin = g;
    touch(&panel, "Start");
    QCOMPARE(driver.boxes.size(), 0);
    QVERIFY(panel._measureDone);
    QCOMPARE(panel._irradiance, g);

    panel._config.irrmin = std::nextafter(g, 2000.0f);
    Kind<S>::count(driver);
    driver.answerBox();
    touch(&panel, "Start");
    QCOMPARE(driver.boxes.size(), 1);
    QCOMPARE(driver.boxes[0].title, QString());
    QCOMPARE(driver.boxes[0].text, "Irraggiamento insufficiente (< " +
                                       QString::number(double(panel._config.irrmin), 'f', 2) +
                                       " W/m²)");
    QCOMPARE(driver.boxes[0].icon, QMessageBox::Warning);
}

template <class S> void refusedStart()
{
    TestRoot root(0.1);
    SimInstrument sim(root);
    configure(root);
    QVERIFY(world(sim, 850, 45));
    ModalDriver driver;
    Kind<S>::count(driver);
    S panel(nullptr);
    panel.show();
    touch(&panel, "Start");
    const QVector<QPointF> curve = panel.plotter()->curves().value(0);
    QVERIFY(sim.setIrradiance(300));
    Kind<S>::count(driver);
    driver.answerBox();
    touch(&panel, "Start");
    QCOMPARE(driver.boxes.size(), 1);
    QCOMPARE(panel.plotter()->curves().value(0), curve);
    QVERIFY(panel._measureDone);
    QVERIFY(child<QPushButton>(&panel, "Salva")->isEnabled());
    QCOMPARE(entries(measuresMenu(&panel)),
             (Kind<S>::menu() + QStringList{"-", Kind<S>::dataEntry, "-", "Potenza"}));
}

template <class S> void secondReadingDecidesNothing()
{
    // below irrmin after the ramp: not refused, and the first reading stays
    TestRoot root(0.1);
    SimInstrument sim(root);
    configure(root);
    QVERIFY(world(sim, 850, 45));
    ModalDriver driver;
    Kind<S>::count(driver);
    driver.answerBox(); // the irradiance delta
    ProgressWatch watch(Kind<S>::progress, [&] { sim.setIrradiance(400); });
    S panel(nullptr);
    panel.show();
    touch(&panel, "Start");
    QVERIFY(watch.done);
    QCOMPARE(driver.boxes.size(), 1);
    QCOMPARE(driver.boxes[0].title, QString("Delta Irraggiamento Elevato"));
    QVERIFY(panel._measureDone);
    QVERIFY(std::fabs(panel._irradiance - 850) < 1.0f);
    QVERIFY(std::fabs(panel._irradianceProbe - 850) < 1.0f);
}

template <class S> void secondReadingWithoutTemperature()
{
    TestRoot root(0.1);
    SimInstrument sim(root);
    configure(root);
    QVERIFY(world(sim, 850, 45));
    ModalDriver driver;
    Kind<S>::count(driver);
    driver.answerBox();
    ProgressWatch watch(Kind<S>::progress, [&] { sim.command("set pt100 open"); });
    S panel(nullptr);
    panel.show();
    touch(&panel, "Start");
    QCOMPARE(driver.boxes.size(), 1);
    QCOMPARE(driver.boxes[0].text, QString("Temperatura non rilevata."));
    QVERIFY(!panel._measureDone);
    QVERIFY(!panel._curveValid);
    QVERIFY(!child<QPushButton>(&panel, "Salva")->isEnabled());
    QCOMPARE(entries(measuresMenu(&panel)), Kind<S>::menu());
}

template <class S> void fall800To786()
{
    TestRoot root(0.1);
    SimInstrument sim(root);
    configure(root);
    QVERIFY(world(sim, 800, 45));
    ModalDriver driver;
    Kind<S>::count(driver);
    driver.answerBox();
    ProgressWatch watch(Kind<S>::progress, [&] { sim.setIrradiance(786); });
    S panel(nullptr);
    panel.show();
    touch(&panel, "Start");
    QCOMPARE(rndIrradiation(panel._irradiance), 800.0f);
    QCOMPARE(driver.boxes.size(), 1);
    QCOMPARE(driver.boxes[0].title, QString("Delta Irraggiamento Elevato"));
    QCOMPARE(driver.boxes[0].text, QString("Valori STC non disponibili.\nRipetere."));
    QCOMPARE(driver.boxes[0].icon, QMessageBox::Warning);
    QVERIFY(!panel._stcValid);
    QVERIFY(panel._measureDone); // the curve stays and may be saved
    QCOMPARE(panel.plotter()->curves().value(0).size(), RAMP_POINTS);
    saveScreenshot(&panel, shot(Kind<S>::name, "after_irradiance_delta_box"));
}

template <class S> void fall700To685()
{
    TestRoot root(0.1);
    SimInstrument sim(root);
    configure(root, [](_configParam& c) { c.irrmin = 500; });
    QVERIFY(world(sim, 699.8, 45));
    ModalDriver driver;
    Kind<S>::count(driver);
    ProgressWatch watch(Kind<S>::progress, [&] { sim.setIrradiance(685); });
    S panel(nullptr);
    panel.show();
    touch(&panel, "Start");
    QVERIFY(watch.done);
    QVERIFY(panel._irradiance <= 700.0f);
    QCOMPARE(rndIrradiation(panel._irradiance), 700.0f);
    QCOMPARE(driver.boxes.size(), 0);
    QVERIFY(panel._stcValid);
}

template <class S> void boardConditions()
{
    QFETCH(int, status);
    QFETCH(QString, text);
    TestRoot root(0.1);
    SimInstrument sim(root);
    configure(root);
    QVERIFY(world(sim, 850, 45));
    QVERIFY(sim.command("board status " + QByteArray::number(status)));
    ModalDriver driver;
    Kind<S>::count(driver);
    driver.answerBox();
    S panel(nullptr);
    panel.show();
    touch(&panel, "Start");
    QCOMPARE(driver.boxes.size(), 1);
    QCOMPARE(driver.boxes[0].title, QString("Power Device"));
    QCOMPARE(driver.boxes[0].text, text);
    QCOMPARE(driver.boxes[0].icon, QMessageBox::Warning);
    QVERIFY(!panel._measureDone);
}

template <class S> void boardError1()
{
    TestRoot root(0.1);
    SimInstrument sim(root);
    configure(root);
    QVERIFY(world(sim, 850, 45));
    ModalDriver driver;
    Kind<S>::count(driver);
    S panel(nullptr);
    panel.show();
    touch(&panel, "Start");
    QVERIFY(panel._measureDone);
    QVERIFY(sim.command("board status 1"));
    Kind<S>::count(driver);
    driver.answerBox();
    touch(&panel, "Start");
    QCOMPARE(driver.boxes.size(), 1);
    QCOMPARE(driver.boxes[0].text, QString());
    QCOMPARE(driver.boxes[0].informative, QString());
    QVERIFY(!panel._measureDone);
    QVERIFY(!panel._curveValid);
    QVERIFY(!panel._stcValid);
    QVERIFY(!panel._temperatureValid);
    QVERIFY(!panel._irradianceValid);
    QVERIFY(!child<QPushButton>(&panel, "Salva")->isEnabled());
    QCOMPARE(entries(measuresMenu(&panel)), Kind<S>::menu());
    // the plot was cleared when the first reading had passed
    QVERIFY(panel.plotter()->curves().isEmpty());
    saveScreenshot(&panel, shot(Kind<S>::name, "after_board_error_box"));
}

template <class S> void silentBoard()
{
    TestRoot root(0.1);
    SimInstrument sim(root);
    configure(root);
    QVERIFY(world(sim, 850, 45));
    QVERIFY(sim.command("board fault nostatus"));
    ModalDriver driver;
    Kind<S>::count(driver);
    driver.answerBox();
    S panel(nullptr);
    panel.show();
    touch(&panel, "Start");
    QCOMPARE(driver.boxes.size(), 1);
    QCOMPARE(driver.boxes[0].text, QString("Problema di connessione al Power Device."));
    QCOMPARE(driver.boxes[0].icon, QMessageBox::Critical);
}

template <class S> void exhaustedBattery()
{
    TestRoot root(0.1);
    SimInstrument sim(root);
    configure(root);
    QVERIFY(world(sim, 850, 45));
    QVERIFY(sim.setAdapter(false));
    ModalDriver driver;
    QStringList seen;
    S* screen = nullptr;
    QWidget* opener = nullptr;
    Kind<S>::count(driver);
    driver.onNext([&](QWidget* w) {
        seen << w->metaObject()->className();
        opener = w->parentWidget();
        sim.setAdapter(true); // the charger comes
    });
    // The battery gives out once the first reading has passed; the dialog
    // cuts the board's supply, and the board, switched on again, leaves the
    // ramp without its status line.
    ProgressWatch watch(Kind<S>::progress, [&] {
        sim.forceAdc("battery", 27000);
        sim.command("board fault nostatus once");
        // the 700 ms supply poll opens the dialog, however busy the machine
        QTRY_VERIFY_WITH_TIMEOUT(!seen.isEmpty(), 5000);
    });
    S panel(nullptr);
    screen = &panel;
    driver.answerBox();
    panel.show();
    touch(&panel, "Start");
    QVERIFY(watch.done);
    QCOMPARE(seen, QStringList{"DialogShutDown"});
    // the screen has no status bar: the dialog is its own
    QCOMPARE(opener, static_cast<QWidget*>(screen));
    QCOMPARE(driver.boxes.size(), 1);
    QCOMPARE(driver.boxes[0].title, QString("Power Device"));
    QCOMPARE(driver.boxes[0].text, QString("Eseguito ripristino modulo potenza."));
    QCOMPARE(driver.boxes[0].icon, QMessageBox::Critical);
    QVERIFY(!panel._powerRestored);
    QVERIFY(!panel._measureDone);
    // the restoration is told once: the next silence is a lost connection again
    QVERIFY(sim.command("board fault nostatus"));
    Kind<S>::count(driver);
    driver.answerBox();
    touch(&panel, "Start");
    QCOMPARE(driver.boxes.size(), 2);
    QCOMPARE(driver.boxes[1].text, QString("Problema di connessione al Power Device."));
}

// A NUL byte inside the ramp's data ends the reply's text before its status
// line: a lost connection, never a good measure of zero points.
template <class S> void nulInsideTheRamp()
{
    TestRoot root(0.1);
    SimInstrument sim(root);
    configure(root);
    QVERIFY(world(sim, 850, 45));
    QVERIFY(sim.command("board fault nul"));
    ModalDriver driver;
    Kind<S>::count(driver);
    driver.answerBox();
    S panel(nullptr);
    panel.show();
    touch(&panel, "Start");
    QCOMPARE(driver.boxes.size(), 1);
    QCOMPARE(driver.boxes[0].text, QString("Problema di connessione al Power Device."));
    QCOMPARE(driver.boxes[0].icon, QMessageBox::Critical);
    QVERIFY(!panel._measureDone);
    QVERIFY(!child<QPushButton>(&panel, "Salva")->isEnabled());
}

// The measuring screens had a hidden status bar that polled the supply a
// second time and could open a second low-battery dialog over their own; the
// main menu's bar behind the screen polls as well. One dialog is open in the
// program at a time, and whichever opened it, the board's next silence is
// told as a restoration.
template <class S> void oneBatteryDialog()
{
    TestRoot root(0.1);
    SimInstrument sim(root);
    configure(root);
    QVERIFY(world(sim, 850, 45));
    QVERIFY(sim.setAdapter(false));
    InfoBar menuBar(nullptr); // the main menu's bar, polling behind the screen
    ModalDriver driver;
    int mostOpen = 0;
    int dialogs = 0;
    QTimer count;
    QObject::connect(&count, &QTimer::timeout, [&] {
        int open = 0;
        for (QWidget* w : QApplication::topLevelWidgets())
            open += qobject_cast<DialogShutDown*>(w) != nullptr && w->isVisible();
        mostOpen = qMax(mostOpen, open);
    });
    count.start(0);
    // should a second dialog open, the charger comes anyway and ends them
    QTimer rescue;
    rescue.setSingleShot(true);
    QObject::connect(&rescue, &QTimer::timeout, [&] { sim.setAdapter(true); });
    rescue.start(20000);
    Kind<S>::count(driver);
    QWidget* firstParent = nullptr;
    driver.onNext([&](QWidget* w) {
        if (dialogs++ == 0)
            firstParent = w->parentWidget();
        // both polls go on inside the dialog for many of their periods
        QTest::qWait(300);
        sim.setAdapter(true);
    });
    ProgressWatch watch(Kind<S>::progress, [&] {
        sim.forceAdc("battery", 27000);
        sim.command("board fault nostatus once");
        // the menu's bar polls first, before the screen's own poll comes round:
        // the screen then finds that dialog open and must not open its own
        menuBar.visualPowerSupply();
        QTRY_VERIFY_WITH_TIMEOUT(dialogs > 0, 5000);
    });
    S panel(nullptr);
    driver.answerBox();
    panel.show();
    touch(&panel, "Start");
    QVERIFY(watch.done);
    QCOMPARE(panel.template findChildren<InfoBar*>().size(), 0);
    QCOMPARE(mostOpen, 1);
    QCOMPARE(dialogs, 1);
    // the menu's bar opened the dialog: the screen's own check found it open
    QCOMPARE(firstParent, static_cast<QWidget*>(&menuBar));
    QCOMPARE(driver.boxes.size(), 1);
    QCOMPARE(driver.boxes[0].text, QString("Eseguito ripristino modulo potenza."));
}

// Qt 6 shows a progress dialog by itself once its minimum duration has passed
// since it was built; the old toolkit showed one only on show() or once
// setValue had passed that duration. A start refused by its first reading
// never shows the measure's progress, however long its box stays.
template <class S> void noMeasureProgressOverARefusal()
{
    TestRoot root(0.1);
    SimInstrument sim(root);
    configure(root);
    QVERIFY(world(sim, 850, 45));
    QVERIFY(sim.command("set pt100 open"));
    ModalDriver driver;
    QStringList shown;
    Kind<S>::count(driver);
    driver.onNext([&](QWidget* w) {
        // longer than the 4 s a progress dialog waits by default
        QTest::qWait(4500);
        for (QWidget* top : QApplication::topLevelWidgets())
            if (qobject_cast<QProgressDialog*>(top) != nullptr && top->isVisible())
                shown << top->objectName();
        static_cast<QMessageBox*>(w)->accept();
    });
    S panel(nullptr);
    panel.show();
    touch(&panel, "Start");
    QCOMPARE(driver.pending(), 0);
    // the environment's dialog was shown on purpose; the measure's never
    QVERIFY2(!shown.contains("MeasureProgress"), qPrintable(shown.join(' ')));
}

// The board exchange runs event loops in which "Start" can be pressed again,
// by touch or by the hardware key: the old instrument then started a measure
// inside the measure.
template <class S> void startDuringAMeasure()
{
    TestRoot root(0.1);
    SimInstrument sim(root);
    configure(root);
    QVERIFY(world(sim, 850, 45));
    QVERIFY(sim.command("board log clear"));
    ModalDriver driver;
    Kind<S>::count(driver);
    S* screen = nullptr;
    ProgressWatch watch(Kind<S>::progress, [&] {
        child<QPushButton>(screen, "Start")->click();
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(screen, &press);
    });
    S panel(nullptr);
    screen = &panel;
    panel.show();
    child<QPushButton>(&panel, "Start")->setFocus();
    touch(&panel, "Start");
    QVERIFY(watch.done);
    QVERIFY(panel._measureDone);
    QCOMPARE(driver.pending(), 0);
    QCOMPARE(sim.boardCommands().filter("mea_brask").size(), 1);
    QCOMPARE(sim.boardCommands().filter("temp_hsink").size(), 1);
}

// A "Start" whose second reading fails after the ramps were cleared left
// "Salva" on for the earlier measure on the old instrument: saving then wrote
// its figures with a ramp of zeros.
template <class S> void startEndingWithoutACurve()
{
    TestRoot root(0.1);
    SimInstrument sim(root);
    configure(root);
    QVERIFY(world(sim, 850, 45));
    ModalDriver driver;
    Kind<S>::count(driver);
    S panel(nullptr);
    panel.show();
    touch(&panel, "Start");
    QVERIFY(panel._measureDone);
    QVERIFY(child<QPushButton>(&panel, "Salva")->isEnabled());
    QVERIFY(coolHeatSink(sim));
    Kind<S>::count(driver);
    driver.answerBox();
    ProgressWatch watch(Kind<S>::progress, [&] { sim.command("set pt100 open"); });
    touch(&panel, "Start");
    QVERIFY(watch.done);
    QCOMPARE(driver.boxes.size(), 1);
    QCOMPARE(driver.boxes[0].text, QString("Temperatura non rilevata."));
    QVERIFY(!panel._measureDone);
    QVERIFY(!child<QPushButton>(&panel, "Salva")->isEnabled());
}

template <class S> void twoGoodMeasures()
{
    TestRoot root(0.1);
    SimInstrument sim(root);
    configure(root);
    QVERIFY(world(sim, 850, 45));
    ModalDriver driver;
    Kind<S>::count(driver);
    Kind<S>::count(driver);
    S panel(nullptr);
    panel.show();
    touch(&panel, "Start");
    QVERIFY(coolHeatSink(sim));
    touch(&panel, "Start");
    QCOMPARE(driver.boxes.size(), 0);
    QCOMPARE(entries(measuresMenu(&panel)),
             (Kind<S>::menu() + QStringList{"-", "-", "-", Kind<S>::dataEntry, "-", "Potenza"}));
    QVERIFY(sim.command("board status 10"));
    Kind<S>::count(driver);
    driver.answerBox();
    touch(&panel, "Start");
    QCOMPARE(entries(measuresMenu(&panel)), Kind<S>::menu());
}

template <class S> void englishBoardFailure()
{
    TestRoot root(0.1);
    QVERIFY(root.installCatalogues());
    SimInstrument sim(root);
    configure(root, [](_configParam& c) { c.lang = LANG_EN; });
    QVERIFY(world(sim, 850, 45));
    if (qTranslator == nullptr)
        qTranslator = new QTranslator(qApp);
    QVERIFY(loadTranslator(qTranslator, LANG_EN));
    QCoreApplication::installTranslator(qTranslator);
    QVERIFY(sim.command("board status 3"));
    ModalDriver driver;
    Kind<S>::count(driver);
    driver.answerBox();
    S panel(nullptr);
    panel.show();
    QCOMPARE(child<QPushButton>(&panel, "Confronto")->text(), QString("Comparison"));
    touch(&panel, "Start");
    QCOMPARE(driver.boxes.size(), 1);
    QCOMPARE(driver.boxes[0].text, QString("Excessive voltage value."));
    QVERIFY(sim.command("board status 9"));
    Kind<S>::count(driver);
    driver.answerBox();
    touch(&panel, "Start");
    QCOMPARE(driver.boxes[1].text, QString("Voltage too low."));
    loadTranslator(qTranslator, LANG_IT);
}

template <class S> void fourFailedConnections()
{
    TestRoot root(0.1);
    SimInstrument sim(root);
    configure(root, [](_configParam& c) { c.remote = LINK_USB; });
    QVERIFY(world(sim, 820, 40));
    QVERIFY(sim.command("remote link none"));
    ModalDriver driver;
    Kind<S>::count(driver);
    driver.answerBox();
    driver.answerBox();
    S panel(nullptr);
    panel.show();
    touch(&panel, "Start");
    QCOMPARE(driver.boxes.size(), 2);
    QCOMPARE(driver.boxes[0].title, QString("Unità Remota"));
    QCOMPARE(driver.boxes[0].text, QString("Non connessa o assente."));
    QCOMPARE(driver.boxes[0].icon, QMessageBox::Critical);
    QCOMPARE(driver.boxes[1].title, QString("Misure Ambiente"));
    QCOMPARE(driver.boxes[1].text, QString("Temperatura non rilevata."));
    QCOMPARE(driver.boxes[1].icon, QMessageBox::Warning);
    QVERIFY(!panel._measureDone);
    QVERIFY(!sim.boardCommands().join(' ').contains("mea_brask")); // no ramp
}

template <class S> void remoteOnUsb()
{
    TestRoot root(0.1);
    SimInstrument sim(root);
    configure(root, [](_configParam& c) { c.remote = LINK_USB; });
    QVERIFY(world(sim, 820, 40));
    QVERIFY(sim.command("remote gen 2"));
    QVERIFY(sim.command("remote link usb 0"));
    ModalDriver driver;
    Kind<S>::count(driver);
    S panel(nullptr);
    panel.show();
    touch(&panel, "Start");
    QVERIFY(panel._measureDone);
    QVERIFY2(std::fabs(panel._irradiance - 820) < 2.0f,
             qPrintable(QString::number(panel._irradiance)));
    QVERIFY2(std::fabs(panel._temperature - 40) < 0.5f,
             qPrintable(QString::number(panel._temperature)));
    QVERIFY2(sim.call("remote log").contains("VERSION"), sim.call("remote log").constData());
}

template <class S> void clockBySetting()
{
    QFETCH(int, mode);
    QFETCH(QString, pattern);
    TestRoot root(0.1);
    configure(root, [mode](_configParam& c) { c.tclock = static_cast<_displayClock>(mode); });
    S panel(nullptr);
    panel.show();
    QLabel* clock = child<QLabel>(&panel, "clock");
    QVERIFY2(QRegularExpression(pattern).match(clock->text()).hasMatch(),
             qPrintable(clock->text()));
    QCOMPARE(clock->font().pointSize(), 28);
    panel._config.tclock = static_cast<_displayClock>(7);
    panel.displayClock();
    QCOMPARE(clock->text(), QString());
    bool clockTimer = false;
    for (const Clock::Wait& w : Clock::waits())
        clockTimer |= w.kind == Clock::Timer && w.micros == 60000000LL;
    QVERIFY(clockTimer);
}

template <class S> void supplyPictures()
{
    TestRoot root(0.1);
    SimInstrument sim(root);
    configure(root);
    QVERIFY(sim.setAdapter(true));
    S panel(nullptr);
    panel.show();
    QLabel* supply = child<QLabel>(&panel, "supply");
    QTRY_COMPARE(supply->pixmap().toImage(), QPixmap(":/icon/vac-adapter.png").toImage());
    QVERIFY(sim.setAdapter(false));
    QVERIFY(sim.forceAdc("battery", 31500));
    QTRY_COMPARE(supply->pixmap().toImage(), QPixmap(":/icon/vbattery-25.png").toImage());
    bool supplyTimer = false;
    for (const Clock::Wait& w : Clock::waits())
        supplyTimer |= w.kind == Clock::Timer && w.micros == 700000LL;
    QVERIFY(supplyTimer);
}

} // namespace

class TestScreenMeasure : public QObject
{
    Q_OBJECT

public:
    static void initMain() { useInstrumentScreen(); }

private slots:
    void initTestCase()
    {
        useInstrumentDpi();
        setInstrumentLook();
    }

    void goodMeasureDrawsTheCurveAndEnablesSave_data() { screens(); }
    void goodMeasureDrawsTheCurveAndEnablesSave() { ON_THE_SCREEN(goodMeasure); }

    // ---- Heat sink
    void heatSinkAt65RefusesTheRampWithTheCoolingMessage_data() { screens(); }
    void heatSinkAt65RefusesTheRampWithTheCoolingMessage() { ON_THE_SCREEN(heatSink65); }
    void heatSinkAt64_9RunsTheRamp_data() { screens(); }
    void heatSinkAt64_9RunsTheRamp() { ON_THE_SCREEN(heatSink64_9); }

    // ---- The environment before the ramp
    void automaticAndManualTemperatureReadNoSensor_data()
    {
        QTest::addColumn<QString>("screen");
        QTest::addColumn<int>("probe");
        QTest::addColumn<float>("expected");
        for (const char* s : {"PanelIV", "StringIV"}) {
            QTest::addRow("%s automatic", s) << QString(s) << int(PROBE_AUTO) << -20.0f;
            QTest::addRow("%s manual", s) << QString(s) << int(PROBE_MANUAL) << 37.5f;
        }
    }
    void automaticAndManualTemperatureReadNoSensor() { ON_THE_SCREEN(automaticAndManual); }
    void openTemperatureProbeRefusesTheStart_data() { screens(); }
    void openTemperatureProbeRefusesTheStart() { ON_THE_SCREEN(openTemperatureProbe); }
    void temperatureAndIrradianceBothMissingSpeaksOfTheTemperatureOnly_data() { screens(); }
    void temperatureAndIrradianceBothMissingSpeaksOfTheTemperatureOnly()
    {
        ON_THE_SCREEN(bothMissing);
    }
    void missingIrradianceRefusesTheStart_data() { screens(); }
    void missingIrradianceRefusesTheStart() { ON_THE_SCREEN(missingIrradiance); }
    void irradianceEqualToIrrminPassesAndJustBelowIsRefused_data() { screens(); }
    void irradianceEqualToIrrminPassesAndJustBelowIsRefused() { ON_THE_SCREEN(irrminBoundary); }
    void refusedStartLeavesTheOldCurveAndVerdictStanding_data() { screens(); }
    void refusedStartLeavesTheOldCurveAndVerdictStanding() { ON_THE_SCREEN(refusedStart); }
    void secondReadingDecidesNothingButAMissingValue_data() { screens(); }
    void secondReadingDecidesNothingButAMissingValue()
    {
        ON_THE_SCREEN(secondReadingDecidesNothing);
    }
    void secondReadingWithoutTemperatureEndsTheMeasureWithoutTheFailurePath_data() { screens(); }
    void secondReadingWithoutTemperatureEndsTheMeasureWithoutTheFailurePath()
    {
        ON_THE_SCREEN(secondReadingWithoutTemperature);
    }

    // ---- The irradiance check
    void irradianceFallFrom800To786ClearsTheStandardValues_data() { screens(); }
    void irradianceFallFrom800To786ClearsTheStandardValues() { ON_THE_SCREEN(fall800To786); }
    void irradianceFallFrom700To685KeepsTheStandardValues_data() { screens(); }
    void irradianceFallFrom700To685KeepsTheStandardValues() { ON_THE_SCREEN(fall700To685); }

    // ---- Board failures
    void boardConditionsShowTheirTexts_data()
    {
        QTest::addColumn<QString>("screen");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("text");
        const QList<QPair<int, QString>> rows = {{3, "Tensione Eccessiva."},
                                                 {4, "Corrente Eccessiva."},
                                                 {5, "Potenza Eccessiva."},
                                                 {6, "Energia Eccessiva."},
                                                 {7, "Polarità Inversa."},
                                                 {8, "Negativo Flottante."},
                                                 {9, "Tensione troppo bassa."},
                                                 {10, "Corrente troppo bassa."},
                                                 {11, QString(coolingText())},
                                                 {1, QString()},
                                                 {2, QString()}};
        for (const char* s : {"PanelIV", "StringIV"})
            for (const auto& row : rows)
                QTest::addRow("%s %d", s, row.first) << QString(s) << row.first << row.second;
    }
    void boardConditionsShowTheirTexts() { ON_THE_SCREEN(boardConditions); }
    void boardError1OpensAnEmptyBoxAndTakesTheFailurePath_data() { screens(); }
    void boardError1OpensAnEmptyBoxAndTakesTheFailurePath() { ON_THE_SCREEN(boardError1); }
    void silentBoardIsALostConnection_data() { screens(); }
    void silentBoardIsALostConnection() { ON_THE_SCREEN(silentBoard); }
    void exhaustedBatteryDuringARampOpensTheShutDownDialogAndTheNextSilenceIsARestoration_data()
    {
        screens();
    }
    void exhaustedBatteryDuringARampOpensTheShutDownDialogAndTheNextSilenceIsARestoration()
    {
        ON_THE_SCREEN(exhaustedBattery);
    }

    void numberIsANumber_nulInsideTheRampIsALostConnection_data() { screens(); }
    void numberIsANumber_nulInsideTheRampIsALostConnection() { ON_THE_SCREEN(nulInsideTheRamp); }
    void oneBatteryDialogWithTheMenusBarBehindTheScreen_data() { screens(); }
    void oneBatteryDialogWithTheMenusBarBehindTheScreen() { ON_THE_SCREEN(oneBatteryDialog); }
    void qt6IsNotTheOldToolkit_noMeasureProgressOverARefusalBoxKeptOpen_data() { screens(); }
    void qt6IsNotTheOldToolkit_noMeasureProgressOverARefusalBoxKeptOpen()
    {
        ON_THE_SCREEN(noMeasureProgressOverARefusal);
    }

    // ---- One measure at a time
    void startPressedDuringAMeasureIsIgnored_data() { screens(); }
    void startPressedDuringAMeasureIsIgnored() { ON_THE_SCREEN(startDuringAMeasure); }
    void storedDataNeverLost_startEndingWithoutACurveTurnsSaveOff_data() { screens(); }
    void storedDataNeverLost_startEndingWithoutACurveTurnsSaveOff()
    {
        ON_THE_SCREEN(startEndingWithoutACurve);
    }

    // ---- The measures menu
    void twoGoodMeasuresLeaveTwoExtraSeparators_data() { screens(); }
    void twoGoodMeasuresLeaveTwoExtraSeparators() { ON_THE_SCREEN(twoGoodMeasures); }

    // ---- The remote unit
    void fourFailedConnectionsGiveTheRemoteUnitBoxThenTheTemperatureBox_data() { screens(); }
    void fourFailedConnectionsGiveTheRemoteUnitBoxThenTheTemperatureBox()
    {
        ON_THE_SCREEN(fourFailedConnections);
    }
    void remoteUnitOnUsbGivesTheEnvironmentOfTheMeasure_data() { screens(); }
    void remoteUnitOnUsbGivesTheEnvironmentOfTheMeasure() { ON_THE_SCREEN(remoteOnUsb); }

    // ---- Language
    void boardFailureShowsItsEnglishTextWithLanguage1_data() { screens(); }
    void boardFailureShowsItsEnglishTextWithLanguage1() { ON_THE_SCREEN(englishBoardFailure); }

    // ---- Clock and supply
    void clockShowsDateAndTimeByTheSetting_data()
    {
        QTest::addColumn<QString>("screen");
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("pattern");
        for (const char* s : {"PanelIV", "StringIV"}) {
            QTest::addRow("%s date and time", s)
                << QString(s) << 0 << "^\\d{1,2}/\\d\\d/\\d\\d\\n\\d\\d:\\d\\d$";
            QTest::addRow("%s date", s) << QString(s) << 1 << "^\\d{1,2}/\\d\\d/\\d\\d\\n$";
            QTest::addRow("%s time", s) << QString(s) << 2 << "^\\d\\d:\\d\\d$";
        }
    }
    void clockShowsDateAndTimeByTheSetting() { ON_THE_SCREEN(clockBySetting); }
    void supplyShowsTheAdapterOrTheBatteryLevel_data() { screens(); }
    void supplyShowsTheAdapterOrTheBatteryLevel() { ON_THE_SCREEN(supplyPictures); }
};

QTEST_MAIN(TestScreenMeasure)
#include "tst_screenmeasure.moc"
