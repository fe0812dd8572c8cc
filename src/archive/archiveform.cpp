#include "archive/archiveform.h"

#include "toolkit/embkeyboard.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>

float defaultKvoc(int type)
{
    static const float kvoc[PANEL_TYPES] = {-0.35f, -0.35f, -0.4f, -0.3f, -0.3f, -0.3f};
    if (type < 0 || type >= PANEL_TYPES)
        return kvoc[0];
    return kvoc[type];
}

void setLineEditWidth(QLineEdit* edit, int width)
{
    edit->setMinimumWidth(width);
    edit->setMaximumWidth(width);
}

void createLineEdit(QGridLayout* grid, QLineEdit* edit, QString label, QString unit, int row,
                    int column)
{
    grid->addWidget(new QLabel(label), row, column);
    grid->addWidget(edit, row, column + 1);
    grid->addWidget(new QLabel(unit), row, column + 2);
}

void showFormNumber(const FormNumber& field)
{
    field.edit->setText(QString::number(static_cast<double>(*field.value), 'f', field.decimals));
    field.edit->setCursorPosition(0);
}

FormRound enterFormNumber(QWidget* screen, QMessageBox* box, const FormNumber& field)
{
    EmbKeyboard* keyboard = new EmbKeyboard(screen, QString(), QString());
    keyboard->setWindowTitle(field.keyboardTitle);
    box->setWindowTitle(field.boxTitle);
    if (*field.value != 0)
        keyboard->setInitString(
            QString::number(static_cast<double>(*field.value), 'f', field.decimals));
    keyboard->toKeyPad();
    FormRound round = ROUND_LEFT;
    if (keyboard->exec() == QDialog::Accepted) {
        QString text = keyboard->stringEntered();
        bool ok = false;
        float value = text.toFloat(&ok);
        if (!ok || !(value >= field.low && value <= field.high)) {
            box->setInformativeText(field.tag + text);
            box->exec();
            round = ROUND_REFUSED;
        } else {
            *field.value = value;
            showFormNumber(field);
            round = ROUND_ACCEPTED;
        }
    }
    delete keyboard;
    return round;
}

FormRound enterFormText(QWidget* screen, QMessageBox* box, QLineEdit* edit, const QString& initial,
                        const QString& keyboardTitle, const QString& boxTitle,
                        const QString& emptyText, const QString& longText)
{
    EmbKeyboard* keyboard = new EmbKeyboard(screen, QString(), QString());
    keyboard->setWindowTitle(keyboardTitle);
    box->setWindowTitle(boxTitle);
    keyboard->setInitString(initial);
    FormRound round = ROUND_LEFT;
    if (keyboard->exec() == QDialog::Accepted) {
        QString text = keyboard->stringEntered();
        if (text.isEmpty() || text.length() > FORM_NAME_LIMIT) {
            box->setInformativeText(text.isEmpty() ? emptyText : longText);
            box->exec();
            round = ROUND_REFUSED;
        } else {
            edit->setText(text);
            edit->setCursorPosition(0);
            round = ROUND_ACCEPTED;
        }
    }
    delete keyboard;
    return round;
}

static bool canFocus(QWidget* w)
{
    return w != nullptr && w->isEnabled() && !w->isHidden();
}

QWidget* focusedIn(const QList<QWidget*>& chain)
{
    for (QWidget* w : chain)
        if (w != nullptr && w->hasFocus())
            return w;
    return nullptr;
}

void walkFocus(const QList<QWidget*>& chain, bool down)
{
    int n = chain.size();
    if (n == 0)
        return;
    int at = chain.indexOf(focusedIn(chain));
    int step = down ? 1 : -1;
    if (at < 0)
        at = down ? n - 1 : 0;
    for (int i = 1; i <= n; i++) {
        QWidget* next = chain[((at + step * i) % n + n) % n];
        if (canFocus(next)) {
            next->setFocus();
            return;
        }
    }
}

void setFormFont(QWidget* screen, QWidget* bar, int pointSize)
{
    QFont font = screen->font();
    bar->setFont(font);
    font.setPointSize(pointSize);
    screen->setFont(font);
}

void fillSortedCombo(QComboBox* combo, QStringList names)
{
    names.sort();
    combo->clear();
    combo->addItems(names);
}
