#ifndef KRM_DEBUGBRASK_DIALOGVIEWSWEEPBRASK_H
#define KRM_DEBUGBRASK_DIALOGVIEWSWEEPBRASK_H

#include "data/coredata.h"

#include <QDialog>

class InfoBar;
class QListWidget;
class QPushButton;

// The 128 rows of a gate sweep, raw, and their file.
class DialogViewSweepBrask : public QDialog
{
    Q_OBJECT
public:
    DialogViewSweepBrask(QWidget* parent, _tstBrask* tst, int target, float tempStart,
                         float tempStop);

public slots:
    void goToSave();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void addValueOnList();

    _tstBrask* _tst;
    int _target;
    float _tempStart;
    float _tempStop;
    InfoBar* _infoBar;
    QListWidget* _list;
    QPushButton* _buttonSave;
    QPushButton* _buttonExit;
};

#endif
