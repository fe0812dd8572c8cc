#ifndef KRM_DATA_RECORDFILES_H
#define KRM_DATA_RECORDFILES_H

#include "data/coredata.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>

class QWidget;

// What the files of every kind of record share: the read of a data directory
// under a progress dialog, the name of a new company or installation file,
// the careful update through a ".$$$" file, and the lists of file names.

// The style of the progress dialogs that read or change the data files.
#define READ_PROGRESS_STYLE                                                                        \
    "QProgressBar:horizontal {border: 1px solid gray;border-radius: 3px;background: "              \
    "white;padding: 1px;text-align: center;}QProgressBar::chunk:horizontal {background: "          \
    "qlineargradient(x1: 0, y1: 0.5, x2: 1, y2: 0.5, stop: 0 blue, stop: 1 white);}"

// The list reads of the data files: enters a data directory and hands every
// entry of the kind asked (regular files or directories) to add, under a
// window-modal progress dialog with the given label whose bar follows the
// entries. False when the directory can't be entered or read.
bool walkDataDir(QWidget* parent, const char* label, const char* path, _countFile what,
                 const std::function<void(const char* name)>& add);

// The lowered, underlined key text as a file name of the data directory
// (target: 256 bytes); null when the text is null, the directory can't be
// entered or the name exists already.
char* newRecordFileName(const char* dataDir, const char* keyText, char* target);

// Writes the record's lines into "<file>.$$$", then carries along, lowered,
// every old line that holds none of the keys, and puts the new file in the
// old one's place in one rename once every write and the close went well:
// the result of the rename; -4 no file or record; -3 directory; -2 old file;
// -1 the new file could not be written whole (the old one is left as it was).
typedef int (*WriteRecord)(FILE* stream, const void* record);
int updateRecordFile(const char* dataDir, const char* file, WriteRecord write, const void* record,
                     const char* const* keys);

// The lists of file names (installations of a company, measures of an
// installation): a new node in front, and the whole list freed.
template <class Node> Node* addFileNameNode(Node* list, const char* file)
{
    Node* node = static_cast<Node*>(calloc(1, sizeof(Node)));
    if (node == nullptr)
        return list;
    node->file = file != nullptr ? strdup(file) : nullptr;
    node->next = list;
    return node;
}

template <class Node> Node* closeFileNameList(Node* list)
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
