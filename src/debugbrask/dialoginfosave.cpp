#include "debugbrask/dialoginfosave.h"

#include "device/keyboard.h"
#include "toolkit/embkeyboard.h"
#include "toolkit/messagebox.h"

#include <QDateTime>
#include <QEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <cstring>

namespace
{
void copyLocal8Bit(char* field, const QString& text)
{
    QByteArray bytes = text.toLocal8Bit();
    size_t n = qMin(static_cast<size_t>(bytes.size()), static_cast<size_t>(255));
    memcpy(field, bytes.constData(), n);
    field[n] = '\0';
}
} // namespace

DialogInfoSave::DialogInfoSave(QWidget* parent, QString defaultComment)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint),
      _defaultComment(defaultComment)
{
    setObjectName("DialogInfoSave");
    setWindowTitle(tr("Salvataggio"));
    new GpioKeyboard(this);
    memset(data, 0, sizeof data);
    memset(time, 0, sizeof time);
    memset(comment, 0, sizeof comment);

    _lineData = new QLineEdit(this);
    _lineData->setObjectName("Data");
    _lineTime = new QLineEdit(this);
    _lineTime->setObjectName("Ora");
    _lineComment = new QLineEdit(this);
    _lineComment->setObjectName("Commento");
    for (QLineEdit* line : {_lineData, _lineTime, _lineComment})
        line->installEventFilter(this);
    QFormLayout* form = new QFormLayout;
    form->addRow(tr("Data"), _lineData);
    form->addRow(tr("Ora"), _lineTime);
    form->addRow(tr("Commento"), _lineComment);

    _buttonSave = new QPushButton(QIcon(":/icon/save.png"), tr("Salva"), this);
    _buttonSave->setObjectName("Salva");
    _buttonSave->setDefault(true);
    _buttonReset = new QPushButton(QIcon(":/icon/view-refresh.png"), tr("Reset"), this);
    _buttonReset->setObjectName("Reset");
    _buttonExit = new QPushButton(QIcon(":/icon/exit.png"), tr("Exit"), this);
    _buttonExit->setObjectName("Exit");
    connect(_buttonSave, &QPushButton::clicked, this, &DialogInfoSave::goToFinalizeParam);
    connect(_buttonReset, &QPushButton::clicked, this, &DialogInfoSave::resetParameters);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    QHBoxLayout* buttons = new QHBoxLayout;
    buttons->addWidget(_buttonSave);
    buttons->addWidget(_buttonReset);
    buttons->addWidget(_buttonExit);

    QVBoxLayout* box = new QVBoxLayout(this);
    box->addLayout(form);
    box->addLayout(buttons);
    resetParameters();
    _buttonSave->setFocus();
}

void DialogInfoSave::resetParameters()
{
    QDateTime now = QDateTime::currentDateTime();
    copyLocal8Bit(data, now.toString("yyyy/MM/dd"));
    copyLocal8Bit(time, now.toString("HH:mm:ss"));
    _lineData->setText(QString::fromLocal8Bit(data));
    _lineTime->setText(QString::fromLocal8Bit(time));
    _lineComment->setText(_defaultComment);
}

bool DialogInfoSave::eventFilter(QObject* obj, QEvent* event)
{
    if ((obj == _lineData || obj == _lineTime || obj == _lineComment) &&
        event->type() == QEvent::MouseButtonPress) {
        editLineObject(obj);
        return true;
    }
    return QDialog::eventFilter(obj, event);
}

void DialogInfoSave::editLineObject(QObject* obj)
{
    QLineEdit* line = qobject_cast<QLineEdit*>(obj);
    if (line == nullptr)
        return;
    // the time allows five characters, three fewer than the preset time has
    int limit = line == _lineData ? 10 : line == _lineTime ? 5 : 255;
    QString label = line == _lineData ? tr("Data") : line == _lineTime ? tr("Ora") : tr("Commento");
    EmbKeyboard* keyboard = new EmbKeyboard(this, label, line->text());
    if (keyboard->exec() == QDialog::Accepted) {
        QString text = keyboard->stringEntered();
        if (text.length() > limit)
            showMessageBox(this, QMessageBox::Information, tr("Testo inserito"),
                           tr("Troppo lungo."));
        else
            line->setText(text);
    }
    delete keyboard;
}

void DialogInfoSave::goToFinalizeParam()
{
    copyLocal8Bit(data, _lineData->text());
    copyLocal8Bit(time, _lineTime->text());
    if (!_lineComment->text().isEmpty())
        copyLocal8Bit(comment, _lineComment->text());
    accept();
}

void DialogInfoSave::saveServiceFile(QWidget* view,
                                     const std::function<int(char*, char*, char*)>& write)
{
    DialogInfoSave* form = new DialogInfoSave(view, QString());
    if (form->exec() == QDialog::Accepted) {
        char data[256], time[256], comment[256];
        memcpy(data, form->data, sizeof data);
        memcpy(time, form->time, sizeof time);
        memcpy(comment, form->comment, sizeof comment);
        if (write(data, time, comment) == -3)
            showMessageBox(view, QMessageBox::Information, QString(), tr("Misura"),
                           tr("Nome della misura già presente."));
        else
            showMessageBox(view, QMessageBox::Information, QString(), tr("Misura Salvata."));
    }
    delete form;
}

void DialogInfoSave::keyPressEvent(QKeyEvent* event)
{
    const QList<QWidget*> chain = {_lineData,   _lineTime,    _lineComment,
                                   _buttonSave, _buttonReset, _buttonExit};
    int at = -1;
    for (int i = 0; i < chain.size(); i++)
        if (chain[i]->hasFocus())
            at = i;
    switch (event->key()) {
    case Qt::Key_Down:
        chain[(at + 1) % chain.size()]->setFocus();
        break;
    case Qt::Key_Up:
        chain[(at + chain.size() - 1) % chain.size()]->setFocus();
        break;
    case Qt::Key_Return:
        if (at >= 0 && at <= 2)
            editLineObject(chain[at]);
        else if (at == 3)
            goToFinalizeParam();
        else if (at == 4)
            resetParameters();
        else if (at == 5)
            reject();
        break;
    case Qt::Key_Escape:
        reject();
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}
