// The company archive, touched and typed as an operator does.
#include "archive/archivecompany.h"
#include "archive/editcompany.h"
#include "archive/insertcompany.h"
#include "archive/listcompany.h"
#include "archive/selectcompany.h"
#include "archive/selectinstallation.h"
#include "archive/viewcompany.h"
#include "archivefixture.h"
#include "data/datacompany.h"
#include "data/datainstallation.h"
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

class TestCompany : public QObject
{
    Q_OBJECT

    static QPushButton* button(QWidget* d, const char* name) { return child<QPushButton>(d, name); }
    static QString text(QWidget* d, const char* field)
    {
        return child<QLineEdit>(d, field)->text();
    }
    static QByteArray companyFile(const TestRoot& root, const char* file)
    {
        return root.read((QByteArray("/krm510data/datacompany/") + file).constData());
    }
    // The screen at the instrument's size, into build/screenshots.
    // The screen at the instrument's size in the row's language, into
    // build/screenshots: what keeps it from being read, named after it.
    static QStringList shoot(QWidget* w, const QString& name)
    {
        QFETCH(int, lang);
        return shootInLanguage(w, name, lang);
    }
    static QStringList companyFiles(const TestRoot& root)
    {
        return QDir(root.path("/krm510data/datacompany")).entryList(QDir::Files);
    }

    // A company written by the file layer, with the installations given.
    static void addCompany(const char* surn, const char* name, const char* code, const char* street,
                           const QStringList& installations = {})
    {
        _company c;
        memset(&c, 0, sizeof c);
        c.surn = const_cast<char*>(surn);
        c.name = const_cast<char*>(name);
        c.code = const_cast<char*>(code);
        c.street = const_cast<char*>(street);
        c.city = const_cast<char*>("Bologna");
        for (const QString& i : installations)
            c.headInst = addItemOnListInstallation(c.headInst, i.toUtf8().constData());
        checkDirData();
        QVERIFY(saveDataCompany(&c) > 0);
        closeListFileInstallation(c.headInst);
    }
    static void addInstallation(const char* id, const char* city, const char* nstri,
                                const char* npowe)
    {
        _installation in;
        memset(&in, 0, sizeof in);
        in.id = const_cast<char*>(id);
        in.city = const_cast<char*>(city);
        in.nstri = const_cast<char*>(nstri);
        in.npowe = const_cast<char*>(npowe);
        checkDirData();
        QVERIFY(saveDataInstallation(&in) > 0);
    }

    // The company of the form and the record EditCompany is given.
    struct Edited {
        _listCompany* head = nullptr;
        _listCompany* list = nullptr;
        _company* record = nullptr;
        explicit Edited(const char* file)
        {
            head = readListCompany(nullptr);
            list = head;
            while (list != nullptr && strcmp(list->file, file) != 0)
                list = list->next; // the test's list holds one or two companies
            record = readCompanyFromFile(file);
        }
        ~Edited()
        {
            freeCompany(record);
            closeListCompany(head);
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

    void taxCodeOfElevenIsRefusedWithNameFilledAndPassesWithNameEmpty()
    {
        TestRoot root(0.001);
        checkDirData();
        InsertCompany d(nullptr);
        ModalDriver driver;
        enter(driver, &d, "surn", "Rossi");
        enter(driver, &d, "name", "Marco");
        enterRefused(driver, &d, "nin", "01234567890");
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].title, QString("Testo inserito"));
        QCOMPARE(driver.boxes[0].informative, QString("Deve essere di 16 caratteri"));
        QCOMPARE(text(&d, "nin"), QString("01234567890")); // the text stays
        QVERIFY(!button(&d, "Salva")->isEnabled());
        enter(driver, &d, "name", "");
        enter(driver, &d, "nin", "01234567890");
        QCOMPARE(driver.boxes.size(), 1);
        QVERIFY(button(&d, "Salva")->isEnabled());
        QCOMPARE(driver.keyboardTitles.mid(0, 3),
                 QStringList({"Cognome / Denominazione", "Nome", "Codice Fiscale"}));
        QCOMPARE(driver.pending(), 0);
    }

