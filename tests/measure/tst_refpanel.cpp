#include "archive/editselpanel.h"
#include "archive/newpanel.h"
#include "measure/panelfixture.h"
#include "measure/refpanel.h"
#include "support/modaldriver.h"

#include <QListWidget>

using namespace panelfixture;

// The choice of the reference module from the module database.
class TestRefPanel : public QObject
{
    Q_OBJECT

    static QListWidget* list(ReferencePanel& d, const char* name)
    {
        return d.findChild<QListWidget*>(name);
    }
    static QStringList rows(QListWidget* l)
    {
        QStringList r;
        for (int i = 0; i < l->count(); i++)
            r << l->item(i)->text();
        return r;
    }
    static void select(QListWidget* l, const QString& text)
    {
        QList<QListWidgetItem*> found = l->findItems(text, Qt::MatchExactly);
        QVERIFY2(!found.isEmpty(), qPrintable(text));
        l->setCurrentItem(found.first());
    }

private slots:
    void emptyDatabaseShowsVuotoWithBothActionsDisabledAndNewModelStillWorks()
    {
        TestRoot root(0.01);
        configure(root);
        ReferencePanel d(nullptr);
        QCOMPARE(rows(list(d, "Marca")), QStringList{"Vuoto"});
        QVERIFY(!child<QPushButton>(&d, "Conferma")->isEnabled());
        QVERIFY(!child<QPushButton>(&d, "Modifica")->isEnabled());
        QVERIFY(child<QPushButton>(&d, "Nuovo Modello")->isEnabled());
        select(list(d, "Marca"), "Vuoto"); // nothing happens: no list behind it
        QCOMPARE(list(d, "Modello")->count(), 0);
        ModalDriver driver;
        QString opened;
        driver.onNext([&](QWidget* w) {
            opened = w->metaObject()->className();
            // a model saved meanwhile shows when the choice comes back
            addModule("Nova", "nova", "NV 300", "nv_300", simulatedSheet());
            QTest::keyClick(w, Qt::Key_Escape);
        });
        QTest::mouseClick(child<QPushButton>(&d, "Nuovo Modello"), Qt::LeftButton);
        QCOMPARE(opened, QString("NewPanel"));
        QCOMPARE(rows(list(d, "Marca")), QStringList{"Nova"});
        QVERIFY(!child<QPushButton>(&d, "Modifica")->isEnabled());
    }
    void anotherBrandAfterAModelDisablesConfirmUntilAModelOfItIsChosen()
    {
        TestRoot root(0.01);
        configure(root);
        QVERIFY(addModule("Alfa", "alfa", "A 250", "a_250", simulatedSheet()));
        QVERIFY(addModule("Beta", "beta", "B 300", "b_300", simulatedSheet()));
        ReferencePanel d(nullptr);
        select(list(d, "Marca"), "Alfa");
        select(list(d, "Modello"), "A 250");
        QVERIFY(child<QPushButton>(&d, "Conferma")->isEnabled());
        QVERIFY(child<QPushButton>(&d, "Modifica")->isEnabled());
        QCOMPARE(list(d, "Caratteristiche")->count(), 5);
        select(list(d, "Marca"), "Beta");
        QVERIFY(!child<QPushButton>(&d, "Conferma")->isEnabled());
        QVERIFY(!child<QPushButton>(&d, "Modifica")->isEnabled());
        QCOMPARE(list(d, "Caratteristiche")->count(), 0);
        select(list(d, "Modello"), "B 300");
        QVERIFY(child<QPushButton>(&d, "Conferma")->isEnabled());
    }
    void brandWithoutModelsShowsVuotoAndSelectingItDoesNothing()
    {
        TestRoot root(0.01);
        configure(root);
        // a brand whose one model has gone: its directory keeps only its name
        QVERIFY(addModule("Vuota Srl", "vuota", "V 1", "v_1", simulatedSheet()));
        const QStringList models = QDir(root.path("/krm510data/datapanel/vuota"))
                                       .entryList(QDir::Files | QDir::NoDotAndDotDot);
        for (const QString& f : models)
            if (f != "iname")
                QVERIFY(QFile::remove(root.path("/krm510data/datapanel/vuota/") + f));
        ReferencePanel d(nullptr);
        select(list(d, "Marca"), "Vuota Srl");
        QCOMPARE(rows(list(d, "Modello")), QStringList{"Vuoto"});
        select(list(d, "Modello"), "Vuoto");
        QCOMPARE(list(d, "Caratteristiche")->count(), 0);
        QVERIFY(!child<QPushButton>(&d, "Conferma")->isEnabled());
    }
    void modificaOpensTheEditorOfTheChosenModelAndReadsTheModelsAgain()
    {
        TestRoot root(0.01);
        configure(root);
        QVERIFY(addModule("Alfa", "alfa", "A 250", "a_250", simulatedSheet()));
        ReferencePanel d(nullptr);
        select(list(d, "Marca"), "Alfa");
        select(list(d, "Modello"), "A 250");
        ModalDriver driver;
        QString opened;
        driver.onNext([&](QWidget* w) {
            opened = w->metaObject()->className();
            QTest::keyClick(w, Qt::Key_Escape);
        });
        QTest::mouseClick(child<QPushButton>(&d, "Modifica"), Qt::LeftButton);
        QCOMPARE(opened, QString("EditSelectedPanel"));
        QCOMPARE(rows(list(d, "Modello")), QStringList{"A 250"});
        QVERIFY(!child<QPushButton>(&d, "Modifica")->isEnabled());
        QVERIFY(!child<QPushButton>(&d, "Conferma")->isEnabled());
    }

