#include "toolkit/embkeyboard.h"

#include "device/keyboard.h"
#include "toolkit/qkeypushbutton.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QVBoxLayout>

// Letter and symbol of the key pad layer, in pairs; the last three
// characters belong to no pair.
static const char keyPadPairs[] = "Q1W2E3R4T5Y6U7I8O9P0A-S+D*F/G.H,J;K:L@Z(X)C_V'B\"N<M>.?123";
static const int keyPadPairCount = 27;
static const int keyWidth = 26;
static const int keyHeight = 22;
static const int keyFontPixels = 14;

EmbKeyboard::EmbKeyboard(QWidget* parent, QString title, QString initial)
    : QDialog(parent), capsOn(true), keyPadOn(false), escKey(nullptr), gpioKeyboard(nullptr),
      lineEdit(nullptr)
{
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
    setWindowTitle(title);
    createKeyboard();
    setInitString(initial);
}

QChar EmbKeyboard::alphaToNumber(QChar letter)
{
    int i = 0;
    for (; i < keyPadPairCount; i++)
        if (QLatin1Char(keyPadPairs[2 * i]) == letter)
            return QLatin1Char(keyPadPairs[2 * i + 1]);
    // past the pairs: the "2" of the tail, never reached from a letter key
    return QLatin1Char(keyPadPairs[2 * i + 1]);
}

QKeyPushButton* EmbKeyboard::createNewKey(QString text)
{
    QKeyPushButton* key = new QKeyPushButton(this);
    if (text.contains(tr("CAPS"), Qt::CaseInsensitive)) {
        key->setIcon(QIcon(":/icon/capslock.png"));
        key->setIconSize(QSize(32, 16));
    } else if (text.contains(tr("LEFT"), Qt::CaseInsensitive)) {
        key->setIcon(QIcon(":/icon/left.png"));
        key->setIconSize(QSize(32, 16));
    } else if (text.contains(tr("RIGHT"), Qt::CaseInsensitive)) {
        key->setIcon(QIcon(":/icon/right.png"));
        key->setIconSize(QSize(32, 16));
    } else if (text.contains(tr("BACK"), Qt::CaseInsensitive)) {
        key->setIcon(QIcon(":/icon/backspace.png"));
        key->setIconSize(QSize(32, 16));
    } else if (text.contains(tr("ENTER"), Qt::CaseInsensitive)) {
        key->setIcon(QIcon(":/icon/enter.png"));
        key->setIconSize(QSize(32, 32));
    } else {
        key->setText(text);
    }
    key->setObjectName(text);
    key->setFixedSize(keyWidth, keyHeight);
    // A key is 22 pixels high: its label takes a font that fits it whole,
    // whatever the application font is.
    QFont font = key->font();
    font.setPixelSize(keyFontPixels);
    key->setFont(font);
    key->show();
    return key;
}

static void widen(QKeyPushButton* key, int factor)
{
    int width = key->width() * factor;
    key->setMinimumWidth(width);
    key->setMaximumWidth(width);
}

void EmbKeyboard::createKeyboard()
{
    escKey = createNewKey(tr("ESC"));
    widen(escKey, 2);
    connect(escKey, &QPushButton::clicked, this, &QDialog::reject);
    gpioKeyboard = new GpioKeyboard(this);
    lineEdit = new QLineEdit(this);

    QHBoxLayout* top = new QHBoxLayout;
    top->addWidget(escKey);
    top->addWidget(lineEdit);

    QHBoxLayout* row1 = new QHBoxLayout;
    for (const char* letter : {"Q", "W", "E", "R", "T", "Y", "U", "I", "O", "P"})
        row1->addWidget(createNewKey(letter));
    QKeyPushButton* back = createNewKey(tr("BACK"));
    widen(back, 2);
    row1->addWidget(back);

    QHBoxLayout* row2 = new QHBoxLayout;
    for (const char* letter : {"A", "S", "D", "F", "G", "H", "J", "K", "L"})
        row2->addWidget(createNewKey(letter));

    QHBoxLayout* row3 = new QHBoxLayout;
    QKeyPushButton* caps = createNewKey(tr("CAPS"));
    widen(caps, 2);
    row3->addWidget(caps);
    for (const char* letter : {"Z", "X", "C", "V", "B", "N", "M"})
        row3->addWidget(createNewKey(letter));

    QVBoxLayout* rows23 = new QVBoxLayout;
    rows23->addLayout(row2);
    rows23->addLayout(row3);
    QKeyPushButton* enter = createNewKey(tr("ENTER"));
    enter->setFixedSize(keyWidth, 2 * keyHeight);
    widen(enter, 3);
    QHBoxLayout* middle = new QHBoxLayout;
    middle->addLayout(rows23);
    middle->addWidget(enter);

    QHBoxLayout* row4 = new QHBoxLayout;
    QKeyPushButton* pad = createNewKey(tr(".?123"));
    widen(pad, 2);
    row4->addWidget(pad);
    QKeyPushButton* blank = createNewKey(" ");
    widen(blank, 9);
    row4->addWidget(blank);
    row4->addWidget(createNewKey(tr("LEFT")));
    row4->addWidget(createNewKey(tr("RIGHT")));

    QVBoxLayout* keys = new QVBoxLayout;
    keys->addLayout(row1);
    keys->addLayout(middle);
    keys->addLayout(row4);

    QVBoxLayout* box = new QVBoxLayout(this);
    box->addLayout(top);
    box->addLayout(keys);
}

