#ifndef KRM_DEBUGBRASK_DIALOGMEANBRASK_H
#define KRM_DEBUGBRASK_DIALOGMEANBRASK_H

#include "data/coredata.h"

#include <QDialog>
#include <QMap>
#include <QStringList>

class InfoBar;
class PowerDevice;
class QComboBox;
class QLabel;
class QPushButton;

// The screen the two spot readings share: one reading of a channel of the
// board on a chosen range, raw and in units with the calibration of that
// range. Each reading's screen gives its own texts, ranges, board call and
// calibration.
class DialogMeanBrask : public QDialog
{
    Q_OBJECT
public:
    // every text the shared screen shows, already translated by the screen
    struct Texts {
        QString title;
        QString heading;
        QString hex;
        QString dec;
        QString value;
        QString exec;
        QString exit;
        QString range;
        QString reading;
        QString running;
        QString error;
    };

    virtual int reportErrorSerialPort(_pdError error) = 0;

public slots:
    void goToExecCmd();

protected:
    explicit DialogMeanBrask(QWidget* parent);
    // builds the screen; ranges are the combo's two rows (0 and 1), unit the
    // unit written after the value
    void build(const Texts& texts, const QStringList& ranges, const QString& unit);
    virtual _pdError acquire(PowerDevice* device, unsigned char range, int* count) = 0;
    virtual float toUnits(int range, int count) = 0;

    void keyPressEvent(QKeyEvent* event) override;

    _configParam _config;

private:
    int getRange();

    Texts _texts;
    QString _unit;
    QMap<QString, int> _rangeMap;
    PowerDevice* _powerDevice;
    InfoBar* _infoBar;
    QComboBox* _comboRange;
    QLabel* _labelHex;
    QLabel* _labelDec;
    QLabel* _labelValue;
    QLabel* _labelStatus;
    QPushButton* _buttonExec;
    QPushButton* _buttonExit;
};

#endif
