#ifndef KRM_DEBUGBRASK_DIALOGVIEWDATAMEABRASK_H
#define KRM_DEBUGBRASK_DIALOGVIEWDATAMEABRASK_H

#include "data/coredata.h"

#include <QDialog>

class InfoBar;
class QListWidget;
class QPushButton;

// The 512 slots of a service ramp, raw and in units, and their file.
class DialogViewDataMeaBrask : public QDialog
{
    Q_OBJECT
public:
    DialogViewDataMeaBrask(QWidget* parent, _raw_ramp_iv* ramp, _info_last* info, float tempStart,
                           float tempStop);

public slots:
    void goToSave();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void addValueOnList();

    _raw_ramp_iv* _ramp;
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
