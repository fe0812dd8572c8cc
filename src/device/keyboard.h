#ifndef KRM_DEVICE_KEYBOARD_H
#define KRM_DEVICE_KEYBOARD_H

#include <QWidget>

class QTimer;

// The six push keys of the instrument, one GPIO line each, low while pressed.
// The lines are opened once, by the first GpioKeyboard, and stay open for the
// life of the program.

#define GPIO_KEYS 6

// Nodes of the key lines, in the order of scanning.
extern const char* const gpio_key_pin[GPIO_KEYS];
// The Qt key of each line.
extern const int gpio_key_code[GPIO_KEYS];

int isKeyOpened();
void initKeyGpio();
// Opens a line read-only (a second try when the first fails) and makes it an
// input: the descriptor.
int openGpio(const char* path);
void closeGpio(int fd);
// Reads the level of key line index: the ioctl's result.
int getGpioKey(int index, int* value);

// A widget without a face that stands in for a keyboard: created as a child
// of a dialog, it polls the key lines every 200 ms and sends one key press per
// tick, which climbs the parent chain like any ignored key event. A Return
// that nobody accepts is followed by a Space, which presses a focused button.
// It serves its window only while that window is in front (KeyFront); lists,
// combos and popups take their keys before the window does. With the plain
// walk (the poller KeyFront gives a dialog without one) Up and Down move the
// focus as Backtab and Tab do.
class GpioKeyboard : public QWidget
{
    Q_OBJECT

public:
    explicit GpioKeyboard(QWidget* parent, bool plainWalk = false);

public slots:
    void slotKey();

private:
    void deliver(int key);
    QTimer* timer;
    bool plainWalk;
};

#endif
