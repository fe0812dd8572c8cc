// The six hardware keys alone, as an operator with gloves uses them: they
// reach only the window in front and finish every screen and dialog of a
// module test, lists and message boxes included.
#include "data/datameasures.h"
#include "measure/dialogambiente.h"
#include "measure/dialoginfo.h"
#include "measure/panelfixture.h"
#include "measure/stringIV.h"
#include "shell/orvia.h"
#include "support/keywalk.h"
#include "support/modaldriver.h"

#include <QDir>
#include <QMessageBox>

using namespace panelfixture;

class TestKeyWalk : public QObject
{
    Q_OBJECT

private slots:
    void keysFinishEveryScreen_moduleTestFromTheMenuAndBack()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        _panelFeature other = simulatedSheet(3);
        other.pmax = 300.0f;
        QVERIFY(addModule("Altra", "altra", "ALT 300", "alt_300", other));
        other.pmax = 240.0f;
        QVERIFY(addModule("Simul", "simul", "SIM 240", "sim_240", other));
        QVERIFY(addModule("Simul", "simul", "SIM 250", "sim_250", simulatedSheet(3)));
        QVERIFY(world(sim, 850, 45));

        // one driver a level: a driver's action that opens a window waits
        // for the next level's driver to finish that window
        ModalDriver driver; // what the menu opens
        ModalDriver inner;  // what the module screen opens
        Orvia menu;
        menu.show();
        QStringList met;
        QString chosen;
        int firstModel = -1;
        int result = -1;
        QString saved;

