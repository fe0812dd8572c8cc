#include "device/remoteunit.h"

#include "data/datasetting.h"
#include "device/ad7795.h"
#include "device/serialport.h"
#include "platform/clock.h"
#include "platform/command.h"
#include "platform/systemroot.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <string>
#include <sys/select.h>
#include <unistd.h>

const char* const remote_cmd[13] = {
    "STOPREMOTO\r", "TOFF\r",    "TON\r",       "ADCPIRANO\r", "ADCAMBIENT\r",
    "ADCREF\r",     "ADCPANEL\r", "VERSION\r",  "PYSENS %f\r", "IRR\r",
    "TEMPCELL\r",   "TEMPENV\r", "",
};

const char* const bluez_cmd[6] = {
    "mknod /dev/rfcomm0 c 216 0",
    "chmod 666 /dev/rfcomm0hciconfig hci0 reset", // two commands without a separator, as always
    "hciconfig hci0 down",
    "hciconfig hci0 up",
    "rfcomm connect 0",
    "",
};

RemoteUnit::RemoteUnit(_remoteUnitLink link, float sens)
    : link(link), fd(-1), version2(0), sensPyrano(sens)
{
    std::memset(&oldtio, 0, sizeof oldtio);
    std::memset(&newtio, 0, sizeof newtio);
}

RemoteUnit::~RemoteUnit()
{
    disconnect();
}

int RemoteUnit::connect()
{
    _configParam config;
    readConfigFile(&config);
    sensPyrano = config.cpyar;
    if (link == LINK_USB) {
        for (int number = 0; number < 10; number++) {
            char node[32];
            std::snprintf(node, sizeof node, "/dev/ttyUSB%d", number);
            fd = ::open(SystemRoot::path(node).c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK);
            if (fd > 0)
                break;
        }
        if (fd <= 0) {
            fd = -1;
            return 0;
        }
        settingPort();
    } else if (link == LINK_BLUETOOTH) {
        // The address is whatever 17 characters the settings took: one
        // argument of the script, never a command of its own.
        std::string start =
            std::string("/usr/bin/krmhci.sh start ") + Command::quote(config.bluemac);
        Command::system(start.c_str());
        for (int attempt = 0; attempt < 4; attempt++) {
            fd = ::open(SystemRoot::path("/dev/rfcomm0").c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK);
            if (fd > 0)
                break;
            Clock::sleep(1);
        }
        if (fd <= 0) {
            fd = -1;
            return 0;
        }
        settingPort();
    }
    if (fd < 1)
        return 0;
    sendTon(false);
    remoteVersion();
    if (version2 == 1)
        sendSensPyrano();
    return fd > 0 ? 1 : 0;
}

int RemoteUnit::disconnect()
{
    if (link == LINK_USB || link == LINK_BLUETOOTH) {
        if (fd >= 0) {
            tcsetattr(fd, TCSANOW, &oldtio);
            ::close(fd);
        }
        if (link == LINK_BLUETOOTH)
            Command::system("/usr/bin/krmhci.sh stop");
    }
    fd = -1;
    return 1;
}

int RemoteUnit::isConnect()
{
    if (link == LINK_BLUETOOTH) {
        // The running rfcomm process, not the node, tells that the link lives.
        FILE* pids = Command::popen("pidof rfcomm", "r");
        if (pids == nullptr)
            return 0;
        char line[32];
        std::memset(line, 0, sizeof line);
        while (std::fgets(line, sizeof line, pids) != nullptr) {
        }
        Command::pclose(pids);
        return std::atoi(line) > 0 ? 1 : 0;
    }
    if (link == LINK_USB)
        return fd > 0 ? 1 : 0;
    return 0;
}

namespace
{

// A value that is not a number (a dead first-generation unit reads 0 / 0, a
// second-generation unit may answer "nan") is a failed reading: 0 and not ok,
// as for the unit's other failures. The old instrument called it good.
float finiteReading(float value, char* ok)
{
    if (std::isfinite(value))
        return value;
    *ok = 0;
    return 0;
}

} // namespace

