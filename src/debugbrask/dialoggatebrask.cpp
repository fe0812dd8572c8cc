#include "debugbrask/dialoggatebrask.h"

#include "device/powerdevice.h"
#include "toolkit/embkeyboard.h"
#include "toolkit/infobar.h"
#include "toolkit/messagebox.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QVBoxLayout>
#include <cstring>
#include <memory>

DialogGateBrask::DialogGateBrask(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowTitleHint), tempStart(0),
      tempStop(0), target(0), _powerDevice(nullptr), _buttonExtra(nullptr)
{
    std::memset(&_tst, 0, sizeof _tst);
}

void DialogGateBrask::build(const Texts& texts, const QString& extraText, const QString& extraName)
{
    _texts = texts;
    _infoBar = new InfoBar(this);
    _infoBar->setTitle(texts.title);
    QLabel* heading = new QLabel(texts.heading, this);

    _lineTarget = new QLineEdit(QString::number(target), this);
    _lineTarget->setObjectName("Target");
    _lineTarget->installEventFilter(this);
    _comboList = new QComboBox(this);
    _comboList->setObjectName("List");
    populateListCombo();
    _labelTempStart = new QLabel(this);
    _labelTempStart->setObjectName("TempStart");
    _labelTempStop = new QLabel(this);
    _labelTempStop->setObjectName("TempStop");
    QGridLayout* grid = new QGridLayout;
    grid->addWidget(new QLabel(texts.target, this), 0, 0);
    grid->addWidget(_lineTarget, 0, 1);
    grid->addWidget(new QLabel(texts.list, this), 1, 0);
    grid->addWidget(_comboList, 1, 1);
    grid->addWidget(new QLabel(texts.tempStart, this), 2, 0);
    grid->addWidget(_labelTempStart, 2, 1);
    grid->addWidget(new QLabel(texts.tempStop, this), 3, 0);
    grid->addWidget(_labelTempStop, 3, 1);

    _buttonExec = new QPushButton(texts.exec, this);
    _buttonExec->setObjectName("Esegui");
    if (!extraName.isEmpty()) {
        _buttonExtra = new QPushButton(extraText, this);
        _buttonExtra->setObjectName(extraName);
    }
    _buttonView = new QPushButton(texts.view, this);
    _buttonView->setObjectName("Visualizza Dati");
    _buttonView->setEnabled(false);
    _buttonExit = new QPushButton(texts.exit, this);
    _buttonExit->setObjectName("exit");
    QHBoxLayout* buttons = new QHBoxLayout;
    buttons->addWidget(_buttonExec);
    if (_buttonExtra)
        buttons->addWidget(_buttonExtra);
    buttons->addWidget(_buttonView);
    buttons->addWidget(_buttonExit);

    QVBoxLayout* box = new QVBoxLayout(this);
    box->addWidget(_infoBar);
    box->addWidget(heading);
    box->addStretch();
    box->addLayout(grid);
    box->addStretch();
    box->addLayout(buttons);

    connect(_buttonExec, &QPushButton::clicked, this, &DialogGateBrask::goToExecCmd);
    connect(_buttonView, &QPushButton::clicked, this, &DialogGateBrask::goToViewData);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    _buttonExec->setFocus();
    setWindowState(windowState() | Qt::WindowMaximized);
}

void DialogGateBrask::populateListCombo()
{
    _listMap.insert("0 = no list", 0);
    _listMap.insert("1 = si list", 1);
    _comboList->addItem("0 = no list");
    _comboList->addItem("1 = si list");
}

int DialogGateBrask::getListCombo()
{
    return _listMap.value(_comboList->currentText(), 0);
}

bool DialogGateBrask::eventFilter(QObject* obj, QEvent* event)
{
    if (obj == _lineTarget && event->type() == QEvent::MouseButtonPress) {
        editLineObject(obj);
        return true;
    }
    return QDialog::eventFilter(obj, event);
}

