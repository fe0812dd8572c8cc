// The hardware keys against the simulated key lines: one press per tick,
// up the parent chain, the lower line first, and the Space behind a Return
// that nobody took.
#include "device/keyboard.h"
#include "support/siminstrument.h"
#include "support/testroot.h"

#include <QDialog>
#include <QKeyEvent>
#include <QPushButton>
#include <QtTest>

namespace
{

// A widget that notes every key press and takes it or lets it climb on.
class KeyRecorder : public QWidget
{
public:
    explicit KeyRecorder(bool accepts, QWidget* parent = nullptr)
        : QWidget(parent), accepts(accepts)
    {
    }
    QList<int> keys;
    bool accepts;

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        keys << event->key();
        QCOMPARE(event->modifiers(), Qt::NoModifier);
        QVERIFY(event->text().isEmpty());
        QVERIFY(!event->isAutoRepeat());
        if (accepts)
            event->accept();
        else
            event->ignore();
    }
};

// A dialog that notes the keys it is given before it acts on them.
class DialogRecorder : public QDialog
{
public:
    explicit DialogRecorder(QWidget* parent) : QDialog(parent) {}
    QList<int> keys;

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        keys << event->key();
        QDialog::keyPressEvent(event);
    }
};

} // namespace

class TestKeyboard : public QObject
{
    Q_OBJECT

private slots:
    void keyPressClimbsTheParentChain()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        KeyRecorder top(true);
        KeyRecorder middle(false, &top);
        GpioKeyboard keyboard(&middle);
        QCOMPARE(keyboard.objectName(), QString("GPIOKeyboard"));
        QVERIFY(sim.pressKey("escape"));
        QTRY_VERIFY(!top.keys.isEmpty());
        QVERIFY(sim.releaseKey("escape"));
        QCOMPARE(top.keys.first(), int(Qt::Key_Escape));
        QCOMPARE(middle.keys.first(), int(Qt::Key_Escape));
    }

    void eachLineGivesItsKey()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        KeyRecorder dialog(true);
        GpioKeyboard keyboard(&dialog);
        const char* names[] = {"up", "down", "escape"};
        const int keys[] = {Qt::Key_Up, Qt::Key_Down, Qt::Key_Escape};
        for (int i = 0; i < 3; i++) {
            dialog.keys.clear();
            QVERIFY(sim.pressKey(names[i]));
            QTRY_VERIFY(!dialog.keys.isEmpty());
            QVERIFY(sim.releaseKey(names[i]));
            QCOMPARE(dialog.keys.first(), keys[i]);
        }
    }

    void heldKeyRepeatsEveryTick()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        KeyRecorder dialog(true);
        GpioKeyboard keyboard(&dialog);
        QVERIFY(sim.pressKey("down"));
        QTRY_VERIFY(dialog.keys.size() >= 3);
        QVERIFY(sim.releaseKey("down"));
        for (int key : dialog.keys)
            QCOMPARE(key, int(Qt::Key_Down));
    }

    void twoKeysHeldTheLowerLineWins()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        KeyRecorder dialog(true);
        GpioKeyboard keyboard(&dialog);
        QVERIFY(sim.pressKey("return"));
        QVERIFY(sim.pressKey("escape"));
        dialog.keys.clear();
        QTRY_VERIFY(dialog.keys.size() >= 3);
        // one served per tick: the first tick may still have seen Return alone
        dialog.keys.removeAll(int(Qt::Key_Return));
        QVERIFY(dialog.keys.size() >= 2);
        for (int key : dialog.keys)
            QCOMPARE(key, int(Qt::Key_Escape));
        int seen = dialog.keys.size();
        QTRY_VERIFY(dialog.keys.size() >= seen + 3);
        QVERIFY(!dialog.keys.contains(int(Qt::Key_Return)));
    }

    void returnTakenByTheDialogSendsNoSpace()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        KeyRecorder dialog(true);
        GpioKeyboard keyboard(&dialog);
        QVERIFY(sim.pressKey("return"));
        QTRY_VERIFY(dialog.keys.size() >= 3);
        QVERIFY(sim.releaseKey("return"));
        QVERIFY(!dialog.keys.contains(int(Qt::Key_Space)));
    }

    void returnThatNobodyTakesIsFollowedBySpace()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        KeyRecorder dialog(false);
        GpioKeyboard keyboard(&dialog);
        QVERIFY(sim.pressKey("return"));
        QTRY_VERIFY(dialog.keys.size() >= 4);
        QVERIFY(sim.releaseKey("return"));
        QCOMPARE(dialog.keys.mid(0, 4),
                 (QList<int>{Qt::Key_Return, Qt::Key_Space, Qt::Key_Return, Qt::Key_Space}));
    }

    void unopenableKeyLineCountsAsAtRest()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.removeNode("/dev/gpio/93"));
        KeyRecorder dialog(true);
        GpioKeyboard keyboard(&dialog);
        QVERIFY(sim.pressKey("escape"));
        QTest::qWait(200);
        QVERIFY(dialog.keys.isEmpty());
        QVERIFY(sim.pressKey("up"));
        QTRY_VERIFY(!dialog.keys.isEmpty());
        QCOMPARE(dialog.keys.first(), int(Qt::Key_Up));
    }

    void keyLinesOpenOnceForAllKeyboards()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QCOMPARE(isKeyOpened(), 0);
        KeyRecorder first(true), second(true);
        GpioKeyboard one(&first);
        QCOMPARE(isKeyOpened(), 1);
        // the lines stay open: a node taken away later changes nothing
        QVERIFY(sim.removeNode("/dev/gpio/86"));
        GpioKeyboard two(&second);
        QVERIFY(sim.pressKey("up"));
        QTRY_VERIFY(!first.keys.isEmpty() && !second.keys.isEmpty());
        QCOMPARE(first.keys.first(), int(Qt::Key_Up));
        QCOMPARE(second.keys.first(), int(Qt::Key_Up));
    }
    void keysReachOnlyTheWindowInFront_aPollerBehindAModalDialogStaysQuiet()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        KeyRecorder screen(true);
        GpioKeyboard keyboard(&screen);
        screen.show();
        // a dialog with no poller of its own gets one when it is shown
        QDialog dialog(&screen);
        QPushButton* first = new QPushButton("Uno", &dialog);
        first->setObjectName("Uno");
        QPushButton* second = new QPushButton("Due", &dialog);
        second->setObjectName("Due");
        second->move(0, 40);
        dialog.setModal(true);
        dialog.show();
        QVERIFY(dialog.findChild<GpioKeyboard*>() != nullptr);
        first->setFocus();
        QVERIFY(sim.tapKey("down")); // Down walks the dialog's buttons
        QCOMPARE(dialog.focusWidget(), second);
        QVERIFY(sim.tapKey("up"));
        QCOMPARE(dialog.focusWidget(), first);
        QVERIFY(sim.tapKey("escape")); // Escape rejects the dialog
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.result(), int(QDialog::Rejected));
        QVERIFY(screen.keys.isEmpty()); // none of them reached the screen behind
        QVERIFY(sim.tapKey("escape"));
        QCOMPARE(screen.keys, QList<int>({Qt::Key_Escape}));
    }
    void keysReachOnlyTheWindowInFront_aClosedDialogKeepsNoKeyFromTheScreen()
    {
        // A dialog rejected but not yet deleted keeps its poller, and after
        // it no window needs to be active: its poller then must not read the
        // lines beside the screen's, or it takes keys meant for the screen
        // (on a slow processor, every time its tick came first).
        TestRoot root(0.1);
        SimInstrument sim(root);
        KeyRecorder screen(true);
        GpioKeyboard keyboard(&screen);
        screen.show();
        DialogRecorder dialog(&screen);
        dialog.setModal(true);
        dialog.show();
        QVERIFY(sim.tapKey("escape"));
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.keys, QList<int>({Qt::Key_Escape}));
        dialog.keys.clear();
        // a key held for several ticks: every one of them reaches the screen
        QVERIFY(sim.pressKey("escape"));
        QTRY_VERIFY(screen.keys.size() >= 3);
        QVERIFY(sim.releaseKey("escape"));
        QCOMPARE(dialog.keys, QList<int>());
        for (int key : screen.keys)
            QCOMPARE(key, int(Qt::Key_Escape));
    }
};

QTEST_MAIN(TestKeyboard)
#include "tst_keyboard.moc"
