#include "data/measureserial.h"

#include "data/datameasures.h"
#include "data/workdir.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

long readMeasureSerial(const char* file, _meaType type)
{
    if (file == nullptr)
        return -1;
    WorkDir wd;
    if (!wd.enter(measureDir(type)))
        return -2;
    FILE* stream = fopen(file, "r");
    if (stream == nullptr)
        return -1;
    long serial = -1;
    char line[TAG_LINE_SIZE];
    char key[TAG_KEY_SIZE];
    char value[TAG_VALUE_SIZE];
    while (readTagLine(stream, line)) {
        if (splitTagLine(line, key, value) != TAG_PAIR || std::strcmp(key, "FSN") != 0)
            continue;
        char* end = nullptr;
        const long number = std::strtol(value, &end, 10);
        if (end != value && number >= 0)
            serial = number;
        break;
    }
    fclose(stream);
    return serial;
}
