// Feeds arbitrary bytes to the tag-line reading and to the configuration
// reader: whatever a damaged file holds, reading it must end with a usable
// record and nothing out of bounds; a line is read whole up to its bound, and
// a stored text decodes to what it holds.
#include "data/coredata.h"
#include "data/datasetting.h"
#include "data/storedtext.h"
#include "platform/systemroot.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <sys/stat.h>

static std::string makeRoot()
{
    char folder[] = "/tmp/krm510-fuzz-XXXXXX";
    if (mkdtemp(folder) == nullptr)
        abort();
    std::string root = folder;
    mkdir((root + "/etc").c_str(), 0777);
    SystemRoot::set(root);
    return root;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const std::string root = makeRoot();

    // Every piece of the input through the splitter.
    FILE* memory = fmemopen(const_cast<uint8_t*>(data), size, "r");
    if (memory != nullptr) {
        char line[TAG_LINE_SIZE];
        char key[TAG_KEY_SIZE];
        char value[TAG_VALUE_SIZE];
        while (readTagLine(memory, line)) {
            _tagLine kind = splitTagLine(line, key, value);
            if (kind == TAG_PAIR && (key[0] == '\0' || value[0] == '\0'))
                abort();
            if (strlen(key) >= TAG_KEY_SIZE || strlen(value) >= TAG_VALUE_SIZE)
                abort();
            // a stored text comes back whole: as UTF-8, or else byte for byte as Latin-1
            if (kind == TAG_PAIR) {
                QString text = storedText(value);
                if (textToStore(text) != QByteArray(value) && text.toLatin1() != QByteArray(value))
                    abort();
            }
        }
        fclose(memory);
    }

    // The same bytes as the configuration file.
    std::string path = root + "/etc/krm510.conf";
    FILE* f = fopen(path.c_str(), "w");
    if (f == nullptr)
        return 0;
    fwrite(data, 1, size, f);
    fclose(f);
    _configParam config;
    if (readConfigFile(&config) != 0)
        abort();
    if (strlen(config.bluemac) >= BLUEMAC_SIZE || strlen(config.bluename) >= BLUENAME_SIZE)
        abort();
    if (config.tclock > 2)
        abort();
    return 0;
}
