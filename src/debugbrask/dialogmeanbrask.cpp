#include "debugbrask/dialogmeanbrask.h"

#include "data/datasetting.h"
#include "device/powerdevice.h"
#include "toolkit/infobar.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

DialogMeanBrask::DialogMeanBrask(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowTitleHint),
      _powerDevice(nullptr)
{
    readConfigFile(&_config);
}

void DialogMeanBrask::build(const Texts& texts, const QStringList& ranges, const QString& unit)
{
    _texts = texts;
    _unit = unit;
    _infoBar = new InfoBar(this);
    _infoBar->setTitle(texts.title);
    QLabel* heading = new QLabel(texts.heading, this);

    _comboRange = new QComboBox(this);
    _comboRange->setObjectName("Range");
    for (int i = 0; i < ranges.size(); i++)
        _rangeMap.insert(ranges[i], i);
    _comboRange->addItems(ranges);
    _labelHex = new QLabel(texts.hex, this);
    _labelHex->setObjectName("Hex");
    _labelDec = new QLabel(texts.dec, this);
    _labelDec->setObjectName("Dec");
    _labelValue = new QLabel(texts.value, this);
    _labelValue->setObjectName("Value");
    _labelStatus = new QLabel(this);
    _labelStatus->setObjectName("Status");
    _buttonExec = new QPushButton(texts.exec, this);
    _buttonExec->setObjectName("Esegui");
    _buttonExit = new QPushButton(texts.exit, this);
    _buttonExit->setObjectName("exit");

    QGridLayout* grid = new QGridLayout;
    grid->addWidget(new QLabel(texts.range, this), 0, 0);
    grid->addWidget(_comboRange, 0, 1, 1, 3);
    grid->addWidget(new QLabel(texts.reading, this), 1, 0);
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

    connect(_buttonExec, &QPushButton::clicked, this, &DialogMeanBrask::goToExecCmd);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    _buttonExec->setFocus();
    setWindowState(windowState() | Qt::WindowMaximized);
}

int DialogMeanBrask::getRange()
{
    return _rangeMap.value(_comboRange->currentText(), 0);
}

void DialogMeanBrask::goToExecCmd()
{
    _buttonExec->setEnabled(false);
    _buttonExit->setEnabled(false);
    _labelStatus->setText(_texts.running);
    QCoreApplication::processEvents();

    _powerDevice = new PowerDevice();
    int range = getRange();
    int count = 0;
    _pdError error = acquire(_powerDevice, static_cast<unsigned char>(range), &count);
    if (reportErrorSerialPort(error) != 0) {
        _labelHex->setText(_texts.error);
        _labelDec->setText(_texts.error);
        _labelValue->setText(_texts.error);
    } else {
        float value = toUnits(range, count);
        _labelHex->setText(QString("0x%1").arg(count, 0, 16));
        _labelDec->setText(QString("%1").arg(count, 0, 10));
        _labelValue->setText(QString("%1 %2").arg(static_cast<double>(value), 0, 'g').arg(_unit));
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

void DialogMeanBrask::keyPressEvent(QKeyEvent* event)
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
