#include "data/stickfiles.h"

#include "data/workdir.h"

#include <cstring>
#include <dirent.h>
#include <sys/stat.h>

std::vector<std::string> upgradeFiles(const char* devicePath)
{
    std::vector<std::string> found;
    WorkDir wd;
    if (devicePath == nullptr || !wd.enter(devicePath))
        return found;
    DIR* dir = opendir("./");
    if (dir == nullptr)
        return found;
    while (struct dirent* entry = readdir(dir)) {
        if (strcmp(entry->d_name, ".") == 0 || strcmp(entry->d_name, "..") == 0)
            continue;
        struct stat st;
        if (stat(entry->d_name, &st) != 0 || !S_ISREG(st.st_mode))
            continue;
        if (strcasestr(entry->d_name, "krm510") != nullptr &&
            strcasestr(entry->d_name, "upg") != nullptr)
            found.push_back(entry->d_name);
    }
    closedir(dir);
    return found;
}
