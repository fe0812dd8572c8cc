#include "device/keyboard.h"

#include "device/keyfront.h"
#include "platform/bus.h"
#include "platform/clock.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QTimer>

#include <cstdio>
#include <fcntl.h>

const char* const gpio_key_pin[GPIO_KEYS] = {
    "/dev/gpio/93", "/dev/gpio/86", "/dev/gpio/89", "/dev/gpio/75", "/dev/gpio/81", "/dev/gpio/88",
};

const int gpio_key_code[GPIO_KEYS] = {
    Qt::Key_Escape, Qt::Key_Up, Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Down, Qt::Key_Tab,
};

namespace
{

int keyboard_open = 0;
int fd_gpio_key[GPIO_KEYS] = {0, 0, 0, 0, 0, 0};

const int pollMs = 200;

} // namespace

int isKeyOpened()
{
    return keyboard_open;
}

void initKeyGpio()
{
    if (keyboard_open)
        return;
    for (int i = 0; i < GPIO_KEYS; i++)
        if (fd_gpio_key[i] == 0)
            fd_gpio_key[i] = openGpio(gpio_key_pin[i]);
    keyboard_open = 1;
}

int openGpio(const char* path)
{
    int fd = Bus::open(path, O_RDONLY);
    if (fd < 0) {
        Bus::close(fd);
        fd = Bus::open(path, O_RDONLY);
    }
    Bus::gpioRequest(fd, Bus::GPIO_SET_INPUT, nullptr);
    return fd;
}

void closeGpio(int fd)
{
    std::printf("close = %d\n", Bus::close(fd));
}

int getGpioKey(int index, int* value)
{
    if (index < 0 || index >= GPIO_KEYS)
        return -1;
    return Bus::gpioRequest(fd_gpio_key[index], Bus::GPIO_READ, value);
}

GpioKeyboard::GpioKeyboard(QWidget* parent, bool plainWalk)
    : QWidget(parent), timer(nullptr), plainWalk(plainWalk)
{
    setObjectName("GPIOKeyboard");
    KeyFront::install();
    if (isKeyOpened() == 0)
        initKeyGpio();
    timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, &GpioKeyboard::slotKey);
    Clock::start(timer, pollMs);
}

void GpioKeyboard::slotKey()
{
    timer->stop();
    // a window behind the one in front does not even look at the lines
    if (KeyFront::serves(this)) {
        int pressed = -1;
        for (int i = 0; i < GPIO_KEYS && pressed < 0; i++) {
            // A line that cannot be read counts as a key at rest.
            int level = 1;
            if (getGpioKey(i, &level) >= 0 && level == 0)
                pressed = i;
        }
        if (pressed >= 0)
            deliver(gpio_key_code[pressed]);
    }
    Clock::start(timer, pollMs);
}

void GpioKeyboard::deliver(int key)
{
    if (KeyFront::take(this, key, plainWalk))
        return;
    if (plainWalk && key == Qt::Key_Up)
        key = Qt::Key_Backtab;
    else if (plainWalk && key == Qt::Key_Down)
        key = Qt::Key_Tab;
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QString(), false, 1);
    QCoreApplication::sendEvent(this, &press);
    if (key == Qt::Key_Return && !press.isAccepted() && !KeyFront::openMenu(this)) {
        QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QString(), false, 1);
        QCoreApplication::sendEvent(this, &space);
    }
}
