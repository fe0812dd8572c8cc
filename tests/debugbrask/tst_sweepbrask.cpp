// The gate sweep, Z test and Z kill screens on the simulated board: the
// target entry, the runs, the views and their files, and the series of
// thirteen Z tests saved without a person.
#include "debugbrask/dialogsweepbrask.h"
#include "debugbrask/dialogzkillbrask.h"
#include "debugbrask/dialogztstbrask.h"
#include "servicefixture.h"
#include "toolkit/infobar.h"

#include <QComboBox>
#include <QListWidget>
#include <QRegularExpression>

using namespace service;

class TestSweepBrask : public QObject
{
    Q_OBJECT

    static QList<QByteArray> lines(const QByteArray& file)
    {
        QList<QByteArray> all = file.split('\n');
        if (!all.isEmpty() && all.last().isEmpty())
            all.removeLast();
        return all;
    }

    // Touches the target line and types on the key pad that opens.
    static void typeTarget(QWidget* screen, ModalDriver& driver, const QString& text)
    {
        driver.typeOnKeyboard(text);
        QTest::mouseClick(child<QLineEdit>(screen, "Target"), Qt::LeftButton);
    }

    static void chooseList(QWidget* screen, int index)
    {
        child<QComboBox>(screen, "List")->setCurrentIndex(index);
    }

    // Opens the view, lets look at it, saves with the date, time and comment
    // given; the boxes of the save end up in driver.boxes.
    static void viewAndSave(QWidget* screen, ModalDriver& driver, const QString& date,
                            const QString& time, const QString& comment,
                            std::function<void(QWidget*)> look = {})
    {
        ModalDriver form, keys;
        driver.onNext([&form, &keys, date, time, comment, look](QWidget* view) {
            if (look)
                look(view);
            if (!date.isEmpty()) {
                fillSaveForm(form, keys, date, time, comment);
                touch(view, "Save");
            }
            touch(view, "Exit");
        });
        touch(screen, "Visualizza Dati");
        driver.boxes += form.boxes;
    }

public:
    static void initMain() { useInstrumentScreen(); }

private slots:
    void initTestCase()
    {
        useInstrumentDpi();
        setInstrumentLook();
    }