void DialogGateBrask::editLineObject(QObject* obj)
{
    if (obj != _lineTarget)
        return;
    EmbKeyboard* keyboard = new EmbKeyboard(this, _texts.keypad, _lineTarget->text());
    keyboard->toKeyPad();
    if (keyboard->exec() == QDialog::Accepted) {
        QString text = keyboard->stringEntered();
        bool ok = false;
        int value = text.toInt(&ok, 10);
        if (ok && value >= 0 && value <= 4095) {
            target = value;
            _lineTarget->setText(QString::number(target));
        } else {
            showMessageBox(this, QMessageBox::Information, _texts.refusedTitle, _texts.refusedText,
                           _texts.refusedDetail + text);
        }
    }
    delete keyboard;
}

void DialogGateBrask::showTemperature(QLabel* label, _pdError error, float value)
{
    if (reportErrorSerialPort(error) != 0)
        label->setText(_texts.error);
    else
        label->setText(QString("%1").arg(static_cast<double>(value), 0, 'g'));
}

QProgressDialog* DialogGateBrask::newProgress()
{
    QProgressDialog* progress =
        new QProgressDialog(_texts.running, QString(), 0, 128, this,
                            Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
    progress->setObjectName("Progress");
    progress->setValue(0);
    progress->show();
    return progress;
}

void DialogGateBrask::goToExecCmd()
{
    std::unique_ptr<QProgressDialog> progress(newProgress());
    int list = getListCombo();
    _buttonExec->setEnabled(false);
    _buttonExit->setEnabled(false);
    _powerDevice = new PowerDevice();
    std::memset(&_tst, 0, sizeof _tst);

    QCoreApplication::processEvents();
    _pdError error = _powerDevice->acquireTempHSink(&tempStart);
    showTemperature(_labelTempStart, error, tempStart);
    QCoreApplication::processEvents();
    reportErrorSerialPort(acquire(_powerDevice, list, progress.get()));
    // the arrays hold what the board sent, also after an error
    _buttonView->setEnabled(true);
    QCoreApplication::processEvents();
    error = _powerDevice->acquireTempHSink(&tempStop);
    showTemperature(_labelTempStop, error, tempStop);

    delete _powerDevice;
    _powerDevice = nullptr;
    _buttonExec->setEnabled(true);
    _buttonExit->setEnabled(true);
    // the disabled button lost the focus: the keys go on from where they were
    _buttonExec->setFocus();
}

void DialogGateBrask::goToViewData()
{
    QDialog* view = newView();
    view->exec();
    delete view;
}

void DialogGateBrask::keyPressEvent(QKeyEvent* event)
{
    QList<QWidget*> chain = {_lineTarget, _comboList, _buttonExec};
    if (_buttonExtra)
        chain.append(_buttonExtra);
    chain.append({_buttonView, _buttonExit});
    int at = -1;
    for (int i = 0; i < chain.size(); i++)
        if (chain[i]->hasFocus())
            at = i;
    auto step = [&chain, at](int direction) {
        for (int i = 1; i <= chain.size(); i++) {
            QWidget* next =
                chain[((at + direction * i) % chain.size() + chain.size()) % chain.size()];
            if (next->isEnabled()) {
                next->setFocus();
                return;
            }
        }
    };
    switch (event->key()) {
    case Qt::Key_Down:
        step(1);
        break;
    case Qt::Key_Up:
        step(-1);
        break;
    case Qt::Key_Return:
        if (_lineTarget->hasFocus())
            editLineObject(_lineTarget);
        else if (_comboList->hasFocus())
            _comboList->showPopup();
        else if (_buttonExec->hasFocus())
            goToExecCmd();
        else if (_buttonExtra && _buttonExtra->hasFocus())
            _buttonExtra->click();
        else if (_buttonView->hasFocus())
            goToViewData();
        else if (_buttonExit->hasFocus())
            reject();
        break;
    case Qt::Key_Escape:
        if (_buttonExit->isEnabled())
            reject();
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}
