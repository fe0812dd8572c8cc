#include "measure/panelIV.h"

#include "data/datameasures.h"
#include "data/datapanel.h"
#include "data/datasetting.h"
#include "data/storedtext.h"
#include "device/ad7795.h"
#include "device/gpiopd.h"
#include "device/keyboard.h"
#include "device/powerdevice.h"
#include "device/remoteunit.h"
#include "math/curvechain.h"
#include "math/dpmax.h"
#include "math/scale.h"
#include "math/temperatura.h"
#include "math/utility.h"
#include "measure/dialogambiente.h"
#include "measure/dialogdatielettrici.h"
#include "measure/dialogdegrado.h"
#include "measure/dialoginfo.h"
#include "measure/dialogrs.h"
#include "measure/dialogshutdown.h"
#include "measure/dialogviewrs.h"
#include "measure/refpanel.h"
#include "measure/testscreen.h"
#include "platform/clock.h"
#include "toolkit/infobar.h"
#include "toolkit/messagebox.h"
#include "toolkit/numbertext.h"
#include "toolkit/plotter.h"

#include <QAction>
#include <QApplication>
#include <QDateTime>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>
#include <cmath>
#include <cstring>
#include <limits>

namespace
{

const float noValue = std::numeric_limits<float>::quiet_NaN();
// The probe value of the automatic temperature mode, and what a temperature
// out of limits is reset to.
const float autoTemperature = -20.0f;
const int boardOverheated = 65; // degrees C of the heat sink

} // namespace

