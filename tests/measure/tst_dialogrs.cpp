#include "device/ad7795.h"
#include "measure/dialogrs.h"
#include "measure/dialogviewrs.h"
#include "measure/panelfixture.h"
#include "platform/clock.h"
#include "support/lookcheck.h"
#include "support/modaldriver.h"
#include "support/screenshot.h"

#include <QLabel>
#include <cmath>
#include <limits>

using namespace panelfixture;

// The series resistance test, driven as the operator does: the irradiance
// read once a second, the two phases pressed by hand, on the simulated
// instrument. Exact irradiances come from a second-generation remote unit,
// whose readings are decimal texts.
class TestDialogRs : public QObject
{
    Q_OBJECT

    // The simulated world with the remote unit on its USB adapter.
    static bool remoteWorld(const TestRoot& root, const SimInstrument& sim, double g)
    {
        configure(root, [](_configParam& c) { c.remote = LINK_USB; });
        return world(sim, g, 40) && sim.command("remote gen 2");
    }
    // Waits until the one second reading shows the irradiance g.
    static bool reads(DialogRs& d, float g)
    {
        for (int i = 0; i < 500; i++) {
            if (d._irradianceValid && d._irradiance == g && d._buttonMeasure->isEnabled())
                return true;
            QTest::qWait(10);
        }
        qWarning("irradiance %f, valid %d", double(d._irradiance), d._irradianceValid);
        return false;
    }
    // Sets the irradiance, waits for it and presses the measure button.
    static bool press(const SimInstrument& sim, DialogRs& d, double g)
    {
        if (!sim.setIrradiance(g) || !reads(d, float(g)))
            return false;
        QTest::mouseClick(d._buttonMeasure, Qt::LeftButton);
        return true;
    }

public:
    static void initMain() { useInstrumentScreen(); }

private slots:
    void initTestCase()
    {
        useInstrumentDpi();
        setInstrumentLook();
    }

