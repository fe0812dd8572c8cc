#include "debugbrask/debugdir.h"

#include "data/direntry.h"
#include "platform/systemroot.h"

#include <cstdio>
#include <ctime>
#include <sys/stat.h>

int checkDebugDir()
{
    const std::string path = SystemRoot::path(DIR_DATA_DEBUG);
    struct stat st;
    if (stat(path.c_str(), &st) == 0) {
        if (S_ISDIR(st.st_mode))
            return 0;
        std::string backup = backupDirName(DIR_DATA_DEBUG, time(nullptr));
        rename(path.c_str(), SystemRoot::path(backup.c_str()).c_str());
    }
    return mkdir(path.c_str(), 0777);
}
