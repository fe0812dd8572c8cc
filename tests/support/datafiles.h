#ifndef KRM_TESTS_DATAFILES_H
#define KRM_TESTS_DATAFILES_H

#include <QByteArray>
#include <QObject>
#include <QString>
#include <csignal>
#include <sys/resource.h>

// Helpers for the tests of the data files.

// The content of a golden file under tests/data.
QByteArray golden(const char* name);

// The working directory of the process, for checks that a function went back.
QString currentDir();

// While it lives, regular files can't grow beyond the given size: a write
// past it fails with EFBIG (SIGXFSZ is ignored), as on a full disk.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes);
    ~FileSizeLimit();
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    struct rlimit saved;
    struct sigaction savedAction;
};

// While it lives, the process runs in a locale whose numbers take a decimal
// comma (de_DE.UTF-8, or it_IT.UTF-8 when that is the one generated);
// active() is false when the machine has neither.
class CommaLocale
{
public:
    CommaLocale();
    ~CommaLocale();
    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;
    bool active() const { return on; }

private:
    QByteArray saved;
    bool on = false;
};

// What a progress dialog looked like while a list was being read.
struct ProgressSeen {
    bool seen = false;
    bool visible = false;
    QString label;
    QString styleSheet;
    int modality = -1;
    int minimumDuration = -1;
    int maximum = -1;
    bool cancelButton = true;
    bool titleWithoutClose = false;
};

// Arms a timer that fires in the first event loop run, which inside a list
// read is the progress dialog's own, and records the open progress dialog.
class ProgressProbe
{
public:
    ProgressProbe();
    ProgressSeen seen;

private:
    QObject context; // the timer goes with the probe
};

#endif