PanelIV::PanelIV(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowTitleHint), _result(0),
      _degradoEnabled(false), _degradoYears(0), _degradoPercent(0), _temperature(noValue),
      _temperatureProbe(noValue), _irradiance(noValue), _irradianceProbe(noValue), _pmax(0),
      _vmpp(0), _impp(0), _pmaxStc(noValue), _vmppStc(noValue), _imppStc(noValue), _isc(noValue),
      _voc(noValue), _iscStc(noValue), _vocStc(noValue), _deltaPmax(noValue), _measureDone(false),
      _powerRestored(false), _rsDone(false), _rs(0), _rsI1(0), _rsI2(0), _stcValid(false),
      _temperatureValid(false), _irradianceValid(false), _referenceChosen(false),
      _curveValid(false), _powerOpcShown(false), _powerStcShown(false), _powerDevice(nullptr),
      _shutDownsSeen(DialogShutDown::opened()), _measureRunning(false)
{
    setObjectName("PanelIV");
    readConfigFile(&_config);
    _title = tr("Panel IV");
    std::memset(&_rawRamp, 0, sizeof _rawRamp);
    std::memset(&_ramp, 0, sizeof _ramp);
    std::memset(&_rampExact, 0, sizeof _rampExact);
    std::memset(&_rampStc, 0, sizeof _rampStc);
    std::memset(&_rampSmooth, 0, sizeof _rampSmooth);
    std::memset(&_rampStcSmooth, 0, sizeof _rampStcSmooth);
    std::memset(&_infoLast, 0, sizeof _infoLast);
    std::memset(&_reference, 0, sizeof _reference);
    std::memset(_modelFile, 0, sizeof _modelFile);
    std::memset(_brandDir, 0, sizeof _brandDir);
    std::memset(_modelName, 0, sizeof _modelName);
    std::memset(_brandName, 0, sizeof _brandName);
    _powerDevice = new PowerDevice();

    QWidget* bar = new QWidget(this);
    _plotter = new Plotter(this, _title, bar);
    _buttonStart = barButton(tr("Start"), "Start", true);
    _buttonStart->setAutoDefault(true);
    _buttonReference = barButton(tr("Confronto"), "Confronto", true);
    _buttonMeasures = barButton(tr("Misure"), "Misure", false);
    _buttonSave = barButton(tr("Salva"), "Salva", true);
    _buttonSave->setEnabled(false);
    _buttonExit = barButton(tr("Exit"), "Exit", true);
    _buttonExit->setDefault(true);
    _labelSupply = new QLabel;
    _labelSupply->setObjectName("supply");
    _labelSupply->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
    _labelClock = new QLabel;
    _labelClock->setObjectName("clock");
    _labelClock->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);

    layOutScreen(this, _plotter, bar,
                 {_buttonStart, _buttonReference, _buttonMeasures, _buttonSave, _buttonExit},
                 _labelSupply, _labelClock);

    _actionRsCalc = new QAction(tr("Calcolo"), this);
    _actionRsCalc->setObjectName("RsCalcolo");
    _actionRsView = new QAction(tr("Misurato"), this);
    _actionRsView->setObjectName("RsMisurato");
    _actionRsView->setEnabled(false);
    _actionEnvNow = new QAction(tr("Attuale"), this);
    _actionEnvNow->setObjectName("AmbienteAttuale");
    _actionEnvAtMeasure = new QAction(tr("Misurato"), this);
    _actionEnvAtMeasure->setObjectName("AmbienteMisurato");
    _actionEnvAtMeasure->setEnabled(false);
    _actionPanelData = new QAction(tr("Modulo"), this);
    _actionPanelData->setObjectName("Modulo");
    _actionPowerOpc = new QAction(tr("Potenza OPC"), this);
    _actionPowerOpc->setObjectName("PotenzaOPC");
    _actionPowerStc = new QAction(tr("Potenza STC"), this);
    _actionPowerStc->setObjectName("PotenzaSTC");
    _actionPowerStc->setEnabled(false);
    _actionPowerStc->setVisible(false);
    _menuPower = new QMenu(tr("Potenza"), this);
    _menuPower->setObjectName("Potenza");
    _menuPower->addAction(_actionPowerOpc);
    _menuPower->addSeparator();
    _menuPower->addAction(_actionPowerStc);
    _menuEnv = new QMenu(tr("Ambiente"), this);
    _menuEnv->setObjectName("Ambiente");
    _menuEnv->addAction(_actionEnvNow);
    _menuEnv->addSeparator();
    _menuEnv->addAction(_actionEnvAtMeasure);
    _menuRs = new QMenu(tr("Rs"), this);
    _menuRs->setObjectName("Rs");
    _menuRs->addAction(_actionRsCalc);
    _menuRs->addSeparator();
    _menuRs->addAction(_actionRsView);
    _menuMeasures = new QMenu(this);
    _menuMeasures->setObjectName("MenuMisure");
    _menuMeasures->addMenu(_menuRs);
    _menuMeasures->addSeparator();
    _menuMeasures->addMenu(_menuEnv);
    _buttonMeasures->setMenu(_menuMeasures);

    connect(_buttonStart, &QPushButton::clicked, this, &PanelIV::measurePanel);
    connect(_buttonReference, &QPushButton::clicked, this, &PanelIV::goToReferencePanel);
    connect(_buttonMeasures, &QPushButton::clicked, this, &PanelIV::goToEnvMea);
    connect(_buttonSave, &QPushButton::clicked, this, &PanelIV::goToSavePanelAcquired);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    connect(_actionRsCalc, &QAction::triggered, this, &PanelIV::goToRsMea);
    connect(_actionRsView, &QAction::triggered, this, &PanelIV::goToRsMisurato);
    connect(_actionEnvNow, &QAction::triggered, this, &PanelIV::goToEnvMea);
    connect(_actionEnvAtMeasure, &QAction::triggered, this, &PanelIV::displayEnvMeaAtMeasure);
    connect(_actionPanelData, &QAction::triggered, this, &PanelIV::goToPanelMea);
    connect(_actionPowerOpc, &QAction::triggered, this, &PanelIV::displayPowerCurveOPC);
    connect(_actionPowerStc, &QAction::triggered, this, &PanelIV::displayPowerCurveSTC);

    _timerClock = new QTimer(this);
    connect(_timerClock, &QTimer::timeout, this, &PanelIV::displayClock);
    Clock::start(_timerClock, 60000);
    _timerSupply = new QTimer(this);
    connect(_timerSupply, &QTimer::timeout, this, &PanelIV::displayPowerSupply);
    Clock::start(_timerSupply, 700);
    // No status bar: the screen shows clock and supply on its own labels and
    // polls the supply itself (a hidden bar polled it a second time and could
    // open a second low-battery dialog). The hardware keys come from here.
    new GpioKeyboard(this);
    displayClock();

    _buttonStart->setFocus();
    // maximized when shown: exec() shows it, and only then does it become modal
    setWindowState(windowState() | Qt::WindowMaximized);
}

