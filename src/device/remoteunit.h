#ifndef KRM_DEVICE_REMOTEUNIT_H
#define KRM_DEVICE_REMOTEUNIT_H

#include "data/coredata.h"

#include <termios.h>

// The commands of the remote sensor unit, by position in remote_cmd.
enum _remoteCmd : int {
    REMOTE_STOPREMOTO = 0,
    REMOTE_TOFF = 1,
    REMOTE_TON = 2,
    REMOTE_ADCPIRANO = 3,  // generation 1: pyranometer count
    REMOTE_ADCAMBIENT = 4, // generation 1: ambient PT100 count
    REMOTE_ADCREF = 5,     // generation 1: reference count
    REMOTE_ADCPANEL = 6,   // generation 1: module PT100 count
    REMOTE_VERSION = 7,
    REMOTE_PYSENS = 8,     // generation 2: pyranometer sensitivity, a format
    REMOTE_IRR = 9,        // generation 2: irradiance
    REMOTE_TEMPCELL = 10,  // generation 2: module temperature
    REMOTE_TEMPENV = 11    // generation 2: ambient temperature
};

// Twelve commands and a closing empty text.
extern const char* const remote_cmd[13];
// What the Bluetooth link script does, five commands and a closing empty
// text. Nothing in the program runs them. The second text is two commands
// run together ("chmod ... /dev/rfcomm0" and "hciconfig hci0 reset"), as it
// has always stood.
extern const char* const bluez_cmd[6];

// Reply buffer of one exchange with the unit; a longer reply is cut there.
#define REMOTE_REPLY_SIZE 1024

// The client of the remote sensor unit, on a USB serial adapter
// ("/dev/ttyUSB0" to 9) or on Bluetooth ("/dev/rfcomm0" after the link
// script), 38400 baud. A reply has no end marker: it is over after two
// seconds of silence. A generation 1 unit answers converter counts, which
// are turned into values here; a generation 2 unit answers values.
class RemoteUnit
{
public:
    // All callers pass the sensitivity 10.54; connect replaces it with the
    // configured one.
    RemoteUnit(_remoteUnitLink link, float sens);
    ~RemoteUnit();
    RemoteUnit(const RemoteUnit&) = delete;
    RemoteUnit& operator=(const RemoteUnit&) = delete;

    // Opens the line, quiets the unit, asks its version and, for a
    // generation 2 unit, tells it the sensitivity: non-zero when the line is
    // open.
    int connect();
    // Restores the line's settings and closes it; on Bluetooth stops the
    // link script (every time). Always 1.
    int disconnect();
    // Bluetooth: whether an rfcomm process runs; USB: whether the line is
    // open; otherwise no.
    int isConnect();

    // W/m2; ok 1 when the unit gave a value.
    float getPirano(char* ok);
    // Degrees C of the probe on the module.
    float getTempModulo(char* ok);
    // Degrees C of the ambient probe.
    float getTempAmbiente(char* ok);

    _remoteUnitLink link;
    int fd;                // -1 while closed
    struct termios oldtio; // found at opening
    struct termios newtio; // working
    int version2;          // 1 for a unit of major version above 1
    float sensPyrano;      // sensitivity told to a generation 2 unit

private:
    void settingPort();
    void sendTon(bool on);
    void sendSensPyrano();
    void remoteVersion();
    int writeUsbPort(const char* text);
    int writeReadUsbPort(const char* command, char* reply, int replySize, int* count);
    int readSerialPort(char* buffer, int* count);
    int readAtomicSerialPort(char* buffer, int* count);
    float getPiranoRemoteVersion1(char* ok);
    float getTempModuloVersion1(char* ok);
    float getTempAmbienteVersion1(char* ok);
    float getPiranoRemoteVersion2(char* ok);
    float getTempModuloVersion2(char* ok);
    float getTempAmbienteVersion2(char* ok);
    float temperatureVersion1(_remoteCmd probe, char* ok);
    float valueVersion2(_remoteCmd command, const char* format, char* ok);
};

#endif
