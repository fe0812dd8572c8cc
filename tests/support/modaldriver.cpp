#include "support/modaldriver.h"

#include "support/lookcheck.h"
#include "toolkit/embkeyboard.h"
#include "toolkit/titlestrip.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QProgressDialog>
#include <QPushButton>
#include <QtTest>

ModalDriver::ModalDriver() : screen(QApplication::activeModalWidget())
{
    connect(&timer, &QTimer::timeout, this, &ModalDriver::poll);
    timer.start(5);
}

ModalDriver::~ModalDriver() = default;

void ModalDriver::poll()
{
    if (actions.isEmpty())
        return;
    QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr || modal == last || modal == screen || !modal->isVisible())
        return;
    // a progress dialog is nobody's to answer: wait for what opens over it
    if (qobject_cast<QProgressDialog*>(modal) != nullptr)
        return;
    last = modal;
    std::function<void(QWidget*)> action = actions.takeFirst();
    // the action may open nested loops; keep the poll going meanwhile
    action(modal);
}

void ModalDriver::onNext(std::function<void(QWidget*)> action)
{
    actions.append(action);
}

std::function<void(QWidget*)> ModalDriver::windowAction(const char* className,
                                                        std::function<void(QWidget*)> action)
{
    return [this, className, action](QWidget* w) {
        if (!w->inherits(className)) {
            actions.prepend(windowAction(className, action)); // still the next one
            return;
        }
        action(w);
    };
}

void ModalDriver::onWindow(const char* className, std::function<void(QWidget*)> action)
{
    actions.append(windowAction(className, action));
}

void ModalDriver::answerBox(QMessageBox::StandardButton button)
{
    onNext([this, button](QWidget* w) {
        QMessageBox* box = qobject_cast<QMessageBox*>(w);
        if (box == nullptr) {
            boxes.append(Box{QString("<not a message box: %1>").arg(w->metaObject()->className()),
                             w->windowTitle(), QString(), QMessageBox::NoIcon});
            if (QDialog* d = qobject_cast<QDialog*>(w))
                d->reject();
            return;
        }
        Box seen{box->windowTitle(), box->text(), box->informativeText(), box->icon()};
        if (const TitleStrip* strip = TitleStrip::of(box))
            seen.drawnTitle = strip->text();
        seen.legibility = legibilityFaults(box);
        boxes.append(seen);
        QAbstractButton* b = box->button(button);
        if (b != nullptr)
            b->click();
        else
            box->reject();
    });
}

void ModalDriver::touchKey(EmbKeyboard* keyboard, const QString& objectName)
{
    QPushButton* key = keyboard->findChild<QPushButton*>(objectName);
    if (key == nullptr) {
        qWarning("no key %s", qPrintable(objectName));
        return;
    }
    QPointer<QPushButton> guard(key);
    QTest::mousePress(key, Qt::LeftButton);
    if (guard)
        QTest::mouseRelease(key, Qt::LeftButton);
}

// The letter key that carries a symbol on the key pad layer.
static QString padKeyFor(QChar symbol)
{
    for (char c = 'A'; c <= 'Z'; c++)
        if (EmbKeyboard::alphaToNumber(QLatin1Char(c)) == symbol)
            return QString(QLatin1Char(c));
    return QString();
}

void ModalDriver::type(EmbKeyboard* keyboard, const QString& text)
{
    QPushButton* layerKey = keyboard->findChild<QPushButton*>(".?123");
    auto padShown = [&] { return layerKey != nullptr && layerKey->text() == "ABC"; };
    for (QChar c : text) {
        if (c == ' ') {
            touchKey(keyboard, " ");
        } else if (c.isLetter() && c.unicode() < 0x80) {
            if (padShown())
                touchKey(keyboard, ".?123");
            if (keyboard->isCapsOn() != c.isUpper())
                touchKey(keyboard, "CAPS");
            touchKey(keyboard, QString(c.toUpper()));
        } else {
            QString key = padKeyFor(c);
            if (key.isEmpty()) {
                qWarning("no key gives %s", qPrintable(QString(c)));
                continue;
            }
            if (!padShown())
                touchKey(keyboard, ".?123");
            touchKey(keyboard, key);
        }
    }
}

void ModalDriver::typeOnKeyboard(const QString& text, bool accept)
{
    onNext([this, text, accept](QWidget* w) {
        EmbKeyboard* keyboard = qobject_cast<EmbKeyboard*>(w);
        if (keyboard == nullptr) {
            keyboardTitles.append(
                QString("<not a keyboard: %1>").arg(w->metaObject()->className()));
            if (QDialog* d = qobject_cast<QDialog*>(w))
                d->reject();
            return;
        }
        keyboardTitles.append(keyboard->windowTitle());
        keyboardInitial.append(keyboard->editor()->text());
        // clear what the field handed over: the cursor stands at its end
        int length = keyboard->editor()->text().length();
        keyboard->editor()->setCursorPosition(length);
        for (int i = 0; i < length; i++)
            touchKey(keyboard, "BACK");
        type(keyboard, text);
        touchKey(keyboard, accept ? "ENTER" : "ESC");
    });
}