PanelIV::~PanelIV()
{
    delete _powerDevice;
}

// ---- The acquisition.

void PanelIV::measurePanel()
{
    // The board exchange and the boxes run event loops in which "Start" can be
    // touched again: no measure starts inside another.
    if (_measureRunning)
        return;
    _measureRunning = true;
    struct Running {
        bool* flag;
        ~Running() { *flag = false; }
    } running{&_measureRunning};

    QMessageBox box(this);
    QProgressDialog progress(tr("Misura Modulo..."), QString(), 0, 512, this, messageBoxFlags);
    // Qt 6 starts a timer in the constructor that shows the dialog after its
    // minimum duration, even with no setValue at all: a refused start would
    // show it over the refusal's box. The old toolkit showed a progress
    // dialog only on show() or once setValue had passed the minimum duration;
    // reset() stops that timer and leaves those two ways.
    progress.reset();
    progress.setObjectName("MeasureProgress");
    progress.setStyleSheet(progressStyle("blue"));

    _temperatureProbe = noValue;
    _irradianceProbe = noValue;
    _stcValid = false;
    _temperatureValid = false;
    _irradianceValid = false;

    if (getProbeVar(true) != 0)
        return;

    const float t1 = _temperatureProbe;
    const float g1 = _irradianceProbe;
    _plotter->testResult = 4;
    _plotter->setViewPassTest(false);
    _plotter->clearPlotter();
    progress.setValue(0);
    progress.show();

    std::memset(&_rawRamp, 0, sizeof _rawRamp);
    std::memset(&_ramp, 0, sizeof _ramp);
    std::memset(&_rampExact, 0, sizeof _rampExact);
    std::memset(&_rampStc, 0, sizeof _rampStc);
    std::memset(&_rampSmooth, 0, sizeof _rampSmooth);

    float heatSink = 0;
    _powerDevice->acquireTempHSink(&heatSink);
    if (heatSink >= boardOverheated) {
        failMeasure(&box, PD_OVER_TEMPERATURE);
        return;
    }
    QCoreApplication::processEvents();
    _pdError error = _powerDevice->acquireBrask(&_rawRamp, &progress);
    if (error != PD_OK) {
        failMeasure(&box, error);
        return;
    }
    _powerDevice->acquireLastInfo(&_infoLast);

    if (getProbeVar(false) != 0) {
        // The ramps were cleared: an earlier measure can no longer be saved,
        // or its figures would go to file with a ramp of zeros. The old
        // instrument left "Salva" as it was here.
        _measureDone = false;
        _buttonSave->setEnabled(false);
        return;
    }
    const float g2 = _irradianceProbe;
    _temperature = t1;
    _temperatureProbe = t1;
    _irradiance = g1;
    _irradianceProbe = g1;

    progress.setLabelText(tr("Generazione Grafico..."));
    progress.setMaximum(512);
    progress.setWindowModality(Qt::WindowModal);
    progress.setValue(0);
    progress.show();

    measuredEndPoints(&_infoLast, &_config, &_isc, &_voc);
    _pmax = 0;
    convertRamp(&_rawRamp, &_config, &_rampExact, &_ramp, &_pmax, &_vmpp, &_impp, showConversion,
                &progress);

    _buttonStart->setChecked(false);
    _measureDone = true;
    _buttonSave->setEnabled(true);
    // Not cleared first: a second good measure moves the two entries to the
    // end and leaves two more separators; only a failure clears the menu.
    _menuMeasures->addSeparator();
    _menuMeasures->addAction(_actionPanelData);
    _menuMeasures->addSeparator();
    _menuMeasures->addMenu(_menuPower);

    smoothAndScale(&_ramp, &_rampSmooth, _isc, _voc);
    drawCurve(0, &_rampSmooth, &_rampSmooth);

    _curveValid = true;
    _deltaPmax = 0;
    getControlIrr(g1, g2);
    checkPanelOk();
}

