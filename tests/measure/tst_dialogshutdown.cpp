#include "measure/dialogshutdown.h"
#include "support/modaldriver.h"
#include "support/siminstrument.h"
#include "support/testroot.h"

#include <QLabel>
#include <QPushButton>
#include <QtTest>

class TestDialogShutDown : public QObject
{
    Q_OBJECT
private slots:
    void chargerAtOpeningClosesAtTheFirstTickAndTheBoardIsCycled()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        QVERIFY(sim.setAdapter(true));
        QCOMPARE(sim.field("power", "writes"), QByteArray("0"));
        {
            DialogShutDown dialog(nullptr);
            QCOMPARE(sim.powerLineLevel(), 1); // board off while the dialog stands
            dialog.exec();
        }
        QCOMPARE(sim.powerLineLevel(), 0); // supplied again
        QCOMPARE(sim.field("power", "writes"), QByteArray("2"));
    }
    void showsTheWarningTexts()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        DialogShutDown dialog(nullptr);
        QCOMPARE(dialog.windowTitle(), QString("Batteria"));
        QStringList texts;
        for (QLabel* label : dialog.findChildren<QLabel*>())
            texts << label->text();
        QVERIFY(texts.contains("Batteria Insufficiente."));
        QVERIFY(texts.contains("Ricaricare la batteria."));
        QVERIFY(dialog.findChildren<QPushButton*>().isEmpty());
    }
    void noKeyLeadsOutOnlyTheCharger()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        QVERIFY(sim.setAdapter(false));
        ModalDriver driver;
        bool stillOpen = false;
        driver.onNext([&](QWidget* w) {
            QTest::keyClick(w, Qt::Key_Escape);
            QTest::keyClick(w, Qt::Key_Return);
            QTest::qWait(30); // several 600 ms ticks on the scaled clock
            stillOpen = w->isVisible();
            sim.setAdapter(true);
        });
        DialogShutDown dialog(nullptr);
        dialog.exec();
        QVERIFY(stillOpen);
        QCOMPARE(driver.pending(), 0);
    }
};

QTEST_MAIN(TestDialogShutDown)
#include "tst_dialogshutdown.moc"
