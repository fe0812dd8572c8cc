// The stick screen driven as an operator does on the simulated instrument:
// connecting and disconnecting with their progress times, the walk through
// the stick's folders in both copy screens, the copy itself both ways, the
// upgrade file list and the upgrade with and without a firmware image.
#include "data/direntry.h"
#include "platform/clock.h"
#include "shell/language.h"
#include "shell/orvia.h"
#include "support/lookcheck.h"
#include "support/modaldriver.h"
#include "support/screenshot.h"
#include "support/siminstrument.h"
#include "support/testroot.h"
#include "toolkit/infobar.h"
#include "usb/dialogcopyfrom.h"
#include "usb/dialogcopyto.h"
#include "usb/dialogfileupg.h"
#include "usb/usbdialog.h"
#include "usbfixture.h"

#include <QDirIterator>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QTranslator>
#include <QtTest>

namespace
{

const char* const strangeName = "dati di \"Mario\" l'altro; touch pwned";

QPushButton* button(QWidget* screen, const char* name)
{
    QPushButton* b = screen->findChild<QPushButton*>(name);
    if (b == nullptr)
        qWarning("no button %s", name);
    return b;
}

// The screen drawn into build/screenshots, and what keeps an operator in the
// sun from reading it (texts below 11 pixels or wider than their widgets).
QString shotFaults(QWidget* screen, const char* name)
{
    saveScreenshot(screen, name);
    return legibilityFaults(screen).join('\n');
}

void touch(QWidget* screen, const char* name)
{
    QTest::mouseClick(button(screen, name), Qt::LeftButton);
}

QListWidget* list(QWidget* screen)
{
    return screen->findChild<QListWidget*>();
}

QStringList rows(QWidget* screen)
{
    QStringList texts;
    for (int i = 0; i < list(screen)->count(); i++)
        texts << list(screen)->item(i)->text();
    return texts;
}

// A touch on a row of the screen's list.
void pick(QWidget* screen, const QString& text)
{
    QListWidget* l = list(screen);
    QList<QListWidgetItem*> items = l->findItems(text, Qt::MatchExactly);
    QVERIFY2(!items.isEmpty(), qPrintable(text));
    QTest::mouseClick(l->viewport(), Qt::LeftButton, Qt::NoModifier,
                      l->visualItemRect(items[0]).center());
}

// "Conferma", then "Exit", once the driver's action has returned: the boxes
// of the copy are met by the driver's next actions.
void confirmThenExit(QWidget* screen)
{
    QTimer::singleShot(0, screen, [screen] {
        touch(screen, "Conferma");
        touch(screen, "Exit");
    });
}

// The copy screens read the stick once they are up.
void settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
}

bool script(const TestRoot& root, const char* path, const QByteArray& body)
{
    if (!root.write(path, "#!/bin/sh\n" + body + "\n"))
        return false;
    return QFile(root.path(path))
        .setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
}

QStringList commandLog(const TestRoot& root)
{
    return QString::fromLocal8Bit(root.read("/var/lib/krm510-sim/commands.log"))
        .split('\n', Qt::SkipEmptyParts);
}

// The screen's own sleeps as the clock recorded them, merged again once the
// status bar's short converter waits (below a millisecond, while the bar
// reads the battery between two steps) are left out: "sleep 1000000 x1,
// usleep 500000 x9".
QString sleeps()
{
    std::vector<Clock::Wait> kept;
    for (const Clock::Wait& w : Clock::waits()) {
        if ((w.kind != Clock::Sleep && w.kind != Clock::Usleep) || w.micros < 1000)
            continue;
        if (!kept.empty() && kept.back().kind == w.kind && kept.back().micros == w.micros)
            kept.back().count += w.count;
        else
            kept.push_back(w);
    }
    QStringList out;
    for (const Clock::Wait& w : kept)
        out << QString("%1 %2 x%3")
                   .arg(w.kind == Clock::Sleep ? "sleep" : "usleep")
                   .arg(w.micros)
                   .arg(w.count);
    return out.join(", ");
}