void PanelIV::failMeasure(QMessageBox* box, _pdError error)
{
    _buttonStart->setChecked(false);
    box->setWindowFlags(messageBoxFlags);
    box->setIcon(QMessageBox::Warning);
    box->setWindowTitle(tr("Power Device"));
    box->setStandardButtons(QMessageBox::Ok);
    box->setDefaultButton(QMessageBox::Ok);
    switch (error) {
    case PD_OVER_VOLTAGE:
        box->setText(tr("Tensione Eccessiva."));
        break;
    case PD_OVER_CURRENT:
        box->setText(tr("Corrente Eccessiva."));
        break;
    case PD_OVER_POWER:
        box->setText(tr("Potenza Eccessiva."));
        break;
    case PD_OVER_ENERGY:
        box->setText(tr("Energia Eccessiva."));
        break;
    case PD_REVERSE_POLARITY:
        box->setText(tr("Polarità Inversa."));
        break;
    case PD_NEGATIVE_FLOATING:
        box->setText(tr("Negativo Flottante."));
        break;
    case PD_LOW_VOLTAGE:
        box->setText(tr("Tensione troppo bassa."));
        break;
    case PD_LOW_CURRENT:
        box->setText(tr("Corrente troppo bassa."));
        break;
    case PD_OVER_TEMPERATURE:
        box->setText(tr("Attendere raffreddamento...\nStrumento surriscaldato.\nAttendere prima "
                        "di riprendere i test."));
        break;
    case PD_NO_REPLY:
        box->setIcon(QMessageBox::Critical);
        notePowerRestored();
        if (_powerRestored) {
            // the low battery dialog cut the board's supply: a lost reply was expected
            box->setText(tr("Eseguito ripristino modulo potenza."));
            _powerRestored = false;
        } else {
            box->setText(tr("Problema di connessione al Power Device."));
        }
        break;
    default:
        break;
    }
    box->exec();

    _measureDone = false;
    _buttonSave->setEnabled(false);
    _menuMeasures->clear();
    _menuMeasures->addMenu(_menuRs);
    _menuMeasures->addSeparator();
    _menuMeasures->addMenu(_menuEnv);
    _actionEnvAtMeasure->setEnabled(false);
    _stcValid = false;
    _powerStcShown = false;
    _powerOpcShown = false;
    _powerRestored = false;
    _temperatureValid = false;
    _irradianceValid = false;
    _curveValid = false;
}

int PanelIV::getProbeVar(bool showProgress)
{
    QProgressDialog progress(tr("Acquisizione Misure Ambiente"), QString(), 0, 10, this,
                             messageBoxFlags);
    progress.reset(); // stops the show timer of the constructor (see measurePanel)
    progress.setObjectName("EnvironmentProgress");
    if (showProgress) {
        progress.setStyleSheet(progressStyle("blue"));
        progress.setMinimumDuration(0);
    }
    QMessageBox box(this);

    _temperatureProbe = noValue;
    _irradianceProbe = noValue;
    _temperatureValid = false;
    _irradianceValid = false;

    if (showProgress) {
        progress.setMaximum(_config.remote == LINK_LOCAL ? 5 : 4);
        progress.setValue(0);
        progress.show();
        QCoreApplication::processEvents();
    }

    if (_config.remote == LINK_LOCAL) {
        readProbes(5, 0, showProgress, &progress, nullptr);
    } else {
        if (showProgress) {
            progress.setWindowTitle(tr("Connessione Unità Remota"));
            progress.setLabelText(tr("Attivazione Collegamento..."));
            QCoreApplication::processEvents();
            progress.setValue(1);
            QCoreApplication::processEvents();
        }
        RemoteUnit* unit = new RemoteUnit(_config.remote, 10.54f);
        bool connected = false;
        for (int failures = 0; failures < 4 && !connected;) {
            connected = unit->connect() != 0;
            if (!connected) {
                unit->disconnect();
                failures++;
                if (showProgress)
                    progress.setValue(failures);
            }
        }
        if (showProgress) {
            progress.setValue(4);
            QCoreApplication::processEvents();
        }
        if (connected) {
            if (showProgress) {
                progress.setLabelText(tr("Acquisizione Misure Ambiente"));
                progress.setMaximum(6);
                progress.setValue(1);
                progress.show();
                QCoreApplication::processEvents();
            }
            readProbes(5, 1, showProgress, &progress, unit);
        } else {
            showMessageBox(this, QMessageBox::Critical, tr("Unità Remota"),
                           tr("Non connessa o assente."));
        }
        unit->disconnect();
        delete unit;
    }

    box.setWindowFlags(messageBoxFlags);
    box.setIcon(QMessageBox::Warning);
    box.setStandardButtons(QMessageBox::Ok);
    box.setDefaultButton(QMessageBox::Ok);
    if (!_temperatureValid) {
        box.setWindowTitle(tr("Misure Ambiente"));
        box.setText(tr("Temperatura non rilevata."));
    } else if (!_irradianceValid) {
        box.setWindowTitle(tr("Misure Ambiente"));
        box.setText(tr("Irradiazione non rilevata."));
    } else if (showProgress && _irradianceProbe < _config.irrmin) {
        box.setWindowTitle(QString());
        box.setText(tr("Irraggiamento insufficiente (< ") + storedNumberText(_config.irrmin, 2) +
                    " W/m²)");
    } else {
        _actionEnvAtMeasure->setEnabled(true);
        return 0;
    }
    box.exec();
    _actionEnvAtMeasure->setEnabled(false);
    return 1;
}