    void changingNameLaterDoesNotRecheckTheTaxCode()
    {
        TestRoot root(0.001);
        checkDirData();
        InsertCompany d(nullptr);
        ModalDriver driver;
        enter(driver, &d, "surn", "Rossi");
        enter(driver, &d, "nin", "01234567890");
        enter(driver, &d, "name", "Marco");
        QCOMPARE(driver.boxes.size(), 0);
        QVERIFY(button(&d, "Salva")->isEnabled());
    }

    void codeOfExactlyFiveAndFiftyPassesFourAndFiftyOneAreRefused()
    {
        TestRoot root(0.001);
        checkDirData();
        InsertCompany d(nullptr);
        ModalDriver driver;
        enter(driver, &d, "surn", "Rossi");
        enterRefused(driver, &d, "code", "C123");
        QCOMPARE(driver.boxes.last().informative, QString("Deve essere di almeno 5 caratteri"));
        QVERIFY(!button(&d, "Salva")->isEnabled());
        enter(driver, &d, "code", "C1234");
        QVERIFY(button(&d, "Salva")->isEnabled());
        enterRefused(driver, &d, "code", QString(51, 'C'));
        QCOMPARE(driver.boxes.last().informative, QString("Troppo lungo."));
        QVERIFY(!button(&d, "Salva")->isEnabled());
        enter(driver, &d, "code", QString(50, 'C'));
        QVERIFY(button(&d, "Salva")->isEnabled());
        QCOMPARE(driver.boxes.size(), 2);
    }

    void phoneKeepsTheLeadingPlusAndTheDigitsAlone()
    {
        TestRoot root(0.001);
        checkDirData();
        InsertCompany d(nullptr);
        ModalDriver driver;
        enter(driver, &d, "phone", "+39 055-123 45");
        QCOMPARE(text(&d, "phone"), QString("+3905512345"));
        enter(driver, &d, "phone", "055/12+3");
        QCOMPARE(text(&d, "phone"), QString("055123"));
        QCOMPARE(driver.boxes.size(), 0);
    }

    void textAboveTwoHundredFiftyFiveCharactersIsRefusedInEveryField()
    {
        TestRoot root(0.001);
        checkDirData();
        InsertCompany d(nullptr);
        ModalDriver driver;
        enter(driver, &d, "street", QString(255, 'v'));
        QCOMPARE(text(&d, "street"), QString(255, 'v'));
        enterRefused(driver, &d, "street", QString(256, 'w'));
        QCOMPARE(driver.boxes.last().informative, QString("Troppo lungo."));
        QCOMPARE(text(&d, "street"), QString(255, 'v'));
    }

    void zipOpensTheKeyPad()
    {
        TestRoot root(0.001);
        checkDirData();
        InsertCompany d(nullptr);
        ModalDriver driver;
        bool pad = false;
        driver.onNext([&pad](QWidget* w) {
            pad = w->findChild<QPushButton*>(".?123")->text() == "ABC";
            qobject_cast<QDialog*>(w)->reject();
        });
        touch(child<QLineEdit>(&d, "zip"));
        QVERIFY(pad);
    }

    // ---- Saving

    void companyWithOnlySurnameAndCodeIsSavedWithoutTaxCode()
    {
        TestRoot root(0.001);
        checkDirData();
        InsertCompany d(nullptr);
        ModalDriver driver;
        enter(driver, &d, "surn", "Rossi Figli");
        enter(driver, &d, "code", "C0042");
        driver.answerBox();
        touch(button(&d, "Salva"));
        QCOMPARE(driver.boxes.last().text, QString("Azienda Salvata."));
        QCOMPARE(companyFiles(root), QStringList{"rossi_figli"});
        _company* c = readCompanyFromFile("rossi_figli");
        QCOMPARE(QByteArray(c->code), QByteArray("C0042"));
        QVERIFY(c->nin == nullptr && c->name == nullptr);
        freeCompany(c);
        QCOMPARE(text(&d, "surn"), QString("Rossi Figli")); // the form stays
        driver.answerBox();
        touch(button(&d, "Salva"));
        QCOMPARE(driver.boxes.last().text, QString("Azienda"));
        QCOMPARE(driver.boxes.last().informative, QString("Nome dell'azienda già presente."));
    }

