#ifndef KRM_TESTS_DEVICE_PTYBOARD_H
#define KRM_TESTS_DEVICE_PTYBOARD_H

#include "support/testroot.h"

#include <QByteArray>
#include <QtGlobal>

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

// The far end of "/dev/ttyS1" played by the test itself: a real
// pseudo-terminal whose slave is linked into the system root, so the program
// opens, configures and reads a real terminal. The test writes what a board,
// sane or broken, would send: small replies straight away, long or endless
// ones from a child process that keeps the line busy.
class PtyBoard
{
public:
    explicit PtyBoard(const TestRoot& root)
    {
        master = posix_openpt(O_RDWR | O_NOCTTY);
        if (master < 0 || grantpt(master) != 0 || unlockpt(master) != 0)
            return;
        slavePath = QByteArray(ptsname(master));
        // Keep one slave descriptor open so that the line never hangs up
        // between the program's openings.
        holder = ::open(slavePath.constData(), O_RDWR | O_NOCTTY);
        fcntl(master, F_SETFL, fcntl(master, F_GETFL) | O_NONBLOCK);
        ok = symlink(slavePath.constData(), root.path("/dev/ttyS1").toLocal8Bit().constData()) ==
                 0 &&
             holder >= 0;
    }
    ~PtyBoard()
    {
        stop();
        if (holder >= 0)
            ::close(holder);
        if (master >= 0)
            ::close(master);
    }
    PtyBoard(const PtyBoard&) = delete;
    PtyBoard& operator=(const PtyBoard&) = delete;

    bool isValid() const { return ok; }

    // Puts bytes on the line now (they wait in the terminal's queue).
    bool send(const QByteArray& bytes)
    {
        qsizetype done = 0;
        while (done < bytes.size()) {
            ssize_t n = ::write(master, bytes.constData() + done, size_t(bytes.size() - done));
            if (n <= 0)
                return false;
            done += n;
        }
        return true;
    }

    // A child process writes bytes, then, when endless, keeps writing filler
    // until it is stopped.
    void sendInBackground(const QByteArray& bytes, bool endless = false)
    {
        child = fork();
        if (child != 0)
            return;
        int flags = fcntl(master, F_GETFL);
        fcntl(master, F_SETFL, flags & ~O_NONBLOCK);
        qsizetype done = 0;
        while (done < bytes.size()) {
            ssize_t n = ::write(master, bytes.constData() + done, size_t(bytes.size() - done));
            if (n <= 0)
                _exit(1);
            done += n;
        }
        while (endless) {
            static const char filler[] = "12\t34\t56\t78\r\n";
            if (::write(master, filler, sizeof filler - 1) <= 0)
                _exit(1);
        }
        _exit(0);
    }

    void stop()
    {
        if (child > 0) {
            kill(child, SIGKILL);
            waitpid(child, nullptr, 0);
            child = -1;
        }
    }

    // What the program has written to the board so far.
    QByteArray received()
    {
        char buffer[512];
        ssize_t n;
        while ((n = ::read(master, buffer, sizeof buffer)) > 0)
            sent.append(buffer, n);
        return sent;
    }

    // The settings of the line as the program left them.
    bool settings(struct termios* tio) const { return tcgetattr(holder, tio) == 0; }
    bool setSettings(const struct termios& tio) const
    {
        return tcsetattr(holder, TCSANOW, &tio) == 0;
    }

    int master = -1;
    int holder = -1;
    pid_t child = -1;
    QByteArray slavePath;

private:
    bool ok = false;
    QByteArray sent;
};

#endif
