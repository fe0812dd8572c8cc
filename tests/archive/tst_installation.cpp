// The installation archive, touched and typed as an operator does.
#include "archive/archiveinstallation.h"
#include "archive/editinstallation.h"
#include "archive/insertinstallation.h"
#include "archive/listinstallation.h"
#include "archive/listmeasures.h"
#include "archive/selectinstallation.h"
#include "archive/viewinstallation.h"
#include "archivefixture.h"
#include "data/datainstallation.h"
#include "data/datameasures.h"
#include "measure/viewfixture.h"
#include "measure/viewmeasures.h"
#include "shell/language.h"
#include "shell/orvia.h"
#include "support/datafiles.h"
#include "support/fivelanguages.h"
#include "support/screenshot.h"
#include "toolkit/infobar.h"

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QTranslator>
#include <QtTest>

using namespace archive;

class TestInstallation : public QObject
{
    Q_OBJECT

    static QPushButton* button(QWidget* d, const char* name) { return child<QPushButton>(d, name); }
    static QString text(QWidget* d, const char* field)
    {
        return child<QLineEdit>(d, field)->text();
    }
    static QByteArray installationFile(const TestRoot& root, const char* file)
    {
        return root.read((QByteArray("/krm510data/datainstallation/") + file).constData());
    }
    static QStringList installationFiles(const TestRoot& root)
    {
        return QDir(root.path("/krm510data/datainstallation")).entryList(QDir::Files);
    }
    // The screen at the instrument's size in the row's language, into
    // build/screenshots: what keeps it from being read, named after it.
    static QStringList shoot(QWidget* w, const QString& name)
    {
        QFETCH(int, lang);
        return shootInLanguage(w, name, lang);
    }
    // A measure of the given date, time and comment in the archive.
    static QByteArray measure(_meaType type, const char* date, const char* time, const char* com)
    {
        return viewfixture::saveSample(type, [&](_measure& m) {
            m.mdata = const_cast<char*>(date);
            m.mtime = const_cast<char*>(time);
            m.mcom = const_cast<char*>(com);
        });
    }
    static void addInstallation(const char* id, const char* city, const char* nstri,
                                const char* npowe, const QList<QByteArray>& panels = {},
                                const QList<QByteArray>& strings = {})
    {
        _installation in;
        memset(&in, 0, sizeof in);
        in.id = const_cast<char*>(id);
        in.city = const_cast<char*>(city);
        in.zip = const_cast<char*>("40026");
        in.prov = const_cast<char*>("BO");
        in.street = const_cast<char*>("Via Selice 3");
        in.nstri = const_cast<char*>(nstri);
        in.npowe = const_cast<char*>(npowe);
        for (const QByteArray& f : panels)
            in.headMeaPanel = addItemOnListFileMeaPanel(in.headMeaPanel, f.constData());
        for (const QByteArray& f : strings)
            in.headMeaString = addItemOnListFileMeaString(in.headMeaString, f.constData());
        checkDirData();
        QVERIFY(saveDataInstallation(&in) > 0);
        closeListFileMeaPanel(in.headMeaPanel);
        closeListFileMeaString(in.headMeaString);
    }
    // Picks the measure whose row begins with the date in the list that the
    // add button opens, and adds it.
    static std::function<void(QWidget*)> pick(const QString& date)
    {
        return [date](QWidget* w) {
            ListMeasures* list = qobject_cast<ListMeasures*>(w);
            QListWidget* l = list->listWidget;
            for (int i = 1; i < l->count(); i++)
                if (l->item(i)->text().startsWith(date))
                    QTest::mouseClick(l->viewport(), Qt::LeftButton, Qt::NoModifier,
                                      l->visualItemRect(l->item(i)).center());
            QTest::mouseClick(list->addButton, Qt::LeftButton);
        };
    }
    static QStringList rows(QListWidget* l)
    {
        QStringList texts;
        for (int i = 0; i < l->count(); i++)
            texts << l->item(i)->text();
        return texts;
    }
    static void pickRow(QListWidget* l, int row)
    {
        QTest::mouseClick(l->viewport(), Qt::LeftButton, Qt::NoModifier,
                          l->visualItemRect(l->item(row)).center());
    }

