#include "device/keyfront.h"

#include "device/keyboard.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>

namespace
{

QPointer<KeyFront> installed;
// The list the keys walk now: entered by Return, left by Return or Escape.
QPointer<QAbstractItemView> enteredList;

// A finger on the point of a widget: press and release.
void touchAt(QWidget* widget, const QPoint& at)
{
    QPointer<QWidget> guard(widget);
    const QPointF global = widget->mapToGlobal(at);
    QMouseEvent press(QEvent::MouseButtonPress, at, global, Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &press);
    if (guard.isNull())
        return;
    QMouseEvent release(QEvent::MouseButtonRelease, at, global, Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &release);
}

void sendKey(QWidget* target, int key)
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QString(), false, 1);
    QCoreApplication::sendEvent(target, &press);
}

// The keys on an entered list: true when the key was the list's.
bool walkList(QAbstractItemView* list, int key)
{
    switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Down:
        sendKey(list, key); // the view moves its current row and selection
        return true;
    case Qt::Key_Return: {
        enteredList = nullptr;
        QModelIndex row = list->currentIndex();
        if (row.isValid()) {
            list->scrollTo(row);
            touchAt(list->viewport(), list->visualRect(row).center());
        }
        return true;
    }
    case Qt::Key_Escape:
        enteredList = nullptr;
        return true;
    default:
        enteredList = nullptr; // Tab and Backtab walk on from the list
        return false;
    }
}

bool enterList(QAbstractItemView* list)
{
    QAbstractItemModel* model = list->model();
    if (model == nullptr || model->rowCount(list->rootIndex()) == 0)
        return false;
    enteredList = list;
    if (!list->currentIndex().isValid())
        list->setCurrentIndex(model->index(0, 0, list->rootIndex()));
    return true;
}

} // namespace

KeyFront::KeyFront(QObject* parent) : QObject(parent) {}

void KeyFront::install()
{
    if (!installed.isNull() || qApp == nullptr)
        return;
    installed = new KeyFront(qApp);
    qApp->installEventFilter(installed);
}

bool KeyFront::serves(const QWidget* poller)
{
    // A closed window takes no key: a dialog that was shown and has closed,
    // but is not yet deleted, keeps its poller, and when no window is active
    // after it (the window behind is not always made active again) that
    // poller would read the lines with the screen's and take keys meant for
    // the screen. A window never shown yet is not closed.
    const QWidget* window = poller->window();
    if (window->isHidden() && window->testAttribute(Qt::WA_WState_ExplicitShowHide))
        return false;
    // a popup has no poller: the window it was opened from serves it
    QWidget* front = QApplication::activePopupWidget();
    if (front != nullptr)
        front = front->parentWidget() != nullptr ? front->parentWidget()->window() : nullptr;
    if (front == nullptr)
        front = QApplication::activeModalWidget();
    if (front == nullptr)
        front = QApplication::activeWindow();
    // with nothing in front every poller serves its own window
    return front == nullptr || front == window;
}

bool KeyFront::openMenu(QWidget* poller)
{
    QPushButton* button = qobject_cast<QPushButton*>(poller->window()->focusWidget());
    if (button == nullptr || button->menu() == nullptr || !button->isEnabled() ||
        !button->isVisible())
        return false;
    QMenu* menu = button->menu();
    for (QAction* action : menu->actions())
        if (action->isVisible() && action->isEnabled() && !action->isSeparator()) {
            menu->popup(button->mapToGlobal(QPoint(0, button->height())), action);
            menu->setActiveAction(action);
            return true;
        }
    return true; // a menu with nothing to choose: the press does nothing, as on touch
}

bool KeyFront::take(QWidget* poller, int key, bool plainWalk)
{
    if (QWidget* popup = QApplication::activePopupWidget()) {
        // the popup's own keys: rows, choice, Escape closes it
        sendKey(popup->focusWidget() != nullptr ? popup->focusWidget() : popup, key);
        return true;
    }
    QWidget* focus = poller->window()->focusWidget();
    if (enteredList != nullptr && enteredList != focus)
        enteredList = nullptr; // a touch took the focus elsewhere
    if (QAbstractItemView* list = qobject_cast<QAbstractItemView*>(focus)) {
        if (list == enteredList)
            return walkList(list, key);
        return key == Qt::Key_Return && enterList(list);
    }
    if (QComboBox* combo = qobject_cast<QComboBox*>(focus)) {
        if (key != Qt::Key_Return || combo->count() == 0)
            return false;
        combo->showPopup();
        return true;
    }
    if (!plainWalk || key != Qt::Key_Return)
        return false;
    if (qobject_cast<QLineEdit*>(focus) != nullptr) {
        touchAt(focus, focus->rect().center());
        return true;
    }
    // the focused button; with none the dialog presses its default one
    QAbstractButton* button = qobject_cast<QAbstractButton*>(focus);
    if (button == nullptr || !button->isEnabled())
        return false;
    button->click();
    return true;
}

bool KeyFront::eventFilter(QObject* obj, QEvent* event)
{
    if (event->type() == QEvent::Show) {
        QDialog* dialog = qobject_cast<QDialog*>(obj);
        if (dialog != nullptr && dialog->isWindow() &&
            dialog->findChild<GpioKeyboard*>() == nullptr)
            new GpioKeyboard(dialog, true);
    }
    return QObject::eventFilter(obj, event);
}
