#ifndef KRM_DATA_DATACOMPANY_H
#define KRM_DATA_DATACOMPANY_H

#include "data/coredata.h"

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
// Deletes a company's file; its installations' files stay. The result of the
// unlink, -2 when the directory can't be entered.
int deleteDataCompany(const char* file);
_company* freeCompany(_company* company);
_listCompany* readListCompany(QWidget* parent);
_listCompany* addCompanyNode(_listCompany* list, const char* file);
// With the company directory as working directory: 1 when the file can't be
// opened, else the count of lines with a key and no "=".
int getSurnameCodeCompany(const char* file, _listCompany* node);
_listFileInstallation* addItemOnListInstallation(_listFileInstallation* list, const char* file);
_listCompany* closeListCompany(_listCompany* list);
_listFileInstallation* closeListFileInstallation(_listFileInstallation* list);

#endif