// Cancels the copy's progress dialog when its bar reaches the value: the
// dialog is caught as it shows, so the cancel falls between two directories.
class CancelAt : public QObject
{
public:
    explicit CancelAt(int value) : value(value) { qApp->installEventFilter(this); }
    ~CancelAt() override { qApp->removeEventFilter(this); }
    bool eventFilter(QObject* o, QEvent* e) override
    {
        QProgressDialog* p = qobject_cast<QProgressDialog*>(o);
        if (e->type() == QEvent::Show && p != nullptr && !hooked.contains(p)) {
            hooked << p;
            QProgressBar* bar = p->findChild<QProgressBar*>();
            if (bar != nullptr)
                connect(bar, &QProgressBar::valueChanged, p, [p, this](int v) {
                    if (v == value)
                        p->cancel();
                });
        }
        return false;
    }
    int value;
    QList<QObject*> hooked;
};

// The package script of the test: logs its argument and, when the stick
// holds a firmware beside the package, leaves it as the image.
bool upgradeScript(const TestRoot& root)
{
    return script(root, "/usr/bin/krmupgrade.sh",
                  "printf '%s\\n' \"$1\" >> '" + root.root().toLocal8Bit() +
                      "/upgrade.log'\n"
                      "d=$(dirname \"$1\")\n"
                      "[ -f \"$d/firmware.hex\" ] && cp \"$d/firmware.hex\" '" +
                      root.root().toLocal8Bit() +
                      "/home/ORVIAp.hex'\n"
                      "echo installed\n");
}

// A mounted stick with a package and, beside it, a firmware that the test's
// package script leaves as the image.
bool stickWithFirmware(const TestRoot& root, const SimInstrument& sim)
{
    return usb::mountedStick(sim) && upgradeScript(root) && root.mkdir("/home") &&
           usb::writeFile(sim.stickPath() + "/firmware.hex", usb::firmware()) &&
           usb::writeFile(sim.stickPath() + "/krm510-3.0.upg", QByteArray());
}

} // namespace

using namespace usb;

class TestUsbDialog : public QObject
{
    Q_OBJECT

public:
    static void initMain() { useInstrumentScreen(); }

private slots:
    void initTestCase()
    {
        useInstrumentDpi();
        setInstrumentLook();
    }

