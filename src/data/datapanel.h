#ifndef KRM_DATA_DATAPANEL_H
#define KRM_DATA_DATAPANEL_H

#include "data/coredata.h"

#include <functional>

class QWidget;

// The module database: one directory per brand under /krm510data/datapanel,
// holding "iname" (the brand's display name) and one tag file per model.

#define DATA_VERSION "2.0.2"
#define BRAND_NAME_FILE "iname"
#define NO_MODEL_NAME "-----"

// Save the working directory into the caller's buffer and stay in the
// module database (or in one brand of it).
int chDataPanelDir(char* savedCwd, unsigned size);
int chSubDir(char* savedCwd, unsigned size, const char* dir);

// Free names for a new brand directory or a new model file (heap), or null.
char* newNameDir(const char* brand);
char* newNameFile(const char* model, float pmax, const char* brandDir);

int createDataDir(const char* brandName, const char* brandDir);
int updateBrand(const char* brandDir, const char* brandName);
int saveDataPanel(const _panel* panel);
int saveNewDataPanel(const _panel* panel);

// Zeroes the record, then fills it from the model file: 0, -1 file, -2 directory.
int getPanelFeature(const char* brandDir, const char* file, _panelFeature* feature);
int getPanel(_panel* panel, const char* brandDir, const char* file);
void memPanelCpy(_panel* target, const _panel* source);
// Read with the module database as the working directory.
char* getBrandName(const char* brandDir);
// Read with the brand as the working directory.
char* getModelName(const char* file);

_listBrand* readListBrandPanel(QWidget* parent);
_listModel* readListModelPanel(const char* brandDir);
_listBrand* addBrandNode(_listBrand* list, const char* dir);
_listModel* addModelNode(_listModel* list, const char* file);
_listBrand* findBrandPanel(_listBrand* list, const char* name);
_listModel* findModelPanel(_listModel* list, const char* name);
// The node by its directory or file, which names it alone: two brands or two
// models may bear the same name, or a name that is not valid UTF-8, or none.
_listBrand* findBrandDir(_listBrand* list, const char* dir);
_listModel* findModelFile(_listModel* list, const char* file);
_listBrand* closeListBrandPanel(_listBrand* list);
_listModel* closeListModelBrand(_listModel* list);

// The list reads of the data files: enters a data directory and hands every
// entry of the kind asked (regular files or directories) to add, under a
// window-modal progress dialog with the given label whose bar follows the
// entries. False when the directory can't be entered or read.
#define READ_PROGRESS_STYLE                                                                        \
    "QProgressBar:horizontal {border: 1px solid gray;border-radius: 3px;background: "              \
    "white;padding: 1px;text-align: center;}QProgressBar::chunk:horizontal {background: "          \
    "qlineargradient(x1: 0, y1: 0.5, x2: 1, y2: 0.5, stop: 0 blue, stop: 1 white);}"
bool walkDataDir(QWidget* parent, const char* label, const char* path, _countFile what,
                 const std::function<void(const char* name)>& add);

#endif
