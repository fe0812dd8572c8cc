#include "support/siminstrument.h"

#include "support/testroot.h"

#include <QFile>
#include <QTest>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

#ifndef KRM_SIMD_PATH
#error "KRM_SIMD_PATH must name the krm510-simd binary"
#endif

namespace
{

void pauseMs(int ms)
{
    struct timespec ts;
    ts.tv_sec = ms / 1000;
    ts.tv_nsec = static_cast<long>(ms % 1000) * 1000000L;
    while (nanosleep(&ts, &ts) != 0 && errno == EINTR) {
    }
}

// Waits up to `ms` for the child to end; true when it did.
bool reap(pid_t pid, int ms)
{
    for (int waited = 0; waited <= ms; waited += 10) {
        pid_t r = waitpid(pid, nullptr, WNOHANG);
        if (r == pid || (r < 0 && errno == ECHILD))
            return true;
        pauseMs(10);
    }
    return false;
}

} // namespace

SimInstrument::SimInstrument(const TestRoot& root, bool fast, const QStringList& scenario)
    : rootPath(root.root())
{
    start(fast, scenario);
}

SimInstrument::SimInstrument(const QString& path, bool fast, const QStringList& scenario)
    : rootPath(path)
{
    start(fast, scenario);
}

SimInstrument::~SimInstrument()
{
    stop();
}

void SimInstrument::start(bool fast, const QStringList& scenario)
{
    QByteArray binary = KRM_SIMD_PATH;
    QByteArray rootArg = rootPath.toLocal8Bit();
    QByteArray scenarioFile;
    if (!scenario.isEmpty()) {
        scenarioFile = rootArg + "/krm510-sim-scenario.txt";
        QFile f(QString::fromLocal8Bit(scenarioFile));
        if (f.open(QIODevice::WriteOnly | QIODevice::Truncate))
            f.write(scenario.join('\n').toLocal8Bit() + "\n");
    }
    std::vector<char*> argv;
    argv.push_back(binary.data());
    QByteArray rootOpt = "--root";
    QByteArray modeOpt = fast ? "--fast" : "--real";
    QByteArray scenarioOpt = "--scenario";
    argv.push_back(rootOpt.data());
    argv.push_back(rootArg.data());
    argv.push_back(modeOpt.data());
    if (!scenarioFile.isEmpty()) {
        argv.push_back(scenarioOpt.data());
        argv.push_back(scenarioFile.data());
    }
    argv.push_back(nullptr);
    pid_t parent = getpid();
    pid = fork();
    if (pid == 0) {
        // Only async-signal-safe calls here: the test may have threads.
        prctl(PR_SET_PDEATHSIG, SIGTERM); // never outlive the test
        if (getppid() != parent)
            _exit(127);
        int null = ::open("/dev/null", O_WRONLY);
        if (null >= 0)
            dup2(null, STDOUT_FILENO);
        closefrom(3);
        execv(argv[0], argv.data());
        _exit(127);
    }
    if (pid < 0)
        return;
    // Ready when it answers on its socket (itself, not one that was there before).
    const QByteArray me = "ok krm510-simd pid=" + QByteArray::number(pid) + " ";
    for (int waited = 0; waited < 10000; waited += 10) {
        if (call("ping").startsWith(me))
            return;
        if (waitpid(pid, nullptr, WNOHANG) == pid) {
            pid = -1;
            return;
        }
        pauseMs(10);
    }
    stop();
}

bool SimInstrument::isRunning() const
{
    return pid > 0 &&
           call("ping").startsWith("ok krm510-simd pid=" + QByteArray::number(pid) + " ");
}

