#include "support/screenshot.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QPixmap>
#include <QWidget>
#include <cstdio>

namespace {

QString screenshotDir()
{
    return QStringLiteral(KRM_BINARY_DIR "/screenshots");
}

} // namespace

void useInstrumentScreen()
{
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (!platform.isEmpty() && platform != "offscreen")
        return;
    if (!QDir().mkpath(screenshotDir()))
        return;
    // Tests may run side by side: each writes its own file and renames it
    // over the shared one, so that no reader ever sees half a file.
    const QString config = screenshotDir() + "/instrument-screen.json";
    const QString partial = config + "." + QString::number(QCoreApplication::applicationPid());
    QFile file(partial);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return;
    file.write("{ \"screens\": [ { \"name\": \"krm510\", \"x\": 0, \"y\": 0,"
               " \"width\": 1024, \"height\": 600, \"logicalDpi\": 72,"
               " \"logicalBaseDpi\": 72, \"dpr\": 1 } ] }\n");
    file.close();
    if (std::rename(QFile::encodeName(partial).constData(), QFile::encodeName(config).constData())
        != 0) {
        QFile::remove(partial);
        return;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(config));
}

void useInstrumentDpi()
{
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi, false);
}

QString saveScreenshot(QWidget* widget, const QString& name)
{
    if (!widget || name.isEmpty() || !QDir().mkpath(screenshotDir()))
        return QString();
    QCoreApplication::sendPostedEvents();
    const QString path = screenshotDir() + "/" + name + ".png";
    if (!widget->grab().save(path, "PNG"))
        return QString();
    return path;
}