    void measureButtonStaysDisabledWhileNoIrradianceIsRead()
    {
        TestRoot root(0.05);
        SimInstrument sim(root);
        QVERIFY(remoteWorld(root, sim, 900));
        QVERIFY(sim.command("remote novalue irr on"));
        ModalDriver driver;
        DialogRs d(nullptr);
        QCOMPARE(d._buttonMeasure->text(), QString("Misura Fase 1"));
        QVERIFY(!d._buttonMeasure->isEnabled());
        d.show();
        QTRY_VERIFY_WITH_TIMEOUT(d._timerEnv != nullptr, 10000);
        QCOMPARE(d._labelStatus->text(), QString("Collegamento Remoto..."));
        QTest::qWait(300); // a few readings at 1 s
        QVERIFY(!d._buttonMeasure->isEnabled());
        QVERIFY(std::isnan(d._irradiance));
        QCOMPARE(d._labelIrradiance->text(), QString("----"));
        QVERIFY(driver.boxes.isEmpty()); // no message: the test is simply blocked
        QVERIFY(sim.command("remote novalue irr off"));
        QVERIFY(reads(d, 900.0f));
        QCOMPARE(d._labelIrradiance->text(), QString("900.00"));
        QCOMPARE(d._timerEnv->interval(), Clock::interval(1000));
    }
    void firstPhaseAtExactly500IsAcceptedAndJustBelowRefused()
    {
        TestRoot root(0.05);
        SimInstrument sim(root);
        QVERIFY(remoteWorld(root, sim, 499.9));
        ModalDriver driver;
        driver.answerBox();
        DialogRs d(nullptr);
        d.show();
        QVERIFY(press(sim, d, 499.9));
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].title, QString("Irradiazione"));
        QCOMPARE(driver.boxes[0].text, QString("Irradiazione troppo bassa."));
        QCOMPARE(d._fase, FASE_1);
        QCOMPARE(d._buttonMeasure->text(), QString("Misura Fase 1"));
        QVERIFY(press(sim, d, 500.0));
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(d._fase, FASE_2);
        QCOMPARE(d._irr1, 500.0f);
        QVERIFY(d._r1 > 0.1f);
        QCOMPARE(d._buttonMeasure->text(), QString("Misura Fase 2"));
        QVERIFY(!d._done);
        QCOMPARE(d._labelRs->text(), QString("----"));
        QVERIFY(d._timerEnv->isActive()); // started again after the press
    }
    void firstPhaseBoundaryWithTheLocalSensorCounts()
    {
        TestRoot root(0.05);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 900, 40));
        int count = 0;
        while (calc_irr(count) < 500.0f)
            count++;
        QVERIFY(calc_irr(count - 1) < 500.0f);
        ModalDriver driver;
        driver.answerBox();
        DialogRs d(nullptr);
        d.show();
        QVERIFY(sim.forceAdc("pyrano", count - 1));
        QVERIFY(reads(d, calc_irr(count - 1)));
        QTest::mouseClick(d._buttonMeasure, Qt::LeftButton);
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(d._fase, FASE_1);
        QVERIFY(sim.forceAdc("pyrano", count));
        QVERIFY(reads(d, calc_irr(count)));
        QTest::mouseClick(d._buttonMeasure, Qt::LeftButton);
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(d._fase, FASE_2);
    }
    void secondPhaseDifferenceOfExactly50IsAcceptedAndLessRefused()
    {
        TestRoot root(0.05);
        SimInstrument sim(root);
        QVERIFY(remoteWorld(root, sim, 500));
        ModalDriver driver;
        driver.answerBox();
        DialogRs d(nullptr);
        d.show();
        QVERIFY(press(sim, d, 500.0));
        QCOMPARE(d._fase, FASE_2);
        QVERIFY(press(sim, d, 450.1));
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].text, QString("Irradiazione troppo bassa."));
        QCOMPARE(d._fase, FASE_2);
        QVERIFY(!d._done);
        QVERIFY(press(sim, d, 450.0));
        QCOMPARE(driver.boxes.size(), 1);
        QVERIFY(d._done);
        QCOMPARE(d._fase, FASE_1);
        QCOMPARE(d._irr2, 450.0f);
        QCOMPARE(d._buttonMeasure->text(), QString("Misura Fase 1"));
        // the first phase's figure wins: a resistance is less than an irradiance
        QCOMPARE(d._rs, d._r1);
        QCOMPARE(d._labelRs->text(), QString::number(double(d._rs), 'f', 2));
    }
    void secondPhaseAtExactly200IsAcceptedAndJustBelowRefused()
    {
        TestRoot root(0.05);
        SimInstrument sim(root);
        QVERIFY(remoteWorld(root, sim, 500));
        ModalDriver driver;
        driver.answerBox();
        DialogRs d(nullptr);
        d.show();
        QVERIFY(press(sim, d, 500.0));
        QVERIFY(press(sim, d, 199.9));
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].text, QString("Irradiazione troppo bassa."));
        QVERIFY(!d._done);
        QVERIFY(press(sim, d, 200.0));
        QCOMPARE(driver.boxes.size(), 1);
        QVERIFY(d._done);
        QCOMPARE(d._irr1, 500.0f);
        QCOMPARE(d._irr2, 200.0f);
    }
    void secondPhaseEqualToTheFirstIsRefusedAsTooLowAndAboveAsTooHigh()
    {
        TestRoot root(0.05);
        SimInstrument sim(root);
        QVERIFY(remoteWorld(root, sim, 800));
        ModalDriver driver;
        driver.answerBox();
        driver.answerBox();
        DialogRs d(nullptr);
        d.show();
        QVERIFY(press(sim, d, 800.0));
        QVERIFY(press(sim, d, 800.0));
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].text, QString("Irradiazione troppo bassa."));
        QVERIFY(press(sim, d, 800.1));
        QCOMPARE(driver.boxes.size(), 2);
        QCOMPARE(driver.boxes[1].title, QString("Irradiazione"));
        QCOMPARE(driver.boxes[1].text, QString("Irradiazione troppo alta."));
        QCOMPARE(d._fase, FASE_2);
        QVERIFY(!d._done);
        QCOMPARE(d._buttonMeasure->text(), QString("Misura Fase 2"));
    }
    void failedSecondRampStillGivesTheResultOfTheFirst()
    {
        TestRoot root(0.05);
        SimInstrument sim(root);
        QVERIFY(remoteWorld(root, sim, 900));
        ModalDriver driver;
        driver.answerBox();
        DialogRs d(nullptr);
        d.show();
        QVERIFY(press(sim, d, 900.0));
        const float r1 = d._r1;
        QVERIFY(r1 > 0.1f);
        QVERIFY(sim.command("fault open"));
        QVERIFY(press(sim, d, 600.0));
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].title, QString("Power Device"));
        QCOMPARE(driver.boxes[0].text, QString("Corrente troppo bassa."));
        QVERIFY(d._done);
        QCOMPARE(d._r2, 0.0f);
        QCOMPARE(d._rs, r1);
        QCOMPARE(d._fase, FASE_1);
    }
    void failedFirstRampFallsToTheFloorShownAsDashes()
    {
        TestRoot root(0.05);
        SimInstrument sim(root);
        QVERIFY(remoteWorld(root, sim, 900));
        QVERIFY(sim.command("fault open"));
        ModalDriver driver;
        driver.answerBox();
        DialogRs d(nullptr);
        d.show();
        QVERIFY(press(sim, d, 900.0));
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(d._fase, FASE_2); // the phase moves on after a failed ramp
        QCOMPARE(d._r1, 0.0f);
        QVERIFY(sim.command("fault none"));
        QVERIFY(press(sim, d, 600.0));
        QCOMPARE(driver.boxes.size(), 1);
        QVERIFY(d._done);
        QCOMPARE(d._rs, 0.1f);
        QCOMPARE(d._labelRs->text(), QString("----"));
    }
    void floorIsTakenOnTheValueAsADouble()
    {
        TestRoot root;
        DialogRs d(nullptr);
        d._rs = 0.0999f;
        d.viewRs();
        QCOMPARE(d._rs, 0.1f);
        QCOMPARE(d._labelRs->text(), QString("----"));
        d._rs = 0.1f; // a little above 0.1 as a double: a number
        d.viewRs();
        QCOMPARE(d._labelRs->text(), QString("0.10"));
        d._rs = std::numeric_limits<float>::quiet_NaN();
        d.viewRs();
        QCOMPARE(d._rs, 0.1f);
    }
    void nextFirstPhaseClearsAFinishedResult()
    {
        TestRoot root(0.05);
        SimInstrument sim(root);
        QVERIFY(remoteWorld(root, sim, 900));
        ModalDriver driver;
        driver.answerBox();
        DialogRs d(nullptr);
        d.show();
        QVERIFY(press(sim, d, 900.0));
        QVERIFY(press(sim, d, 600.0));
        QVERIFY(d._done);
        QVERIFY(d._labelRs->text() != "----");
        QVERIFY(press(sim, d, 499.0)); // refused, but the result is gone
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(d._rs, 0.0f);
        QCOMPARE(d._irr2, 0.0f);
        QCOMPARE(d._irr1, 499.0f);
        QCOMPARE(d._labelRs->text(), QString("----"));
    }
    void resetThrowsAwayTheResult()
    {
        TestRoot root(0.05);
        SimInstrument sim(root);
        QVERIFY(remoteWorld(root, sim, 900));
        DialogRs d(nullptr);
        d.show();
        QVERIFY(press(sim, d, 900.0));
        QVERIFY(press(sim, d, 600.0));
        QVERIFY(d._done);
        d._timerEnv->stop(); // no reading between the reset and the look at it
        QTest::mouseClick(d._buttonReset, Qt::LeftButton);
        QVERIFY(!d._done);
        QCOMPARE(d._fase, FASE_1);
        QCOMPARE(d._rs, 0.0f);
        QCOMPARE(d._r1, 0.0f);
        QCOMPARE(d._irr1, 0.0f);
        QCOMPARE(d._irradiance, 0.0f);
        QVERIFY(!d._irradianceValid);
        QVERIFY(!d._buttonMeasure->isEnabled());
        QCOMPARE(d._labelRs->text(), QString("----"));
        QCOMPARE(d._buttonMeasure->text(), QString("Misura Fase 1"));
    }
    void remoteUnitAbsentGivesOneBoxAfterFourAttemptsAndReadsNothing()
    {
        TestRoot root(0.05);
        SimInstrument sim(root);
        QVERIFY(remoteWorld(root, sim, 900));
        QVERIFY(sim.command("remote link none"));
        ModalDriver driver;
        driver.answerBox();
        Clock::clearWaits();
        DialogRs d(nullptr);
        d.show();
        QTRY_COMPARE_WITH_TIMEOUT(driver.boxes.size(), 1, 10000);
        QCOMPARE(driver.boxes[0].title, QString("Unità Remota"));
        QCOMPARE(driver.boxes[0].text, QString("Non connessa o assente."));
        QCOMPARE(Clock::requested(Clock::SingleShot), 600000LL);
        QTRY_VERIFY(d._timerEnv != nullptr && d._timerEnv->isActive());
        QTest::qWait(200);
        QVERIFY(!d._buttonMeasure->isEnabled());
        QCOMPARE(driver.boxes.size(), 1);
    }
    void keysWalkBetweenMeasureAndOkAndReturnActsOnTheFocus()
    {
        TestRoot root(0.05);
        SimInstrument sim(root);
        QVERIFY(remoteWorld(root, sim, 900));
        ModalDriver driver;
        DialogRs d(nullptr);
        d.show();
        d.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&d));
        QVERIFY(reads(d, 900.0f));
        d._buttonExit->setFocus();
        QTest::keyClick(&d, Qt::Key_Up);
        QVERIFY(d._buttonMeasure->hasFocus());
        QTest::keyClick(&d, Qt::Key_Down);
        QVERIFY(d._buttonExit->hasFocus());
        d._buttonReset->setFocus();
        QTest::keyClick(&d, Qt::Key_Down);
        QVERIFY(d._buttonMeasure->hasFocus());
        QTest::keyClick(&d, Qt::Key_Return);
        QCOMPARE(d._fase, FASE_2);
        d.activateWindow(); // the ramp's progress window took the activation
        QVERIFY(QTest::qWaitForWindowActive(&d));
        d._buttonReset->setFocus();
        QVERIFY(d._buttonReset->hasFocus());
        QTest::keyClick(&d, Qt::Key_Return);
        QCOMPARE(d._fase, FASE_1);
        QTest::keyClick(&d, Qt::Key_Escape);
        QVERIFY(!d.isVisible());
    }
    void eachPhaseIsLegible()
    {
        TestRoot root(0.05);
        SimInstrument sim(root);
        QVERIFY(remoteWorld(root, sim, 900));
        DialogRs d(nullptr);
        d.show();
        QVERIFY(reads(d, 900.0f));
        QStringList faults = legibilityFaults(&d);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
        QVERIFY(!saveScreenshot(&d, "dialogrs-phase1").isEmpty());
        QVERIFY(press(sim, d, 900.0));
        QVERIFY(reads(d, 900.0f));
        faults = legibilityFaults(&d);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
        QVERIFY(!saveScreenshot(&d, "dialogrs-phase2").isEmpty());
        QVERIFY(press(sim, d, 600.0));
        QVERIFY(d._done);
        faults = legibilityFaults(&d);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
        QVERIFY(!saveScreenshot(&d, "dialogrs-result").isEmpty());
    }

    // ---- DialogViewRs
    void viewShowsTheStoredResultAndNanAsDashes()
    {
        TestRoot root;
        DialogViewRs v(nullptr, 0.456f, 900.04f, std::numeric_limits<float>::quiet_NaN());
        QCOMPARE(v.objectName(), QString("RsDataMeasures"));
        QCOMPARE(v.windowTitle(), QString("Rs"));
        QCOMPARE(v.findChild<QLabel*>("Rs")->text(), QString("0.46"));
        QCOMPARE(v.findChild<QLabel*>("Irr. 1")->text(), QString("900.04"));
        QCOMPARE(v.findChild<QLabel*>("Irr. 2")->text(), QString("----"));
        v.show();
        QVERIFY(QTest::qWaitForWindowExposed(&v));
        QStringList faults = legibilityFaults(&v);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
        QVERIFY(!saveScreenshot(&v, "dialogviewrs").isEmpty());
        QTest::mouseClick(v.findChild<QPushButton*>("OK"), Qt::LeftButton);
        QVERIFY(!v.isVisible());
        QCOMPARE(v.result(), int(QDialog::Rejected));
    }
};

QTEST_MAIN(TestDialogRs)
#include "tst_dialogrs.moc"
