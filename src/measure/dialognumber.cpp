#include "measure/dialognumber.h"

#include "toolkit/embkeyboard.h"
#include "toolkit/messagebox.h"

#include <QEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

DialogNumber::DialogNumber(QWidget* parent, int number) : QDialog(parent), _number(number)
{
    setObjectName("NumberOfPanel");
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
    setWindowTitle(tr("Numero di Moduli"));
    numberEdit = new QLineEdit(QString::number(number), this);
    numberEdit->setObjectName("number");
    numberEdit->installEventFilter(this);
    QFormLayout* form = new QFormLayout;
    form->addRow(tr("Numero di Moduli : "), numberEdit);

    QPushButton* applyButton = new QPushButton(QIcon(":/icon/exit.png"), tr("Applica"), this);
    applyButton->setObjectName("Applica");
    QPushButton* cancelButton = new QPushButton(QIcon(":/icon/cancel.png"), tr("Annulla"), this);
    cancelButton->setObjectName("Annulla");
    connect(applyButton, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    QHBoxLayout* buttons = new QHBoxLayout;
    buttons->addWidget(applyButton);
    buttons->addWidget(cancelButton);
    QVBoxLayout* box = new QVBoxLayout(this);
    box->addLayout(form);
    box->addLayout(buttons);
}

bool DialogNumber::eventFilter(QObject* obj, QEvent* event)
{
    if (obj == numberEdit && event->type() == QEvent::MouseButtonPress) {
        editLineObject(obj);
        return true;
    }
    return QDialog::eventFilter(obj, event);
}

void DialogNumber::editLineObject(QObject* obj)
{
    if (obj != numberEdit)
        return;
    QMessageBox* box = newMessageBox(this, QMessageBox::Information, tr("Testo inserito"),
                                     tr("Troppo lungo."));
    EmbKeyboard* keyboard = new EmbKeyboard(this, tr("Numero di Moduli"), QString());
    keyboard->setInitString(numberEdit->text());
    keyboard->toKeyPad();
    if (keyboard->exec() == QDialog::Accepted) {
        QString text = keyboard->stringEntered();
        bool ok = false;
        int value = text.toInt(&ok, 10);
        if (!ok || value < 2) {
            box->setWindowTitle(tr("Numero di Moduli"));
            box->setInformativeText(tr("Numero non valido : ") + text);
            box->exec();
        } else {
            _number = value;
            numberEdit->setText(QString::number(value));
        }
    }
    delete keyboard;
    delete box;
}
