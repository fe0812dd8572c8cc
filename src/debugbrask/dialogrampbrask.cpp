#include "debugbrask/dialogrampbrask.h"

#include "data/datasetting.h"
#include "device/powerdevice.h"
#include "toolkit/infobar.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressDialog>
#include <QPushButton>
#include <QVBoxLayout>
#include <cstring>

DialogRampBrask::DialogRampBrask(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowTitleHint), tempStart(0),
      tempStop(0), _powerDevice(nullptr)
{
    readConfigFile(&_config);
    std::memset(&_infoLast, 0, sizeof _infoLast);
}

void DialogRampBrask::build(const Texts& texts, const QString& execName)
{
    _texts = texts;
    _infoBar = new InfoBar(this);
    _infoBar->setTitle(texts.title);
    // the report's fourteen rows fit the 600 pixels of the screen at 28 points
    _infoBar->setFont(font());
    QFont rows = font();
    rows.setPointSize(28);
    setFont(rows);
    QLabel* heading = new QLabel(texts.heading, this);

    QGridLayout* grid = new QGridLayout;
    grid->addWidget(new QLabel(texts.lastInfo, this), 0, 0, 1, 2);
    const char* names[9] = {"Range", "TestMode", "GateStep",      "TimeStep", "LastP",
                            "Icc",   "Voc",      "GateLastPoint", "NTC_DAC"};
    for (int i = 0; i < 9; i++) {
        QLabel* value = new QLabel(this);
        value->setObjectName(names[i]);
        _labelInfo.append(value);
        grid->addWidget(new QLabel(texts.fields.value(i), this), 1 + i % 5, 2 * (i / 5));
        grid->addWidget(value, 1 + i % 5, 2 * (i / 5) + 1);
    }
    _labelTempStart = new QLabel(this);
    _labelTempStart->setObjectName("TempStart");
    _labelTempStop = new QLabel(this);
    _labelTempStop->setObjectName("TempStop");
    grid->addWidget(new QLabel(texts.tempStart, this), 6, 0);
    grid->addWidget(_labelTempStart, 6, 1);
    grid->addWidget(new QLabel(texts.tempStop, this), 6, 2);
    grid->addWidget(_labelTempStop, 6, 3);
    _labelStatus = new QLabel(this);
    _labelStatus->setObjectName("Status");

    _buttonExec = new QPushButton(texts.exec, this);
    _buttonExec->setObjectName(execName);
    _buttonView = new QPushButton(texts.view, this);
    _buttonView->setObjectName("Visualizza Dati");
    _buttonView->setEnabled(false);
    _buttonExit = new QPushButton(texts.exit, this);
    _buttonExit->setObjectName("exit");
    QHBoxLayout* buttons = new QHBoxLayout;
    buttons->addWidget(_buttonExec);
    buttons->addWidget(_buttonView);
    buttons->addWidget(_buttonExit);

    QVBoxLayout* box = new QVBoxLayout(this);
    box->addWidget(_infoBar);
    box->addWidget(heading);
    box->addLayout(grid);
    box->addWidget(_labelStatus);
    box->addStretch();
    box->addLayout(buttons);

    connect(_buttonExec, &QPushButton::clicked, this, &DialogRampBrask::runRamp);
    connect(_buttonView, &QPushButton::clicked, this, &DialogRampBrask::goToViewData);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    _buttonExec->setFocus();
    setWindowState(windowState() | Qt::WindowMaximized);
}

void DialogRampBrask::showTemperature(QLabel* label, _pdError error, float value)
{
    label->setText(reportErrorSerialPort(error) != 0
                       ? _texts.error
                       : QString("%1").arg(static_cast<double>(value), 0, 'g'));
}

void DialogRampBrask::runRamp()
{
    QProgressDialog progress(_texts.running, QString(), 0, 512, this,
                             Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
    progress.setObjectName("Progress");
    progress.setValue(0);
    progress.show();
    _buttonExec->setEnabled(false);
    _buttonExit->setEnabled(false);
    _powerDevice = new PowerDevice();
    clearRamp();

    _labelStatus->setText(_texts.readingStart);
    QCoreApplication::processEvents();
    _pdError error = _powerDevice->acquireTempHSink(&tempStart);
    showTemperature(_labelTempStart, error, tempStart);

    _labelStatus->setText(_texts.runningStatus);
    QCoreApplication::processEvents();
    error = acquireRamp(_powerDevice, &progress);
    if (reportErrorSerialPort(error) != 0) {
        // no view of a failed ramp: no file of zeros can be written
        _labelStatus->setText(_texts.runError);
        _buttonView->setEnabled(false);
    } else {
        _powerDevice->acquireLastInfo(&_infoLast);
        const int fields[9] = {_infoLast.range,    _infoLast.testmode,      _infoLast.gatestep,
                               _infoLast.timestep, _infoLast.lastpoint,     _infoLast.icc,
                               _infoLast.voc,      _infoLast.gateLastPoint, _infoLast.ntc_dac};
        for (int i = 0; i < 9; i++)
            _labelInfo[i]->setText(QString::number(fields[i], 10));
        _buttonView->setEnabled(true);
    }

    _labelStatus->setText(_texts.readingStop);
    QCoreApplication::processEvents();
    error = _powerDevice->acquireTempHSink(&tempStop);
    showTemperature(_labelTempStop, error, tempStop);

    delete _powerDevice;
    _powerDevice = nullptr;
    _labelStatus->clear();
    _buttonExec->setEnabled(true);
    _buttonExit->setEnabled(true);
    // the disabled button lost the focus: the keys go on from where they were
    _buttonExec->setFocus();
    QCoreApplication::processEvents();
}

void DialogRampBrask::goToViewData()
{
    QDialog* view = newView();
    view->exec();
    delete view;
}

void DialogRampBrask::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Down:
        if (_buttonExec->hasFocus())
            (_buttonView->isEnabled() ? _buttonView : _buttonExit)->setFocus();
        else if (_buttonView->hasFocus())
            _buttonExit->setFocus();
        else
            _buttonExec->setFocus();
        break;
    case Qt::Key_Up:
        if (_buttonExit->hasFocus())
            (_buttonView->isEnabled() ? _buttonView : _buttonExec)->setFocus();
        else if (_buttonView->hasFocus())
            _buttonExec->setFocus();
        else
            _buttonExit->setFocus();
        break;
    case Qt::Key_Return:
        if (_buttonExec->hasFocus())
            runRamp();
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