bool SimInstrument::stop()
{
    if (pid <= 0)
        return true;
    // Its own process, by its id: the socket may belong to another simulator by now.
    kill(pid, SIGTERM);
    int status = 0;
    bool clean = false;
    for (int waited = 0; waited <= 3000; waited += 10) {
        pid_t r = waitpid(pid, &status, WNOHANG);
        if (r == pid) {
            clean = WIFEXITED(status) && WEXITSTATUS(status) == 0;
            pid = -1;
            return clean;
        }
        if (r < 0 && errno == ECHILD)
            break;
        pauseMs(10);
    }
    if (pid > 0) {
        kill(pid, SIGKILL);
        reap(pid, 2000);
    }
    pid = -1;
    return clean;
}

QByteArray SimInstrument::call(const QByteArray& line) const
{
    QByteArray path = rootPath.toLocal8Bit() + "/dev/krm510-sim.sock";
    struct sockaddr_un address;
    memset(&address, 0, sizeof address);
    address.sun_family = AF_UNIX;
    int dirFd = -1;
    if (static_cast<size_t>(path.size()) >= sizeof address.sun_path) {
        dirFd =
            ::open((rootPath.toLocal8Bit() + "/dev").constData(), O_PATH | O_DIRECTORY | O_CLOEXEC);
        path = "/proc/self/fd/" + QByteArray::number(dirFd) + "/krm510-sim.sock";
    }
    memcpy(address.sun_path, path.constData(), static_cast<size_t>(path.size()) + 1);
    int s = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    QByteArray reply;
    if (s >= 0) {
        struct timeval tv = {10, 0};
        setsockopt(s, SOL_SOCKET, SO_RCVTIMEO, &tv, sizeof tv);
        setsockopt(s, SOL_SOCKET, SO_SNDTIMEO, &tv, sizeof tv);
        if (::connect(s, reinterpret_cast<struct sockaddr*>(&address), sizeof address) == 0) {
            QByteArray request = line + "\n";
            if (::send(s, request.constData(), static_cast<size_t>(request.size()), MSG_NOSIGNAL) ==
                request.size()) {
                char buffer[65536];
                for (;;) {
                    ssize_t n = ::recv(s, buffer, sizeof buffer, 0);
                    if (n < 0 && errno == EINTR)
                        continue;
                    if (n <= 0)
                        break;
                    reply.append(buffer, static_cast<int>(n));
                    if (reply.endsWith('\n'))
                        break;
                }
            }
        }
        ::close(s);
    }
    if (dirFd >= 0)
        ::close(dirFd);
    if (!reply.endsWith('\n'))
        return QByteArray();
    reply.chop(1);
    return reply;
}

bool SimInstrument::command(const QByteArray& line) const
{
    QByteArray answer = call(line);
    return answer == "ok" || answer.startsWith("ok ");
}

QByteArray SimInstrument::value(const QByteArray& line) const
{
    QByteArray answer = call(line);
    if (answer == "ok")
        return QByteArray("");
    if (!answer.startsWith("ok "))
        return QByteArray();
    return answer.mid(3);
}

QByteArray SimInstrument::field(const QByteArray& line, const QByteArray& key) const
{
    const QList<QByteArray> words = value(line).split(' ');
    for (const QByteArray& w : words)
        if (w.startsWith(key + "="))
            return w.mid(key.size() + 1);
    return QByteArray();
}

bool SimInstrument::setIrradiance(double wm2) const
{
    return command("set irradiance " + QByteArray::number(wm2, 'g', 10));
}

bool SimInstrument::setCellTemperature(double c) const
{
    return command("set tcell " + QByteArray::number(c, 'g', 10));
}

bool SimInstrument::setModuleTemperature(double c) const
{
    return command("set tmodule " + QByteArray::number(c, 'g', 10));
}

bool SimInstrument::setAmbientTemperature(double c) const
{
    return command("set tambient " + QByteArray::number(c, 'g', 10));
}

bool SimInstrument::setBattery(double volts) const
{
    return command("set battery " + QByteArray::number(volts, 'g', 10));
}

bool SimInstrument::setAdapter(bool plugged) const
{
    return command(plugged ? "set adapter 1" : "set adapter 0");
}

