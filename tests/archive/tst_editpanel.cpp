// Changing a stored data sheet: chosen with the combos, or named by the
// caller (the reference module choice).
#include "archive/editpanel.h"
#include "archive/editselpanel.h"
#include "archivefixture.h"
#include "toolkit/infobar.h"

#include <QComboBox>
#include <QLabel>
#include <QtTest>

using namespace archive;

class TestEditPanel : public QObject
{
    Q_OBJECT

    static void twoBrands()
    {
        _panelFeature a = sheet(240, 30.1f, 7.98f, 37.2f, 8.5f);
        a.type = 2;
        a.kvoc = -0.33f;
        QVERIFY(addModel("Solar", "solar", "Hit 240", "hit_240", a));
        QVERIFY(addModel("Solar", "solar", "Alpha", "alpha", sheet(100, 20, 5, 25, 5.5f)));
        QVERIFY(addModel("Beta Energy", "beta", "B1", "b1", sheet(300, 36, 8.3f, 45, 9)));
    }
    static QLineEdit* edit(QWidget* d, const char* name) { return child<QLineEdit>(d, name); }

private slots:
    void combosShowTheSortedBrandsAndModelsAndTheFirstModelsSheet()
    {
        TestRoot root(0.001);
        twoBrands();
        BrandList brands;
        EditPanel d(nullptr, brands.head);
        QComboBox* brand = child<QComboBox>(&d, "brand");
        QComboBox* model = child<QComboBox>(&d, "model");
        QCOMPARE(brand->itemText(0), QString("Beta Energy"));
        QCOMPARE(brand->itemText(1), QString("Solar"));
        QCOMPARE(model->count(), 1);
        QCOMPARE(edit(&d, "pmax")->text(), QString("300.0"));
        brand->setCurrentIndex(1);
        QCOMPARE(model->count(), 2);
        QCOMPARE(model->itemText(0), QString("Alpha"));
        QCOMPARE(edit(&d, "pmax")->text(), QString("100.0"));
        model->setCurrentIndex(1);
        QCOMPARE(edit(&d, "pmax")->text(), QString("240.0"));
        QCOMPARE(edit(&d, "vmpp")->text(), QString("30.10"));
        QCOMPARE(edit(&d, "kisc")->text(), QString("0.050"));
        QCOMPARE(edit(&d, "kvoc")->text(), QString("-0.3300"));
        QCOMPARE(edit(&d, "tollm")->text(), QString("-3.00"));
        QCOMPARE(edit(&d, "noct")->text(), QString("45.0"));
        // the stored type is shown without putting the type's default in Beta
        QCOMPARE(child<QComboBox>(&d, "type")->currentIndex(), 2);
        QCOMPARE(edit(&d, "pmax")->cursorPosition(), 0);
        QCOMPARE(d.findChild<InfoBar*>()->title(), QString("Modifica Modulo"));
    }
    void vocOf0And5000FailInTheEditScreen()
    {
        TestRoot root(0.001);
        twoBrands();
        BrandList brands;
        EditPanel d(nullptr, brands.head);
        ModalDriver driver;
        enterRefused(driver, &d, "voc", "0");
        enterRefused(driver, &d, "voc", "5000");
        QCOMPARE(edit(&d, "voc")->text(), QString("45.00"));
        enter(driver, &d, "voc", "1");
        QCOMPARE(edit(&d, "voc")->text(), QString("1.00"));
        enter(driver, &d, "voc", "300");
        QCOMPARE(edit(&d, "voc")->text(), QString("300.00"));
        QCOMPARE(driver.boxes.size(), 2);
        QCOMPARE(driver.boxes[0].informative, QString("Voc : 0"));
        QCOMPARE(driver.boxes[1].informative, QString("Voc : 5000"));
    }
    void iscOf005FailsAnd01PassesInTheEditScreen()
    {
        TestRoot root(0.001);
        twoBrands();
        BrandList brands;
        EditPanel d(nullptr, brands.head);
        ModalDriver driver;
        enterRefused(driver, &d, "isc", "0.05");
        QCOMPARE(edit(&d, "isc")->text(), QString("9.00"));
        enter(driver, &d, "isc", "0.1");
        QCOMPARE(edit(&d, "isc")->text(), QString("0.10"));
        // the keyboard opened with the stored value
        QCOMPARE(driver.keyboardInitial[0], QString("9.00"));
    }
    void savingWritesTheChosenModelsFileInPlace()
    {
        TestRoot root(0.001);
        twoBrands();
        BrandList brands;
        EditPanel d(nullptr, brands.head);
        ModalDriver driver;
        child<QComboBox>(&d, "brand")->setCurrentIndex(1);
        child<QComboBox>(&d, "model")->setCurrentIndex(1);
        enter(driver, &d, "pmax", "245");
        child<QComboBox>(&d, "type")->setCurrentIndex(3);
        QCOMPARE(edit(&d, "kvoc")->text(), QString("-0.3000"));
        driver.answerBox();
        touch(child<QPushButton>(&d, "Salva"));
        QCOMPARE(driver.boxes.value(0).text, QString("Modifica Modulo"));
        QCOMPARE(driver.boxes.value(0).informative, QString("Eseguito con successo."));
        QCOMPARE(tree(root), QStringList({"beta/", "beta/b1", "beta/iname", "solar/",
                                          "solar/alpha", "solar/hit_240", "solar/iname"}));
        QCOMPARE(modelFile(root, "solar", "hit_240"),
                 QByteArray("version = 2.0.2\nname = Hit 240\npmax = 245.00\nnoct = 45.00\n"
                            "impp = 7.98\nvmpp = 30.10\nisc = 8.50\nvoc = 37.20\ntype = 3\n"
                            "kisc = 0.0500\nkvoc = -0.3000\nkpmax = -0.4500\ntollp = 3.00\n"
                            "tollm = -3.00\n"));
    }
    // The old screen looked the chosen model up by its name again: of two
    // models of one name it showed and wrote the first. The model edited is
    // the one chosen.
    void referenceIsTheOneChosen_ofTwoModelsOfOneNameTheChosenOneIsEdited()
    {
        for (int row = 0; row < 2; row++) {
            TestRoot root(0.001);
            QVERIFY(twinModels());
            BrandList brands;
            EditPanel d(nullptr, brands.head);
            QComboBox* model = child<QComboBox>(&d, "model");
            QCOMPARE(model->count(), 2);
            model->setCurrentIndex(row);
            const QByteArray file = model->itemData(row).toByteArray();
            QCOMPARE(edit(&d, "pmax")->text(), QString(file == "twin_a" ? "200.0" : "300.0"));
            ModalDriver driver;
            enter(driver, &d, "pmax", "245");
            driver.answerBox();
            touch(child<QPushButton>(&d, "Salva"));
            const QByteArray other = file == "twin_a" ? "twin_b" : "twin_a";
            QVERIFY(modelFile(root, "solar", file).contains("pmax = 245.00\n"));
            QVERIFY(!modelFile(root, "solar", other).contains("pmax = 245.00\n"));
        }
    }
    void referenceIsTheOneChosen_latin1NamesAndFilesWithoutANameCanBeEdited()
    {
        TestRoot root(0.001);
        QVERIFY(olderInstrumentsBrand(root));
        BrandList brands;
        EditPanel d(nullptr, brands.head);
        QCOMPARE(child<QComboBox>(&d, "brand")->currentText(), QString::fromUtf8("Müller"));
        QComboBox* model = child<QComboBox>(&d, "model");
        // sorted: the file without a name (an empty name), "Hit", "Kräft"
        QCOMPARE(model->itemText(0), QString());
        QCOMPARE(model->itemText(2), QString::fromUtf8("Kräft"));
        model->setCurrentIndex(2);
        QCOMPARE(edit(&d, "pmax")->text(), QString("1.0"));
        model->setCurrentIndex(0);
        QCOMPARE(edit(&d, "pmax")->text(), QString("250.0"));
        // a stored "nan" shows as no value
        QCOMPARE(edit(&d, "vmpp")->text(), QString("----"));
        QVERIFY(child<QPushButton>(&d, "Salva")->isEnabled());
    }
    void numberIsANumber_moduleFormsRefuseNanAndInf()
    {
        TestRoot root(0.001);
        twoBrands();
        BrandList brands;
        EditPanel d(nullptr, brands.head);
        ModalDriver driver;
        for (const char* t : {"nan", "-INF", "infinity", "1e39"})
            enterRefused(driver, &d, "pmax", t);
        QCOMPARE(driver.boxes.size(), 4);
        QCOMPARE(edit(&d, "pmax")->text(), QString("300.0"));
    }
    void saveFailureIsNotToldOnThisScreen()
    {
        TestRoot root(0.001);
        twoBrands();
        BrandList brands;
        EditPanel d(nullptr, brands.head);
        // the brand goes away under the screen: nothing can be written
        QVERIFY(QDir(root.path("/krm510data/datapanel/beta")).removeRecursively());
        ModalDriver driver;
        driver.answerBox();
        touch(child<QPushButton>(&d, "Salva"));
        QCOMPARE(driver.boxes.value(0).informative, QString("Eseguito con successo."));
        QVERIFY(!root.exists("/krm510data/datapanel/beta"));
    }
    void resetReadsTheFileAgain()
    {
        TestRoot root(0.001);
        twoBrands();
        BrandList brands;
        EditPanel d(nullptr, brands.head);
        ModalDriver driver;
        enter(driver, &d, "pmax", "999");
        QCOMPARE(edit(&d, "pmax")->text(), QString("999.0"));
        touch(child<QPushButton>(&d, "Reset"));
        QCOMPARE(edit(&d, "pmax")->text(), QString("300.0"));
        QVERIFY(modelFile(root, "beta", "b1").contains("pmax = 300.00\n"));
    }
    void aBrandWithoutModelsLeavesNothingToSave()
    {
        TestRoot root(0.001);
        QVERIFY(addBrand("Empty", "empty"));
        BrandList brands;
        EditPanel d(nullptr, brands.head);
        QCOMPARE(child<QComboBox>(&d, "model")->count(), 0);
        QVERIFY(!child<QPushButton>(&d, "Salva")->isEnabled());
        QCOMPARE(edit(&d, "pmax")->text(), QString("0.0"));
    }
    void escapeRejectsTheEditScreen()
    {
        TestRoot root(0.001);
        EditPanel d(nullptr, nullptr);
        QTest::keyClick(&d, Qt::Key_Escape);
        QCOMPARE(d.result(), int(QDialog::Rejected));
    }
    void downKeyWalksTheEditChainWithTheHardwareKeys()
    {
        TestRoot root(0.25);
        SimInstrument sim(root);
        twoBrands();
        BrandList brands;
        EditPanel d(nullptr, brands.head);
        QVERIFY(QTest::qWaitForWindowActive(&d));
        child<QComboBox>(&d, "brand")->setFocus();
        QStringList seen;
        for (int i = 0; i < 17; i++)
            seen << focusStep(sim, "down");
        QCOMPARE(seen, QStringList({"model", "pmax", "noct", "vmpp", "impp", "voc", "isc", "type",
                                    "kisc", "kvoc", "kpmax", "tollm", "tollp", "Salva", "Reset",
                                    "Exit", "brand"}));
    }

