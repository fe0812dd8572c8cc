#ifndef KRM_DEVICE_GPIOPD_H
#define KRM_DEVICE_GPIOPD_H

// The mains adapter sense line and the power line of the measuring board.

// The level of "/dev/gpio/105": non-zero when the adapter is plugged in; -1
// when the line cannot be opened, the ioctl's negative result when it cannot
// be read (both count as a plugged adapter for the callers).
int isPowerSupply();

// Drives "/dev/gpio/106", active low: 0 switches the measuring board on, 1
// off. -4 for another value, -3 when the line cannot be opened, -2 when it
// cannot be made an output; otherwise the result of the write.
int powerDeviceStart(int value);

#endif
