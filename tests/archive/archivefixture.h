#ifndef KRM_TESTS_ARCHIVEFIXTURE_H
#define KRM_TESTS_ARCHIVEFIXTURE_H

// Helpers of the module archive tests: a module database laid down through
// the file layer, the touches of an operator and a look at the tree on disk.
#include "data/datapanel.h"
#include "data/direntry.h"
#include "support/modaldriver.h"
#include "support/siminstrument.h"
#include "support/testroot.h"
#include "toolkit/embkeyboard.h"

#include <QDir>
#include <QDirIterator>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>
#include <cstring>

namespace archive
{

inline bool emptyDatabase(const TestRoot& root)
{
    return root.mkdir("/krm510data/datapanel");
}

inline _panelFeature sheet(float pmax, float vmpp, float impp, float voc, float isc)
{
    _panelFeature f;
    memset(&f, 0, sizeof f);
    f.pmax = pmax;
    f.vmpp = vmpp;
    f.impp = impp;
    f.voc = voc;
    f.isc = isc;
    f.type = 1;
    f.noct = 45;
    f.kisc = 0.05f;
    f.kvoc = -0.35f;
    f.kpmax = -0.45f;
    f.tollp = 3;
    f.tollm = -3;
    return f;
}

// One model file (and its brand, if new) written by the file layer.
inline bool addModel(const char* brandName, const char* brandDir, const char* modelName,
                     const char* modelFile, const _panelFeature& feature)
{
    _panel p;
    p.brandName = const_cast<char*>(brandName);
    p.brandDir = const_cast<char*>(brandDir);
    p.modelName = const_cast<char*>(modelName);
    p.modelFile = const_cast<char*>(modelFile);
    p.feature = feature;
    checkDirData();
    return saveNewDataPanel(&p) == 0;
}

inline bool addBrand(const char* brandName, const char* brandDir)
{
    checkDirData();
    return createDataDir(brandName, brandDir) == 0;
}

// Every entry under the module database, as "dir/", "dir/file", sorted.
inline QStringList tree(const TestRoot& root)
{
    QString base = root.path("/krm510data/datapanel");
    QStringList entries;
    QDirIterator it(base, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        it.next();
        QString rel = QDir(base).relativeFilePath(it.filePath());
        entries << (it.fileInfo().isDir() ? rel + "/" : rel);
    }
    entries.sort();
    return entries;
}

inline QByteArray modelFile(const TestRoot& root, const QString& brandDir, const QString& file)
{
    return root.read(QString("/krm510data/datapanel/%1/%2").arg(brandDir, file).toLocal8Bit());
}

inline void touch(QWidget* w)
{
    QTest::mouseClick(w, Qt::LeftButton);
}

template <typename T> T* child(QWidget* parent, const char* name)
{
    T* w = parent->findChild<T*>(name);
    if (w == nullptr)
        qWarning("no child %s", name);
    return w;
}

// Types a value into a line edit of a screen: the touch opens the keyboard.
inline void enter(ModalDriver& driver, QWidget* screen, const char* field, const QString& text)
{
    driver.typeOnKeyboard(text);
    touch(child<QLineEdit>(screen, field));
}

// The same, when the value is refused: the box is answered.
inline void enterRefused(ModalDriver& driver, QWidget* screen, const char* field,
                         const QString& text)
{
    driver.typeOnKeyboard(text);
    driver.answerBox();
    touch(child<QLineEdit>(screen, field));
}

// One press of a hardware key that moves the focus: the key is held until
// the focus has moved and then let go. Run it at a clock scale that keeps the
// key poll well above the test's reaction (0.25: a 50 ms poll). The name of
// the widget that took the focus.
inline QString focusStep(SimInstrument& sim, const char* key)
{
    QWidget* before = QApplication::focusWidget();
    if (!sim.pressKey(key))
        return "<no key>";
    bool moved = QTest::qWaitFor([&] { return QApplication::focusWidget() != before; }, 5000);
    sim.releaseKey(key);
    QTest::qWait(60);
    QWidget* now = QApplication::focusWidget();
    if (!moved || now == nullptr)
        return "<no move>";
    return now->objectName();
}

// An action for the next modal window of the class named: the archive's
// screens read the brands first, and the progress dialog of that read is a
// modal window too; any other window is passed over and the action waits on.
inline void onScreen(ModalDriver& driver, const char* className,
                     std::function<void(QWidget*)> action)
{
    driver.onWindow(className, action);
}

// Closes the brand list of a screen's caller at the end of a test.
// Two models of one name, "Twin", in the files twin_a (200 W) and twin_b (300 W).
inline bool twinModels()
{
    return addModel("Solar", "solar", "Twin", "twin_a", sheet(200, 30, 8, 37, 8.5f)) &&
           addModel("Solar", "solar", "Twin", "twin_b", sheet(300, 30, 8, 37, 8.5f));
}

// A brand as an older instrument left it: "Müller" in Latin-1 (directory
// muller) with the models "Hit" (hit), "Kräft" in Latin-1 (kraft, 1 W) and
// a file without a name line (noname, 250 W, its Vmpp stored as "nan").
inline bool olderInstrumentsBrand(const TestRoot& root)
{
    return addModel("x", "muller", "Hit", "hit", sheet(240, 30, 8, 37, 8.5f)) &&
           root.write("/krm510data/datapanel/muller/iname", "M\xfcller\n") &&
           root.write("/krm510data/datapanel/muller/kraft", "name = Kr\xe4"
                                                            "ft\npmax = 1\n") &&
           root.write("/krm510data/datapanel/muller/noname", "pmax = 250.00\nvmpp = nan\n");
}

struct BrandList {
    _listBrand* head;
    BrandList() : head(readListBrandPanel(nullptr)) {}
    ~BrandList() { closeListBrandPanel(head); }
    BrandList(const BrandList&) = delete;
    BrandList& operator=(const BrandList&) = delete;
};

} // namespace archive

#endif
