#include "measure/dialoginfo.h"

#include "data/storedtext.h"
#include "toolkit/embkeyboard.h"
#include "toolkit/messagebox.h"

#include <QEvent>
#include <QDateTime>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <cstring>

// The old copy kept 255 bytes, so a comment of 255 characters lost its tail
// (and could end inside a character): the copy holds 255 characters whole.
static void copyText(char* field, const QString& text)
{
    QByteArray bytes = textToStore(text.left(255));
    size_t n = qMin(static_cast<size_t>(bytes.size()), static_cast<size_t>(TEXT_COPY_SIZE - 1));
    memcpy(field, bytes.constData(), n);
    field[n] = '\0';
}

DialogInfo::DialogInfo(QWidget* parent, _typeDialog type, QString comment)
    : QDialog(parent), initialComment(comment)
{
    setObjectName("DialogInfo");
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
    setWindowTitle(type == DLG_STRING ? tr("Salvataggio Misure Stringhe")
                                      : tr("Salvataggio Misure Modulo"));
    memset(_date, 0, sizeof _date);
    memset(_time, 0, sizeof _time);
    memset(_comment, 0, sizeof _comment);

    dateEdit = new QLineEdit(this);
    dateEdit->setObjectName("Data");
    timeEdit = new QLineEdit(this);
    timeEdit->setObjectName("Ora");
    commentEdit = new QLineEdit(this);
    commentEdit->setObjectName("Commento");
    for (QLineEdit* edit : {dateEdit, timeEdit, commentEdit})
        edit->installEventFilter(this);
    QFormLayout* form = new QFormLayout;
    form->addRow(tr("Data"), dateEdit);
    form->addRow(tr("Ora"), timeEdit);
    form->addRow(tr("Commento"), commentEdit);

    saveButton = new QPushButton(QIcon(":/icon/save.png"), tr("Salva"), this);
    saveButton->setObjectName("Salva");
    QPushButton* resetButton = new QPushButton(QIcon(":/icon/view-refresh.png"), tr("Reset"), this);
    resetButton->setObjectName("Reset");
    QPushButton* exitButton = new QPushButton(QIcon(":/icon/exit.png"), tr("Exit"), this);
    exitButton->setObjectName("Exit");
    connect(saveButton, &QPushButton::clicked, this, &DialogInfo::goToFinalizeParam);
    connect(resetButton, &QPushButton::clicked, this, &DialogInfo::resetParameters);
    connect(exitButton, &QPushButton::clicked, this, &QDialog::reject);
    QHBoxLayout* buttons = new QHBoxLayout;
    buttons->addWidget(saveButton);
    buttons->addWidget(resetButton);
    buttons->addWidget(exitButton);

    QVBoxLayout* box = new QVBoxLayout(this);
    box->addLayout(form);
    box->addLayout(buttons);
    resetParameters();
}

void DialogInfo::resetParameters()
{
    QDateTime now = QDateTime::currentDateTime();
    copyText(_date, now.toString("yyyy/MM/dd"));
    copyText(_time, now.toString("HH:mm:ss"));
    dateEdit->setText(storedText(_date));
    timeEdit->setText(storedText(_time));
    commentEdit->setText(initialComment);
    saveButton->setEnabled(true);
}

bool DialogInfo::eventFilter(QObject* obj, QEvent* event)
{
    if ((obj == dateEdit || obj == timeEdit || obj == commentEdit) &&
        event->type() == QEvent::MouseButtonPress) {
        editLineObject(obj);
        return true;
    }
    return QDialog::eventFilter(obj, event);
}

void DialogInfo::editLineObject(QObject* obj)
{
    QMessageBox* box = newMessageBox(this, QMessageBox::Information, tr("Testo inserito"),
                                     tr("Troppo lungo."));
    EmbKeyboard* keyboard = new EmbKeyboard(this, QString(), QString());
    QLineEdit* edit = nullptr;
    int limit = 0;
    if (obj == dateEdit) {
        edit = dateEdit;
        limit = 10;
        keyboard->setWindowTitle(tr("Data"));
        keyboard->toKeyPad();
    } else if (obj == timeEdit) {
        // the preset time has seconds, the operator may not type them again
        edit = timeEdit;
        limit = 5;
        keyboard->setWindowTitle(tr("Ora"));
        keyboard->toKeyPad();
    } else {
        edit = commentEdit;
        limit = 255;
        keyboard->setWindowTitle(tr("Commento"));
    }
    keyboard->setInitString(edit->text());
    if (keyboard->exec() == QDialog::Accepted) {
        QString text = keyboard->stringEntered();
        if (text.length() > limit)
            box->exec();
        else
            edit->setText(text);
    }
    saveButton->setEnabled(!dateEdit->text().isEmpty() && !timeEdit->text().isEmpty());
    delete keyboard;
    delete box;
}

void DialogInfo::goToFinalizeParam()
{
    copyText(_date, dateEdit->text());
    copyText(_time, timeEdit->text());
    if (!commentEdit->text().isEmpty())
        copyText(_comment, commentEdit->text());
    accept();
}
