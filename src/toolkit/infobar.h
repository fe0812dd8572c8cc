#ifndef KRM_TOOLKIT_INFOBAR_H
#define KRM_TOOLKIT_INFOBAR_H

#include "data/coredata.h"

#include <QWidget>

class QDateTime;
class QLabel;

// The clock's text in a display mode: date and time, date, time, or nothing
// for another mode; gap stands between the date and the time and behind a
// date alone (a blank in the status bar, a line break on the test screens).
QString formatClock(int mode, const QDateTime& now, const QString& gap);
class QTimer;

// The strip at the top of nearly every screen: supply or battery picture,
// the screen's title, the USB mark and the clock. While a screen with a bar
// is open the bar watches the battery and stops the instrument with the
// shut-down dialog when it is exhausted. Its key poller brings the hardware
// keys to the screen.
class InfoBar : public QWidget
{
    Q_OBJECT
public:
    explicit InfoBar(QWidget* parent);

    void setTitle(QString title);
    void setUsb(bool shown);
    void chooseDisplayClock(_displayClock mode);

    QString clockText() const;
    // The clock's display mode, as read from the settings or chosen since.
    _displayClock clockMode() const { return config.tclock; }
    QString title() const;
    bool usb() const { return usbShown; }

public slots:
    void visualClock();
    void visualPowerSupply();
    void attivaTimerPowerSupply();

private:
    _configParam config;
    bool usbShown;
    QLabel* powerLabel;
    QLabel* clockLabel;
    QLabel* titleLabel;
    QLabel* usbLabel;
    QTimer* powerTimer;
};

#endif
