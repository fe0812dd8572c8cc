#include "archive/archivemeasures.h"
#include "archive/listmeasures.h"
#include "measure/viewfixture.h"
#include "measure/viewmeasures.h"
#include "shell/language.h"
#include "shell/orvia.h"
#include "support/fivelanguages.h"
#include "support/lookcheck.h"
#include "support/modaldriver.h"
#include "support/screenshot.h"
#include "toolkit/infobar.h"
#include "toolkit/look.h"

#include <QButtonGroup>
#include <QDir>
#include <QListWidget>
#include <QTranslator>

using namespace panelfixture;
using namespace viewfixture;

// The measure archive: its menu behind the main menu's "Archivio Misure",
// and the list of saved measures in its three uses, driven as the operator
// drives them.
class TestListMeasures : public QObject
{
    Q_OBJECT

    struct World {
        TestRoot root{0.1};
        SimInstrument sim{root};
        World()
        {
            configure(root);
            sim.setAdapter(true);
        }
    };

    // Three module measures saved out of date order, with their comments.
    static QList<QByteArray> threeMeasures(_meaType type = MEA_PANEL)
    {
        QList<QByteArray> files;
        const char* when[][3] = {{"2026/05/04", "11:22:33", "Tetto sud"},
                                 {"2025/12/01", "08:00:00", "Capannone nord, fila 2"},
                                 {"2026/01/15", "16:45:10", "Pensilina"}};
        for (auto& w : when)
            files << saveSample(type, [&](_measure& m) {
                m.mdata = const_cast<char*>(w[0]);
                m.mtime = const_cast<char*>(w[1]);
                m.mcom = const_cast<char*>(w[2]);
            });
        return files;
    }

    static QStringList rows(ListMeasures* list)
    {
        QStringList texts;
        for (int i = 0; i < list->listWidget->count(); i++)
            texts << list->listWidget->item(i)->text();
        return texts;
    }

    static void pickRow(ListMeasures* list, int row)
    {
        QListWidget* w = list->listWidget;
        QTest::mouseClick(w->viewport(), Qt::LeftButton, Qt::NoModifier,
                          w->visualItemRect(w->item(row)).center());
    }

    static QStringList measureFiles(const TestRoot& root, _meaType type)
    {
        return QDir(root.path(type == MEA_PANEL ? "/krm510data/datameapanel"
                                                : "/krm510data/datameastring"))
            .entryList(QDir::Files, QDir::Name);
    }

public:
    static void initMain() { useInstrumentScreen(); }

private slots:
    void initTestCase()
    {
        useInstrumentDpi();
        setInstrumentLook();
    }

    // ---- The list

