#include "usb/utilityusb.h"

#include "platform/command.h"
#include "platform/systemroot.h"

#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

bool usbMounted()
{
    FILE* out = Command::popen("/usr/bin/checkmountusb.sh", "r");
    if (out == nullptr)
        return false;
    char line[128];
    char last[128] = "";
    while (fgets(line, sizeof line, out) != nullptr)
        memcpy(last, line, sizeof last);
    Command::pclose(out);
    return strstr(last, "sd") != nullptr;
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