float RemoteUnit::getPirano(char* ok)
{
    *ok = 0;
    if (fd < 0)
        return 0;
    return finiteReading(version2 == 1 ? getPiranoRemoteVersion2(ok) : getPiranoRemoteVersion1(ok),
                         ok);
}

float RemoteUnit::getTempModulo(char* ok)
{
    *ok = 0;
    if (fd < 0)
        return 0;
    return finiteReading(version2 == 1 ? getTempModuloVersion2(ok) : getTempModuloVersion1(ok), ok);
}

float RemoteUnit::getTempAmbiente(char* ok)
{
    *ok = 0;
    if (fd < 0)
        return 0;
    return finiteReading(version2 == 1 ? getTempAmbienteVersion2(ok) : getTempAmbienteVersion1(ok),
                         ok);
}

void RemoteUnit::settingPort()
{
    tcgetattr(fd, &oldtio);
    tcgetattr(fd, &newtio);
    cfsetispeed(&newtio, B38400);
    cfsetospeed(&newtio, B38400);
    // 8 data bits, one stop bit, no parity, no flow control; the odd parity
    // selector stays as found and does nothing without parity.
    newtio.c_cflag &= ~(CRTSCTS | CSTOPB | PARENB | CSIZE | CREAD | CLOCAL);
    newtio.c_cflag |= CS8 | CREAD | CLOCAL;
    newtio.c_iflag = IGNBRK;
    newtio.c_oflag = 0;
    newtio.c_lflag = 0;
    newtio.c_cc[VMIN] = 1;
    newtio.c_cc[VTIME] = 5;
    tcflush(fd, TCIFLUSH);
    tcsetattr(fd, TCSANOW, &newtio);
}

void RemoteUnit::sendTon(bool on)
{
    for (int i = 0; i < 3; i++) {
        writeUsbPort(remote_cmd[on ? REMOTE_TON : REMOTE_TOFF]);
        Clock::sleep(1);
    }
}

void RemoteUnit::sendSensPyrano()
{
    char text[64];
    cSnprintf(text, sizeof text, remote_cmd[REMOTE_PYSENS], static_cast<double>(sensPyrano));
    writeUsbPort(text);
    Clock::sleep(1);
}

void RemoteUnit::remoteVersion()
{
    Clock::sleep(1);
    for (int attempt = 0; attempt < 3; attempt++) {
        char reply[64];
        std::memset(reply, 0, sizeof reply);
        int count = 0;
        writeReadUsbPort(remote_cmd[REMOTE_VERSION], reply, sizeof reply, &count);
        int major = 0, minor = 0, patch = 0;
        if (std::sscanf(reply, "%*s : %*s %d.%d.%d", &major, &minor, &patch) == 3) {
            version2 = major > 1 ? 1 : 0;
            return;
        }
        Clock::sleep(1);
    }
    // No version: version2 is left as it is, 0 for a unit never seen before,
    // and the unit is taken for the first generation.
}

int RemoteUnit::writeUsbPort(const char* text)
{
    if (fd < 0)
        return -1;
    return static_cast<int>(::write(fd, text, std::strlen(text)));
}

int RemoteUnit::writeReadUsbPort(const char* command, char* reply, int replySize, int* count)
{
    int written = writeUsbPort(command);
    if (written < 1)
        return written;
    char text[REMOTE_REPLY_SIZE];
    std::memset(text, 0, sizeof text);
    int n = 0;
    readSerialPort(text, &n);
    if (n == 0)
        return -1;
    int keep = n < replySize - 1 ? n : replySize - 1;
    std::memcpy(reply, text, static_cast<size_t>(keep));
    reply[keep] = '\0';
    *count = keep;
    return 1;
}

