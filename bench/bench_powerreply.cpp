// The program's own work in one full "mea_brask" exchange at full speed: the
// 128-line reply, as the board sends it, goes through the line reader's
// bounded buffer in 127-byte pieces, loses its status line and echo, is read
// by the guarded parse and spread over the 512 slots. The line and its ten
// seconds of silence are not part of it. Two figures:
//  - benchExchange: the reply handling alone on a byte buffer, deterministic;
//  - benchAcquireBrask: PowerDevice::acquireBrask over a real pseudo-terminal
//    with the reply already queued and the clock scaled to 1/1000, so the
//    silence costs 10 ms of sleeping and no instructions.
// Measure with
//   valgrind --tool=callgrind --toggle-collect='*bench*' bench/bench_powerreply
// and read the inclusive instructions of each bench function. On the
// instrument's processor (scripts/armel-bench) the count between marks 1 and
// 2 is benchExchange.
#include "device/powerdevice.h"
#include "device/serialport.h"

#include "platform/clock.h"
#include "platform/systemroot.h"

#include "insnmark.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

std::string braskReply()
{
    std::string text = "mea_brask\r\r\n";
    char line[64];
    for (int k = 0; k < 128; k++) {
        // Counts of the size the board's converters give.
        std::snprintf(line, sizeof line, "%d\t%d\t%d\t%d\r\n", 32000 - 211 * k, 180 * k + 17,
                      1500 + 9 * k, 1490 + 9 * k);
        text += line;
    }
    return text + "ERROR 0\r\n";
}

__attribute__((noinline)) int benchExchange(const std::string& wire, _raw_ramp_iv* ramp)
{
    // The line reader.
    char reply[SerialPort::replySize];
    SerialReply bounded{reply, sizeof reply, 0, 0};
    int lines = 0;
    for (size_t at = 0; at < wire.size(); at += 127) {
        int n = static_cast<int>(wire.size() - at < 127 ? wire.size() - at : 127);
        char scratch[256];
        std::memset(scratch, 0, sizeof scratch);
        std::memcpy(scratch, wire.data() + at, static_cast<size_t>(n));
        for (int i = 0; i < n; i++)
            if (scratch[i] == '\r' || scratch[i] == '\n')
                lines++;
        appendSerialReply(&bounded, scratch, n);
    }
    reply[bounded.count] = '\0';
    int count = bounded.count;
    int error = cutStatusLine(reply, &count);
    // The exchange and the operation.
    char data[checkedTextSize];
    std::memset(data, 0, sizeof data);
    int dataCount = 0;
    takeEchoedData(reply, count, "mea_brask\r", data, sizeof data, &dataCount, 10);
    std::memset(ramp, 0, sizeof *ramp);
    int c[4][RAMP_POINTS];
    int* const columns[4] = {c[0], c[1], c[2], c[3]};
    checkedParse(data, "%d\t%d\t%d\t%d", 4, 2, RAMP_POINTS, columns);
    interpolateBrask(c[0], c[1], ramp);
    return error + lines;
}

__attribute__((noinline)) int benchAcquireBrask(PowerDevice* device, _raw_ramp_iv* ramp)
{
    return device->acquireBrask(ramp, nullptr);
}

// The whole call over a pseudo-terminal linked in as "/dev/ttyS1" of a
// temporary root: -1 when the machine has no pseudo-terminals.
int overTheLine(const std::string& wire, _raw_ramp_iv* ramp)
{
    char root[] = "/tmp/krm510-bench-XXXXXX";
    if (mkdtemp(root) == nullptr)
        return -1;
    std::string dev = std::string(root) + "/dev";
    int master = posix_openpt(O_RDWR | O_NOCTTY);
    if (master < 0 || grantpt(master) != 0 || unlockpt(master) != 0 ||
        mkdir(dev.c_str(), 0777) != 0 || symlink(ptsname(master), (dev + "/ttyS1").c_str()) != 0)
        return -1;
    SystemRoot::set(root);
    Clock::setScale(0.001);
    int result = -1;
    {
        PowerDevice device;
        if (write(master, wire.data(), wire.size()) == static_cast<ssize_t>(wire.size()))
            result = benchAcquireBrask(&device, ramp);
    }
    unlink((dev + "/ttyS1").c_str());
    rmdir(dev.c_str());
    rmdir(root);
    close(master);
    return result;
}

} // namespace

int main()
{
    std::string wire = braskReply();
    _raw_ramp_iv ramp;
    insnMark(1);
    int result = benchExchange(wire, &ramp);
    insnMark(2);
    std::printf("buffer: reply %zu bytes, result %d, slot 0 %d/%d, slot 511 %d/%d\n", wire.size(),
                result, ramp.corrente[0], ramp.tensione[0], ramp.corrente[511], ramp.tensione[511]);
    std::memset(&ramp, 0, sizeof ramp);
    result = overTheLine(wire, &ramp);
    std::printf("line: status %d, slot 0 %d/%d, slot 511 %d/%d\n", result, ramp.corrente[0],
                ramp.tensione[0], ramp.corrente[511], ramp.tensione[511]);
    return 0;
}
