#include "data/datainstallation.h"

#include "data/datacompany.h"
#include "data/datapanel.h"
#include "data/direntry.h"
#include "data/recordfiles.h"
#include "data/workdir.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

static const char* const installationKeys[] = {"id",    "city",  "zip",  "prov", "street",
                                               "nstri", "npowe", "pmea", "smea", nullptr};

char* newNameFileInstallation(const char* id, char* target)
{
    return newRecordFileName(DIR_DATA_INSTALLATION, id, target);
}

// The record's lines after VERSION, measures from the head of each list.
static int writeInstallation(FILE* f, const void* record)
{
    const _installation* in = static_cast<const _installation*>(record);
    int sum = fwriteTagStr(f, "ID", in->id);
    sum += fwriteTagStr(f, "CITY", in->city);
    sum += fwriteTagStr(f, "ZIP", in->zip);
    sum += fwriteTagStr(f, "PROV", in->prov);
    sum += fwriteTagStr(f, "STREET", in->street);
    sum += fwriteTagStr(f, "NSTRI", in->nstri);
    sum += fwriteTagStr(f, "NPOWE", in->npowe);
    for (const _listFileMeaPanel* m = in->headMeaPanel; m != nullptr; m = m->next)
        sum += fwriteTagStr(f, "PMEA", m->file);
    for (const _listFileMeaString* m = in->headMeaString; m != nullptr; m = m->next)
        sum += fwriteTagStr(f, "SMEA", m->file);
    return sum;
}

static void rewindInstallation(_installation* in)
{
    in->curMeaPanel = in->headMeaPanel;
    in->curMeaString = in->headMeaString;
}

int saveDataInstallation(_installation* in)
{
    if (in == nullptr || in->id == nullptr)
        return -4;
    char name[COMPANY_NAME_SIZE];
    if (newNameFileInstallation(in->id, name) == nullptr)
        return -3;
    WorkDir wd;
    if (!wd.enter(DIR_DATA_INSTALLATION))
        return -2;
    FILE* f = fopen(name, "w");
    if (f == nullptr)
        return -1;
    int sum = fwriteTagStr(f, "VERSION", DATA_VERSION);
    sum += writeInstallation(f, in);
    fflush(f);
    fclose(f);
    rewindInstallation(in);
    return sum;
}

int updateDataInstallation(const char* file, _installation* in)
{
    int result =
        updateRecordFile(DIR_DATA_INSTALLATION, file, writeInstallation, in, installationKeys);
    if (in != nullptr)
        rewindInstallation(in);
    return result;
}

int deleteDataInstallation(const char* file)
{
    if (file == nullptr)
        return -4;
    WorkDir wd;
    if (!wd.enter(DIR_DATA_INSTALLATION))
        return -2;
    return myUnlink(file);
}

_installation* readInstallationFromFile(const char* file)
{
    if (file == nullptr)
        return nullptr;
    WorkDir wd;
    if (!wd.enter(DIR_DATA_INSTALLATION))
        return nullptr;
    FILE* f = fopen(file, "r");
    if (f == nullptr)
        return nullptr;
    _installation* in = static_cast<_installation*>(calloc(1, sizeof(_installation)));
    if (in == nullptr) {
        fclose(f);
        return nullptr;
    }

    struct TextKey {
        const char* key;
        char* _installation::*field;
    };
    static const TextKey keys[] = {
        {"ID", &_installation::id},         {"CITY", &_installation::city},
        {"ZIP", &_installation::zip},       {"PROV", &_installation::prov},
        {"STREET", &_installation::street}, {"NSTRI", &_installation::nstri},
        {"NPOWE", &_installation::npowe},
    };
    char line[TAG_LINE_SIZE];
    char key[TAG_KEY_SIZE];
    char value[TAG_VALUE_SIZE];
    _listFileMeaPanel* panels = nullptr;
    _listFileMeaString* strings = nullptr;
    while (readTagLine(f, line)) {
        if (splitTagLine(line, key, value) != TAG_PAIR)
            continue;
        if (strcmp(key, "PMEA") == 0) {
            panels = addItemOnListFileMeaPanel(panels, value);
            continue;
        }
        if (strcmp(key, "SMEA") == 0) {
            strings = addItemOnListFileMeaString(strings, value);
            continue;
        }
        for (const TextKey& k : keys)
            if (strcmp(key, k.key) == 0)
                takeData(&(in->*k.field), value);
    }
    fclose(f);
    in->headMeaPanel = panels;
    in->headMeaString = strings;
    rewindInstallation(in);
    return in;
}

