#include "archive/formdialog.h"

#include "archive/archiveform.h"
#include "toolkit/embkeyboard.h"
#include "toolkit/infobar.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

FormDialog::FormDialog(QWidget* parent, const char* objectName, const QString& title, int pointSize)
    : QDialog(parent)
{
    setObjectName(objectName);
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
    setWindowTitle(title);
    _infoBar = new InfoBar(this);
    _infoBar->setTitle(title);
    if (pointSize > 0)
        setFormFont(this, _infoBar, pointSize);
}

void FormDialog::editLineObject(QObject*) {}

QLineEdit* FormDialog::formLine(QGridLayout* grid, const char* name, const QString& label,
                                const QString& unit, int row, int column, int width)
{
    QLineEdit* edit = new QLineEdit;
    edit->setObjectName(name);
    setLineEditWidth(edit, width);
    createLineEdit(grid, edit, label, unit, row, column);
    filterLine(edit);
    return edit;
}

void FormDialog::filterLine(QLineEdit* edit)
{
    edit->installEventFilter(this);
    _lines.append(edit);
}

QPushButton* FormDialog::formButton(const char* icon, const QString& text, const char* name)
{
    QPushButton* button = new QPushButton(QIcon(icon), text);
    button->setObjectName(name);
    return button;
}

bool FormDialog::typeInto(const QLineEdit* edit, const QString& title, bool keyPad,
                          QString* entered)
{
    EmbKeyboard* keyboard = new EmbKeyboard(this, QString(), QString());
    keyboard->setWindowTitle(title);
    keyboard->setInitString(edit->text());
    if (keyPad)
        keyboard->toKeyPad();
    const bool accepted = keyboard->exec() == QDialog::Accepted;
    if (accepted)
        *entered = keyboard->stringEntered();
    delete keyboard;
    return accepted;
}

void FormDialog::showForm(QLayout* form, const QList<QPushButton*>& buttons, bool fill)
{
    QHBoxLayout* row = new QHBoxLayout;
    for (QPushButton* b : buttons)
        row->addWidget(b);
    QVBoxLayout* box = new QVBoxLayout(this);
    box->addWidget(_infoBar);
    box->addLayout(form, fill ? 1 : 0);
    if (!fill)
        box->addStretch();
    box->addLayout(row);
    setModal(true);
    showMaximized();
}

bool FormDialog::eventFilter(QObject* obj, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress && _lines.contains(obj)) {
        editLineObject(obj);
        return true;
    }
    return QDialog::eventFilter(obj, event);
}

void FormDialog::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Down:
        walkFocus(focusChain(), true);
        break;
    case Qt::Key_Up:
        walkFocus(focusChain(), false);
        break;
    case Qt::Key_Return:
        returnOn(focusedIn(focusChain()));
        break;
    case Qt::Key_Escape:
        reject();
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}
