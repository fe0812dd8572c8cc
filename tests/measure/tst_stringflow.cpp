#include "archive/archivefixture.h"
#include "data/datameasures.h"
#include "measure/panelfixture.h"
#include "measure/screenkinds.h"
#include "shell/orvia.h"
#include "support/modaldriver.h"
#include "support/screenshot.h"
#include "toolkit/look.h"

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <cmath>

using namespace panelfixture;
using namespace screenkinds;

// A string test from the main menu to the file on disk, driven as the
// operator drives it: the reference module entered in the module archive,
// the wiring picture, the count on the key pad, the hardware keys on the
// string screen; and the verdict on a string with a shorted bypass diode.
class TestStringFlow : public QObject
{
    Q_OBJECT

    struct Outcome {
        int result = -1;
        QString file;
        QString title;
    };

    // The brand "Simul" and its model "SIM 250" with the simulated data
    // sheet, entered on the archive's forms from the menu.
    static void enterReferenceInTheArchive(Orvia& menu)
    {
        ModalDriver outer;
        ModalDriver inner;
        ModalDriver form;
        archive::onScreen(outer, "ArchivePanel", [&](QWidget* a) {
            archive::onScreen(inner, "EditBrand", [&](QWidget* w) {
                QListWidget* list = w->findChild<QListWidget*>("brands");
                QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                                  list->visualItemRect(list->item(0)).center());
                archive::enter(form, w, "name", "Simul");
                form.answerBox();
                archive::touch(w->findChild<QPushButton*>("Salva"));
                archive::touch(w->findChild<QPushButton*>("Exit"));
            });
            archive::touch(archive::child<QPushButton>(a, "Modifica Marca"));
            archive::onScreen(inner, "NewPanel", [&](QWidget* w) {
                QComboBox* brand = w->findChild<QComboBox*>("brand");
                brand->setCurrentIndex(brand->findText("Simul"));
                // the technology first: its choice resets the Voc coefficient
                w->findChild<QComboBox*>("type")->setCurrentIndex(1);
                archive::enter(form, w, "model", "SIM 250");
                const _panelFeature f = simulatedSheet(3);
                const char* fields[] = {"pmax", "noct", "vmpp",  "impp",  "voc",  "isc",
                                        "kisc", "kvoc", "kpmax", "tollm", "tollp"};
                const float values[] = {f.pmax, f.noct, f.vmpp,  f.impp,   f.voc,  f.isc,
                                        f.kisc, f.kvoc, f.kpmax, -f.tollm, f.tollp};
                for (int i = 0; i < 11; i++)
                    archive::enter(form, w, fields[i], QString::number(double(values[i])));
                form.answerBox();
                archive::touch(w->findChild<QPushButton*>("Salva"));
                archive::touch(w->findChild<QPushButton*>("Exit"));
            });
            archive::touch(archive::child<QPushButton>(a, "Nuovo Modulo"));
            archive::touch(archive::child<QPushButton>(a, "Exit"));
        });
        touch(&menu, "ArchivioModuli");
        if (outer.pending() != 0 || inner.pending() != 0 || form.pending() != 0)
            qWarning("archive windows not met: %d %d %d", outer.pending(), inner.pending(),
                     form.pending());
    }

    // One whole string test from the menu: count, Start, "Confronto" with
    // SIM 250 and no ageing allowance, "Salva".
    static Outcome runFromTheMenu(Orvia& menu, const TestRoot& root, const SimInstrument& sim,
                                  int count, const QString& shot)
    {
        Outcome out;
        ModalDriver outer; // the wiring picture, then the string screen
        ModalDriver inner; // what the string screen opens
        outer.onNext([](QWidget* w) { touch(w, "Continua"); });
        outer.onNext([&](QWidget* w) {
            StringIV* screen = qobject_cast<StringIV*>(w);
            if (screen == nullptr) {
                qWarning("not the string screen: %s", w->metaObject()->className());
                return;
            }
            inner.onNext([](QWidget*) {}); // the string screen itself
            QTest::qWait(20);
            enterCount(inner, count);
            hardKey(sim, "return", screen); // Start has the focus
            if (!screen->_measureDone)
                qWarning("no measure");
            inner.onNext([](QWidget*) {}); // the string screen, active again
            QTest::qWait(20);
            inner.onNext([](QWidget* r) { chooseInReferenceDialog(r, "Simul", "SIM 250"); });
            inner.onNext([](QWidget* a) { touch(a, "Non Applicare"); });
            hardKey(sim, "down", screen);
            hardKey(sim, "return", screen); // "Confronto"
            out.result = screen->_result;
            out.title = screen->plotter()->title();
            if (!shot.isEmpty())
                saveScreenshot(screen, shot);
            inner.onNext([](QWidget*) {});
            QTest::qWait(20);
            inner.onNext([](QWidget* f) { touch(f, "Salva"); });
            inner.answerBox();
            hardKey(sim, "down", screen);
            hardKey(sim, "down", screen);
            hardKey(sim, "return", screen); // "Salva"
            hardKey(sim, "escape", screen);
        });
        touch(&menu, "Stringa");
        QStringList files = QDir(root.path("/krm510data/datameastring")).entryList(QDir::Files);
        if (files.size() == 1)
            out.file = files[0];
        if (outer.pending() != 0 || inner.pending() != 0)
            qWarning("windows not met: %d %d", outer.pending(), inner.pending());
        if (inner.boxes.size() != 1 || inner.boxes[0].text != "Misura Salvata.")
            qWarning("save not confirmed");
        return out;
    }

    static int verdictOfAStringOf4(const TestRoot& root, const SimInstrument& sim)
    {
        Orvia menu;
        menu.show();
        const Outcome out = runFromTheMenu(menu, root, sim, 4, QString());
        if (out.file.isEmpty())
            return -1;
        _measure m;
        std::memset(&m, 0, sizeof m);
        readMeasureData(out.file.toLatin1().constData(), &m, MEA_STRING);
        const int saved = m.mtest;
        freeMeasureData(&m);
        return saved == out.result ? out.result : -2;
    }