// Five rounds of temperature and irradiance; the last good value of each stands.
void PanelIV::readProbes(int rounds, int first, bool showProgress, QProgressDialog* progress,
                         RemoteUnit* unit)
{
    readProbeRounds(&_config, rounds, first, showProgress ? progress : nullptr, unit,
                    &_temperatureProbe, &_temperatureValid, &_irradianceProbe, &_irradianceValid);
}

bool PanelIV::getControlIrr(float before, float after)
{
    if (irradianceDeltaExceeded(before, after)) {
        showMessageBox(this, QMessageBox::Warning, tr("Delta Irraggiamento Elevato"),
                       tr("Valori STC non disponibili.\nRipetere."));
        _stcValid = false;
        return true;
    }
    _stcValid = true;
    return false;
}

// ---- The result.

void PanelIV::drawCurve(int id, const _ramp_iv* axes, const _ramp_iv* curve)
{
    float vmax = 0;
    float imax = 0;
    curveMaxima(axes, &vmax, &imax);
    _plotter->setAxisX(0, panelVScale(vmax));
    _plotter->setAxisY(0, panelIScale(imax));
    _plotter->setCurveData(id, curvePoints(curve));
}

void PanelIV::checkPanelOk()
{
    if (!_temperatureValid && !_irradianceValid)
        return;
    if (_temperatureValid)
        _temperature = _temperatureProbe;
    if (_irradianceValid)
        _irradiance = _irradianceProbe;
    if (!_referenceChosen || !_curveValid)
        return;

    _temperature = calcola_temperatura(static_cast<_probeTemp>(_config.tprobe), 1, _temperature,
                                       _irradiance, _voc, &_reference);
    if (temperatureOutOfLimits(_temperature)) {
        QMessageBox* box = newMessageBox(this, QMessageBox::Information, QString(), QString());
        box->setInformativeText(tr("Temperatura fuori limite."));
        box->exec();
        delete box;
        _referenceChosen = false;
        std::memset(_modelName, 0, sizeof _modelName);
        std::memset(_brandName, 0, sizeof _brandName);
        std::memset(_brandDir, 0, sizeof _brandDir);
        _temperature = autoTemperature;
        return;
    }
    // without a stable irradiance the box of getControlIrr has spoken
    if (!_stcValid)
        return;

    const CurveFigures measured = {_isc, _voc, _impp, _vmpp, _pmax};
    CurveFigures stc;
    translateToStc(&_ramp, &measured, _irradiance, _temperature, &_reference, &_rampStc,
                   &_rampStcSmooth, &stc);
    _iscStc = stc.isc;
    _vocStc = stc.voc;
    _imppStc = stc.impp;
    _vmppStc = stc.vmpp;
    _pmaxStc = stc.pmax;
    // the axes of the translated curve hold the measured one too
    drawCurve(1, &_rampStcSmooth, &_rampStcSmooth);

    getDegrado();
    const float d = degradationAllowance(_degradoEnabled, _degradoYears, _degradoPercent);
    const Verdict verdict = panelVerdict(_pmaxStc, &_reference, d);
    _deltaPmax = verdict.deltaPmax;
    _result = verdict.result;
    // each is a toggle: the first call takes the old curve off, the second
    // draws it anew
    if (_powerStcShown) {
        displayPowerCurveSTC();
        displayPowerCurveSTC();
    } else if (_powerOpcShown) {
        displayPowerCurveOPC();
        displayPowerCurveOPC();
    }
    _plotter->testResult = _result;
    _plotter->setViewPassTest(true);
    _actionPowerStc->setEnabled(true);
    _actionPowerStc->setVisible(true);
}

