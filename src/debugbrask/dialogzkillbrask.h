#ifndef KRM_DEBUGBRASK_DIALOGZKILLBRASK_H
#define KRM_DEBUGBRASK_DIALOGZKILLBRASK_H

#include "data/coredata.h"

#include <QDialog>
#include <QMap>

class InfoBar;
class PowerDevice;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

// The Z kill test of the load stage at an imposed gate voltage; the board's
// four columns can be looked at and saved.
class DialogZKillBrask : public QDialog
{
    Q_OBJECT
public:
    explicit DialogZKillBrask(QWidget* parent);

    int reportErrorSerialPort(_pdError error);

    _tstBrask _tst;
    float tempStart;
    float tempStop;
    int target;

public slots:
    void goToExecCmd();
    void goToViewData();
    void editLineObject(QObject* obj);

protected:
    bool eventFilter(QObject* obj, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void populateListCombo();
    int getListCombo();
    void showTemperature(QLabel* label, _pdError error, float value);

    PowerDevice* _powerDevice;
    QMap<QString, int> _listMap;
    InfoBar* _infoBar;
    QLineEdit* _lineTarget;
    QComboBox* _comboList;
    QLabel* _labelTempStart;
    QLabel* _labelTempStop;
    QPushButton* _buttonExec;
    QPushButton* _buttonView;
    QPushButton* _buttonExit;
};

#endif
