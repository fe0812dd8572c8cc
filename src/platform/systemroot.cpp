#include "platform/systemroot.h"

namespace {
std::string rootFolder;
}

void SystemRoot::set(const std::string& root)
{
    rootFolder = root;
    while (rootFolder.size() > 1 && rootFolder.back() == '/')
        rootFolder.pop_back();
    if (rootFolder == "/")
        rootFolder.clear();
}

const std::string& SystemRoot::get()
{
    return rootFolder;
}

std::string SystemRoot::path(const char* devicePath)
{
    if (devicePath == nullptr)
        return std::string();
    if (devicePath[0] != '/' || rootFolder.empty())
        return std::string(devicePath);
    return rootFolder + devicePath;
}
