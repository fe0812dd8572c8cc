#ifndef KRM_DATA_DATACOMPANY_H
#define KRM_DATA_DATACOMPANY_H

#include "data/coredata.h"

#include <cstdlib>
#include <cstring>

class QWidget;

// Companies: one tag file each under /krm510data/datacompany, named after the
// surname, listing the file names of the company's installations.

#define COMPANY_NAME_SIZE 256

// The file name for a new company (target: 256 bytes), or null when surn is
// null, the directory can't be entered or the file exists already.
char* newNameFileCompany(const char* surn, char* target);
// Sum of write counts; -4 no record or surname; -3 name refused; -2 directory; -1 file.
int saveDataCompany(_company* company);
// Rewrites a company file through "<file>.$$$": the result of the rename;
// -4 no file or record; -3 directory; -2 old file; -1 temporary file.
int updateDataCompany(const char* file, _company* company);
_company* readCompanyFromFile(const char* file);
_company* freeCompany(_company* company);
_listCompany* readListCompany(QWidget* parent);
_listCompany* addCompanyNode(_listCompany* list, const char* file);
// With the company directory as working directory: 1 when the file can't be
// opened, else the count of lines with a key and no "=".
int getSurnameCodeCompany(const char* file, _listCompany* node);
_listFileInstallation* addItemOnListInstallation(_listFileInstallation* list, const char* file);
_listCompany* closeListCompany(_listCompany* list);
_listFileInstallation* closeListFileInstallation(_listFileInstallation* list);

// Shared by the company and installation files.
// The lowered, underlined key text as a file name; null when it exists already.
char* newRecordFileName(const char* dataDir, const char* keyText, char* target);
// Writes the record's lines into "<file>.$$$", then carries along every old
// line that holds none of the keys, and puts the new file in the old one's place.
typedef int (*WriteRecord)(FILE* stream, const void* record);
int updateRecordFile(const char* dataDir, const char* file, WriteRecord write, const void* record,
                     const char* const* keys);

// The lists of file names (installations of a company, measures of an
// installation): a new node in front, and the whole list freed.
template <class Node> Node* addFileNode(Node* list, const char* file)
{
    Node* node = static_cast<Node*>(calloc(1, sizeof(Node)));
    if (node == nullptr)
        return list;
    node->file = file != nullptr ? strdup(file) : nullptr;
    node->next = list;
    return node;
}

template <class Node> Node* closeFileList(Node* list)
{
    while (list != nullptr) {
        Node* next = list->next;
        free(list->file);
        free(list);
        list = next;
    }
    return nullptr;
}

#endif
