#include "data/datapanel.h"

#include "data/direntry.h"
#include "data/recordfiles.h"
#include "data/workdir.h"
#include "platform/systemroot.h"

#include <QCoreApplication>
#include <QObject>
#include <QProgressDialog>

#include <cstdlib>
#include <cstring>
#include <ctime>
#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#define NAME_SIZE 256
// Longest directory name the numbered fall-back candidates may have.
#define DIR_NAME_LIMIT 63
// Longest file name the numbered fall-back candidates may have.
#define FILE_NAME_LIMIT 254

int chDataPanelDir(char* savedCwd, unsigned size)
{
    if (savedCwd == nullptr || size == 0)
        return -3;
    if (getcwd(savedCwd, size) == nullptr)
        return -2;
    if (chdir(SystemRoot::path(DIR_DATA_PANEL).c_str()) != 0)
        return -1;
    return 0;
}

int chSubDir(char* savedCwd, unsigned size, const char* dir)
{
    if (savedCwd == nullptr || size == 0 || dir == nullptr)
        return -4;
    if (getcwd(savedCwd, size) == nullptr)
        return -3;
    if (chdir(SystemRoot::path(DIR_DATA_PANEL).c_str()) != 0)
        return -2;
    if (chdir(dir) != 0) {
        if (chdir(savedCwd) != 0) {
            // the saved directory went away meanwhile; stay where we are
        }
        return -1;
    }
    return 0;
}

// ---- Names of new brands and models

// Tells whether a candidate is still free: a brand directory in the database,
// or a model file in the working directory (the brand).
typedef bool (*FreeName)(const char* candidate);

static bool freeBrandDir(const char* candidate)
{
    return existDir(DIR_DATA_PANEL, candidate) == 0;
}

static bool freeModelFile(const char* candidate)
{
    return existFile(candidate) == 0;
}

// The word-prefix candidates of a lowered and underlined text: the text up to
// the first "_", up to the second, ... blanks+1 times. A candidate that would
// not fit a name is replaced by the whole text with a number behind it, cut
// to limit characters. An empty candidate is not a name and is passed over.
static char* tryWordPrefixes(const char* text, int blanks, int limit, FreeName isFree)
{
    const char* end = text;
    for (int attempt = 0; attempt <= blanks; attempt++) {
        const char* stop = strchr(end, '_');
        if (stop == nullptr)
            stop = text + strlen(text);
        size_t n = static_cast<size_t>(stop - text);
        char candidate[NAME_SIZE];
        if (n + 1 >= NAME_SIZE - 1) {
            snprintf(candidate, static_cast<size_t>(limit) + 1, "%s_%d", text,
                     rand() % static_cast<int>(n));
        } else {
            memcpy(candidate, text, n);
            candidate[n] = '\0';
        }
        if (candidate[0] != '\0' && isFree(candidate))
            return strdup(candidate);
        end = *stop == '\0' ? stop : stop + 1;
    }
    return nullptr;
}

// Ten numbered candidates with a random suffix below 100.
static char* tryNumbered(const char* text, int limit, FreeName isFree)
{
    for (int attempt = 0; attempt < 10; attempt++) {
        char candidate[NAME_SIZE];
        snprintf(candidate, static_cast<size_t>(limit) + 1, "%s_%d", text, rand() % 100);
        if (isFree(candidate))
            return strdup(candidate);
    }
    return nullptr;
}

// Lowered and underlined copy of a typed name, at most 255 characters.
static int fileNameText(const char* typed, char text[NAME_SIZE])
{
    snprintf(text, NAME_SIZE, "%s", typed);
    strlower(text);
    int blanks = 0;
    strunderline(text, &blanks);
    return blanks;
}

char* newNameDir(const char* brand)
{
    if (brand == nullptr || brand[0] == '\0')
        return nullptr;
    char text[NAME_SIZE];
    int blanks = fileNameText(brand, text);
    srand(static_cast<unsigned>(time(nullptr)));
    char* name = tryWordPrefixes(text, blanks, DIR_NAME_LIMIT, freeBrandDir);
    if (name == nullptr)
        name = tryNumbered(text, DIR_NAME_LIMIT, freeBrandDir);
    return name;
}

