#include "data/recordfiles.h"

#include "data/direntry.h"
#include "data/workdir.h"

#include <QCoreApplication>
#include <QObject>
#include <QProgressDialog>

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#define NAME_SIZE 256

bool walkDataDir(QWidget* parent, const char* label, const char* path, _countFile what,
                 const std::function<void(const char* name)>& add)
{
    QProgressDialog progress(QObject::tr(label), QString(), 0, 100, parent,
                             Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
    progress.reset(); // stops the show timer of the constructor (see PanelIV::measurePanel)
    progress.setMinimumDuration(1500);
    progress.setWindowModality(Qt::WindowModal);
    progress.setStyleSheet(READ_PROGRESS_STYLE);
    progress.setMaximum(countFileDir(path, what));
    progress.setValue(0);
    progress.show();

    WorkDir wd;
    if (!wd.enter(path))
        return false;
    DIR* dir = opendir("./");
    if (dir == nullptr)
        return false;
    int count = 0;
    while (struct dirent* entry = readdir(dir)) {
        if (strcmp(entry->d_name, ".") == 0 || strcmp(entry->d_name, "..") == 0)
            continue;
        struct stat st;
        if (stat(entry->d_name, &st) != 0)
            continue;
        if (what == COUNT_DIRS ? S_ISDIR(st.st_mode) : S_ISREG(st.st_mode))
            add(entry->d_name);
        progress.setValue(++count);
        // the dialog was shown by hand, so setValue alone doesn't keep the screen alive
        QCoreApplication::processEvents();
    }
    closedir(dir);
    return true;
}

char* newRecordFileName(const char* dataDir, const char* keyText, char* target)
{
    if (keyText == nullptr || target == nullptr)
        return nullptr;
    WorkDir wd;
    if (!wd.enter(dataDir))
        return nullptr;
    char name[NAME_SIZE];
    snprintf(name, sizeof name, "%s", keyText);
    strlower(name);
    strunderline(name, nullptr);
    // no alternative name is tried
    if (existFile(name) != 0)
        return nullptr;
    strcpy(target, name);
    return target;
}

// Whether a lowered line holds one of the keys anywhere, also inside a value.
static bool holdsKey(const char* line, const char* const* keys)
{
    for (; *keys != nullptr; keys++)
        if (strstr(line, *keys) != nullptr)
            return true;
    return false;
}

// Copies the old file's lines that hold none of the keys, lowered, each line
// whole however long it is. False when a read fails.
static bool carryOldLines(FILE* old, FILE* f, const char* const* keys)
{
    char* line = nullptr;
    size_t size = 0;
    while (getline(&line, &size, old) != -1) {
        strlower(line);
        if (!holdsKey(line, keys))
            fputs(line, f);
    }
    free(line);
    return ferror(old) == 0;
}

int updateRecordFile(const char* dataDir, const char* file, WriteRecord write, const void* record,
                     const char* const* keys)
{
    if (file == nullptr || record == nullptr)
        return -4;
    WorkDir wd;
    if (!wd.enter(dataDir))
        return -3;
    char temporary[NAME_SIZE + 8];
    snprintf(temporary, sizeof temporary, "%s.$$$", file);
    FILE* old = fopen(file, "r");
    if (old == nullptr)
        return -2;
    FILE* f = fopen(temporary, "w");
    if (f == nullptr) {
        fclose(old);
        return -1;
    }

    // The old instrument wrote without looking, deleted the old file and then
    // renamed: a full disk left a cut record in its place, a power cut between
    // the two steps no record of that name at all. The old file stays until
    // the new one is written, flushed, synced and closed without a fault, and
    // the new one takes its place in one rename.
    write(f, record);
    bool good = carryOldLines(old, f, keys);
    fclose(old);
    good = fflush(f) == 0 && ferror(f) == 0 && good;
    good = fsync(fileno(f)) == 0 && good;
    good = fclose(f) == 0 && good;
    if (!good) {
        unlink(temporary);
        return -1;
    }
    return rename(temporary, file);
}