    void resetEmptiesTheForm()
    {
        TestRoot root(0.001);
        checkDirData();
        InsertCompany d(nullptr);
        ModalDriver driver;
        enter(driver, &d, "surn", "Rossi");
        enter(driver, &d, "code", "C0042");
        touch(button(&d, "Reset"));
        QCOMPARE(text(&d, "surn"), QString());
        QVERIFY(!button(&d, "Salva")->isEnabled());
    }

    // ---- The installations of a company

    void installationIsAddedThroughTheComboOnceAndSavedWithTheCompany()
    {
        TestRoot root(0.001);
        addInstallation("Tetto", "Imola", "4", "12");
        addInstallation("Capannone", "Lugo", "10", "30.5");
        InsertCompany d(nullptr);
        ModalDriver driver;
        auto choose = [](const QString& row) {
            return [row](QWidget* w) {
                QComboBox* combo = w->findChild<QComboBox*>("installation");
                combo->setCurrentIndex(combo->findText(row));
                QTest::mouseClick(w->findChild<QPushButton*>("action"), Qt::LeftButton);
            };
        };
        driver.onWindow("SelectInstallation", choose("Tetto (4/12 )"));
        touch(button(&d, "add"));
        QComboBox* combo = child<QComboBox>(&d, "installation");
        QCOMPARE(combo->count(), 1);
        QCOMPARE(combo->currentText(), QString("Tetto (4/12 )"));
        driver.onWindow("SelectInstallation", choose("Tetto (4/12 )"));
        driver.answerBox();
        touch(button(&d, "add"));
        QCOMPARE(driver.boxes.last().title, QString("Installazione inserita"));
        QCOMPARE(driver.boxes.last().text, QString("Tetto (4/12 ) già presente."));
        QCOMPARE(combo->count(), 1);
        driver.onWindow("SelectInstallation", choose("Capannone (10/30.5 )"));
        touch(button(&d, "add"));
        QCOMPARE(combo->count(), 2);
        enter(driver, &d, "surn", "Rossi");
        enter(driver, &d, "code", "C0042");
        driver.answerBox();
        touch(button(&d, "Salva"));
        QCOMPARE(driver.pending(), 0);
        QByteArray file = companyFile(root, "rossi");
        QVERIFY(file.contains("sinst = tetto\n"));
        QVERIFY(file.contains("sinst = capannone\n"));
    }

    void selectingInstallationsHasAModeEachAndDeletingKeepsTheCompany()
    {
        TestRoot root(0.001);
        addInstallation("Tetto", "Imola", "4", "12");
        addCompany("Rossi", nullptr, "C0042", nullptr, {"tetto"});
        {
            SelectInstallation d(nullptr, SELECT_VIEW);
            QCOMPARE(d.objectName(), QString("AddInstallation"));
            QCOMPARE(d.findChild<InfoBar*>()->title(), QString("Aggiungere Installazione"));
            QCOMPARE(button(&d, "action")->text(), QString("Agg."));
            QListWidget* fields = child<QListWidget>(&d, "fields");
            QCOMPARE(fields->item(0)->text(), QString("Città : Imola"));
            QCOMPARE(fields->item(4)->text(), QString("Num. di stringhe : 4"));
            QCOMPARE(fields->item(5)->text(), QString("Potenza Nominale : 12"));
        }
        SelectInstallation d(nullptr, SELECT_DELETE);
        QCOMPARE(d.objectName(), QString("SelectDelInstallation"));
        QCOMPARE(d.findChild<InfoBar*>()->title(), QString("Cancella Installazione"));
        ModalDriver driver;
        driver.answerBox(QMessageBox::Yes);
        touch(button(&d, "action"));
        QCOMPARE(driver.boxes.last().informative, QString("Conferma?"));
        QVERIFY(!root.exists("/krm510data/datainstallation/tetto"));
        QVERIFY(companyFile(root, "rossi").contains("sinst = tetto\n"));
        QCOMPARE(child<QComboBox>(&d, "installation")->count(), 0);
    }

