#include "archive/archiveform.h"

#include "archive/formdialog.h"
#include "data/storedtext.h"
#include "toolkit/embkeyboard.h"
#include "toolkit/numbertext.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>
#include <cmath>

float defaultKvoc(int type)
{
    static const float kvoc[PANEL_TYPES] = {-0.35f, -0.35f, -0.4f, -0.3f, -0.3f, -0.3f};
    if (type < 0 || type >= PANEL_TYPES)
        return kvoc[0];
    return kvoc[type];
}

QPushButton* archiveMenuButton(const char* icon, const QString& text, const char* name)
{
    QPushButton* button = new QPushButton(QIcon(icon), text);
    button->setObjectName(name);
    button->setIconSize(QSize(48, 48));
    button->setFlat(true);
    return button;
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

void placeFeatureNumbers(FormDialog* form, QGridLayout* grid, FormNumber number[FEATURE_NUMBERS],
                         const QString label[FEATURE_NUMBERS], QComboBox* type,
                         const QString& typeLabel)
{
    static const char* const unit[FEATURE_NUMBERS] = {"W",    "°C",   "V",    "A", "V", "A",
                                                      "%/°C", "%/°C", "%/°C", "%", "%"};
    static const char* const name[FEATURE_NUMBERS] = {
        "pmax", "noct", "vmpp", "impp", "voc", "isc", "kisc", "kvoc", "kpmax", "tollm", "tollp"};
    for (int i = 0; i < FEATURE_NUMBERS; i++) {
        QLineEdit* edit = number[i].edit;
        edit->setObjectName(name[i]);
        setLineEditWidth(edit, 120);
        bool left = i < FEATURE_LEFT;
        createLineEdit(grid, edit, label[i], QString::fromUtf8(unit[i]),
                       left ? 1 + i : 2 + i - FEATURE_LEFT, left ? 0 : 3);
        form->filterLine(edit);
    }
    type->setObjectName("type");
    grid->addWidget(new QLabel(typeLabel), 1, 3);
    grid->addWidget(type, 1, 4, 1, 2);
}

void fillTypeCombo(QComboBox* combo, QMap<QString, int>* types, const QString names[PANEL_TYPES])
{
    for (int type = 0; type < PANEL_TYPES; type++) {
        types->insert(names[type], type);
        combo->addItem(names[type]);
    }
}

QList<QWidget*> featureChain(const QList<QWidget*>& head, const FormNumber number[FEATURE_NUMBERS],
                             QComboBox* type, const QList<QWidget*>& buttons)
{
    QList<QWidget*> chain = head;
    for (int i = 0; i < FEATURE_LEFT; i++)
        chain << number[i].edit;
    chain << type;
    for (int i = FEATURE_LEFT; i < FEATURE_NUMBERS; i++)
        chain << number[i].edit;
    return chain << buttons;
}

void showFormNumber(const FormNumber& field)
{
    field.edit->setText(storedNumberText(*field.value, field.decimals));
    field.edit->setCursorPosition(0);
}

FormRound enterFormNumber(QWidget* screen, QMessageBox* box, const FormNumber& field)
{
    EmbKeyboard* keyboard = new EmbKeyboard(screen, QString(), QString());
    keyboard->setWindowTitle(field.keyboardTitle);
    box->setWindowTitle(field.boxTitle);
    if (*field.value != 0 && std::isfinite(*field.value))
        keyboard->setInitString(
            QString::number(static_cast<double>(*field.value), 'f', field.decimals));
    keyboard->toKeyPad();
    FormRound round = ROUND_LEFT;
    if (keyboard->exec() == QDialog::Accepted) {
        QString text = keyboard->stringEntered();
        float value = 0;
        if (!finiteNumber(text, &value) || !(value >= field.low && value <= field.high)) {
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

QList<NamedEntry> brandEntries(const _listBrand* head)
{
    QList<NamedEntry> entries;
    for (const _listBrand* b = head; b != nullptr; b = b->next)
        entries.append(NamedEntry{storedText(b->name), QByteArray(b->dir)});
    return entries;
}

QList<NamedEntry> modelEntries(const _listModel* head)
{
    QList<NamedEntry> entries;
    for (const _listModel* m = head; m != nullptr; m = m->next)
        entries.append(NamedEntry{storedText(m->name), QByteArray(m->file)});
    return entries;
}

void sortByName(QList<NamedEntry>* entries)
{
    std::stable_sort(entries->begin(), entries->end(),
                     [](const NamedEntry& a, const NamedEntry& b) { return a.name < b.name; });
}

void fillSortedCombo(QComboBox* combo, QList<NamedEntry> entries)
{
    sortByName(&entries);
    combo->clear();
    for (const NamedEntry& e : entries)
        combo->addItem(e.name, e.key);
}

QByteArray comboKey(const QComboBox* combo)
{
    return combo->currentData(Qt::UserRole).toByteArray();
}
