#include "platform/systemroot.h"
#include "support/testroot.h"

#include <QtTest>

class TestSystemRoot : public QObject
{
    Q_OBJECT
private slots:
    void emptyRootLeavesDevicePathsAsTheyAre()
    {
        SystemRoot::set("");
        QCOMPARE(SystemRoot::path("/etc/krm510.conf"), std::string("/etc/krm510.conf"));
        QCOMPARE(SystemRoot::path("/dev/ttyS1"), std::string("/dev/ttyS1"));
    }
    void rootPrefixesAbsolutePaths()
    {
        SystemRoot::set("/tmp/machine");
        QCOMPARE(SystemRoot::path("/krm510data/datapanel"),
                 std::string("/tmp/machine/krm510data/datapanel"));
        SystemRoot::set("");
    }
    void relativeNamesStayRelative()
    {
        SystemRoot::set("/tmp/machine");
        QCOMPARE(SystemRoot::path("krm510.conf"), std::string("krm510.conf"));
        QCOMPARE(SystemRoot::path("./x"), std::string("./x"));
        SystemRoot::set("");
    }
    void trailingSlashOfRootIsDropped()
    {
        SystemRoot::set("/tmp/machine///");
        QCOMPARE(SystemRoot::get(), std::string("/tmp/machine"));
        QCOMPARE(SystemRoot::path("/etc"), std::string("/tmp/machine/etc"));
        SystemRoot::set("/");
        QCOMPARE(SystemRoot::path("/etc"), std::string("/etc"));
        SystemRoot::set("");
    }
    void nullPathGivesEmptyText()
    {
        QCOMPARE(SystemRoot::path(static_cast<const char*>(nullptr)), std::string());
    }
    void testRootHasEtcDataAndDev()
    {
        TestRoot root;
        QVERIFY(root.isValid());
        QCOMPARE(QString::fromStdString(SystemRoot::get()), root.root());
        QVERIFY(QFileInfo(root.path("/etc")).isDir());
        QVERIFY(QFileInfo(root.path("/krm510data")).isDir());
        QVERIFY(QFileInfo(root.path("/dev")).isDir());
        QVERIFY(!QFileInfo(root.path("/krm510data/datapanel")).exists());
    }
    void testRootPutsProgramBackOnEmptyRoot()
    {
        {
            TestRoot root;
            QVERIFY(!SystemRoot::get().empty());
        }
        QVERIFY(SystemRoot::get().empty());
    }
};

QTEST_GUILESS_MAIN(TestSystemRoot)
#include "tst_systemroot.moc"