    // ---- Editing

    void editingAStreetLeavesOneFileOfTheSameNameWithTheNewStreet()
    {
        TestRoot root(0.001);
        addCompany("Rossi", "Marco", "C0042", "Via Roma 1", {"tetto"});
        addInstallation("Tetto", "Imola", "4", "12");
        Edited e("rossi");
        EditCompany d(nullptr, e.list, e.record);
        QCOMPARE(text(&d, "street"), QString("Via Roma 1"));
        QCOMPARE(child<QComboBox>(&d, "installation")->currentText(), QString("Tetto (4/12 )"));
        QVERIFY(button(&d, "Salva")->isEnabled());
        ModalDriver driver;
        enter(driver, &d, "street", "Via Emilia 7");
        enter(driver, &d, "surn", "Rossi Marco"); // the file keeps its name
        driver.answerBox();
        touch(button(&d, "Salva"));
        QCOMPARE(driver.boxes.last().text, QString("Aggiornamento Azienda"));
        QCOMPARE(driver.boxes.last().informative, QString("Eseguito con successo."));
        QCOMPARE(companyFiles(root), QStringList{"rossi"});
        _company* c = readCompanyFromFile("rossi");
        QCOMPARE(QByteArray(c->street), QByteArray("Via Emilia 7"));
        QCOMPARE(QByteArray(c->surn), QByteArray("Rossi Marco"));
        QCOMPARE(QByteArray(c->headInst->file), QByteArray("tetto"));
        freeCompany(c);
    }

    // The old instrument's update left a cut file in the old one's place when
    // the disk was full; the form tells the failure and the file stays whole.
    void storedDataNeverLost_failedUpdateShowsTheWarningAndKeepsTheFile()
    {
        TestRoot root(0.001);
        addCompany("Rossi", "Marco", "C0042", "Via Roma 1");
        QByteArray before = companyFile(root, "rossi");
        Edited e("rossi");
        EditCompany d(nullptr, e.list, e.record);
        ModalDriver driver;
        enter(driver, &d, "street", "Via Emilia 7");
        driver.answerBox();
        {
            FileSizeLimit limit(20);
            touch(button(&d, "Salva"));
        }
        QCOMPARE(driver.boxes.last().icon, QMessageBox::Warning);
        QCOMPARE(driver.boxes.last().informative, QString("Aggiornamento non riuscito."));
        QCOMPARE(companyFile(root, "rossi"), before);
        QCOMPARE(companyFiles(root), QStringList{"rossi"});
    }

    void resetOfTheEditFormReloadsTheCompanyAndItsInstallations()
    {
        TestRoot root(0.001);
        addCompany("Rossi", nullptr, "C0042", "Via Roma 1", {"tetto", "gone"});
        addInstallation("Tetto", "Imola", "4", "12");
        Edited e("rossi");
        EditCompany d(nullptr, e.list, e.record);
        QComboBox* combo = child<QComboBox>(&d, "installation");
        QCOMPARE(combo->count(), 2);
        touch(button(&d, "remove"));
        QCOMPARE(combo->count(), 1);
        ModalDriver driver;
        enter(driver, &d, "street", "Via Emilia 7");
        touch(button(&d, "Reset"));
        QCOMPARE(text(&d, "street"), QString("Via Roma 1"));
        QCOMPARE(combo->count(), 2);
        QStringList rows;
        for (int i = 0; i < combo->count(); i++)
            rows << combo->itemText(i);
        QVERIFY(rows.contains(" (/ )")); // an installation whose file has gone
    }

