// The pictures the screens load by resource path are compiled into the
// program's library: each name loads, at a size that fits where it is shown.

#include <QDir>
#include <QFile>
#include <QIcon>
#include <QImage>
#include <QPixmap>
#include <QSet>
#include <QtTest>

namespace {

// Every picture path written in the program's screens, as they use them.
const char* const kIcons[] = {
    ":/icon/ac-adapter.png",     ":/icon/add.png",            ":/icon/alert-big.png",
    ":/icon/apply.png",          ":/icon/archiveImpianti.png", ":/icon/archiveList.png",
    ":/icon/archiveMeasure.png", ":/icon/archivePanel.png",   ":/icon/backspace.png",
    ":/icon/battery-15.png",     ":/icon/battery-25.png",     ":/icon/battery-50.png",
    ":/icon/battery-75.png",     ":/icon/battery-alert.png",  ":/icon/battery-empty.png",
    ":/icon/battery-full.png",   ":/icon/belrix.png",         ":/icon/bluetooth.png",
    ":/icon/cancel.png",         ":/icon/capslock.png",       ":/icon/confirm.png",
    ":/icon/control-center2.png", ":/icon/edit.png",          ":/icon/editpanel.png",
    ":/icon/enter.png",          ":/icon/exit.png",           ":/icon/find-panel.png",
    ":/icon/graphpanel.png",     ":/icon/insertnew.png",      ":/icon/left.png",
    ":/icon/next.png",           ":/icon/panelnew.png",       ":/icon/pannello.png",
    ":/icon/radiotray1.png",     ":/icon/radiotray2.png",     ":/icon/radiotray3.png",
    ":/icon/remove.png",         ":/icon/right.png",          ":/icon/save.png",
    ":/icon/stringa.png",        ":/icon/trash.png",          ":/icon/usb-info.png",
    ":/icon/usb-port.png",       ":/icon/usbadapter.png",     ":/icon/usbrs1.png",
    ":/icon/usbrs2.png",         ":/icon/usbrs3.png",         ":/icon/vac-adapter.png",
    ":/icon/vbattery-15.png",    ":/icon/vbattery-25.png",    ":/icon/vbattery-50.png",
    ":/icon/vbattery-75.png",    ":/icon/vbattery-alert.png", ":/icon/vbattery-empty.png",
    ":/icon/vbattery-full.png",  ":/icon/view-refresh.png",   ":/icon/flag-england.png",
    ":/icon/flag-france.png",    ":/icon/flag-germany.png",   ":/icon/flag-italy.png",
    ":/icon/flag-spain.png",
};

const char* const kImages[] = {
    ":/image/schema_pannello.png",
    ":/image/schema_stringhe.png",
    ":/image/splash.png",
};

// The language combo of the settings screen writes these without the slash.
const char* const kFlagsAsWritten[] = {
    ":icon/flag-italy.png",  ":icon/flag-england.png", ":icon/flag-france.png",
    ":icon/flag-germany.png", ":icon/flag-spain.png",
};

const char* const kMenuIcons[] = {
    ":/icon/belrix.png",       ":/icon/control-center2.png", ":/icon/pannello.png",
    ":/icon/stringa.png",      ":/icon/archivePanel.png",    ":/icon/archiveMeasure.png",
    ":/icon/archiveImpianti.png", ":/icon/usb-port.png",
};

const char* const kChargeLevels[] = {"full", "75", "50", "25", "15", "alert", "empty"};

// Share of the pixels that a viewer on a black screen actually sees.
double visibleShare(const QImage& picture)
{
    const QImage img = picture.convertToFormat(QImage::Format_ARGB32);
    qint64 seen = 0;
    for (int y = 0; y < img.height(); ++y) {
        const QRgb* line = reinterpret_cast<const QRgb*>(img.constScanLine(y));
        for (int x = 0; x < img.width(); ++x) {
            const QRgb px = line[x];
            if (qAlpha(px) > 64 && qMax(qRed(px), qMax(qGreen(px), qBlue(px))) > 60)
                ++seen;
        }
    }
    return double(seen) / (qint64(img.width()) * img.height());
}

} // namespace

class TestPictures : public QObject
{
    Q_OBJECT

private slots:
    void everyNamedPictureLoads_data();
    void everyNamedPictureLoads();
    void resourceTreeHoldsOnlyNamedPictures();
    void menuButtonIconsAre48Square();
    void keyboardIconsFitTheirKeys();
    void statusBarBatteriesLieAndMeasuringScreenBatteriesStand();
    void flagPathWithoutSlashResolvesToTheSamePicture();
    void splashFillsTheScreen();
    void wiringDiagramsFitUnderTitleAndButton();
    void lowBatteryWarningIsLarge();
};

void TestPictures::everyNamedPictureLoads_data()
{
    QTest::addColumn<QString>("path");
    for (const char* path : kIcons)
        QTest::newRow(path) << QString::fromLatin1(path);
    for (const char* path : kImages)
        QTest::newRow(path) << QString::fromLatin1(path);
}

