// What the stick tests share: the data directories filled from tests/data, a
// look at a folder's files, a firmware image in Intel HEX, and choosing a
// file in the upgrade list as the operator does.
#ifndef KRM_TESTS_USBFIXTURE_H
#define KRM_TESTS_USBFIXTURE_H

#include "support/siminstrument.h"
#include "support/testroot.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QListWidget>
#include <QMap>
#include <QPushButton>
#include <QtTest>

namespace usb
{

// Every file under a folder with its content, by relative path.
inline QMap<QString, QByteArray> contents(const QString& dir)
{
    QMap<QString, QByteArray> files;
    QDirIterator it(dir, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        QString path = it.next();
        QFile f(path);
        if (f.open(QIODevice::ReadOnly))
            files.insert(QDir(dir).relativeFilePath(path), f.readAll());
    }
    return files;
}

inline QByteArray testData(const char* name)
{
    QFile f(QString(KRM_TEST_DATA_DIR) + "/" + name);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// The five data directories filled with the test files of each kind.
inline bool fillData(const TestRoot& root)
{
    return root.write("/krm510data/datapanel/hit/hit_240", testData("module_hit_240")) &&
           root.write("/krm510data/datapanel/hit/brand", "HIT\n") &&
           root.write("/krm510data/datacompany/rossi___figli", testData("company_rossi___figli")) &&
           root.write("/krm510data/datainstallation/capannone_nord",
                      testData("installation_capannone_nord")) &&
           root.write("/krm510data/datameapanel/prova_256", testData("measure_256_points")) &&
           root.write("/krm510data/datameastring/prova_512", testData("measure_512_points"));
}

// One Intel HEX record, checksum included.
inline QByteArray hexRecord(int type, unsigned address, const QByteArray& data)
{
    QByteArray bytes;
    bytes += static_cast<char>(data.size());
    bytes += static_cast<char>((address >> 8) & 0xFF);
    bytes += static_cast<char>(address & 0xFF);
    bytes += static_cast<char>(type);
    bytes += data;
    unsigned sum = 0;
    for (char c : bytes)
        sum += static_cast<unsigned char>(c);
    bytes += static_cast<char>((0x100 - (sum & 0xFF)) & 0xFF);
    return ":" + bytes.toHex().toUpper() + "\r\n";
}

// A firmware with an instruction in the first program row and one at word
// 0x800, a row of its own: the loader writes rows 0x0000 and 0x0800.
inline QByteArray firmware()
{
    return hexRecord(4, 0, QByteArray("\x00\x00", 2)) +
           hexRecord(0, 0x0010, QByteArray("\x11\x22\x33\x00", 4)) +
           hexRecord(0, 0x1000, QByteArray("\x44\x55\x66\x00", 4)) + hexRecord(1, 0, QByteArray());
}

inline bool writeFile(const QString& path, const QByteArray& content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile f(path);
    return f.open(QIODevice::WriteOnly) && f.write(content) == content.size();
}

// An action for the upgrade list: touch the file's row, then "Conferma".
inline void chooseUpgradeFile(QWidget* files, const QString& name)
{
    QListWidget* list = files->findChild<QListWidget*>();
    QList<QListWidgetItem*> items = list->findItems(name, Qt::MatchExactly);
    QVERIFY2(!items.isEmpty(), qPrintable(name));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                      list->visualItemRect(items[0]).center());
    QTest::mouseClick(files->findChild<QPushButton*>("Conferma"), Qt::LeftButton);
}

// A stick put in and mounted by its script, as "Connetti" would.
inline bool mountedStick(const SimInstrument& sim)
{
    return sim.stickIn() && system(qPrintable(sim.root() + "/usr/bin/mountusb.sh >/dev/null")) == 0;
}

inline bool makeDirs(const QString& base, const QStringList& dirs)
{
    for (const QString& d : dirs)
        if (!QDir().mkpath(base + "/" + d))
            return false;
    return true;
}

} // namespace usb

#endif