    void emptyDirectoryShowsTheHeaderAloneWithTheFirstButtonDisabled_data()
    {
        QTest::addColumn<int>("select");
        QTest::addColumn<QString>("button");
        QTest::newRow("view") << int(SELECT_VIEW) << "Grafico";
        QTest::newRow("delete") << int(SELECT_DELETE) << "Cancella";
        QTest::newRow("edit") << int(SELECT_EDIT) << "Aggiungi";
    }
    void emptyDirectoryShowsTheHeaderAloneWithTheFirstButtonDisabled()
    {
        QFETCH(int, select);
        QFETCH(QString, button);
        World w;
        ListMeasures list(nullptr, MEA_PANEL, _selectType(select));
        QCOMPARE(list.objectName(), QString("ListMeasures"));
        QCOMPARE(rows(&list), QStringList{"Data Ora\tCommento"});
        QPushButton* first = list.findChild<QPushButton*>(button);
        QVERIFY(first != nullptr);
        QVERIFY(!first->isEnabled());
        QCOMPARE(first->iconSize(), QSize(16, 16));
        // only the button of the task is made
        QCOMPARE(list.findChildren<QPushButton*>().size(), 2);
        QVERIFY(list.exitButton->isDefault());
        QVERIFY(list.head == nullptr);
    }
    void rowsStandOldestFirstUnderTheHeader()
    {
        World w;
        threeMeasures();
        ListMeasures list(nullptr, MEA_PANEL, SELECT_VIEW);
        list.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list));
        QCOMPARE(rows(&list),
                 (QStringList{"Data Ora\tCommento", "2025/12/01 08:00:00\tCapannone nord, fila 2",
                              "2026/01/15 16:45:10\tPensilina", "2026/05/04 11:22:33\tTetto sud"}));
        QVERIFY(list.graphButton->isEnabled());
        QCOMPARE(list.infoBar->title(), QString("Lista Misure Moduli"));
        QVERIFY(!list.listWidget->isSortingEnabled());
        QVERIFY(legibilityFaults(&list).isEmpty());
        saveScreenshot(&list, "listmeasures-three");
    }
    void stringListHasItsOwnTitleAndFiles()
    {
        World w;
        threeMeasures(MEA_STRING);
        ListMeasures strings(nullptr, MEA_STRING, SELECT_VIEW);
        QCOMPARE(strings.infoBar->title(), QString("Lista Misure Stringhe"));
        QCOMPARE(strings.listWidget->count(), 4);
        ListMeasures modules(nullptr, MEA_PANEL, SELECT_VIEW);
        QCOMPARE(modules.listWidget->count(), 1);
    }
    void aMeasureWithoutCommentShowsDateAndTime()
    {
        World w;
        saveSample(MEA_PANEL, [](_measure& m) { m.mcom = nullptr; });
        ListMeasures list(nullptr, MEA_PANEL, SELECT_VIEW);
        QCOMPARE(rows(&list).value(1), QString("2026/05/04 11:22:33\t"));
    }
    void graphOpensTheViewerOfTheRowsMeasure()
    {
        World w;
        threeMeasures();
        ListMeasures list(nullptr, MEA_PANEL, SELECT_VIEW);
        list.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list));
        pickRow(&list, 2);
        ModalDriver driver;
        QByteArray file;
        int type = -1;
        QString title;
        driver.onWindow("ViewMeasures", [&](QWidget* v) {
            ViewMeasures* view = qobject_cast<ViewMeasures*>(v);
            file = view->_entry->file;
            type = view->_type;
            title = view->_plotter->title();
            QTest::keyClick(v, Qt::Key_Escape);
        });
        archiveTouch(list.graphButton);
        QCOMPARE(file, QByteArray("20260115-164510"));
        QCOMPARE(type, int(MEA_PANEL));
        QCOMPARE(title, QString("Misure : SIM 250"));
        // the list stays as it is
        QCOMPARE(list.listWidget->count(), 4);
        QVERIFY(list.isVisible());
    }
    void firstButtonOnTheHeaderRowDoesNothing_data()
    {
        emptyDirectoryShowsTheHeaderAloneWithTheFirstButtonDisabled_data();
    }
    void firstButtonOnTheHeaderRowDoesNothing()
    {
        QFETCH(int, select);
        QFETCH(QString, button);
        World w;
        threeMeasures();
        ListMeasures list(nullptr, MEA_PANEL, _selectType(select));
        list.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list));
        pickRow(&list, 0);
        ModalDriver driver;
        QStringList seen;
        driver.onNext([&](QWidget* d) {
            seen << d->metaObject()->className();
            QTest::keyClick(d, Qt::Key_Escape);
        });
        archiveTouch(list.findChild<QPushButton*>(button));
        QTest::qWait(100);
        QCOMPARE(seen, QStringList());
        QVERIFY(list.isVisible());
        QVERIFY(list.selected == nullptr);
        QCOMPARE(measureFiles(w.root, MEA_PANEL).size(), 3);
    }
    void deleteAsksThenReadsTheListAgain()
    {
        World w;
        threeMeasures();
        ListMeasures list(nullptr, MEA_PANEL, SELECT_DELETE);
        list.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list));
        pickRow(&list, 1);
        ModalDriver driver;
        driver.answerBox(QMessageBox::No);
        archiveTouch(list.deleteButton);
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].text, QString("Cancella Misure Modulo"));
        QCOMPARE(driver.boxes[0].informative, QString("Conferma?"));
        QCOMPARE(driver.boxes[0].icon, QMessageBox::Critical);
        QCOMPARE(measureFiles(w.root, MEA_PANEL).size(), 3);

        driver.answerBox(QMessageBox::Ok);
        archiveTouch(list.deleteButton);
        QCOMPARE(measureFiles(w.root, MEA_PANEL),
                 (QStringList{"20260115-164510", "20260504-112233"}));
        QCOMPARE(rows(&list), (QStringList{"Data Ora\tCommento", "2026/01/15 16:45:10\tPensilina",
                                           "2026/05/04 11:22:33\tTetto sud"}));
        QVERIFY(list.deleteButton->isEnabled());
    }
    void deleteBoxOfStringsNamesStrings()
    {
        World w;
        threeMeasures(MEA_STRING);
        ListMeasures list(nullptr, MEA_STRING, SELECT_DELETE);
        list.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list));
        pickRow(&list, 3);
        ModalDriver driver;
        driver.answerBox(QMessageBox::Ok);
        archiveTouch(list.deleteButton);
        QCOMPARE(driver.boxes.value(0).text, QString("Cancella Misure Stringhe"));
        QCOMPARE(measureFiles(w.root, MEA_STRING).size(), 2);
        QVERIFY(!measureFiles(w.root, MEA_STRING).contains("20260504-112233"));
    }
    void deletingTheLastMeasureDisablesCancella()
    {
        World w;
        saveSample(MEA_PANEL);
        ListMeasures list(nullptr, MEA_PANEL, SELECT_DELETE);
        list.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list));
        pickRow(&list, 1);
        ModalDriver driver;
        driver.answerBox(QMessageBox::Ok);
        archiveTouch(list.deleteButton);
        QCOMPARE(rows(&list), QStringList{"Data Ora\tCommento"});
        QVERIFY(!list.deleteButton->isEnabled());
        QVERIFY(list.head == nullptr);
        QVERIFY(measureFiles(w.root, MEA_PANEL).isEmpty());
    }
    void addTakesTheRowsMeasureAndAccepts()
    {
        World w;
        const QList<QByteArray> files = threeMeasures();
        ModalDriver driver;
        ListMeasures list(nullptr, MEA_PANEL, SELECT_EDIT);
        driver.onNext([&](QWidget*) {
            pickRow(&list, 3);
            archiveTouch(list.addButton);
        });
        QCOMPARE(list.exec(), int(QDialog::Accepted));
        QVERIFY(list.selected != nullptr);
        QCOMPARE(QByteArray(list.selected->file), QByteArray("20260504-112233"));
    }
    void returnOnTheFirstButtonRunsItsTask()
    {
        World w;
        threeMeasures();
        ListMeasures list(nullptr, MEA_PANEL, SELECT_EDIT);
        list.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list));
        pickRow(&list, 1);
        list.addButton->setFocus();
        QTest::keyClick(&list, Qt::Key_Return);
        QCOMPARE(list.result(), int(QDialog::Accepted));
        QCOMPARE(QByteArray(list.selected->file), QByteArray("20251201-080000"));
    }
    void aRowTextThatBeginsAnotherIsTakenForItWhenItsNodeStandsFirst()
    {
        World w;
        const QByteArray shortOne =
            saveSample(MEA_PANEL, [](_measure& m) { m.mcom = const_cast<char*>("Tetto"); });
        const QByteArray longOne = saveSample(MEA_PANEL, [](_measure& m) {
            m.mtime = const_cast<char*>("11:22:34");
            m.mcom = const_cast<char*>("Tetto sud");
        });
        Q_UNUSED(longOne);
        ListMeasures list(nullptr, MEA_PANEL, SELECT_EDIT);
        // the short one's node first in the list, whatever order the
        // directory gave
        if (QByteArray(list.head->file) != shortOne) {
            _listMeasures* second = list.head->next;
            list.head->next = second->next;
            second->next = list.head;
            list.head = second;
        }
        QCOMPARE(QByteArray(list.head->file), shortOne);
        // two measures of the same second: "… 11:22:33\tTetto" begins
        // "… 11:22:33\tTetto sud" only with the same time; make it so
        free(list.head->next->mtime);
        list.head->next->mtime = strdup("11:22:33");
        list.addMeasuresInList();
        list.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list));
        const int row = rows(&list).indexOf("2026/05/04 11:22:33\tTetto sud");
        QVERIFY(row > 0);
        pickRow(&list, row);
        archiveTouch(list.addButton);
        QCOMPARE(QByteArray(list.selected->file), shortOne);
    }
    void keysFinishEveryScreen_upAndDownWalkListFirstButtonAndExit()
    {
        World w;
        threeMeasures();
        ListMeasures list(nullptr, MEA_PANEL, SELECT_VIEW);
        list.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list));
        QCOMPARE(list.focusWidget(), list.listWidget);
        QTest::keyClick(&list, Qt::Key_Down);
        QCOMPARE(list.focusWidget(), list.graphButton);
        QTest::keyClick(&list, Qt::Key_Down);
        QCOMPARE(list.focusWidget(), list.exitButton);
        QTest::keyClick(&list, Qt::Key_Down);
        QCOMPARE(list.focusWidget(), list.listWidget);
        QTest::keyClick(&list, Qt::Key_Up);
        QCOMPARE(list.focusWidget(), list.exitButton);
        // a disabled first button is passed over
        list.graphButton->setEnabled(false);
        QTest::keyClick(&list, Qt::Key_Up);
        QCOMPARE(list.focusWidget(), list.listWidget);
        QTest::keyClick(&list, Qt::Key_Down);
        QCOMPARE(list.focusWidget(), list.exitButton);
        QTest::keyClick(&list, Qt::Key_Return);
        QVERIFY(!list.isVisible());
    }
    void keysFinishEveryScreen_aMeasureViewedWithTheHardwareKeysAlone()
    {
        World w;
        threeMeasures();
        ListMeasures list(nullptr, MEA_PANEL, SELECT_VIEW);
        list.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list));
        ModalDriver driver;
        QByteArray file;
        driver.onWindow("ViewMeasures", [&](QWidget* v) {
            file = qobject_cast<ViewMeasures*>(v)->_entry->file;
            hardKey(w.sim, "escape", v);
        });
        // into the list, down to the first measure, chosen; then "Grafico"
        QVERIFY(w.sim.tapKey("return"));
        QVERIFY(w.sim.tapKey("down"));
        QVERIFY(w.sim.tapKey("return"));
        QCOMPARE(list.listWidget->currentRow(), 1);
        QVERIFY(hardKey(w.sim, "down", &list));
        QCOMPARE(list.focusWidget(), list.graphButton);
        QVERIFY(hardKey(w.sim, "return", &list));
        QTRY_COMPARE(file, QByteArray("20251201-080000"));
        QVERIFY(hardKey(w.sim, "escape", &list));
        QTRY_VERIFY(!list.isVisible());
    }
    void escapeLeavesTheList()
    {
        World w;
        ModalDriver driver;
        ListMeasures list(nullptr, MEA_PANEL, SELECT_EDIT);
        driver.onNext([](QWidget* l) { QTest::keyClick(l, Qt::Key_Escape); });
        QCOMPARE(list.exec(), int(QDialog::Rejected));
        QVERIFY(list.selected == nullptr);
    }

    void screensSpeakTheChosenLanguage_data()
    {
        QTest::addColumn<int>("lang");
        QTest::addColumn<QString>("header");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("graph");
        QTest::addColumn<QString>("strings");
        QTest::addColumn<QString>("power");
        QTest::newRow("it") << int(LANG_IT) << "Data Ora\tCommento"
                            << "Lista Misure Moduli"
                            << "Grafico"
                            << "Stringhe"
                            << "Potenza";
        QTest::newRow("en") << int(LANG_EN) << "Date Time\tComment"
                            << "Module measurements"
                            << "Graph"
                            << "Strings"
                            << "Power";
        QTest::newRow("fr") << int(LANG_FR) << "Date Heure\tCommentaire"
                            << "Liste mesures modules"
                            << "Graphique"
                            << "Chaines"
                            << "Puissance";
        QTest::newRow("de") << int(LANG_DE) << "Datum Uhrzeit\tKommentar"
                            << "Liste Modulmessungen"
                            << "Grafik"
                            << "Strings"
                            << "Leistung";
        QTest::newRow("es") << int(LANG_ES) << "Fecha Hora\tComentario"
                            << "Lista medidas módulos"
                            << "Gráfico"
                            << "Strings"
                            << "Potencia";
    }
    void screensSpeakTheChosenLanguage()
    {
        QFETCH(int, lang);
        QFETCH(QString, header);
        QFETCH(QString, title);
        QFETCH(QString, graph);
        QFETCH(QString, strings);
        QFETCH(QString, power);
        World w;
        QVERIFY(w.root.installCatalogues());
        QTranslator translator;
        QVERIFY(loadTranslator(&translator, _language(lang)));
        QCoreApplication::installTranslator(&translator);
        threeMeasures();
        {
            ListMeasures list(nullptr, MEA_PANEL, SELECT_VIEW);
            QVERIFY(QTest::qWaitForWindowExposed(&list));
            QCOMPARE(list.listWidget->item(0)->text(), header);
            QCOMPARE(list.infoBar->title(), title);
            QCOMPARE(list.graphButton->text(), graph);
            QStringList faults = shootInLanguage(&list, "listmeasures", lang);
            ArchiveMeasures menu(nullptr);
            QCOMPARE(menu.stringsButton->text(), strings);
            faults += shootInLanguage(&menu, "archivemeasures", lang);
            _listMeasures* entry = list.head;
            ViewMeasures view(nullptr, entry, MEA_PANEL);
            QCOMPARE(view._buttonPower->text(), power);
            faults += shootInLanguage(&view, "viewmeasures", lang);
            QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
        }
        QCoreApplication::removeTranslator(&translator);
    }

    // ---- The menu of the archive

    void archiveMenuHasItsButtonsWithModulesChosen()
    {
        World w;
        ArchiveMeasures menu(nullptr);
        QCOMPARE(menu.infoBar->title(), QString("Archivio Misure"));
        QVERIFY(menu.modulesButton->isCheckable() && menu.modulesButton->isChecked());
        QVERIFY(menu.stringsButton->isCheckable() && !menu.stringsButton->isChecked());
        for (QPushButton* b : {menu.modulesButton, menu.stringsButton, menu.listButton,
                               menu.deleteButton, menu.exitButton}) {
            QVERIFY(b->isFlat());
            QCOMPARE(b->iconSize(), QSize(32, 32));
        }
        QVERIFY(menu.exitButton->autoDefault());
        archiveTouch(menu.stringsButton);
        QVERIFY(menu.stringsButton->isChecked());
        QVERIFY(!menu.modulesButton->isChecked());
        QVERIFY(QTest::qWaitForWindowExposed(&menu));
        QVERIFY(legibilityFaults(&menu).isEmpty());
        saveScreenshot(&menu, "archivemeasures");
    }
    void listAndDeleteOpenTheListOfTheChosenType_data()
    {
        QTest::addColumn<bool>("strings");
        QTest::addColumn<bool>("remove");
        QTest::newRow("modules, list") << false << false;
        QTest::newRow("modules, delete") << false << true;
        QTest::newRow("strings, list") << true << false;
        QTest::newRow("strings, delete") << true << true;
    }
    void listAndDeleteOpenTheListOfTheChosenType()
    {
        QFETCH(bool, strings);
        QFETCH(bool, remove);
        World w;
        ArchiveMeasures menu(nullptr);
        if (strings)
            archiveTouch(menu.stringsButton);
        ModalDriver driver;
        int type = -1;
        int select = -1;
        driver.onWindow("ListMeasures", [&](QWidget* l) {
            ListMeasures* list = qobject_cast<ListMeasures*>(l);
            type = list->meaType;
            select = list->selectType;
            archiveTouch(list->exitButton);
        });
        archiveTouch(remove ? menu.deleteButton : menu.listButton);
        QCOMPARE(type, int(strings ? MEA_STRING : MEA_PANEL));
        QCOMPARE(select, int(remove ? SELECT_DELETE : SELECT_VIEW));
        QVERIFY(menu.findChild<ListMeasures*>() == nullptr);
    }
    void archiveMenuKeys()
    {
        World w;
        ArchiveMeasures menu(nullptr);
        QVERIFY(QTest::qWaitForWindowExposed(&menu));
        QCOMPARE(menu.focusWidget(), menu.modulesButton);
        QTest::keyClick(&menu, Qt::Key_Down);
        QCOMPARE(menu.focusWidget(), menu.stringsButton);
        QTest::keyClick(&menu, Qt::Key_Return);
        QVERIFY(menu.stringsButton->isChecked());
        QTest::keyClick(&menu, Qt::Key_Down);
        QCOMPARE(menu.focusWidget(), menu.listButton);
        ModalDriver driver;
        int type = -1;
        driver.onWindow("ListMeasures", [&](QWidget* l) {
            type = qobject_cast<ListMeasures*>(l)->meaType;
            QTest::keyClick(l, Qt::Key_Escape);
        });
        QTest::keyClick(&menu, Qt::Key_Return);
        QCOMPARE(type, int(MEA_STRING));
        menu.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&menu));
        QTest::keyClick(&menu, Qt::Key_Up);
        QCOMPARE(menu.focusWidget(), menu.stringsButton);
        QTest::keyClick(&menu, Qt::Key_Escape);
        QVERIFY(!menu.isVisible());
    }

    void operatorSeesWhereTheyAre_theFocusFrameMovesWithTheKeys()
    {
        World w;
        threeMeasures();
        {
            ArchiveMeasures menu(nullptr);
            QVERIFY(QTest::qWaitForWindowActive(&menu));
            QVERIFY(showsPowerSupply(&menu));
            QStringList faults = focusMarkFaultsByKey(&menu, w.sim, menu.listButton, "down");
            QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
        }
        ListMeasures list(nullptr, MEA_PANEL, SELECT_DELETE);
        QVERIFY(QTest::qWaitForWindowActive(&list));
        QVERIFY(showsPowerSupply(&list));
        QStringList faults = focusMarkFaultsByKey(&list, w.sim, list.deleteButton, "down");
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
        list.hide(); // the keys go to the window in front
        _listMeasures* entry = list.head;
        ViewMeasures view(nullptr, entry, MEA_PANEL);
        view.show();
        QVERIFY(QTest::qWaitForWindowActive(&view));
        QTest::qWait(800); // the screen's first supply poll
        faults = focusMarkFaultsByKey(&view, w.sim, view._buttonEnv, "down");
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }

    // ---- The main menu's "Archivio Misure"

    void mainMenuButtonOpensTheMeasureArchive()
    {
        World w;
        Orvia orvia;
        orvia.show();
        QPushButton* button = orvia.findChild<QPushButton*>("ArchivioMisure");
        QCOMPARE(button->text(), QString("Archivio\nMisure"));
        QStringList seen;
        ModalDriver driver;
        driver.onNext([&](QWidget* a) {
            seen << a->metaObject()->className();
            archiveTouch(qobject_cast<ArchiveMeasures*>(a)->exitButton);
        });
        archiveTouch(button);
        QCOMPARE(seen, QStringList{"ArchiveMeasures"});
        QVERIFY(orvia.findChild<ArchiveMeasures*>() == nullptr);
    }
    void keysFinishEveryScreen_aMeasureSeenFromTheMainMenuAndBack()
    {
        World w;
        threeMeasures();
        Orvia orvia;
        orvia.show();
        QVERIFY(QTest::qWaitForWindowActive(&orvia));
        ModalDriver outer;
        ModalDriver inner;
        ModalDriver innermost;
        QByteArray file;
        QStringList met;
        outer.onWindow("ArchiveMeasures", [&](QWidget* a) {
            met << a->metaObject()->className();
            inner.onWindow("ListMeasures", [&](QWidget* l) {
                met << l->metaObject()->className();
                innermost.onWindow("ViewMeasures", [&](QWidget* v) {
                    met << v->metaObject()->className();
                    file = qobject_cast<ViewMeasures*>(v)->_entry->file;
                    hardKey(w.sim, "escape", v);
                });
                // into the list, the first measure chosen, down to "Grafico"
                w.sim.tapKey("return");
                w.sim.tapKey("down");
                w.sim.tapKey("return");
                hardKey(w.sim, "down", l);
                hardKey(w.sim, "return", l);
                hardKey(w.sim, "escape", l);
            });
            hardKey(w.sim, "down", a); // Stringhe
            hardKey(w.sim, "down", a); // Elenco
            hardKey(w.sim, "return", a);
            hardKey(w.sim, "escape", a);
        });
        orvia.findChild<QPushButton*>("Modulo")->setFocus();
        QVERIFY(hardKey(w.sim, "down", &orvia));
        QCOMPARE(orvia.focusWidget()->objectName(), QString("ArchivioMisure"));
        QVERIFY(hardKey(w.sim, "return", &orvia));
        QTRY_COMPARE(met, (QStringList{"ArchiveMeasures", "ListMeasures", "ViewMeasures"}));
        QCOMPARE(file, QByteArray("20251201-080000"));
        QCOMPARE(outer.pending() + inner.pending() + innermost.pending(), 0);
        QVERIFY(orvia.findChild<ArchiveMeasures*>() == nullptr);
    }
    void returnOnArchivioMisureOpensTheMeasureArchive()
    {
        World w;
        Orvia orvia;
        orvia.show();
        QVERIFY(QTest::qWaitForWindowExposed(&orvia));
        QStringList seen;
        ModalDriver driver;
        driver.onNext([&](QWidget* a) {
            seen << a->metaObject()->className();
            QTest::keyClick(a, Qt::Key_Escape);
        });
        orvia.findChild<QPushButton*>("Modulo")->setFocus();
        QTest::keyClick(&orvia, Qt::Key_Down);
        QCOMPARE(orvia.focusWidget()->objectName(), QString("ArchivioMisure"));
        QTest::keyClick(&orvia, Qt::Key_Return);
        QCOMPARE(seen, QStringList{"ArchiveMeasures"});
    }

private:
    static void archiveTouch(QWidget* w) { QTest::mouseClick(w, Qt::LeftButton); }
};

QTEST_MAIN(TestListMeasures)
#include "tst_listmeasures.moc"
