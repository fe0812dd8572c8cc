#ifndef KRM_DEBUGBRASK_DIALOGSWEEPBRASK_H
#define KRM_DEBUGBRASK_DIALOGSWEEPBRASK_H

#include "data/coredata.h"

#include <QDialog>
#include <QMap>

class InfoBar;
class PowerDevice;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

// A sweep of the gate of the load stage up to an imposed voltage; the
// board's four columns can be looked at and saved.
class DialogSweepBrask : public QDialog
{
    Q_OBJECT
public:
    explicit DialogSweepBrask(QWidget* parent);

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
