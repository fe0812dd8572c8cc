// The two ramp screens of the service menu on the simulated board: the run,
// the board's report, the view of the points and their file.
#include "debugbrask/datasave.h"
#include "debugbrask/dialoginfosave.h"
#include "debugbrask/dialogmeabrask.h"
#include "debugbrask/dialogmeabraskdebug.h"
#include "servicefixture.h"
#include "toolkit/embkeyboard.h"
#include "toolkit/infobar.h"

#include <QListWidget>
#include <QRegularExpression>

using namespace service;

class TestMeaBrask : public QObject
{
    Q_OBJECT

    static QList<QByteArray> lines(const QByteArray& file)
    {
        QList<QByteArray> all = file.split('\n');
        if (!all.isEmpty() && all.last().isEmpty())
            all.removeLast();
        return all;
    }

    // Opens the view of a screen, saves with the form filled as given and
    // answers the box; the box is left in driver.boxes.
    static void viewAndSave(QWidget* screen, ModalDriver& driver, const QString& date,
                            const QString& time, const QString& comment,
                            std::function<void(QWidget*)> look = {})
    {
        ModalDriver form, keys;
        driver.onNext([&form, &keys, date, time, comment, look](QWidget* view) {
            if (look)
                look(view);
            fillSaveForm(form, keys, date, time, comment);
            touch(view, "Save");
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

    void userRunShowsTheBoardReportAndSavesItsFile()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        _configParam c = configure(root);
        QVERIFY(world(sim));
        QVERIFY(sim.command("board log clear"));
        ModalDriver driver;
        DialogMeaBrask screen(nullptr);
        screen.show();
        QCOMPARE(screen.objectName(), QString("Mea Brask User "));
        QCOMPARE(screen.findChild<InfoBar*>()->title(), QString("Mea_Brask User"));
        QVERIFY(!child<QPushButton>(&screen, "Visualizza Dati")->isEnabled());
        touch(&screen, "Esegui Utente");
        QCOMPARE(driver.boxes.size(), 0);
        QCOMPARE(sim.boardCommands(),
                 (QStringList{"temp_hsink", "mea_brask", "info_last", "temp_hsink"}));
        QCOMPARE(label(&screen, "TempStart"), QString("20"));
        QCOMPARE(label(&screen, "TempStop"), QString("20"));
        QCOMPARE(label(&screen, "TestMode"), QString("2"));
        QCOMPARE(label(&screen, "LastP"), QString("127"));
        QCOMPARE(label(&screen, "NTC_DAC"), QString("2148"));
        QCOMPARE(label(&screen, "Icc"), QString::number(screen._infoLast.icc));
        QCOMPARE(label(&screen, "Status"), QString());
        QVERIFY(child<QPushButton>(&screen, "Visualizza Dati")->isEnabled());
        // the view: a head row and the 512 slots, the high range calibration
        // whatever the board's range
        QCOMPARE(screen._infoLast.range, 0);
        viewAndSave(&screen, driver, "2026/03/15", "10:20", "prova", [&](QWidget* view) {
            QCOMPARE(view->objectName(), QString("Mea Brask"));
            QCOMPARE(view->findChild<InfoBar*>()->title(),
                     QString("View Data Mea Brask Unit User"));
            QListWidget* list = view->findChild<QListWidget*>("Data");
            QCOMPARE(list->count(), 513);
            QCOMPARE(list->item(0)->text(), QString("Num.\t I (dec)\t V (dec)\t I (A)\t V (V)"));
            int k = 100;
            int i = screen._rawRamp.corrente[k], v = screen._rawRamp.tensione[k];
            QCOMPARE(list->item(1 + k)->text(),
                     QString("100\t%1\t%2\t%3\t%4")
                         .arg(i)
                         .arg(v)
                         .arg(double(float(i - c.adci1offset) * c.adci1), 0, 'g', 6)
                         .arg(double((float(v) - c.adcv1offset) * c.adcv1), 0, 'g', 6));
            saveScreenshotOf(view, "service_view_mea_brask");
        });
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].text, QString("Misura Salvata."));
        QCOMPARE(driver.boxes[0].icon, QMessageBox::Information);
        QVERIFY(matchesGolden(serviceFile(root, "20260315-1020"), "service_mea_brask_user"));
        saveScreenshotOf(&screen, "service_mea_brask");
    }
    void debugRunKeepsTheGateColumnsAndSavesItsFile()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim));
        ModalDriver driver;
        DialogMeaBraskDebug screen(nullptr);
        screen.show();
        QCOMPARE(screen.objectName(), QString("Mea Brask Debug "));
        QCOMPARE(screen.findChild<InfoBar*>()->title(), QString("Mea_Brask Debug"));
        touch(&screen, "Esegui Debug");
        QCOMPARE(driver.boxes.size(), 0);
        viewAndSave(&screen, driver, "2026/03/15", "10:21", "", [&](QWidget* view) {
            QCOMPARE(view->findChild<InfoBar*>()->title(),
                     QString("View Data Mea Brask Unit Debug"));
            QListWidget* list = view->findChild<QListWidget*>("Data");
            QCOMPARE(list->count(), 513);
            QCOMPARE(list->item(0)->text(), QString("Num.\t I (dec)\t V (dec)\t Vgate1(dec)\t "
                                                    "Vgate2(dec)\t I (A)\t V (V)"));
            QVERIFY(list->item(1 + 5)->text().startsWith(QString("5\t%1\t%2\t%3\t%4\t")
                                                             .arg(screen._rawRamp.corrente[5])
                                                             .arg(screen._rawRamp.tensione[5])
                                                             .arg(screen._rawRamp.vgate1[5])
                                                             .arg(screen._rawRamp.vgate2[5])));
        });
        QCOMPARE(driver.boxes.size(), 1);
        QByteArray file = serviceFile(root, "20260315-1021");
        QVERIFY(matchesGolden(file, "service_mea_brask_debug"));
        // the 128 points of the board, the rest cleared
        QList<QByteArray> l = lines(file);
        QCOMPARE(l.size(), 17 + 512);
        QCOMPARE(l[17 + 128], QByteArray("128\t0\t0\t0\t0"));
        QVERIFY(l[17 + 127] != QByteArray("127\t0\t0\t0\t0"));
    }
    void rampRows256To511RepeatTheEndSoTheFileHasAll512()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim));
        ModalDriver driver;
        DialogMeaBrask screen(nullptr);
        screen.show();
        touch(&screen, "Esegui Utente");
        viewAndSave(&screen, driver, "2026/03/15", "11:00", "fine");
        QList<QByteArray> l = lines(serviceFile(root, "20260315-1100"));
        QCOMPARE(l.size(), 17 + 512);
        QByteArray end = l[17 + 511].mid(l[17 + 511].indexOf('\t'));
        for (int k = 256; k < 512; k++)
            QCOMPARE(l[17 + k], QByteArray::number(k) + end);
        QVERIFY(l[17 + 0].mid(2) != end);
    }
    void failedRampLeavesViewDataDisabled()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim));
        ModalDriver driver;
        DialogMeaBrask screen(nullptr);
        screen.show();
        touch(&screen, "Esegui Utente");
        QVERIFY(child<QPushButton>(&screen, "Visualizza Dati")->isEnabled());
        QVERIFY(sim.command("fault open"));
        QVERIFY(sim.command("board log clear"));
        driver.answerBox();
        touch(&screen, "Esegui Utente");
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].title, QString("Power Device"));
        QCOMPARE(driver.boxes[0].text, QString("Corrente Bassa."));
        QVERIFY(!child<QPushButton>(&screen, "Visualizza Dati")->isEnabled());
        // no report after a failed ramp; the heat sink is read at the end all the same
        QCOMPARE(sim.boardCommands(), (QStringList{"temp_hsink", "mea_brask", "temp_hsink"}));
        QCOMPARE(label(&screen, "TempStop"), QString("20"));
        QVERIFY(child<QPushButton>(&screen, "Esegui Utente")->isEnabled());
        QVERIFY(child<QPushButton>(&screen, "exit")->isEnabled());
        QCOMPARE(screen._rawRamp.corrente[0], 0);
    }
    void debugFailedRampLeavesViewDataDisabled()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim));
        QVERIFY(sim.command("fault reverse"));
        ModalDriver driver;
        driver.answerBox();
        DialogMeaBraskDebug screen(nullptr);
        screen.show();
        touch(&screen, "Esegui Debug");
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].text, QString("Reverse Polarity."));
        QVERIFY(!child<QPushButton>(&screen, "Visualizza Dati")->isEnabled());
    }
    void failedHeatSinkReadingShowsErroreAndTheRunGoesOn()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim));
        QVERIFY(sim.forceBoardReply("temp_hsink\rERROR 5\r"));
        ModalDriver driver;
        driver.answerBox();
        DialogMeaBrask screen(nullptr);
        screen.show();
        touch(&screen, "Esegui Utente");
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].text, QString("Eccessive Power."));
        QCOMPARE(label(&screen, "TempStart"), QString("Errore"));
        QCOMPARE(screen.tempStart, 0.0f);
        QCOMPARE(label(&screen, "TempStop"), QString("20"));
        QVERIFY(child<QPushButton>(&screen, "Visualizza Dati")->isEnabled());
    }
    void savingTwiceWithTheSameDateAndTimeOverwrites()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim));
        ModalDriver driver;
        DialogMeaBrask screen(nullptr);
        screen.show();
        touch(&screen, "Esegui Utente");
        viewAndSave(&screen, driver, "2026/03/15", "12:00", "first");
        viewAndSave(&screen, driver, "2026/03/15", "12:00", "second");
        QCOMPARE(driver.boxes.size(), 2);
        QCOMPARE(driver.boxes[1].text, QString("Misura Salvata."));
        QCOMPARE(QDir(root.path(DIR_DATA_DEBUG)).entryList(QDir::Files),
                 QStringList{"20260315-1200"});
        QCOMPARE(lines(serviceFile(root, "20260315-1200"))[3], QByteArray("comment = second"));
    }
    void dateAndTimeWithBlanksAndCapitalsGiveALowerCaseName()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim));
        ModalDriver driver;
        DialogMeaBrask screen(nullptr);
        screen.show();
        touch(&screen, "Esegui Utente");
        viewAndSave(&screen, driver, "15 MAR 26", "Ab 1", "x");
        QCOMPARE(QDir(root.path(DIR_DATA_DEBUG)).entryList(QDir::Files),
                 QStringList{"15mar26-ab1"});
        QList<QByteArray> l = lines(serviceFile(root, "15mar26-ab1"));
        QCOMPARE(l[1], QByteArray("data = 15 MAR 26"));
        QCOMPARE(l[2], QByteArray("time = Ab 1"));
    }
    void nameAlreadyTakenByAFolderGivesTheBoxOfTheName()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim));
        QVERIFY(root.mkdir(DIR_DATA_DEBUG "/20260315-1300"));
        ModalDriver driver;
        DialogMeaBrask screen(nullptr);
        screen.show();
        touch(&screen, "Esegui Utente");
        viewAndSave(&screen, driver, "2026/03/15", "13:00", "x");
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].text, QString("Misura"));
        QCOMPARE(driver.boxes[0].informative, QString("Nome della misura già presente."));
        QCOMPARE(driver.boxes[0].icon, QMessageBox::Information);
    }
    // Kept as the instrument always did: a folder that cannot be entered
    // shows the box of success.
    void serviceFolderMissingAtSaveStillShowsSaved()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim));
        ModalDriver driver;
        DialogMeaBrask screen(nullptr);
        screen.show();
        touch(&screen, "Esegui Utente");
        QVERIFY(QDir(root.path(DIR_DATA_DEBUG)).removeRecursively());
        QVERIFY(root.write(DIR_DATA_DEBUG, "a file"));
        viewAndSave(&screen, driver, "2026/03/15", "14:00", "x");
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].text, QString("Misura Salvata."));
        QCOMPARE(root.read(DIR_DATA_DEBUG), QByteArray("a file"));
    }

    // ---- The save form
    void saveFormPresetsTheMomentAndTheDefaultComment()
    {
        TestRoot root(0.1);
        DialogInfoSave form(nullptr, "default");
        QCOMPARE(form.objectName(), QString("DialogInfoSave"));
        QCOMPARE(form.windowTitle(), QString("Salvataggio"));
        QRegularExpression date("^\\d{4}/\\d\\d/\\d\\d$"), time("^\\d\\d:\\d\\d:\\d\\d$");
        QVERIFY(date.match(form.findChild<QLineEdit*>("Data")->text()).hasMatch());
        QVERIFY(time.match(form.findChild<QLineEdit*>("Ora")->text()).hasMatch());
        QCOMPARE(form.findChild<QLineEdit*>("Commento")->text(), QString("default"));
        QVERIFY(date.match(QString(form.data)).hasMatch());
        QVERIFY(form.findChild<QPushButton*>("Salva")->isDefault());
    }
    // The time takes at most five characters, three fewer than the preset
    // time: the seconds cannot be typed again.
    void tooLongTextsAreRefusedAndTheLineStays_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("taken");
        QTest::newRow("date of 10") << "Data"
                                    << "2026/03/15" << true;
        QTest::newRow("date of 11") << "Data"
                                    << "2026/03/155" << false;
        QTest::newRow("time of 5") << "Ora"
                                   << "10:20" << true;
        QTest::newRow("time of 8, as preset") << "Ora"
                                              << "10:20:30" << false;
        QTest::newRow("comment of 255") << "Commento" << QString(255, 'a') << true;
        QTest::newRow("comment of 256") << "Commento" << QString(256, 'a') << false;
    }
    void tooLongTextsAreRefusedAndTheLineStays()
    {
        QFETCH(QString, line);
        QFETCH(QString, text);
        QFETCH(bool, taken);
        TestRoot root(0.1);
        DialogInfoSave form(nullptr, "c");
        form.show();
        QLineEdit* edit = form.findChild<QLineEdit*>(line);
        QString before = edit->text();
        ModalDriver driver;
        driver.onNext([&text](QWidget* w) {
            EmbKeyboard* keyboard = qobject_cast<EmbKeyboard*>(w);
            QVERIFY(keyboard != nullptr);
            keyboard->setInitString(text);
            ModalDriver::touchKey(keyboard, "ENTER");
        });
        if (!taken)
            driver.answerBox();
        QTest::mouseClick(edit, Qt::LeftButton);
        QCOMPARE(edit->text(), taken ? text : before);
        QCOMPARE(driver.boxes.size(), taken ? 0 : 1);
        if (!taken) {
            QCOMPARE(driver.boxes[0].title, QString("Testo inserito"));
            QCOMPARE(driver.boxes[0].text, QString("Troppo lungo."));
        }
    }
    void emptyCommentLeavesTheCommentEmptyAndResetRestoresTheDefault()
    {
        TestRoot root(0.1);
        DialogInfoSave form(nullptr, "default");
        form.show();
        form.findChild<QLineEdit*>("Commento")->clear();
        form.findChild<QLineEdit*>("Data")->setText("x");
        touch(&form, "Reset");
        QCOMPARE(form.findChild<QLineEdit*>("Commento")->text(), QString("default"));
        QVERIFY(form.findChild<QLineEdit*>("Data")->text() != QString("x"));
        form.findChild<QLineEdit*>("Commento")->clear();
        touch(&form, "Salva");
        QCOMPARE(form.result(), int(QDialog::Accepted));
        QCOMPARE(QByteArray(form.comment), QByteArray());
    }
};

QTEST_MAIN(TestMeaBrask)
#include "tst_meabrask.moc"