    // ---- the model named by its caller

    void selectedModelShowsBrandAndNameAsText()
    {
        TestRoot root(0.001);
        twoBrands();
        char dir[] = "solar";
        char file[] = "hit_240";
        EditSelectedPanel d(nullptr, dir, file);
        QCOMPARE(child<QLabel>(&d, "brand")->text(), QString("Solar"));
        QCOMPARE(edit(&d, "model")->text(), QString("Hit 240"));
        QCOMPARE(edit(&d, "vmpp")->text(), QString("30.10"));
        QCOMPARE(child<QComboBox>(&d, "type")->currentIndex(), 2);
        QCOMPARE(edit(&d, "kvoc")->text(), QString("-0.3300"));
    }
    void vocOf0And5000FailForTheSelectedModel()
    {
        TestRoot root(0.001);
        twoBrands();
        char dir[] = "solar";
        char file[] = "hit_240";
        EditSelectedPanel d(nullptr, dir, file);
        ModalDriver driver;
        enterRefused(driver, &d, "voc", "0");
        enterRefused(driver, &d, "voc", "5000");
        QCOMPARE(edit(&d, "voc")->text(), QString("37.20"));
        QCOMPARE(driver.boxes.size(), 2);
        QCOMPARE(driver.boxes[1].title, QString("Voc"));
    }
    void renamingTheSelectedModelKeepsItsFileAndDisablesSaveUntilTheNextChange()
    {
        TestRoot root(0.001);
        twoBrands();
        char dir[] = "solar";
        char file[] = "hit_240";
        EditSelectedPanel d(nullptr, dir, file);
        ModalDriver driver;
        QPushButton* save = child<QPushButton>(&d, "Salva");
        enter(driver, &d, "model", "Hit 240 Black Edition");
        enter(driver, &d, "impp", "8");
        QVERIFY(save->isEnabled());
        driver.answerBox();
        touch(save);
        QCOMPARE(driver.boxes.value(0).text, QString("Modifica Modulo"));
        QVERIFY(!save->isEnabled());
        QCOMPARE(tree(root), QStringList({"beta/", "beta/b1", "beta/iname", "solar/",
                                          "solar/alpha", "solar/hit_240", "solar/iname"}));
        QByteArray saved = modelFile(root, "solar", "hit_240");
        QVERIFY(saved.contains("name = Hit 240 Black Edition\n"));
        QVERIFY(saved.contains("impp = 8.00\n"));
        // the record of reference holds what was saved
        QCOMPARE(QString(d._panelReference.modelName), QString("Hit 240 Black Edition"));
        QCOMPARE(QString(d._panelReference.modelFile), QString("hit_240"));
        QCOMPARE(QString(d._panelReference.brandName), QString("Solar"));
        QCOMPARE(d._panelReference.feature.impp, 8.0f);
        enterRefused(driver, &d, "model", "");
        QVERIFY(!save->isEnabled());
        QCOMPARE(driver.boxes.value(1).informative, QString("Modello vuoto."));
        child<QComboBox>(&d, "type")->setCurrentIndex(4);
        QVERIFY(save->isEnabled());
    }
    void selectedModelNameOf256CharactersFails()
    {
        TestRoot root(0.001);
        twoBrands();
        char dir[] = "solar";
        char file[] = "alpha";
        EditSelectedPanel d(nullptr, dir, file);
        ModalDriver driver;
        enterRefused(driver, &d, "model", QString(256, 'Q'));
        QCOMPARE(edit(&d, "model")->text(), QString("Alpha"));
        QCOMPARE(driver.boxes.value(0).informative, QString("Troppo lungo."));
        enter(driver, &d, "model", QString(255, 'Q'));
        QCOMPARE(edit(&d, "model")->text(), QString(255, 'Q'));
    }
    void resetOfTheSelectedModelReadsTheFileAgain()
    {
        TestRoot root(0.001);
        twoBrands();
        char dir[] = "beta";
        char file[] = "b1";
        EditSelectedPanel d(nullptr, dir, file);
        ModalDriver driver;
        enter(driver, &d, "model", "Changed");
        enter(driver, &d, "pmax", "1");
        touch(child<QPushButton>(&d, "Reset"));
        QCOMPARE(edit(&d, "model")->text(), QString("B1"));
        QCOMPARE(edit(&d, "pmax")->text(), QString("300.0"));
    }
    void returnOnTheSelectedModelsNameOpensTheKeyboard()
    {
        TestRoot root(0.001);
        twoBrands();
        char dir[] = "beta";
        char file[] = "b1";
        EditSelectedPanel d(nullptr, dir, file);
        QVERIFY(QTest::qWaitForWindowActive(&d));
        edit(&d, "model")->setFocus();
        ModalDriver driver;
        driver.typeOnKeyboard("B2");
        QTest::keyClick(&d, Qt::Key_Return);
        QCOMPARE(edit(&d, "model")->text(), QString("B2"));
        QCOMPARE(driver.keyboardInitial.value(0), QString("B1"));
    }
};

QTEST_MAIN(TestEditPanel)
#include "tst_editpanel.moc"
