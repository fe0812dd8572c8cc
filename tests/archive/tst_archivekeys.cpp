// The module archive with the six hardware keys alone: the brand and model
// combos are opened, walked and chosen with the keys, and the screens are
// finished with them.
#include "archive/deletepanel.h"
#include "archive/editpanel.h"
#include "archivefixture.h"
#include "shell/orvia.h"
#include "support/keywalk.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QListWidget>
#include <QMessageBox>
#include <QtTest>

using namespace archive;

class TestArchiveKeys : public QObject
{
    Q_OBJECT

    // Opens the focused combo with Return, walks its list to the text and
    // chooses it with Return.
    static bool chooseInCombo(const SimInstrument& sim, QComboBox* combo, const QString& text)
    {
        if (!sim.tapKey("return") || !combo->view()->isVisible())
            return false;
        if (!rowTo(sim, combo->view(), text) || !sim.tapKey("return"))
            return false;
        return !combo->view()->isVisible() && combo->currentText() == text;
    }

private slots:
    void keysFinishEveryScreen_editOfAChosenModelFromTheMenu()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        QVERIFY(addModel("Helios", "helios", "H250", "h250", sheet(250, 35, 7.14f, 43, 7.7f)));
        QVERIFY(addModel("Solar", "solar", "S100", "s100", sheet(100, 20, 5, 25, 5.5f)));
        QVERIFY(addModel("Solar", "solar", "S150", "s150", sheet(150, 25, 6, 31, 6.5f)));
        Orvia menu;
        menu.show();
        // one driver a level: a driver's action that opens a window waits
        // for the next level's driver to finish that window
        ModalDriver driver; // what the menu opens
        ModalDriver inner;  // what the archive opens
        ModalDriver boxes;  // what the editor opens
        QStringList met;
        QString chosenModel;
        QString firstModel;
        QString pmaxShown;
        QString box;

        driver.onWindow("ArchivePanel", [&](QWidget* a) {
            met << "archive";
            inner.onWindow("EditPanel", [&](QWidget* e) {
                met << "edit";
                QComboBox* brand = child<QComboBox>(e, "brand");
                QComboBox* model = child<QComboBox>(e, "model");
                QVERIFY(walkTo(sim, e, "down", "brand"));
                QVERIFY(chooseInCombo(sim, brand, "Solar"));
                // the focus stays in the screen's chain: Down walks on to the model
                QCOMPARE(e->focusWidget(), brand);
                QVERIFY(walkTo(sim, e, "down", "model"));
                QCOMPARE(model->count(), 2);
                firstModel = model->itemText(0);
                chosenModel = model->itemText(1); // not the first of its brand
                QVERIFY(chooseInCombo(sim, model, chosenModel));
                pmaxShown = child<QLineEdit>(e, "pmax")->text();
                // Escape closes an open list and leaves the choice as it was
                QVERIFY(sim.tapKey("return"));
                QVERIFY(model->view()->isVisible());
                QVERIFY(sim.tapKey("down"));
                QVERIFY(sim.tapKey("escape"));
                QVERIFY(!model->view()->isVisible());
                QCOMPARE(model->currentText(), chosenModel);
                QVERIFY(e->isVisible());
                QVERIFY(walkTo(sim, e, "down", "Salva"));
                boxes.onWindow("QMessageBox", [&](QWidget* b) {
                    box = qobject_cast<QMessageBox*>(b)->informativeText();
                    QVERIFY(sim.tapKey("return"));
                });
                QVERIFY(sim.tapKey("return"));
                QVERIFY(sim.tapKey("escape"));
            });
            QVERIFY(walkTo(sim, a, "down", "Modifica Modulo"));
            QVERIFY(sim.tapKey("return"));
            QVERIFY(sim.tapKey("escape"));
        });
        QVERIFY(walkTo(sim, &menu, "tab", "ArchivioModuli"));
        QVERIFY(sim.tapKey("return"));

        QCOMPARE(met, QStringList({"archive", "edit"}));
        QCOMPARE(driver.pending() + inner.pending() + boxes.pending(), 0);
        QCOMPARE(firstModel.isEmpty(), false);
        QVERIFY(chosenModel != firstModel);
        QCOMPARE(pmaxShown, chosenModel == "S150" ? QString("150.0") : QString("100.0"));
        QCOMPARE(box, QString("Eseguito con successo."));
        QVERIFY(menu.findChildren<QDialog*>().isEmpty());
        // the data sheet written back is the chosen model's own
        QString file = chosenModel == "S150" ? "s150" : "s100";
        QVERIFY(QString::fromLocal8Bit(modelFile(root, "solar", file))
                    .contains("name = " + chosenModel + "\n"));
    }
    void keysChooseInAListAsATouchDoes_deleteModelAsksFirst()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        QVERIFY(addModel("Solar", "solar", "S100", "s100", sheet(100, 20, 5, 25, 5.5f)));
        QVERIFY(addModel("Solar", "solar", "S150", "s150", sheet(150, 25, 6, 31, 6.5f)));
        const QStringList before = tree(root);
        BrandList brands;
        DeletePanel d(nullptr, brands.head);
        QListWidget* models = child<QListWidget>(&d, "models");
        QPushButton* deleteModel = child<QPushButton>(&d, "Cancella Modello");
        QVERIFY(!deleteModel->isEnabled());
        // Down walks the screen's chain onto the list; Return enters it
        QVERIFY(walkTo(sim, &d, "down", "models"));
        QVERIFY(sim.tapKey("return"));
        QCOMPARE(models->currentRow(), 0);
        QVERIFY(sim.tapKey("down"));
        QCOMPARE(models->currentRow(), 1);
        QCOMPARE(d.focusWidget(), models);
        // Return chooses the row as a finger does (the screen hears the press)
        QVERIFY(sim.tapKey("return"));
        QVERIFY(deleteModel->isEnabled());
        // and Down walks the chain again
        QVERIFY(sim.tapKey("down"));
        QCOMPARE(d.focusWidget(), deleteModel);
        ModalDriver driver;
        QString asked;
        driver.onWindow("QMessageBox", [&](QWidget* b) {
            asked = qobject_cast<QMessageBox*>(b)->text();
            QVERIFY(sim.tapKey("escape")); // No
        });
        QVERIFY(sim.tapKey("return"));
        QCOMPARE(asked, QString("Cancella Modello"));
        QCOMPARE(tree(root), before);
        QVERIFY(sim.tapKey("escape"));
        QVERIFY(!d.isVisible());
    }
};

QTEST_MAIN(TestArchiveKeys)
#include "tst_archivekeys.moc"
