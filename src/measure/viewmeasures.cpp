#include "measure/viewmeasures.h"

#include "data/datameasures.h"
#include "data/storedtext.h"
#include "device/ad7795.h"
#include "device/gpiopd.h"
#include "math/compensazione.h"
#include "math/scale.h"
#include "math/smoothing.h"
#include "math/temperatura.h"
#include "math/utility.h"
#include "measure/dialogambiente.h"
#include "measure/dialogdatielettrici.h"
#include "measure/dialogshutdown.h"
#include "measure/dialogviewrs.h"
#include "measure/testscreen.h"
#include "platform/clock.h"
#include "toolkit/infobar.h"
#include "toolkit/plotter.h"

#include <QAction>
#include <QDateTime>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTimer>
#include <cstring>
#include <limits>

namespace
{
const float noValue = std::numeric_limits<float>::quiet_NaN();
}

ViewMeasures::ViewMeasures(QWidget* parent, _listMeasures* entry, _meaType type)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowTitleHint),
      _powerOpcShown(false), _powerStcShown(false), _type(type), _entry(entry), _pmaxStc(noValue),
      _vmppStc(noValue), _imppStc(noValue), _vocStc(noValue), _iscStc(noValue), _buttonRs(nullptr)
{
    setObjectName("ViewMeasures");
    std::memset(&_measure, 0, sizeof _measure);
    std::memset(&_ramp, 0, sizeof _ramp);
    std::memset(&_rampStc, 0, sizeof _rampStc);
    std::memset(&_rampSmooth, 0, sizeof _rampSmooth);
    std::memset(&_rampStcSmooth, 0, sizeof _rampStcSmooth);
    _title = tr("Misure");

    _bar = new QWidget(this);
    _plotter = new Plotter(this, _title, _bar);
    _buttonData = barButton(_type == MEA_PANEL ? tr("Modulo") : tr("Stringa"), "Dati", true);
    if (_type == MEA_PANEL) {
        _buttonRs = barButton(tr("Rs"), "Rs", true);
        _buttonRs->setEnabled(false);
    }
    _buttonEnv = barButton(tr("Ambiente"), "Ambiente", true);
    _buttonPower = barButton(tr("Potenza"), "Potenza", true);
    _buttonPower->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Maximum);
    _buttonExit = barButton(tr("Exit"), "Exit", true);
    _buttonExit->setAutoDefault(true);
    _buttonExit->setDefault(true);
    _labelSupply = new QLabel;
    _labelSupply->setObjectName("supply");
    _labelClock = new QLabel;
    _labelClock->setObjectName("clock");

    layOutScreen(this, _plotter, _bar,
                 {_buttonData, _buttonRs, _buttonEnv, _buttonPower, _buttonExit}, _labelSupply,
                 _labelClock);

    _actionPowerOpc = new QAction(tr("Potenza OPC"), this);
    _actionPowerOpc->setObjectName("PotenzaOPC");
    _actionPowerStc = new QAction(tr("Potenza STC"), this);
    _actionPowerStc->setObjectName("PotenzaSTC");
    _menuPower = new QMenu(tr("Potenza"), this);
    _menuPower->setObjectName("MenuPotenza");
    _menuPower->addAction(_actionPowerOpc);
    _buttonPower->setMenu(_menuPower);

    // The status bar is made as on the measuring screens and not placed: the
    // clock's mode comes from it, since this screen reads no settings. A
    // child left out of the layout would stand over the plot: it stays hidden.
    _infoBar = new InfoBar(this);
    _infoBar->hide();

    connect(_buttonData, &QPushButton::clicked, this, &ViewMeasures::displayDatiElettrici);
    if (_buttonRs != nullptr)
        connect(_buttonRs, &QPushButton::clicked, this, &ViewMeasures::displayRs);
    connect(_buttonEnv, &QPushButton::clicked, this, &ViewMeasures::displayAmbiente);
    connect(_buttonExit, &QPushButton::clicked, this, &QDialog::reject);
    connect(_actionPowerOpc, &QAction::triggered, this, &ViewMeasures::displayPowerOPC);
    connect(_actionPowerStc, &QAction::triggered, this, &ViewMeasures::displayPowerSTC);

    _timerClock = new QTimer(this);
    connect(_timerClock, &QTimer::timeout, this, &ViewMeasures::displayClock);
    Clock::start(_timerClock, 1000);
    _timerSupply = new QTimer(this);
    connect(_timerSupply, &QTimer::timeout, this, &ViewMeasures::displayPowerSupply);
    Clock::start(_timerSupply, 700);
    displayClock();

    _buttonData->setFocus();
    // maximized when shown: exec() shows it, and only then does it become modal
    setWindowState(windowState() | Qt::WindowMaximized);
    prepareGraph();
}