void TestPictures::everyNamedPictureLoads()
{
    QFETCH(QString, path);
    QVERIFY2(QFile::exists(path), qPrintable(path));
    const QPixmap pixmap(path);
    QVERIFY2(!pixmap.isNull(), qPrintable(path));
    QVERIFY(pixmap.width() >= 16 && pixmap.width() <= 1024);
    QVERIFY(pixmap.height() >= 16 && pixmap.height() <= 600);
    // not an empty or black frame: at least a tenth of it shows on black
    QVERIFY2(visibleShare(pixmap.toImage()) > 0.1, qPrintable(path));
}

void TestPictures::resourceTreeHoldsOnlyNamedPictures()
{
    QSet<QString> named;
    for (const char* path : kIcons)
        named.insert(QString::fromLatin1(path));
    for (const char* path : kImages)
        named.insert(QString::fromLatin1(path));
    QSet<QString> present;
    for (const QString& dir : {QStringLiteral(":/icon"), QStringLiteral(":/image")})
        for (const QString& file : QDir(dir).entryList(QDir::Files))
            present.insert(dir + QLatin1Char('/') + file);
    QCOMPARE(present, named);
}

void TestPictures::menuButtonIconsAre48Square()
{
    for (const char* path : kMenuIcons)
        QCOMPARE(QPixmap(QString::fromLatin1(path)).size(), QSize(48, 48));
}

void TestPictures::keyboardIconsFitTheirKeys()
{
    for (const char* key : {"capslock", "left", "right", "backspace"})
        QCOMPARE(QPixmap(QStringLiteral(":/icon/%1.png").arg(QLatin1String(key))).size(),
                 QSize(32, 16));
    QCOMPARE(QPixmap(QStringLiteral(":/icon/enter.png")).size(), QSize(32, 32));
}

void TestPictures::statusBarBatteriesLieAndMeasuringScreenBatteriesStand()
{
    for (const char* level : kChargeLevels) {
        const QSize lying = QPixmap(QStringLiteral(":/icon/battery-%1.png")
                                        .arg(QLatin1String(level)))
                                .size();
        const QSize standing = QPixmap(QStringLiteral(":/icon/vbattery-%1.png")
                                           .arg(QLatin1String(level)))
                                   .size();
        QVERIFY2(lying.width() > lying.height() && lying.height() <= 32, level);
        QVERIFY2(standing.height() > standing.width() && standing.height() <= 64, level);
    }
    const QSize adapter = QPixmap(QStringLiteral(":/icon/ac-adapter.png")).size();
    QCOMPARE(adapter, QPixmap(QStringLiteral(":/icon/battery-full.png")).size());
    const QSize upright = QPixmap(QStringLiteral(":/icon/vac-adapter.png")).size();
    QCOMPARE(upright, QPixmap(QStringLiteral(":/icon/vbattery-full.png")).size());
}

void TestPictures::flagPathWithoutSlashResolvesToTheSamePicture()
{
    for (const char* written : kFlagsAsWritten) {
        const QString path = QString::fromLatin1(written);
        const QString canonical = QStringLiteral(":/") + path.mid(1);
        QVERIFY2(QFile::exists(path), written);
        const QImage viaWritten = QPixmap(path).toImage();
        QVERIFY2(!viaWritten.isNull(), written);
        QCOMPARE(viaWritten, QPixmap(canonical).toImage());
        // the combo box takes them as icons
        const QIcon icon(path);
        QVERIFY2(!icon.isNull(), written);
        QVERIFY2(!icon.pixmap(QSize(36, 24)).isNull(), written);
    }
}

void TestPictures::splashFillsTheScreen()
{
    const QImage splash = QPixmap(QStringLiteral(":/image/splash.png")).toImage();
    QCOMPARE(splash.size(), QSize(1024, 600));
    // opaque: nothing of the desktop shows through at start-up
    QCOMPARE(qAlpha(splash.pixel(0, 0)), 255);
    QCOMPARE(qAlpha(splash.pixel(1023, 599)), 255);
}

void TestPictures::wiringDiagramsFitUnderTitleAndButton()
{
    for (const char* name : {"schema_pannello", "schema_stringhe"}) {
        const QSize size = QPixmap(QStringLiteral(":/image/%1.png").arg(QLatin1String(name))).size();
        // 1024 x 600 less the window title and the "Continue" button
        QVERIFY2(size.width() >= 800 && size.width() <= 960, name);
        QVERIFY2(size.height() >= 360 && size.height() <= 460, name);
    }
}

void TestPictures::lowBatteryWarningIsLarge()
{
    const QSize size = QPixmap(QStringLiteral(":/icon/alert-big.png")).size();
    QVERIFY(size.width() >= 96 && size.height() >= 96);
}

QTEST_MAIN(TestPictures)
#include "tst_pictures.moc"
