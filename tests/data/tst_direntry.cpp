#include "data/direntry.h"
#include "data/freespace.h"
#include "data/workdir.h"
#include "platform/systemroot.h"
#include "support/testroot.h"

#include <QtTest>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

static const char* const dataDirs[] = {"/krm510data/datapanel", "/krm510data/datacompany",
                                       "/krm510data/datainstallation", "/krm510data/datameapanel",
                                       "/krm510data/datameastring"};

class TestDirEntry : public QObject
{
    Q_OBJECT

    static QStringList entries(const TestRoot& root, const char* devicePath)
    {
        return QDir(root.path(devicePath))
            .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System, QDir::Name);
    }

private slots:
    // ---- checkDirData
    void startOnAnEmptyDataRootMakesTheFiveDirectories()
    {
        TestRoot root;
        checkDirData();
        for (const char* d : dataDirs)
            QVERIFY2(QFileInfo(root.path(d)).isDir(), d);
        QCOMPARE(entries(root, "/krm510data").size(), 5);
    }
    void withTheFiveDirectoriesPresentAStartChangesNothing()
    {
        TestRoot root;
        for (const char* d : dataDirs)
            QVERIFY(root.mkdir(d));
        QVERIFY(root.write("/krm510data/datapanel/acme/iname", "name = Acme\n"));
        QStringList before = entries(root, "/krm510data");
        QStringList rootBefore = entries(root, "/");
        checkDirData();
        QCOMPARE(entries(root, "/krm510data"), before);
        QCOMPARE(entries(root, "/"), rootBefore);
        QCOMPARE(root.read("/krm510data/datapanel/acme/iname"), QByteArray("name = Acme\n"));
    }
    void plainFileInPlaceOfModuleDirectoryIsMovedAside()
    {
        TestRoot root;
        QVERIFY(root.write("/krm510data/datapanel", "not a directory\n"));
        time_t before = time(nullptr);
        checkDirData();
        time_t after = time(nullptr);
        QVERIFY(QFileInfo(root.path("/krm510data/datapanel")).isDir());
        QStringList moved =
            QDir(root.path("/krm510data")).entryList(QStringList() << "datapanel.*", QDir::Files);
        QCOMPARE(moved.size(), 1);
        QString name = "/krm510data/" + moved.first();
        QString early = QString::fromStdString(backupDirName("/krm510data/datapanel", before));
        QString late = QString::fromStdString(backupDirName("/krm510data/datapanel", after));
        QVERIFY2(name == early || name == late, qPrintable(name));
        QCOMPARE(root.read(name.toLocal8Bit().constData()), QByteArray("not a directory\n"));
    }
    void backupNameCarriesTheHourPlusOne()
    {
        // 2010-12-31 22:59 UTC
        QCOMPARE(QString::fromStdString(backupDirName("/krm510data/datapanel", 1293836340)),
                 QString("/krm510data/datapanel.20101231-2359"));
        // 23:05 UTC reads 24
        QCOMPARE(QString::fromStdString(backupDirName("/krm510data/datameapanel", 1293836700)),
                 QString("/krm510data/datameapanel.20101231-2405"));
    }
    void plainFileInPlaceOfCompanyDirectoryStaysAsMkdirFails()
    {
        TestRoot root;
        QVERIFY(root.write("/krm510data/datacompany", "company file\n"));
        int result = checkDirData();
        QCOMPARE(root.read("/krm510data/datacompany"), QByteArray("company file\n"));
        QVERIFY(QFileInfo(root.path("/krm510data/datapanel")).isDir());
        QVERIFY(QFileInfo(root.path("/krm510data/datameastring")).isDir());
        QCOMPARE(entries(root, "/krm510data").size(), 5);
        QCOMPARE(result, 0); // the last mkdir made the string measure directory
    }
    void fileAtTheRootlessCompanyPathMovesTheModuleDirectory()
    {
        TestRoot root;
        QVERIFY(root.write("/krm510data/datapanel/acme/iname", "name = Acme\n"));
        QVERIFY(root.write("/datacompany", "stray\n"));
        checkDirData();
        QStringList moved =
            QDir(root.path("/krm510data")).entryList(QStringList() << "datacompany.*", QDir::Dirs);
        QCOMPARE(moved.size(), 1);
        QString name = "/krm510data/" + moved.first() + "/acme/iname";
        QCOMPARE(root.read(name.toLocal8Bit().constData()), QByteArray("name = Acme\n"));
        QVERIFY(QFileInfo(root.path("/krm510data/datacompany")).isDir());
        QVERIFY(!QFileInfo(root.path("/krm510data/datapanel")).exists());
    }
    void missingDataRootIsNotCreated()
    {
        TestRoot root;
        QVERIFY(QDir(root.path("/krm510data")).removeRecursively());
        QCOMPARE(checkDirData(), -1);
        QVERIFY(!QFileInfo::exists(root.path("/krm510data")));
    }
    void lastMkdirResultIsReturned()
    {
        TestRoot root;
        QCOMPARE(checkDirData(), 0);  // all made now
        QCOMPARE(checkDirData(), -1); // the measure directory exists already
    }

    // ---- countFileDir
    void countFileDirCountsFilesOrDirectories()
    {
        TestRoot root;
        root.write("/krm510data/x/a", "1");
        root.write("/krm510data/x/b", "2");
        root.mkdir("/krm510data/x/d1");
        root.mkdir("/krm510data/x/d2");
        root.mkdir("/krm510data/x/d3");
        QVERIFY(QFile::link("/dev/null", root.path("/krm510data/x/dev")));
        QCOMPARE(countFileDir("/krm510data/x", COUNT_FILES), 2);
        QCOMPARE(countFileDir("/krm510data/x", COUNT_DIRS), 3);
        QCOMPARE(countFileDir("/krm510data/x", static_cast<_countFile>(7)), 0);
    }
    // On the instrument's 32-bit processor a directory is read with 64-bit
    // offsets; a host file system hands out cookies beyond 32 bits once a
    // directory spans several blocks.
    void countFileDirReadsADirectoryOfThreeHundredFiles()
    {
        TestRoot root;
        for (int i = 0; i < 300; ++i)
            QVERIFY(root.write(
                QByteArray("/krm510data/datameapanel/measure_" + QByteArray::number(i)).constData(),
                "x"));
        root.mkdir("/krm510data/datameapanel/sub");
        QCOMPARE(countFileDir("/krm510data/datameapanel", COUNT_FILES), 300);
        QCOMPARE(countFileDir("/krm510data/datameapanel", COUNT_DIRS), 1);
    }
    void countFileDirOfMissingDirectoryIsZero()
    {
        TestRoot root;
        QCOMPARE(countFileDir("/krm510data/none", COUNT_FILES), 0);
        root.write("/krm510data/file", "x");
        QCOMPARE(countFileDir("/krm510data/file", COUNT_DIRS), 0);
    }
    void countFileDirGoesBackToTheWorkingDirectory()
    {
        TestRoot root;
        root.mkdir("/krm510data/x");
        char before[4096];
        QVERIFY(getcwd(before, sizeof before));
        countFileDir("/krm510data/x", COUNT_FILES);
        char after[4096];
        QVERIFY(getcwd(after, sizeof after));
        QCOMPARE(QByteArray(after), QByteArray(before));
    }

    // ---- existDir and existFile
    void existDirFindsADirectoryOnly()
    {
        TestRoot root;
        root.mkdir("/krm510data/datapanel/acme");
        root.write("/krm510data/datapanel/plain", "x");
        QCOMPARE(existDir("/krm510data/datapanel", "acme"), -1);
        QCOMPARE(existDir("/krm510data/datapanel", "plain"), 0);
        QCOMPARE(existDir("/krm510data/datapanel", "other"), 0);
    }
    void existDirWithParentNotEnterableIsMinusOne()
    {
        TestRoot root;
        QCOMPARE(existDir("/krm510data/missing", "acme"), -1);
    }
    void existFileFindsARegularFileOnly()
    {
        TestRoot root;
        root.write("/krm510data/d/model_a", "x");
        root.mkdir("/krm510data/d/sub");
        WorkDir wd;
        QVERIFY(wd.enter("/krm510data/d"));
        QCOMPARE(existFile("model_a"), -1);
        QCOMPARE(existFile("sub"), 0);
        QCOMPARE(existFile("none"), 0);
    }
    void existFileComparesNamesExactly()
    {
        TestRoot root;
        root.write("/krm510data/d/Model", "x");
        WorkDir wd;
        QVERIFY(wd.enter("/krm510data/d"));
        QCOMPARE(existFile("model"), 0);
        QCOMPARE(existFile("Model"), -1);
    }

    // ---- myUnlink
    void myUnlinkRemovesAFileOrAnEmptyDirectory()
    {
        TestRoot root;
        root.write("/krm510data/f", "x");
        root.mkdir("/krm510data/d");
        QCOMPARE(myUnlink("/krm510data/f"), 0);
        QCOMPARE(myUnlink("/krm510data/d"), 0);
        QVERIFY(!root.exists("/krm510data/f"));
        QVERIFY(!root.exists("/krm510data/d"));
    }
    void myUnlinkOfNonEmptyDirectoryFails()
    {
        TestRoot root;
        root.write("/krm510data/d/f", "x");
        QCOMPARE(myUnlink("/krm510data/d"), -1);
        QVERIFY(root.exists("/krm510data/d/f"));
    }
    void myUnlinkRefusesDotsMissingAndOtherKinds()
    {
        TestRoot root;
        QCOMPARE(myUnlink("."), -1);
        QCOMPARE(myUnlink(".."), -1);
        QCOMPARE(myUnlink("/krm510data/none"), -1);
        QVERIFY(mkfifo(root.path("/krm510data/fifo").toLocal8Bit().constData(), 0666) == 0);
        QCOMPARE(myUnlink("/krm510data/fifo"), -1);
        QVERIFY(root.exists("/krm510data/fifo"));
    }
    void myUnlinkTakesNamesRelativeToTheWorkingDirectory()
    {
        TestRoot root;
        root.write("/krm510data/d/model", "x");
        WorkDir wd;
        QVERIFY(wd.enter("/krm510data/d"));
        QCOMPARE(myUnlink("model"), 0);
        QVERIFY(!root.exists("/krm510data/d/model"));
    }

    // ---- WorkDir
    void workDirGoesBackAtScopeExit()
    {
        TestRoot root;
        char before[4096];
        QVERIFY(getcwd(before, sizeof before));
        {
            WorkDir wd;
            QVERIFY(wd.enter("/etc"));
            char inside[4096];
            QVERIFY(getcwd(inside, sizeof inside));
            QCOMPARE(QString(inside), QFileInfo(root.path("/etc")).canonicalFilePath());
        }
        char after[4096];
        QVERIFY(getcwd(after, sizeof after));
        QCOMPARE(QByteArray(after), QByteArray(before));
    }
    void workDirRefusesAFileWhereADirectoryIsExpected()
    {
        TestRoot root;
        root.write("/krm510data/file", "x");
        WorkDir wd;
        QVERIFY(!wd.enter("/krm510data/file"));
        QVERIFY(!wd.enter(nullptr));
    }

    // ---- storage gauge
    void testsMakeTheirOwnWorld_usedSpaceIsTheShareOfUsedBlocks()
    {
        // Tests make their own world: on a fresh machine whose /tmp is an
        // empty tmpfs no block is used at all, so the test itself fills some
        // before it asks (it used to rely on a disk that others had filled).
        TestRoot root;
        QFile filler(root.path("/krm510data/filler"));
        QVERIFY(filler.open(QIODevice::WriteOnly));
        QVERIFY(filler.write(QByteArray(1 << 20, 'x')) == (1 << 20));
        QVERIFY(filler.flush());
        QVERIFY(fsync(filler.handle()) == 0);
        filler.close();
        struct statvfs vfs;
        QVERIFY(statvfs(root.path("/krm510data").toLocal8Bit().constData(), &vfs) == 0);
        float t = static_cast<float>(vfs.f_blocks);
        float f = static_cast<float>(vfs.f_bfree);
        float percent = get_use_space_percentage("/krm510data");
        QVERIFY(percent > 0.0f && percent <= 100.0f);
        // the disk may change a little between the two readings
        QVERIFY(qAbs(percent - (t - f) / t * 100.0f) < 1.0f);
    }
    void fileSystemWithoutBlocksReadsAsZero()
    {
        // /proc reports no blocks at all
        SystemRoot::set("");
        QCOMPARE(get_use_space_percentage("/proc"), 0.0f);
    }
    void unreadablePathReadsAsZero()
    {
        TestRoot root;
        QCOMPARE(get_use_space_percentage("/krm510data/none"), 0.0f);
        QCOMPARE(get_use_space_percentage(nullptr), 0.0f);
    }
};

QTEST_GUILESS_MAIN(TestDirEntry)
#include "tst_direntry.moc"