ViewMeasures::~ViewMeasures()
{
    freeMeasureData(&_measure);
}

// Smoothing by the file's own rrimb (type 0 for strings as well), the ends
// aligned on the given Isc and Voc, the axes by the type from the curve's
// largest values.
void ViewMeasures::drawCurve(int id, const _ramp_iv* source, _ramp_iv* smooth, float isc, float voc)
{
    smoothing(source, smooth, MEA_PANEL, _measure.rrimb);
    scaleEndPoints(smooth, isc, voc);
    float vmax = 0;
    float imax = 0;
    curveMaxima(smooth, &vmax, &imax);
    if (_type == MEA_PANEL) {
        _plotter->setAxisX(0, panelVScale(vmax));
        _plotter->setAxisY(0, panelIScale(imax));
    } else {
        _plotter->setAxisX(0, stringVScale(vmax));
        _plotter->setAxisY(0, stringIScale(imax));
    }
    _plotter->setCurveData(id, curvePoints(smooth));
}

void ViewMeasures::prepareGraph()
{
    // an unreadable file leaves the record zeroed: empty curves and zeros
    readMeasureData(_entry != nullptr ? _entry->file : nullptr, &_measure, _type);
    if (_buttonRs != nullptr)
        _buttonRs->setEnabled(_measure.mrstest == 1);
    _ramp = _measure.ramp;

    QString title = _title;
    if (_measure.mcomp == 1) {
        title += " : ";
        if (_measure.mnpan > 1)
            title += QString::number(_measure.mnpan) + " * ";
        title += storedText(_measure.rname);
    } else if (_measure.mnpan > 1) {
        title += " : " + QString::number(_measure.mnpan);
    }
    _plotter->setTitle(title);

    drawCurve(0, &_ramp, &_rampSmooth, _measure.misc, _measure.mvoc);

    if (_measure.mcomp == 1) {
        float vmax = 0;
        float imax = 0;
        compensazione_curva(&_ramp, &_rampStc, _measure.misc, _measure.mvoc, _measure.mirr,
                            _measure.mtemp, &_measure.ref, &_vmppStc, &_imppStc, &_pmaxStc, &vmax,
                            &imax);
        // the stored figures are shown, not worked out again
        _iscStc = _measure.sisc;
        _vocStc = _measure.svoc;
        _imppStc = _measure.simpp;
        _vmppStc = _measure.svmpp;
        _pmaxStc = _measure.spmax;
        drawCurve(1, &_rampStc, &_rampStcSmooth, _measure.sisc, _measure.svoc);
        _plotter->pmaxLabel = _pmaxStc;
        _plotter->testResult = _measure.mtest;
        _plotter->setViewPassTest(true);
        _menuPower->addSeparator();
        _menuPower->addAction(_actionPowerStc);
    } else {
        _plotter->testResult = _measure.mtest;
        _plotter->setViewPassTest(false);
    }
}

void ViewMeasures::displayPowerOPC()
{
    togglePowerCurve(_plotter, false, &_powerOpcShown, &_powerStcShown, &_rampSmooth,
                     _measure.mpmax);
}

void ViewMeasures::displayPowerSTC()
{
    togglePowerCurve(_plotter, true, &_powerOpcShown, &_powerStcShown, &_rampStcSmooth, _pmaxStc);
}