void EmbKeyboard::setInitString(QString text)
{
    if (text.isNull() || text.isEmpty())
        return;
    lineEdit->setText(text);
    lineEdit->setCursorPosition(text.length());
    lineEdit->setSelection(text.length(), 1);
}

void EmbKeyboard::setLetterLabels(bool upper)
{
    for (char c = 'A'; c <= 'Z'; c++) {
        QKeyPushButton* key = findChild<QKeyPushButton*>(QString(QLatin1Char(c)));
        if (key != nullptr)
            key->setText(upper ? QString(QLatin1Char(c)) : QString(QLatin1Char(c)).toLower());
    }
    if (QKeyPushButton* pad = findChild<QKeyPushButton*>(tr(".?123")))
        pad->setText(tr(".?123"));
    if (QKeyPushButton* caps = findChild<QKeyPushButton*>(tr("CAPS")))
        caps->setEnabled(true);
}

void EmbKeyboard::toUpperCase()
{
    setLetterLabels(true);
}

void EmbKeyboard::toLowerCase()
{
    setLetterLabels(false);
}

void EmbKeyboard::toKeyPad()
{
    for (char c = 'A'; c <= 'Z'; c++) {
        QKeyPushButton* key = findChild<QKeyPushButton*>(QString(QLatin1Char(c)));
        if (key != nullptr)
            key->setText(QString(alphaToNumber(QLatin1Char(c))));
    }
    if (QKeyPushButton* pad = findChild<QKeyPushButton*>(tr(".?123")))
        pad->setText(tr("ABC"));
    if (QKeyPushButton* caps = findChild<QKeyPushButton*>(tr("CAPS")))
        caps->setEnabled(false);
}

QString EmbKeyboard::stringEntered() const
{
    return lineEdit->text().simplified();
}

void EmbKeyboard::receiptChildKey(QKeyEvent* event, bool flag)
{
    if (flag || event == nullptr)
        return;
    QString text = lineEdit->text();
    int pos = lineEdit->cursorPosition();
    QString key = event->text();

    auto show = [this](const QString& content, int cursor, int selectionStart) {
        lineEdit->setText(content);
        lineEdit->setCursorPosition(cursor);
        lineEdit->setSelection(selectionStart, 1);
    };

    if (key.length() == 1) {
        text.insert(pos, key);
        show(text, pos + 1, pos);
    } else if (key.contains(tr("ESC"), Qt::CaseInsensitive)) {
        reject();
    } else if (key.contains(tr("ENTER"), Qt::CaseInsensitive)) {
        accept();
    } else if (key.contains(tr("LEFT"), Qt::CaseInsensitive)) {
        if (pos >= 1)
            show(text, pos - 1, pos - 2);
    } else if (key.contains(tr("RIGHT"), Qt::CaseInsensitive)) {
        if (pos < text.length())
            show(text, pos + 1, pos);
    } else if (key.contains(tr("BACK"), Qt::CaseInsensitive)) {
        if (pos >= 1) {
            text.remove(pos - 1, 1);
            show(text, pos - 1, pos == 1 ? 0 : pos - 2);
        }
    } else if (key.contains(tr("DEL"), Qt::CaseInsensitive)) {
        if (pos >= 1) {
            text.remove(pos, 1);
            show(text, pos, pos - 1);
        }
    } else if (key.contains(tr("CAPS"), Qt::CaseInsensitive)) {
        if (capsOn)
            toLowerCase();
        else
            toUpperCase();
        capsOn = !capsOn;
    } else if (key.contains(tr(".?123"), Qt::CaseInsensitive)) {
        if (!keyPadOn) {
            toKeyPad();
            keyPadOn = true;
        }
    } else if (key.contains(tr("ABC"), Qt::CaseInsensitive)) {
        if (capsOn)
            toUpperCase();
        else
            toLowerCase();
        keyPadOn = false;
    }
}

void EmbKeyboard::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
        if (event->text().contains(tr("ENTER"), Qt::CaseInsensitive))
            accept();
        break;
    case Qt::Key_Down: {
        QKeyEvent back(QEvent::KeyPress, Qt::Key_Backtab, Qt::NoModifier);
        QCoreApplication::sendEvent(this, &back);
        break;
    }
    case Qt::Key_Up: {
        QKeyEvent forward(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
        QCoreApplication::sendEvent(this, &forward);
        break;
    }
    case Qt::Key_Escape:
        reject();
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}
