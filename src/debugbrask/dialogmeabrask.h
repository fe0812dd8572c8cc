#ifndef KRM_DEBUGBRASK_DIALOGMEABRASK_H
#define KRM_DEBUGBRASK_DIALOGMEABRASK_H

#include "data/coredata.h"

#include <QDialog>

class InfoBar;
class PowerDevice;
class QLabel;
class QPushButton;

// One ramp of the board as the module test runs it, with the heat sink before
// and after and the board's report; the points can be looked at and saved.
class DialogMeaBrask : public QDialog
{
    Q_OBJECT
public:
    explicit DialogMeaBrask(QWidget* parent);

    int reportErrorSerialPort(_pdError error);

    _configParam _config;
    _raw_ramp_iv _rawRamp;
    _info_last _infoLast;
    float tempStart;
    float tempStop;

public slots:
    void goToExecCmdUsers();
    void goToViewData();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
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
