#ifndef KRM_DEVICE_KEYFRONT_H
#define KRM_DEVICE_KEYFRONT_H

#include <QObject>

class QWidget;

// Where the six hardware keys go. They belong to the window in front: an
// open popup (a combo's list, a menu), else the top modal window, else the
// active window. A key poller of any other window stays quiet, so that no key
// reaches a screen under a dialog.
//
// A dialog with no poller of its own (the save form, the ageing dialog, the
// number dialog, the message boxes, ...) gets one when it is shown, with the
// plain walk: Up and Down move the focus along its buttons and fields, Return
// on a field opens it as a touch does, on a button presses the focused or
// default button, and Escape rejects.
//
// On every window, a focused list is entered with Return, walked with Up and
// Down and left with Return, which touches the row it stands on (Escape
// leaves it as it is); Return on a focused combo opens its list. Return on a
// button with a menu goes to the screen first, as every Return does (the
// measuring screens run their own action on it); when the screen leaves it,
// the menu opens where the old keyboard pressed the button with a Space,
// walked as a popup: Up, Down and Return choose as on the touch screen and
// Escape closes. The focus then stays on the list, combo or button, in the
// screen's own chain.
class KeyFront : public QObject
{
public:
    // Watches the windows being shown; done once, by the first key poller.
    static void install();
    // True when the poller's window is the one in front (or none is): the
    // owner of an open popup, else the top modal window, else the active one.
    // A window that has been closed is never in front.
    static bool serves(const QWidget* poller);
    // Serves a key where neither the screen nor the toolkit would: a popup,
    // a list or combo, a field of a dialog with the plain walk. True when done.
    static bool take(QWidget* poller, int key, bool plainWalk);
    // A Return the screen left: opens the menu of the focused button without
    // blocking the keys. False when the focus is no button with a menu.
    static bool openMenu(QWidget* poller);

protected:
    bool eventFilter(QObject* obj, QEvent* event) override;

private:
    explicit KeyFront(QObject* parent);
};

#endif
