// The form of a new module model, touched and typed as an operator does.
#include "archive/newpanel.h"
#include "archivefixture.h"
#include "support/siminstrument.h"
#include "toolkit/infobar.h"

#include <QComboBox>
#include <QtTest>

using namespace archive;

class TestNewPanel : public QObject
{
    Q_OBJECT

    // The eleven numbers of a valid data sheet, field by field.
    static QList<QPair<const char*, QString>> numbers()
    {
        return {{"pmax", "240"},   {"noct", "45"},      {"vmpp", "30.1"},   {"impp", "7.98"},
                {"voc", "37.2"},   {"isc", "8.5"},      {"kisc", "0.05"},   {"kvoc", "-0.33"},
                {"kpmax", "-0.45"}, {"tollm", "-3"},    {"tollp", "3"}};
    }
    static void fillForm(ModalDriver& driver, NewPanel& d, const QString& model,
                         const char* skip = nullptr)
    {
        enter(driver, &d, "model", model);
        for (const auto& n : numbers())
            if (skip == nullptr || strcmp(n.first, skip) != 0)
                enter(driver, &d, n.first, n.second);
    }
    static QPushButton* save(NewPanel& d) { return child<QPushButton>(&d, "Salva"); }
    static QLineEdit* edit(NewPanel& d, const char* name) { return child<QLineEdit>(&d, name); }

private slots:
    void saveStaysDisabledUntilAllTwelveFieldsAreEnteredAndAFailedEntryDisablesItAgain()
    {
        TestRoot root(0.001);
        QVERIFY(addBrand("Solar", "solar"));
        BrandList brands;
        NewPanel d(nullptr, brands.head);
        ModalDriver driver;
        QVERIFY(!save(d)->isEnabled());
        fillForm(driver, d, "Hit 240", "tollp");
        QVERIFY(!d.enteredFeature());
        QVERIFY(!save(d)->isEnabled());
        enter(driver, &d, "tollp", "3");
        QVERIFY(d.enteredAllParamPanel());
        QVERIFY(save(d)->isEnabled());
        enterRefused(driver, &d, "pmax", "1001");
        QVERIFY(!save(d)->isEnabled());
        QCOMPARE(edit(d, "pmax")->text(), QString("240.0")); // the text stays
        enter(driver, &d, "pmax", "1000");
        QVERIFY(save(d)->isEnabled());
        QCOMPARE(driver.pending(), 0);
    }
    void emptyModelNameFailsAndTakesTheSaveButtonAway()
    {
        TestRoot root(0.001);
        QVERIFY(addBrand("Solar", "solar"));
        BrandList brands;
        NewPanel d(nullptr, brands.head);
        ModalDriver driver;
        fillForm(driver, d, "Hit");
        QVERIFY(save(d)->isEnabled());
        enterRefused(driver, &d, "model", "   ");
        QVERIFY(!save(d)->isEnabled());
        QCOMPARE(edit(d, "model")->text(), QString("Hit"));
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].title, QString("Modello Modulo"));
        QCOMPARE(driver.boxes[0].text, QString("Testo inserito non valido."));
        QCOMPARE(driver.boxes[0].informative, QString("Modello vuoto."));
        QCOMPARE(driver.boxes[0].icon, QMessageBox::Information);
        QCOMPARE(driver.keyboardTitles[0], QString("Modifica Modello Modulo"));
    }
    void selectingATypeMarksBetaAsEnteredWithTheTypesDefault()
    {
        TestRoot root(0.001);
        QVERIFY(addBrand("Solar", "solar"));
        BrandList brands;
        NewPanel d(nullptr, brands.head);
        ModalDriver driver;
        fillForm(driver, d, "Hit", "kvoc");
        QVERIFY(!d.enteredFeature());
        QComboBox* type = child<QComboBox>(&d, "type");
        QCOMPARE(type->count(), 6);
        QCOMPARE(type->itemText(0), QString("Sconosciuto"));
        type->setCurrentIndex(2);
        QCOMPARE(edit(d, "kvoc")->text(), QString("-0.4000"));
        QVERIFY(d.enteredFeature());
        // the button follows at the next keyboard round
        QVERIFY(!save(d)->isEnabled());
        enter(driver, &d, "noct", "46");
        QVERIFY(save(d)->isEnabled());
    }
    void typeDefaultReplacesATypedBeta()
    {
        TestRoot root(0.001);
        NewPanel d(nullptr, nullptr);
        ModalDriver driver;
        enter(driver, &d, "kvoc", "0.5");
        QCOMPARE(edit(d, "kvoc")->text(), QString("0.5000"));
        const float expected[6] = {-0.35f, -0.35f, -0.4f, -0.3f, -0.3f, -0.3f};
        QComboBox* type = child<QComboBox>(&d, "type");
        for (int row : {3, 1, 4, 5, 2, 0}) {
            type->setCurrentIndex(row);
            QCOMPARE(edit(d, "kvoc")->text(),
                     QString::number(static_cast<double>(expected[row]), 'f', 4));
        }
    }
    void vocOf0And5000PassInTheNewForm()
    {
        TestRoot root(0.001);
        NewPanel d(nullptr, nullptr);
        ModalDriver driver;
        enter(driver, &d, "voc", "5000");
        QCOMPARE(edit(d, "voc")->text(), QString("5000.00"));
        enter(driver, &d, "voc", "0");
        QCOMPARE(edit(d, "voc")->text(), QString("0.00"));
        enterRefused(driver, &d, "voc", "-0.01");
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].informative, QString("Voc : -0.01"));
    }
    void iscOf005FailsAnd01Passes()
    {
        TestRoot root(0.001);
        NewPanel d(nullptr, nullptr);
        ModalDriver driver;
        enterRefused(driver, &d, "isc", "0.05");
        QCOMPARE(edit(d, "isc")->text(), QString("0.00"));
        enter(driver, &d, "isc", "0.1");
        QCOMPARE(edit(d, "isc")->text(), QString("0.10"));
        enterRefused(driver, &d, "isc", "20.01");
        QCOMPARE(edit(d, "isc")->text(), QString("0.10"));
        QCOMPARE(driver.boxes.size(), 2);
        QCOMPARE(driver.boxes[0].title, QString("Isc"));
        QCOMPARE(driver.boxes[0].informative, QString("Isc : 0.05"));
        QCOMPARE(driver.boxes[1].informative, QString("Isc : 20.01"));
    }
    void boundsOfEveryNumberIncludeBothEnds_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("low");
        QTest::addColumn<QString>("high");
        QTest::addColumn<QString>("belowLow");
        QTest::addColumn<QString>("aboveHigh");
        QTest::addColumn<QString>("boxTitle");
        QTest::addColumn<QString>("keyboardTitle");
        QTest::newRow("pmax") << "pmax" << "1" << "1000" << "0.9" << "1000.1" << "Pmax" << "Pmax";
        QTest::newRow("vmpp") << "vmpp" << "1" << "300" << "0.99" << "300.01" << "Vmpp" << "Vmpp";
        QTest::newRow("impp") << "impp" << "0.1" << "20" << "0.09" << "20.01" << "Impp" << "Impp";
        QTest::newRow("noct") << "noct" << "0" << "100" << "-0.1" << "100.1" << "NOCT [°C]"
                              << "Temperatura Nominale della Cella - NOCT [°C]";
        QTest::newRow("kisc") << "kisc" << "0.0001" << "1" << "0.00009" << "1.001"
                              << "Coefficiente di Temperatura Isc [%/°C]"
                              << "Coefficiente di Temperatura di Isc [%/°C]";
        QTest::newRow("kvoc") << "kvoc" << "-1" << "1" << "-1.001" << "1.001"
                              << "Coefficiente di Temperatura Voc [%/°C]"
                              << "Coefficiente di Temperatura di Voc [%/°C]";
        QTest::newRow("kpmax") << "kpmax" << "-1" << "1" << "-1.001" << "1.001"
                               << "Coefficiente di Temperatura Pmax [%/°C]"
                               << "Coefficiente di Temperatura di Pmax [%/°C]";
        QTest::newRow("tollm") << "tollm" << "-50" << "50" << "-50.01" << "50.01"
                               << "Tolleranza Minima [%]" << "Tolleranza Minima [%]";
        QTest::newRow("tollp") << "tollp" << "0" << "50" << "-0.01" << "50.01"
                               << "Tolleranza Massima [%]" << "Tolleranza Massima [%]";
    }
    void boundsOfEveryNumberIncludeBothEnds()
    {
        QFETCH(QString, field);
        QFETCH(QString, low);
        QFETCH(QString, high);
        QFETCH(QString, belowLow);
        QFETCH(QString, aboveHigh);
        QFETCH(QString, boxTitle);
        QFETCH(QString, keyboardTitle);
        TestRoot root(0.001);
        NewPanel d(nullptr, nullptr);
        ModalDriver driver;
        QByteArray name = field.toLatin1();
        QLineEdit* e = edit(d, name.constData());
        enter(driver, &d, name.constData(), low);
        enter(driver, &d, name.constData(), high);
        QVERIFY(driver.boxes.isEmpty());
        QCOMPARE(e->text().toFloat(), high.toFloat());
        QString kept = e->text();
        enterRefused(driver, &d, name.constData(), belowLow);
        enterRefused(driver, &d, name.constData(), aboveHigh);
        QCOMPARE(e->text(), kept);
        QCOMPARE(driver.boxes.size(), 2);
        QCOMPARE(driver.boxes[0].title, boxTitle);
        QCOMPARE(driver.keyboardTitles[0], keyboardTitle);
        QVERIFY(driver.boxes[0].informative.endsWith(" : " + belowLow));
    }
    void notANumberFailsLikeAValueOutOfBounds()
    {
        TestRoot root(0.001);
        NewPanel d(nullptr, nullptr);
        ModalDriver driver;
        enter(driver, &d, "vmpp", "30");
        enterRefused(driver, &d, "vmpp", "3O");
        QCOMPARE(edit(d, "vmpp")->text(), QString("30.00"));
        QCOMPARE(driver.boxes.value(0).informative, QString("Vmpp : 3O"));
        QCOMPARE(driver.boxes.value(0).text, QString("Testo inserito non valido."));
    }
    void modelNameOf255CharactersPassesAnd256Fails()
    {
        TestRoot root(0.001);
        QVERIFY(addBrand("Solar", "solar"));
        BrandList brands;
        NewPanel d(nullptr, brands.head);
        ModalDriver driver;
        QString longest(255, 'M');
        enter(driver, &d, "model", longest);
        QCOMPARE(edit(d, "model")->text(), longest);
        enterRefused(driver, &d, "model", longest + "N");
        QCOMPARE(edit(d, "model")->text(), longest);
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].informative, QString("Troppo lungo."));
        // the keyboard opened with the present text on the letter layer
        QCOMPARE(driver.keyboardInitial[1], longest);
        // the refusal took the name's mark away: it is entered again
        enter(driver, &d, "model", longest);
        // and the 255 characters reach the file
        for (const auto& n : numbers())
            enter(driver, &d, n.first, n.second);
        QVERIFY(save(d)->isEnabled());
        driver.answerBox();
        touch(save(d));
        QCOMPARE(driver.boxes.value(1).informative, QString("Eseguito con successo."));
        QStringList files = QDir(root.path("/krm510data/datapanel/solar")).entryList(QDir::Files);
        QCOMPARE(files.size(), 2);
        files.removeAll("iname");
        QVERIFY(modelFile(root, "solar", files[0]).contains("name = " + longest.toLatin1() + "\n"));
    }
    void numberFieldsOpenOnTheKeyPadEmptyForZeroAndWithTheValueOtherwise()
    {
        TestRoot root(0.001);
        NewPanel d(nullptr, nullptr);
        ModalDriver driver;
        bool keyPad = false;
        driver.onNext([&](QWidget* w) {
            EmbKeyboard* k = qobject_cast<EmbKeyboard*>(w);
            QVERIFY(k != nullptr);
            keyPad = k->findChild<QPushButton*>(".?123")->text() == "ABC";
            QCOMPARE(k->editor()->text(), QString());
            k->reject();
        });
        touch(edit(d, "pmax"));
        QVERIFY(keyPad);
        enter(driver, &d, "pmax", "240");
        enter(driver, &d, "pmax", "250");
        QCOMPARE(driver.keyboardInitial, QStringList({"", "240.0"}));
    }
    void leavingTheKeyboardChangesNothing()
    {
        TestRoot root(0.001);
        QVERIFY(addBrand("Solar", "solar"));
        BrandList brands;
        NewPanel d(nullptr, brands.head);
        ModalDriver driver;
        fillForm(driver, d, "Hit");
        driver.typeOnKeyboard("999", false);
        touch(edit(d, "pmax"));
        QCOMPARE(edit(d, "pmax")->text(), QString("240.0"));
        QVERIFY(save(d)->isEnabled());
        QVERIFY(driver.boxes.isEmpty());
    }
    void savingANewModelWritesTheFileNamedByTheFileLayer()
    {
        TestRoot root(0.001);
        QVERIFY(addBrand("Solar Power", "solar"));
        QVERIFY(addModel("Solar Power", "solar", "Other", "hit", sheet(100, 20, 5, 25, 5.5)));
        BrandList brands;
        NewPanel d(nullptr, brands.head);
        ModalDriver driver;
        fillForm(driver, d, "Hit 240");
        child<QComboBox>(&d, "type")->setCurrentIndex(2);
        driver.answerBox();
        touch(save(d));
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].text, QString("Nuovo Modulo"));
        QCOMPARE(driver.boxes[0].informative, QString("Eseguito con successo."));
        // "hit" is taken: the next word-prefix is the name
        QCOMPARE(tree(root), QStringList({"solar/", "solar/hit", "solar/hit_240", "solar/iname"}));
        QCOMPARE(modelFile(root, "solar", "hit_240"),
                 QByteArray("version = 2.0.2\nname = Hit 240\npmax = 240.00\nnoct = 45.00\n"
                            "impp = 7.98\nvmpp = 30.10\nisc = 8.50\nvoc = 37.20\ntype = 2\n"
                            "kisc = 0.0500\nkvoc = -0.4000\nkpmax = -0.4500\ntollp = 3.00\n"
                            "tollm = -3.00\n"));
        // the screen stays, with the form as it was
        QVERIFY(d.isVisible());
        QCOMPARE(edit(d, "model")->text(), QString("Hit 240"));
        QVERIFY(save(d)->isEnabled());
    }
    void savingANameThatExistsInTheBrandOverwritesItsFile()
    {
        TestRoot root(0.001);
        QVERIFY(addModel("Solar", "solar", "Hit 240", "hit", sheet(100, 20, 5, 25, 5.5)));
        BrandList brands;
        NewPanel d(nullptr, brands.head);
        ModalDriver driver;
        fillForm(driver, d, "Hit 240");
        driver.answerBox();
        touch(save(d));
        QCOMPARE(driver.boxes.value(0).text, QString("Aggiornamento Modulo"));
        QCOMPARE(driver.boxes.value(0).informative, QString("Eseguito con successo."));
        QCOMPARE(tree(root), QStringList({"solar/", "solar/hit", "solar/iname"}));
        QVERIFY(modelFile(root, "solar", "hit").contains("pmax = 240.00\n"));
        // a second touch writes the same file again
        enter(driver, &d, "pmax", "245");
        driver.answerBox();
        touch(save(d));
        QCOMPARE(driver.boxes.value(1).text, QString("Aggiornamento Modulo"));
        QCOMPARE(tree(root), QStringList({"solar/", "solar/hit", "solar/iname"}));
        QVERIFY(modelFile(root, "solar", "hit").contains("pmax = 245.00\n"));
    }
    void brandComboHoldsTheBrandsSortedAndTheModelGoesToTheChosenOne()
    {
        TestRoot root(0.001);
        QVERIFY(addBrand("Zeta", "zeta"));
        QVERIFY(addBrand("Alfa", "alfa"));
        QVERIFY(addBrand("Mega", "mega"));
        BrandList brands;
        NewPanel d(nullptr, brands.head);
        QCOMPARE(d._brandHead, brands.head);
        QComboBox* combo = child<QComboBox>(&d, "brand");
        QCOMPARE(combo->count(), 3);
        QCOMPARE(combo->itemText(0), QString("Alfa"));
        QCOMPARE(combo->itemText(2), QString("Zeta"));
        combo->setCurrentIndex(1);
        ModalDriver driver;
        fillForm(driver, d, "X1");
        driver.answerBox();
        touch(save(d));
        QCOMPARE(tree(root), QStringList({"alfa/", "alfa/iname", "mega/", "mega/iname", "mega/x1",
                                          "zeta/", "zeta/iname"}));
    }
    void withoutAnyBrandSavingTellsTheFailureAndWritesNothing()
    {
        TestRoot root(0.001);
        QVERIFY(emptyDatabase(root));
        NewPanel d(nullptr, nullptr);
        ModalDriver driver;
        fillForm(driver, d, "Hit");
        driver.answerBox();
        touch(save(d));
        QCOMPARE(driver.boxes.value(0).informative, QString("Errore nel salvataggio."));
        QVERIFY(tree(root).isEmpty());
    }
    void startsWithZerosAndNothingEntered()
    {
        TestRoot root(0.001);
        NewPanel d(nullptr, nullptr);
        QCOMPARE(edit(d, "pmax")->text(), QString("0.0"));
        QCOMPARE(edit(d, "kvoc")->text(), QString("0.0000"));
        QCOMPARE(edit(d, "kisc")->text(), QString("0.000"));
        QCOMPARE(edit(d, "isc")->text(), QString("0.00"));
        QCOMPARE(edit(d, "model")->text(), QString());
        QVERIFY(!d.enteredAllParamPanel());
        QVERIFY(!d.enteredFeature());
        QCOMPARE(d.findChild<InfoBar*>()->title(), QString("Nuovo Modulo"));
    }
    void downKeyWalksBrandModelTheLeftColumnTheRightColumnAndTheButtons()
    {
        TestRoot root(0.25);
        SimInstrument sim(root);
        QVERIFY(addBrand("Solar", "solar"));
        BrandList brands;
        NewPanel d(nullptr, brands.head);
        QVERIFY(QTest::qWaitForWindowActive(&d));
        child<QComboBox>(&d, "brand")->setFocus();
        QStringList seen;
        for (int i = 0; i < 15; i++)
            seen << focusStep(sim, "down");
        // the disabled save button is passed over
        QCOMPARE(seen, QStringList({"model", "pmax", "noct", "vmpp", "impp", "voc", "isc", "type",
                                    "kisc", "kvoc", "kpmax", "tollm", "tollp", "Exit", "brand"}));
        QCOMPARE(focusStep(sim, "up"), QString("Exit"));
    }
    void returnOnTheModelFieldOpensTheKeyboardAndEscapeRejects()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        NewPanel d(nullptr, nullptr);
        QVERIFY(QTest::qWaitForWindowActive(&d));
        edit(d, "model")->setFocus();
        ModalDriver driver;
        driver.onNext([&](QWidget* w) {
            QVERIFY(sim.releaseKey("return"));
            QVERIFY(qobject_cast<EmbKeyboard*>(w) != nullptr);
            ModalDriver::type(qobject_cast<EmbKeyboard*>(w), "Hit");
            ModalDriver::touchKey(qobject_cast<EmbKeyboard*>(w), "ENTER");
        });
        QVERIFY(sim.pressKey("return"));
        QTRY_COMPARE(edit(d, "model")->text(), QString("Hit"));
        QVERIFY(sim.releaseKey("return"));
        QVERIFY(sim.pressKey("escape"));
        QTRY_VERIFY(!d.isVisible());
        QVERIFY(sim.releaseKey("escape"));
        QCOMPARE(d.result(), int(QDialog::Rejected));
    }
};

QTEST_MAIN(TestNewPanel)
#include "tst_newpanel.moc"
