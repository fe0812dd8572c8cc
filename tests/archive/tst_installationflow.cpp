// From an empty archive to the graphs of an installation's measures, on the
// simulated instrument: the installation, a company that adds it, two string
// measures saved on the string screen, added through the installation's edit
// screen, opened with their graphs, one of them deleted afterwards.
#include "archive/editinstallation.h"
#include "archive/insertcompany.h"
#include "archive/insertinstallation.h"
#include "archive/listmeasures.h"
#include "archive/viewinstallation.h"
#include "archivefixture.h"
#include "data/datacompany.h"
#include "data/datainstallation.h"
#include "data/datameasures.h"
#include "measure/panelfixture.h"
#include "measure/screenkinds.h"
#include "measure/stringIV.h"
#include "measure/viewmeasures.h"
#include "support/modaldriver.h"
#include "support/screenshot.h"
#include "support/siminstrument.h"
#include "toolkit/look.h"

#include <QComboBox>
#include <QListWidget>
#include <QtTest>

class TestInstallationFlow : public QObject
{
    Q_OBJECT

    static void pickRow(QListWidget* l, int row)
    {
        QTest::mouseClick(l->viewport(), Qt::LeftButton, Qt::NoModifier,
                          l->visualItemRect(l->item(row)).center());
    }
    static QStringList rows(QListWidget* l)
    {
        QStringList texts;
        for (int i = 0; i < l->count(); i++)
            texts << l->item(i)->text();
        return texts;
    }
    // The measure of a row of the installation's string list, as the viewer
    // shows it; the viewer is closed with Escape.
    struct Shown {
        QByteArray file;
        float isc = -1, voc = -1, pmax = -1;
        int points = -1;
    };
    static Shown openStringGraph(ViewInstallation* view, int row)
    {
        Shown shown;
        ModalDriver driver;
        driver.onWindow("ViewMeasures", [&shown](QWidget* v) {
            ViewMeasures* m = qobject_cast<ViewMeasures*>(v);
            shown.file = m->_entry->file;
            shown.isc = m->_measure.misc;
            shown.voc = m->_measure.mvoc;
            shown.pmax = m->_measure.mpmax;
            QTest::keyClick(v, Qt::Key_Escape);
        });
        QListWidget* strings = view->findChild<QListWidget*>("stringMeasures");
        pickRow(strings, row);
        archive::touch(view->findChild<QPushButton*>("Visualizza Grafico"));
        if (driver.pending() != 0 || !driver.boxes.isEmpty())
            shown.file = "<no viewer or a box>";
        return shown;
    }

public:
    static void initMain() { useInstrumentScreen(); }

private slots:
    void initTestCase()
    {
        useInstrumentDpi();
        setInstrumentLook();
    }

