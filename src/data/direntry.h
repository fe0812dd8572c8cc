#ifndef KRM_DATA_DIRENTRY_H
#define KRM_DATA_DIRENTRY_H

#include "data/coredata.h"

#include <ctime>
#include <string>

#define DIR_DATA_ROOT "/krm510data"
#define DIR_DATA_PANEL "/krm510data/datapanel"
#define DIR_DATA_COMPANY "/krm510data/datacompany"
#define DIR_DATA_INSTALLATION "/krm510data/datainstallation"
#define DIR_DATA_MEA_PANEL "/krm510data/datameapanel"
#define DIR_DATA_MEA_STRING "/krm510data/datameastring"

// Makes sure the five data directories exist; returns the result of the last mkdir.
int checkDirData();
// The name a non-directory in a data directory's place is moved to.
std::string backupDirName(const char* path, time_t now);

int countFileDir(const char* path, _countFile what);
int existDir(const char* parent, const char* name);
int existFile(const char* name);
int myUnlink(const char* path);

#endif
