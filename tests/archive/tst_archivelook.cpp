#include "archive/archivepanel.h"
#include "support/lookcheck.h"
#include "support/screenshot.h"
#include "support/siminstrument.h"
#include "support/testroot.h"
#include "toolkit/titlestrip.h"

#include <QPushButton>
#include <QtTest>

// The module archive's menu with the instrument's look: its title drawn and
// the button the keys act on marked.
class TestArchiveLook : public QObject
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

    void operatorSeesWhereTheyAre_archiveMenuTitleAndFocusByTheKeys()
    {
        TestRoot root(1.0);
        SimInstrument sim(root);
        ArchivePanel panel(nullptr);
        panel.resize(1024, 600);
        panel.show();
        QVERIFY(QTest::qWaitForWindowActive(&panel));
        QVERIFY(TitleStrip::of(&panel) != nullptr);
        QCOMPARE(TitleStrip::of(&panel)->text(), QString("Archivio Moduli"));

        QPushButton* first = panel.findChild<QPushButton*>("Nuovo Modulo");
        QVERIFY(first);
        QStringList faults = focusMarkFaultsByKey(&panel, sim, first, "down");
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
        saveScreenshot(&panel, "look-archive-focus");
        faults = legibilityFaults(&panel);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }
};

QTEST_MAIN(TestArchiveLook)
#include "tst_archivelook.moc"
