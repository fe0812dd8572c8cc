#ifndef KRM_DEBUGBRASK_DIALOGGATEBRASK_H
#define KRM_DEBUGBRASK_DIALOGGATEBRASK_H

#include "data/coredata.h"

#include <QDialog>
#include <QMap>

class InfoBar;
class PowerDevice;
class QComboBox;
class QLabel;
class QLineEdit;
class QProgressDialog;
class QPushButton;

// The screen the gate tests of the load stage share: a gate voltage typed on
// the key pad, the list flag, one board command and the temperatures of the
// heat sink before and after it; the board's four columns can be looked at
// and saved. Each test's screen gives its own texts, the board command and
// its view.
class DialogGateBrask : public QDialog
{
    Q_OBJECT
public:
    // every text the shared screen shows, already translated by the screen
    struct Texts {
        QString title;
        QString heading;
        QString target;
        QString list;
        QString tempStart;
        QString tempStop;
        QString exec;
        QString view;
        QString exit;
        QString keypad;
        QString refusedTitle;
        QString refusedText;
        QString refusedDetail;
        QString error;
        QString running;
    };

    virtual int reportErrorSerialPort(_pdError error) = 0;

    _tstBrask _tst;
    float tempStart;
    float tempStop;
    int target;

public slots:
    void goToExecCmd();
    void goToViewData();
    void editLineObject(QObject* obj);

protected:
    explicit DialogGateBrask(QWidget* parent);
    // builds the screen; an extra button, when named, stands after "Esegui"
    // in the row and in the key chain, and Return on it clicks it
    void build(const Texts& texts, const QString& extraText = QString(),
               const QString& extraName = QString());
    virtual _pdError acquire(PowerDevice* device, int list, QProgressDialog* progress) = 0;
    virtual QDialog* newView() = 0;

    bool eventFilter(QObject* obj, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    int getListCombo();
    QProgressDialog* newProgress();

    Texts _texts;
    PowerDevice* _powerDevice;
    QLineEdit* _lineTarget;
    QPushButton* _buttonExec;
    QPushButton* _buttonView;
    QPushButton* _buttonExit;
    QPushButton* _buttonExtra;

private:
    void populateListCombo();
    void showTemperature(QLabel* label, _pdError error, float value);

    QMap<QString, int> _listMap;
    InfoBar* _infoBar;
    QComboBox* _comboList;
    QLabel* _labelTempStart;
    QLabel* _labelTempStop;
};

#endif
