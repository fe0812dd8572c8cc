// Feeds arbitrary bytes to the readers of the data files: a measure file, a
// company and an installation file (read, updated in place, read again) and a
// module file. Each input is written to a file in a machine folder made once.

#include "data/datacompany.h"
#include "data/datainstallation.h"
#include "data/datameasures.h"
#include "data/datapanel.h"
#include "data/direntry.h"
#include "platform/systemroot.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

static std::string rootDir;

static void prepare()
{
    char pattern[] = "/tmp/krm510-fuzz-XXXXXX";
    if (mkdtemp(pattern) == nullptr)
        abort();
    rootDir = pattern;
    SystemRoot::set(rootDir);
    mkdir((rootDir + DIR_DATA_ROOT).c_str(), 0777);
    checkDirData();
    mkdir(SystemRoot::path(DIR_DATA_PANEL "/brand").c_str(), 0777);
    if (chdir(rootDir.c_str()) != 0)
        abort();
}

static void writeInput(const char* devicePath, const uint8_t* data, size_t size)
{
    FILE* f = fopen(SystemRoot::path(devicePath).c_str(), "wb");
    if (f == nullptr)
        abort();
    if (size > 0 && fwrite(data, 1, size, f) != size)
        abort();
    fclose(f);
}

// Runs a function with a data directory as the working directory.
template <class F> static void inside(const char* devicePath, F f)
{
    if (chdir(SystemRoot::path(devicePath).c_str()) != 0)
        abort();
    f();
    if (chdir(rootDir.c_str()) != 0)
        abort();
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static bool ready = (prepare(), true);
    (void)ready;

    writeInput(DIR_DATA_MEA_PANEL "/fuzz", data, size);
    _measure m;
    int points = readMeasureData("fuzz", &m, MEA_PANEL);
    if (points != 512 && (points < 256 || points > 511))
        abort();
    freeMeasureData(&m);
    closeListMeasures(getSingleListMeasures("fuzz", MEA_PANEL));
    char date[16], time[16], comment[64];
    getDataTimeComment("fuzz", date, sizeof date, time, sizeof time, comment, sizeof comment,
                       MEA_PANEL);

    writeInput(DIR_DATA_COMPANY "/fuzz", data, size);
    _company* c = readCompanyFromFile("fuzz");
    if (c == nullptr)
        abort();
    updateDataCompany("fuzz", c);
    freeCompany(c);
    freeCompany(readCompanyFromFile("fuzz"));
    inside(DIR_DATA_COMPANY, [] { closeListCompany(addCompanyNode(nullptr, "fuzz")); });

    writeInput(DIR_DATA_INSTALLATION "/fuzz", data, size);
    _installation* in = readInstallationFromFile("fuzz");
    if (in == nullptr)
        abort();
    updateDataInstallation("fuzz", in);
    freeInstallation(in);
    inside(DIR_DATA_INSTALLATION,
           [] { closeListInstallation(addInstallationNode(nullptr, "fuzz")); });

    writeInput(DIR_DATA_PANEL "/brand/fuzz", data, size);
    _panelFeature feature;
    getPanelFeature("brand", "fuzz", &feature);
    inside(DIR_DATA_PANEL "/brand", [] { free(getModelName("fuzz")); });
    return 0;
}