        driver.onWindow("DialogCollegamenti", [&](QWidget*) {
            met << "wiring";
            sim.tapKey("return"); // "Continua"
        });
        driver.onWindow("PanelIV", [&](QWidget* w) {
            met << "module";
            PanelIV* panel = qobject_cast<PanelIV*>(w);
            QVERIFY(walkTo(sim, panel, "down", "Start"));
            sim.tapKey("return");
            QVERIFY(panel->_measureDone);

            inner.onWindow("ReferencePanel", [&](QWidget* r) {
                met << "reference";
                QListWidget* brands = child<QListWidget>(r, "Marca");
                QListWidget* models = child<QListWidget>(r, "Modello");
                // into the brand list, down to the brand, Return chooses it
                QVERIFY(walkTo(sim, r, "tab", "Marca"));
                sim.tapKey("return");
                QVERIFY(rowTo(sim, brands, "Simul"));
                sim.tapKey("return");
                QCOMPARE(models->count(), 2);
                QVERIFY(!child<QPushButton>(r, "Conferma")->isEnabled());
                // into the model list: its last model, not the first
                QVERIFY(walkTo(sim, r, "tab", "Modello"));
                sim.tapKey("return");
                firstModel = models->currentRow(); // entering stands on the first row
                sim.tapKey("down");
                QCOMPARE(models->currentRow(), 1);
                chosen = models->currentItem()->text();
                sim.tapKey("return");
                QCOMPARE(models->currentItem()->text(), chosen);
                QCOMPARE(child<QListWidget>(r, "Caratteristiche")->count(), 5);
                QVERIFY(child<QPushButton>(r, "Conferma")->isEnabled());
                // the focus is the screen's again: Tab walks on to "Conferma"
                QVERIFY(walkTo(sim, r, "tab", "Conferma"));
                inner.onWindow("DialogDegrado", [&](QWidget* a) {
                    met << "ageing";
                    QVERIFY(walkTo(sim, a, "down", "Non Applicare"));
                    sim.tapKey("return");
                });
                sim.tapKey("return");
            });
            QVERIFY(walkTo(sim, panel, "down", "Confronto"));
            sim.tapKey("return");
            result = panel->_result;

            // Return on "Misure" is the screen's first: the live environment
            // opens, and once it is left the measures menu opens on its first
            // entry ("Rs"); Down twice reaches "Ambiente" and the electrical
            // data, Return takes the entry, Escape leaves the table
            inner.onWindow("DialogAmbiente", [&](QWidget* a) {
                met << (qobject_cast<DialogAmbiente*>(a)->_realTime ? "live environment"
                                                                    : "still environment");
                sim.tapKey("escape");
            });
            inner.onWindow("DialogDatiElettrici", [&](QWidget*) {
                met << "electrical data";
                sim.tapKey("escape");
            });
            QVERIFY(walkTo(sim, panel, "down", "Misure"));
            sim.tapKey("return");
            QMenu* menu = measuresMenu(panel);
            QVERIFY(menu->isVisible());
            QCOMPARE(menu->activeAction()->text(), QString("Rs"));
            // the first entry is a submenu: the popup in front may be its own
            auto front = [] { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); };
            if (front() != menu)
                sim.tapKey("escape");
            QTRY_VERIFY(front() == menu);
            sim.tapKey("down");
            QTRY_COMPARE(menu->activeAction()->text(), QString("Ambiente"));
            if (front() != menu)
                sim.tapKey("escape");
            sim.tapKey("down");
            QTRY_COMPARE(menu->activeAction()->objectName(), QString("Modulo"));
            sim.tapKey("return");
            QVERIFY(!menu->isVisible());

            inner.onWindow("DialogInfo", [&](QWidget* f) {
                met << "save form";
                QVERIFY(walkTo(sim, f, "down", "Salva"));
                inner.onWindow("QMessageBox", [&](QWidget* b) {
                    saved = qobject_cast<QMessageBox*>(b)->text();
                    sim.tapKey("return");
                });
                sim.tapKey("return");
            });
            QVERIFY(walkTo(sim, panel, "down", "Salva"));
            sim.tapKey("return");
            QVERIFY(walkTo(sim, panel, "down", "Exit"));
            sim.tapKey("return");
        });
        QVERIFY(walkTo(sim, &menu, "tab", "Modulo"));
        sim.tapKey("return");

        QCOMPARE(met, QStringList({"wiring", "module", "reference", "ageing", "live environment",
                                   "electrical data", "save form"}));
        QCOMPARE(driver.pending(), 0);
        QCOMPARE(inner.pending(), 0);
        QCOMPARE(firstModel, 0);
        QVERIFY(chosen.startsWith("SIM 2"));
        QVERIFY(result == 0 || result == 1);
        QCOMPARE(saved, QString("Misura Salvata."));
        // back in the menu, the measure on disk with the model chosen by the keys
        QVERIFY(menu.isVisible());
        QVERIFY(menu.findChildren<QDialog*>().isEmpty());
        QStringList files = QDir(root.path("/krm510data/datameapanel")).entryList(QDir::Files);
        QCOMPARE(files.size(), 1);
        _measure m;
        std::memset(&m, 0, sizeof m);
        QCOMPARE(readMeasureData(files[0].toLatin1().constData(), &m, MEA_PANEL), 511);
        QCOMPARE(QString::fromLatin1(m.rname), chosen);
        QCOMPARE(QByteArray(m.rbname), QByteArray("Simul"));
        freeMeasureData(&m);
    }

    // The string screen's "Misure" with the hardware Return: the screen's own
    // rule runs the live environment first, then the menu opens for the keys.
    void returnOnMisureRunsTheLiveEnvironmentThenOpensTheMenu_string()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        ModalDriver driver;
        QStringList met;
        driver.onWindow("DialogAmbiente", [&](QWidget* a) {
            met << (qobject_cast<DialogAmbiente*>(a)->_realTime ? "live" : "still");
            sim.tapKey("escape");
        });
        StringIV screen(nullptr);
        screen.show();
        QVERIFY(walkTo(sim, &screen, "down", "Misure"));
        sim.tapKey("return");
        QCOMPARE(met, QStringList{"live"});
        QMenu* menu = measuresMenu(&screen);
        QTRY_VERIFY(menu->isVisible());
        QCOMPARE(menu->activeAction()->text(), QString("Ambiente"));
        // Escape closes the menu (its first entry is a submenu, which may
        // have opened in front: one Escape each); the focus stays on "Misure"
        for (int i = 0; i < 2 && menu->isVisible(); i++) {
            sim.tapKey("escape");
            QTest::qWait(50);
        }
        QTRY_VERIFY(!menu->isVisible());
        QCOMPARE(screen.focusWidget()->objectName(), QString("Misure"));
        QCOMPARE(driver.pending(), 0);
        QVERIFY(screen.isVisible());
    }

    void keysReachOnlyTheWindowInFront_saveFormOpenedByTouch()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        QVERIFY(world(sim, 850, 45));
        ModalDriver driver;
        ModalDriver inner; // what the save form opens
        PanelIV panel(nullptr);
        panel.show();
        touch(&panel, "Start");
        QVERIFY(panel._measureDone);
        int forms = 0;
        int keyboards = 0;
        driver.onWindow("DialogInfo", [&](QWidget* f) {
            forms++;
            // Return on the form's first field opens its keyboard, as a touch does
            QVERIFY(walkTo(sim, f, "up", "Data"));
            inner.onWindow("EmbKeyboard", [&](QWidget*) {
                keyboards++;
                sim.tapKey("escape");
            });
            sim.tapKey("return");
            // Escape rejects the form, not the module screen behind it
            sim.tapKey("escape");
        });
        touch(&panel, "Salva");
        QCOMPARE(forms, 1); // no second form from the screen behind
        QCOMPARE(keyboards, 1);
        QCOMPARE(driver.pending(), 0);
        QCOMPARE(inner.pending(), 0);
        QVERIFY(panel.isVisible());
        QCOMPARE(panel.result(), 0);
        QVERIFY(child<QPushButton>(&panel, "Salva")->isEnabled());
        QCOMPARE(QDir(root.path("/krm510data/datameapanel")).entryList(QDir::Files).size(), 0);
        // with the form gone the screen takes the keys again
        child<QPushButton>(&panel, "Salva")->setFocus();
        sim.tapKey("escape");
        QVERIFY(!panel.isVisible());
    }

    void keysFinishAMessageBox_upAndDownWalkItsButtons()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        PanelIV panel(nullptr);
        panel.show();
        ModalDriver driver;
        QStringList focus;
        driver.onWindow("QMessageBox", [&](QWidget* w) {
            QMessageBox* box = qobject_cast<QMessageBox*>(w);
            walkTo(sim, box, "down", "Yes");
            focus << box->focusWidget()->objectName();
            sim.tapKey("down");
            focus << box->focusWidget()->objectName();
            sim.tapKey("up");
            focus << box->focusWidget()->objectName();
            sim.tapKey("return");
        });
        QMessageBox box(QMessageBox::Question, "Domanda", "Sì o no?",
                        QMessageBox::Yes | QMessageBox::No, &panel);
        box.button(QMessageBox::Yes)->setObjectName("Yes");
        box.button(QMessageBox::No)->setObjectName("No");
        QCOMPARE(box.exec(), int(QMessageBox::Yes));
        QCOMPARE(focus, QStringList({"Yes", "No", "Yes"}));
        QVERIFY(panel.isVisible());
    }
};

QTEST_MAIN(TestKeyWalk)
#include "tst_keywalk.moc"
