#include "usb/utilityusb.h"

#include "platform/command.h"
#include "platform/systemroot.h"

#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

// The last line of the stick script's output, read in lines of at most 128
// bytes; empty without output or without the script.
static std::string lastMountLine()
{
    FILE* out = Command::popen("/usr/bin/checkmountusb.sh", "r");
    if (out == nullptr)
        return std::string();
    char line[128];
    char last[128] = "";
    while (fgets(line, sizeof line, out) != nullptr)
        memcpy(last, line, sizeof last);
    Command::pclose(out);
    return last;
}

bool usbMounted()
{
    return lastMountLine().find("sd") != std::string::npos;
}

std::string usbMountPoint()
{
    const std::string line = lastMountLine();
    size_t start = 0;
    while (start <= line.size()) {
        size_t end = line.find(' ', start);
        if (end == std::string::npos)
            end = line.size();
        std::string word = line.substr(start, end - start);
        while (!word.empty() && (word.back() == '\n' || word.back() == '\r'))
            word.pop_back();
        if (word.find("media") != std::string::npos)
            return word;
        start = end + 1;
    }
    return std::string();
}

int usbCheckSD()
{
    for (char letter = 'a'; letter <= 'y'; letter++) {
        for (int number = 0; number < 20; number++) {
            char node[32];
            snprintf(node, sizeof node, "/dev/sd%c%d", letter, number);
            int fd = open(SystemRoot::path(node).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
            if (fd > 1) {
                close(fd);
                return 1;
            }
            if (fd >= 0)
                close(fd);
        }
    }
    return 0;
}