    // The old screen kept only the names and looked the chosen one up by
    // its name again: of two models of one name the first was taken (and
    // "Conferma" confirmed it), a name that is not valid UTF-8 or a file
    // without a name line was never found. The reference is the one chosen.
    static QString pmaxShown(ReferencePanel& d)
    {
        return list(d, "Caratteristiche")->item(0)->text();
    }
    void referenceIsTheOneChosen_ofTwoModelsOfOneNameConfirmTakesTheChosenOne()
    {
        TestRoot root(0.01);
        configure(root);
        _panelFeature a = simulatedSheet();
        a.pmax = 200;
        _panelFeature b = simulatedSheet();
        b.pmax = 300;
        QVERIFY(addModule("Alfa", "alfa", "Twin", "twin_a", a));
        QVERIFY(addModule("Alfa", "alfa", "Twin", "twin_b", b));
        for (int row = 0; row < 2; row++) {
            ReferencePanel d(nullptr);
            select(list(d, "Marca"), "Alfa");
            QCOMPARE(rows(list(d, "Modello")), QStringList({"Twin", "Twin"}));
            list(d, "Modello")->setCurrentRow(row);
            const QByteArray file = list(d, "Modello")->item(row)->data(Qt::UserRole).toByteArray();
            QCOMPARE(pmaxShown(d), QString(file == "twin_a" ? "Pmax \n200.0 W" : "Pmax \n300.0 W"));
            QTest::mouseClick(child<QPushButton>(&d, "Conferma"), Qt::LeftButton);
            QCOMPARE(d.result(), int(QDialog::Accepted));
            QCOMPARE(QByteArray(d._selectedModel->file), file);
            QCOMPARE(QByteArray(d._selectedBrand->dir), QByteArray("alfa"));
        }
    }
    void referenceIsTheOneChosen_ofTwoBrandsOfOneNameEachShowsItsOwnModels()
    {
        TestRoot root(0.01);
        configure(root);
        QVERIFY(addModule("Solar", "solar", "S1", "s1", simulatedSheet()));
        QVERIFY(addModule("Solar", "solar_2", "S2", "s2", simulatedSheet()));
        ReferencePanel d(nullptr);
        QCOMPARE(rows(list(d, "Marca")), QStringList({"Solar", "Solar"}));
        for (int row = 0; row < 2; row++) {
            list(d, "Marca")->setCurrentRow(row);
            const QByteArray dir = list(d, "Marca")->item(row)->data(Qt::UserRole).toByteArray();
            QCOMPARE(rows(list(d, "Modello")), QStringList{dir == "solar" ? "S1" : "S2"});
        }
    }
    void referenceIsTheOneChosen_namesThatAreNotUtf8AreShownAsLatin1AndChosen()
    {
        TestRoot root(0.01);
        configure(root);
        QVERIFY(addModule("x", "muller", "y", "kraft", simulatedSheet()));
        // the names as an older instrument wrote them, in Latin-1
        QVERIFY(root.write("/krm510data/datapanel/muller/iname", "M\xfcller\n"));
        QByteArray model = root.read("/krm510data/datapanel/muller/kraft");
        model.replace("name = y\n", "name = Kr\xe4"
                                    "ft 250\n");
        QVERIFY(root.write("/krm510data/datapanel/muller/kraft", model));
        ReferencePanel d(nullptr);
        select(list(d, "Marca"), QString::fromUtf8("Müller"));
        select(list(d, "Modello"), QString::fromUtf8("Kräft 250"));
        QVERIFY(child<QPushButton>(&d, "Conferma")->isEnabled());
        QCOMPARE(list(d, "Caratteristiche")->count(), 5);
        QTest::mouseClick(child<QPushButton>(&d, "Conferma"), Qt::LeftButton);
        QCOMPARE(QByteArray(d._selectedModel->file), QByteArray("kraft"));
    }
    void referenceIsTheOneChosen_aModelFileWithoutANameLineCanBeChosen()
    {
        TestRoot root(0.01);
        configure(root);
        QVERIFY(addModule("Alfa", "alfa", "A 250", "a_250", simulatedSheet()));
        QVERIFY(root.write("/krm510data/datapanel/alfa/noname",
                           "pmax = 275.00\nvmpp = 30.00\nimpp = 9.00\nvoc = 38.00\n"
                           "isc = 9.50\n"));
        ReferencePanel d(nullptr);
        select(list(d, "Marca"), "Alfa");
        QList<QListWidgetItem*> items;
        for (int i = 0; i < list(d, "Modello")->count(); i++)
            if (list(d, "Modello")->item(i)->data(Qt::UserRole).toByteArray() == "noname")
                items << list(d, "Modello")->item(i);
        QCOMPARE(items.size(), 1);
        list(d, "Modello")->setCurrentItem(items[0]);
        QCOMPARE(pmaxShown(d), QString("Pmax \n275.0 W"));
        QTest::mouseClick(child<QPushButton>(&d, "Conferma"), Qt::LeftButton);
        QCOMPARE(QByteArray(d._selectedModel->file), QByteArray("noname"));
    }
    void numberIsANumber_aStoredNanShowsDashes()
    {
        TestRoot root(0.01);
        configure(root);
        QVERIFY(addModule("Alfa", "alfa", "A 250", "a_250", simulatedSheet()));
        QByteArray model = root.read("/krm510data/datapanel/alfa/a_250");
        int at = model.indexOf("\nvmpp = ") + 1;
        model.replace(at, model.indexOf('\n', at) - at, "vmpp = nan");
        at = model.indexOf("\nisc = ") + 1;
        model.replace(at, model.indexOf('\n', at) - at, "isc = inf");
        QVERIFY(root.write("/krm510data/datapanel/alfa/a_250", model));
        ReferencePanel d(nullptr);
        select(list(d, "Marca"), "Alfa");
        select(list(d, "Modello"), "A 250");
        QCOMPARE(list(d, "Caratteristiche")->item(1)->text(), QString("Vmpp \n---- V"));
        QCOMPARE(list(d, "Caratteristiche")->item(4)->text(), QString("Isc \n---- A"));
    }
};

QTEST_MAIN(TestRefPanel)
#include "tst_refpanel.moc"