    // The list node and the record EditInstallation is given.
    struct Edited {
        _listInstallation* head = nullptr;
        _listInstallation* node = nullptr;
        _installation* record = nullptr;
        explicit Edited(const char* file)
        {
            head = readListInstallation(nullptr);
            node = head;
            while (node != nullptr && strcmp(node->file, file) != 0)
                node = node->next;
            record = readInstallationFromFile(file);
        }
        ~Edited()
        {
            freeInstallation(record);
            closeListInstallation(head);
        }
    };

public:
    static void initMain() { useInstrumentScreen(); }

private slots:
    void initTestCase()
    {
        useInstrumentDpi();
        setInstrumentLook();
    }

    // ---- Entry rules

    void numberIsANumber_powerRefusesNanInfCommaAndBeyondAFloat()
    {
        TestRoot root(0.001);
        checkDirData();
        InsertInstallation d(nullptr);
        ModalDriver driver;
        for (const char* t : {"nan", "inf", "-Infinity", "1e39", "12,5", "dodici"}) {
            enterRefused(driver, &d, "npowe", t);
            QCOMPARE(driver.boxes.last().title, QString("Testo inserito"));
            QCOMPARE(driver.boxes.last().informative, QString("Numero non valido. : ") + t);
            QCOMPARE(text(&d, "npowe"), QString());
        }
        enter(driver, &d, "npowe", "12.5");
        QCOMPARE(text(&d, "npowe"), QString("12.5"));
        QCOMPARE(driver.boxes.size(), 6);
        QCOMPARE(driver.keyboardTitles.last(), QString("Potenza Nominale"));
        QCOMPARE(driver.pending(), 0);
    }

    void numberIsANumber_stringCountTakesWholeNumbersWithinRangeOnly()
    {
        TestRoot root(0.001);
        checkDirData();
        InsertInstallation d(nullptr);
        ModalDriver driver;
        for (const char* t : {"4.5", "nan", "inf", "99999999999", "quattro"}) {
            enterRefused(driver, &d, "nstri", t);
            QCOMPARE(driver.boxes.last().informative, QString("Numero non valido. : ") + t);
        }
        enter(driver, &d, "nstri", "4");
        QCOMPARE(text(&d, "nstri"), QString("4"));
        QCOMPARE(driver.boxes.size(), 5);
        QCOMPARE(driver.keyboardTitles.last(), QString("Numero delle stringhe"));
    }

    void countAndPowerOpenTheKeyPad()
    {
        TestRoot root(0.001);
        checkDirData();
        InsertInstallation d(nullptr);
        for (const char* field : {"nstri", "npowe"}) {
            ModalDriver driver;
            bool pad = false;
            driver.onNext([&pad](QWidget* w) {
                pad = w->findChild<QPushButton*>(".?123")->text() == "ABC";
                qobject_cast<QDialog*>(w)->reject();
            });
            touch(child<QLineEdit>(&d, field));
            QVERIFY(pad);
        }
    }

    void textAboveTwoHundredFiftyFiveCharactersIsRefused()
    {
        TestRoot root(0.001);
        checkDirData();
        InsertInstallation d(nullptr);
        ModalDriver driver;
        enter(driver, &d, "street", QString(255, 'v'));
        enterRefused(driver, &d, "street", QString(256, 'w'));
        QCOMPARE(driver.boxes.last().informative, QString("Troppo lungo."));
        QCOMPARE(text(&d, "street"), QString(255, 'v'));
    }

    // ---- Saving

    void saveFollowsTheIdAndASecondSaveOfTheNameIsRefused()
    {
        TestRoot root(0.001);
        checkDirData();
        InsertInstallation d(nullptr);
        ModalDriver driver;
        QVERIFY(!button(&d, "Salva")->isEnabled());
        enter(driver, &d, "city", "Imola");
        QVERIFY(!button(&d, "Salva")->isEnabled());
        enter(driver, &d, "id", "Tetto Sud");
        QVERIFY(button(&d, "Salva")->isEnabled());
        enter(driver, &d, "nstri", "4");
        enter(driver, &d, "npowe", "12");
        driver.answerBox();
        touch(button(&d, "Salva"));
        QCOMPARE(driver.boxes.last().text, QString("Installazione Salvata."));
        QCOMPARE(installationFiles(root), QStringList{"tetto_sud"});
        _installation* in = readInstallationFromFile("tetto_sud");
        QCOMPARE(QByteArray(in->nstri), QByteArray("4"));
        QCOMPARE(QByteArray(in->npowe), QByteArray("12"));
        QCOMPARE(QByteArray(in->city), QByteArray("Imola"));
        freeInstallation(in);
        driver.answerBox();
        touch(button(&d, "Salva"));
        QCOMPARE(driver.boxes.last().text, QString("Installazione"));
        QCOMPARE(driver.boxes.last().informative, QString("Nome dell'installazione già presente."));
        touch(button(&d, "Reset"));
        QCOMPARE(text(&d, "id"), QString());
        QVERIFY(!button(&d, "Salva")->isEnabled());
        QCOMPARE(driver.pending(), 0);
    }

