#include "device/rfcomm.h"

#include "platform/systemroot.h"

#include <cstdio>

int createBlueRFCOMM(const char* mac, const char* name)
{
    if (mac == nullptr || name == nullptr)
        return -1;
    FILE* file = std::fopen(SystemRoot::path(RFCOMM_CONF).c_str(), "w");
    if (file == nullptr)
        return -1;
    int written = 0;
    written += std::fprintf(file, "#\n");
    written += std::fprintf(file, "# RFCOMM configuration file.\n");
    written += std::fprintf(file, "#\n");
    written += std::fprintf(file, "\n");
    written += std::fprintf(file, "rfcomm0 {\n");
    written += std::fprintf(file, "#       # Automatically bind the device at startup\n");
    written += std::fprintf(file, "        bind no;\n");
    written += std::fprintf(file, "#\n");
    written += std::fprintf(file, "#       # Bluetooth address of the device\n");
    written += std::fprintf(file, "        device %s;\n", mac);
    written += std::fprintf(file, "#\n");
    written += std::fprintf(file, "#       # RFCOMM channel for the connection\n");
    written += std::fprintf(file, "        channel 0;\n");
    written += std::fprintf(file, "#\n");
    written += std::fprintf(file, "#       # Description of the connection\n");
    written += std::fprintf(file, "        comment \"%s\";\n", name);
    written += std::fprintf(file, "}\n");
    // A file that could not be written whole is no configuration.
    bool failed = std::ferror(file) != 0;
    if (std::fclose(file) != 0 || failed)
        return -1;
    return written;
}
