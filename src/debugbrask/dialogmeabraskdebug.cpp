#include "debugbrask/dialogmeabraskdebug.h"

#include "data/datasetting.h"
#include "debugbrask/dialogviewdatameabraskdebug.h"
#include "debugbrask/serviceerror.h"
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

DialogMeaBraskDebug::DialogMeaBraskDebug(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowTitleHint), tempStart(0),
      tempStop(0), _powerDevice(nullptr)
{
    setObjectName("Mea Brask Debug ");
    readConfigFile(&_config);
    std::memset(&_rawRamp, 0, sizeof _rawRamp);
    std::memset(&_infoLast, 0, sizeof _infoLast);
    _infoBar = new InfoBar(this);
    _infoBar->setTitle(tr("Mea_Brask Debug"));
    // the report's fourteen rows fit the 600 pixels of the screen at 28 points
    _infoBar->setFont(font());
    QFont rows = font();
    rows.setPointSize(28);
    setFont(rows);
    QLabel* heading = new QLabel(tr("Mea_brask Debug"), this);

    QGridLayout* grid = new QGridLayout;
    grid->addWidget(new QLabel(tr("Last Info"), this), 0, 0, 1, 2);
    const char* names[9] = {"Range", "TestMode", "GateStep",      "TimeStep", "LastP",
                            "Icc",   "Voc",      "GateLastPoint", "NTC_DAC"};
    const QString texts[9] = {tr("Range"),    tr("TestMode"),      tr("GateStep"),
                              tr("TimeStep"), tr("LastP"),         tr("Icc"),
                              tr("Voc"),      tr("GateLastPoint"), tr("NTC_DAC")};
    for (int i = 0; i < 9; i++) {
        QLabel* value = new QLabel(this);
        value->setObjectName(names[i]);
        _labelInfo.append(value);
        grid->addWidget(new QLabel(texts[i], this), 1 + i % 5, 2 * (i / 5));
        grid->addWidget(value, 1 + i % 5, 2 * (i / 5) + 1);
    }
    _labelTempStart = new QLabel(this);
    _labelTempStart->setObjectName("TempStart");
    _labelTempStop = new QLabel(this);
    _labelTempStop->setObjectName("TempStop");
    grid->addWidget(new QLabel(tr("Temp Start: "), this), 6, 0);
    grid->addWidget(_labelTempStart, 6, 1);
    grid->addWidget(new QLabel(tr("Temp Stop: "), this), 6, 2);
    grid->addWidget(_labelTempStop, 6, 3);
    _labelStatus = new QLabel(this);
    _labelStatus->setObjectName("Status");

    _buttonExec = new QPushButton(tr("Esegui Debug"), this);
    _buttonExec->setObjectName("Esegui Debug");
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
    box->addLayout(grid);
    box->addWidget(_labelStatus);
    box->addStretch();
    box->addLayout(buttons);

    connect(_buttonExec, &QPushButton::clicked, this, &DialogMeaBraskDebug::goToExecCmdDebug);
    connect(_buttonView, &QPushButton::clicked, this, &DialogMeaBraskDebug::goToViewData);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    _buttonExec->setFocus();
    setWindowState(windowState() | Qt::WindowMaximized);
}

void DialogMeaBraskDebug::goToExecCmdDebug()
{
    QProgressDialog progress(tr("Esecuzione comando Debug..."), QString(), 0, 512, this,
                             Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
    progress.setObjectName("Progress");
    progress.setValue(0);
    progress.show();
    _buttonExec->setEnabled(false);
    _buttonExit->setEnabled(false);
    _powerDevice = new PowerDevice();
    std::memset(&_rawRamp, 0, sizeof _rawRamp);

    _labelStatus->setText(tr("Lettura temperatura iniziale..."));
    QCoreApplication::processEvents();
    _pdError error = _powerDevice->acquireTempHSink(&tempStart);
    _labelTempStart->setText(reportErrorSerialPort(error) != 0
                                 ? tr("Errore")
                                 : QString("%1").arg(static_cast<double>(tempStart), 0, 'g'));

    _labelStatus->setText(tr("Esecuzione comando Debug...."));
    QCoreApplication::processEvents();
    error = _powerDevice->acquireBraskDebug(&_rawRamp, &progress);
    if (reportErrorSerialPort(error) != 0) {
        // no view of a failed ramp: no file of zeros can be written
        _labelStatus->setText(tr("Errore esecuzione"));
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

    _labelStatus->setText(tr("Lettura temperatura finale..."));
    QCoreApplication::processEvents();
    error = _powerDevice->acquireTempHSink(&tempStop);
    _labelTempStop->setText(reportErrorSerialPort(error) != 0
                                ? tr("Errore")
                                : QString("%1").arg(static_cast<double>(tempStop), 0, 'g'));

    delete _powerDevice;
    _powerDevice = nullptr;
    _labelStatus->clear();
    _buttonExec->setEnabled(true);
    _buttonExit->setEnabled(true);
    // the disabled button lost the focus: the keys go on from where they were
    _buttonExec->setFocus();
    QCoreApplication::processEvents();
}

void DialogMeaBraskDebug::goToViewData()
{
    DialogViewDataMeaBraskDebug* view =
        new DialogViewDataMeaBraskDebug(this, &_rawRamp, &_infoLast, tempStart, tempStop);
    view->exec();
    delete view;
}

int DialogMeaBraskDebug::reportErrorSerialPort(_pdError error)
{
    return showServiceError(
        this, error, tr("Power Device"),
        {tr("Problem on access Serial Port."), tr("Excessive Voltage."), tr("Eccessive Current."),
         tr("Eccessive Power."), tr("Eccessive Energy."), tr("Reverse Polarity."),
         tr("Negative is Floating."), tr("Tensione Bassa."), tr("Corrente Bassa.")});
}

void DialogMeaBraskDebug::keyPressEvent(QKeyEvent* event)
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
            goToExecCmdDebug();
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
