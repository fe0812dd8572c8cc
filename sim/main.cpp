// krm510-simd: the simulated KRM 510 instrument, a process of its own.
//
//   krm510-simd --root <dir> [--fast|--real] [--scenario <file>]
//
// Creates the device nodes, serial lines and scripts under <dir>, then serves
// the program's bus requests and the scenario commands on the Unix socket
// <dir>/dev/krm510-sim.sock, one text line per request and per answer, until
// SIGTERM, SIGINT or a "quit" command. See README.md.
#include "instrument.h"
#include "util.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <map>
#include <poll.h>
#include <sys/signalfd.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using namespace sim;

namespace {

struct Client {
    std::string in;
    std::string out;
    bool closing = false;
};

void usage()
{
    fprintf(stderr, "usage: krm510-simd --root <dir> [--fast|--real] [--scenario <file>]\n");
}

int listenOn(const std::string& root, std::string* socketPath)
{
    *socketPath = root + "/dev/krm510-sim.sock";
    unlink(socketPath->c_str());
    int s = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (s < 0)
        return -1;
    struct sockaddr_un address;
    memset(&address, 0, sizeof address);
    address.sun_family = AF_UNIX;
    std::string name = *socketPath;
    int dirFd = -1;
    if (name.size() >= sizeof address.sun_path) {
        dirFd = open((root + "/dev").c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
        name = "/proc/self/fd/" + std::to_string(dirFd) + "/krm510-sim.sock";
    }
    memcpy(address.sun_path, name.c_str(), std::min(name.size() + 1, sizeof address.sun_path));
    int rc = bind(s, reinterpret_cast<struct sockaddr*>(&address), sizeof address);
    if (dirFd >= 0)
        close(dirFd);
    if (rc != 0 || listen(s, 64) != 0) {
        close(s);
        return -1;
    }
    return s;
}

bool runScenarioFile(Instrument& inst, const std::string& file)
{
    std::string text;
    if (!readFile(file, &text)) {
        fprintf(stderr, "krm510-simd: cannot read scenario %s\n", file.c_str());
        return false;
    }
    size_t start = 0;
    int number = 0;
    while (start <= text.size()) {
        size_t end = text.find('\n', start);
        std::string line = text.substr(start, end == std::string::npos ? std::string::npos : end - start);
        start = end == std::string::npos ? text.size() + 1 : end + 1;
        number++;
        size_t first = line.find_first_not_of(" \t\r");
        if (first == std::string::npos || line[first] == '#')
            continue;
        bool quit = false;
        std::string answer = inst.handle(line, &quit);
        if (answer.compare(0, 2, "ok") != 0) {
            fprintf(stderr, "krm510-simd: %s:%d: %s\n", file.c_str(), number, answer.c_str());
            return false;
        }
    }
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    std::string root, scenarioFile;
    bool fast = false;
    for (int i = 1; i < argc; i++) {
        std::string a = argv[i];
        if (a == "--root" && i + 1 < argc)
            root = argv[++i];
        else if (a == "--fast")
            fast = true;
        else if (a == "--real")
            fast = false;
        else if (a == "--scenario" && i + 1 < argc)
            scenarioFile = argv[++i];
        else if (a == "--help" || a == "-h") {
            usage();
            return 0;
        } else {
            usage();
            return 2;
        }
    }
    if (root.empty()) {
        usage();
        return 2;
    }
    if (root[0] != '/') {
        char cwd[4096];
        if (getcwd(cwd, sizeof cwd) == nullptr)
            return 1;
        root = std::string(cwd) + "/" + root;
    }
    makePath(root);

    sigset_t mask;
    sigemptyset(&mask);
    sigaddset(&mask, SIGTERM);
    sigaddset(&mask, SIGINT);
    sigaddset(&mask, SIGHUP);
    sigprocmask(SIG_BLOCK, &mask, nullptr);
    int sigFd = signalfd(-1, &mask, SFD_CLOEXEC | SFD_NONBLOCK);
    signal(SIGPIPE, SIG_IGN);

    Instrument inst(root, fast);
    std::string error;
    if (!inst.start(&error)) {
        fprintf(stderr, "krm510-simd: %s\n", error.c_str());
        return 1;
    }
    if (!scenarioFile.empty() && !runScenarioFile(inst, scenarioFile))
        return 1;
    std::string socketPath;
    int listener = listenOn(inst.root, &socketPath);
    if (listener < 0) {
        fprintf(stderr, "krm510-simd: cannot listen on %s: %s\n", socketPath.c_str(), strerror(errno));
        return 1;
    }
    printf("krm510-simd: ready, root %s, %s mode, socket %s\n", inst.root.c_str(), fast ? "fast" : "real",
           socketPath.c_str());
    fflush(stdout);

    std::map<int, Client> clients;
    bool quit = false;
    double lastRootCheck = nowMs();
    while (!quit) {
        std::vector<struct pollfd> fds;
        fds.push_back({sigFd, POLLIN, 0});
        fds.push_back({listener, POLLIN, 0});
        std::vector<SerialLine*> lines = inst.lines();
        for (SerialLine* l : lines)
            fds.push_back({l->masterFd(), static_cast<short>(POLLIN | (l->outputPending() ? POLLOUT : 0)), 0});
        size_t firstClient = fds.size();
        for (auto& c : clients)
            fds.push_back({c.first, static_cast<short>(POLLIN | (c.second.out.empty() ? 0 : POLLOUT)), 0});
        double due = inst.tick();
        int timeout = 1000;
        if (due >= 0)
            timeout = std::min(timeout, static_cast<int>(due) + 1);
        int n = poll(fds.data(), fds.size(), timeout);
        if (n < 0 && errno != EINTR)
            break;
        if (fds[0].revents & POLLIN) {
            struct signalfd_siginfo info;
            if (read(sigFd, &info, sizeof info) > 0)
                quit = true;
        }
        if (fds[1].revents & POLLIN) {
            for (;;) {
                int c = accept4(listener, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
                if (c < 0)
                    break;
                clients[c] = Client();
            }
        }
        for (size_t i = 0; i < lines.size(); i++)
            if (fds[2 + i].revents & (POLLIN | POLLHUP))
                inst.lineReadable(lines[i]);
        for (size_t i = firstClient; i < fds.size(); i++) {
            auto found = clients.find(fds[i].fd);
            if (found == clients.end())
                continue;
            Client& c = found->second;
            if (fds[i].revents & (POLLIN | POLLHUP | POLLERR)) {
                char buffer[8192];
                ssize_t r = read(fds[i].fd, buffer, sizeof buffer);
                if (r <= 0) {
                    if (r == 0 || (errno != EAGAIN && errno != EINTR))
                        c.closing = true;
                } else {
                    c.in.append(buffer, static_cast<size_t>(r));
                    size_t end;
                    while ((end = c.in.find('\n')) != std::string::npos) {
                        std::string line = c.in.substr(0, end);
                        c.in.erase(0, end + 1);
                        if (!line.empty() && line.back() == '\r')
                            line.pop_back();
                        bool q = false;
                        c.out += inst.handle(line, &q) + "\n";
                        quit = quit || q;
                    }
                    if (c.in.size() > 1 << 20)
                        c.closing = true;
                }
            }
            while (!c.out.empty()) {
                ssize_t w = write(fds[i].fd, c.out.data(), c.out.size());
                if (w <= 0)
                    break;
                c.out.erase(0, static_cast<size_t>(w));
            }
        }
        for (auto it = clients.begin(); it != clients.end();) {
            if (it->second.closing && (it->second.out.empty() || true)) {
                close(it->first);
                it = clients.erase(it);
            } else {
                ++it;
            }
        }
        double now = nowMs();
        if (now - lastRootCheck > 1000.0) {
            lastRootCheck = now;
            struct stat st;
            if (stat(inst.root.c_str(), &st) != 0)
                quit = true; // the machine folder is gone: nobody needs us any more
        }
    }
    // Answer what is still owed (the "bye" of a quit), then go.
    for (auto& c : clients) {
        if (!c.second.out.empty()) {
            int flags = fcntl(c.first, F_GETFL);
            fcntl(c.first, F_SETFL, flags & ~O_NONBLOCK);
            ssize_t w = write(c.first, c.second.out.data(), c.second.out.size());
            (void)w;
        }
        close(c.first);
    }
    close(listener);
    unlink(socketPath.c_str());
    close(sigFd);
    return 0;
}
