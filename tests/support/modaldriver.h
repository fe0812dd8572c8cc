#ifndef KRM_TESTS_MODALDRIVER_H
#define KRM_TESTS_MODALDRIVER_H

#include <QList>
#include <QMessageBox>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <functional>

class EmbKeyboard;

// Meets the modal windows a screen opens, as the operator would: message
// boxes are read (title, text, informative text, icon) and answered with a
// button; the on-screen keyboard is typed on by touching its keys.
// Actions are queued in the order the windows are expected; each runs on the
// next modal window that is not the one it already handled.
class ModalDriver : public QObject
{
    Q_OBJECT
public:
    struct Box {
        QString title;
        QString text;
        QString informative;
        QMessageBox::Icon icon;
        // the title as the program draws it on the box, and what is hard to
        // read on it (see lookcheck.h)
        QString drawnTitle = QString();
        QStringList legibility = QStringList();
    };

    ModalDriver();
    ~ModalDriver() override;

    // Expect a message box, record it and press the button.
    void answerBox(QMessageBox::StandardButton button = QMessageBox::Ok);
    // Expect the on-screen keyboard: record its title, clear the line, type
    // the text key by key and touch ENTER (or ESC when accept is false).
    void typeOnKeyboard(const QString& text, bool accept = true);
    // Expect any modal window and run the action on it.
    void onNext(std::function<void(QWidget*)> action);
    // Expect a modal window of the class named and run the action on it; any
    // other modal window met first (a progress dialog, the screen under a
    // closed dialog) is passed over and the action waits on.
    void onWindow(const char* className, std::function<void(QWidget*)> action);

    // Touches keys of an open keyboard; usable from an action too.
    static void touchKey(EmbKeyboard* keyboard, const QString& objectName);
    static void type(EmbKeyboard* keyboard, const QString& text);

    int pending() const { return actions.size(); }
    QList<Box> boxes;
    QStringList keyboardTitles;
    QStringList keyboardInitial;

private slots:
    void poll();

private:
    std::function<void(QWidget*)> windowAction(const char* className,
                                               std::function<void(QWidget*)> action);
    QList<std::function<void(QWidget*)>> actions;
    QPointer<QWidget> last; // a deleted window frees its address for the next one
    // The screen under test, when it was already the modal window as the
    // driver started: it comes back on top between two boxes, and is not
    // one of the windows the driver is to answer.
    QPointer<QWidget> screen;
    QTimer timer;
};

#endif
