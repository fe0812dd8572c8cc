#ifndef KRM_TESTS_TERMIOSCLIENT_H
#define KRM_TESTS_TERMIOSCLIENT_H

#include <QByteArray>

// A plain termios client of a serial line of the simulated instrument, for
// tests that talk to the board, its boot loader or the remote unit as the
// program would: raw 8N1, non-blocking, replies closed by silence.
class TermiosClient
{
public:
    // devicePath is the host path of the node (e.g. root.path("/dev/ttyS1")).
    explicit TermiosClient(const QString& hostPath, int baud = 9600);
    ~TermiosClient();
    TermiosClient(const TermiosClient&) = delete;
    TermiosClient& operator=(const TermiosClient&) = delete;

    bool isOpen() const { return fd >= 0; }
    bool write(const QByteArray& bytes);
    // Reads until nothing has come for `silenceMs` (wall time), or `maxBytes`.
    QByteArray readUntilSilence(int silenceMs, int maxBytes = 1 << 20);
    // Reads exactly `count` bytes within `timeoutMs`; fewer on time-out.
    QByteArray readExactly(int count, int timeoutMs);
    // Command out, reply in.
    QByteArray exchange(const QByteArray& command, int silenceMs = 150);

private:
    int fd = -1;
};

#endif