    // ---- Choosing, deleting, listing, viewing

    void selectInEditModeShowsTheFieldsOfTheChosenCompany()
    {
        TestRoot root(0.001);
        addCompany("Rossi", "Marco", "C0042", "Via Roma 1");
        addCompany("Bianchi", nullptr, "B0001", nullptr);
        SelectCompany d(nullptr, SELECT_EDIT);
        QCOMPARE(d.objectName(), QString("SelectEditCompany"));
        QCOMPARE(d.findChild<InfoBar*>()->title(), QString("Selezione Azienda"));
        QCOMPARE(button(&d, "action")->text(), QString("Modifica"));
        QComboBox* combo = child<QComboBox>(&d, "company");
        QCOMPARE(combo->itemText(0), QString("Bianchi /  (B0001)"));
        QCOMPARE(combo->itemText(1), QString("Rossi /  (C0042)"));
        QListWidget* fields = child<QListWidget>(&d, "fields");
        QCOMPARE(fields->item(0)->text(), QString("Cognome / Denominazione : Bianchi"));
        combo->setCurrentIndex(1);
        QCOMPARE(fields->item(1)->text(), QString("Nome : Marco"));
        QCOMPARE(fields->item(2)->text(), QString("Cod. Fis. : "));
        QCOMPARE(fields->item(7)->text(), QString("Via : Via Roma 1"));
        ModalDriver driver;
        driver.onWindow("EditCompany", [](QWidget* w) {
            QCOMPARE(w->findChild<QLineEdit*>("surn")->text(), QString("Rossi"));
            qobject_cast<QDialog*>(w)->reject();
        });
        touch(button(&d, "action"));
        QCOMPARE(driver.pending(), 0);
        QCOMPARE(combo->currentIndex(), 1);
    }

    void deletingACompanyKeepsItsInstallations()
    {
        TestRoot root(0.001);
        addCompany("Rossi", "Marco", "C0042", "Via Roma 1", {"tetto"});
        addInstallation("Tetto", "Imola", "4", "12");
        SelectCompany d(nullptr, SELECT_DELETE);
        QCOMPARE(d.objectName(), QString("SelectDelCompany"));
        QCOMPARE(d.findChild<InfoBar*>()->title(), QString("Cancella Azienda"));
        ModalDriver driver;
        driver.answerBox(QMessageBox::No);
        touch(button(&d, "action"));
        QCOMPARE(companyFiles(root), QStringList{"rossi"});
        driver.answerBox(QMessageBox::Yes);
        touch(button(&d, "action"));
        QCOMPARE(driver.boxes.last().text, QString("Cancella Azienda"));
        QCOMPARE(driver.boxes.last().informative, QString("Conferma?"));
        QVERIFY(companyFiles(root).isEmpty());
        QVERIFY(root.exists("/krm510data/datainstallation/tetto"));
        QCOMPARE(child<QComboBox>(&d, "company")->count(), 0);
        QVERIFY(!button(&d, "action")->isEnabled());
    }

    void selectForAddingInstallationsHasItsOwnNameAndTitle()
    {
        TestRoot root(0.001);
        addCompany("Rossi", "Marco", "C0042", nullptr);
        SelectCompany d(nullptr, SELECT_VIEW);
        QCOMPARE(d.objectName(), QString("AddInstallationOnCompany"));
        QCOMPARE(d.findChild<InfoBar*>()->title(), QString("Aggiungere Installazioni ad Azienda"));
        QCOMPARE(button(&d, "action")->text(), QString("Agg. Installazione"));
        touch(button(&d, "action"));
        QCOMPARE(d.result(), int(QDialog::Accepted));
    }

