#ifndef KRM_DEBUGBRASK_DIALOGTEMPHSINK_H
#define KRM_DEBUGBRASK_DIALOGTEMPHSINK_H

#include "data/coredata.h"

#include <QDialog>

class PowerDevice;
class QLabel;
class QPushButton;
class QTimer;

// The heat sink of the measuring board, read at once and then every second.
class DialogTempHSink : public QDialog
{
    Q_OBJECT
public:
    explicit DialogTempHSink(QWidget* parent);

    int reportErrorSerialPort(_pdError error);

public slots:
    void viewTempHSink();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    PowerDevice* _powerDevice;
    QLabel* _labelTemp;
    QTimer* _timer;
    QPushButton* _buttonExit;
};

#endif
