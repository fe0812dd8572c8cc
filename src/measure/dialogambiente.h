#ifndef KRM_MEASURE_DIALOGAMBIENTE_H
#define KRM_MEASURE_DIALOGAMBIENTE_H

#include "data/coredata.h"

#include <QDialog>

class GpioKeyboard;
class QLabel;
class QPushButton;
class QTimer;
class RemoteUnit;

// The environment screen: a temperature and an irradiance. Live, it reads
// them about once a second from the local sensors or from the remote unit,
// with a little animation while the link comes up; still, it shows the
// values it is given. It writes nothing.
class DialogAmbiente : public QDialog
{
    Q_OBJECT
public:
    DialogAmbiente(QWidget* parent, bool realTime, _probeTemp probe, _remoteUnitLink link,
                   float temperature, float irradiance, float gain, float offset,
                   bool referenceChosen);
    ~DialogAmbiente() override;

    bool _realTime;
    _probeTemp _probe;
    _remoteUnitLink _link;
    float _temperature;
    float _irradiance;
    bool _temperatureValid;
    bool _irradianceValid;
    float _gain;
    float _offset;
    RemoteUnit* _remoteUnit;
    QTimer* _timerRead;
    QPushButton* _buttonOk;
    QPushButton* _buttonCancel;
    QLabel* _labelTemperature;
    QLabel* _labelIrradiance;
    QLabel* _labelStatus;
    QLabel* _labelLink;
    GpioKeyboard* _keyboard;

public slots:
    void exitDialog();
    void activateRealTime();
    void readEnvPhisicMea();

public:
    void msgConnectionOff();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void showLink(const char* picture, const QString& status);
};

#endif
