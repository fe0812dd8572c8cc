// Adding and renaming brands of the module archive.
#include "archive/editbrand.h"
#include "archivefixture.h"
#include "toolkit/infobar.h"

#include <QListWidget>
#include <QtTest>

using namespace archive;

class TestEditBrand : public QObject
{
    Q_OBJECT

    static QStringList rows(EditBrand& d)
    {
        QListWidget* list = child<QListWidget>(&d, "brands");
        QStringList r;
        for (int i = 0; i < list->count(); i++)
            r << list->item(i)->text();
        return r;
    }
    static void pick(EditBrand& d, const QString& text)
    {
        QListWidget* list = child<QListWidget>(&d, "brands");
        QList<QListWidgetItem*> items = list->findItems(text, Qt::MatchExactly);
        QVERIFY(!items.isEmpty());
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                          list->visualItemRect(items[0]).center());
    }
    static QPushButton* save(EditBrand& d) { return child<QPushButton>(&d, "Salva"); }

private slots:
    void listHoldsTheBrandsSortedAndTheNewBrandRow()
    {
        TestRoot root(0.001);
        QVERIFY(addBrand("Zeta", "zeta"));
        QVERIFY(addBrand("Alfa", "alfa"));
        BrandList brands;
        EditBrand d(nullptr, brands.head);
        QCOMPARE(rows(d), QStringList({"<Nuova Marca>", "Alfa", "Zeta"}));
        QVERIFY(!save(d)->isEnabled());
        QCOMPARE(d.objectName(), QString("EditBrand"));
        QCOMPARE(d.findChild<InfoBar*>()->title(), QString("Modifica Marca"));
    }
    void aNewBrandGetsTheShortestFreeWordPrefixAsItsDirectory()
    {
        TestRoot root(0.001);
        QVERIFY(addBrand("Solar", "solar"));
        BrandList brands;
        EditBrand d(nullptr, brands.head);
        _listBrand* before = d._brandHead;
        ModalDriver driver;
        pick(d, "<Nuova Marca>");
        enter(driver, &d, "name", "Solar Power Italia");
        QVERIFY(save(d)->isEnabled());
        driver.answerBox();
        touch(save(d));
        QCOMPARE(driver.boxes.value(0).title, QString("Modifica Marca"));
        QCOMPARE(driver.boxes.value(0).text, QString("Inserita nuova marca"));
        QCOMPARE(tree(root),
                 QStringList({"solar/", "solar/iname", "solar_power/", "solar_power/iname"}));
        QCOMPARE(root.read("/krm510data/datapanel/solar_power/iname"),
                 QByteArray("Solar Power Italia\n"));
        // the list was read again and the form emptied
        QCOMPARE(rows(d), QStringList({"<Nuova Marca>", "Solar", "Solar Power Italia"}));
        QCOMPARE(child<QLineEdit>(&d, "name")->text(), QString());
        QVERIFY(!save(d)->isEnabled());
        QVERIFY(d._brandHead != nullptr);
        QVERIFY(findBrandPanel(d._brandHead, "Solar Power Italia") != nullptr);
        brands.head = d._brandHead; // the caller takes the new head
        Q_UNUSED(before);
    }
    void renamingABrandRewritesOnlyItsName()
    {
        TestRoot root(0.001);
        QVERIFY(addModel("Solar", "solar", "Hit", "hit", sheet(240, 30, 8, 37, 8.5f)));
        BrandList brands;
        EditBrand d(nullptr, brands.head);
        ModalDriver driver;
        pick(d, "Solar");
        QCOMPARE(child<QLineEdit>(&d, "name")->text(), QString("Solar"));
        enter(driver, &d, "name", "Solar Energy");
        driver.answerBox();
        touch(save(d));
        brands.head = d._brandHead;
        QCOMPARE(driver.boxes.value(0).text, QString("Aggiornamento eseguito."));
        QCOMPARE(driver.keyboardInitial.value(0), QString("Solar"));
        QCOMPARE(driver.keyboardTitles.value(0), QString("Modifica Marca"));
        QCOMPARE(tree(root), QStringList({"solar/", "solar/hit", "solar/iname"}));
        QCOMPARE(root.read("/krm510data/datapanel/solar/iname"), QByteArray("Solar Energy\n"));
        QCOMPARE(rows(d), QStringList({"<Nuova Marca>", "Solar Energy"}));
    }
    // The old screen kept one directory per name: of two brands of one name
    // it renamed the same one whichever was chosen. The brand renamed is
    // the one chosen.
    void referenceIsTheOneChosen_ofTwoBrandsOfOneNameTheChosenOneIsRenamed()
    {
        for (int row = 1; row <= 2; row++) {
            TestRoot root(0.001);
            QVERIFY(addBrand("Solar", "solar"));
            QVERIFY(addBrand("Solar", "solar_2"));
            BrandList brands;
            EditBrand d(nullptr, brands.head);
            ModalDriver driver;
            QListWidget* list = child<QListWidget>(&d, "brands");
            QCOMPARE(rows(d), QStringList({"<Nuova Marca>", "Solar", "Solar"}));
            QListWidgetItem* item = list->item(row);
            const QString dir = item->data(Qt::UserRole).toString();
            QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                              list->visualItemRect(item).center());
            enter(driver, &d, "name", "Renamed");
            driver.answerBox();
            touch(save(d));
            brands.head = d._brandHead;
            const QString other = dir == "solar" ? "solar_2" : "solar";
            QCOMPARE(
                root.read(("/krm510data/datapanel/" + dir + "/iname").toLocal8Bit().constData()),
                QByteArray("Renamed\n"));
            QCOMPARE(
                root.read(("/krm510data/datapanel/" + other + "/iname").toLocal8Bit().constData()),
                QByteArray("Solar\n"));
        }
    }
    void saveWaitsForASelectedRowAndAnotherText()
    {
        TestRoot root(0.001);
        QVERIFY(addBrand("Solar", "solar"));
        BrandList brands;
        EditBrand d(nullptr, brands.head);
        ModalDriver driver;
        // nothing selected: a name alone is not enough
        enter(driver, &d, "name", "Solar2");
        QVERIFY(!save(d)->isEnabled());
        pick(d, "Solar");
        QVERIFY(!save(d)->isEnabled()); // the row's own text: nothing to save
        enter(driver, &d, "name", "Solar");
        QVERIFY(!save(d)->isEnabled());
        enter(driver, &d, "name", "Solar2");
        QVERIFY(save(d)->isEnabled());
        pick(d, "<Nuova Marca>");
        QVERIFY(!save(d)->isEnabled());
        // the new brand row opens the keyboard empty
        enter(driver, &d, "name", "Nuova");
        QCOMPARE(driver.keyboardInitial, QStringList({"", "Solar", "Solar", ""}));
        QVERIFY(save(d)->isEnabled());
        // a selection given up takes Salva with it
        child<QListWidget>(&d, "brands")->clearSelection();
        QVERIFY(!save(d)->isEnabled());
    }
    void emptyOrTooLongNamesAreRefused()
    {
        TestRoot root(0.001);
        QVERIFY(addBrand("Solar", "solar"));
        BrandList brands;
        EditBrand d(nullptr, brands.head);
        ModalDriver driver;
        pick(d, "Solar");
        enterRefused(driver, &d, "name", "  ");
        enterRefused(driver, &d, "name", QString(256, 'B'));
        QCOMPARE(child<QLineEdit>(&d, "name")->text(), QString("Solar"));
        QCOMPARE(driver.boxes.size(), 2);
        QCOMPARE(driver.boxes[0].title, QString("Marca Modulo"));
        QCOMPARE(driver.boxes[0].text, QString("Testo inserito non valido."));
        QCOMPARE(driver.boxes[1].title, QString("Marca Modulo"));
        enter(driver, &d, "name", QString(255, 'B'));
        QCOMPARE(child<QLineEdit>(&d, "name")->text(), QString(255, 'B'));
    }
    void theNewBrandRowItselfIsNoBrandName()
    {
        TestRoot root(0.001);
        QVERIFY(emptyDatabase(root));
        BrandList brands;
        EditBrand d(nullptr, brands.head);
        ModalDriver driver;
        pick(d, "<Nuova Marca>");
        QCOMPARE(child<QLineEdit>(&d, "name")->text(), QString("<Nuova Marca>"));
        QVERIFY(!save(d)->isEnabled());
        touch(save(d));
        QVERIFY(driver.boxes.isEmpty());
        QVERIFY(tree(root).isEmpty());
    }
    void returnOnTheListPicksAndOnSaveSaves()
    {
        TestRoot root(0.001);
        QVERIFY(addBrand("Solar", "solar"));
        BrandList brands;
        EditBrand d(nullptr, brands.head);
        QVERIFY(QTest::qWaitForWindowActive(&d));
        QListWidget* list = child<QListWidget>(&d, "brands");
        list->setFocus();
        list->setCurrentRow(1, QItemSelectionModel::NoUpdate);
        QTest::keyClick(&d, Qt::Key_Return);
        QCOMPARE(child<QLineEdit>(&d, "name")->text(), QString("Solar"));
        ModalDriver driver;
        QTest::keyClick(&d, Qt::Key_Down);
        driver.typeOnKeyboard("Sun");
        QTest::keyClick(&d, Qt::Key_Return);
        d.activateWindow(); // the test platform leaves it inactive behind the keyboard
        QVERIFY(QTest::qWaitForWindowActive(&d));
        QTest::keyClick(&d, Qt::Key_Down);
        QCOMPARE(QApplication::focusWidget(), save(d));
        driver.answerBox();
        QTest::keyClick(&d, Qt::Key_Return);
        brands.head = d._brandHead;
        QCOMPARE(root.read("/krm510data/datapanel/solar/iname"), QByteArray("Sun\n"));
    }
};

QTEST_MAIN(TestEditBrand)
#include "tst_editbrand.moc"
