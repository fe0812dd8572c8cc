#include "archive/archivepanel.h"
#include "support/lookcheck.h"
#include "support/screenshot.h"
#include "support/siminstrument.h"
#include "support/testroot.h"
#include "toolkit/titlestrip.h"

#include <QPushButton>
#include <QTime>
#include <QtTest>

// The module archive's menu with the instrument's look: its title drawn and
// the button the keys act on marked.
class TestArchiveLook : public QObject
{
    Q_OBJECT

    static QString focused()
    {
        QWidget* w = QApplication::focusWidget();
        return w == nullptr ? QString() : w->objectName();
    }
    static void press(const SimInstrument& sim, const char* key)
    {
        const QString before = focused();
        QVERIFY(sim.pressKey(key));
        QTRY_VERIFY_WITH_TIMEOUT(focused() != before, 2000);
        QVERIFY(sim.releaseKey(key));
    }

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
        first->setFocus();
        QTRY_COMPARE(focused(), QString("Nuovo Modulo"));
        for (int attempt = 0; attempt < 2; ++attempt) {
            const int minute = QTime::currentTime().minute();
            if (focused() != "Nuovo Modulo") {
                press(sim, "up");
                QCOMPARE(focused(), QString("Nuovo Modulo"));
            }
            const QImage before = grabScreen(&panel);
            press(sim, "down");
            QWidget* second = QApplication::focusWidget();
            QVERIFY(second != nullptr && second != first);
            const QImage after = grabScreen(&panel);
            if (QTime::currentTime().minute() != minute)
                continue;
            saveScreenshot(&panel, "look-archive-focus");
            QStringList faults = focusMarkFaults(&panel, before, after, first, second);
            QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
            faults = focusMarkFaults(&panel, after, before, second, first);
            QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
            break;
        }
        const QStringList faults = legibilityFaults(&panel);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }
};

QTEST_MAIN(TestArchiveLook)
#include "tst_archivelook.moc"
