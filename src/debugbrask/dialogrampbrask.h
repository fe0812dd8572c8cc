#ifndef KRM_DEBUGBRASK_DIALOGRAMPBRASK_H
#define KRM_DEBUGBRASK_DIALOGRAMPBRASK_H

#include "data/coredata.h"

#include <QDialog>
#include <QStringList>

class InfoBar;
class PowerDevice;
class QLabel;
class QProgressDialog;
class QPushButton;

// The screen the two ramps of the board share: one ramp with the heat sink
// before and after and the board's report; the points can be looked at and
// saved. Each ramp's screen gives its own texts, the board call, its points
// and its view.
class DialogRampBrask : public QDialog
{
    Q_OBJECT
public:
    // every text the shared screen shows, already translated by the screen
    struct Texts {
        QString title;
        QString heading;
        QString lastInfo;
        QStringList fields; // the nine rows of the report
        QString tempStart;
        QString tempStop;
        QString exec;
        QString view;
        QString exit;
        QString running;
        QString readingStart;
        QString runningStatus;
        QString error;
        QString runError;
        QString readingStop;
    };

    virtual int reportErrorSerialPort(_pdError error) = 0;

    _configParam _config;
    _info_last _infoLast;
    float tempStart;
    float tempStop;

public slots:
    void goToViewData();

protected:
    explicit DialogRampBrask(QWidget* parent);
    // builds the screen; the run button carries the object name execName
    void build(const Texts& texts, const QString& execName);
    // one ramp: empties the points, asks the board and shows the report
    void runRamp();
    virtual void clearRamp() = 0;
    virtual _pdError acquireRamp(PowerDevice* device, QProgressDialog* progress) = 0;
    virtual QDialog* newView() = 0;

    void keyPressEvent(QKeyEvent* event) override;

private:
    void showTemperature(QLabel* label, _pdError error, float value);

    Texts _texts;
    PowerDevice* _powerDevice;
    InfoBar* _infoBar;
    QLabel* _labelStatus;
    QLabel* _labelTempStart;
    QLabel* _labelTempStop;
    QList<QLabel*> _labelInfo;
    QPushButton* _buttonExec;
    QPushButton* _buttonView;
    QPushButton* _buttonExit;
};

#endif
