#include "measure/dialogambiente.h"

#include "device/ad7795.h"
#include "device/keyboard.h"
#include "device/remoteunit.h"
#include "platform/clock.h"
#include "toolkit/messagebox.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <cmath>
#include <limits>

namespace
{

// The name of the cell temperature row of the oldest units: no screen shows
// it any more, the catalogue keeps it.
const char* const cellTemperatureName = QT_TRANSLATE_NOOP("DialogAmbiente", "Temp. Cell.");

const float notANumber = std::numeric_limits<float>::quiet_NaN();

// A value with two decimals; "nan" and "inf" are not values.
QString valueText(float value)
{
    if (!std::isfinite(value))
        return QStringLiteral("----");
    return QString::number(static_cast<double>(value), 'f', 2);
}

} // namespace

DialogAmbiente::DialogAmbiente(QWidget* parent, bool realTime, _probeTemp probe,
                               _remoteUnitLink link, float temperature, float irradiance,
                               float gain, float offset, bool referenceChosen)
    : QDialog(parent), _realTime(realTime), _probe(probe), _link(link), _temperature(notANumber),
      _irradiance(notANumber), _temperatureValid(false), _irradianceValid(false), _gain(gain),
      _offset(offset), _remoteUnit(nullptr), _timerRead(nullptr)
{
    Q_UNUSED(cellTemperatureName);
    setObjectName("Environment Measures");
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
    setWindowTitle(tr("Misure Ambiente"));
    if (probe == PROBE_MANUAL)
        _temperature = temperature;

    QString temperatureName;
    switch (probe) {
    case PROBE_MODULE:
        temperatureName = tr("Temp. Mod.");
        break;
    case PROBE_AUTO:
        temperatureName = tr("Temp. Auto");
        break;
    case PROBE_MANUAL:
        temperatureName = tr("Temp. Manuale");
        break;
    default:
        temperatureName = tr("Temp. Amb.");
        break;
    }
    _labelTemperature = new QLabel(this);
    _labelTemperature->setObjectName("Temperature");
    _labelIrradiance = new QLabel(this);
    _labelIrradiance->setObjectName("Irradiance");
    // the values change under the operator's eyes: their column is as wide
    // as the widest of them from the start
    for (QLabel* value : {_labelTemperature, _labelIrradiance}) {
        value->ensurePolished();
        value->setMinimumWidth(value->fontMetrics().horizontalAdvance("> -0000.00"));
        value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    QGridLayout* grid = new QGridLayout;
    grid->setHorizontalSpacing(30);
    grid->addWidget(new QLabel(temperatureName, this), 0, 0);
    grid->addWidget(new QLabel(":", this), 0, 1);
    grid->addWidget(_labelTemperature, 0, 2);
    grid->addWidget(new QLabel(QString::fromUtf8("°C"), this), 0, 3);
    grid->addWidget(new QLabel(tr("Irr."), this), 1, 0);
    grid->addWidget(new QLabel(":", this), 1, 1);
    grid->addWidget(_labelIrradiance, 1, 2);
    grid->addWidget(new QLabel(QString::fromUtf8("W/m²"), this), 1, 3);

    _labelStatus = new QLabel(this);
    _labelStatus->setObjectName("Status");
    _labelLink = new QLabel(this);
    _labelLink->setObjectName("Link");
    _buttonOk = new QPushButton(tr("OK"), this);
    _buttonOk->setObjectName("OK");
    _buttonCancel = new QPushButton(QIcon(":/icon/cancel.png"), tr("Annulla"), this);
    _buttonCancel->setObjectName("Annulla");
    connect(_buttonOk, &QPushButton::clicked, this, &DialogAmbiente::exitDialog);
    connect(_buttonCancel, &QPushButton::clicked, this, &DialogAmbiente::exitDialog);
    QHBoxLayout* buttons = new QHBoxLayout;
    buttons->addWidget(_buttonOk);
    buttons->addWidget(_buttonCancel);

    QVBoxLayout* box = new QVBoxLayout(this);
    box->addLayout(grid);
    box->addWidget(_labelStatus, 0, Qt::AlignHCenter);
    box->addWidget(_labelLink, 0, Qt::AlignHCenter);
    box->addLayout(buttons);

    if (realTime) {
        _labelTemperature->setText("----");
        _labelIrradiance->setText("----");
        Clock::singleShot(800, this, &DialogAmbiente::activateRealTime);
    } else {
        _labelIrradiance->setText(valueText(irradiance));
        if (probe == PROBE_AUTO && !referenceChosen) {
            // a computed temperature needs a module
            _labelTemperature->setText("----");
        } else if (probe == PROBE_AUTO) {
            QString text = QString::number(static_cast<double>(temperature), 'f', 2);
            if (text == "nan" || text == "inf" || text == "-inf")
                _labelTemperature->setText("----");
            else if (temperature <= -20.0f)
                _labelTemperature->setText("< -20.00");
            else if (temperature >= 100.0f)
                _labelTemperature->setText("> 100.00");
            else
                _labelTemperature->setText(text);
        } else {
            _labelTemperature->setText(valueText(temperature));
        }
    }
    if (link != LINK_LOCAL) {
        _labelLink->setPixmap(
            QPixmap(link == LINK_BLUETOOTH ? ":/icon/radiotray3.png" : ":/icon/usbrs3.png"));
        _labelStatus->setText(tr("Attivazione Collegamento."));
    }
    _keyboard = new GpioKeyboard(this);
}

// The old screen left its timer and its remote unit behind when it closed;
// they go with it now. The operator sees no difference.
DialogAmbiente::~DialogAmbiente()
{
    delete _timerRead;
    delete _remoteUnit;
}

void DialogAmbiente::showLink(const char* picture, const QString& status)
{
    _labelLink->setPixmap(QPixmap(picture));
    _labelStatus->setText(status);
    QCoreApplication::processEvents();
}

void DialogAmbiente::activateRealTime()
{
    if (_link != LINK_LOCAL) {
        const bool bluetooth = _link == LINK_BLUETOOTH;
        const char* frame1 = bluetooth ? ":/icon/radiotray1.png" : ":/icon/usbrs1.png";
        const char* frame2 = bluetooth ? ":/icon/radiotray2.png" : ":/icon/usbrs2.png";
        const char* frame3 = bluetooth ? ":/icon/radiotray3.png" : ":/icon/usbrs3.png";
        // The first frame of the serial adapter is written with a comma here
        // and names no picture: the frame stays blank at that moment, as it
        // always has on the instrument.
        showLink(bluetooth ? ":/icon/radiotray1.png" : ":/icon/usbrs1,png",
                 tr("Attivazione Collegamento."));
        Clock::usleep(500);
        delete _remoteUnit;
        _remoteUnit = new RemoteUnit(_link, 10.54f);
        showLink(frame2, tr("Attivazione Collegamento.."));
        int failures = 0;
        bool connected = false;
        while (!connected && failures < 4) {
            showLink(frame3, tr("Attivazione Collegamento.."));
            if (_remoteUnit->connect() != 0) {
                connected = true;
            } else {
                _remoteUnit->disconnect();
                failures++;
            }
            showLink(frame2, tr("Attivazione Collegamento."));
            Clock::usleep(600);
            showLink(frame1, tr("Attivazione Collegamento."));
        }
        if (!connected) {
            _labelLink->setPixmap(QPixmap(frame1));
            msgConnectionOff();
            return;
        }
        showLink(bluetooth ? ":/icon/bluetooth.png" : ":/icon/usbadapter.png",
                 tr("Collegamento Remoto..."));
    }
    if (_realTime) {
        _timerRead = new QTimer;
        connect(_timerRead, &QTimer::timeout, this, &DialogAmbiente::readEnvPhisicMea);
        Clock::start(_timerRead, 1100);
    }
}

void DialogAmbiente::readEnvPhisicMea()
{
    char temperatureOk = 0;
    char irradianceOk = 0;
    float temperature = notANumber;
    float irradiance = notANumber;
    if (_link == LINK_LOCAL) {
        if (_probe == PROBE_MANUAL) {
            temperature = _temperature;
            temperatureOk = 1;
        } else if (_probe != PROBE_AUTO) {
            temperature = temperatureAcquire(&temperatureOk, _gain, _offset);
        }
        Clock::usleep(1000);
        irradiance = irradiationAcquire(&irradianceOk);
    } else if (_remoteUnit != nullptr && _remoteUnit->isConnect()) {
        _labelStatus->setText(tr("Collegamento Remoto."));
        QCoreApplication::processEvents();
        irradiance = _remoteUnit->getPirano(&irradianceOk);
        _labelStatus->setText(tr("Collegamento Remoto.."));
        QCoreApplication::processEvents();
        if (_probe == PROBE_AMBIENT) {
            temperature = _remoteUnit->getTempAmbiente(&temperatureOk);
        } else if (_probe == PROBE_MODULE) {
            temperature = _remoteUnit->getTempModulo(&temperatureOk);
        } else if (_probe == PROBE_MANUAL) {
            temperature = _temperature;
            temperatureOk = 1;
        }
        _labelStatus->setText(tr("Collegamento Remoto..."));
        QCoreApplication::processEvents();
    } else {
        // The link is lost: one box, dashes, and no more readings.
        if (_realTime) {
            _labelLink->setPixmap(
                QPixmap(_link == LINK_BLUETOOTH ? ":/icon/radiotray1.png" : ":/icon/usbrs1.png"));
            if (_timerRead != nullptr)
                _timerRead->stop();
        }
        msgConnectionOff();
        _labelTemperature->setText("----");
        _labelIrradiance->setText("----");
        return;
    }
    auto display = [](QLabel* label, char ok, float read, float* value, bool* valid) {
        if (!ok) {
            label->setText("----");
            *value = notANumber;
            *valid = false;
        } else {
            label->setText(valueText(read));
            *value = read;
            *valid = true;
        }
    };
    display(_labelTemperature, temperatureOk, temperature, &_temperature, &_temperatureValid);
    display(_labelIrradiance, irradianceOk, irradiance, &_irradiance, &_irradianceValid);
}

void DialogAmbiente::msgConnectionOff()
{
    showMessageBox(this, QMessageBox::Critical, tr("Unità Remota"), tr("Non connessa o assente."));
}

void DialogAmbiente::exitDialog()
{
    if ((_link == LINK_USB || _link == LINK_BLUETOOTH) && _remoteUnit != nullptr)
        _remoteUnit->disconnect();
    reject();
}

void DialogAmbiente::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return &&
        (focusWidget() == _buttonOk || focusWidget() == _buttonCancel)) {
        exitDialog();
    } else if (event->key() == Qt::Key_Escape) {
        exitDialog();
    } else if (event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab) {
        if (focusWidget() == _buttonOk)
            _buttonCancel->setFocus();
        else
            _buttonOk->setFocus();
    }
    QWidget::keyPressEvent(event);
}