bool SimInstrument::setSeries(int modules) const
{
    return command("set series " + QByteArray::number(modules));
}

bool SimInstrument::setFault(const QByteArray& fault) const
{
    return command("fault " + fault);
}

bool SimInstrument::pressKey(const char* key) const
{
    return command(QByteArray("key press ") + key);
}

bool SimInstrument::releaseKey(const char* key) const
{
    return command(QByteArray("key release ") + key);
}

bool SimInstrument::tapKey(const char* key) const
{
    static const char* const lines[][2] = {{"escape", "93"}, {"up", "86"},   {"backtab", "89"},
                                           {"return", "75"}, {"down", "81"}, {"tab", "88"}};
    QByteArray line;
    for (const auto& l : lines)
        if (qstrcmp(l[0], key) == 0)
            line = l[1];
    if (line.isEmpty() || !command(QByteArray("key tap ") + key))
        return false;
    return QTest::qWaitFor([&] { return field("gpio " + line, "tap") == "0"; }, 5000);
}

bool SimInstrument::stickIn() const
{
    return command("stick in");
}

bool SimInstrument::stickOut() const
{
    return command("stick out");
}

QString SimInstrument::stickPath() const
{
    return QString::fromLocal8Bit(value("stick path"));
}

bool SimInstrument::removeNode(const char* devicePath) const
{
    return command(QByteArray("node remove ") + devicePath);
}

bool SimInstrument::restoreNode(const char* devicePath) const
{
    return command(QByteArray("node restore ") + devicePath);
}

bool SimInstrument::forceAdc(const char* channel, int count) const
{
    return command(QByteArray("adc force ") + channel + " " +
                   (count < 0 ? QByteArray("off") : QByteArray::number(count)));
}

bool SimInstrument::forceBoardReply(const QByteArray& bytes) const
{
    QByteArray escaped;
    for (char c : bytes) {
        unsigned char u = static_cast<unsigned char>(c);
        if (u == '\\')
            escaped += "\\\\";
        else if (u <= 0x20 || u >= 0x7F)
            escaped += "\\x" + QByteArray::number(u, 16).rightJustified(2, '0');
        else
            escaped += c;
    }
    return command("board reply " + escaped);
}

bool SimInstrument::setBoardFault(const QByteArray& fault) const
{
    return command("board fault " + fault);
}

static QByteArray unescapeWord(const QByteArray& text)
{
    QByteArray bytes;
    for (int i = 0; i < text.size(); i++) {
        char c = text[i];
        if (c != '\\' || i + 1 >= text.size()) {
            bytes += c;
            continue;
        }
        char e = text[++i];
        if (e == 'r')
            bytes += '\r';
        else if (e == 'n')
            bytes += '\n';
        else if (e == 't')
            bytes += '\t';
        else if (e == 'x' && i + 2 < text.size()) {
            bytes += static_cast<char>(text.mid(i + 1, 2).toInt(nullptr, 16));
            i += 2;
        } else
            bytes += e;
    }
    return bytes;
}

QStringList SimInstrument::boardCommands() const
{
    QList<QByteArray> words = value("board log").split(' ');
    QStringList commands;
    for (int i = 1; i < words.size(); i++)
        commands << QString::fromLatin1(unescapeWord(words[i]));
    return commands;
}

QList<unsigned> SimInstrument::flashRows() const
{
    QList<QByteArray> words = value("flash rows").split(' ');
    QList<unsigned> rows;
    for (int i = 1; i < words.size(); i++)
        rows << words[i].toUInt(nullptr, 0);
    return rows;
}

int SimInstrument::backlightRegister(const char* name) const
{
    QByteArray v = field("backlight", name);
    return v.isEmpty() ? -1 : v.toInt();
}

int SimInstrument::powerLineLevel() const
{
    QByteArray v = field("power", "level");
    return v.isEmpty() ? -1 : v.toInt();
}
