// The menu of the module archive, and its button in the main menu.
#include "archive/archivepanel.h"
#include "archivefixture.h"
#include "shell/orvia.h"
#include "toolkit/infobar.h"

#include <QComboBox>
#include <QListWidget>
#include <QtTest>

using namespace archive;

class TestArchivePanel : public QObject
{
    Q_OBJECT

private slots:
    void menuHoldsItsSevenButtonsWithTheirIcons()
    {
        TestRoot root(0.001);
        ArchivePanel d(nullptr);
        QCOMPARE(d.windowTitle(), QString("Archivio Moduli"));
        QCOMPARE(d.findChild<InfoBar*>()->title(), QString("Archivio Moduli"));
        const char* names[] = {"Nuovo Modulo", "Modifica Modulo", "Modifica Marca", "Cancella",
                               "Trova", "Elenco", "Exit"};
        for (const char* name : names) {
            QPushButton* b = child<QPushButton>(&d, name);
            QVERIFY(b != nullptr);
            QCOMPARE(b->text(), QString(name));
            QVERIFY(!b->icon().isNull());
            QVERIFY(b->isFlat());
        }
    }
    void eachButtonOpensItsScreenAndTheScreenGoesAway()
    {
        TestRoot root(0.001);
        QVERIFY(addBrand("Solar", "solar"));
        ArchivePanel d(nullptr);
        ModalDriver driver;
        QStringList opened;
        const char* names[] = {"Nuovo Modulo", "Modifica Modulo", "Modifica Marca", "Cancella",
                               "Trova", "Elenco"};
        const char* screens[] = {"NewPanel", "EditPanel", "EditBrand", "DeletePanel",
                                 "FindPanel", "ListPanel"};
        for (int i = 0; i < 6; i++) {
            const char* name = names[i];
            onScreen(driver, screens[i], [&](QWidget* w) {
                opened << w->metaObject()->className();
                // every screen gets the brands
                QComboBox* brand = w->findChild<QComboBox*>("brand");
                if (brand != nullptr)
                    QCOMPARE(brand->itemText(0), QString("Solar"));
                qobject_cast<QDialog*>(w)->reject();
            });
            touch(child<QPushButton>(&d, name));
        }
        QCOMPARE(opened, QStringList({"NewPanel", "EditPanel", "EditBrand", "DeletePanel",
                                      "FindPanel", "ListPanel"}));
        QVERIFY(d.findChildren<QDialog*>().isEmpty());
        touch(child<QPushButton>(&d, "Exit"));
        QCOMPARE(d.result(), int(QDialog::Rejected));
    }
    void aBrandAddedInOneScreenIsSeenByTheNext()
    {
        TestRoot root(0.001);
        QVERIFY(emptyDatabase(root));
        ArchivePanel d(nullptr);
        ModalDriver driver;
        ModalDriver form; // the windows opened inside the screen
        onScreen(driver, "EditBrand", [&](QWidget* w) {
            QListWidget* list = w->findChild<QListWidget*>("brands");
            list->setCurrentRow(0);
            form.typeOnKeyboard("Helios");
            form.answerBox();
            touch(w->findChild<QLineEdit*>("name"));
            touch(w->findChild<QPushButton*>("Salva"));
            qobject_cast<QDialog*>(w)->reject();
        });
        touch(child<QPushButton>(&d, "Modifica Marca"));
        QString seen;
        onScreen(driver, "NewPanel", [&](QWidget* w) {
            seen = w->findChild<QComboBox*>("brand")->currentText();
            qobject_cast<QDialog*>(w)->reject();
        });
        touch(child<QPushButton>(&d, "Nuovo Modulo"));
        QCOMPARE(seen, QString("Helios"));
        QCOMPARE(tree(root), QStringList({"helios/", "helios/iname"}));
    }
    void hardwareKeysWalkTheMenuAndReturnOpensTheFocusedEntry()
    {
        TestRoot root(0.25);
        SimInstrument sim(root);
        QVERIFY(emptyDatabase(root));
        ArchivePanel d(nullptr);
        QVERIFY(QTest::qWaitForWindowActive(&d));
        child<QPushButton>(&d, "Nuovo Modulo")->setFocus();
        QStringList seen;
        for (int i = 0; i < 7; i++)
            seen << focusStep(sim, "down");
        QCOMPARE(seen, QStringList({"Modifica Modulo", "Modifica Marca", "Cancella", "Trova",
                                    "Elenco", "Exit", "Nuovo Modulo"}));
        QCOMPARE(focusStep(sim, "up"), QString("Exit"));
        QCOMPARE(focusStep(sim, "up"), QString("Elenco"));
        QCOMPARE(focusStep(sim, "up"), QString("Trova"));
        ModalDriver driver;
        QString opened;
        onScreen(driver, "FindPanel", [&](QWidget* w) {
            sim.releaseKey("return");
            opened = w->metaObject()->className();
            qobject_cast<QDialog*>(w)->reject();
        });
        QVERIFY(sim.pressKey("return"));
        QTRY_COMPARE(opened, QString("FindPanel"));
        QVERIFY(sim.releaseKey("return"));
        QVERIFY(sim.pressKey("escape"));
        QTRY_VERIFY(!d.isVisible());
        QVERIFY(sim.releaseKey("escape"));
    }
    void mainMenuButtonOpensTheModuleArchive()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        QVERIFY(emptyDatabase(root));
        Orvia menu;
        ModalDriver driver;
        QStringList opened;
        auto leave = [&](QWidget* w) {
            opened << w->metaObject()->className() + QString(":") + w->windowTitle();
            qobject_cast<QDialog*>(w)->reject();
        };
        driver.onNext(leave);
        touch(child<QPushButton>(&menu, "ArchivioModuli"));
        menu.activateWindow(); // the test platform leaves the window behind a closed dialog inactive
        QVERIFY(QTest::qWaitForWindowActive(&menu));
        child<QPushButton>(&menu, "ArchivioModuli")->setFocus();
        driver.onNext(leave);
        QTest::keyClick(&menu, Qt::Key_Return);
        QCOMPARE(opened, QStringList({"ArchivePanel:Archivio Moduli", "ArchivePanel:Archivio Moduli"}));
    }
};

QTEST_MAIN(TestArchivePanel)
#include "tst_archivepanel.moc"
