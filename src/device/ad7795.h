#ifndef KRM_DEVICE_AD7795_H
#define KRM_DEVICE_AD7795_H

// The AD7795 converter on "/dev/spidev0.0": pyranometer, PT100 with its
// 100 ohm reference resistor, and the battery divider. Each read opens the
// device, converts and closes it again. While a read or the set-up is under
// way the functions below answer at once with their last value, so a timer
// that fires inside a nested event loop never re-enters the bus.

// The channel of one conversion.
enum _probe : int { AD_REFERENCE = 0, AD_PT100 = 1, AD_PYRANO = 2, AD_BATTERY = 3 };

// Mode, configuration and IO set-up of the chip: negative on failure.
int init_ad7795();
// A descriptor set to SPI mode 3, 8 bits, 4 MHz, or -1.
int open_ad7795();
// One conversion, 0 to 65535, or 0 when a transfer fails or the chip does not
// become ready within its bound of status reads.
int read_probe(int fd, _probe probe);

// Converter scale, counts per mV of input at gain 1 (configuration "kpyra").
void setKforPyrano(float k);
// Pyranometer sensitivity in mV per kW/m2 (configuration "cpyar"), and the
// gain code that lets the sensor's full output fill the converter.
void setGforPyrano(float sens);
unsigned char getGforPyrano();
float getSensPyrano();

// W/m2 of a pyranometer count.
float calc_irr(unsigned int level);
float irradiationAcquire(char* ok);
// Degrees C of the PT100 with the caller's slope and offset.
float temperatureAcquire(char* ok, float gain, float offset);
// 0 (full) to 7 (empty).
int batteryLevel();

// The level of a battery count.
int batteryLevelOfCount(int count);
// Degrees C of a PT100 count over the reference count, before the checks.
float pt100Temperature(int reference, int pt100, float gain, float offset);

#endif