void ViewMeasures::displayRs()
{
    DialogViewRs* dialog = new DialogViewRs(this, _measure.mrs, _measure.mrsi1, _measure.mrsi2);
    dialog->exec();
    delete dialog;
}

void ViewMeasures::displayDatiElettrici()
{
    DialogDatiElettrici* dialog =
        new DialogDatiElettrici(this, _measure.mcomp == 1, _type, _measure.mpmax, _measure.mvmpp,
                                _measure.mimpp, _measure.mvoc, _measure.misc, _pmaxStc, _vmppStc,
                                _imppStc, _vocStc, _iscStc, _measure.mdpmax);
    dialog->exec();
    delete dialog;
}

// The probe mode of the measure: automatic and module pass as they are; the
// ambient probe shows, with a reference module, the ambient temperature
// worked back from the module's; any other mode is shown as the typed one.
void ViewMeasures::displayAmbiente()
{
    float t = _measure.mtemp;
    int mode = _measure.mprobe;
    switch (_measure.mprobe) {
    case PROBE_MODULE:
    case PROBE_AUTO:
        break;
    case PROBE_AMBIENT:
        if (_measure.mcomp != 0)
            t = calcola_temperatura_ambiente_da_modulo(_measure.mtemp, _measure.mirr,
                                                       &_measure.ref);
        break;
    default:
        mode = PROBE_MANUAL;
        break;
    }
    DialogAmbiente* dialog =
        new DialogAmbiente(this, false, static_cast<_probeTemp>(mode), LINK_LOCAL, t, _measure.mirr,
                           0, 0, _measure.mcomp == 1);
    dialog->exec();
    delete dialog;
}

void ViewMeasures::displayClock()
{
    QFont font = _labelClock->font();
    font.setPointSize(28);
    _labelClock->setFont(font);
    _labelClock->setText(formatClock(_infoBar->clockMode(), QDateTime::currentDateTime(), "\n"));
}

// As on the measuring screens, with no board to mark as restored.
void ViewMeasures::displayPowerSupply()
{
    const bool adapter = isPowerSupply();
    const char* picture = supplyPicture(adapter, adapter ? 0 : batteryLevel());
    if (picture != nullptr) {
        _labelSupply->setPixmap(QPixmap(picture));
        return;
    }
    if (!DialogShutDown::isOpen()) {
        DialogShutDown dialog(this);
        dialog.exec();
    }
}

void ViewMeasures::keyPressEvent(QKeyEvent* event)
{
    QWidget* focus = focusWidget();
    switch (event->key()) {
    case Qt::Key_Return:
        if (focus == _buttonExit)
            reject();
        else if (focus == _buttonData)
            displayDatiElettrici();
        else if (focus == _buttonEnv)
            displayAmbiente();
        else if (_buttonRs != nullptr && focus == _buttonRs)
            displayRs();
        if (_actionPowerOpc->isChecked())
            displayPowerOPC();
        if (_actionPowerStc->isChecked())
            displayPowerSTC();
        // from now on a checked power entry runs again at each Return
        if (focus == _buttonPower) {
            _actionPowerOpc->setCheckable(true);
            _actionPowerStc->setCheckable(true);
        }
        break;
    case Qt::Key_Escape:
        reject();
        break;
    case Qt::Key_Down:
    case Qt::Key_Up: {
        // The old screen had no walk: with the hardware keys alone the
        // operator could reach nothing but the first button. Up and Down walk
        // the bar as a ring; "Rs" is passed over while disabled.
        QList<QPushButton*> ring = {_buttonData, _buttonRs, _buttonEnv, _buttonPower, _buttonExit};
        ring.removeAll(nullptr);
        const int step = event->key() == Qt::Key_Down ? 1 : ring.size() - 1;
        int at = ring.indexOf(qobject_cast<QPushButton*>(focus));
        for (int n = 0; n < ring.size(); n++) {
            at = at < 0 ? 0 : (at + step) % ring.size();
            if (ring[at]->isEnabled()) {
                ring[at]->setFocus();
                break;
            }
        }
        break;
    }
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}
