#ifndef KRM_DEBUGBRASK_DIALOGVIEWZTSTDATABRASK_H
#define KRM_DEBUGBRASK_DIALOGVIEWZTSTDATABRASK_H

#include "data/coredata.h"
#include "debugbrask/dialogviewbrask.h"

// The 128 rows of a Z test, raw, and their file.
class DialogViewZTstDataBrask : public DialogViewBrask
{
    Q_OBJECT
public:
    DialogViewZTstDataBrask(QWidget* parent, _tstBrask* tst, int target, float tempStart,
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
