#ifndef KRM_DEVICE_SERIALPORT_H
#define KRM_DEVICE_SERIALPORT_H

#include <termios.h>

class QProgressDialog;

// The second serial line of the instrument, "/dev/ttyS1", to the measuring
// board: 9600 baud, 8N1, no flow control, raw. A reply of the board has no end
// marker: it is over when the line has been silent for the whole time-out.
//
// The reply buffers are bounded. A reply longer than a buffer is cut at the
// buffer; the rest is read and thrown away until the line goes silent. A line
// that stays busy for `maxDiscarded` further bytes is abandoned: the reply
// counts as never having come, so the call ends with no status line.
class SerialPort
{
public:
    // Size of the reply buffer of one exchange.
    static constexpr int replySize = 16384;
    // Bytes thrown away behind a full buffer before the line is given up.
    static constexpr long maxDiscarded = 65536;

    SerialPort();
    virtual ~SerialPort();
    SerialPort(const SerialPort&) = delete;
    SerialPort& operator=(const SerialPort&) = delete;

    void settingSerialPort();
    // Writes the whole NUL-terminated text: the byte count, or -1 when the
    // port is not open or the write was short.
    int writeSerialPort(const char* text);
    // One wait of timeoutMs and one read of at most 127 bytes, NUL behind
    // them: the count, or -1 when nothing came.
    int readAtomicSerialPort(char* buffer, int* count, unsigned int timeoutMs);
    // Reads one whole reply, ended by silence, into buffer (size bytes with
    // the NUL), cuts the status line off and puts its number into error (-1
    // without one). 1 when anything arrived, else 0.
    int readSerialPort(char* buffer, int size, int* count, int* error, unsigned int timeoutMs,
                       QProgressDialog* progress);
    // One exchange: writes command, reads the reply, hands the data behind the
    // echo of the command to data (dataSize bytes with the NUL), CR turned
    // into separator when it lies in 7..14. A NUL byte behind the echo ends the
    // reply's text before its status line: error then becomes -1. 1 when the echo was found, -1
    // when not; the failing result of writeSerialPort when the command could not be written (error
    // then stays as it was).
    int writeReadSerialPort(const char* command, char* data, int dataSize, int* count, int* error,
                            char separator, unsigned int timeoutMs, QProgressDialog* progress);

    int fd;

protected:
    struct termios oldtio; // found at opening, restored at the end
    struct termios newtio; // the working settings
};

// ---- The reply handling on byte buffers, without a line.

// One reply being read into a bounded buffer.
struct SerialReply {
    char* buffer;   // size bytes, the last kept for the NUL
    int size;
    int count;      // bytes kept
    long discarded; // bytes thrown away behind the full buffer
};

// Adds n bytes that came from the line. 0 while the reply may go on, -1 once
// the line has been busy for more than maxDiscarded bytes past the buffer.
int appendSerialReply(SerialReply* reply, const char* bytes, int n);

// Looks for the first "ERROR" in the count bytes of the reply (a NUL behind
// them) and cuts it there: the number of its "ERROR %d\r" line, or -1 when
// there is none (or no number behind it). count becomes the bytes before the
// cut. Stray NUL bytes on the line are bytes like any other here.
int cutStatusLine(char* buffer, int* count);

// True when the replyCount bytes of the reply (its status line already cut)
// hold the command's echo and a NUL byte somewhere behind it.
bool nulBehindEcho(const char* reply, int replyCount, const char* command);

// Finds the whole command text in the replyCount bytes of the reply and
// copies what follows it to data (at most dataSize - 1 bytes and a NUL), CR
// replaced by separator when that lies in 7..14. 1 and the count of data bytes
// when the command was found; -1 with data untouched when not.
int takeEchoedData(const char* reply, int replyCount, const char* command, char* data,
                   int dataSize, int* count, char separator);

#endif