    void familyScreensOpenWithTargetZeroAndTheListCombo_data()
    {
        QTest::addColumn<int>("screen");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("heading");
        QTest::addColumn<bool>("series");
        QTest::newRow("sweep") << 0 << "Sweep Brask"
                               << "Sweep_Brask"
                               << "Sweep_brask" << false;
        QTest::newRow("Z test") << 1 << "Tst Brask"
                                << "Tst_Brask"
                                << "tst_brask" << true;
        QTest::newRow("Z kill") << 2 << "Kill Brask"
                                << "Kill_Brask"
                                << "Kill_brask" << false;
    }
    void familyScreensOpenWithTargetZeroAndTheListCombo()
    {
        QFETCH(int, screen);
        QFETCH(QString, name);
        QFETCH(QString, title);
        QFETCH(QString, heading);
        QFETCH(bool, series);
        TestRoot root(0.1);
        configure(root);
        QDialog* d = screen == 0   ? static_cast<QDialog*>(new DialogSweepBrask(nullptr))
                     : screen == 1 ? static_cast<QDialog*>(new DialogZTstBrask(nullptr))
                                   : static_cast<QDialog*>(new DialogZKillBrask(nullptr));
        QCOMPARE(d->objectName(), name);
        QCOMPARE(d->findChild<InfoBar*>()->title(), title);
        bool headingFound = false;
        for (QLabel* l : d->findChildren<QLabel*>())
            headingFound = headingFound || l->text() == heading;
        QVERIFY(headingFound);
        QCOMPARE(child<QLineEdit>(d, "Target")->text(), QString("0"));
        QComboBox* list = child<QComboBox>(d, "List");
        QCOMPARE(list->count(), 2);
        QCOMPARE(list->itemText(0), QString("0 = no list"));
        QCOMPARE(list->itemText(1), QString("1 = si list"));
        QVERIFY(!child<QPushButton>(d, "Visualizza Dati")->isEnabled());
        QCOMPARE(d->findChild<QPushButton*>("Esegui Sweep") != nullptr, series);
        delete d;
    }
    void runningWithTarget0AndList0SendsTwoZeros()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim));
        QVERIFY(sim.command("board log clear"));
        ModalDriver driver;
        DialogSweepBrask screen(nullptr);
        screen.show();
        touch(&screen, "Esegui");
        QCOMPARE(driver.boxes.size(), 0);
        QCOMPARE(sim.boardCommands(),
                 (QStringList{"temp_hsink", "Z_sweep_brask 0 0", "temp_hsink"}));
        QCOMPARE(label(&screen, "TempStart"), QString("20"));
        QCOMPARE(label(&screen, "TempStop"), QString("20"));
        QVERIFY(child<QPushButton>(&screen, "Visualizza Dati")->isEnabled());
        QVERIFY(child<QPushButton>(&screen, "Esegui")->isEnabled());
        QVERIFY(child<QPushButton>(&screen, "exit")->isEnabled());
    }
    void targetAndListReachTheBoard_data()
    {
        QTest::addColumn<int>("screen");
        QTest::addColumn<QString>("command");
        QTest::newRow("sweep") << 0 << "Z_sweep_brask 2500 1";
        QTest::newRow("Z test") << 1 << "Z_tst_brask 2500 1";
        QTest::newRow("Z kill") << 2 << "Z_kill_brask 2500 1";
    }
    void targetAndListReachTheBoard()
    {
        QFETCH(int, screen);
        QFETCH(QString, command);
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim));
        ModalDriver driver;
        QDialog* d = screen == 0   ? static_cast<QDialog*>(new DialogSweepBrask(nullptr))
                     : screen == 1 ? static_cast<QDialog*>(new DialogZTstBrask(nullptr))
                                   : static_cast<QDialog*>(new DialogZKillBrask(nullptr));
        d->show();
        typeTarget(d, driver, "2500");
        QCOMPARE(driver.keyboardTitles, QStringList{"Tensione di Gate da Impostare"});
        QCOMPARE(driver.keyboardInitial, QStringList{"0"});
        chooseList(d, 1);
        QVERIFY(sim.command("board log clear"));
        touch(d, "Esegui");
        QCOMPARE(sim.boardCommands().value(1), command);
        delete d;
    }
    void targetEntryTakes0To4095AndRefusesTheRest_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("shown");
        QTest::newRow("4095 taken") << "4095"
                                    << "4095";
        QTest::newRow("0 taken") << "0"
                                 << "0";
        QTest::newRow("0100 shows as 100") << "0100"
                                           << "100";
        QTest::newRow("4096 refused") << "4096"
                                      << "";
        QTest::newRow("-1 refused") << "-1"
                                    << "";
        QTest::newRow("abc refused") << "abc"
                                     << "";
        QTest::newRow("empty refused") << ""
                                       << "";
    }
    void targetEntryTakes0To4095AndRefusesTheRest()
    {
        QFETCH(QString, text);
        QFETCH(QString, shown);
        TestRoot root(0.1);
        configure(root);
        ModalDriver driver;
        DialogZKillBrask screen(nullptr);
        screen.show();
        typeTarget(&screen, driver, "123");
        QCOMPARE(screen.target, 123);
        driver.typeOnKeyboard(text);
        if (shown.isEmpty())
            driver.answerBox();
        QTest::mouseClick(child<QLineEdit>(&screen, "Target"), Qt::LeftButton);
        QCOMPARE(driver.pending(), 0);
        if (shown.isEmpty()) {
            QCOMPARE(driver.boxes.size(), 1);
            QCOMPARE(driver.boxes[0].title, QString("Tensione di Gate inserita."));
            QCOMPARE(driver.boxes[0].text, QString("Troppo lungo."));
            QCOMPARE(driver.boxes[0].informative, "Numero non valido : " + text);
            QCOMPARE(screen.target, 123);
            QCOMPARE(child<QLineEdit>(&screen, "Target")->text(), QString("123"));
        } else {
            QCOMPARE(driver.boxes.size(), 0);
            QCOMPARE(screen.target, shown.toInt());
            QCOMPARE(child<QLineEdit>(&screen, "Target")->text(), shown);
        }
    }

    // ---- Runs, views and files
    void sweepRunSavesItsFile()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim));
        ModalDriver driver;
        DialogSweepBrask screen(nullptr);
        screen.show();
        typeTarget(&screen, driver, "2500");
        touch(&screen, "Esegui");
        viewAndSave(&screen, driver, "2026/03/15", "10:30", "sweep", [&](QWidget* view) {
            QCOMPARE(view->objectName(), QString("Z sweep Brask"));
            QCOMPARE(view->findChild<InfoBar*>()->title(), QString("View Data Sweep Brask Unit"));
            QListWidget* list = view->findChild<QListWidget*>("Data");
            QCOMPARE(list->count(), 129);
            QCOMPARE(list->item(0)->text(), QString("Num.\t ADI (dec)\t ADV (dec)\t vGate "
                                                    "Imp(dec)\t vGate Eff(dec)"));
            QCOMPARE(list->item(128)->text(), QString("127\t%1\t%2\t%3\t%4")
                                                  .arg(screen._tst.corrente[127])
                                                  .arg(screen._tst.tensione[127])
                                                  .arg(screen._tst.vGateImp[127])
                                                  .arg(screen._tst.vGateEff[127]));
            saveScreenshotOf(view, "service_view_sweep_brask");
        });
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].text, QString("Misura Salvata."));
        QVERIFY(matchesGolden(serviceFile(root, "20260315-1030"), "service_sweep_brask"));
        saveScreenshotOf(&screen, "service_sweep_brask");
    }
    void zKillRunSavesItsFile()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim));
        ModalDriver driver;
        DialogZKillBrask screen(nullptr);
        screen.show();
        typeTarget(&screen, driver, "2200");
        touch(&screen, "Esegui");
        viewAndSave(&screen, driver, "2026/03/15", "10:31", "kill", [&](QWidget* view) {
            // the object name of the test's view, kept
            QCOMPARE(view->objectName(), QString("Z tst Brask"));
            QCOMPARE(view->findChild<InfoBar*>()->title(), QString("View Data Z Kill Brask Unit"));
            QCOMPARE(view->findChild<QListWidget*>("Data")->item(0)->text(),
                     QString("Num.\t ADI (dec)\t ADV (dec)\t vGate Imp(dec)\t vGate Eff(dec)"));
        });
        QCOMPARE(driver.boxes.size(), 1);
        QVERIFY(matchesGolden(serviceFile(root, "20260315-1031"), "service_zkill_brask"));
    }
    void zTestRunSavesItsFile()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim));
        ModalDriver driver;
        DialogZTstBrask screen(nullptr);
        screen.show();
        typeTarget(&screen, driver, "2300");
        chooseList(&screen, 1);
        touch(&screen, "Esegui");
        viewAndSave(&screen, driver, "2026/03/15", "10:32", "tst", [&](QWidget* view) {
            QCOMPARE(view->objectName(), QString("Z tst Brask"));
            QCOMPARE(view->findChild<InfoBar*>()->title(), QString("View Data Z Tst Brask Unit"));
            // lower-case heads on this view
            QCOMPARE(view->findChild<QListWidget*>("Data")->item(0)->text(),
                     QString("Num.\t ADI (dec)\t ADV (dec)\t vGate imp(dec)\t vGate eff(dec)"));
        });
        QCOMPARE(driver.boxes.size(), 1);
        QVERIFY(matchesGolden(serviceFile(root, "20260315-1032"), "service_ztst_brask"));
    }
    // Unlike the ramp screens, the family opens its view after an error: the
    // arrays hold what the board sent.
    void afterABoardErrorTheViewStillOpensWithWhatTheBoardSent()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim));
        QVERIFY(sim.command("board status 4"));
        ModalDriver driver;
        DialogSweepBrask screen(nullptr);
        screen.show();
        typeTarget(&screen, driver, "1000");
        driver.answerBox();
        touch(&screen, "Esegui");
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].text, QString("Eccessive Current."));
        QVERIFY(child<QPushButton>(&screen, "Visualizza Dati")->isEnabled());
        QVERIFY(screen._tst.corrente[127] > 0);
        viewAndSave(&screen, driver, "", "", "", [&](QWidget* view) {
            QListWidget* list = view->findChild<QListWidget*>("Data");
            QCOMPARE(list->item(128)->text(),
                     QString("127\t%1\t0\t1000\t997").arg(screen._tst.corrente[127]));
        });
    }
    void afterAFailedRunWithNoDataTheViewShowsZeros()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim));
        QVERIFY(sim.removeNode("/dev/ttyS1"));
        ModalDriver driver;
        for (int i = 0; i < 3; i++)
            driver.answerBox();
        DialogZKillBrask screen(nullptr);
        screen.show();
        touch(&screen, "Esegui");
        QCOMPARE(driver.boxes.size(), 3);
        QCOMPARE(driver.boxes[1].text, QString("Problem on access Serial Port."));
        QCOMPARE(label(&screen, "TempStart"), QString("Errore"));
        QCOMPARE(label(&screen, "TempStop"), QString("Errore"));
        QVERIFY(child<QPushButton>(&screen, "Visualizza Dati")->isEnabled());
        viewAndSave(&screen, driver, "", "", "", [&](QWidget* view) {
            QListWidget* list = view->findChild<QListWidget*>("Data");
            QCOMPARE(list->count(), 129);
            QCOMPARE(list->item(1)->text(), QString("0\t0\t0\t0\t0"));
            QCOMPARE(list->item(128)->text(), QString("127\t0\t0\t0\t0"));
        });
    }
    // Thirteen runs, 2000 to 3200 in steps of 100, each saved under the
    // moment it ended, failed or not, with a null comment and the
    // temperatures of the last single run.
    void seriesWrites13FilesWithTargets2000To3200EvenWhenRunsFail()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim));
        ModalDriver driver;
        DialogZTstBrask screen(nullptr);
        screen.show();
        touch(&screen, "Esegui");
        QVERIFY(sim.command("board hsink 35 hold"));
        QVERIFY(sim.command("board status 4"));
        QVERIFY(sim.command("board log clear"));
        for (int i = 0; i < 13; i++)
            driver.answerBox();
        touch(&screen, "Esegui Sweep");
        QCOMPARE(driver.boxes.size(), 13);
        QCOMPARE(driver.boxes[12].text, QString("Eccessive Current."));
        QStringList expected;
        for (int t = 2000; t <= 3200; t += 100)
            expected << QString("Z_tst_brask %1 0").arg(t);
        QCOMPARE(sim.boardCommands(), expected);
        QCOMPARE(child<QLineEdit>(&screen, "Target")->text(), QString("3200"));
        QCOMPARE(screen.target, 3200);
        QCOMPARE(screen._tst.vGateImp[0], 3200);
        QVERIFY(child<QPushButton>(&screen, "Visualizza Dati")->isEnabled());
        QVERIFY(child<QPushButton>(&screen, "exit")->isEnabled());

        QStringList files = QDir(root.path(DIR_DATA_DEBUG)).entryList(QDir::Files, QDir::Name);
        QCOMPARE(files.size(), 13);
        QRegularExpression name("^\\d{8}-\\d{6}$");
        QByteArray masked;
        for (const QString& f : files) {
            QVERIFY2(name.match(f).hasMatch(), qPrintable(f));
            QList<QByteArray> l = lines(serviceFile(root, f.toLatin1().constData()));
            QCOMPARE(l.size(), 8 + 128);
            // the file's name is its date and time
            QByteArray date = l[1].mid(7), time = l[2].mid(7);
            QCOMPARE(QString(date + "-" + time).remove('/').remove(':'), f);
            l[1] = "data = <masked>";
            l[2] = "time = <masked>";
            masked += l.join('\n') + '\n';
        }
        QVERIFY(matchesGolden(masked, "service_ztst_series_masked"));
    }
};

QTEST_MAIN(TestSweepBrask)
#include "tst_sweepbrask.moc"
