#include "shell/desktopseed.h"

#include "data/datapanel.h"
#include "data/datasetting.h"
#include "data/direntry.h"
#include "platform/systemroot.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cstdlib>

namespace
{

struct SeedModule {
    const char* brand;
    const char* model;
    int type; // 1 mono, 2 poly, 3 thin film, 4 amorphous, 5 micromorph
    float pmax, vmpp, impp, voc, isc, noct, kisc, kvoc, kpmax, tollp, tollm;
};

// Data sheets of the kind an installer meets in the field.
const SeedModule seedModules[] = {
    {"Fotonica Alpina", "FA-M60 300", 1, 300.0f, 32.6f, 9.20f, 39.8f, 9.75f, 45.0f, 0.050f, -0.29f,
     -0.39f, 5.0f, 0.0f},
    {"Fotonica Alpina", "FA-M72 370", 1, 370.0f, 39.4f, 9.39f, 48.2f, 9.92f, 44.0f, 0.048f, -0.28f,
     -0.37f, 5.0f, 0.0f},
    {"Fotonica Alpina", "FA-H120 410", 1, 410.0f, 31.2f, 13.14f, 37.6f, 13.88f, 45.0f, 0.048f,
     -0.27f, -0.35f, 3.0f, 0.0f},
    {"Sole di Puglia", "SP-P60 250", 2, 250.0f, 30.4f, 8.23f, 37.6f, 8.81f, 46.0f, 0.060f, -0.32f,
     -0.41f, 3.0f, 0.0f},
    {"Sole di Puglia", "SP-P60 270", 2, 270.0f, 31.2f, 8.66f, 38.3f, 9.22f, 45.0f, 0.058f, -0.31f,
     -0.40f, 5.0f, 0.0f},
    {"Sole di Puglia", "SP-P72 320", 2, 320.0f, 36.8f, 8.70f, 45.6f, 9.25f, 45.0f, 0.060f, -0.32f,
     -0.41f, 5.0f, 0.0f},
    {"Nordsonne Film", "NF-T 117", 3, 117.5f, 69.4f, 1.69f, 87.6f, 1.83f, 45.0f, 0.040f, -0.28f,
     -0.28f, 5.0f, 0.0f},
    {"Nordsonne Film", "NF-C 150", 3, 150.0f, 80.5f, 1.86f, 107.5f, 2.06f, 47.0f, 0.010f, -0.30f,
     -0.32f, 5.0f, 0.0f},
    {"Amorfa Italiana", "AI-A 100", 4, 100.0f, 44.8f, 2.23f, 60.5f, 2.62f, 46.0f, 0.090f, -0.30f,
     -0.20f, 10.0f, -5.0f},
    {"Amorfa Italiana", "AI-A 128", 4, 128.0f, 33.0f, 3.88f, 42.6f, 4.80f, 46.0f, 0.100f, -0.38f,
     -0.21f, 5.0f, -5.0f},
    {"Microsol", "MS-T 128", 5, 128.0f, 104.0f, 1.23f, 133.0f, 1.42f, 45.0f, 0.070f, -0.33f, -0.24f,
     5.0f, -5.0f},
    {"Microsol", "MS-T 140", 5, 140.0f, 106.0f, 1.32f, 136.0f, 1.48f, 45.0f, 0.070f, -0.33f, -0.24f,
     5.0f, -5.0f},
};

QString host(const char* devicePath)
{
    return QString::fromStdString(SystemRoot::path(devicePath));
}

bool copyCatalogues(const QString& from)
{
    QDir source(from);
    const QStringList names = source.entryList(QDir::Files);
    if (names.isEmpty() || !QDir().mkpath(host("/etc/flang")))
        return false;
    for (const QString& name : names) {
        const QString target = host("/etc/flang/") + name;
        QFile::remove(target);
        if (!QFile::copy(source.filePath(name), target))
            return false;
    }
    return true;
}

// The start-up runs the device image's program "/home/myspi" before the menu;
// the desktop instrument's does nothing, quietly. One already there stays.
bool seedMyspi()
{
    const QString path = host("/home/myspi");
    if (QFileInfo::exists(path))
        return true;
    QFile file(path);
    if (!QDir().mkpath(host("/home")) || !file.open(QIODevice::WriteOnly) ||
        file.write(
            "#!/bin/sh\n# the device image's program: nothing to do on the desktop\nexit 0\n") < 0)
        return false;
    file.close();
    return file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                               QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther |
                               QFile::ExeOther);
}

bool databaseIsEmpty()
{
    return QDir(host(DIR_DATA_PANEL)).entryList(QDir::Dirs | QDir::NoDotAndDotDot).isEmpty();
}

int writeModules()
{
    int written = 0;
    QByteArray brand;
    char* brandDir = nullptr;
    for (const SeedModule& m : seedModules) {
        if (brand != m.brand) {
            free(brandDir);
            brand = m.brand;
            brandDir = newNameDir(m.brand);
            if (brandDir == nullptr || createDataDir(m.brand, brandDir) != 0)
                break;
        }
        char* file = newNameFile(m.model, m.pmax, brandDir);
        if (file == nullptr)
            break;
        _panel panel;
        panel.brandName = const_cast<char*>(m.brand);
        panel.brandDir = brandDir;
        panel.modelName = const_cast<char*>(m.model);
        panel.modelFile = file;
        panel.feature = _panelFeature{m.pmax, m.impp, m.vmpp, m.isc,   m.voc,   m.type,
                                      m.noct, m.kisc, m.kvoc, m.kpmax, m.tollp, m.tollm};
        const int rc = saveNewDataPanel(&panel);
        free(file);
        if (rc != 0)
            break;
        written++;
    }
    free(brandDir);
    return written;
}

} // namespace

int seedDesktopRoot(const QString& catalogueDir)
{
    if (SystemRoot::get().empty())
        return -1; // never on the instrument's own folders
    // /etc/bluetooth holds the remote unit's link file, written by the settings
    if (!QDir().mkpath(host("/etc/bluetooth")) || !QDir().mkpath(host(DIR_DATA_ROOT)))
        return -1;
    if (!QFileInfo::exists(host("/etc/" CONFIG_FILE))) {
        _configParam config;
        defaultConfig(&config);
        if (saveConfigFile(config) < 0)
            return -1;
    }
    if (!copyCatalogues(catalogueDir) || !seedMyspi())
        return -1;
    checkDirData();
    for (const char* dir : {DIR_DATA_PANEL, DIR_DATA_COMPANY, DIR_DATA_INSTALLATION,
                            DIR_DATA_MEA_PANEL, DIR_DATA_MEA_STRING})
        if (!QFileInfo(host(dir)).isDir())
            return -1;
    if (!databaseIsEmpty())
        return 0;
    const int written = writeModules();
    return written == int(sizeof seedModules / sizeof seedModules[0]) ? written : -1;
}
