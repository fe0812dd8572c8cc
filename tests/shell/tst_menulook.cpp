#include "shell/language.h"
#include "shell/orvia.h"
#include "support/lookcheck.h"
#include "support/screenshot.h"
#include "support/siminstrument.h"
#include "support/testroot.h"

#include <QPushButton>
#include <QTime>
#include <QTranslator>
#include <QtTest>

// The main menu as the operator sees it with the instrument's look: the
// button the keys act on is marked, whichever key brought the focus there.
class TestMenuLook : public QObject
{
    Q_OBJECT

    static QString focused()
    {
        QWidget* w = QApplication::focusWidget();
        return w == nullptr ? QString() : w->objectName();
    }
    // One press of a hardware key, held until the poll has moved the focus.
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
        if (qTranslator == nullptr) {
            qTranslator = new QTranslator(nullptr);
            QCoreApplication::installTranslator(qTranslator);
        }
    }

    void operatorSeesWhereTheyAre_menuFocusMovedByTheKeys()
    {
        TestRoot root(1.0);
        SimInstrument sim(root);
        Orvia menu;
        menu.resize(1024, 600);
        menu.show();
        QVERIFY(QTest::qWaitForWindowActive(&menu));
        QPushButton* system = menu.findChild<QPushButton*>("Sistema");
        QPushButton* modules = menu.findChild<QPushButton*>("ArchivioModuli");
        QVERIFY(system && modules && system->isFlat());
        QTRY_COMPARE(focused(), QString("Sistema"));
        // the status bar's clock may turn between the grabs: then again
        for (int attempt = 0; attempt < 2; ++attempt) {
            const int minute = QTime::currentTime().minute();
            if (focused() != "Sistema") {
                press(sim, "up");
                QCOMPARE(focused(), QString("Sistema"));
            }
            const QImage before = grabScreen(&menu);
            press(sim, "down");
            QCOMPARE(focused(), QString("ArchivioModuli"));
            const QImage after = grabScreen(&menu);
            if (QTime::currentTime().minute() != minute)
                continue;
            saveScreenshot(&menu, "look-menu-focus");
            QStringList faults = focusMarkFaults(&menu, before, after, system, modules);
            QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
            faults = focusMarkFaults(&menu, after, before, modules, system);
            QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
            break;
        }
        const QStringList faults = legibilityFaults(&menu);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }
};

QTEST_MAIN(TestMenuLook)
#include "tst_menulook.moc"