int RemoteUnit::readSerialPort(char* buffer, int* count)
{
    // A reply is everything until the line stays silent; what does not fit
    // is read and dropped, and a line that never goes quiet is given up.
    SerialReply reply{buffer, REMOTE_REPLY_SIZE, 0, 0};
    char piece[128];
    int n = 0;
    while (readAtomicSerialPort(piece, &n) > 0) {
        if (appendSerialReply(&reply, piece, n) < 0) {
            reply.count = 0;
            break;
        }
    }
    buffer[reply.count] = '\0';
    *count = reply.count;
    return reply.count;
}

int RemoteUnit::readAtomicSerialPort(char* buffer, int* count)
{
    *count = 0;
    if (fd < 0 || fd >= FD_SETSIZE)
        return 0;
    fd_set readable;
    FD_ZERO(&readable);
    FD_SET(fd, &readable);
    struct timeval timeout;
    timeout.tv_sec = 2;
    timeout.tv_usec = 0;
    if (Clock::select(fd + 1, &readable, nullptr, nullptr, &timeout) <= 0)
        return 0;
    ssize_t n = ::read(fd, buffer, 127);
    if (n <= 0)
        return static_cast<int>(n);
    buffer[n] = '\0';
    *count = static_cast<int>(n);
    return static_cast<int>(n);
}

float RemoteUnit::getPiranoRemoteVersion1(char* ok)
{
    char reply[64];
    std::memset(reply, 0, sizeof reply);
    int count = 0;
    writeReadUsbPort(remote_cmd[REMOTE_ADCPIRANO], reply, sizeof reply, &count);
    int level = std::atoi(reply);
    *ok = level != 0 ? 1 : 0;
    float value = calc_irr(static_cast<unsigned int>(level));
    if (value < 0.01f)
        *ok = 0;
    return value;
}

float RemoteUnit::temperatureVersion1(_remoteCmd probe, char* ok)
{
    char reply[64];
    std::memset(reply, 0, sizeof reply);
    int count = 0;
    writeReadUsbPort(remote_cmd[probe], reply, sizeof reply, &count);
    int level = std::atoi(reply);
    std::memset(reply, 0, sizeof reply);
    writeReadUsbPort(remote_cmd[REMOTE_ADCREF], reply, sizeof reply, &count);
    int reference = std::atoi(reply);
    *ok = level != 65535 ? 1 : 0;
    // Neither gain nor offset here. A dead line gives 0 / 0: not a number,
    // which the public readers turn into a failed reading.
    float ratio = static_cast<float>(level) / static_cast<float>(reference);
    float value = static_cast<float>((static_cast<double>(ratio) - 1.0) * 100.0 / 0.385);
    if (value < -10.0f)
        *ok = 0;
    return value;
}

float RemoteUnit::getTempModuloVersion1(char* ok)
{
    return temperatureVersion1(REMOTE_ADCPANEL, ok);
}

float RemoteUnit::getTempAmbienteVersion1(char* ok)
{
    return temperatureVersion1(REMOTE_ADCAMBIENT, ok);
}

float RemoteUnit::valueVersion2(_remoteCmd command, const char* format, char* ok)
{
    char reply[128];
    std::memset(reply, 0, sizeof reply);
    int count = 0;
    writeReadUsbPort(remote_cmd[command], reply, sizeof reply, &count);
    if (std::strstr(reply, "--") != nullptr)
        return 0; // the unit has no value
    *ok = 1;
    float value = 0;
    cSscanf(reply, format, &value); // numbers on the wire speak C
    return value;
}

float RemoteUnit::getPiranoRemoteVersion2(char* ok)
{
    return valueVersion2(REMOTE_IRR, "%*s = %f %*s", ok);
}

float RemoteUnit::getTempModuloVersion2(char* ok)
{
    return valueVersion2(REMOTE_TEMPCELL, "%*s %*s = %f", ok);
}

float RemoteUnit::getTempAmbienteVersion2(char* ok)
{
    return valueVersion2(REMOTE_TEMPENV, "%*s %*s = %f", ok);
}
