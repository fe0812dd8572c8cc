#include "data/freespace.h"

#include "platform/systemroot.h"

#include <cmath>
#include <sys/statvfs.h>

float get_use_space_percentage(const char* path)
{
    struct statvfs vfs;
    if (path == nullptr || statvfs(SystemRoot::path(path).c_str(), &vfs) != 0)
        return 0;
    float total = static_cast<float>(vfs.f_blocks);
    float free = static_cast<float>(vfs.f_bfree);
    if (total == 0.0f || free == 0.0f)
        return 0;
    return std::fabs((total - free) / total * 100.0f);
}
