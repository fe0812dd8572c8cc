#include "support/datafiles.h"

#include <clocale>

#include <QApplication>
#include <QFile>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>
#include <unistd.h>

QByteArray golden(const char* name)
{
    QFile f(QString(KRM_TEST_DATA_DIR) + "/" + name);
    if (!f.open(QIODevice::ReadOnly))
        return QByteArray();
    return f.readAll();
}

QString currentDir()
{
    char cwd[4096];
    if (getcwd(cwd, sizeof cwd) == nullptr)
        return QString();
    return QString::fromLocal8Bit(cwd);
}

FileSizeLimit::FileSizeLimit(rlim_t bytes)
{
    struct sigaction ignore = {};
    ignore.sa_handler = SIG_IGN;
    sigaction(SIGXFSZ, &ignore, &savedAction);
    getrlimit(RLIMIT_FSIZE, &saved);
    struct rlimit limit = saved;
    limit.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &limit);
}

FileSizeLimit::~FileSizeLimit()
{
    setrlimit(RLIMIT_FSIZE, &saved);
    sigaction(SIGXFSZ, &savedAction, nullptr);
}

CommaLocale::CommaLocale() : saved(setlocale(LC_ALL, nullptr))
{
    for (const char* name : {"de_DE.UTF-8", "it_IT.UTF-8"}) {
        if (setlocale(LC_ALL, name) != nullptr) {
            on = true;
            return;
        }
    }
}

CommaLocale::~CommaLocale()
{
    setlocale(LC_ALL, saved.constData());
}

ProgressProbe::ProgressProbe()
{
    QTimer::singleShot(0, &context, [this]() {
        for (QWidget* w : QApplication::topLevelWidgets()) {
            QProgressDialog* d = qobject_cast<QProgressDialog*>(w);
            if (d == nullptr)
                continue;
            seen.seen = true;
            seen.visible = d->isVisible();
            seen.label = d->labelText();
            seen.styleSheet = d->styleSheet();
            seen.modality = d->windowModality();
            seen.minimumDuration = d->minimumDuration();
            seen.maximum = d->maximum();
            seen.cancelButton = d->findChild<QPushButton*>() != nullptr;
            Qt::WindowFlags f = d->windowFlags();
            seen.titleWithoutClose = (f & Qt::WindowTitleHint) && (f & Qt::CustomizeWindowHint) &&
                                     !(f & Qt::WindowCloseButtonHint);
        }
    });
}
