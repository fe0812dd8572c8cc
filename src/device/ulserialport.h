#ifndef KRM_DEVICE_ULSERIALPORT_H
#define KRM_DEVICE_ULSERIALPORT_H

#include <termios.h>

// The line to the boot loader of the measuring board: "/dev/ttyS1" at 38400
// baud, raw bytes. The loader's protocol has no text and no end marker: every
// answer has a known length, so a read waits for exactly that many bytes.

// Times the one second wait may run out before UlReadSerialData gives up: a
// read of the loader ends after 10 s of silence at most. The old instrument
// waited 2000 of them (over half an hour) per read, and the greeting 2000
// reads long.
#define UL_READ_TIMEOUTS 10
// Bytes a loader may send beyond the length asked for before the read is
// given up as hopeless (a line that never goes quiet would never time out).
#define UL_READ_OVERRUN 65536L

// "/dev/ttyS1" read-write and non-blocking: the descriptor or -1.
int UlOpenSerialPort();
// Keeps the settings found in saved and puts the line into working: 38400
// baud, 8 data bits, no parity, no flow control, raw. Nothing on a negative
// descriptor.
void UlSettingSerialPort(int fd, struct termios* saved, struct termios* working);
// Restores the saved settings and closes the line (nothing when fd is
// negative).
void UlCloseSerialPort(int fd, struct termios* saved);
// True when length is at least 1, fd not negative and the whole block went out.
bool UlWriteSerialBlock(int fd, const char* data, int length);
// Waits up to one second; -1 when nothing came, else reads at most 127 bytes
// into buffer (128 bytes of room), a NUL behind them, and gives their count.
int UlReadAtomicSerialPort(int fd, char* buffer, int* count);
// Reads until exactly length bytes have come: 1. The first length bytes go to
// buffer. Bytes past the length make the count miss and end in the time-outs,
// as on the instrument. After UL_READ_TIMEOUTS time-outs, or when
// the line keeps talking UL_READ_OVERRUN bytes past the length, it prints
// "-- UlReadSerialData : timeout expired --" and gives 0.
int UlReadSerialData(int fd, char* buffer, int length);

#endif
