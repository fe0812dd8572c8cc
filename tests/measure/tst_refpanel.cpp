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
};

QTEST_MAIN(TestRefPanel)
#include "tst_refpanel.moc"
