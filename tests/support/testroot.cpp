#include "support/testroot.h"

#include "platform/clock.h"
#include "platform/systemroot.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <unistd.h>

TestRoot::TestRoot(double timeScale) : dir(QDir::tempPath() + "/krm510-root-XXXXXX")
{
    char cwd[4096];
    if (getcwd(cwd, sizeof cwd) != nullptr)
        savedCwd = cwd;
    if (!dir.isValid())
        return;
    QDir top(dir.path());
    top.mkpath("etc");
    top.mkpath("krm510data");
    top.mkpath("dev");
    SystemRoot::set(dir.path().toStdString());
    Clock::setScale(timeScale);
    Clock::clearWaits();
}

TestRoot::~TestRoot()
{
    if (!savedCwd.isEmpty() && chdir(savedCwd.constData()) != 0) {
        // the test's own directory went away; nothing to go back to
    }
    SystemRoot::set("");
    Clock::setScale(1.0);
    Clock::clearWaits();
}

bool TestRoot::isValid() const
{
    return dir.isValid();
}

QString TestRoot::root() const
{
    return dir.path();
}

QString TestRoot::path(const char* devicePath) const
{
    return dir.path() + QString::fromLocal8Bit(devicePath);
}

bool TestRoot::write(const char* devicePath, const QByteArray& content) const
{
    QFileInfo info(path(devicePath));
    QDir().mkpath(info.path());
    QFile f(info.filePath());
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    return f.write(content) == content.size();
}

QByteArray TestRoot::read(const char* devicePath) const
{
    QFile f(path(devicePath));
    if (!f.open(QIODevice::ReadOnly))
        return QByteArray();
    return f.readAll();
}

bool TestRoot::exists(const char* devicePath) const
{
    return QFileInfo::exists(path(devicePath));
}

bool TestRoot::mkdir(const char* devicePath) const
{
    return QDir().mkpath(path(devicePath));
}

bool TestRoot::installCatalogues() const
{
    QDir built(QStringLiteral(KRM_BINARY_DIR "/system/etc/flang"));
    if (!mkdir("/etc/flang"))
        return false;
    const QStringList names = built.entryList(QDir::Files);
    for (const QString& name : names) {
        QString target = path("/etc/flang/") + name;
        QFile::remove(target);
        if (!QFile::copy(built.filePath(name), target))
            return false;
    }
    return names.size() == 5;
}