char* newNameFile(const char* model, float pmax, const char* brandDir)
{
    if (model == nullptr || model[0] == '\0' || brandDir == nullptr)
        return nullptr;
    WorkDir wd;
    if (!wd.enter(DIR_DATA_PANEL) || !wd.enter(brandDir))
        return nullptr;

    char text[NAME_SIZE];
    int blanks = fileNameText(model, text);
    srand(static_cast<unsigned>(time(nullptr)));
    char* name = tryWordPrefixes(text, blanks, FILE_NAME_LIMIT + 1, freeModelFile);
    if (name != nullptr)
        return name;

    // the power in watts joins the name
    char withPower[NAME_SIZE];
    cSnprintf(withPower, sizeof withPower, "%s %.0f", model, static_cast<double>(pmax));
    blanks = fileNameText(withPower, text);
    name = tryWordPrefixes(text, blanks, FILE_NAME_LIMIT + 1, freeModelFile);
    if (name == nullptr)
        name = tryNumbered(text, FILE_NAME_LIMIT, freeModelFile);
    return name;
}

// ---- Brands and models on disk

static int writeBrandName(const char* brandDir, const char* brandName)
{
    char path[2 * NAME_SIZE];
    snprintf(path, sizeof path, "%s/%s", brandDir, BRAND_NAME_FILE);
    FILE* f = fopen(path, "w");
    if (f == nullptr)
        return -1;
    int written = fprintf(f, "%s\n", brandName);
    fflush(f);
    fclose(f);
    return written < 0 ? -1 : 0;
}

int createDataDir(const char* brandName, const char* brandDir)
{
    if (brandName == nullptr || brandDir == nullptr)
        return -1;
    WorkDir wd;
    if (!wd.enter(DIR_DATA_PANEL))
        return -1;
    char dir[NAME_SIZE];
    snprintf(dir, sizeof dir, "%s", brandDir);
    strlower(dir);
    if (mkdir(dir, 0777) != 0)
        return -1;
    return writeBrandName(dir, brandName);
}

int updateBrand(const char* brandDir, const char* brandName)
{
    if (brandName == nullptr || brandDir == nullptr)
        return -1;
    WorkDir wd;
    if (!wd.enter(DIR_DATA_PANEL) || !wd.enter(brandDir))
        return -1;
    return writeBrandName(".", brandName);
}

int saveDataPanel(const _panel* panel)
{
    if (panel == nullptr || panel->brandName == nullptr || panel->brandDir == nullptr ||
        panel->modelName == nullptr || panel->modelFile == nullptr)
        return -1;
    WorkDir wd;
    if (!wd.enter(DIR_DATA_PANEL) || !wd.enter(panel->brandDir))
        return -1;

    char name[NAME_SIZE];
    snprintf(name, sizeof name, "%s", panel->modelFile);
    strunderline(name, nullptr);
    strlower(name);
    FILE* f = fopen(name, "w");
    if (f == nullptr)
        return -1;

    const _panelFeature& p = panel->feature;
    int sum = fwriteTagStr(f, "VERSION", DATA_VERSION);
    sum += fwriteTagStr(f, "NAME", panel->modelName);
    sum += fwriteTagFloatPrecision(f, "PMAX", p.pmax, 2);
    sum += fwriteTagFloatPrecision(f, "NOCT", p.noct, 2);
    sum += fwriteTagFloatPrecision(f, "IMPP", p.impp, 2);
    sum += fwriteTagFloatPrecision(f, "VMPP", p.vmpp, 2);
    sum += fwriteTagFloatPrecision(f, "ISC", p.isc, 2);
    sum += fwriteTagFloatPrecision(f, "VOC", p.voc, 2);
    sum += fwriteTagInt(f, "TYPE", p.type);
    sum += fwriteTagFloatPrecision(f, "KISC", p.kisc, 4);
    sum += fwriteTagFloatPrecision(f, "KVOC", p.kvoc, 4);
    sum += fwriteTagFloatPrecision(f, "KPMAX", p.kpmax, 4);
    sum += fwriteTagFloatPrecision(f, "TOLLP", p.tollp, 2);
    sum += fwriteTagFloatPrecision(f, "TOLLM", p.tollm, 2);
    fflush(f);
    fclose(f);
    return sum - 1 < 0 ? -1 : 0;
}

int saveNewDataPanel(const _panel* panel)
{
    if (panel == nullptr || panel->brandName == nullptr || panel->brandDir == nullptr ||
        panel->modelName == nullptr || panel->modelFile == nullptr)
        return -2;
    // an existing brand directory is no failure here
    createDataDir(panel->brandName, panel->brandDir);
    return saveDataPanel(panel);
}

// ---- Reading

#define PANEL_FEATURE_KEYS 12