    // ---- Measures of an installation

    void measureAddedTwiceIsRefusedWithTheInsertScreensBoxes()
    {
        TestRoot root(0.001);
        checkDirData();
        const QByteArray panel = measure(MEA_PANEL, "2026/05/04", "11:22:33", "Tetto");
        const QByteArray string = measure(MEA_STRING, "2026/05/05", "10:00:00", "Fila 1");
        InsertInstallation d(nullptr);
        ModalDriver driver;
        driver.onWindow("ListMeasures", pick("2026/05/04"));
        touch(button(&d, "panelAdd"));
        QComboBox* panels = child<QComboBox>(&d, "panel");
        QCOMPARE(panels->count(), 1);
        QCOMPARE(panels->currentText(), QString("2026/05/04 11:22:33 Tetto"));
        driver.onWindow("ListMeasures", pick("2026/05/04"));
        driver.answerBox();
        touch(button(&d, "panelAdd"));
        QCOMPARE(driver.boxes.last().title, QString("Misura inserita"));
        QCOMPARE(driver.boxes.last().informative, QString("Già presente."));
        QCOMPARE(panels->count(), 1);
        driver.onWindow("ListMeasures", pick("2026/05/05"));
        touch(button(&d, "stringAdd"));
        driver.onWindow("ListMeasures", pick("2026/05/05"));
        driver.answerBox();
        touch(button(&d, "stringAdd"));
        QCOMPARE(driver.boxes.last().title, QString("Misura inserita"));
        QCOMPARE(driver.boxes.last().informative,
                 QString("2026/05/05 10:00:00 Fila 1 già presente."));
        QCOMPARE(child<QComboBox>(&d, "string")->count(), 1);
        enter(driver, &d, "id", "Tetto");
        driver.answerBox();
        touch(button(&d, "Salva"));
        QByteArray file = installationFile(root, "tetto");
        QVERIFY(file.contains("pmea = " + panel + "\n"));
        QVERIFY(file.contains("smea = " + string + "\n"));
        QCOMPARE(driver.pending(), 0);
    }

    void measureAddedTwiceIsRefusedWithTheEditScreensBoxes()
    {
        TestRoot root(0.001);
        checkDirData();
        const QByteArray panel = measure(MEA_PANEL, "2026/05/04", "11:22:33", "Tetto");
        const QByteArray string = measure(MEA_STRING, "2026/05/05", "10:00:00", "Fila 1");
        addInstallation("Tetto", "Imola", "4", "12", {panel}, {string});
        Edited e("tetto");
        EditInstallation d(nullptr, e.node, e.record);
        ModalDriver driver;
        driver.onWindow("ListMeasures", pick("2026/05/04"));
        driver.answerBox();
        touch(button(&d, "panelAdd"));
        QCOMPARE(driver.boxes.last().title, QString("Misura inserita"));
        QCOMPARE(driver.boxes.last().informative, QString("Già presente."));
        driver.onWindow("ListMeasures", pick("2026/05/05"));
        driver.answerBox();
        touch(button(&d, "stringAdd"));
        QCOMPARE(driver.boxes.last().title, QString("Misure inserita"));
        QCOMPARE(driver.boxes.last().informative, QString("Già presente."));
        touch(button(&d, "panelDel"));
        QCOMPARE(child<QComboBox>(&d, "panel")->count(), 0);
        touch(button(&d, "Reset"));
        QCOMPARE(child<QComboBox>(&d, "panel")->count(), 1);
        QCOMPARE(driver.pending(), 0);
    }

    // ---- Editing

