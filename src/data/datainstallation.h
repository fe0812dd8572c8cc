#ifndef KRM_DATA_DATAINSTALLATION_H
#define KRM_DATA_DATAINSTALLATION_H

#include "data/coredata.h"

class QWidget;

// Installations: one tag file each under /krm510data/datainstallation, named
// after the id, listing the file names of its module and string measures.

// The file name for a new installation (target: 256 bytes), or null when id
// is null, the directory can't be entered or the file exists already.
char* newNameFileInstallation(const char* id, char* target);
// Sum of write counts; -4 no record or id; -3 name refused; -2 directory; -1 file.
int saveDataInstallation(_installation* installation);
// Rewrites an installation file through "<file>.$$$": the result of the
// rename; -4 no file or record; -3 directory; -2 old file; -1 temporary file.
int updateDataInstallation(const char* file, _installation* installation);
_installation* readInstallationFromFile(const char* file);
// Deletes an installation's file; its measures and the companies naming it
// stay. The result of the unlink, -2 when the directory can't be entered.
int deleteDataInstallation(const char* file);
_installation* freeInstallation(_installation* installation);
_listInstallation* readListInstallation(QWidget* parent);
_listInstallation* addInstallationNode(_listInstallation* list, const char* file);
// With the installation directory as working directory: 1 when the file
// can't be opened, else the count of lines with a key and no "=".
int getIdNstringNpowerInstallation(const char* file, _listInstallation* node);
// Copies ID, NSTRI and NPOWE into the caller's buffers (256 bytes each):
// -2 directory, -1 file, 0.
int getIdStringPower(const char* file, char* id, char* nstri, char* npowe);
_listFileMeaPanel* addItemOnListFileMeaPanel(_listFileMeaPanel* list, const char* file);
_listFileMeaString* addItemOnListFileMeaString(_listFileMeaString* list, const char* file);
_listInstallation* closeListInstallation(_listInstallation* list);
_listFileMeaPanel* closeListFileMeaPanel(_listFileMeaPanel* list);
_listFileMeaString* closeListFileMeaString(_listFileMeaString* list);

#endif
