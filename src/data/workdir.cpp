#include "data/workdir.h"

#include "platform/systemroot.h"

#include <fcntl.h>
#include <unistd.h>

WorkDir::WorkDir() : savedFd(open(".", O_RDONLY | O_DIRECTORY | O_CLOEXEC))
{
}

WorkDir::~WorkDir()
{
    restore();
    if (savedFd >= 0)
        close(savedFd);
}

bool WorkDir::enter(const char* devicePath)
{
    if (devicePath == nullptr)
        return false;
    return chdir(SystemRoot::path(devicePath).c_str()) == 0;
}

void WorkDir::restore()
{
    if (savedFd >= 0 && fchdir(savedFd) != 0) {
        // the remembered directory is gone; nothing better to go back to
    }
}