    void editKeepsTheFileNameWhenTheIdChanges()
    {
        TestRoot root(0.001);
        addInstallation("Tetto", "Imola", "4", "12");
        Edited e("tetto");
        EditInstallation d(nullptr, e.node, e.record);
        QCOMPARE(d.findChild<InfoBar*>()->title(), QString("Modifica Installazione"));
        QCOMPARE(text(&d, "npowe"), QString("12"));
        QVERIFY(button(&d, "Salva")->isEnabled());
        ModalDriver driver;
        enter(driver, &d, "id", "Tetto Nord");
        enter(driver, &d, "npowe", "15.5");
        driver.answerBox();
        touch(button(&d, "Salva"));
        QCOMPARE(driver.boxes.last().text, QString("Aggiornameno Installazione"));
        QCOMPARE(driver.boxes.last().informative, QString("Eseguito con successo."));
        QCOMPARE(installationFiles(root), QStringList{"tetto"});
        _installation* in = readInstallationFromFile("tetto");
        QCOMPARE(QByteArray(in->id), QByteArray("Tetto Nord"));
        QCOMPARE(QByteArray(in->npowe), QByteArray("15.5"));
        freeInstallation(in);
    }

    void storedDataNeverLost_failedUpdateShowsTheWarningAndKeepsTheFile()
    {
        TestRoot root(0.001);
        addInstallation("Tetto", "Imola", "4", "12");
        const QByteArray before = installationFile(root, "tetto");
        Edited e("tetto");
        EditInstallation d(nullptr, e.node, e.record);
        ModalDriver driver;
        enter(driver, &d, "street", "Via Emilia 7");
        driver.answerBox();
        {
            FileSizeLimit limit(20);
            touch(button(&d, "Salva"));
        }
        QCOMPARE(driver.boxes.last().icon, QMessageBox::Warning);
        QCOMPARE(driver.boxes.last().informative, QString("Aggiornamento non riuscito."));
        QCOMPARE(installationFile(root, "tetto"), before);
        QCOMPARE(installationFiles(root), QStringList{"tetto"});
    }

    void measureLinesReverseOnEveryReadAndSaveCycle()
    {
        TestRoot root(0.001);
        checkDirData();
        const QByteArray a = measure(MEA_PANEL, "2026/05/01", "08:00:00", "A");
        const QByteArray b = measure(MEA_PANEL, "2026/05/02", "08:00:00", "B");
        addInstallation("Tetto", "Imola", "4", "12", {a, b});
        // the file holds the list as it was given: the last node added first
        QByteArray file = installationFile(root, "tetto");
        QVERIFY(file.indexOf("pmea = " + b) < file.indexOf("pmea = " + a));
        for (int cycle = 0; cycle < 2; cycle++) {
            _installation* in = readInstallationFromFile("tetto");
            QCOMPARE(updateDataInstallation("tetto", in), 0);
            freeInstallation(in);
            QByteArray now = installationFile(root, "tetto");
            const bool aFirst = now.indexOf("pmea = " + a) < now.indexOf("pmea = " + b);
            QCOMPARE(aFirst, cycle == 0);
        }
    }

    // ---- Select, list, view

    void selectInEditModeOpensTheEditScreenAndReloads()
    {
        TestRoot root(0.001);
        addInstallation("Tetto", "Imola", "4", "12");
        SelectInstallation d(nullptr, SELECT_EDIT);
        QCOMPARE(d.objectName(), QString("SelectEditInstallation"));
        QCOMPARE(d.findChild<InfoBar*>()->title(), QString("Selezione Installazione"));
        QCOMPARE(button(&d, "action")->text(), QString("Modifica"));
        ModalDriver driver;
        QString shown;
        driver.onWindow("EditInstallation", [&](QWidget* w) {
            shown = w->findChild<QLineEdit*>("id")->text();
            // the record changes while the screen is open; the selection reads it again after
            _installation* in = readInstallationFromFile("tetto");
            free(in->nstri);
            in->nstri = strdup("6");
            updateDataInstallation("tetto", in);
            freeInstallation(in);
            qobject_cast<QDialog*>(w)->reject();
        });
        touch(button(&d, "action"));
        QCOMPARE(shown, QString("Tetto"));
        QCOMPARE(child<QComboBox>(&d, "installation")->currentText(), QString("Tetto (6/12 )"));
        QCOMPARE(driver.pending(), 0);
    }

