#include "debugbrask/dialogcurrmean.h"

#include "data/datasetting.h"
#include "debugbrask/serviceerror.h"
#include "device/powerdevice.h"
#include "toolkit/infobar.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

DialogCurrMean::DialogCurrMean(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowTitleHint),
      _powerDevice(nullptr)
{
    setObjectName("Curr Mean");
    readConfigFile(&_config);
    _infoBar = new InfoBar(this);
    _infoBar->setTitle(tr("Curr Mean"));
    QLabel* heading = new QLabel(tr("Curr_mean"), this);

    _comboRange = new QComboBox(this);
    _comboRange->setObjectName("Range");
    populateRange();
    _labelHex = new QLabel(tr("---- (hex)"), this);
    _labelHex->setObjectName("Hex");
    _labelDec = new QLabel(tr("---- (dec)"), this);
    _labelDec->setObjectName("Dec");
    _labelValue = new QLabel(tr("---- (A)"), this);
    _labelValue->setObjectName("Value");
    _labelStatus = new QLabel(this);
    _labelStatus->setObjectName("Status");
    _buttonExec = new QPushButton(tr("Esegui"), this);
    _buttonExec->setObjectName("Esegui");
    _buttonExit = new QPushButton(tr("exit"), this);
    _buttonExit->setObjectName("exit");

    QGridLayout* grid = new QGridLayout;
    grid->addWidget(new QLabel(tr("Range:"), this), 0, 0);
    grid->addWidget(_comboRange, 0, 1, 1, 3);
    grid->addWidget(new QLabel(tr("Lettura:"), this), 1, 0);
    grid->addWidget(_labelHex, 1, 1);
    grid->addWidget(_labelDec, 1, 2);
    grid->addWidget(_labelValue, 1, 3);
    QHBoxLayout* buttons = new QHBoxLayout;
    buttons->addWidget(_buttonExec);
    buttons->addWidget(_buttonExit);
    QVBoxLayout* box = new QVBoxLayout(this);
    box->addWidget(_infoBar);
    box->addWidget(heading);
    box->addStretch();
    box->addLayout(grid);
    box->addWidget(_labelStatus);
    box->addStretch();
    box->addLayout(buttons);

    connect(_buttonExec, &QPushButton::clicked, this, &DialogCurrMean::goToExecCmd);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    _buttonExec->setFocus();
    setWindowState(windowState() | Qt::WindowMaximized);
}

void DialogCurrMean::populateRange()
{
    _rangeMap.insert("0 = 10A", 0);
    _rangeMap.insert("1 = 20A", 1);
    _comboRange->addItem("0 = 10A");
    _comboRange->addItem("1 = 20A");
}

int DialogCurrMean::getRange()
{
    return _rangeMap.value(_comboRange->currentText(), 0);
}

void DialogCurrMean::goToExecCmd()
{
    _buttonExec->setEnabled(false);
    _buttonExit->setEnabled(false);
    _labelStatus->setText(tr("Esecuzione comando...."));
    QCoreApplication::processEvents();

    _powerDevice = new PowerDevice();
    int range = getRange();
    int count = 0;
    _pdError error = _powerDevice->acquireIsc(static_cast<unsigned char>(range), &count);
    if (reportErrorSerialPort(error) != 0) {
        _labelHex->setText(tr("Err."));
        _labelDec->setText(tr("Err."));
        _labelValue->setText(tr("Err."));
    } else {
        // the subtraction in integers, then the gain of the range
        int offset = range == 1 ? _config.adci1offset : _config.adci0offset;
        float gain = range == 1 ? _config.adci1 : _config.adci0;
        float value = static_cast<float>(count - offset) * gain;
        _labelHex->setText(QString("0x%1").arg(count, 0, 16));
        _labelDec->setText(QString("%1").arg(count, 0, 10));
        _labelValue->setText(QString("%1 A").arg(static_cast<double>(value), 0, 'g'));
    }
    delete _powerDevice;
    _powerDevice = nullptr;
    _labelStatus->clear();
    _buttonExec->setEnabled(true);
    _buttonExit->setEnabled(true);
    // the disabled button lost the focus: the keys go on from where they were
    _buttonExec->setFocus();
    QCoreApplication::processEvents();
}

int DialogCurrMean::reportErrorSerialPort(_pdError error)
{
    return showServiceError(
        this, error, tr("Power Device"),
        {tr("Problem on access Serial Port."), tr("Excessive Voltage."), tr("Eccessive Current."),
         tr("Eccessive Power."), tr("Eccessive Energy."), tr("Reverse Polarity."),
         tr("Negative is Floating."), tr("Tensione Bassa."), tr("Corrente Bassa.")});
}

void DialogCurrMean::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Down:
        if (_comboRange->hasFocus())
            _buttonExec->setFocus();
        else if (_buttonExec->hasFocus())
            _buttonExit->setFocus();
        else
            _comboRange->setFocus();
        break;
    case Qt::Key_Up:
        if (_buttonExit->hasFocus())
            _buttonExec->setFocus();
        else if (_buttonExec->hasFocus())
            _comboRange->setFocus();
        else
            _buttonExit->setFocus();
        break;
    case Qt::Key_Return:
        if (_buttonExec->hasFocus())
            goToExecCmd();
        else if (_buttonExit->hasFocus())
            reject();
        else if (_comboRange->hasFocus())
            _comboRange->showPopup();
        break;
    case Qt::Key_Escape:
        reject();
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}
