// The storage gauge dialog: the figure it shows, from the caller or from the
// file system of the data tree (a small tmpfs mounted there), and its keys.
#include "data/freespace.h"
#include "device/keyboard.h"
#include "support/testroot.h"

#include <QKeyEvent>
#include <QProgressBar>
#include <QPushButton>
#include <QtTest>

#include <fcntl.h>
#include <sys/mount.h>
#include <unistd.h>

namespace {

// A 64 KiB tmpfs (16 blocks of 4 KiB) on the data tree of the test's root.
struct SmallDataTree {
    QByteArray path;
    bool mounted = false;
    explicit SmallDataTree(const TestRoot& root) : path(root.path("/krm510data").toLocal8Bit())
    {
        mounted = ::mount("tmpfs", path.constData(), "tmpfs", 0, "size=64k") == 0;
    }
    ~SmallDataTree()
    {
        if (mounted)
            ::umount(path.constData());
    }
    // Writes until the file system has no block left, or `blocks` blocks.
    void fill(const char* name, int blocks)
    {
        int fd = ::open((path + "/" + name).constData(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
        char block[4096] = {1};
        for (int i = 0; i != blocks; i++)
            if (::write(fd, block, sizeof block) != ssize_t(sizeof block))
                break;
        ::close(fd);
    }
};

} // namespace

class TestFreeSpace : public QObject
{
    Q_OBJECT

private slots:
    void givenPercentIsShownAsItIs()
    {
        TestRoot root;
        DialogFreeSpace dialog(nullptr, 42);
        QCOMPARE(dialog.progressBar->value(), 42);
        QCOMPARE(dialog.progressBar->minimum(), 0);
        QCOMPARE(dialog.progressBar->maximum(), 100);
        QCOMPARE(dialog.progressBar->orientation(), Qt::Horizontal);
        QCOMPARE(dialog.windowTitle(), QString("Memoria occupata"));
        QCOMPARE(dialog.objectName(), QString("FreeSpace"));
        QVERIFY(dialog.isModal());
        QCOMPARE(dialog.windowFlags() & (Qt::WindowTitleHint | Qt::CustomizeWindowHint),
                 Qt::WindowTitleHint | Qt::CustomizeWindowHint);
        QCOMPARE(dialog.buttonOk->text(), QString("OK"));
        QVERIFY(dialog.buttonOk->isFlat());
        QVERIFY(dialog.buttonOk->isDefault());
        QVERIFY(dialog.findChild<GpioKeyboard*>() != nullptr);
    }

    void zeroAsksTheDataFileSystem()
    {
        TestRoot root;
        SmallDataTree tree(root);
        if (!tree.mounted)
            QSKIP("no tmpfs can be mounted here");
        tree.fill("half", 8);
        float used = get_use_space_percentage("/krm510data");
        QVERIFY(used >= 50.0f && used < 60.0f);
        DialogFreeSpace dialog(nullptr, 0);
        QCOMPARE(dialog.progressBar->value(), int(used));
    }

    void fileSystemWithNoFreeBlockShowsZero()
    {
        TestRoot root;
        SmallDataTree tree(root);
        if (!tree.mounted)
            QSKIP("no tmpfs can be mounted here");
        tree.fill("all", -1);
        QCOMPARE(get_use_space_percentage("/krm510data"), 0.0f);
        DialogFreeSpace dialog(nullptr, 0);
        QCOMPARE(dialog.progressBar->value(), 0);
    }

    void okButtonRejects()
    {
        TestRoot root;
        DialogFreeSpace dialog(nullptr, 10);
        dialog.show();
        dialog.buttonOk->click();
        QCOMPARE(dialog.result(), int(QDialog::Rejected));
        QVERIFY(!dialog.isVisible());
    }

    void escapeRejects()
    {
        TestRoot root;
        DialogFreeSpace dialog(nullptr, 10);
        dialog.show();
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.result(), int(QDialog::Rejected));
    }

    void returnRejectsOnlyWithTheButtonFocused()
    {
        TestRoot root;
        DialogFreeSpace dialog(nullptr, 10);
        dialog.show();
        dialog.buttonOk->clearFocus();
        QKeyEvent away(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QCoreApplication::sendEvent(&dialog, &away);
        QVERIFY(dialog.isVisible());
        dialog.buttonOk->setFocus();
        QTRY_VERIFY(dialog.buttonOk->hasFocus());
        QKeyEvent onButton(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QCoreApplication::sendEvent(&dialog, &onButton);
        QVERIFY(!dialog.isVisible());
    }
};

QTEST_MAIN(TestFreeSpace)
#include "tst_freespace.moc"
