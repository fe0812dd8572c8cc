#ifndef KRM_DEVICE_MONITOR_H
#define KRM_DEVICE_MONITOR_H

// The backlight: a PWM dimmer at address 0x60 on "/dev/i2c-1" with the
// registers PSC0, PWM0, PSC1, PWM1, LS0 at 1 to 5. Its duty is inverted: a
// PWM0 of 0 is full brightness.

// Brightness in percent, 0 to 100: 0, or -1 for a value above 100 or a line
// that cannot be opened or addressed.
int monitor_set_value(int percent);
// Both PWM outputs set up, the display at full brightness: 0 or -1.
int monitor_pwm_set_default();

// The PWM0 byte of a brightness in percent (0 to 100): 100 gives 0, 0 gives
// 254; full duty is never asked for.
unsigned char monitor_pwm_byte(int percent);

#endif
