#ifndef KRM_DATA_STICKFILES_H
#define KRM_DATA_STICKFILES_H

#include <string>
#include <vector>

// The upgrade files in a folder given by its device path (the stick's mount
// point): regular files whose name holds both "krm510" and "upg", each in any
// case and anywhere in the name. Subfolders are not entered. The working
// directory is the same afterwards.
std::vector<std::string> upgradeFiles(const char* devicePath);

#endif
