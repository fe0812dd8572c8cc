#ifndef KRM_DEBUGBRASK_DIALOGVIEWDATAMEABRASKDEBUG_H
#define KRM_DEBUGBRASK_DIALOGVIEWDATAMEABRASKDEBUG_H

#include "data/coredata.h"

#include <QDialog>

class InfoBar;
class QListWidget;
class QPushButton;

// The 512 slots of a service ramp, with the two gate voltages, raw and in units, and their file.
class DialogViewDataMeaBraskDebug : public QDialog
{
    Q_OBJECT
public:
    DialogViewDataMeaBraskDebug(QWidget* parent, _raw_ramp_vgate* ramp, _info_last* info,
                                float tempStart, float tempStop);

public slots:
    void goToSave();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void addValueOnList();

    _raw_ramp_vgate* _ramp;
    _info_last* _info;
    float _tempStart;
    float _tempStop;
    _configParam _config;
    InfoBar* _infoBar;
    QListWidget* _list;
    QPushButton* _buttonSave;
    QPushButton* _buttonExit;
};

#endif
