// What an operator in the sun sees on the stick's screen: a focus mark that
// the instrument's keys move from button to button.
#include "support/lookcheck.h"
#include "support/screenshot.h"
#include "support/siminstrument.h"
#include "support/testroot.h"
#include "usb/usbdialog.h"

#include <QPushButton>
#include <QtTest>

class TestUsbLook : public QObject
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

    void operatorSeesWhereTheyAre_theKeysMoveAVisibleMarkOnTheUsbScreen()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        QVERIFY(sim.setAdapter(true));
        UsbDialog screen(nullptr);
        screen.resize(1024, 600);
        screen.show();
        QVERIFY(QTest::qWaitForWindowActive(&screen));
        QTRY_VERIFY(showsPowerSupply(&screen));
        QWidget* first = screen.findChild<QPushButton*>("Connetti");
        QVERIFY(first != nullptr);
        const QStringList legibility = legibilityFaults(&screen);
        QVERIFY2(legibility.isEmpty(), qPrintable(legibility.join('\n')));
        const QStringList faults = focusMarkFaultsByKey(&screen, sim, first, "down");
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }
};

QTEST_MAIN(TestUsbLook)
#include "tst_usblook.moc"