    void listShowsTheHeaderThenSurnameAndCodeSortedAndOpensTheCompanyAndItsInstallation()
    {
        TestRoot root(0.001);
        addCompany("Rossi", "Marco", "C0042", "Via Roma 1", {"tetto"});
        addCompany("Bianchi", nullptr, "B0001", nullptr);
        addInstallation("Tetto", "Imola", "4", "12");
        ListCompany d(nullptr);
        QCOMPARE(d.findChild<InfoBar*>()->title(), QString("Lista Aziende"));
        QListWidget* list = child<QListWidget>(&d, "list");
        QCOMPARE(list->count(), 3);
        QCOMPARE(list->item(0)->text(), QString("Cogn./Denom.\tCod."));
        QCOMPARE(list->item(1)->text(), QString("Bianchi\tB0001"));
        QCOMPARE(list->item(2)->text(), QString("Rossi\tC0042"));
        list->setCurrentRow(0);
        touch(button(&d, "Apri")); // the header opens nothing
        list->setCurrentRow(2);
        ModalDriver driver;
        ModalDriver inner; // what the company's view opens
        QString opened;
        driver.onWindow("ViewCompany", [&](QWidget* w) {
            QCOMPARE(w->findChild<QLabel*>("field0")->text(),
                     QString("Cognome \\ Denominazione : Rossi"));
            QListWidget* inst = w->findChild<QListWidget*>("installations");
            QCOMPARE(inst->item(0)->text(), QString("Id\tCittà"));
            QCOMPARE(inst->item(1)->text(), QString("Tetto\tImola"));
            QPushButton* view = w->findChild<QPushButton*>("Visualizza");
            QVERIFY(!view->isEnabled());
            QTest::mouseClick(inst->viewport(), Qt::LeftButton, {},
                              inst->visualItemRect(inst->item(1)).center());
            QVERIFY(view->isEnabled());
            // "Visualizza" opens the installation of the row
            inner.onWindow("ViewInstallation", [&](QWidget* v) {
                opened = v->findChild<QLabel*>("field0")->text();
                qobject_cast<QDialog*>(v)->reject();
            });
            touch(view);
            qobject_cast<QDialog*>(w)->reject();
        });
        touch(button(&d, "Apri"));
        QCOMPARE(driver.pending(), 0);
        QCOMPARE(inner.pending(), 0);
        QCOMPARE(opened, QString("Installazione Id : Tetto"));
    }

    void menuOpensEachScreenAndTheKeysWalkIt()
    {
        TestRoot root(0.001);
        checkDirData();
        ArchiveCompany menu(nullptr);
        QCOMPARE(menu.findChild<InfoBar*>()->title(), QString("Archivio Aziende"));
        ModalDriver driver;
        const QList<QPair<const char*, const char*>> entries = {{"Nuova", "InsertCompany"},
                                                                {"Modifica", "SelectEditCompany"},
                                                                {"Cancella", "SelectDelCompany"},
                                                                {"Elenco", "ListCompany"}};
        for (const auto& e : entries) {
            QString seen;
            driver.onNext([&seen](QWidget* w) {
                seen = w->objectName();
                qobject_cast<QDialog*>(w)->reject();
            });
            touch(button(&menu, e.first));
            QCOMPARE(seen, QString(e.second));
        }
        // the keys walk the menu; Return opens the focused entry
        menu.activateWindow(); // the test platform leaves the window behind a closed dialog
                               // inactive
        QVERIFY(QTest::qWaitForWindowActive(&menu));
        button(&menu, "Modifica")->setFocus();
        QTest::keyClick(&menu, Qt::Key_Down);
        QVERIFY(button(&menu, "Cancella")->hasFocus());
        QTest::keyClick(&menu, Qt::Key_Down);
        QVERIFY(button(&menu, "Elenco")->hasFocus());
        QTest::keyClick(&menu, Qt::Key_Down);
        QVERIFY(button(&menu, "Exit")->hasFocus());
        QTest::keyClick(&menu, Qt::Key_Up);
        QVERIFY(button(&menu, "Elenco")->hasFocus());
        QString seen;
        driver.onNext([&seen](QWidget* w) {
            seen = w->objectName();
            qobject_cast<QDialog*>(w)->reject();
        });
        QTest::keyClick(&menu, Qt::Key_Return);
        QCOMPARE(seen, QString("ListCompany"));
    }

