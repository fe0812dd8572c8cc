#include "toolkit/infobar.h"

#include "data/datasetting.h"
#include "device/ad7795.h"
#include "device/gpiopd.h"
#include "device/keyboard.h"
#include "measure/dialogshutdown.h"
#include "platform/clock.h"
#include "usb/utilityusb.h"

#include <QDateTime>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QTimer>

static const char* const batteryPicture[] = {
    ":/icon/battery-full.png", ":/icon/battery-75.png",    ":/icon/battery-50.png",
    ":/icon/battery-25.png",   ":/icon/battery-15.png",    ":/icon/battery-alert.png",
    ":/icon/battery-empty.png"};

InfoBar::InfoBar(QWidget* parent)
    : QWidget(parent), usbShown(false), powerLabel(nullptr), clockLabel(nullptr),
      titleLabel(nullptr), usbLabel(nullptr), powerTimer(nullptr)
{
    setObjectName("InfoBar");
    readConfigFile(&config);
    bool mounted = usbMounted();

    powerLabel = new QLabel(this);
    powerLabel->setPixmap(QPixmap(":/icon/ac-adapter.png"));
    clockLabel = new QLabel(this);
    clockLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    titleLabel = new QLabel(this);
    titleLabel->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    usbLabel = new QLabel(this);
    powerLabel->setObjectName("power");
    clockLabel->setObjectName("clock");
    titleLabel->setObjectName("title");
    usbLabel->setObjectName("usb");
    setUsb(mounted);

    QHBoxLayout* box = new QHBoxLayout(this);
    box->setContentsMargins(0, 0, 0, 0);
    box->addWidget(powerLabel);
    box->addStretch();
    box->addWidget(titleLabel);
    box->addStretch();
    box->addWidget(usbLabel);
    box->addWidget(clockLabel);

    QTimer* clockTimer = new QTimer(this);
    connect(clockTimer, &QTimer::timeout, this, &InfoBar::visualClock);
    visualClock();
    Clock::start(clockTimer, 1000);
    // no power check in the first two seconds of a screen
    Clock::singleShot(2000, this, &InfoBar::attivaTimerPowerSupply);

    new GpioKeyboard(this);
}

void InfoBar::setTitle(QString title)
{
    titleLabel->setText(title);
}

QString InfoBar::title() const
{
    return titleLabel->text();
}

void InfoBar::setUsb(bool shown)
{
    usbLabel->setPixmap(shown ? QPixmap(":/icon/usb-info.png") : QPixmap());
    usbShown = shown;
}

void InfoBar::chooseDisplayClock(_displayClock mode)
{
    config.tclock = mode;
    visualClock();
}

void InfoBar::attivaTimerPowerSupply()
{
    if (powerTimer != nullptr)
        return;
    powerTimer = new QTimer(this);
    connect(powerTimer, &QTimer::timeout, this, &InfoBar::visualPowerSupply);
    visualPowerSupply();
    Clock::start(powerTimer, 600);
}

void InfoBar::visualPowerSupply()
{
    if (isPowerSupply()) {
        powerLabel->setPixmap(QPixmap(":/icon/ac-adapter.png"));
        return;
    }
    int level = batteryLevel();
    if (level >= 0 && level <= 6) {
        powerLabel->setPixmap(QPixmap(batteryPicture[level]));
        return;
    }
    // The poll goes on inside the dialog's own event loop; one shut-down
    // dialog at a time is enough, however long the charger takes to come.
    if (DialogShutDown::isOpen())
        return;
    DialogShutDown dialog(this);
    dialog.exec();
}

QString InfoBar::clockText() const
{
    return clockLabel->text();
}

void InfoBar::visualClock()
{
    clockLabel->setText(formatClock(config.tclock, QDateTime::currentDateTime(), " "));
}

QString formatClock(int mode, const QDateTime& now, const QString& gap)
{
    switch (mode) {
    case CLOCK_DATE_TIME:
        return now.toString("d/MM/yy") + gap + now.toString("HH:mm");
    case CLOCK_DATE:
        return now.toString("d/MM/yy") + gap;
    case CLOCK_TIME:
        return now.toString("HH:mm");
    default:
        return QString();
    }
}
