// Removing a model or a whole brand of the module archive.
#include "archive/deletepanel.h"
#include "archivefixture.h"
#include "toolkit/infobar.h"

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QtTest>

using namespace archive;

class TestDeletePanel : public QObject
{
    Q_OBJECT

    static void archiveOfTwo()
    {
        QVERIFY(addModel("Solar", "solar", "Hit 240", "hit_240", sheet(240, 30, 8, 37, 8.5f)));
        QVERIFY(addModel("Solar", "solar", "Alpha", "alpha", sheet(100, 20, 5, 25, 5.5f)));
        QVERIFY(addModel("Helios", "helios", "H1", "h1", sheet(300, 36, 8.3f, 45, 9)));
    }
    static void pressModel(DeletePanel& d, const QString& text)
    {
        QListWidget* list = child<QListWidget>(&d, "models");
        QList<QListWidgetItem*> items = list->findItems(text, Qt::MatchExactly);
        QVERIFY(!items.isEmpty());
        QTest::mousePress(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                          list->visualItemRect(items[0]).center());
        QTest::mouseRelease(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                            list->visualItemRect(items[0]).center());
    }
    static QString count(DeletePanel& d) { return child<QLabel>(&d, "count")->text(); }
    static QPushButton* button(DeletePanel& d, const char* name)
    {
        return child<QPushButton>(&d, name);
    }

private slots:
    void modelsOfTheBrandAreListedAndCounted()
    {
        TestRoot root(0.001);
        archiveOfTwo();
        BrandList brands;
        DeletePanel d(nullptr, brands.head);
        QCOMPARE(d.objectName(), QString("DeletePanelModel"));
        QCOMPARE(d.findChild<InfoBar*>()->title(), QString("Cancella Modulo / Modello"));
        QCOMPARE(child<QComboBox>(&d, "brand")->currentText(), QString("Helios"));
        QCOMPARE(count(d), QString("Numero di Modelli : 1"));
        child<QComboBox>(&d, "brand")->setCurrentIndex(1);
        QCOMPARE(count(d), QString("Numero di Modelli : 2"));
        QCOMPARE(child<QListWidget>(&d, "models")->item(0)->text(), QString("Alpha"));
        QVERIFY(!button(d, "Cancella Modello")->isEnabled());
        QVERIFY(button(d, "Cancella Marca")->isEnabled());
        pressModel(d, "Hit 240");
        QVERIFY(button(d, "Cancella Modello")->isEnabled());
    }
    // The old screen looked the chosen model up by its name again: of two
    // models of one name it deleted the first, and a name that is not valid
    // UTF-8 was never found. The model deleted is the one chosen.
    void referenceIsTheOneChosen_ofTwoModelsOfOneNameTheChosenOneIsDeleted()
    {
        for (int row = 0; row < 2; row++) {
            TestRoot root(0.001);
            QVERIFY(twinModels());
            BrandList brands;
            DeletePanel d(nullptr, brands.head);
            QListWidget* list = child<QListWidget>(&d, "models");
            QCOMPARE(list->count(), 2);
            QListWidgetItem* item = list->item(row);
            const QString file = item->data(Qt::UserRole).toString();
            QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                              list->visualItemRect(item).center());
            ModalDriver driver;
            driver.answerBox(QMessageBox::Yes);
            touch(button(d, "Cancella Modello"));
            const QString other = file == "twin_a" ? "twin_b" : "twin_a";
            QCOMPARE(tree(root), QStringList({"solar/", "solar/iname", "solar/" + other}));
        }
    }
    void referenceIsTheOneChosen_latin1NamesAndFilesWithoutANameAreDeleted()
    {
        TestRoot root(0.001);
        QVERIFY(olderInstrumentsBrand(root));
        BrandList brands;
        DeletePanel d(nullptr, brands.head);
        QCOMPARE(child<QComboBox>(&d, "brand")->currentText(), QString::fromUtf8("Müller"));
        pressModel(d, QString::fromUtf8("Kräft"));
        ModalDriver driver;
        driver.answerBox(QMessageBox::Yes);
        touch(button(d, "Cancella Modello"));
        QCOMPARE(tree(root),
                 QStringList({"muller/", "muller/hit", "muller/iname", "muller/noname"}));
        QListWidget* list = child<QListWidget>(&d, "models");
        QList<QListWidgetItem*> unnamed = list->findItems(QString(), Qt::MatchExactly);
        QCOMPARE(unnamed.size(), 1);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                          list->visualItemRect(unnamed[0]).center());
        driver.answerBox(QMessageBox::Yes);
        touch(button(d, "Cancella Modello"));
        QCOMPARE(tree(root), QStringList({"muller/", "muller/hit", "muller/iname"}));
    }
    void answeringNoKeepsTheModel()
    {
        TestRoot root(0.001);
        archiveOfTwo();
        BrandList brands;
        DeletePanel d(nullptr, brands.head);
        pressModel(d, "H1");
        ModalDriver driver;
        driver.answerBox(QMessageBox::No);
        touch(button(d, "Cancella Modello"));
        QCOMPARE(driver.boxes.value(0).text, QString("Cancella Modello"));
        QCOMPARE(driver.boxes.value(0).informative, QString("Conferma?"));
        QCOMPARE(tree(root).size(), 7);
        QVERIFY(button(d, "Cancella Modello")->isEnabled());
    }
    void answeringYesRemovesTheModelsFile()
    {
        TestRoot root(0.001);
        archiveOfTwo();
        BrandList brands;
        DeletePanel d(nullptr, brands.head);
        child<QComboBox>(&d, "brand")->setCurrentIndex(1);
        pressModel(d, "Hit 240");
        ModalDriver driver;
        driver.answerBox(QMessageBox::Yes);
        QString cwd = QDir::currentPath();
        touch(button(d, "Cancella Modello"));
        QCOMPARE(QDir::currentPath(), cwd);
        QCOMPARE(tree(root), QStringList({"helios/", "helios/h1", "helios/iname", "solar/",
                                          "solar/alpha", "solar/iname"}));
        QCOMPARE(count(d), QString("Numero di Modelli : 1"));
        QVERIFY(!button(d, "Cancella Modello")->isEnabled());
    }
    void deletingTheLastModelLeavesTheBrandInPlace()
    {
        TestRoot root(0.001);
        archiveOfTwo();
        BrandList brands;
        DeletePanel d(nullptr, brands.head);
        pressModel(d, "H1");
        ModalDriver driver;
        driver.answerBox(QMessageBox::Yes);
        touch(button(d, "Cancella Modello"));
        QCOMPARE(count(d), QString("Numero di Modelli : 0"));
        QCOMPARE(child<QComboBox>(&d, "brand")->currentText(), QString("Helios"));
        QVERIFY(button(d, "Cancella Marca")->isEnabled());
        QCOMPARE(tree(root), QStringList({"helios/", "helios/iname", "solar/", "solar/alpha",
                                          "solar/hit_240", "solar/iname"}));
    }
    void deletingABrandRemovesItsDirectoryAndEveryModel()
    {
        TestRoot root(0.001);
        archiveOfTwo();
        BrandList brands;
        DeletePanel d(nullptr, brands.head);
        child<QComboBox>(&d, "brand")->setCurrentIndex(1);
        ModalDriver driver;
        driver.answerBox(QMessageBox::Yes);
        QString cwd = QDir::currentPath();
        touch(button(d, "Cancella Marca"));
        brands.head = d._brandHead;
        QCOMPARE(driver.boxes.value(0).text, QString("Cancella Marca"));
        QCOMPARE(driver.boxes.value(0).informative, QString("Conferma?"));
        QCOMPARE(QDir::currentPath(), cwd);
        QCOMPARE(tree(root), QStringList({"helios/", "helios/h1", "helios/iname"}));
        QComboBox* brand = child<QComboBox>(&d, "brand");
        QCOMPARE(brand->count(), 1);
        QCOMPARE(brand->currentText(), QString("Helios"));
        QCOMPARE(count(d), QString("Numero di Modelli : 1"));
    }
    void deletingTheLastBrandLeavesNothingToDelete()
    {
        TestRoot root(0.001);
        QVERIFY(addBrand("Solo", "solo"));
        BrandList brands;
        DeletePanel d(nullptr, brands.head);
        ModalDriver driver;
        driver.answerBox(QMessageBox::Yes);
        touch(button(d, "Cancella Marca"));
        brands.head = d._brandHead;
        QVERIFY(tree(root).isEmpty());
        QVERIFY(d._brandHead == nullptr);
        QVERIFY(!button(d, "Cancella Marca")->isEnabled());
        QCOMPARE(count(d), QString("Numero di Modelli : 0"));
    }
    void returnOnTheListChoosesTheCurrentModel()
    {
        TestRoot root(0.001);
        archiveOfTwo();
        BrandList brands;
        DeletePanel d(nullptr, brands.head);
        QVERIFY(QTest::qWaitForWindowActive(&d));
        child<QComboBox>(&d, "brand")->setFocus();
        QTest::keyClick(&d, Qt::Key_Down);
        QListWidget* list = child<QListWidget>(&d, "models");
        QCOMPARE(QApplication::focusWidget(), list);
        list->setCurrentRow(0);
        QTest::keyClick(&d, Qt::Key_Return);
        QVERIFY(button(d, "Cancella Modello")->isEnabled());
        QTest::keyClick(&d, Qt::Key_Down);
        ModalDriver driver;
        driver.answerBox(QMessageBox::Yes);
        QTest::keyClick(&d, Qt::Key_Return);
        QCOMPARE(tree(root), QStringList({"helios/", "helios/iname", "solar/", "solar/alpha",
                                          "solar/hit_240", "solar/iname"}));
    }
};

QTEST_MAIN(TestDeletePanel)
#include "tst_deletepanel.moc"