    void storedDataNeverLost_installationMeasuresGraphsAndADeletedMeasure()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.isRunning());
        panelfixture::configure(root);
        checkDirData();
        QVERIFY(panelfixture::addModule("Simul", "simul", "SIM 250", "sim_250",
                                        panelfixture::simulatedSheet()));
        QVERIFY(panelfixture::world(sim, 900, 40));
        QVERIFY(sim.setSeries(4));

        // the installation, 4 strings and 12 kW
        {
            InsertInstallation d(nullptr);
            ModalDriver driver;
            archive::enter(driver, &d, "id", "Tetto Sud");
            archive::enter(driver, &d, "city", "Modena");
            archive::enter(driver, &d, "nstri", "4");
            archive::enter(driver, &d, "npowe", "12");
            driver.answerBox();
            archive::touch(d.findChild<QPushButton*>("Salva"));
            QCOMPARE(driver.boxes.last().text, QString("Installazione Salvata."));
        }
        // a company that adds it through its "Installazione" combo
        {
            InsertCompany d(nullptr);
            ModalDriver driver;
            archive::enter(driver, &d, "surn", "Solare Emilia");
            archive::enter(driver, &d, "code", "SE001");
            driver.onWindow("SelectInstallation", [](QWidget* w) {
                QComboBox* combo = w->findChild<QComboBox*>("installation");
                combo->setCurrentIndex(combo->findText("Tetto Sud (4/12 )"));
                QTest::mouseClick(w->findChild<QPushButton*>("action"), Qt::LeftButton);
            });
            archive::touch(d.findChild<QPushButton*>("add"));
            driver.answerBox();
            archive::touch(d.findChild<QPushButton*>("Salva"));
            QCOMPARE(driver.boxes.last().text, QString("Azienda Salvata."));
            QVERIFY(
                root.read("/krm510data/datacompany/solare_emilia").contains("sinst = tetto_sud\n"));
        }
        // two string measures
        {
            StringIV screen(nullptr);
            screen.show();
            QVERIFY(screenkinds::measureOnTheStringScreen(screen, sim, true, "10:00", "Fila 1"));
            QVERIFY(screenkinds::measureOnTheStringScreen(screen, sim, false, "10:05", "Fila 2"));
        }
        const QStringList files =
            QDir(root.path("/krm510data/datameastring")).entryList(QDir::Files, QDir::Name);
        QCOMPARE(files.size(), 2);
        _measure saved[2];
        for (int i = 0; i < 2; i++)
            QVERIFY(readMeasureData(files[i].toLatin1().constData(), &saved[i], MEA_STRING) >= 0);

        // both added through the edit screen
        {
            _listInstallation* head = readListInstallation(nullptr);
            QVERIFY(head != nullptr);
            _installation* record = readInstallationFromFile(head->file);
            EditInstallation d(nullptr, head, record);
            for (int i = 0; i < 2; i++) {
                ModalDriver driver;
                driver.onWindow("ListMeasures", [i](QWidget* w) {
                    ListMeasures* list = qobject_cast<ListMeasures*>(w);
                    pickRow(list->listWidget, i + 1); // under the header, oldest first
                    QTest::mouseClick(list->addButton, Qt::LeftButton);
                });
                archive::touch(d.findChild<QPushButton*>("stringAdd"));
                QCOMPARE(driver.pending(), 0);
            }
            QCOMPARE(d.findChild<QComboBox*>("string")->count(), 2);
            ModalDriver driver;
            driver.answerBox();
            archive::touch(d.findChild<QPushButton*>("Salva"));
            QCOMPARE(driver.boxes.last().informative, QString("Eseguito con successo."));
            freeInstallation(record);
            closeListInstallation(head);
        }
        // the installation and each measure's graph, as at the save
        QStringList shownFiles;
        {
            _installation* in = readInstallationFromFile("tetto_sud");
            ViewInstallation view(nullptr, in);
            view.show();
            QVERIFY(QTest::qWaitForWindowExposed(&view));
            QListWidget* strings = view.findChild<QListWidget*>("stringMeasures");
            QCOMPARE(strings->count(), 2);
            for (int row = 0; row < 2; row++) {
                Shown s = openStringGraph(&view, row);
                const int i = files.indexOf(QString(s.file));
                QVERIFY2(i >= 0, s.file.constData());
                QCOMPARE(strings->item(row)->text(),
                         QString("%1 %2").arg(saved[i].mdata, saved[i].mtime));
                QCOMPARE(s.isc, saved[i].misc);
                QCOMPARE(s.voc, saved[i].mvoc);
                QCOMPARE(s.pmax, saved[i].mpmax);
                QVERIFY(s.pmax > 0);
                shownFiles << QString(s.file);
            }
            freeInstallation(in);
        }
        shownFiles.sort();
        QCOMPARE(shownFiles, files);

        // one measure deleted in the measure archive
        {
            ListMeasures list(nullptr, MEA_STRING, SELECT_DELETE);
            list.show();
            QVERIFY(QTest::qWaitForWindowExposed(&list));
            pickRow(list.listWidget, 1);
            ModalDriver driver;
            driver.answerBox(QMessageBox::Ok);
            archive::touch(list.deleteButton);
        }
        const QStringList left =
            QDir(root.path("/krm510data/datameastring")).entryList(QDir::Files, QDir::Name);
        QCOMPARE(left.size(), 1);
        {
            _installation* in = readInstallationFromFile("tetto_sud");
            ViewInstallation view(nullptr, in);
            view.show();
            QVERIFY(QTest::qWaitForWindowExposed(&view));
            QListWidget* strings = view.findChild<QListWidget*>("stringMeasures");
            const QStringList texts = rows(strings);
            QCOMPARE(texts.size(), 2);
            const int gone = texts.indexOf(" ");
            QVERIFY2(gone >= 0, qPrintable(texts.join('|')));
            // its graph: empty curves and zeros, no box, no crash
            Shown s = openStringGraph(&view, gone);
            QVERIFY(!left.contains(QString(s.file)));
            QCOMPARE(s.isc, 0.0f);
            QCOMPARE(s.voc, 0.0f);
            QCOMPARE(s.pmax, 0.0f);
            Shown other = openStringGraph(&view, 1 - gone);
            QCOMPARE(QString(other.file), left[0]);
            QVERIFY(other.pmax > 0);
            freeInstallation(in);
        }
        for (_measure& m : saved)
            freeMeasureData(&m);
    }
};

QTEST_MAIN(TestInstallationFlow)
#include "tst_installationflow.moc"
