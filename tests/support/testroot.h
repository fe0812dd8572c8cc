#ifndef KRM_TESTS_TESTROOT_H
#define KRM_TESTS_TESTROOT_H

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

// A machine folder of the test's own: /etc, /krm510data and /dev exist in it
// (the data root's parent must exist, as on the instrument). While it lives
// it is the system root of the program; the clock runs at the given scale and
// its record of waits starts empty. The destructor puts the program back on
// an empty root and a clock of scale 1.
class TestRoot
{
public:
    explicit TestRoot(double timeScale = 0.0);
    ~TestRoot();
    TestRoot(const TestRoot&) = delete;
    TestRoot& operator=(const TestRoot&) = delete;

    bool isValid() const;
    QString root() const;
    // The host path of a device path, such as "/etc/krm510.conf".
    QString path(const char* devicePath) const;
    bool write(const char* devicePath, const QByteArray& content) const;
    QByteArray read(const char* devicePath) const;
    bool exists(const char* devicePath) const;
    bool mkdir(const char* devicePath) const;
    // Copies the compiled catalogues of the build into /etc/flang.
    bool installCatalogues() const;

private:
    QTemporaryDir dir;
    QByteArray savedCwd;
};

#endif
