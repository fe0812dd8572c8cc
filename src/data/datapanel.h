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

// Deletes the file of one model of a brand; the result of the unlink, -2
// when the brand's directory can't be entered.
int deleteModelPanel(const char* brandDir, const char* modelFile);
// Deletes a whole brand: every entry of its directory, its name file
// included, then the directory. step is called after each entry. The result
// of the last unlink, -2 when the brand's directory can't be entered.
int deleteBrandPanel(const char* brandDir, const std::function<void()>& step);

#endif
