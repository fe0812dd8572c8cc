#include "data/datacompany.h"

#include "data/datapanel.h"
#include "data/direntry.h"
#include "data/recordfiles.h"
#include "data/workdir.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

// ---- Company

static const char* const companyKeys[] = {"surn", "name",   "nin",   "code",  "city",  "zip",
                                          "prov", "street", "phone", "email", "sinst", nullptr};

char* newNameFileCompany(const char* surn, char* target)
{
    return newRecordFileName(DIR_DATA_COMPANY, surn, target);
}

// The record's lines after VERSION, installations from the head of the list.
static int writeCompany(FILE* f, const void* record)
{
    const _company* c = static_cast<const _company*>(record);
    int sum = fwriteTagStr(f, "SURN", c->surn);
    sum += fwriteTagStr(f, "NAME", c->name);
    sum += fwriteTagStr(f, "NIN", c->nin);
    sum += fwriteTagStr(f, "CODE", c->code);
    sum += fwriteTagStr(f, "CITY", c->city);
    sum += fwriteTagStr(f, "ZIP", c->zip);
    sum += fwriteTagStr(f, "PROV", c->prov);
    sum += fwriteTagStr(f, "STREET", c->street);
    sum += fwriteTagStr(f, "PHONE", c->phone);
    sum += fwriteTagStr(f, "EMAIL", c->email);
    for (const _listFileInstallation* i = c->headInst; i != nullptr; i = i->next)
        sum += fwriteTagStr(f, "SINST", i->file);
    return sum;
}

int saveDataCompany(_company* company)
{
    if (company == nullptr || company->surn == nullptr)
        return -4;
    char name[COMPANY_NAME_SIZE];
    if (newNameFileCompany(company->surn, name) == nullptr)
        return -3;
    WorkDir wd;
    if (!wd.enter(DIR_DATA_COMPANY))
        return -2;
    FILE* f = fopen(name, "w");
    if (f == nullptr)
        return -1;
    int sum = fwriteTagStr(f, "VERSION", DATA_VERSION);
    sum += writeCompany(f, company);
    fflush(f);
    fclose(f);
    company->curInst = company->headInst;
    return sum;
}

int updateDataCompany(const char* file, _company* company)
{
    int result = updateRecordFile(DIR_DATA_COMPANY, file, writeCompany, company, companyKeys);
    if (company != nullptr)
        company->curInst = company->headInst;
    return result;
}

int deleteDataCompany(const char* file)
{
    if (file == nullptr)
        return -4;
    WorkDir wd;
    if (!wd.enter(DIR_DATA_COMPANY))
        return -2;
    return myUnlink(file);
}

_company* readCompanyFromFile(const char* file)
{
    if (file == nullptr)
        return nullptr;
    WorkDir wd;
    if (!wd.enter(DIR_DATA_COMPANY))
        return nullptr;
    FILE* f = fopen(file, "r");
    if (f == nullptr)
        return nullptr;
    _company* c = static_cast<_company*>(calloc(1, sizeof(_company)));
    if (c == nullptr) {
        fclose(f);
        return nullptr;
    }

    struct TextKey {
        const char* key;
        char* _company::*field;
    };
    static const TextKey keys[] = {
        {"SURN", &_company::surn},   {"NAME", &_company::name},     {"NIN", &_company::nin},
        {"CODE", &_company::code},   {"CITY", &_company::city},     {"ZIP", &_company::zip},
        {"PROV", &_company::prov},   {"STREET", &_company::street}, {"PHONE", &_company::phone},
        {"EMAIL", &_company::email},
    };
    char line[TAG_LINE_SIZE];
    char key[TAG_KEY_SIZE];
    char value[TAG_VALUE_SIZE];
    _listFileInstallation* list = nullptr;
    while (readTagLine(f, line)) {
        if (splitTagLine(line, key, value) != TAG_PAIR)
            continue;
        if (strcmp(key, "SINST") == 0) {
            list = addItemOnListInstallation(list, value);
            continue;
        }
        for (const TextKey& k : keys)
            if (strcmp(key, k.key) == 0)
                takeData(&(c->*k.field), value);
    }
    fclose(f);
    c->headInst = list;
    c->curInst = list;
    return c;
}

_company* freeCompany(_company* c)
{
    if (c == nullptr)
        return nullptr;
    free(c->surn);
    free(c->name);
    free(c->nin);
    free(c->code);
    free(c->city);
    free(c->zip);
    free(c->prov);
    free(c->street);
    free(c->phone);
    free(c->email);
    closeListFileInstallation(c->headInst);
    free(c);
    return nullptr;
}

int getSurnameCodeCompany(const char* file, _listCompany* node)
{
    if (file == nullptr || node == nullptr)
        return 1;
    FILE* f = fopen(file, "r");
    if (f == nullptr)
        return 1;
    char line[TAG_LINE_SIZE];
    char key[TAG_KEY_SIZE];
    char value[TAG_VALUE_SIZE];
    bool surn = false, nin = false, code = false;
    int noEquals = 0;
    // the first occurrence of each key wins
    while (!(surn && nin && code) && noEquals < 2 && readTagLine(f, line)) {
        _tagLine kind = splitTagLine(line, key, value);
        if (kind == TAG_NO_EQUALS || kind == TAG_NOTE) {
            noEquals++;
        } else if (kind == TAG_PAIR) {
            if (!surn && strcmp(key, "SURN") == 0) {
                takeData(&node->surn, value);
                surn = true;
            } else if (!nin && strcmp(key, "NIN") == 0) {
                takeData(&node->nin, value);
                nin = true;
            } else if (!code && strcmp(key, "CODE") == 0) {
                takeData(&node->code, value);
                code = true;
            }
        }
    }
    fclose(f);
    return noEquals;
}

_listCompany* addCompanyNode(_listCompany* list, const char* file)
{
    _listCompany* node = static_cast<_listCompany*>(calloc(1, sizeof(_listCompany)));
    if (node == nullptr)
        return list;
    node->file = file != nullptr ? strdup(file) : nullptr;
    getSurnameCodeCompany(file, node);
    node->next = list;
    return node;
}

_listCompany* readListCompany(QWidget* parent)
{
    _listCompany* list = nullptr;
    walkDataDir(parent, "Read Company...", DIR_DATA_COMPANY, COUNT_FILES,
                [&list](const char* name) { list = addCompanyNode(list, name); });
    return list;
}

_listFileInstallation* addItemOnListInstallation(_listFileInstallation* list, const char* file)
{
    return addFileNameNode(list, file);
}

_listCompany* closeListCompany(_listCompany* list)
{
    while (list != nullptr) {
        _listCompany* next = list->next;
        free(list->surn);
        free(list->nin);
        free(list->code);
        free(list->file);
        free(list);
        list = next;
    }
    return nullptr;
}

_listFileInstallation* closeListFileInstallation(_listFileInstallation* list)
{
    return closeFileNameList(list);
}
