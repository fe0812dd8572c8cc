// What an operator in the sun sees on the stick's screens: a focus mark that
// the instrument's keys move from button to button, and every text legible
// in each of the five languages.
#include "support/fivelanguages.h"
#include "support/lookcheck.h"
#include "support/screenshot.h"
#include "support/siminstrument.h"
#include "support/testroot.h"
#include "usb/dialogcopyfrom.h"
#include "usb/dialogcopyto.h"
#include "usb/dialogfileupg.h"
#include "usb/usbdialog.h"
#include "usbfixture.h"

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

    // The stick's screen, both folder walks and the upgrade file list, with
    // a stick in, in each of the five languages.
    void operatorSeesWhereTheyAre_usbScreensFitInFiveLanguages_data() { languageRows(); }
    void operatorSeesWhereTheyAre_usbScreensFitInFiveLanguages()
    {
        QFETCH(int, lang);
        ShownLanguage shown(lang);
        QVERIFY(shown.loaded());
        TestRoot root(0.01);
        SimInstrument sim(root);
        QVERIFY(sim.setAdapter(true));
        QVERIFY(usb::mountedStick(sim));
        const QString stick = sim.stickPath();
        QVERIFY(usb::makeDirs(stick, {"Impianti 2024/Rossi", "Documenti", "backup/KRM510Data"}));
        QVERIFY(usb::writeFile(stick + "/krm510-3.0.upg", QByteArray()));
        QVERIFY(usb::writeFile(stick + "/nuovo-upg-krm510.tar", QByteArray()));
        QStringList faults;
        {
            UsbDialog d(nullptr);
            faults += shootInLanguage(&d, "usb-screen", lang);
        }
        {
            DialogCopyFrom d(nullptr);
            faults += shootInLanguage(&d, "usb-copy-from", lang);
        }
        {
            DialogCopyTo d(nullptr);
            faults += shootInLanguage(&d, "usb-copy-to", lang);
        }
        {
            DialogFileUpg d(nullptr);
            faults += shootInLanguage(&d, "usb-upgrade-files", lang);
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }
};

QTEST_MAIN(TestUsbLook)
#include "tst_usblook.moc"