void PanelIV::getDegrado()
{
    DialogDegrado* dialog = new DialogDegrado(this, MEA_PANEL);
    if (dialog->exec() == QDialog::Accepted) {
        _degradoYears = dialog->_years;
        _degradoPercent = dialog->_percent;
        _degradoEnabled = true;
    } else {
        _degradoEnabled = false;
    }
    delete dialog;
}

void PanelIV::displayPowerCurveOPC()
{
    togglePowerCurve(_plotter, false, &_powerOpcShown, &_powerStcShown, &_rampSmooth, _pmax);
}

void PanelIV::displayPowerCurveSTC()
{
    togglePowerCurve(_plotter, true, &_powerOpcShown, &_powerStcShown, &_rampStcSmooth, _pmaxStc);
}

// ---- Reference module, electrical data, save.

void PanelIV::goToReferencePanel()
{
    ReferencePanel* dialog = new ReferencePanel(this);
    if (dialog->exec() != QDialog::Accepted) {
        delete dialog;
        return;
    }
    // the names live in the dialog's lists: copied before it goes
    copyName(_brandDir, dialog->_selectedBrand->dir);
    copyName(_brandName, dialog->_selectedBrand->name);
    copyName(_modelFile, dialog->_selectedModel->file);
    copyName(_modelName, dialog->_selectedModel->name);
    delete dialog;
    getPanelFeature(_brandDir, _modelFile, &_reference);
    _plotter->setTitle(_title + " / " + storedText(_modelName));
    _referenceChosen = true;
    checkPanelOk();
}

void PanelIV::goToPanelMea()
{
    const bool stc = _stcValid ? _referenceChosen : false;
    DialogDatiElettrici* dialog =
        new DialogDatiElettrici(this, stc, MEA_PANEL, _pmax, _vmpp, _impp, _voc, _isc, _pmaxStc,
                                _vmppStc, _imppStc, _vocStc, _iscStc, _deltaPmax);
    dialog->exec();
    delete dialog;
}

void PanelIV::goToEnvMea()
{
    DialogAmbiente* dialog = liveEnvironment(this, _config);
    dialog->exec();
    delete dialog;
}

void PanelIV::displayEnvMeaAtMeasure()
{
    DialogAmbiente* dialog = measuredEnvironment(this, _config, &_temperature, _irradiance,
                                                 _referenceChosen, &_reference);
    dialog->exec();
    delete dialog;
}

void PanelIV::goToRsMea()
{
    DialogRs* dialog = new DialogRs(this);
    dialog->exec();
    // the result counts whatever way the dialog was left
    if (dialog->_done) {
        _rs = dialog->_rs;
        _rsI1 = dialog->_irr1;
        _rsI2 = dialog->_irr2;
        _rsDone = true;
        _actionRsView->setEnabled(true);
    }
    delete dialog;
}

void PanelIV::goToRsMisurato()
{
    DialogViewRs* dialog = new DialogViewRs(this, _rs, _rsI1, _rsI2);
    dialog->exec();
    delete dialog;
}

