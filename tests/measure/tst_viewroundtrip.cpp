#include "archive/listmeasures.h"
#include "measure/screenkinds.h"
#include "measure/viewmeasures.h"
#include "support/modaldriver.h"
#include "support/screenshot.h"
#include "toolkit/look.h"

#include <QLabel>
#include <QListWidget>
#include <cmath>

using namespace panelfixture;
using namespace screenkinds;

// A module and a string measured on the simulated instrument and saved by
// their screens, then looked at again from the measure archive: the viewer
// shows what the measuring screen showed.
class TestViewRoundTrip : public QObject
{
    Q_OBJECT

    // What the operator reads on a screen with a measure.
    struct Shown {
        QMap<QString, QString> data; // the electrical data's figures
        QString pmaxOpc;             // the Pmax printed beside each power curve
        QString pmaxStc;
        int verdict = -1;
        bool verdictShown = false;
        QVector<QPointF> opc; // the curves on the plot
        QVector<QPointF> stc;
    };

    static QString pmaxText(Plotter* plotter)
    {
        return "Pmax = " + QString::number(plotter->pmaxLabel, 'f', 2) + "W";
    }

    // The figures of the electrical data dialog that "action" opens.
    static QMap<QString, QString> dataOf(ModalDriver& driver, const std::function<void()>& action)
    {
        QMap<QString, QString> map;
        driver.onWindow("DialogDatiElettrici", [&](QWidget* d) {
            for (QLabel* l : d->findChildren<QLabel*>())
                if (l->objectName().endsWith("_OPC") || l->objectName().endsWith("_STC"))
                    map[l->objectName()] = l->text();
            QTest::keyClick(d, Qt::Key_Escape);
        });
        action();
        return map;
    }

    // The screen's figures, curves and power labels after "Confronto".
    template <class S> static Shown shownOn(S* screen, ModalDriver& driver)
    {
        Shown s;
        s.opc = screen->plotter()->curves().value(0);
        s.stc = screen->plotter()->curves().value(1);
        s.verdict = screen->plotter()->testResult;
        s.verdictShown = screen->plotter()->isViewPassTest();
        s.data = dataOf(driver, [&] { touchMenu(screen, Kind<S>::dataEntry); });
        touchMenu(screen, "Potenza OPC");
        s.pmaxOpc = pmaxText(screen->plotter());
        touchMenu(screen, "Potenza STC");
        s.pmaxStc = pmaxText(screen->plotter());
        touchMenu(screen, "Potenza STC"); // the power curve off again
        return s;
    }

    // The same, in the viewer opened from the archive's list on its only row.
    static Shown shownInTheViewer(_meaType type, const QString& shot)
    {
        Shown s;
        ListMeasures list(nullptr, type, SELECT_VIEW);
        list.show();
        if (!QTest::qWaitForWindowExposed(&list) || list.listWidget->count() != 2)
            return s;
        QListWidget* w = list.listWidget;
        QTest::mouseClick(w->viewport(), Qt::LeftButton, Qt::NoModifier,
                          w->visualItemRect(w->item(1)).center());
        ModalDriver driver;
        driver.onWindow("ViewMeasures", [&](QWidget* window) {
            ViewMeasures* v = qobject_cast<ViewMeasures*>(window);
            ModalDriver inner;
            s.opc = v->_plotter->curves().value(0);
            s.stc = v->_plotter->curves().value(1);
            s.verdict = v->_plotter->testResult;
            s.verdictShown = v->_plotter->isViewPassTest();
            if (!shot.isEmpty() && QTest::qWaitForWindowExposed(v)) {
                QTest::qWait(50); // maximized
                saveScreenshot(v, shot);
            }
            s.data = dataOf(inner, [&] { touch(v, "Dati"); });
            v->_actionPowerOpc->trigger();
            s.pmaxOpc = pmaxText(v->_plotter);
            v->_actionPowerStc->trigger();
            s.pmaxStc = pmaxText(v->_plotter);
            QTest::keyClick(v, Qt::Key_Escape);
        });
        touch(&list, "Grafico");
        return s;
    }

