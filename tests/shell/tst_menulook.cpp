#include "shell/language.h"
#include "shell/orvia.h"
#include "support/lookcheck.h"
#include "support/screenshot.h"
#include "support/siminstrument.h"
#include "support/testroot.h"

#include <QPushButton>
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
        // Down goes from System to the archive of modules
        QStringList faults = focusMarkFaultsByKey(&menu, sim, system, "down");
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
        QCOMPARE(QApplication::focusWidget(), modules);
        saveScreenshot(&menu, "look-menu-focus");
        faults = legibilityFaults(&menu);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }
};

QTEST_MAIN(TestMenuLook)
#include "tst_menulook.moc"
