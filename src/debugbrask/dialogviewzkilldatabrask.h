#ifndef KRM_DEBUGBRASK_DIALOGVIEWZKILLDATABRASK_H
#define KRM_DEBUGBRASK_DIALOGVIEWZKILLDATABRASK_H

#include "data/coredata.h"
#include "debugbrask/dialogviewbrask.h"

// The 128 rows of a Z kill test, raw, and their file.
class DialogViewZKillDataBrask : public DialogViewBrask
{
    Q_OBJECT
public:
    DialogViewZKillDataBrask(QWidget* parent, _tstBrask* tst, int target, float tempStart,
                             float tempStop);

private:
    void addValueOnList() override;
    int write(char* data, char* time, char* comment) override;

    _tstBrask* _tst;
    int _target;
    float _tempStart;
    float _tempStop;
};

#endif
