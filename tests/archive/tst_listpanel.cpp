// The table of the models of one brand.
#include "archive/listpanel.h"
#include "archivefixture.h"
#include "shell/language.h"
#include "toolkit/infobar.h"

#include <QComboBox>
#include <QHeaderView>
#include <QTableWidget>
#include <QTranslator>
#include <QtTest>

using namespace archive;

class TestListPanel : public QObject
{
    Q_OBJECT

    static QStringList row(QTableWidget* t, int r)
    {
        QStringList cells;
        for (int c = 0; c < t->columnCount(); c++)
            cells << t->item(r, c)->text();
        return cells;
    }
    static QStringList headers(QTableWidget* t)
    {
        QStringList h;
        for (int c = 0; c < t->columnCount(); c++)
            h << t->horizontalHeaderItem(c)->text();
        return h;
    }

private slots:
    void tableShowsEveryModelOfTheChosenBrandWithItsDecimals()
    {
        TestRoot root(0.001);
        _panelFeature f = sheet(240.25f, 30.126f, 7.98f, 37.2f, 8.5f);
        f.kvoc = -0.3312f;
        QVERIFY(addModel("Solar", "solar", "Hit 240", "hit_240", f));
        QVERIFY(addModel("Helios", "helios", "H1", "h1", sheet(100, 20, 5, 25, 5.5f)));
        QVERIFY(addModel("Helios", "helios", "H2", "h2", sheet(200, 30, 6.67f, 37, 7.2f)));
        BrandList brands;
        ListPanel d(nullptr, brands.head);
        QComboBox* brand = child<QComboBox>(&d, "brand");
        QTableWidget* table = child<QTableWidget>(&d, "table");
        QCOMPARE(brand->itemText(0), QString("Helios"));
        QCOMPARE(brand->itemText(1), QString("Solar"));
        QCOMPARE(table->rowCount(), 2);
        QCOMPARE(headers(table), QStringList({"Model", "Pmax W", "Vmpp (V)", "Impp (A)", "Voc (V)",
                                              "Isc (A)", QString::fromUtf8("Beta (%/°C)")}));
        brand->setCurrentIndex(1);
        QCOMPARE(table->rowCount(), 1);
        QCOMPARE(row(table, 0),
                 QStringList({"Hit 240", "240.3", "30.13", "7.98", "37.20", "8.50", "-0.3312"}));
        for (int c = 0; c < table->columnCount(); c++)
            QVERIFY(!(table->item(0, c)->flags() & Qt::ItemIsEditable));
        QCOMPARE(d.findChild<InfoBar*>()->title(), QString("Lista Moduli"));
    }
    void numberIsANumber_aStoredNanOrInfShowsDashes()
    {
        TestRoot root(0.001);
        QVERIFY(addModel("Solar", "solar", "Hit 240", "hit_240", sheet(240, 30, 8, 37, 8.5f)));
        QByteArray file = root.read("/krm510data/datapanel/solar/hit_240");
        file.replace("\nvmpp = 30.00\n", "\nvmpp = nan\n");
        file.replace("\nisc = 8.50\n", "\nisc = -inf\n");
        QVERIFY(root.write("/krm510data/datapanel/solar/hit_240", file));
        BrandList brands;
        ListPanel d(nullptr, brands.head);
        QTableWidget* table = child<QTableWidget>(&d, "table");
        QCOMPARE(row(table, 0),
                 QStringList({"Hit 240", "240.0", "----", "8.00", "37.00", "----", "-0.3500"}));
    }
    void aBrandWithoutModelsShowsAnEmptyTable()
    {
        TestRoot root(0.001);
        QVERIFY(addBrand("Empty", "empty"));
        BrandList brands;
        ListPanel d(nullptr, brands.head);
        QTableWidget* table = child<QTableWidget>(&d, "table");
        QCOMPARE(table->rowCount(), 0);
        QCOMPARE(table->columnCount(), 7);
    }
    void anEmptyArchiveShowsNoBrand()
    {
        TestRoot root(0.001);
        QVERIFY(emptyDatabase(root));
        BrandList brands;
        QVERIFY(brands.head == nullptr);
        ListPanel d(nullptr, brands.head);
        QCOMPARE(child<QComboBox>(&d, "brand")->count(), 0);
        QCOMPARE(child<QTableWidget>(&d, "table")->rowCount(), 0);
    }
    void theItalianCatalogueNamesTheModelColumnModello()
    {
        TestRoot root(0.001);
        QVERIFY(root.installCatalogues());
        QTranslator translator;
        QVERIFY(loadTranslator(&translator, LANG_IT));
        QCoreApplication::installTranslator(&translator);
        QVERIFY(addModel("Solar", "solar", "Hit", "hit", sheet(240, 30, 8, 37, 8.5f)));
        BrandList brands;
        ListPanel d(nullptr, brands.head);
        QCOMPARE(child<QTableWidget>(&d, "table")->horizontalHeaderItem(0)->text(),
                 QString("Modello"));
        QCoreApplication::removeTranslator(&translator);
    }
    void exitAndEscapeReject()
    {
        TestRoot root(0.001);
        ListPanel a(nullptr, nullptr);
        touch(child<QPushButton>(&a, "Exit"));
        QCOMPARE(a.result(), int(QDialog::Rejected));
        ListPanel b(nullptr, nullptr);
        QVERIFY(QTest::qWaitForWindowActive(&b));
        child<QPushButton>(&b, "Exit")->setFocus();
        QTest::keyClick(&b, Qt::Key_Up);
        QCOMPARE(QApplication::focusWidget()->objectName(), QString("table"));
        QTest::keyClick(&b, Qt::Key_Down);
        QTest::keyClick(&b, Qt::Key_Return);
        QVERIFY(!b.isVisible());
    }
};

QTEST_MAIN(TestListPanel)
#include "tst_listpanel.moc"
