#ifndef KRM_DEBUGBRASK_DIALOGVIEWDATAMEABRASK_H
#define KRM_DEBUGBRASK_DIALOGVIEWDATAMEABRASK_H

#include "data/coredata.h"
#include "debugbrask/dialogviewbrask.h"

// The 512 slots of a service ramp, raw and in units, and their file.
class DialogViewDataMeaBrask : public DialogViewBrask
{
    Q_OBJECT
public:
    DialogViewDataMeaBrask(QWidget* parent, _raw_ramp_iv* ramp, _info_last* info, float tempStart,
                           float tempStop);

private:
    void addValueOnList() override;
    int write(char* data, char* time, char* comment) override;

    _raw_ramp_iv* _ramp;
    _info_last* _info;
    float _tempStart;
    float _tempStop;
    _configParam _config;
};

#endif
