#include "debugbrask/dialogsweepbrask.h"

#include "debugbrask/dialogviewsweepbrask.h"
#include "debugbrask/serviceerror.h"
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

DialogSweepBrask::DialogSweepBrask(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowTitleHint), tempStart(0),
      tempStop(0), target(0), _powerDevice(nullptr)
{
    setObjectName("Sweep Brask");
    std::memset(&_tst, 0, sizeof _tst);
    _infoBar = new InfoBar(this);
    _infoBar->setTitle(tr("Sweep_Brask"));
    QLabel* heading = new QLabel(tr("Sweep_brask"), this);

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
    grid->addWidget(new QLabel(tr("Target:"), this), 0, 0);
    grid->addWidget(_lineTarget, 0, 1);
    grid->addWidget(new QLabel(tr("List:"), this), 1, 0);
    grid->addWidget(_comboList, 1, 1);
    grid->addWidget(new QLabel(tr("Temp Start: "), this), 2, 0);
    grid->addWidget(_labelTempStart, 2, 1);
    grid->addWidget(new QLabel(tr("Temp Stop: "), this), 3, 0);
    grid->addWidget(_labelTempStop, 3, 1);

    _buttonExec = new QPushButton(tr("Esegui"), this);
    _buttonExec->setObjectName("Esegui");
    _buttonView = new QPushButton(tr("Visualizza Dati"), this);
    _buttonView->setObjectName("Visualizza Dati");
    _buttonView->setEnabled(false);
    _buttonExit = new QPushButton(tr("exit"), this);
    _buttonExit->setObjectName("exit");
    QHBoxLayout* buttons = new QHBoxLayout;
    buttons->addWidget(_buttonExec);
    buttons->addWidget(_buttonView);
    buttons->addWidget(_buttonExit);

    QVBoxLayout* box = new QVBoxLayout(this);
    box->addWidget(_infoBar);
    box->addWidget(heading);
    box->addStretch();
    box->addLayout(grid);
    box->addStretch();
    box->addLayout(buttons);

    connect(_buttonExec, &QPushButton::clicked, this, &DialogSweepBrask::goToExecCmd);
    connect(_buttonView, &QPushButton::clicked, this, &DialogSweepBrask::goToViewData);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    _buttonExec->setFocus();
    setWindowState(windowState() | Qt::WindowMaximized);
}

void DialogSweepBrask::populateListCombo()
{
    _listMap.insert("0 = no list", 0);
    _listMap.insert("1 = si list", 1);
    _comboList->addItem("0 = no list");
    _comboList->addItem("1 = si list");
}

int DialogSweepBrask::getListCombo()
{
    return _listMap.value(_comboList->currentText(), 0);
}

bool DialogSweepBrask::eventFilter(QObject* obj, QEvent* event)
{
    if (obj == _lineTarget && event->type() == QEvent::MouseButtonPress) {
        editLineObject(obj);
        return true;
    }
    return QDialog::eventFilter(obj, event);
}

void DialogSweepBrask::editLineObject(QObject* obj)
{
    if (obj != _lineTarget)
        return;
    EmbKeyboard* keyboard =
        new EmbKeyboard(this, tr("Tensione di Gate da Impostare"), _lineTarget->text());
    keyboard->toKeyPad();
    if (keyboard->exec() == QDialog::Accepted) {
        QString text = keyboard->stringEntered();
        bool ok = false;
        int value = text.toInt(&ok, 10);
        if (ok && value >= 0 && value <= 4095) {
            target = value;
            _lineTarget->setText(QString::number(target));
        } else {
            showMessageBox(this, QMessageBox::Information, tr("Tensione di Gate inserita."),
                           tr("Troppo lungo."), tr("Numero non valido : ") + text);
        }
    }
    delete keyboard;
}

void DialogSweepBrask::showTemperature(QLabel* label, _pdError error, float value)
{
    if (reportErrorSerialPort(error) != 0)
        label->setText(tr("Errore"));
    else
        label->setText(QString("%1").arg(static_cast<double>(value), 0, 'g'));
}

void DialogSweepBrask::goToExecCmd()
{
    QProgressDialog progress(tr("Esecuzione comando..."), QString(), 0, 128, this,
                             Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
    progress.setObjectName("Progress");
    int list = getListCombo();
    progress.setValue(0);
    progress.show();
    _buttonExec->setEnabled(false);
    _buttonExit->setEnabled(false);
    _powerDevice = new PowerDevice();
    std::memset(&_tst, 0, sizeof _tst);

    QCoreApplication::processEvents();
    _pdError error = _powerDevice->acquireTempHSink(&tempStart);
    showTemperature(_labelTempStart, error, tempStart);
    QCoreApplication::processEvents();
    reportErrorSerialPort(_powerDevice->acquireSweepBrask(&_tst, target, list, &progress));
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

void DialogSweepBrask::goToViewData()
{
    DialogViewSweepBrask* view = new DialogViewSweepBrask(this, &_tst, target, tempStart, tempStop);
    view->exec();
    delete view;
}

int DialogSweepBrask::reportErrorSerialPort(_pdError error)
{
    return showServiceError(
        this, error, tr("Power Device"),
        {tr("Problem on access Serial Port."), tr("Excessive Voltage."), tr("Eccessive Current."),
         tr("Eccessive Power."), tr("Eccessive Energy."), tr("Reverse Polarity."),
         tr("Negative is Floating."), tr("Tensione Bassa."), tr("Corrente Bassa.")});
}

void DialogSweepBrask::keyPressEvent(QKeyEvent* event)
{
    const QList<QWidget*> chain = {_lineTarget, _comboList, _buttonExec, _buttonView, _buttonExit};
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
