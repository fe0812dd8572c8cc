#include "measure/dialogdegrado.h"

#include "toolkit/embkeyboard.h"
#include "toolkit/messagebox.h"
#include "toolkit/numbertext.h"

#include <QEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

DialogDegrado::DialogDegrado(QWidget* parent, _meaType type)
    : QDialog(parent), _years(0), _percent(10.0f)
{
    setObjectName("DialogDegrado");
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
    setWindowTitle(type == MEA_PANEL ? tr("Degrado Modulo") : tr("Degrado Stringa"));

    yearsEdit = new QLineEdit(storedNumberText(_years, 0), this);
    yearsEdit->setObjectName("years");
    percentEdit = new QLineEdit(storedNumberText(_percent, 2), this);
    percentEdit->setObjectName("percent");
    yearsEdit->installEventFilter(this);
    percentEdit->installEventFilter(this);

    QFormLayout* form = new QFormLayout;
    form->addRow(tr("Anni : "), yearsEdit);
    QHBoxLayout* percentRow = new QHBoxLayout;
    percentRow->addWidget(percentEdit);
    percentRow->addWidget(new QLabel("%", this));
    form->addRow(tr("Degrado : "), percentRow);

    applyButton = new QPushButton(QIcon(":/icon/apply.png"), tr("Applica"), this);
    applyButton->setObjectName("Applica");
    applyButton->setEnabled(false);
    exitButton = new QPushButton(QIcon(":/icon/exit.png"), tr("Non Applicare"), this);
    exitButton->setObjectName("Non Applicare");
    connect(applyButton, &QPushButton::clicked, this, &QDialog::accept);
    connect(exitButton, &QPushButton::clicked, this, &QDialog::reject);
    QHBoxLayout* buttons = new QHBoxLayout;
    buttons->addWidget(applyButton);
    buttons->addWidget(exitButton);

    QVBoxLayout* box = new QVBoxLayout(this);
    box->addLayout(form);
    box->addLayout(buttons);
}

bool DialogDegrado::eventFilter(QObject* obj, QEvent* event)
{
    if ((obj == yearsEdit || obj == percentEdit) && event->type() == QEvent::MouseButtonPress) {
        editLineObject(obj);
        return true;
    }
    return QDialog::eventFilter(obj, event);
}

void DialogDegrado::editLineObject(QObject* obj)
{
    QMessageBox* box = newMessageBox(this, QMessageBox::Information, tr("Testo inserito"),
                                     tr("Troppo lungo."));
    EmbKeyboard* keyboard = new EmbKeyboard(this, QString(), QString());
    QLineEdit* edit = obj == yearsEdit ? yearsEdit : percentEdit;
    keyboard->setWindowTitle(obj == yearsEdit ? tr("Degrado Modulo : Anni")
                                              : tr("Degrado Modulo : Degrado %"));
    keyboard->setInitString(edit->text());
    keyboard->toKeyPad();
    if (keyboard->exec() == QDialog::Accepted) {
        QString text = keyboard->stringEntered();
        // a typed "nan" or "inf" used to pass the bounds: a number is a number
        float value = 0;
        bool ok = finiteNumber(text, &value);
        if (obj == yearsEdit) {
            if (!ok || value < 0) {
                box->setWindowTitle(tr("Degrado Anni"));
                box->setInformativeText(tr("Numero non valido : ") + text);
                box->exec();
            } else {
                _years = value;
                yearsEdit->setText(QString::number(static_cast<double>(value), 'f', 0));
                applyButton->setEnabled(true);
            }
        } else {
            if (!ok || value < 0 || value > 100.0f) {
                box->setWindowTitle(tr("Degrado Percentuale"));
                box->setInformativeText(tr("Numero non valido : ") + text);
                box->exec();
            } else {
                _percent = value;
                percentEdit->setText(QString::number(static_cast<double>(value), 'f', 2));
            }
        }
    }
    delete keyboard;
    delete box;
}
