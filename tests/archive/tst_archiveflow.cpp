// One afternoon at the module archive, from the menu: two brands and three
// models entered, found by their power, listed, a brand renamed, a model and
// then a brand deleted. The tree left on disk is what the file layer's
// naming rules give.
#include "archive/archivepanel.h"
#include "archivefixture.h"

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QTableWidget>
#include <QtTest>

using namespace archive;

class TestArchiveFlow : public QObject
{
    Q_OBJECT

    static void newBrand(ModalDriver& driver, QWidget* w, const QString& name)
    {
        QListWidget* list = w->findChild<QListWidget*>("brands");
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                          list->visualItemRect(list->item(0)).center());
        enter(driver, w, "name", name);
        driver.answerBox();
        touch(w->findChild<QPushButton*>("Salva"));
    }
    static void newModel(ModalDriver& driver, QWidget* w, const QString& brand,
                         const QString& model, const QStringList& numbers, int type)
    {
        QComboBox* combo = w->findChild<QComboBox*>("brand");
        combo->setCurrentIndex(combo->findText(brand));
        enter(driver, w, "model", model);
        const char* fields[] = {"pmax", "noct", "vmpp", "impp", "voc", "isc",
                                "kisc", "kvoc", "kpmax", "tollm", "tollp"};
        for (int i = 0; i < 11; i++)
            enter(driver, w, fields[i], numbers[i]);
        w->findChild<QComboBox*>("type")->setCurrentIndex(type);
        driver.answerBox();
        touch(w->findChild<QPushButton*>("Salva"));
    }
    static void leave(QWidget* w) { touch(w->findChild<QPushButton*>("Exit")); }