void PanelIV::goToSavePanelAcquired()
{
    QMessageBox* box =
        newMessageBox(this, QMessageBox::Information, QString(), tr("Misura Salvata."));
    DialogInfo* dialog = new DialogInfo(this, DLG_PANEL, _comment);
    if (dialog->exec() != QDialog::Accepted) {
        delete dialog;
        delete box;
        return;
    }
    char date[TEXT_COPY_SIZE];
    char time[TEXT_COPY_SIZE];
    char comment[TEXT_COPY_SIZE];
    std::memcpy(date, dialog->_date, sizeof date);
    std::memcpy(time, dialog->_time, sizeof time);
    std::memcpy(comment, dialog->_comment, sizeof comment);
    date[TEXT_COPY_SIZE - 1] = time[TEXT_COPY_SIZE - 1] = comment[TEXT_COPY_SIZE - 1] = '\0';
    _comment = storedText(comment);

    _measure measure;
    std::memset(&measure, 0, sizeof measure);
    measure.mdata = date;
    measure.mtime = time;
    measure.mnpan = 1;
    measure.misc = _isc;
    measure.mvoc = _voc;
    measure.mimpp = _impp;
    measure.mvmpp = _vmpp;
    measure.mpmax = _pmax;
    measure.mdpmax = _deltaPmax;
    measure.mtemp = _temperature;
    measure.mprobe = _config.tprobe;
    measure.mirr = _irradiance;
    measure.mcom = comment[0] == '\0' ? nullptr : comment;
    measure.mdegy = _degradoYears;
    measure.mdegp = _degradoPercent;
    measure.rrimb = 0;
    measure.mtest = _result;
    measure.mrstest = _rsDone;
    measure.mrs = _rs;
    measure.mrsi1 = _rsI1;
    measure.mrsi2 = _rsI2;
    measure.ramp = _rampExact;
    if (_stcValid) {
        measure.mcomp = _referenceChosen;
        if (_referenceChosen) {
            measure.sisc = _iscStc;
            measure.svoc = _vocStc;
            measure.simpp = _imppStc;
            measure.svmpp = _vmppStc;
            measure.spmax = _pmaxStc;
            measure.ref = _reference;
            measure.rname = _modelName;
            measure.rbname = _brandName;
        }
    }
    if (saveMeasuresData(&measure, MEA_PANEL, _config.sn) == -3) {
        box->setText(tr("Misura"));
        box->setInformativeText(tr("Nome della misura già presente."));
    }
    // a name conflict loses this measure's chance to be saved as well
    _measureDone = false;
    _buttonSave->setEnabled(false);
    box->exec();
    delete dialog;
    delete box;
}

// ---- Clock, supply, keys.

void PanelIV::displayClock()
{
    QFont font = _labelClock->font();
    font.setPointSize(28);
    _labelClock->setFont(font);
    _labelClock->setText(formatClock(_config.tclock, QDateTime::currentDateTime(), "\n"));
}

void PanelIV::displayPowerSupply()
{
    const bool adapter = isPowerSupply();
    const char* picture = supplyPicture(adapter, adapter ? 0 : batteryLevel());
    if (picture != nullptr) {
        _labelSupply->setPixmap(QPixmap(picture));
        return;
    }
    // The timer goes on inside the dialog's loop, and the main menu's status
    // bar polls too: one dialog in the program is enough, whoever opened it.
    if (!DialogShutDown::isOpen()) {
        DialogShutDown dialog(this);
        dialog.exec();
    }
    notePowerRestored();
}

// A low-battery dialog, this screen's or the main menu's, cut the board's
// supply: its next silence is expected.
void PanelIV::notePowerRestored()
{
    if (DialogShutDown::opened() == _shutDownsSeen)
        return;
    _shutDownsSeen = DialogShutDown::opened();
    _powerRestored = true;
}

// The screen's own focus widget: keys come from the key poller whether or not
// the window has been made active again after a dialog closed.
bool PanelIV::focused(const QWidget* widget) const
{
    return focusWidget() == widget;
}

void PanelIV::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        reject();
        break;
    case Qt::Key_Return:
        if (focused(_buttonExit))
            reject();
        else if (focused(_buttonStart))
            measurePanel();
        else if (focused(_buttonReference))
            goToReferencePanel();
        else if (focused(_buttonMeasures))
            goToEnvMea();
        else if (focused(_buttonSave))
            goToSavePanelAcquired();
        // never checkable: these tests do nothing, as on the instrument
        if (_actionRsCalc->isChecked())
            goToRsMea();
        if (_actionRsView->isChecked())
            goToRsMisurato();
        if (_actionEnvNow->isChecked())
            goToEnvMea();
        if (_actionEnvAtMeasure->isChecked())
            displayEnvMeaAtMeasure();
        if (_actionPanelData->isChecked())
            goToPanelMea();
        if (_actionPowerOpc->isChecked())
            displayPowerCurveOPC();
        if (_actionPowerStc->isChecked())
            displayPowerCurveSTC();
        // a rejected save form opens a second time: the button keeps the focus
        if (focused(_buttonSave))
            goToSavePanelAcquired();
        break;
    case Qt::Key_Down:
    case Qt::Key_Up:
        walkBar(event->key(), focusWidget(), _buttonStart, _buttonReference, _buttonMeasures,
                _buttonSave, _buttonExit);
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}
