#include "debugbrask/dialogtemphsink.h"

#include "debugbrask/serviceerror.h"
#include "device/keyboard.h"
#include "device/powerdevice.h"
#include "platform/clock.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

DialogTempHSink::DialogTempHSink(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint),
      _powerDevice(nullptr)
{
    setObjectName("Temp HSink");
    setWindowTitle(tr("Temp HSink"));
    new GpioKeyboard(this);
    _labelTemp = new QLabel(this);
    _labelTemp->setObjectName("Reading");
    _buttonExit = new QPushButton(tr("exit"), this);
    _buttonExit->setObjectName("exit");
    QHBoxLayout* line = new QHBoxLayout;
    line->addWidget(new QLabel(tr("Temp HSink:"), this));
    line->addWidget(_labelTemp);
    line->addWidget(new QLabel(tr("'C"), this));
    line->addStretch();
    QVBoxLayout* box = new QVBoxLayout(this);
    box->addLayout(line);
    box->addWidget(_buttonExit);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    _buttonExit->setFocus();

    viewTempHSink();
    // the timer goes on during a box: a dead board gives one box per tick
    _timer = new QTimer(this);
    connect(_timer, &QTimer::timeout, this, &DialogTempHSink::viewTempHSink);
    Clock::start(_timer, 1000);
}

void DialogTempHSink::viewTempHSink()
{
    QCoreApplication::processEvents();
    // a tick during the box below comes back here: each reading keeps its own port
    PowerDevice* device = new PowerDevice();
    _powerDevice = device;
    float temperature = 0;
    _pdError error = device->acquireTempHSink(&temperature);
    if (reportErrorSerialPort(error) != 0)
        _labelTemp->setText(tr("Errore"));
    else
        _labelTemp->setText(QString("%1").arg(static_cast<double>(temperature), 0, 'g'));
    delete device;
    if (_powerDevice == device)
        _powerDevice = nullptr;
    QCoreApplication::processEvents();
}

int DialogTempHSink::reportErrorSerialPort(_pdError error)
{
    return showServiceError(
        this, error, tr("Power Device"),
        {tr("Problem on access Serial Port."), tr("Excessive Voltage."), tr("Eccessive Current."),
         tr("Eccessive Power."), tr("Eccessive Energy."), tr("Reverse Polarity."),
         tr("Negative is Floating."), tr("Tensione Bassa."), tr("Corrente Bassa.")});
}

void DialogTempHSink::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Down:
    case Qt::Key_Up:
        _buttonExit->setFocus();
        break;
    case Qt::Key_Return:
    case Qt::Key_Escape:
        reject();
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}
