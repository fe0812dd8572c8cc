// The service menu of the measuring board: reached only through
// Orvia::goToBraskDebug, its nine buttons, its folder and its entries.
#include "data/direntry.h"
#include "debugbrask/dialogbraskdebug.h"
#include "servicefixture.h"
#include "shell/language.h"
#include "shell/orvia.h"
#include "toolkit/infobar.h"

#include <QGridLayout>
#include <QTranslator>
#include <ctime>

using namespace service;

class TestServiceMenu : public QObject
{
    Q_OBJECT

    static QString focused()
    {
        QWidget* w = QApplication::focusWidget();
        return w == nullptr ? QString() : w->objectName();
    }
    // One press of a hardware key through the simulator: the line reads
    // pressed at the next poll only.
    static void tap(const SimInstrument& sim, const char* key, const char* expected)
    {
        QVERIFY(sim.command(QByteArray("key tap ") + key));
        QTRY_COMPARE(focused(), QString(expected));
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

    void serviceMenuIsReachedOnlyThroughGoToBraskDebug()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        configure(root);
        Orvia menu;
        menu.show();
        // every key ring of the main menu: the service button is never on it
        QStringList seen;
        for (const char* key : {"down", "up", "tab", "backtab"})
            for (int i = 0; i < 10; i++) {
                QVERIFY(sim.command(QByteArray("key tap ") + key));
                QTest::qWait(10);
                seen << focused();
            }
        QVERIFY(!seen.contains("Brask"));
        QVERIFY(menu.findChildren<DialogBraskDebug*>().isEmpty());
        for (QPushButton* b : menu.findChildren<QPushButton*>())
            QVERIFY(b->text() != "Brask");

        ModalDriver driver;
        QString opened;
        driver.onNext([&opened](QWidget* w) {
            opened = QString(w->metaObject()->className()) + " " + w->objectName() + " " +
                     w->findChild<InfoBar*>()->title();
            QVERIFY(w->windowFlags() & Qt::FramelessWindowHint);
            qobject_cast<QDialog*>(w)->reject();
        });
        menu.goToBraskDebug();
        QCOMPARE(opened, QString("DialogBraskDebug BraskDebug Brask Unit Debug"));
        QVERIFY(menu.findChildren<DialogBraskDebug*>().isEmpty());
    }
    void menuHoldsItsNineButtonsInTheGrid()
    {
        TestRoot root(0.01);
        DialogBraskDebug menu(nullptr);
        QGridLayout* grid = menu.findChild<QGridLayout*>();
        QVERIFY(grid != nullptr);
        QCOMPARE(grid->spacing(), 20);
        const char* cells[5][2] = {{"Volt_mean", "Curr_mean"},
                                   {"Temp_hsink", "Mea_brask User"},
                                   {"Mea_brask Debug", "Z_tst_brask"},
                                   {"Z_kill_brask", "K_sweep_brask"},
                                   {"Exit", nullptr}};
        int count = 0;
        for (int row = 0; row < 5; row++)
            for (int col = 0; col < 2; col++) {
                QLayoutItem* item = grid->itemAtPosition(row, col);
                if (cells[row][col] == nullptr) {
                    QVERIFY(item == nullptr);
                    continue;
                }
                QPushButton* b = qobject_cast<QPushButton*>(item->widget());
                QVERIFY(b != nullptr);
                QCOMPARE(b->text(), QString(cells[row][col]));
                QVERIFY(!b->isFlat());
                count++;
            }
        QCOMPARE(count, 9);
    }
    void openingTheMenuMakesTheServiceFolder()
    {
        TestRoot root(0.01);
        QVERIFY(!root.exists(DIR_DATA_DEBUG));
        DialogBraskDebug menu(nullptr);
        QVERIFY(QFileInfo(root.path(DIR_DATA_DEBUG)).isDir());
    }
    void openingTheMenuMovesAFileInPlaceOfTheServiceFolderAside()
    {
        TestRoot root(0.01);
        QVERIFY(root.write(DIR_DATA_DEBUG, "not a folder"));
        time_t before = time(nullptr);
        DialogBraskDebug menu(nullptr);
        time_t after = time(nullptr);
        QVERIFY(QFileInfo(root.path(DIR_DATA_DEBUG)).isDir());
        QByteArray moved;
        for (time_t t : {before, after}) {
            std::string name = backupDirName(DIR_DATA_DEBUG, t);
            if (root.exists(name.c_str()))
                moved = root.read(name.c_str());
        }
        QCOMPARE(moved, QByteArray("not a folder"));
    }
    void eachButtonOpensItsScreenAndTheScreenGoesAway()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim));
        DialogBraskDebug menu(nullptr);
        menu.show();
        ModalDriver driver;
        QStringList opened;
        const char* names[] = {"Volt_mean",       "Curr_mean",   "Temp_hsink",   "Mea_brask User",
                               "Mea_brask Debug", "Z_tst_brask", "Z_kill_brask", "K_sweep_brask"};
        for (const char* name : names) {
            driver.onNext([&opened](QWidget* w) {
                opened << w->metaObject()->className();
                qobject_cast<QDialog*>(w)->reject();
            });
            touch(&menu, name);
        }
        QCOMPARE(opened, (QStringList{"DialogVoltMean", "DialogCurrMean", "DialogTempHSink",
                                      "DialogMeaBrask", "DialogMeaBraskDebug", "DialogZTstBrask",
                                      "DialogZKillBrask", "DialogSweepBrask"}));
        QVERIFY(menu.findChildren<QDialog*>().isEmpty());
        saveScreenshotOf(&menu, "service_menu");
        touch(&menu, "Exit");
        QCOMPARE(menu.result(), int(QDialog::Rejected));
    }
    void keysWalkTheMenuAndOpenAnEntry()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        configure(root);
        DialogBraskDebug menu(nullptr);
        menu.show();
        QTRY_COMPARE(focused(), QString("Volt_mean"));
        tap(sim, "down", "Curr_mean");
        tap(sim, "up", "Volt_mean");
        tap(sim, "up", "Exit");
        tap(sim, "down", "Volt_mean");
        tap(sim, "down", "Curr_mean");
        ModalDriver driver;
        QString opened;
        driver.onNext([&opened](QWidget* w) {
            opened = w->metaObject()->className();
            qobject_cast<QDialog*>(w)->reject();
        });
        QVERIFY(sim.command("key tap return"));
        QTRY_COMPARE(opened, QString("DialogCurrMean"));
        QVERIFY(sim.command("key tap escape"));
        QTRY_VERIFY(!menu.isVisible());
    }
};

QTEST_MAIN(TestServiceMenu)
#include "tst_servicemenu.moc"