int getPanelFeature(const char* brandDir, const char* file, _panelFeature* feature)
{
    if (feature == nullptr)
        return -4;
    memset(feature, 0, sizeof *feature);
    if (brandDir == nullptr || file == nullptr)
        return -4;
    WorkDir wd;
    if (!wd.enter(DIR_DATA_PANEL) || !wd.enter(brandDir))
        return -2;
    FILE* f = fopen(file, "r");
    if (f == nullptr)
        return -1;

    char line[TAG_LINE_SIZE];
    char key[TAG_KEY_SIZE];
    char value[TAG_VALUE_SIZE];
    int recognised = 0;
    bool noEquals = false;
    // The stop conditions are looked at after the next line has been fetched.
    while (readTagLine(f, line) && !noEquals && recognised <= PANEL_FEATURE_KEYS) {
        _tagLine kind = splitTagLine(line, key, value);
        if (kind == TAG_NO_EQUALS || kind == TAG_NOTE) {
            noEquals = true;
            continue;
        }
        if (kind != TAG_PAIR)
            continue;
        float number = static_cast<float>(cAtof(value));
        bool known = true;
        if (strcmp(key, "PMAX") == 0)
            feature->pmax = number;
        else if (strcmp(key, "NOCT") == 0)
            feature->noct = number;
        else if (strcmp(key, "IMPP") == 0)
            feature->impp = number;
        else if (strcmp(key, "VMPP") == 0)
            feature->vmpp = number;
        else if (strcmp(key, "ISC") == 0)
            feature->isc = number;
        else if (strcmp(key, "VOC") == 0)
            feature->voc = number;
        else if (strcmp(key, "TYPE") == 0)
            feature->type = atoi(value);
        else if (strcmp(key, "KISC") == 0)
            feature->kisc = number;
        else if (strcmp(key, "KVOC") == 0)
            feature->kvoc = number;
        else if (strcmp(key, "KPMAX") == 0)
            feature->kpmax = number;
        else if (strcmp(key, "TOLLP") == 0)
            feature->tollp = number;
        else if (strcmp(key, "TOLLM") == 0)
            feature->tollm = number;
        else
            known = false;
        if (known)
            recognised++;
    }
    fclose(f);
    return 0;
}

char* getBrandName(const char* brandDir)
{
    if (brandDir == nullptr)
        return nullptr;
    char path[2 * NAME_SIZE];
    snprintf(path, sizeof path, "%s/%s", brandDir, BRAND_NAME_FILE);
    // a brand without its name file shows an empty name; the old reader kept
    // 255 bytes of the line, fewer than 255 characters of UTF-8: the line is
    // read whole by the tag files' line reader
    char name[TAG_LINE_SIZE] = {0};
    FILE* f = fopen(path, "r");
    if (f != nullptr) {
        if (!readTagLine(f, name))
            name[0] = '\0';
        fclose(f);
    }
    name[strcspn(name, "\r\n")] = '\0';
    return strdup(name);
}

char* getModelName(const char* file)
{
    if (file == nullptr)
        return nullptr;
    FILE* f = fopen(file, "r");
    if (f == nullptr)
        return strdup(NO_MODEL_NAME);

    char line[TAG_LINE_SIZE];
    char key[TAG_KEY_SIZE];
    char value[TAG_VALUE_SIZE];
    char* name = nullptr;
    while (readTagLine(f, line)) {
        _tagLine kind = splitTagLine(line, key, value);
        if (kind == TAG_SKIP)
            continue;
        bool last = kind != TAG_PAIR || strcmp(key, "NAME") == 0;
        takeData(&name, kind == TAG_PAIR ? value : NO_MODEL_NAME);
        if (last) {
            // the value counts only when another line follows it
            if (!readTagLine(f, line))
                break;
            fclose(f);
            return name;
        }
    }
    fclose(f);
    free(name);
    return nullptr;
}

int getPanel(_panel* panel, const char* brandDir, const char* file)
{
    if (panel == nullptr || brandDir == nullptr || file == nullptr)
        return -1;
    // the arguments may be the record's own strings: copy before freeing
    char* dirCopy = strdup(brandDir);
    char* fileCopy = strdup(file);
    free(panel->brandDir);
    free(panel->modelFile);
    panel->brandDir = dirCopy;
    panel->modelFile = fileCopy;
    memset(&panel->feature, 0, sizeof panel->feature);

    WorkDir wd;
    if (!wd.enter(DIR_DATA_PANEL))
        return -1;
    free(panel->brandName);
    panel->brandName = getBrandName(dirCopy);
    if (!wd.enter(dirCopy))
        return -1;
    free(panel->modelName);
    panel->modelName = getModelName(fileCopy);
    wd.restore();
    return getPanelFeature(dirCopy, fileCopy, &panel->feature) == 0 ? 0 : -1;
}