private slots:
    void twoBrandsThreeModelsFoundListedRenamedAndDeleted()
    {
        TestRoot root(0.001);
        QVERIFY(emptyDatabase(root));
        ArchivePanel archive(nullptr);
        ModalDriver driver; // the archive's screens
        // the keyboards and boxes inside a screen: a timer does not fire again
        // while its own slot runs, so the windows opened from an action need
        // a driver of their own
        ModalDriver form;

        // two brands
        onScreen(driver, "EditBrand", [&](QWidget* w) {
            newBrand(form, w, "Solar Power Italia");
            newBrand(form, w, "Helios Energy");
            leave(w);
        });
        touch(child<QPushButton>(&archive, "Modifica Marca"));
        QCOMPARE(tree(root), QStringList({"helios/", "helios/iname", "solar/", "solar/iname"}));

        // three models; the second name shares its first word with the first
        onScreen(driver, "NewPanel", [&](QWidget* w) {
            newModel(form, w, "Solar Power Italia", "SPI 250 Mono",
                     {"250", "45", "30.5", "8.2", "37.6", "8.75", "0.05", "0", "-0.43", "-3", "3"},
                     1);
            newModel(form, w, "Solar Power Italia", "SPI 250 Poly",
                     {"250", "46", "30.1", "8.31", "37.2", "8.9", "0.06", "0", "-0.44", "0", "5"},
                     2);
            newModel(form, w, "Helios Energy", "HE-300",
                     {"300", "47", "36.2", "8.29", "45.1", "8.82", "0.04", "0", "-0.41", "-2", "2"},
                     3);
            leave(w);
        });
        touch(child<QPushButton>(&archive, "Nuovo Modulo"));
        QCOMPARE(tree(root), QStringList({"helios/", "helios/he", "helios/iname", "solar/",
                                          "solar/iname", "solar/spi", "solar/spi_250"}));
        QStringList saved;
        for (int i = 0; i < 3; i++)
            saved << form.boxes[2 + i].text + "/" + form.boxes[2 + i].informative;
        QCOMPARE(saved, QStringList(3, "Nuovo Modulo/Eseguito con successo."));

        // found by a power range
        QStringList rows;
        onScreen(driver, "FindPanel", [&](QWidget* w) {
            enter(form, w, "pmaxMin", "240");
            enter(form, w, "pmaxMax", "260");
            touch(w->findChild<QPushButton*>("Cerca"));
            QListWidget* list = w->findChild<QListWidget*>("result");
            for (int i = 0; i < list->count(); i++)
                rows << list->item(i)->text();
            rows << w->findChild<QLabel*>("count")->text();
            leave(w);
        });
        touch(child<QPushButton>(&archive, "Trova"));
        QCOMPARE(rows.size(), 4);
        QCOMPARE(rows[0], QString("Marca\t Modello\t Pmax(V)\t Vmpp(V)\t Impp(A)\t Voc(V)\t Isc(A)"));
        QStringList hits = rows.mid(1, 2);
        hits.sort();
        QCOMPARE(hits, QStringList({"Solar Po\tSPI 250 Mo\t250.00\t30.50\t8.20\t37.60\t8.75",
                                    "Solar Po\tSPI 250 Po\t250.00\t30.10\t8.31\t37.20\t8.90"}));
        QCOMPARE(rows[3], QString("Modello trovato : 2"));

        // listed
        QStringList listed;
        onScreen(driver, "ListPanel", [&](QWidget* w) {
            QComboBox* brand = w->findChild<QComboBox*>("brand");
            brand->setCurrentIndex(brand->findText("Solar Power Italia"));
            QTableWidget* table = w->findChild<QTableWidget*>("table");
            for (int r = 0; r < table->rowCount(); r++)
                listed << table->item(r, 0)->text() + " " + table->item(r, 6)->text();
            leave(w);
        });
        touch(child<QPushButton>(&archive, "Elenco"));
        listed.sort();
        QCOMPARE(listed, QStringList({"SPI 250 Mono -0.3500", "SPI 250 Poly -0.4000"}));

        // a brand renamed
        onScreen(driver, "EditBrand", [&](QWidget* w) {
            QListWidget* list = w->findChild<QListWidget*>("brands");
            QListWidgetItem* item = list->findItems("Helios Energy", Qt::MatchExactly).value(0);
            QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                              list->visualItemRect(item).center());
            enter(form, w, "name", "Helios Solar");
            form.answerBox();
            touch(w->findChild<QPushButton*>("Salva"));
            leave(w);
        });
        touch(child<QPushButton>(&archive, "Modifica Marca"));
        QCOMPARE(root.read("/krm510data/datapanel/helios/iname"), QByteArray("Helios Solar\n"));

        // a model and then a brand deleted
        onScreen(driver, "DeletePanel", [&](QWidget* w) {
            QComboBox* brand = w->findChild<QComboBox*>("brand");
            brand->setCurrentIndex(brand->findText("Solar Power Italia"));
            QListWidget* list = w->findChild<QListWidget*>("models");
            QListWidgetItem* item = list->findItems("SPI 250 Mono", Qt::MatchExactly).value(0);
            QTest::mousePress(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                              list->visualItemRect(item).center());
            form.answerBox(QMessageBox::Yes);
            touch(w->findChild<QPushButton*>("Cancella Modello"));
            brand->setCurrentIndex(brand->findText("Helios Solar"));
            form.answerBox(QMessageBox::Yes);
            touch(w->findChild<QPushButton*>("Cancella Marca"));
            leave(w);
        });
        touch(child<QPushButton>(&archive, "Cancella"));

        QCOMPARE(tree(root), QStringList({"solar/", "solar/iname", "solar/spi_250"}));
        QCOMPARE(root.read("/krm510data/datapanel/solar/iname"), QByteArray("Solar Power Italia\n"));
        QCOMPARE(modelFile(root, "solar", "spi_250"),
                 QByteArray("version = 2.0.2\nname = SPI 250 Poly\npmax = 250.00\nnoct = 46.00\n"
                            "impp = 8.31\nvmpp = 30.10\nisc = 8.90\nvoc = 37.20\ntype = 2\n"
                            "kisc = 0.0600\nkvoc = -0.4000\nkpmax = -0.4400\ntollp = 5.00\n"
                            "tollm = 0.00\n"));
        QCOMPARE(driver.pending(), 0);
        QCOMPARE(form.pending(), 0);
        QVERIFY(archive.isVisible());
    }
};

QTEST_MAIN(TestArchiveFlow)
#include "tst_archiveflow.moc"
