#ifndef KRM_PLATFORM_SYSTEMROOT_H
#define KRM_PLATFORM_SYSTEMROOT_H

#include <string>

// Every fixed path of the instrument ("/etc/krm510.conf", "/dev/ttyS1",
// "/krm510data/datapanel", ...) is written in the code as it is on the device
// and resolved here. On the device the root is empty and a path stays as it
// is; the desktop simulator and the tests put the whole machine into a folder
// of their own and set that folder as the root.
//
// Only absolute paths are prefixed: a relative name is relative to the
// working directory, which the file layer has already moved into the root.
// Resolve a path once, at the lowest layer that hands it to the system.
class SystemRoot
{
public:
    static void set(const std::string& root);
    static const std::string& get();
    static std::string path(const char* devicePath);
    static std::string path(const std::string& devicePath) { return path(devicePath.c_str()); }
};

#endif