    void mainMenuButtonOpensTheCompanyArchive()
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
        touch(child<QPushButton>(&menu, "ArchivioAziende"));
        menu.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&menu));
        child<QPushButton>(&menu, "ArchivioAziende")->setFocus();
        driver.onNext(leave);
        QTest::keyClick(&menu, Qt::Key_Return);
        QCOMPARE(opened, QStringList({"ArchiveCompany:Archivio Aziende",
                                      "ArchiveCompany:Archivio Aziende"}));
    }

    void catalogueRowsOfTheCompanyScreens()
    {
        TestRoot root(0.01);
        QVERIFY(root.installCatalogues());
        QTranslator italian, english, german;
        QVERIFY(loadTranslator(&italian, LANG_IT));
        QVERIFY(loadTranslator(&english, LANG_EN));
        QVERIFY(loadTranslator(&german, LANG_DE));
        // the Italian catalogue mends the selection's label of the tax code
        QCOMPARE(italian.translate("SelectCompany", "Cod. Fis."), QString("Cod. Fisc."));
        QCOMPARE(italian.translate("InsertCompany", "Cod. Fisc."), QString("Cod. Fisc."));
        QCOMPARE(english.translate("EditCompany", "Aggiornamento non riuscito."),
                 QString("Update failed."));
        QCOMPARE(english.translate("InsertCompany", " già presente."),
                 QString(" already present."));
        QCOMPARE(english.translate("EditCompany", " è già presente."),
                 QString(" is already present."));
        QCOMPARE(german.translate("ArchiveCompany", "Archivio Aziende"), QString("Firmenarchiv"));
        QCOMPARE(german.translate("ListCompany", "Lista Aziende"), QString("Firmenliste"));
    }

    // ---- Screenshots

    void operatorSeesWhereTheyAre_companyScreensFitInFiveLanguages_data() { languageRows(); }
    void operatorSeesWhereTheyAre_companyScreensFitInFiveLanguages()
    {
        QFETCH(int, lang);
        ShownLanguage shown(lang);
        QVERIFY(shown.loaded());
        QStringList faults;
        TestRoot root(0.001);
        addCompany("Rossi Impianti", "Marco", "C0042", "Via dei Mille 12", {"tetto"});
        addCompany("Bianchi Energia", nullptr, "B0001", "Via Emilia 7");
        addInstallation("Tetto", "Imola", "4", "12");
        {
            ArchiveCompany menu(nullptr);
            faults += shoot(&menu, "company-archive");
        }
        {
            Edited e("rossi_impianti");
            EditCompany d(nullptr, e.list, e.record);
            faults += shoot(&d, "company-edit");
        }
        {
            InsertCompany d(nullptr);
            ModalDriver driver;
            enter(driver, &d, "surn", "Verdi");
            enter(driver, &d, "phone", "+39 051 654");
            faults += shoot(&d, "company-insert");
        }
        for (_selectType mode : {SELECT_EDIT, SELECT_DELETE, SELECT_VIEW}) {
            SelectCompany d(nullptr, mode);
            faults += shoot(&d, "company-" + d.objectName());
        }
        {
            SelectInstallation d(nullptr, SELECT_VIEW);
            faults += shoot(&d, "company-select-installation");
        }
        {
            ListCompany d(nullptr);
            faults += shoot(&d, "company-list");
        }
        {
            _company* c = readCompanyFromFile("rossi_impianti");
            ViewCompany d(nullptr, c);
            faults += shoot(&d, "company-view");
            freeCompany(c);
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }
};

QTEST_MAIN(TestCompany)
#include "tst_company.moc"
