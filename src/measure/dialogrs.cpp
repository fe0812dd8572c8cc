#include "measure/dialogrs.h"

#include "data/datasetting.h"
#include "device/ad7795.h"
#include "device/keyboard.h"
#include "device/powerdevice.h"
#include "device/remoteunit.h"
#include "math/correzione.h"
#include "measure/testscreen.h"
#include "platform/clock.h"
#include "toolkit/messagebox.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <cmath>
#include <cstring>
#include <limits>

namespace
{

const float noValue = std::numeric_limits<float>::quiet_NaN();
const int boardOverheated = 65;        // degrees C of the heat sink
const float firstPhaseLeast = 500.0f;  // W/m2
const float secondPhaseLeast = 200.0f; // W/m2
const float leastDifference = 50.0f;   // W/m2 between the two phases
const double leastCurrent = 0.01;      // A at the maximum power point
const float floorRs = 0.1f;            // ohm

QString twoDecimals(float value)
{
    return QString::number(static_cast<double>(value), 'f', 2);
}

} // namespace

DialogRs::DialogRs(QWidget* parent)
    : QDialog(parent), _rs(0), _irradiance(0), _irr1(0), _irr2(0), _r1(0), _r2(0),
      _irradianceValid(false), _fase(FASE_1), _done(false), _timerEnv(nullptr), _remoteUnit(nullptr)
{
    setObjectName("DialogRs");
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
    setWindowTitle(tr("Rs"));
    readConfigFile(&_config);
    std::memset(&_rampParam, 0, sizeof _rampParam);
    std::memset(&_rawRamp, 0, sizeof _rawRamp);
    std::memset(&_ramp, 0, sizeof _ramp);
    std::memset(&_infoLast, 0, sizeof _infoLast);
    _powerDevice = new PowerDevice();

    _labelRs = new QLabel("----", this);
    _labelRs->setObjectName("Rs");
    _labelIrradiance = new QLabel("----", this);
    _labelIrradiance->setObjectName("Irradiance");
    for (QLabel* value : {_labelRs, _labelIrradiance}) {
        value->ensurePolished();
        value->setMinimumWidth(value->fontMetrics().horizontalAdvance("00000.00"));
        value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    _labelStatus = new QLabel(this);
    _labelStatus->setObjectName("Status");
    QGridLayout* grid = new QGridLayout;
    grid->setHorizontalSpacing(30);
    grid->addWidget(new QLabel(tr("Rs"), this), 0, 0);
    grid->addWidget(new QLabel(":", this), 0, 1);
    grid->addWidget(_labelRs, 0, 2);
    grid->addWidget(new QLabel(tr("ohm"), this), 0, 3);
    grid->addWidget(new QLabel(tr("Irr."), this), 1, 0);
    grid->addWidget(new QLabel(":", this), 1, 1);
    grid->addWidget(_labelIrradiance, 1, 2);
    grid->addWidget(new QLabel(QString::fromUtf8("W/m²"), this), 1, 3);

    _buttonMeasure = new QPushButton(this);
    _buttonMeasure->setObjectName("Misura");
    _buttonReset = new QPushButton(tr("Reset"), this);
    _buttonReset->setObjectName("Reset");
    _buttonExit = new QPushButton(tr("OK"), this);
    _buttonExit->setObjectName("OK");
    _buttonExit->setFlat(true);
    _buttonExit->setDefault(true);
    connect(_buttonMeasure, &QPushButton::clicked, this, &DialogRs::acquisizioneMisura);
    connect(_buttonReset, &QPushButton::clicked, this, &DialogRs::resetAll);
    connect(_buttonExit, &QPushButton::clicked, this, &DialogRs::exitDialog);

    QVBoxLayout* box = new QVBoxLayout(this);
    box->addLayout(grid);
    box->addWidget(_labelStatus, 0, Qt::AlignHCenter);
    box->addWidget(_buttonMeasure);
    box->addWidget(_buttonReset);
    box->addWidget(_buttonExit);

    labelFaseMisura();
    activateMisuraButton();
    new GpioKeyboard(this);
    // the dialog is on the screen before the link is tried
    Clock::singleShot(600, this, &DialogRs::activateRemoteUnit);
}

// The old screen left its timer and its remote unit behind; they go with it.
DialogRs::~DialogRs()
{
    delete _timerEnv;
    delete _remoteUnit;
    delete _powerDevice;
}

void DialogRs::activateRemoteUnit()
{
    if (_config.remote != LINK_LOCAL) {
        _labelStatus->setText(tr("Attivazione Collegamento.."));
        QCoreApplication::processEvents();
        delete _remoteUnit;
        _remoteUnit = new RemoteUnit(_config.remote, 10.54f);
        _labelStatus->setText(tr("Attivazione Collegamento..."));
        QCoreApplication::processEvents();
        bool connected = false;
        for (int attempt = 0; attempt < 4 && !connected; attempt++) {
            if (_remoteUnit->connect() != 0)
                connected = true;
            else
                _remoteUnit->disconnect();
        }
        if (connected) {
            _labelStatus->setText(tr("Collegamento Remoto..."));
        } else {
            _labelStatus->clear();
            msgConnectionOff();
        }
    }
    if (_timerEnv == nullptr) {
        _timerEnv = new QTimer;
        connect(_timerEnv, &QTimer::timeout, this, &DialogRs::readEnvMea);
    }
    Clock::start(_timerEnv, 1000);
}

void DialogRs::readEnvMea()
{
    char ok = 0;
    float value = noValue;
    if (_config.remote == LINK_LOCAL)
        value = irradiationAcquire(&ok);
    else if (_remoteUnit != nullptr && _remoteUnit->isConnect())
        value = _remoteUnit->getPirano(&ok);
    if (ok && twoDecimals(value) != "nan") {
        _labelIrradiance->setText(std::isfinite(value) ? twoDecimals(value) : QString("----"));
        _irradiance = value;
        _irradianceValid = true;
    } else {
        _labelIrradiance->setText("----");
        _irradiance = noValue;
        _irradianceValid = false;
    }
    activateMisuraButton();
}

void DialogRs::activateMisuraButton()
{
    _buttonMeasure->setEnabled(_irradianceValid);
}

void DialogRs::acquisizioneMisura()
{
    if (_timerEnv != nullptr)
        _timerEnv->stop();
    QMessageBox* box = newMessageBox(this, QMessageBox::Warning, tr("Irradiazione"),
                                     tr("Irradiazione troppo bassa."));
    if (_fase == FASE_1) {
        _r2 = 0;
        _rs = 0;
        _irr2 = 0;
        _r1 = 0;
        _irr1 = _irradiance;
        _labelRs->setText("----");
        if (_irr1 < firstPhaseLeast) {
            box->exec();
        } else {
            acquisizioneDatiPannello(FASE_1);
            // a failed ramp leaves _r1 at 0 and still moves on
            _fase = FASE_2;
        }
    } else {
        _irr2 = _irradiance;
        if (_irr2 > _irr1) {
            box->setText(tr("Irradiazione troppo alta."));
            box->exec();
        } else if (_irr2 < secondPhaseLeast) {
            box->exec();
        } else if (std::fabs(_irr1 - _irr2) < leastDifference) {
            // too close to the first: the box still says "too low"
            box->exec();
        } else {
            acquisizioneDatiPannello(FASE_2);
            _fase = FASE_1;
            // A resistance compared with an irradiance, as the instrument has
            // always done it: in practice the first phase's figure wins.
            _rs = _r1 < _irr2 ? _r1 : _r2;
            viewRs();
            _done = true;
        }
    }
    delete box;
    labelFaseMisura();
    if (_timerEnv != nullptr)
        Clock::start(_timerEnv, 1000);
}

void DialogRs::acquisizioneDatiPannello(_eFaseMisura fase)
{
    QProgressDialog progress(tr("Misura Modulo..."), QString(), 0, 100, this, messageBoxFlags);
    // the constructor's show timer would show it behind a refusal's box
    progress.reset();
    progress.setObjectName("RsProgress");
    progress.setStyleSheet(progressStyle("blue"));
    _rampParam.rampPoints = RAMP_POINTS;
    _rampParam.rampRange = 0;
    _rampParam.rampArg = 50;
    _rampParam.rampLimitA = 0;
    _rampParam.rampLimitB = 4095;
    std::memset(&_rawRamp, 0, sizeof _rawRamp);
    std::memset(&_ramp, 0, sizeof _ramp);
    progress.setValue(0);
    progress.show();

    float heatSink = 0;
    _powerDevice->acquireTempHSink(&heatSink);
    if (heatSink >= boardOverheated) {
        failRamp(PD_OVER_TEMPERATURE);
        return;
    }
    QCoreApplication::processEvents();
    _pdError error = _powerDevice->acquireBrask(&_rawRamp, &progress);
    if (error != PD_OK) {
        failRamp(error);
        return;
    }
    _powerDevice->acquireLastInfo(&_infoLast);

    float best = 0;
    float bestV = 0;
    float bestI = 0;
    for (int k = 0; k < _rampParam.rampPoints && k < RAMP_POINTS; k++) {
        float i = correzCorrente(_rawRamp.corrente[k], _config.adci1, _config.adci1offset);
        float v = correzTensione(_rawRamp.tensione[k], _config.adcv1, _config.adcv1offset);
        _ramp.corrente[k] = i;
        _ramp.tensione[k] = v;
        float power = v * i;
        if (power > best) {
            best = power;
            bestV = v;
            bestI = i;
        }
    }
    float figure = 0;
    if (_rampParam.rampPoints > 0 && static_cast<double>(bestI) >= leastCurrent)
        figure = bestV / bestI;
    if (fase == FASE_1)
        _r1 = figure;
    else
        _r2 = figure;
}

void DialogRs::failRamp(_pdError error)
{
    QString text;
    QMessageBox::Icon icon = QMessageBox::Warning;
    switch (error) {
    case PD_OVER_VOLTAGE:
        text = tr("Tensione Eccessiva.");
        break;
    case PD_OVER_CURRENT:
        text = tr("Corrente Eccessiva.");
        break;
    case PD_OVER_POWER:
        text = tr("Potenza Eccessiva.");
        break;
    case PD_OVER_ENERGY:
        text = tr("Energia Eccessiva.");
        break;
    case PD_REVERSE_POLARITY:
        text = tr("Polarità Inversa.");
        break;
    case PD_NEGATIVE_FLOATING:
        text = tr("Negativo Flottante.");
        break;
    case PD_LOW_VOLTAGE:
        text = tr("Tensione troppo bassa.");
        break;
    case PD_LOW_CURRENT:
        text = tr("Corrente troppo bassa.");
        break;
    case PD_OVER_TEMPERATURE:
        text = tr("Attendere raffreddamento...\nStrumento surriscaldato.\nAttendere prima "
                  "di riprendere i test.");
        break;
    case PD_NO_REPLY:
        icon = QMessageBox::Critical;
        text = tr("Problema di connessione al Power Device.");
        break;
    default:
        break;
    }
    showMessageBox(this, icon, tr("Power Device"), text);
}

void DialogRs::viewRs()
{
    if (!(static_cast<double>(_rs) > 0.1)) {
        _rs = floorRs;
        _labelRs->setText("----");
    } else {
        _labelRs->setText(twoDecimals(_rs));
    }
}

void DialogRs::labelFaseMisura()
{
    _buttonMeasure->setText(_fase == FASE_1 ? tr("Misura Fase 1") : tr("Misura Fase 2"));
}

void DialogRs::resetAll()
{
    _r2 = 0;
    _rs = 0;
    _irradiance = 0;
    _irr1 = 0;
    _irr2 = 0;
    _r1 = 0;
    _fase = FASE_1;
    _done = false;
    _irradianceValid = false;
    _labelRs->setText("----");
    labelFaseMisura();
    activateMisuraButton();
}

void DialogRs::msgConnectionOff()
{
    showMessageBox(this, QMessageBox::Critical, tr("Unità Remota"), tr("Non connessa o assente."));
}

void DialogRs::exitDialog()
{
    if (_config.remote != LINK_LOCAL && _remoteUnit != nullptr)
        _remoteUnit->disconnect();
    reject();
}

void DialogRs::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
        if (focusWidget() == _buttonExit)
            exitDialog();
        else if (focusWidget() == _buttonMeasure)
            acquisizioneMisura();
        else if (focusWidget() == _buttonReset)
            resetAll();
        break;
    case Qt::Key_Up:
    case Qt::Key_Down:
        // the reset button is reached by touch alone
        if (focusWidget() == _buttonExit || focusWidget() == _buttonReset)
            _buttonMeasure->setFocus();
        else if (focusWidget() == _buttonMeasure)
            _buttonExit->setFocus();
        break;
    case Qt::Key_Escape:
        exitDialog();
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}