void memPanelCpy(_panel* target, const _panel* source)
{
    if (target == nullptr || source == nullptr || target == source)
        return;
    // a null source text makes the target null; its old block is the caller's
    target->brandName = allocData(target->brandName, source->brandName);
    target->brandDir = allocData(target->brandDir, source->brandDir);
    target->modelName = allocData(target->modelName, source->modelName);
    target->modelFile = allocData(target->modelFile, source->modelFile);
    target->feature = source->feature;
}

// ---- Lists

_listBrand* addBrandNode(_listBrand* list, const char* dir)
{
    _listBrand* node = static_cast<_listBrand*>(calloc(1, sizeof(_listBrand)));
    if (node == nullptr)
        return list;
    node->dir = dir != nullptr ? strdup(dir) : nullptr;
    node->name = getBrandName(dir);
    node->next = list;
    return node;
}

_listModel* addModelNode(_listModel* list, const char* file)
{
    _listModel* node = static_cast<_listModel*>(calloc(1, sizeof(_listModel)));
    if (node == nullptr)
        return list;
    node->file = file != nullptr ? strdup(file) : nullptr;
    node->name = getModelName(file);
    node->next = list;
    return node;
}

_listBrand* readListBrandPanel(QWidget* parent)
{
    _listBrand* list = nullptr;
    walkDataDir(parent, "Read Brand...", DIR_DATA_PANEL, COUNT_DIRS,
                [&list](const char* name) { list = addBrandNode(list, name); });
    return list;
}

_listModel* readListModelPanel(const char* brandDir)
{
    if (brandDir == nullptr)
        return nullptr;
    WorkDir wd;
    if (!wd.enter(DIR_DATA_PANEL) || !wd.enter(brandDir))
        return nullptr;
    DIR* dir = opendir("./");
    if (dir == nullptr)
        return nullptr;
    _listModel* list = nullptr;
    while (struct dirent* entry = readdir(dir)) {
        if (strcmp(entry->d_name, BRAND_NAME_FILE) == 0)
            continue;
        struct stat st;
        if (stat(entry->d_name, &st) == 0 && S_ISREG(st.st_mode))
            list = addModelNode(list, entry->d_name);
    }
    closedir(dir);
    return list;
}

_listBrand* findBrandPanel(_listBrand* list, const char* name)
{
    for (; list != nullptr && name != nullptr; list = list->next)
        if (list->name != nullptr && strcmp(list->name, name) == 0)
            return list;
    return nullptr;
}

_listModel* findModelPanel(_listModel* list, const char* name)
{
    for (; list != nullptr && name != nullptr; list = list->next)
        if (list->name != nullptr && strcmp(list->name, name) == 0)
            return list;
    return nullptr;
}

_listBrand* findBrandDir(_listBrand* list, const char* dir)
{
    for (; list != nullptr && dir != nullptr; list = list->next)
        if (list->dir != nullptr && strcmp(list->dir, dir) == 0)
            return list;
    return nullptr;
}

_listModel* findModelFile(_listModel* list, const char* file)
{
    for (; list != nullptr && file != nullptr; list = list->next)
        if (list->file != nullptr && strcmp(list->file, file) == 0)
            return list;
    return nullptr;
}

_listBrand* closeListBrandPanel(_listBrand* list)
{
    while (list != nullptr) {
        _listBrand* next = list->next;
        free(list->name);
        free(list->dir);
        free(list);
        list = next;
    }
    return nullptr;
}

_listModel* closeListModelBrand(_listModel* list)
{
    while (list != nullptr) {
        _listModel* next = list->next;
        free(list->name);
        free(list->file);
        free(list);
        list = next;
    }
    return nullptr;
}

int deleteModelPanel(const char* brandDir, const char* modelFile)
{
    if (brandDir == nullptr || modelFile == nullptr)
        return -4;
    WorkDir wd;
    if (!wd.enter(DIR_DATA_PANEL) || chdir(brandDir) != 0)
        return -2;
    return myUnlink(modelFile);
}

int deleteBrandPanel(const char* brandDir, const std::function<void()>& step)
{
    if (brandDir == nullptr)
        return -4;
    WorkDir wd;
    if (!wd.enter(DIR_DATA_PANEL) || chdir(brandDir) != 0)
        return -2;
    DIR* dir = opendir("./");
    while (dir != nullptr) {
        struct dirent* entry = readdir(dir);
        if (entry == nullptr)
            break;
        if (strcmp(entry->d_name, ".") == 0 || strcmp(entry->d_name, "..") == 0)
            continue;
        myUnlink(entry->d_name);
        step();
    }
    if (dir != nullptr)
        closedir(dir);
    if (chdir("../") != 0)
        return -2;
    return myUnlink(brandDir);
}
