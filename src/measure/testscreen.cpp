#include "measure/testscreen.h"

#include "data/coredata.h"
#include "device/ad7795.h"
#include "device/remoteunit.h"
#include "math/temperatura.h"
#include "math/utility.h"
#include "measure/dialogambiente.h"
#include "platform/clock.h"
#include "toolkit/plotter.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressDialog>
#include <QPushButton>
#include <QVBoxLayout>
#include <cstring>

QString progressStyle(const char* colour)
{
    return QString("QProgressBar:horizontal {border: 1px solid gray;border-radius: "
                   "3px;background: white;padding: 1px;text-align: center;}"
                   "QProgressBar::chunk:horizontal {background: qlineargradient(x1: 0, y1: "
                   "0.5, x2: 1, y2: 0.5, stop: 0 %1, stop: 1 white);}")
        .arg(QString::fromLatin1(colour));
}

const char* supplyPicture(bool adapter, int level)
{
    static const char* const battery[] = {":/icon/vbattery-full.png", ":/icon/vbattery-75.png",
                                          ":/icon/vbattery-50.png",   ":/icon/vbattery-25.png",
                                          ":/icon/vbattery-15.png",   ":/icon/vbattery-alert.png",
                                          ":/icon/vbattery-empty.png"};
    if (adapter)
        return ":/icon/vac-adapter.png";
    if (level < 0 || level > 6)
        return nullptr;
    return battery[level];
}

QPushButton* barButton(const QString& text, const char* name, bool flat)
{
    QPushButton* button = new QPushButton(text);
    button->setObjectName(name);
    button->setFlat(flat);
    button->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
    return button;
}

void copyName(char* target, const char* source)
{
    std::memset(target, 0, TEXT_COPY_SIZE);
    if (source != nullptr)
        std::strncpy(target, source, TEXT_COPY_SIZE - 1);
}

void showConversion(void* context, int k)
{
    static_cast<QProgressDialog*>(context)->setValue(k);
}

void walkBar(int key, QWidget* focus, QPushButton* start, QPushButton* reference,
             QPushButton* measures, QPushButton* save, QPushButton* exit)
{
    if (key == Qt::Key_Down) {
        if (focus == start)
            reference->setFocus();
        else if (focus == reference)
            measures->setFocus();
        else if (focus == measures)
            (save->isEnabled() ? save : exit)->setFocus();
        else if (focus == save)
            exit->setFocus();
        else if (focus == exit)
            start->setFocus();
    } else if (key == Qt::Key_Up) {
        if (focus == start)
            exit->setFocus();
        else if (focus == exit)
            (save->isEnabled() ? save : measures)->setFocus();
        else if (focus == save)
            measures->setFocus();
        else if (focus == measures)
            reference->setFocus();
        else if (focus == reference)
            start->setFocus();
    }
}

void readProbeRounds(const _configParam* config, int rounds, int first, QProgressDialog* progress,
                     RemoteUnit* unit, float* temperature, bool* temperatureValid,
                     float* irradiance, bool* irradianceValid)
{
    for (int round = first; round < first + rounds; round++) {
        char ok = 0;
        float t = 0;
        switch (config->tprobe) {
        case PROBE_AUTO:
            t = -20.0f;
            ok = 1;
            break;
        case PROBE_MANUAL:
            t = config->utemp;
            ok = 1;
            break;
        case PROBE_MODULE:
            t = unit != nullptr ? unit->getTempModulo(&ok)
                                : temperatureAcquire(&ok, config->tmmod, config->tomod);
            break;
        default:
            t = unit != nullptr ? unit->getTempAmbiente(&ok)
                                : temperatureAcquire(&ok, config->tmenv, config->toenv);
            break;
        }
        if (ok) {
            *temperature = t;
            *temperatureValid = true;
        }
        const float g = unit != nullptr ? unit->getPirano(&ok) : irradiationAcquire(&ok);
        if (ok) {
            *irradiance = g;
            *irradianceValid = true;
        }
        if (unit == nullptr) // the remote unit's own exchange takes its time
            Clock::usleep(500);
        if (progress != nullptr)
            progress->setValue(round);
    }
}

QVector<QPointF> curvePoints(const _ramp_iv* curve)
{
    QVector<QPointF> points;
    points.reserve(RAMP_POINTS);
    for (int k = 0; k < RAMP_POINTS; k++)
        points.append(QPointF(curve->tensione[k], curve->corrente[k]));
    return points;
}

QVector<QPointF> powerPoints(const _ramp_iv* curve)
{
    float y[RAMP_POINTS];
    powerCurve(curve, y);
    QVector<QPointF> points;
    points.reserve(RAMP_POINTS);
    for (int k = 0; k < RAMP_POINTS; k++)
        points.append(QPointF(curve->tensione[k], y[k]));
    return points;
}

DialogAmbiente* liveEnvironment(QWidget* parent, const _configParam& config)
{
    const bool ambient = config.tprobe == PROBE_AMBIENT;
    const float gain = ambient ? config.tmenv : config.tmmod;
    const float offset = ambient ? config.toenv : config.tomod;
    const float typed = config.tprobe == PROBE_MANUAL ? config.utemp : 0.0f;
    return new DialogAmbiente(parent, true, config.tprobe, config.remote, typed, 0, gain, offset,
                              false);
}

DialogAmbiente* measuredEnvironment(QWidget* parent, const _configParam& config, float* temperature,
                                    float irradiance, bool referenceChosen,
                                    const _panelFeature* reference)
{
    float shown = *temperature;
    _probeTemp mode = config.tprobe;
    switch (config.tprobe) {
    case PROBE_AUTO:
    case PROBE_MODULE:
        break;
    case PROBE_MANUAL:
        *temperature = config.utemp;
        break;
    default:
        mode = PROBE_AMBIENT;
        if (referenceChosen)
            shown = calcola_temperatura_ambiente_da_modulo(*temperature, irradiance, reference);
        break;
    }
    return new DialogAmbiente(parent, false, mode, LINK_LOCAL, shown, irradiance, 0, 0,
                              referenceChosen);
}

void togglePowerCurve(Plotter* plotter, bool stc, bool* opcShown, bool* stcShown,
                      const _ramp_iv* curve, float pmax)
{
    bool* own = stc ? stcShown : opcShown;
    bool* other = stc ? opcShown : stcShown;
    *other = false;
    if (*own) {
        plotter->clearCurve(2);
        *own = false;
        return;
    }
    plotter->pmaxLabel = pmax;
    plotter->setCurveData(2, powerPoints(curve));
    *own = true;
}

void layOutScreen(QWidget* screen, Plotter* plotter, QWidget* bar,
                  const QList<QPushButton*>& buttons, QLabel* supply, QLabel* clock)
{
    QHBoxLayout* row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(1);
    for (QPushButton* button : buttons) {
        if (button == nullptr)
            continue;
        // in a language of longer words the row can pass the screen's width
        // once the supply's symbol shows beside the clock: the buttons then
        // give up some width, their texts drawn smaller by the instrument's
        // style
        QSizePolicy policy = button->sizePolicy();
        if (policy.horizontalPolicy() == QSizePolicy::Minimum)
            policy.setHorizontalPolicy(QSizePolicy::Preferred);
        button->setSizePolicy(policy);
        button->setMinimumWidth(button->sizeHint().width() * 3 / 4);
        row->addWidget(button);
    }
    row->addStretch();
    row->addWidget(supply);
    row->addWidget(clock);
    QVBoxLayout* box = new QVBoxLayout(screen);
    box->setContentsMargins(0, 0, 0, 0);
    box->addWidget(plotter);
    box->addWidget(bar);
}