    void listShowsTheHeaderThenIdAndCitySortedAndOpensTheInstallation()
    {
        TestRoot root(0.001);
        addInstallation("Tetto", "Imola", "4", "12");
        addInstallation("Capannone", "Lugo", "10", "30.5");
        ListInstallation d(nullptr);
        QCOMPARE(d.findChild<InfoBar*>()->title(), QString("Lista Installazioni"));
        QListWidget* list = child<QListWidget>(&d, "list");
        QCOMPARE(rows(list), QStringList({"Id\tCittà", "Capannone\tLugo", "Tetto\tImola"}));
        ModalDriver driver;
        QString opened;
        driver.onWindow("ViewInstallation", [&](QWidget* w) {
            opened = w->findChild<QLabel*>("field0")->text();
            qobject_cast<QDialog*>(w)->reject();
        });
        list->setCurrentRow(2);
        touch(button(&d, "Apri"));
        QCOMPARE(opened, QString("Installazione Id : Tetto"));
        list->setCurrentRow(0);
        touch(button(&d, "Apri")); // the header opens nothing
        QCOMPARE(driver.pending(), 0);
    }

    void viewShowsEmptyListsAsVuotoAndItsRowOpensNothing()
    {
        TestRoot root(0.001);
        addInstallation("Tetto", "Imola", "4", "12");
        _installation* in = readInstallationFromFile("tetto");
        ViewInstallation d(nullptr, in);
        QCOMPARE(d.findChild<InfoBar*>()->title(), QString("Installazione"));
        QCOMPARE(child<QLabel>(&d, "field5")->text(), QString("Num. di stringhe : 4"));
        QCOMPARE(child<QLabel>(&d, "field6")->text(), QString("Potenza Nom. : 12"));
        QListWidget* panels = child<QListWidget>(&d, "panelMeasures");
        QCOMPARE(rows(panels), QStringList{"Vuoto"});
        QCOMPARE(rows(child<QListWidget>(&d, "stringMeasures")), QStringList{"Vuoto"});
        QPushButton* graph = button(&d, "Visualizza Grafico");
        QVERIFY(!graph->isEnabled());
        d.show();
        QVERIFY(QTest::qWaitForWindowExposed(&d));
        pickRow(panels, 0);
        QVERIFY(graph->isEnabled());
        ModalDriver driver;
        touch(graph); // no window opens
        QCOMPARE(driver.boxes.size(), 0);
        freeInstallation(in);
    }

    void viewOpensTheGraphOfTheTouchedMeasure()
    {
        TestRoot root(0.001);
        checkDirData();
        const QByteArray panel = measure(MEA_PANEL, "2026/05/04", "11:22:33", "Tetto");
        const QByteArray string = measure(MEA_STRING, "2026/05/05", "10:00:00", "Fila 1");
        addInstallation("Tetto", "Imola", "4", "12", {panel}, {string});
        _installation* in = readInstallationFromFile("tetto");
        ViewInstallation d(nullptr, in);
        d.show();
        QVERIFY(QTest::qWaitForWindowExposed(&d));
        QListWidget* strings = child<QListWidget>(&d, "stringMeasures");
        QCOMPARE(rows(child<QListWidget>(&d, "panelMeasures")), QStringList{"2026/05/04 11:22:33"});
        QCOMPARE(rows(strings), QStringList{"2026/05/05 10:00:00"});
        ModalDriver driver;
        QByteArray file;
        int type = -1;
        driver.onWindow("ViewMeasures", [&](QWidget* v) {
            ViewMeasures* view = qobject_cast<ViewMeasures*>(v);
            file = view->_entry->file;
            type = view->_type;
            QTest::keyClick(v, Qt::Key_Escape);
        });
        pickRow(strings, 0);
        touch(button(&d, "Visualizza Grafico"));
        QCOMPARE(file, string);
        QCOMPARE(type, int(MEA_STRING));
        QCOMPARE(driver.pending(), 0);
        freeInstallation(in);
    }

    // ---- Menus