_installation* freeInstallation(_installation* in)
{
    if (in == nullptr)
        return nullptr;
    free(in->id);
    free(in->city);
    free(in->zip);
    free(in->prov);
    free(in->street);
    free(in->nstri);
    free(in->npowe);
    closeListFileMeaPanel(in->headMeaPanel);
    closeListFileMeaString(in->headMeaString);
    free(in);
    return nullptr;
}

int getIdNstringNpowerInstallation(const char* file, _listInstallation* node)
{
    if (file == nullptr || node == nullptr)
        return 1;
    FILE* f = fopen(file, "r");
    if (f == nullptr)
        return 1;
    char line[TAG_LINE_SIZE];
    char key[TAG_KEY_SIZE];
    char value[TAG_VALUE_SIZE];
    int taken = 0;
    int noEquals = 0;
    // a repeated key replaces the earlier value and counts as one more taken
    while (taken < 3 && noEquals < 2 && readTagLine(f, line)) {
        _tagLine kind = splitTagLine(line, key, value);
        if (kind == TAG_NO_EQUALS || kind == TAG_NOTE) {
            noEquals++;
        } else if (kind == TAG_PAIR) {
            char** field = nullptr;
            if (strcmp(key, "ID") == 0)
                field = &node->id;
            else if (strcmp(key, "NSTRI") == 0)
                field = &node->nstri;
            else if (strcmp(key, "NPOWE") == 0)
                field = &node->npowe;
            if (field != nullptr) {
                takeData(field, value);
                taken++;
            }
        }
    }
    fclose(f);
    return noEquals;
}

int getIdStringPower(const char* file, char* id, char* nstri, char* npowe)
{
    char* buffers[] = {id, nstri, npowe};
    for (char* b : buffers)
        if (b != nullptr)
            b[0] = '\0';
    WorkDir wd;
    if (!wd.enter(DIR_DATA_INSTALLATION))
        return -2;
    FILE* f = file != nullptr ? fopen(file, "r") : nullptr;
    if (f == nullptr)
        return -1;
    char line[TAG_LINE_SIZE];
    char key[TAG_KEY_SIZE];
    char value[TAG_VALUE_SIZE];
    while (readTagLine(f, line)) {
        if (splitTagLine(line, key, value) != TAG_PAIR)
            continue;
        char* target = nullptr;
        if (strcmp(key, "ID") == 0)
            target = id;
        else if (strcmp(key, "NSTRI") == 0)
            target = nstri;
        else if (strcmp(key, "NPOWE") == 0)
            target = npowe;
        if (target != nullptr) {
            // the caller's buffers hold 256 bytes
            size_t n = strnlen(value, 255);
            memcpy(target, value, n);
            target[n] = '\0';
        }
    }
    fclose(f);
    return 0;
}

_listInstallation* addInstallationNode(_listInstallation* list, const char* file)
{
    _listInstallation* node = static_cast<_listInstallation*>(calloc(1, sizeof(_listInstallation)));
    if (node == nullptr)
        return list;
    node->file = file != nullptr ? strdup(file) : nullptr;
    getIdNstringNpowerInstallation(file, node);
    node->next = list;
    return node;
}

_listInstallation* readListInstallation(QWidget* parent)
{
    _listInstallation* list = nullptr;
    walkDataDir(parent, "Read Installation...", DIR_DATA_INSTALLATION, COUNT_FILES,
                [&list](const char* name) { list = addInstallationNode(list, name); });
    return list;
}

_listFileMeaPanel* addItemOnListFileMeaPanel(_listFileMeaPanel* list, const char* file)
{
    return addFileNameNode(list, file);
}

_listFileMeaString* addItemOnListFileMeaString(_listFileMeaString* list, const char* file)
{
    return addFileNameNode(list, file);
}

_listInstallation* closeListInstallation(_listInstallation* list)
{
    while (list != nullptr) {
        _listInstallation* next = list->next;
        free(list->id);
        free(list->nstri);
        free(list->npowe);
        free(list->file);
        free(list);
        list = next;
    }
    return nullptr;
}

_listFileMeaPanel* closeListFileMeaPanel(_listFileMeaPanel* list)
{
    return closeFileNameList(list);
}

_listFileMeaString* closeListFileMeaString(_listFileMeaString* list)
{
    return closeFileNameList(list);
}