public:
    static void initMain() { useInstrumentScreen(); }

private slots:
    void initTestCase()
    {
        useInstrumentDpi();
        setInstrumentLook();
    }

    // ---- The menu's "Stringa"
    void stringButtonShowsTheStringWiringThenTheStringScreen()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        ModalDriver driver;
        QStringList seen;
        QImage picture;
        driver.onNext([&](QWidget* w) {
            seen << w->metaObject()->className();
            for (QLabel* l : w->findChildren<QLabel*>())
                if (!l->pixmap().isNull())
                    picture = l->pixmap().toImage();
            touch(w, "Continua");
        });
        driver.onNext([&](QWidget* w) {
            seen << w->metaObject()->className();
            QTest::keyClick(w, Qt::Key_Escape);
        });
        Orvia menu;
        menu.show();
        touch(&menu, "Stringa");
        QCOMPARE(seen, (QStringList{"DialogCollegamenti", "StringIV"}));
        QCOMPARE(picture, QPixmap(":/image/schema_stringhe.png").toImage());
        QVERIFY(menu.findChild<StringIV*>() == nullptr); // deleted after exec
    }
    void wiringPictureLeftOpensNoStringScreen()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        ModalDriver driver;
        QStringList seen;
        driver.onNext([&](QWidget* w) {
            seen << w->metaObject()->className();
            QTest::keyClick(w, Qt::Key_Escape);
        });
        Orvia menu;
        menu.show();
        touch(&menu, "Stringa");
        QTest::qWait(50);
        QCOMPARE(seen, QStringList{"DialogCollegamenti"});
        QVERIFY(menu.findChild<StringIV*>() == nullptr);
    }
    void returnOnStringaOpensTheStringTest()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root);
        ModalDriver driver;
        QStringList seen;
        driver.onNext([&](QWidget* w) {
            seen << w->metaObject()->className();
            QTest::keyClick(w, Qt::Key_Return);
        });
        driver.onNext([&](QWidget* w) {
            seen << w->metaObject()->className();
            QTest::keyClick(w, Qt::Key_Escape);
        });
        Orvia menu;
        menu.show();
        menu.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&menu));
        menu.findChild<QPushButton*>("Stringa")->setFocus();
        QTest::keyClick(&menu, Qt::Key_Return);
        QCOMPARE(seen, (QStringList{"DialogCollegamenti", "StringIV"}));
    }

    // ---- Whole tests
    void stringOf12FromTheMenuToTheSavedFile()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root, [](_configParam& c) { c.tprobe = PROBE_MODULE; });
        QVERIFY(world(sim, 1000, 25));
        QVERIFY(sim.setSeries(12));
        // the module's true power at standard conditions
        const double stcString = sim.field("pv figures", "pmax").toDouble();
        QVERIFY(sim.setSeries(1));
        const double stcModule = sim.field("pv figures", "pmax").toDouble();
        QVERIFY(std::fabs(stcString - 12 * stcModule) < 0.01 * stcString);
        QVERIFY(sim.setSeries(12));
        QVERIFY(world(sim, 900, 50));
        QVERIFY(sim.command("set tcell 50"));
        const double isc = sim.field("pv figures", "isc").toDouble();
        const double voc = sim.field("pv figures", "voc").toDouble();
        const double pmax = sim.field("pv figures", "pmax").toDouble();

        Orvia menu;
        menu.show();
        enterReferenceInTheArchive(menu);
        QCOMPARE(archive::tree(root), QStringList({"simul/", "simul/iname", "simul/sim"}));
        Outcome out = runFromTheMenu(menu, root, sim, 12, "string_flow_verdict");
        QCOMPARE(out.title, QString("String IV / 12 * SIM 250"));
        QCOMPARE(out.result, 1);
        QVERIFY(!out.file.isEmpty());
        _measure m;
        std::memset(&m, 0, sizeof m);
        QCOMPARE(readMeasureData(out.file.toLatin1().constData(), &m, MEA_STRING), 511);
        QCOMPARE(m.mnpan, 12);
        QVERIFY2(std::fabs(m.misc - isc) <= 0.02,
                 qPrintable(QString("%1 %2").arg(m.misc).arg(isc)));
        QVERIFY2(std::fabs(m.mvoc - voc) <= 0.005 * voc,
                 qPrintable(QString("%1 %2").arg(m.mvoc).arg(voc)));
        QVERIFY2(std::fabs(m.mpmax - pmax) <= 0.01 * pmax,
                 qPrintable(QString("%1 %2").arg(m.mpmax).arg(pmax)));
        QVERIFY2(std::fabs(m.spmax - 12 * stcModule) <= 0.03 * 12 * stcModule,
                 qPrintable(QString("%1 %2").arg(m.spmax).arg(12 * stcModule)));
        QCOMPARE(m.mcomp, 1);
        QCOMPARE(m.mtest, 1);
        QCOMPARE(m.mrstest, 0);
        QCOMPARE(QByteArray(m.rname), QByteArray("SIM 250"));
        QCOMPARE(QByteArray(m.rbname), QByteArray("Simul"));
        QCOMPARE(m.ref.pmax, 250.0f);
        QCOMPARE(m.mprobe, int(PROBE_MODULE));
        QVERIFY(std::fabs(m.mirr - 900) < 1.0f);
        QVERIFY(std::fabs(m.mtemp - 50) < 0.5f);
        freeMeasureData(&m);
        QVERIFY(QDir(root.path("/krm510data/datameapanel")).entryList(QDir::Files).isEmpty());
    }

    void shortedBypassDiodeFailsTheStringAndTheCleanStringPasses()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        configure(root, [](_configParam& c) { c.tprobe = PROBE_MODULE; });
        QVERIFY(addModule("Simul", "simul", "SIM 250", "sim_250", simulatedSheet(3)));
        QVERIFY(world(sim, 1000, 25));
        QVERIFY(sim.setSeries(4));
        const double cleanVoc = sim.field("pv figures", "voc").toDouble();
        const double cleanPmax = sim.field("pv figures", "pmax").toDouble();
        // one substring of the twelve shorted
        QVERIFY(sim.command("fault bypass short 0 0"));
        const double faultVoc = sim.field("pv figures", "voc").toDouble();
        const double faultPmax = sim.field("pv figures", "pmax").toDouble();
        QVERIFY2(std::fabs(faultVoc / cleanVoc - (1 - 1.0 / 12)) < 0.01,
                 qPrintable(QString::number(faultVoc / cleanVoc)));
        QVERIFY2(std::fabs(faultPmax / cleanPmax - (1 - 1.0 / 12)) < 0.01,
                 qPrintable(QString::number(faultPmax / cleanPmax)));
        QCOMPARE(verdictOfAStringOf4(root, sim), 0);

        QVERIFY(sim.command("fault none"));
        QVERIFY(coolHeatSink(sim));
        QDir(root.path("/krm510data/datameastring")).removeRecursively();
        root.mkdir("/krm510data/datameastring");
        QCOMPARE(verdictOfAStringOf4(root, sim), 1);
    }
};

QTEST_MAIN(TestStringFlow)
#include "tst_stringflow.moc"