    void menuOpensEachScreen()
    {
        TestRoot root(0.001);
        addInstallation("Tetto", "Imola", "4", "12");
        ArchiveInstallation menu(nullptr);
        QCOMPARE(menu.findChild<InfoBar*>()->title(), QString("Archivio Installazioni"));
        ModalDriver driver;
        QStringList opened;
        auto leave = [&](QWidget* w) {
            opened << w->objectName();
            qobject_cast<QDialog*>(w)->reject();
        };
        for (const char* b : {"Nuova", "Modifica", "Cancella", "Elenco"}) {
            driver.onNext(leave);
            touch(button(&menu, b));
        }
        QCOMPARE(opened, QStringList({"InsertInstallation", "SelectEditInstallation",
                                      "SelectDelInstallation", "ListInstallation"}));
    }

    void mainMenuButtonOpensTheInstallationArchive()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        checkDirData();
        Orvia menu;
        ModalDriver driver;
        QStringList opened;
        auto leave = [&](QWidget* w) {
            opened << w->metaObject()->className() + QString(":") + w->windowTitle();
            qobject_cast<QDialog*>(w)->reject();
        };
        driver.onNext(leave);
        touch(child<QPushButton>(&menu, "ArchivioInstallazioni"));
        menu.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&menu));
        child<QPushButton>(&menu, "ArchivioInstallazioni")->setFocus();
        driver.onNext(leave);
        QTest::keyClick(&menu, Qt::Key_Return);
        QCOMPARE(opened, QStringList({"ArchiveInstallation:Archivio Installazioni",
                                      "ArchiveInstallation:Archivio Installazioni"}));
    }

    void catalogueRowsOfTheInstallationScreens()
    {
        TestRoot root(0.01);
        QVERIFY(root.installCatalogues());
        QTranslator italian, english;
        QVERIFY(loadTranslator(&italian, LANG_IT));
        QVERIFY(loadTranslator(&english, LANG_EN));
        // the Italian catalogue mends what the screens' texts keep
        QCOMPARE(italian.translate("EditInstallation", "Aggiornameno Installazione"),
                 QString("Aggiornamento installazione"));
        QCOMPARE(italian.translate("EditInstallation", "Misura inserita"),
                 QString("Misura Inserita"));
        QCOMPARE(italian.translate("InsertInstallation", "Nome dell'installazione già presente."),
                 QString("Nome dell'installazione gia' presente."));
        QCOMPARE(italian.translate("ListInstallation", "Lista Installazioni"),
                 QString("Lista installazioni"));
        QCOMPARE(english.translate("EditInstallation", "Aggiornamento non riuscito."),
                 QString("Update failed."));
    }

    // ---- Screenshots

    void operatorSeesWhereTheyAre_installationScreensFitInFiveLanguages_data() { languageRows(); }
    void operatorSeesWhereTheyAre_installationScreensFitInFiveLanguages()
    {
        QFETCH(int, lang);
        ShownLanguage shown(lang);
        QVERIFY(shown.loaded());
        QStringList faults;
        TestRoot root(0.001);
        checkDirData();
        const QByteArray panel = measure(MEA_PANEL, "2026/05/04", "11:22:33", "Tetto");
        const QByteArray s1 = measure(MEA_STRING, "2026/05/05", "10:00:00", "Fila 1");
        const QByteArray s2 = measure(MEA_STRING, "2026/05/05", "10:20:00", "Fila 2");
        addInstallation("Tetto", "Imola", "4", "12", {panel}, {s1, s2});
        addInstallation("Capannone", "Lugo", "10", "30.5");
        {
            ArchiveInstallation menu(nullptr);
            faults += shoot(&menu, "installation-archive");
        }
        {
            Edited e("tetto");
            EditInstallation d(nullptr, e.node, e.record);
            faults += shoot(&d, "installation-edit");
        }
        {
            InsertInstallation d(nullptr);
            ModalDriver driver;
            enter(driver, &d, "id", "Pensilina");
            enter(driver, &d, "nstri", "2");
            enter(driver, &d, "npowe", "6.6");
            faults += shoot(&d, "installation-insert");
        }
        for (_selectType mode : {SELECT_EDIT, SELECT_DELETE}) {
            SelectInstallation d(nullptr, mode);
            faults += shoot(&d, "installation-" + d.objectName());
        }
        {
            ListInstallation d(nullptr);
            faults += shoot(&d, "installation-list");
        }
        {
            _installation* in = readInstallationFromFile("tetto");
            ViewInstallation d(nullptr, in);
            faults += shoot(&d, "installation-view");
            freeInstallation(in);
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }
};

QTEST_MAIN(TestInstallation)
#include "tst_installation.moc"
