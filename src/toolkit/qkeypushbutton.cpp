#include "toolkit/qkeypushbutton.h"

#include "toolkit/embkeyboard.h"

#include <QCoreApplication>
#include <QKeyEvent>

static const char keyBorder[] = "border: 1px solid #8f8f91;border-radius:5px;";
static const char keyPressed[] = "background:lightblue;";
static const char keyResting[] = "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, "
                                 "stop: 0 #f6f7fa, stop: 1 #dadbde);";

QKeyPushButton::QKeyPushButton(QWidget* parent) : QPushButton(parent), keyboard(parent)
{
    setStyleSheet(QString(keyBorder) + keyResting);
    connect(this, &QKeyPushButton::pressedKey, this, &QKeyPushButton::getKeyPress);
}

void QKeyPushButton::mousePressEvent(QMouseEvent*)
{
    EmbKeyboard* board = qobject_cast<EmbKeyboard*>(keyboard);
    bool caps = board != nullptr && board->isCapsOn();
    setStyleSheet(QString(keyBorder) + keyPressed);
    repaint();
    QCoreApplication::processEvents();
    emit pressedKey(caps);
}

void QKeyPushButton::mouseReleaseEvent(QMouseEvent*)
{
    setStyleSheet(QString(keyBorder) + keyResting);
}

void QKeyPushButton::getKeyPress(bool caps)
{
    EmbKeyboard* board = qobject_cast<EmbKeyboard*>(keyboard);
    if (board == nullptr)
        return;
    QString label = text();
    QString name = objectName();
    bool special = false;
    if (name.length() != 1) {
        for (const QString& word : {EmbKeyboard::tr("BACK"), EmbKeyboard::tr("ENTER"),
                                    EmbKeyboard::tr("DEL"), EmbKeyboard::tr(".?123"),
                                    EmbKeyboard::tr("CAPS"), EmbKeyboard::tr("LEFT"),
                                    EmbKeyboard::tr("RIGHT"), EmbKeyboard::tr("ESC")})
            if (name.contains(word, Qt::CaseInsensitive))
                special = true;
    }
    if (label.contains(EmbKeyboard::tr("ABC"), Qt::CaseInsensitive))
        special = true;

    if (special) {
        QString sent = label.contains(EmbKeyboard::tr("ABC"), Qt::CaseInsensitive) ? label : name;
        QKeyEvent event(QEvent::KeyPress, 0, Qt::NoModifier, sent);
        board->receiptChildKey(&event, false);
    } else {
        QChar c = label.isEmpty() ? QChar(' ') : label.at(0);
        if (c.unicode() > 0x7f)
            c = QChar(' ');
        if (!caps) {
            if (c.isUpper())
                c = c.toLower();
            QKeyEvent event(QEvent::KeyPress, c.unicode(), Qt::NoModifier, QString(c));
            board->receiptChildKey(&event, false);
        } else {
            QKeyEvent event(QEvent::KeyPress, c.unicode(), Qt::ShiftModifier, label);
            board->receiptChildKey(&event, false);
        }
    }
    QCoreApplication::processEvents();
}