    // The largest difference of current and of voltage between two curves,
    // point by point; -1 when they are not both whole.
    static void largestDifference(const QVector<QPointF>& a, const QVector<QPointF>& b, double* di,
                                  double* dv)
    {
        *di = *dv = -1;
        if (a.size() != RAMP_POINTS || b.size() != RAMP_POINTS)
            return;
        *di = *dv = 0;
        for (int k = 0; k < RAMP_POINTS; k++) {
            *dv = std::max(*dv, std::fabs(a[k].x() - b[k].x()));
            *di = std::max(*di, std::fabs(a[k].y() - b[k].y()));
        }
    }

    static void compare(const Shown& screen, const Shown& viewer, const char* what)
    {
        QCOMPARE(viewer.data.size(), 14); // five figures, FF and DPmax, at both conditions
        QCOMPARE(viewer.data, screen.data);
        QCOMPARE(viewer.pmaxOpc, screen.pmaxOpc);
        QCOMPARE(viewer.pmaxStc, screen.pmaxStc);
        QCOMPARE(viewer.verdict, screen.verdict);
        QVERIFY(viewer.verdictShown && screen.verdictShown);
        double di = 0;
        double dv = 0;
        largestDifference(screen.opc, viewer.opc, &di, &dv);
        qInfo("%s, operating conditions: largest difference %.4f A, %.4f V", what, di, dv);
        QVERIFY(di >= 0 && di <= 0.02);
        QVERIFY(dv >= 0 && dv <= 0.2);
        largestDifference(screen.stc, viewer.stc, &di, &dv);
        qInfo("%s, standard conditions: largest difference %.4f A, %.4f V", what, di, dv);
        QVERIFY(di >= 0 && di <= 0.02);
        QVERIFY(dv >= 0 && dv <= 0.2);
    }

public:
    static void initMain() { useInstrumentScreen(); }

private slots:
    void initTestCase()
    {
        useInstrumentDpi();
        setInstrumentLook();
    }

    void moduleMeasuredSavedAndViewedShowsWhatTheScreenShowed()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(addModule("Simul", "simul", "SIM 250", "sim_250", simulatedSheet(3)));
        QVERIFY(world(sim, 850, 45));
        Shown measured;
        {
            ModalDriver driver;
            PanelIV panel(nullptr);
            panel.show();
            touch(&panel, "Start");
            QVERIFY(panel._measureDone);
            driver.onNext([](QWidget* r) { chooseInReferenceDialog(r, "Simul", "SIM 250"); });
            driver.onNext([](QWidget* a) { touch(a, "Non Applicare"); });
            touch(&panel, "Confronto");
            QCOMPARE(driver.pending(), 0);
            measured = shownOn(&panel, driver);
            driver.onNext([](QWidget* f) { touch(f, "Salva"); });
            driver.answerBox();
            touch(&panel, "Salva");
            QCOMPARE(driver.boxes.last().text, QString("Misura Salvata."));
        }
        QCOMPARE(measured.data.value("Pmax_STC").isEmpty(), false);
        const Shown viewed = shownInTheViewer(MEA_PANEL, "viewmeasures-roundtrip-module");
        compare(measured, viewed, "module");
    }
    void stringMeasuredSavedAndViewedShowsWhatTheScreenShowed()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(addModule("Simul", "simul", "SIM 250", "sim_250", simulatedSheet(3)));
        QVERIFY(world(sim, 850, 45));
        QVERIFY(sim.setSeries(12));
        Shown measured;
        {
            ModalDriver driver;
            StringIV screen(nullptr);
            screen.show();
            enterCount(driver, 12);
            touch(&screen, "Start");
            QVERIFY(screen._measureDone);
            driver.onNext([](QWidget* r) { chooseInReferenceDialog(r, "Simul", "SIM 250"); });
            driver.onNext([](QWidget* a) { touch(a, "Non Applicare"); });
            touch(&screen, "Confronto");
            QCOMPARE(driver.pending(), 0);
            measured = shownOn(&screen, driver);
            driver.onNext([](QWidget* f) { touch(f, "Salva"); });
            driver.answerBox();
            touch(&screen, "Salva");
            QCOMPARE(driver.boxes.last().text, QString("Misura Salvata."));
        }
        const Shown viewed = shownInTheViewer(MEA_STRING, "viewmeasures-roundtrip-string");
        compare(measured, viewed, "string");
    }
};

QTEST_MAIN(TestViewRoundTrip)
#include "tst_viewroundtrip.moc"
