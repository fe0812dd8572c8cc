// The measuring board's reply handling under arbitrary bytes: the bounded
// reply of the line reader (pieces of at most 127 bytes, as they come off the
// line), the status line, the echo, the guarded parse of four and two columns,
// the "mea_brask" interpolation and the version text.
#include "device/powerdevice.h"
#include "device/serialport.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    // A small buffer as well as the exchange's, so that the cut and the
    // abandoning are reached with short inputs too.
    const int sizes[2] = {SerialPort::replySize, 64};
    for (int bufferSize : sizes) {
        std::vector<char> buffer(static_cast<size_t>(bufferSize));
        SerialReply reply{buffer.data(), bufferSize, 0, 0};
        size_t at = 0;
        bool abandoned = false;
        while (at < size && !abandoned) {
            // The first byte of each piece chooses its length.
            size_t piece = 1 + data[at] % 127;
            if (piece > size - at)
                piece = size - at;
            abandoned = appendSerialReply(&reply, reinterpret_cast<const char*>(data) + at,
                                          static_cast<int>(piece)) < 0;
            at += piece;
        }
        buffer[static_cast<size_t>(abandoned ? 0 : reply.count)] = '\0';
        int count = abandoned ? 0 : reply.count;
        int error = cutStatusLine(buffer.data(), &count);
        (void)error;

        if (nulBehindEcho(buffer.data(), count, "mea_brask\r"))
            error = -1;
        (void)error;

        char text[checkedTextSize];
        std::memset(text, 0, sizeof text);
        int textCount = 0;
        if (takeEchoedData(buffer.data(), count, "mea_brask\r", text, sizeof text, &textCount, 10) < 0)
            takeEchoedData(buffer.data(), count, "", text, sizeof text, &textCount, 10);

        int c[4][RAMP_POINTS];
        int* const columns[4] = {c[0], c[1], c[2], c[3]};
        checkedParse(text, "%d\t%d\t%d\t%d", 4, 2, RAMP_POINTS, columns);
        _raw_ramp_iv ramp;
        interpolateBrask(c[0], c[1], &ramp);
        checkedParse(text, "%d\t%d\t%d\t%d", 4, 4, TST_BRASK_POINTS, columns);
        checkedParse(text, "%d\t%d", 2, 2, RAMP_POINTS, columns);

        int major = 0, minor = 0, proto = 0;
        parseVersion(text, &major, &minor, &proto);
    }
    return 0;
}
