#ifndef KRM_DEBUGBRASK_DIALOGVIEWSWEEPBRASK_H
#define KRM_DEBUGBRASK_DIALOGVIEWSWEEPBRASK_H

#include "data/coredata.h"
#include "debugbrask/dialogviewbrask.h"

// The 128 rows of a gate sweep, raw, and their file.
class DialogViewSweepBrask : public DialogViewBrask
{
    Q_OBJECT
public:
    DialogViewSweepBrask(QWidget* parent, _tstBrask* tst, int target, float tempStart,
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