    void screenShowsItsButtonsUnderTheUsbTitle()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        UsbDialog d(nullptr);
        QCOMPARE(d.objectName(), QString("UsbDialog"));
        QCOMPARE(d.findChild<InfoBar*>()->title(), QString("Usb"));
        for (const char* name :
             {"Connetti", "Disconnetti", "Copia In", "Copia Da", "Aggiornamento"})
            QVERIFY(button(&d, name) != nullptr);
        QCOMPARE(button(&d, "Copia In")->text(), QString("Copia In..."));
        QVERIFY(!d.connected);
        QVERIFY(QTest::qWaitForWindowExposed(&d));
        const QString faults = shotFaults(&d, "usb-screen");
        QVERIFY2(faults.isEmpty(), qPrintable(faults));
        touch(&d, "Exit");
        QCOMPARE(d.result(), int(QDialog::Rejected));
    }

    void downAndUpWalkTheButtonsAndReturnPressesTheFocusedOne()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        UsbDialog d(nullptr);
        QVERIFY(QTest::qWaitForWindowActive(&d));
        QCOMPARE(QApplication::focusWidget()->objectName(), QString("Connetti"));
        QTest::keyClick(&d, Qt::Key_Down);
        QCOMPARE(QApplication::focusWidget()->objectName(), QString("Disconnetti"));
        QTest::keyClick(&d, Qt::Key_Down);
        QTest::keyClick(&d, Qt::Key_Up);
        QCOMPARE(QApplication::focusWidget()->objectName(), QString("Disconnetti"));
        ModalDriver driver;
        driver.answerBox();
        QTest::keyClick(&d, Qt::Key_Return);
        QCOMPARE(driver.boxes.value(0).text, QString("E' disconnesso"));
    }

    void connectWithAStickAlreadyConnectedSaysSoAndRunsNothing()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        QVERIFY(mountedStick(sim));
        UsbDialog d(nullptr);
        QVERIFY(d.connected);
        QVERIFY(d.findChild<InfoBar*>()->usb());
        const int logged = commandLog(root).size();
        Clock::clearWaits();
        ModalDriver driver;
        driver.answerBox();
        touch(&d, "Connetti");
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].title, QString("Usb Device"));
        QCOMPARE(driver.boxes[0].text, QString("E' connesso"));
        QCOMPARE(commandLog(root).size(), logged);
        QCOMPARE(sleeps(), QString());
    }

    void connectTakesOneSecondThenNineHalfSecondStepsAndLightsTheUsbMark()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        QVERIFY(sim.stickIn());
        UsbDialog d(nullptr);
        QVERIFY(!d.connected);
        QVERIFY(!d.findChild<InfoBar*>()->usb());
        Clock::clearWaits();
        ModalDriver driver;
        driver.answerBox(QMessageBox::Ok);
        touch(&d, "Connetti");
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].text, QString("Inserisci Usb Device."));
        QCOMPARE(sleeps(), QString("sleep 1000000 x1, usleep 500000 x9"));
        QVERIFY(d.connected);
        QVERIFY(d.findChild<InfoBar*>()->usb());
        QVERIFY(commandLog(root).contains("mountusb.sh"));
    }

    void connectCancelledRunsNothing()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        QVERIFY(sim.stickIn());
        UsbDialog d(nullptr);
        Clock::clearWaits();
        ModalDriver driver;
        driver.answerBox(QMessageBox::Cancel);
        touch(&d, "Connetti");
        QVERIFY(!commandLog(root).contains("mountusb.sh"));
        QCOMPARE(sleeps(), QString());
        QVERIFY(!d.connected);
    }

    void connectWithoutADeviceNodeSaysDisconnected()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        UsbDialog d(nullptr);
        Clock::clearWaits();
        ModalDriver driver;
        driver.answerBox(QMessageBox::Ok);
        driver.answerBox();
        touch(&d, "Connetti");
        QCOMPARE(driver.boxes.size(), 2);
        QCOMPARE(driver.boxes[1].text, QString("E' disconnesso"));
        QCOMPARE(sleeps(), QString("sleep 1000000 x1"));
        QVERIFY(!commandLog(root).contains("mountusb.sh"));
        QVERIFY(!d.connected);
    }

    void stickThatFailsToMountLeavesNoMarkAndNoMessage()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        QVERIFY(sim.stickIn());
        QVERIFY(script(root, "/usr/bin/mountusb.sh", "echo 'mount: wrong fs type' >&2\nexit 32"));
        UsbDialog d(nullptr);
        ModalDriver driver;
        driver.answerBox(QMessageBox::Ok);
        touch(&d, "Connetti");
        QCOMPARE(driver.boxes.size(), 1);
        QVERIFY(!d.connected);
        QVERIFY(!d.findChild<InfoBar*>()->usb());
    }

    void disconnectTakesNineOneSecondStepsAndPutsTheMarkOut()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        QVERIFY(mountedStick(sim));
        UsbDialog d(nullptr);
        QVERIFY(d.connected);
        Clock::clearWaits();
        ModalDriver driver;
        touch(&d, "Disconnetti");
        QVERIFY(driver.boxes.isEmpty());
        QCOMPARE(sleeps(), QString("sleep 1000000 x9"));
        QVERIFY(!d.connected);
        QVERIFY(!d.findChild<InfoBar*>()->usb());
        QVERIFY(commandLog(root).contains("umountusb.sh"));
    }

    void disconnectWithoutAStickSaysDisconnectedAndRunsNothing()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        UsbDialog d(nullptr);
        Clock::clearWaits();
        ModalDriver driver;
        driver.answerBox();
        touch(&d, "Disconnetti");
        QCOMPARE(driver.boxes.value(0).text, QString("E' disconnesso"));
        QVERIFY(!commandLog(root).contains("umountusb.sh"));
        QCOMPARE(sleeps(), QString());
    }

    void copyFromOnAStickWithoutKrm510dataNeverEnablesConferma()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        QVERIFY(mountedStick(sim));
        QVERIFY(makeDirs(sim.stickPath(), {"foto", "musica/2024", "krm510data_old"}));
        DialogCopyFrom d(nullptr);
        settle();
        QCOMPARE(d.objectName(), QString("Copy From"));
        QCOMPARE(d.findChild<InfoBar*>()->title(), QString("Copia Da..."));
        QCOMPARE(d.findChild<QLabel*>("caption")->text(), QString("Selezionare la sorgente"));
        QCOMPARE(rows(&d), QStringList({"foto", "krm510data_old", "musica"}));
        for (const QString& row : rows(&d)) {
            pick(&d, row);
            QVERIFY(!button(&d, "Conferma")->isEnabled());
        }
        pick(&d, "musica");
        touch(&d, "Apri");
        QCOMPARE(rows(&d), QStringList({"2024"}));
        QVERIFY(!button(&d, "Conferma")->isEnabled());
        QVERIFY(button(&d, "Indietro")->isEnabled());
    }

    void copyFromConfirmsKrm510dataInAnyCaseAndDoesNotEnterIt()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        QVERIFY(mountedStick(sim));
        QVERIFY(makeDirs(sim.stickPath(), {"backup/KRM510Data/datapanel", "altro"}));
        DialogCopyFrom d(nullptr);
        settle();
        pick(&d, "backup");
        QVERIFY(!button(&d, "Conferma")->isEnabled());
        touch(&d, "Apri");
        QCOMPARE(rows(&d), QStringList({"KRM510Data"}));
        QVERIFY(button(&d, "Conferma")->isEnabled());
        touch(&d, "Apri");
        QCOMPARE(rows(&d), QStringList({"KRM510Data"})); // still in "backup"
        QVERIFY(QTest::qWaitForWindowExposed(&d));
        const QString faults = shotFaults(&d, "usb-copy-from");
        QVERIFY2(faults.isEmpty(), qPrintable(faults));
    }

    void backDirAtTheBaseStaysThere()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        QVERIFY(mountedStick(sim));
        QVERIFY(makeDirs(sim.stickPath(), {"a/b"}));
        DialogCopyTo d(nullptr);
        settle();
        QVERIFY(!button(&d, "Indietro")->isEnabled());
        d.backDir();
        QCOMPARE(rows(&d), QStringList({"a"}));
        touch(&d, "Apri");
        QCOMPARE(rows(&d), QStringList({"b"}));
        touch(&d, "Indietro");
        QCOMPARE(rows(&d), QStringList({"a"}));
        QVERIFY(!button(&d, "Indietro")->isEnabled());
        d.backDir();
        d.backDir();
        QCOMPARE(rows(&d), QStringList({"a"}));
    }

    void folderWalkNeverLeavesTheStick()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        QVERIFY(mountedStick(sim));
        QVERIFY(makeDirs(sim.stickPath(), {"dentro"}));
        QVERIFY(QFile::link(root.path("/krm510data"), sim.stickPath() + "/fuori"));
        DialogCopyTo d(nullptr);
        settle();
        QCOMPARE(rows(&d), QStringList({"dentro", "fuori"}));
        pick(&d, "fuori");
        touch(&d, "Apri");
        QCOMPARE(rows(&d), QStringList({"dentro", "fuori"}));
        QVERIFY(!button(&d, "Indietro")->isEnabled());
    }

    void copyToConfirmsWhereverTheOperatorStands()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        QVERIFY(mountedStick(sim));
        DialogCopyTo d(nullptr);
        settle();
        QCOMPARE(d.objectName(), QString("Copy To"));
        QCOMPARE(d.findChild<InfoBar*>()->title(), QString("Copia In..."));
        QCOMPARE(d.findChild<QLabel*>("caption")->text(), QString("Selezionare la destinazione"));
        QVERIFY(rows(&d).isEmpty());
        QVERIFY(!button(&d, "Apri")->isEnabled());
        QVERIFY(button(&d, "Conferma")->isEnabled());
    }

    void copyToRemovesTheFormerKrm510dataFirst()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        QVERIFY(mountedStick(sim));
        QVERIFY(fillData(root));
        QVERIFY(makeDirs(sim.stickPath(), {"krm510data/datapanel/vecchio", "krm510data/altro"}));
        DialogCopyTo d(nullptr);
        settle();
        ModalDriver driver;
        driver.answerBox();
        driver.answerBox();
        touch(&d, "Conferma");
        QCOMPARE(driver.boxes.size(), 2);
        QCOMPARE(driver.boxes[0].title, QString("Copia DataBase"));
        QCOMPARE(driver.boxes[0].text, QString("Terminato"));
        QCOMPARE(driver.boxes[1].text,
                 QString("Disconnettere la chiavetta USB prima di scollegarla."));
        QVERIFY(!QFileInfo::exists(sim.stickPath() + "/krm510data/altro"));
        QVERIFY(!QFileInfo::exists(sim.stickPath() + "/krm510data/datapanel/vecchio"));
        QCOMPARE(contents(sim.stickPath() + "/krm510data"), contents(root.path("/krm510data")));
    }

    void cancelStopsTheCopyBeforeTheNextDirectory()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        QVERIFY(mountedStick(sim));
        QVERIFY(fillData(root));
        DialogCopyTo d(nullptr);
        settle();
        CancelAt cancel(3); // while the second directory is on its way
        ModalDriver driver;
        driver.answerBox();
        driver.answerBox();
        Clock::clearWaits();
        touch(&d, "Conferma");
        QCOMPARE(driver.boxes.size(), 2);
        QStringList copied =
            QDir(sim.stickPath() + "/krm510data").entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        QCOMPARE(copied, QStringList({"datacompany", "datapanel"}));
        QCOMPARE(sleeps(), QString("sleep 1000000 x2"));
    }

    // Every file of the five directories goes to a stick folder whose name
    // holds blanks, quotes and a semicolon, and comes back identical.
    void copyBothWaysKeepsEveryFileByteForByte()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        QVERIFY(mountedStick(sim));
        QVERIFY(fillData(root));
        QVERIFY(makeDirs(sim.stickPath(), {strangeName}));
        const QMap<QString, QByteArray> before = contents(root.path("/krm510data"));
        QCOMPARE(before.size(), 6);

        UsbDialog usb(nullptr);
        QVERIFY(usb.connected);
        ModalDriver driver;
        driver.onNext([](QWidget* w) {
            QVERIFY(qobject_cast<DialogCopyTo*>(w) != nullptr);
            settle();
            pick(w, strangeName);
            touch(w, "Apri");
            QVERIFY(rows(w).isEmpty());
            confirmThenExit(w);
        });
        driver.answerBox();
        driver.answerBox();
        touch(&usb, "Copia In");
        QCOMPARE(driver.pending(), 0);
        const QString copy = sim.stickPath() + "/" + strangeName + "/krm510data";
        QCOMPARE(contents(copy), before);

        QVERIFY(QDir(root.path("/krm510data")).removeRecursively());
        QVERIFY(root.mkdir("/krm510data"));
        driver.onNext([](QWidget* w) {
            QVERIFY(qobject_cast<DialogCopyFrom*>(w) != nullptr);
            settle();
            pick(w, strangeName);
            touch(w, "Apri");
            pick(w, "krm510data");
            QVERIFY(QTest::qWaitForWindowExposed(w));
            const QString faults = shotFaults(w, "usb-copy-from-krm510data");
            QVERIFY2(faults.isEmpty(), qPrintable(faults));
            confirmThenExit(w);
        });
        driver.answerBox();
        driver.answerBox();
        touch(&usb, "Copia Da");
        QCOMPARE(driver.pending(), 0);
        QCOMPARE(contents(root.path("/krm510data")), before);

        // the name ran nothing
        QDirIterator all(root.root(), QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden,
                         QDirIterator::Subdirectories);
        while (all.hasNext())
            QVERIFY2(all.next().section('/', -1) != "pwned", "a folder name ran a command");
        QVERIFY(!QFileInfo::exists(QDir::currentPath() + "/pwned"));
    }

    void copyToScreenInsideAStickFolder()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        QVERIFY(mountedStick(sim));
        QVERIFY(makeDirs(sim.stickPath(), {"Impianti 2024/Rossi", "Impianti 2024/Bianchi",
                                           "Impianti 2024/Verdi", "Documenti"}));
        DialogCopyTo d(nullptr);
        settle();
        pick(&d, "Impianti 2024");
        touch(&d, "Apri");
        QCOMPARE(rows(&d), QStringList({"Bianchi", "Rossi", "Verdi"}));
        QCOMPARE(d.findChild<QLabel*>("folder")->text(), QString("/Impianti 2024"));
        QVERIFY(QTest::qWaitForWindowExposed(&d));
        const QString faults = shotFaults(&d, "usb-copy-to");
        QVERIFY2(faults.isEmpty(), qPrintable(faults));
    }

    void fileListShowsFilesWithBothWordsInAnyCaseOnly()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        QVERIFY(mountedStick(sim));
        const QString stick = sim.stickPath();
        for (const char* name : {"KRM510_2.1.UPG", "nuovo-upg-krm510.tar", "krm510.tar",
                                 "firmware.upg", "leggimi.txt"})
            QVERIFY(QFile(stick + "/" + name).open(QIODevice::WriteOnly));
        QVERIFY(makeDirs(stick, {"krm510upg.d", "vecchi/krm510_1.0.upg"}));
        QVERIFY(QFile(stick + "/vecchi/krm510_0.9.upg").open(QIODevice::WriteOnly));
        DialogFileUpg d(nullptr);
        QCOMPARE(d.objectName(), QString("Dialog File UPG"));
        QCOMPARE(d.findChild<InfoBar*>()->title(), QString("Elenco file UPG"));
        QCOMPARE(rows(&d), QStringList({"KRM510_2.1.UPG", "nuovo-upg-krm510.tar"}));
        QVERIFY(!button(&d, "Conferma")->isEnabled());
        pick(&d, "nuovo-upg-krm510.tar");
        QVERIFY(button(&d, "Conferma")->isEnabled());
        QCOMPARE(d._fileName, QString("nuovo-upg-krm510.tar"));
        QVERIFY(QTest::qWaitForWindowExposed(&d));
        const QString faults = shotFaults(&d, "usb-upgrade-files");
        QVERIFY2(faults.isEmpty(), qPrintable(faults));
    }

    void upgradeWithoutAStickDoesNotOpenTheFileList()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        QVERIFY(upgradeScript(root));
        UsbDialog d(nullptr);
        ModalDriver driver;
        driver.answerBox();
        touch(&d, "Aggiornamento");
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].text, QString("E' disconnesso"));
        QVERIFY(!root.exists("/upgrade.log"));
    }

    void exitInTheFileListChangesNothing()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        QVERIFY(mountedStick(sim));
        QVERIFY(upgradeScript(root));
        QVERIFY(QFile(sim.stickPath() + "/krm510.upg").open(QIODevice::WriteOnly));
        UsbDialog d(nullptr);
        ModalDriver driver;
        driver.onNext([](QWidget* w) {
            QVERIFY(qobject_cast<DialogFileUpg*>(w) != nullptr);
            pick(w, "krm510.upg");
            touch(w, "Exit");
        });
        touch(&d, "Aggiornamento");
        QCOMPARE(driver.pending(), 0);
        QVERIFY(driver.boxes.isEmpty());
        QVERIFY(!root.exists("/upgrade.log"));
        QCOMPARE(sim.field("power", "writes"), QByteArray("0"));
    }

    void upgradeWithoutAnImageStillAsksForARestart()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        QVERIFY(mountedStick(sim));
        QVERIFY(upgradeScript(root));
        QVERIFY(makeDirs(sim.stickPath(), {"una cartella"}));
        const QString package = "krm510 'nuovo'; touch pwned.upg";
        QVERIFY(QFile(sim.stickPath() + "/" + package).open(QIODevice::WriteOnly));
        UsbDialog d(nullptr);
        ModalDriver driver;
        driver.onNext([&package](QWidget* w) {
            pick(w, package);
            touch(w, "Conferma");
        });
        driver.answerBox();
        touch(&d, "Aggiornamento");
        QCOMPARE(driver.pending(), 0);
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].title, QString("KRM510 Aggiornamento"));
        QCOMPARE(driver.boxes[0].text, QString("Riavviare KRM510"));
        QCOMPARE(root.read("/upgrade.log"),
                 (root.path("/media/sda1") + "/" + package + "\n").toLocal8Bit());
        QCOMPARE(sim.field("power", "writes"), QByteArray("0")); // the board left alone
        QVERIFY(sim.flashRows().isEmpty());
    }

    void upgradeWithAnImageFlashesTheBoardAndRemovesTheImage()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(stickWithFirmware(root, sim));
        UsbDialog d(nullptr);
        ModalDriver driver;
        driver.onNext([](QWidget* w) { chooseUpgradeFile(w, "krm510-3.0.upg"); });
        driver.answerBox();
        touch(&d, "Aggiornamento");
        QCOMPARE(driver.pending(), 0);
        QCOMPARE(driver.boxes.size(), 1);
        QCOMPARE(driver.boxes[0].text, QString("Riavviare KRM510"));
        QCOMPARE(sim.flashRows(), QList<unsigned>({0x0000, 0x0800}));
        QVERIFY(!root.exists("/home/ORVIAp.hex"));
        QCOMPARE(sim.powerLineLevel(), 0); // the board is powered again
    }

    void failedFlashIsToldThenTheRestartBoxAndTheBoardIsPoweredAgain()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.command("loader version 1")); // a loader too old: the job gives up
        QVERIFY(stickWithFirmware(root, sim));
        UsbDialog d(nullptr);
        ModalDriver driver;
        driver.onNext([](QWidget* w) { chooseUpgradeFile(w, "krm510-3.0.upg"); });
        driver.answerBox();
        driver.answerBox();
        touch(&d, "Aggiornamento");
        QCOMPARE(driver.pending(), 0);
        QCOMPARE(driver.boxes.size(), 2);
        QCOMPARE(driver.boxes[0].text, QString("Aggiornamento firmware non riuscito."));
        QCOMPARE(driver.boxes[1].text, QString("Riavviare KRM510"));
        QVERIFY(sim.flashRows().isEmpty());
        QVERIFY(!root.exists("/home/ORVIAp.hex"));
        QCOMPARE(sim.powerLineLevel(), 0);
    }

    void menuUsbButtonAndReturnOpenTheUsbScreen()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        Orvia menu;
        QVERIFY(QTest::qWaitForWindowActive(&menu));
        ModalDriver driver;
        QStringList opened;
        driver.onNext([&opened](QWidget* w) {
            opened << w->objectName();
            touch(w, "Exit");
        });
        driver.onNext([&opened](QWidget* w) {
            opened << w->objectName();
            touch(w, "Exit");
        });
        QTest::mouseClick(button(&menu, "USB"), Qt::LeftButton);
        menu.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&menu));
        button(&menu, "USB")->setFocus();
        QTest::keyClick(&menu, Qt::Key_Return);
        QCOMPARE(driver.pending(), 0);
        QCOMPARE(opened, QStringList({"UsbDialog", "UsbDialog"}));
    }

    void italianCatalogueShowsCopiaInLowerCase()
    {
        TestRoot root(0.01);
        SimInstrument sim(root);
        QVERIFY(root.installCatalogues());
        QTranslator translator;
        QVERIFY(loadTranslator(&translator, LANG_IT));
        QCoreApplication::installTranslator(&translator);
        {
            UsbDialog usb(nullptr);
            QCOMPARE(button(&usb, "Copia In")->text(), QString("Copia in..."));
            DialogCopyTo to(nullptr);
            QCOMPARE(to.findChild<InfoBar*>()->title(), QString("Copia in..."));
        }
        QCoreApplication::removeTranslator(&translator);
    }
};

QTEST_MAIN(TestUsbDialog)
#include "tst_usbdialog.moc"
