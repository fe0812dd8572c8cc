#include "support/lookcheck.h"
#include "support/screenshot.h"
#include "toolkit/plotter.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QPaintEvent>
#include <QPushButton>
#include <QToolButton>
#include <QTranslator>
#include <QVBoxLayout>
#include <QtTest>
#include <cmath>
#include <limits>

namespace
{

const QColor red(Qt::red);
const QColor green(Qt::green);
const QColor yellow(Qt::yellow);
const QColor magenta(Qt::magenta);
const QColor blue(Qt::blue);
const QColor cyan(Qt::cyan);

// A plot as the screens hold it, with the panel that "FS" hides, shown on
// the offscreen screen.
struct Shown {
    QWidget panel;
    Plotter plot;
    explicit Shown(int w = 1024, int h = 540) : plot(nullptr, "Panel IV", &panel)
    {
        plot.resize(w, h);
        plot.show();
        QVERIFY(QTest::qWaitForWindowExposed(&plot));
    }
    int right() const { return plot.width() - 26; }
    int bottom() const { return plot.height() - 26; }
    QImage image() const { return plot.picture().toImage(); }
};

// Colours as a picture holds them: eight bits a channel.
QColor shade(const QColor& c)
{
    return QColor::fromRgb(c.rgb());
}

QColor role(const QWidget& w, QPalette::ColorRole r)
{
    return shade(w.palette().color(r));
}

QColor at(const QImage& image, int x, int y)
{
    return QColor::fromRgb(image.pixel(x, y));
}

// The colour is found at the point or at one of its eight neighbours.
bool near(const QImage& image, int x, int y, const QColor& color)
{
    for (int dy = -1; dy <= 1; ++dy)
        for (int dx = -1; dx <= 1; ++dx) {
            const QPoint p(x + dx, y + dy);
            if (image.rect().contains(p) && image.pixel(p) == color.rgb())
                return true;
        }
    return false;
}

int count(const QImage& image, const QRect& area, const QColor& color)
{
    int n = 0;
    const QRect r = area.intersected(image.rect());
    for (int y = r.top(); y <= r.bottom(); ++y)
        for (int x = r.left(); x <= r.right(); ++x)
            if (image.pixel(x, y) == color.rgb())
                ++n;
    return n;
}

QVector<QPointF> line(QPointF a, QPointF b)
{
    return {a, b};
}

QToolButton* button(const Plotter& plot, const QString& text)
{
    for (QToolButton* b : plot.findChildren<QToolButton*>())
        if (b->text() == text)
            return b;
    return nullptr;
}

void drag(QWidget* w, QPoint from, QPoint to)
{
    QTest::mousePress(w, Qt::LeftButton, Qt::NoModifier, from);
    QTest::mouseMove(w, (from + to) / 2);
    QTest::mouseMove(w, to);
    QTest::mouseRelease(w, Qt::LeftButton, Qt::NoModifier, to);
}

void wheel(QWidget* w, QPoint angle)
{
    const QPointF pos(w->width() / 2, w->height() / 2);
    QWheelEvent event(pos, w->mapToGlobal(pos), QPoint(), angle, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(w, &event);
}

bool sameAxes(const PlotSettings& a, const PlotSettings& b)
{
    return a.minX == b.minX && a.maxX == b.maxX && a.numXTicks == b.numXTicks && a.minY == b.minY &&
           a.maxY == b.maxY && a.numYTicks == b.numYTicks;
}

// Remembers which texts the plot asks the catalogue for, under its context.
class RecordingTranslator : public QTranslator
{
public:
    mutable QStringList asked;
    QString translate(const char* context, const char* sourceText, const char*, int) const override
    {
        if (qstrcmp(context, "Plotter") == 0)
            asked << QString::fromUtf8(sourceText);
        return QString();
    }
    bool isEmpty() const override { return false; }
};

// Receives what the plot passes on.
class KeySink : public QWidget
{
public:
    QList<int> keys;

protected:
    void keyPressEvent(QKeyEvent* e) override { keys << e->key(); }
};

// Remembers the regions the plot is asked to paint.
class PaintSpy : public QObject
{
public:
    QRegion painted;

protected:
    bool eventFilter(QObject*, QEvent* e) override
    {
        if (e->type() == QEvent::Paint)
            painted += static_cast<QPaintEvent*>(e)->region();
        return false;
    }
};

// A module of about 250 W: open circuit at index 0, short circuit at 511.
QVector<QPointF> moduleCurve(double isc, double voc)
{
    const double a = 1.9;
    const double i0 = isc / (std::exp(voc / a) - 1.0);
    QVector<QPointF> points;
    for (int k = 0; k < 512; ++k) {
        const double v = voc * (511 - k) / 511.0;
        points.append(QPointF(v, isc - i0 * (std::exp(v / a) - 1.0)));
    }
    return points;
}

// The power curve as the screens scale it: its top at 9.5 on the current axis.
QVector<QPointF> powerCurve(const QVector<QPointF>& iv, double* pmax)
{
    double top = 0.0;
    for (const QPointF& p : iv)
        top = std::max(top, p.x() * p.y());
    QVector<QPointF> points;
    for (const QPointF& p : iv)
        points.append(QPointF(p.x(), p.y() * 9.5 * p.x() / top));
    *pmax = top;
    return points;
}

} // namespace

class TestPlotter : public QObject
{
    Q_OBJECT

public:
    static void initMain() { useInstrumentScreen(); }

private slots:
    void initTestCase()
    {
        useInstrumentDpi();
        setInstrumentLook();
    }

    // ---- construction
    void constructionGivesDefaultAxesAndNoVerdict()
    {
        Shown s;
        QCOMPARE(s.plot.zoomLevels().size(), 1);
        QCOMPARE(s.plot.currentZoom(), 0);
        QVERIFY(sameAxes(s.plot.settings(), PlotSettings()));
        QCOMPARE(s.plot.settings().minX, 0.0);
        QCOMPARE(s.plot.settings().maxX, 50.0);
        QCOMPARE(s.plot.settings().minY, 0.0);
        QCOMPARE(s.plot.settings().maxY, 10.0);
        QCOMPARE(s.plot.settings().numXTicks, 5);
        QCOMPARE(s.plot.settings().numYTicks, 5);
        QCOMPARE(s.plot.testResult, 4);
        QCOMPARE(s.plot.pmaxLabel, 0.0f);
        QVERIFY(!s.plot.isViewPassTest());
        QVERIFY(!s.plot.isRubberBandShown());
        QCOMPARE(s.plot.title(), QString("Panel IV"));
        QVERIFY(s.plot.curves().isEmpty());
        QCOMPARE(s.plot.focusPolicy(), Qt::StrongFocus);
        QCOMPARE(s.plot.backgroundRole(), QPalette::Dark);
        QVERIFY(s.plot.autoFillBackground());
        QCOMPARE(s.plot.sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
        QCOMPARE(s.plot.sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    }
    void theThreeButtonsAreHiddenAfterConstruction()
    {
        Shown s;
        for (const char* text : {"In", "Out", "FS"}) {
            QToolButton* b = button(s.plot, text);
            QVERIFY2(b, text);
            QVERIFY2(b->isHidden(), text);
        }
        QVERIFY(button(s.plot, "FS")->isCheckable());
    }
    void sizeHintsAre300By200And150By100()
    {
        Shown s;
        QCOMPARE(s.plot.sizeHint(), QSize(300, 200));
        QCOMPARE(s.plot.minimumSizeHint(), QSize(150, 100));
    }
    void fullScreenButtonHidesThePanelBesideThePlot()
    {
        QWidget screen;
        QWidget* panel = new QWidget(&screen);
        Plotter* plot = new Plotter(&screen, "Panel IV", panel);
        QVBoxLayout* box = new QVBoxLayout(&screen);
        box->addWidget(plot);
        box->addWidget(panel);
        screen.resize(1024, 600);
        screen.show();
        QVERIFY(QTest::qWaitForWindowExposed(&screen));
        plot->setCurveData(0, line({0, 0}, {50, 10}));
        QToolButton* fs = button(*plot, "FS");
        QVERIFY(fs->isVisible());
        QVERIFY(panel->isVisible());
        QTest::mouseClick(fs, Qt::LeftButton);
        QVERIFY(fs->isChecked());
        QVERIFY(panel->isHidden());
        QTest::mouseClick(fs, Qt::LeftButton);
        QVERIFY(!panel->isHidden());
    }
    void fullScreenButtonComesWithTheFirstCurveAndGoesWithClearPlotter()
    {
        Shown s;
        QToolButton* fs = button(s.plot, "FS");
        s.plot.setAxisX(0, 40);
        QVERIFY(fs->isHidden());
        s.plot.setCurveData(7, line({0, 0}, {40, 10}));
        QVERIFY(!fs->isHidden());
        QVERIFY(fs->isEnabled());
        s.plot.setAxisY(0, 5);
        QVERIFY(!fs->isHidden());
        s.plot.clearPlotter();
        QVERIFY(fs->isHidden());
        // setPlotSettings hides it, but its repaint draws the curves that
        // are still there, and a drawn curve brings the button back
        s.plot.setCurveData(0, line({0, 0}, {40, 10}));
        s.plot.setPlotSettings(PlotSettings());
        QVERIFY(!fs->isHidden());
    }
    // The old instrument put "FS" at a fixed height of 35, which the
    // instrument's font makes overlap "Out": it stands 5 pixels under it.
    void resizePlacesTheButtonsAtTheTopRight_operatorSeesWhereTheyAre()
    {
        Shown s(800, 400);
        QToolButton* in = button(s.plot, "In");
        QToolButton* out = button(s.plot, "Out");
        QToolButton* fs = button(s.plot, "FS");
        const int x = 800 - in->width() - out->width() - 10;
        QCOMPARE(in->pos(), QPoint(x, 5));
        QCOMPARE(out->pos(), QPoint(x + in->width() + 5, 5));
        QCOMPARE(fs->pos(), QPoint(x + in->width() + 5, 5 + out->height() + 5));
        s.plot.resize(600, 300);
        const int x2 = 600 - in->width() - out->width() - 10;
        QCOMPARE(in->pos(), QPoint(x2, 5));
        QCOMPARE(s.plot.picture().size(), QSize(600, 300));
    }

    // ---- PlotSettings
    void plotSettingsSetAxisReplacesOnlyTheLimits()
    {
        PlotSettings p;
        p.numXTicks = 7;
        p.setAxisX(-3.0, 12.5);
        p.setAxisY(1.0, 2.0);
        QCOMPARE(p.minX, -3.0);
        QCOMPARE(p.maxX, 12.5);
        QCOMPARE(p.numXTicks, 7);
        QCOMPARE(p.minY, 1.0);
        QCOMPARE(p.maxY, 2.0);
        QCOMPARE(p.numYTicks, 5);
        QCOMPARE(p.spanX(), 15.5);
        QCOMPARE(p.spanY(), 1.0);
    }
    void scrollMovesBothLimitsByWholeTickIntervals()
    {
        PlotSettings p; // 0..50 in 5, 0..10 in 5
        p.scroll(2, -1);
        QCOMPARE(p.minX, 20.0);
        QCOMPARE(p.maxX, 70.0);
        QCOMPARE(p.minY, -2.0);
        QCOMPARE(p.maxY, 8.0);
        QCOMPARE(p.numXTicks, 5);
        QCOMPARE(p.numYTicks, 5);
    }
    void adjustAxisRoundsToTidyLimits()
    {
        // step 1, neither 5 nor 2 is below the gross step of 1.885
        double min = 1.23, max = 8.77;
        int ticks = 5;
        PlotSettings::adjustAxis(min, max, ticks);
        QCOMPARE(min, 1.0);
        QCOMPARE(max, 9.0);
        QCOMPARE(ticks, 8);
        // gross step 9.25: step 5
        min = 0.0, max = 37.0;
        PlotSettings::adjustAxis(min, max, ticks);
        QCOMPARE(min, 0.0);
        QCOMPARE(max, 40.0);
        QCOMPARE(ticks, 8);
        // gross step 0.225: step 0.2
        min = 0.0, max = 0.9;
        PlotSettings::adjustAxis(min, max, ticks);
        QCOMPARE(min, 0.0);
        QCOMPARE(max, 1.0);
        QCOMPARE(ticks, 5);
        // the fewest: four intervals
        min = 0.0, max = 4.0;
        PlotSettings::adjustAxis(min, max, ticks);
        QCOMPARE(min, 0.0);
        QCOMPARE(max, 4.0);
        QCOMPARE(ticks, 4);
    }
    void adjustAppliesToBothAxes()
    {
        PlotSettings p;
        p.setAxisX(1.23, 8.77);
        p.setAxisY(0.0, 0.9);
        p.adjust();
        QCOMPARE(p.minX, 1.0);
        QCOMPARE(p.maxX, 9.0);
        QCOMPARE(p.numXTicks, 8);
        QCOMPARE(p.maxY, 1.0);
        QCOMPARE(p.numYTicks, 5);
    }
    void adjustAxisLeavesAnAxisWithoutTidyStepAsItIs()
    {
        const double nan = std::numeric_limits<double>::quiet_NaN();
        const double inf = std::numeric_limits<double>::infinity();
        const double cases[][2] = {
            {5.0, 5.0},      {8.0, 2.0},
            {nan, 3.0},      {0.0, nan},
            {0.0, inf},      {-inf, 0.0},
            {-1e308, 1e308}, {0.0, std::numeric_limits<double>::denorm_min()}};
        for (const auto& c : cases) {
            double min = c[0], max = c[1];
            int ticks = 7;
            PlotSettings::adjustAxis(min, max, ticks);
            QCOMPARE(ticks, 7);
            QVERIFY(min == c[0] || (std::isnan(min) && std::isnan(c[0])));
            QVERIFY(max == c[1] || (std::isnan(max) && std::isnan(c[1])));
        }
    }

    // ---- setters of the screens
    void setAxisKeepsTheGivenLimitsAndTheTickCount()
    {
        Shown s;
        PlotSettings p;
        p.numXTicks = 8;
        p.numYTicks = 3;
        s.plot.setPlotSettings(p);
        s.plot.setAxisX(0.0, 47.3);
        s.plot.setAxisY(0.0, 9.87);
        QCOMPARE(s.plot.settings().maxX, 47.3);
        QCOMPARE(s.plot.settings().maxY, 9.87);
        QCOMPARE(s.plot.settings().numXTicks, 8);
        QCOMPARE(s.plot.settings().numYTicks, 3);
    }
    void setAxisXDuringAZoomDropsTheFormerLevels()
    {
        Shown s;
        drag(&s.plot, {125, 75}, {425, 325});
        QCOMPARE(s.plot.zoomLevels().size(), 2);
        QCOMPARE(s.plot.currentZoom(), 1);
        const PlotSettings zoomed = s.plot.settings();
        s.plot.setAxisX(0.0, 30.0);
        QCOMPARE(s.plot.zoomLevels().size(), 1);
        QCOMPARE(s.plot.currentZoom(), 0);
        // the new level is the zoomed one with the new X axis
        QCOMPARE(s.plot.settings().minX, 0.0);
        QCOMPARE(s.plot.settings().maxX, 30.0);
        QCOMPARE(s.plot.settings().minY, zoomed.minY);
        QCOMPARE(s.plot.settings().numXTicks, zoomed.numXTicks);
        // the "Out" button stays visible but finds no level
        QToolButton* out = button(s.plot, "Out");
        QVERIFY(!out->isHidden());
        QTest::mouseClick(out, Qt::LeftButton);
        s.plot.zoomOut();
        QCOMPARE(s.plot.currentZoom(), 0);
        QCOMPARE(s.plot.settings().maxX, 30.0);
    }
    void setPlotSettingsReplacesTheStackAndHidesTheButtons()
    {
        Shown s;
        s.plot.setCurveData(0, line({0, 0}, {50, 10}));
        drag(&s.plot, {125, 75}, {425, 325});
        s.plot.zoomOut();
        QVERIFY(!button(s.plot, "In")->isHidden());
        QVERIFY(!button(s.plot, "Out")->isHidden());
        PlotSettings p;
        p.setAxisX(0, 400);
        s.plot.setPlotSettings(p);
        QCOMPARE(s.plot.zoomLevels().size(), 1);
        QCOMPARE(s.plot.currentZoom(), 0);
        QCOMPARE(s.plot.settings().maxX, 400.0);
        QVERIFY(button(s.plot, "In")->isHidden());
        QVERIFY(button(s.plot, "Out")->isHidden());
        // the curve is drawn again at once, and with it comes "FS"
        QCOMPARE(s.plot.curves().size(), 1);
        QVERIFY(!button(s.plot, "FS")->isHidden());
        s.plot.clearCurve(0);
        s.plot.setPlotSettings(p);
        QVERIFY(button(s.plot, "FS")->isHidden());
    }
    void clearPlotterEmptiesTheCurvesAndRestoresTheDefaultAxes()
    {
        Shown s;
        s.plot.setAxisX(0, 40);
        s.plot.setAxisY(0, 8);
        s.plot.setCurveData(0, line({0, 8}, {40, 0}));
        s.plot.setCurveData(1, line({0, 7}, {40, 0}));
        s.plot.clearPlotter();
        QVERIFY(s.plot.curves().isEmpty());
        QCOMPARE(s.plot.zoomLevels().size(), 1);
        QVERIFY(sameAxes(s.plot.settings(), PlotSettings()));
        QCOMPARE(count(s.image(), s.plot.rect(), red), 0);
        QCOMPARE(count(s.image(), s.plot.rect(), green), 0);
    }
    void setCurveDataStoresOrReplacesACurve()
    {
        Shown s;
        s.plot.setCurveData(0, line({0, 0}, {50, 10}));
        s.plot.setCurveData(0, line({0, 5}, {50, 5}));
        QCOMPARE(s.plot.curves().size(), 1);
        QCOMPARE(s.plot.curves().value(0), line({0, 5}, {50, 5}));
        // the picture holds only the new one: a horizontal line in the middle
        const QImage img = s.image();
        const int y = s.bottom() - (s.bottom() - 25) / 2;
        QVERIFY(near(img, 300, y, red));
        QVERIFY(!near(img, 100, s.bottom() - 40, red));
    }
    void clearCurveForAnAbsentIdRepaintsAndLeavesAllElseUnchanged()
    {
        Shown s;
        s.plot.setCurveData(0, line({0, 0}, {50, 10}));
        const QImage before = s.image();
        const qint64 key = s.plot.picture().cacheKey();
        s.plot.clearCurve(3);
        QVERIFY(s.plot.picture().cacheKey() != key); // drawn again
        QCOMPARE(s.image(), before);
        QCOMPARE(s.plot.curves().size(), 1);
        QVERIFY(sameAxes(s.plot.settings(), PlotSettings()));
        s.plot.clearCurve(0);
        QVERIFY(s.plot.curves().isEmpty());
        QCOMPARE(count(s.image(), s.plot.rect(), red), 0);
    }
    void setTitleAndSetViewPassTestStoreTheValueAndRepaint()
    {
        Shown s;
        qint64 key = s.plot.picture().cacheKey();
        s.plot.setTitle("Panel IV / ABC 250");
        QCOMPARE(s.plot.title(), QString("Panel IV / ABC 250"));
        QVERIFY(s.plot.picture().cacheKey() != key);
        key = s.plot.picture().cacheKey();
        s.plot.setViewPassTest(true);
        QVERIFY(s.plot.isViewPassTest());
        QVERIFY(s.plot.picture().cacheKey() != key);
    }

    // ---- the picture
    void paintEventOnlyCopiesThePicture()
    {
        Shown s;
        s.plot.setTitle("Panel IV / ABC 250");
        s.plot.setCurveData(0, moduleCurve(8.5, 37.5));
        s.plot.testResult = 1;
        s.plot.setViewPassTest(true);
        s.plot.clearFocus();
        const qint64 key = s.plot.picture().cacheKey();
        QImage shown = s.plot.grab().toImage().convertToFormat(QImage::Format_RGB32);
        QCOMPARE(s.plot.picture().cacheKey(), key);
        // the visible button is a child drawn over it; compare below it
        const int top = button(s.plot, "FS")->geometry().bottom() + 1;
        const QRect area(0, top, s.plot.width(), s.plot.height() - top);
        QCOMPARE(shown.copy(area), s.image().convertToFormat(QImage::Format_RGB32).copy(area));
    }
    void aPlotNarrowerOrLowerThanTheMarginsDrawsNoGridAndNoCurve()
    {
        for (QSize size : {QSize(50, 300), QSize(300, 50)}) {
            Shown s(size.width(), size.height());
            s.plot.setTitle(QString()); // its soft edges could pass for a grid shade
            s.plot.setCurveData(0, line({0, 0}, {50, 10}));
            const QImage img = s.image();
            const QColor grid = shade(s.plot.palette().color(QPalette::Dark).lighter(150));
            QCOMPARE(count(img, img.rect(), red), 0);
            QCOMPARE(count(img, img.rect(), grid), 0);
        }
    }
    void aPlotLowerThanTheMarginsIsOnlyFilled()
    {
        Shown s(300, 50);
        s.plot.setTitle("Panel IV");
        s.plot.setCurveData(0, line({0, 0}, {50, 10}));
        s.plot.testResult = 0;
        s.plot.setViewPassTest(true);
        const QImage img = s.image();
        const QColor background = role(s.plot, QPalette::Dark);
        QCOMPARE(count(img, img.rect(), background), img.width() * img.height());
    }
    void aPlotNarrowerThanTheMarginsStillShowsItsTitleAndVerdict()
    {
        // the title gives up only below a width of 3: kept as the plot has
        // always done it
        Shown s(50, 300);
        const QImage empty = s.image();
        const QColor background = role(s.plot, QPalette::Dark);
        s.plot.setTitle(QString());
        QCOMPARE(count(s.image(), empty.rect(), background), 50 * 300);
        s.plot.setTitle("Panel IV");
        QVERIFY(count(s.image(), empty.rect(), background) < 50 * 300);
        s.plot.setTitle(QString());
        s.plot.testResult = 1;
        s.plot.setViewPassTest(true);
        QVERIFY(count(s.image(), empty.rect(), green) > 0);
        // one pixel wider and the grid is there
        Shown wider(51, 300);
        const QColor tick = role(wider.plot, QPalette::Light);
        QCOMPARE(at(wider.image(), 25, 100), tick);
    }
    void aPointAtTheCornerOfTheAxesLandsOnTheCornerWithinOnePixel()
    {
        Shown s;
        s.plot.setAxisX(0.0, 40.0);
        s.plot.setAxisY(0.0, 8.0);
        // two right angles whose corners are the corners of the axes
        s.plot.setCurveData(0, {{0.0, 8.0}, {40.0, 8.0}, {40.0, 0.0}});
        s.plot.setCurveData(6, {{0.0, 8.0}, {0.0, 0.0}, {40.0, 0.0}});
        const QImage img = s.image();
        // the corners lie on the frame, just outside the clip of the curves
        QVERIFY(near(img, s.right(), 25, red));
        QVERIFY(near(img, 25, s.bottom(), red));
        // and nothing red stands more than a pixel inside them
        QVERIFY(at(img, s.right() - 2, 100) != red);
        QVERIFY(at(img, 100, 25 + 2) != red);
        QVERIFY(at(img, 25 + 2, 100) != red);
        QVERIFY(at(img, 100, s.bottom() - 2) != red);
    }
    void gridLinesStandAtIntegerQuotientsOfThePlot()
    {
        Shown s(1000, 540); // right 974: 949 pixels in five intervals
        const QImage img = s.image();
        const QColor grid = shade(s.plot.palette().color(QPalette::Dark).lighter(150));
        const QColor tick = role(s.plot, QPalette::Light);
        const QColor background = role(s.plot, QPalette::Dark);
        QCOMPARE(at(img, 25 + 949 / 5, 200), grid); // 214, not 215
        QCOMPARE(at(img, 25 + 949 / 5 + 1, 200), background);
        QCOMPARE(at(img, 25 + 2 * 949 / 5, 200), grid); // 404
        QCOMPARE(at(img, 25 + 949 / 5, s.bottom() + 3), tick);
        const int y = s.bottom() - 489 / 5; // 417
        QCOMPARE(at(img, 500, y), grid);
        QCOMPARE(at(img, 500, y - 1), background);
        QCOMPARE(at(img, 22, y), tick);
        // the frame in the tick pen, over the first and last grid lines
        QCOMPARE(at(img, 25, 200), tick);
        QCOMPARE(at(img, s.right(), 200), tick);
        QCOMPARE(at(img, 500, 25), tick);
        QCOMPARE(at(img, 500, s.bottom()), tick);
    }
    void tickValueWithAFractionPrintsOneDecimal()
    {
        QCOMPARE(Plotter::tickLabel(2.5), QString("2.5"));
        QCOMPARE(Plotter::tickLabel(1.26), QString("1.3"));
        QCOMPARE(Plotter::tickLabel(-0.04), QString("-0.0"));
        QCOMPARE(Plotter::tickLabel(1234567.21), QString("1234567.2"));
    }
    void wholeTickValuePrintsUpToSixDigitsInGForm()
    {
        QCOMPARE(Plotter::tickLabel(0.0), QString("0"));
        QCOMPARE(Plotter::tickLabel(40.0), QString("40"));
        QCOMPARE(Plotter::tickLabel(-5.0), QString("-5"));
        QCOMPARE(Plotter::tickLabel(123456.0), QString("123456"));
        QCOMPARE(Plotter::tickLabel(1234567.0), QString("1.23457e+06"));
    }
    void titleIsDrawnInTheTickPenRightOfTheMiddle()
    {
        Shown s;
        const QString title = "Panel IV / ABC 250";
        s.plot.setTitle(title);
        const QImage img = s.image();
        const QColor tick = role(s.plot, QPalette::Light);
        const int tw = s.plot.fontMetrics().horizontalAdvance(title);
        const int left = (s.plot.width() - 2 - tw) / 2 + 25;
        // above the plot, right of the "I": only the title
        const QRect strip(40, 0, s.plot.width() - 40, 24);
        QVERIFY(count(img, strip, tick) > 0);
        QCOMPARE(count(img, QRect(40, 0, left - 40, 24), tick), 0);
        QCOMPARE(count(img, QRect(left + tw, 0, s.plot.width(), 24), tick), 0);
        // an empty title draws nothing there
        s.plot.setTitle(QString());
        QCOMPARE(count(s.image(), strip, tick), 0);
    }

    // ---- curves
    void curveColoursFollowTheirIds()
    {
        Shown s;
        const QColor expected[] = {red, green, yellow, magenta, blue, cyan, red};
        for (int id = 0; id <= 6; ++id) {
            const double v = 1.0 + id;
            s.plot.setCurveData(id, line({0, v}, {20, v}));
        }
        const QImage img = s.image();
        for (int id = 0; id <= 6; ++id) {
            const int y = s.bottom() - (s.bottom() - 25) * (1 + id) / 10;
            QVERIFY2(near(img, 200, y, expected[id]), qPrintable(QString::number(id)));
        }
    }
    void aNegativeIdWrapsTheColourTable()
    {
        Shown s;
        s.plot.setCurveData(-1, line({0, 5}, {20, 5}));
        s.plot.setCurveData(-6, line({0, 2}, {20, 2}));
        const QImage img = s.image();
        QVERIFY(near(img, 200, s.bottom() - (s.bottom() - 25) / 2, cyan));
        QVERIFY(near(img, 200, s.bottom() - (s.bottom() - 25) / 5, red));
    }
    void curvesAreDrawnInAscendingIdOrder()
    {
        Shown s;
        s.plot.setCurveData(9, line({0, 5}, {50, 5})); // magenta
        s.plot.setCurveData(1, line({0, 5}, {50, 5})); // green, under it
        const int y = s.bottom() - (s.bottom() - 25) / 2;
        const QImage img = s.image();
        QVERIFY(near(img, 300, y, magenta));
        QVERIFY(!near(img, 300, y, green));
    }
    void curveLabelsStackUnderThePowerLabel()
    {
        Shown s;
        const QFontMetrics fm = s.plot.fontMetrics();
        const int vmid = (s.bottom() - 24) >> 1;
        const int h = fm.height() + 2;
        // curves kept in the lower left, away from the labels
        s.plot.setCurveData(0, line({0, 0.5}, {5, 0.5}));
        s.plot.setCurveData(1, line({0, 1.0}, {5, 1.0}));
        s.plot.pmaxLabel = 245.5f;
        s.plot.setCurveData(2, line({0, 1.5}, {5, 1.5}));
        QImage img = s.image();
        auto band = [&](int baseline, const QString& text) {
            const int w = fm.horizontalAdvance(text);
            return QRect(s.right() - 24 - w, baseline - fm.ascent(), w, fm.ascent());
        };
        QVERIFY(count(img, band(vmid, "Pmax = 245.50W"), yellow) > 0);
        QVERIFY(count(img, band(vmid + h, "OPC"), red) > 0);
        QVERIFY(count(img, band(vmid + 2 * h, "STC"), green) > 0);
        QCOMPARE(count(img, band(vmid + h, "STC"), green), 0);
        // with curve 1 alone its label stands one line higher
        s.plot.clearCurve(0);
        img = s.image();
        QVERIFY(count(img, band(vmid + h, "STC"), green) > 0);
        QCOMPARE(count(img, band(vmid + 2 * h, "STC"), green), 0);
        QCOMPARE(count(img, QRect(s.right() - 200, vmid, 200, 3 * h), red), 0);
    }
    void pmaxLabelZeroWithThePowerCurveDrawsTheCurveAndNoText()
    {
        Shown s;
        const int vmid = (s.bottom() - 24) >> 1;
        const QRect labels(s.right() - 400, vmid - 60, 400, 60);
        s.plot.setCurveData(2, line({0, 1}, {5, 1}));
        QImage img = s.image();
        QVERIFY(near(img, 60, s.bottom() - (s.bottom() - 25) / 10, yellow));
        QCOMPARE(count(img, labels, yellow), 0);
        s.plot.pmaxLabel = 123.45f;
        s.plot.refreshPixmap();
        QVERIFY(count(s.image(), labels, yellow) > 0);
    }
    void curves3To5DrawPlaceholderLabels()
    {
        Shown s;
        const int vmid = (s.bottom() - 24) >> 1;
        const QFontMetrics fm = s.plot.fontMetrics();
        s.plot.setCurveData(3, line({0, 1}, {5, 1}));
        s.plot.setCurveData(4, line({0, 2}, {5, 2}));
        s.plot.setCurveData(5, line({0, 3}, {5, 3}));
        const QImage img = s.image();
        auto at54 = [&](int baseline) {
            return QRect(s.right() - 54, baseline - fm.ascent(), 53, fm.ascent());
        };
        QVERIFY(count(img, at54(vmid), magenta) > 0);
        QVERIFY(count(img, at54(vmid - 15), blue) > 0);
        QVERIFY(count(img, at54(vmid - 30), cyan) > 0);
        // nothing is drawn left of x = right - 54 near them
        QCOMPARE(count(img, QRect(s.right() - 300, vmid - 80, 245, 90), magenta), 0);
    }
    void anyOtherIdDrawsNoLabel()
    {
        Shown s;
        s.plot.setCurveData(7, line({0, 1}, {5, 1})); // green like curve 1
        const int vmid = (s.bottom() - 24) >> 1;
        const QImage img = s.image();
        QVERIFY(near(img, 60, s.bottom() - (s.bottom() - 25) / 10, green));
        QCOMPARE(count(img, QRect(s.right() - 300, vmid - 100, 300, 250), green), 0);
    }
    void curveLabelsAreClippedWithTheCurves()
    {
        Shown s(120, 300);
        s.plot.pmaxLabel = 1234.56f;
        s.plot.setCurveData(2, QVector<QPointF>());
        const QImage img = s.image();
        const int vmid = (s.bottom() - 24) >> 1;
        QVERIFY(count(img, QRect(26, vmid - 40, s.right() - 26, 45), yellow) > 0);
        QCOMPARE(count(img, QRect(0, 0, 26, img.height()), yellow), 0);
        QCOMPARE(count(img, QRect(s.right(), 0, img.width(), img.height()), yellow), 0);
    }
    void aNaNPointBreaksTheCurve()
    {
        Shown s;
        const double nan = std::numeric_limits<double>::quiet_NaN();
        const double inf = std::numeric_limits<double>::infinity();
        s.plot.setCurveData(
            0,
            {{0, 5}, {10, 5}, {nan, 5}, {30, 5}, {40, 5}, {inf, 5}, {45, nan}, {48, 5}, {50, 5}});
        const QImage img = s.image();
        const int y = s.bottom() - (s.bottom() - 25) / 2;
        auto px = [&](double v) { return 25 + static_cast<int>((s.right() - 25) * v / 50.0); };
        QVERIFY(near(img, px(5), y, red));
        QVERIFY(!near(img, px(20), y, red));
        QVERIFY(near(img, px(35), y, red));
        QVERIFY(!near(img, px(44), y, red));
        QVERIFY(near(img, px(49), y, red));
    }
    void anAxisWithoutSpanDrawsNoLine()
    {
        Shown s;
        s.plot.setAxisX(5.0, 5.0);
        s.plot.setCurveData(0, line({0, 0}, {50, 10}));
        const QImage img = s.image();
        const int vmid = (s.bottom() - 24) >> 1;
        // only the "OPC" label is red
        QCOMPARE(count(img, QRect(0, 0, img.width(), vmid), red), 0);
        QVERIFY(count(img, QRect(0, vmid, img.width(), 80), red) > 0);
    }
    void aPointFarBeyondTheAxesStillDrawsTheVisiblePartOfItsLine()
    {
        Shown s;
        s.plot.setAxisX(0.0, 50.0);
        s.plot.setAxisY(0.0, 10.0);
        // the line from the origin to (5e12 V, 1e12 A) is the diagonal of the plot
        s.plot.setCurveData(0, line({0.0, 0.0}, {5e12, 1e12}));
        const QImage img = s.image();
        QVERIFY(near(img, (25 + s.right()) / 2, (25 + s.bottom()) / 2, red));
        QVERIFY(near(img, 25 + (s.right() - 25) / 4, s.bottom() - (s.bottom() - 25) / 4, red));
    }

    // ---- verdict overlay
    void verdictOverlayReadsOkFor1And3AndNoForAnyOther()
    {
        Shown s;
        RecordingTranslator catalogue;
        QVERIFY(QCoreApplication::installTranslator(&catalogue));
        auto textsFor = [&](int result) {
            catalogue.asked.clear();
            s.plot.testResult = result;
            s.plot.setViewPassTest(true);
            QStringList asked = catalogue.asked;
            asked.removeAll("OPC");
            asked.removeAll("STC");
            return asked;
        };
        QCOMPARE(textsFor(1), QStringList({"Ok", "Misure"}));
        const QImage ok = s.image();
        QCOMPARE(textsFor(3), QStringList({"Ok", "Misure"}));
        QCOMPARE(s.image(), ok);
        QCOMPARE(textsFor(0), QStringList({"No", "Misure"}));
        const QImage no = s.image();
        QVERIFY(no != ok);
        for (int result : {2, 5, -1, 100}) {
            QCOMPARE(textsFor(result), QStringList({"No", "Misure"}));
            QCOMPARE(s.image(), no);
        }
        QCoreApplication::removeTranslator(&catalogue);
    }
    void theOverlayIsGreenForNoToo()
    {
        Shown s;
        s.plot.testResult = 0;
        s.plot.setViewPassTest(true);
        const QImage img = s.image();
        const QRect box(QPoint(28, s.bottom() - 28), QPoint(400, s.bottom() + 17));
        QVERIFY(count(img, box, green) > 100);
        QCOMPARE(count(img, QRect(0, 0, img.width(), s.bottom() - 40), green), 0);
        s.plot.testResult = 1;
        s.plot.refreshPixmap();
        QVERIFY(count(s.image(), box, green) > 100);
    }
    void result4ShowsNoOverlayEvenWithViewPassTest()
    {
        Shown s;
        s.plot.setCurveData(0, moduleCurve(8.5, 37.5));
        const QImage without = s.image();
        s.plot.testResult = 4;
        s.plot.setViewPassTest(true);
        QCOMPARE(s.image(), without);
        s.plot.testResult = 1;
        s.plot.refreshPixmap();
        QVERIFY(s.image() != without);
    }
    void noOverlayWithoutViewPassTest()
    {
        Shown s;
        const QImage without = s.image();
        s.plot.testResult = 1;
        s.plot.setViewPassTest(false);
        QCOMPARE(s.image(), without);
        QCOMPARE(count(without, without.rect(), green), 0);
    }

    // ---- rubber band
    void rubberBandZoomsIntoTheMarkedRegion()
    {
        Shown s; // 1024 x 540: 974 by 490 pixels between the margins
        drag(&s.plot, {125, 75}, {425, 325});
        QCOMPARE(s.plot.zoomLevels().size(), 2);
        QCOMPARE(s.plot.currentZoom(), 1);
        // X 5.13 .. 20.53 tidied with step 2, Y 3.88 .. 8.98 with step 1
        const PlotSettings& z = s.plot.settings();
        QCOMPARE(z.minX, 4.0);
        QCOMPARE(z.maxX, 22.0);
        QCOMPARE(z.numXTicks, 9);
        QCOMPARE(z.minY, 3.0);
        QCOMPARE(z.maxY, 9.0);
        QCOMPARE(z.numYTicks, 6);
        QVERIFY(sameAxes(s.plot.zoomLevels().at(0), PlotSettings()));
        QToolButton* out = button(s.plot, "Out");
        QToolButton* in = button(s.plot, "In");
        QVERIFY(!out->isHidden());
        QVERIFY(out->isEnabled());
        QVERIFY(in->isHidden());
        QVERIFY(!in->isEnabled());
        QVERIFY(!s.plot.isRubberBandShown());
    }
    void rubberBandZoomAndZoomOutRestoreTheAxes()
    {
        Shown s;
        s.plot.setAxisX(0.0, 40.0);
        s.plot.setAxisY(0.0, 9.0);
        const PlotSettings before = s.plot.settings();
        s.plot.setCurveData(0, moduleCurve(8.5, 37.5));
        const QImage picture = s.image();
        drag(&s.plot, {600, 100}, {900, 300});
        QVERIFY(!sameAxes(s.plot.settings(), before));
        QTest::mouseClick(button(s.plot, "Out"), Qt::LeftButton);
        QCOMPARE(s.plot.currentZoom(), 0);
        QVERIFY(sameAxes(s.plot.settings(), before));
        QVERIFY(!button(s.plot, "Out")->isEnabled());
        QVERIFY(!button(s.plot, "In")->isHidden());
        QVERIFY(button(s.plot, "In")->isEnabled());
        // the picture is the one before the zoom, but for the buttons' place
        const QRect area(0, 90, s.plot.width(), s.plot.height() - 90);
        QCOMPARE(s.image().copy(area), picture.copy(area));
        QTest::mouseClick(button(s.plot, "In"), Qt::LeftButton);
        QCOMPARE(s.plot.currentZoom(), 1);
        QVERIFY(!button(s.plot, "In")->isEnabled());
    }
    void aBandOfLessThanFourPixelsZoomsNothingAndTheCursorComesBack()
    {
        Shown s;
        QTest::mousePress(&s.plot, Qt::LeftButton, Qt::NoModifier, {100, 100});
        QVERIFY(s.plot.isRubberBandShown());
        QCOMPARE(s.plot.cursor().shape(), Qt::CrossCursor);
        QTest::mouseMove(&s.plot, {102, 300});
        QTest::mouseRelease(&s.plot, Qt::LeftButton, Qt::NoModifier, {102, 300});
        QVERIFY(!s.plot.isRubberBandShown());
        QCOMPARE(s.plot.cursor().shape(), Qt::ArrowCursor);
        QCOMPARE(s.plot.zoomLevels().size(), 1);
        drag(&s.plot, {100, 100}, {300, 102});
        QCOMPARE(s.plot.zoomLevels().size(), 1);
        QCOMPARE(s.plot.cursor().shape(), Qt::ArrowCursor);
        // four pixels each way are enough
        drag(&s.plot, {100, 100}, {103, 103});
        QCOMPARE(s.plot.zoomLevels().size(), 2);
    }
    void aBandDraggedUpAndLeftZoomsLikeOneDraggedDownAndRight()
    {
        Shown s;
        drag(&s.plot, {425, 325}, {125, 75});
        QCOMPARE(s.plot.zoomLevels().size(), 2);
        QCOMPARE(s.plot.settings().minX, 4.0);
        QCOMPARE(s.plot.settings().maxX, 22.0);
        QCOMPARE(s.plot.settings().minY, 3.0);
        QCOMPARE(s.plot.settings().maxY, 9.0);
        // three pixels backwards is not a band either
        drag(&s.plot, {300, 300}, {298, 200});
        QCOMPARE(s.plot.zoomLevels().size(), 2);
    }
    void aPressOutsideThePlotStartsNoBandAndItsReleaseDoesNothing()
    {
        Shown s;
        const QPoint outside[] = {
            {24, 100}, {s.right() + 1, 100}, {100, 24}, {100, s.bottom() + 1}};
        for (QPoint p : outside) {
            QTest::mousePress(&s.plot, Qt::LeftButton, Qt::NoModifier, p);
            QVERIFY(!s.plot.isRubberBandShown());
            QCOMPARE(s.plot.cursor().shape(), Qt::ArrowCursor);
            QTest::mouseMove(&s.plot, {400, 300});
            QTest::mouseRelease(&s.plot, Qt::LeftButton, Qt::NoModifier, {400, 300});
            QCOMPARE(s.plot.zoomLevels().size(), 1);
        }
    }
    void aPressOnTheEdgesOfThePlotStartsABand()
    {
        Shown s;
        const QPoint edges[] = {{25, 25}, {s.right(), s.bottom()}};
        for (QPoint p : edges) {
            QTest::mousePress(&s.plot, Qt::LeftButton, Qt::NoModifier, p);
            QVERIFY(s.plot.isRubberBandShown());
            QTest::mouseRelease(&s.plot, Qt::LeftButton, Qt::NoModifier, p);
            QVERIFY(!s.plot.isRubberBandShown());
        }
    }
    void onlyTheLeftButtonDrawsABand()
    {
        Shown s;
        QTest::mousePress(&s.plot, Qt::RightButton, Qt::NoModifier, {100, 100});
        QVERIFY(!s.plot.isRubberBandShown());
        QTest::mouseRelease(&s.plot, Qt::RightButton, Qt::NoModifier, {400, 400});
        QTest::mousePress(&s.plot, Qt::LeftButton, Qt::NoModifier, {100, 100});
        QTest::mouseMove(&s.plot, {400, 400});
        QTest::mouseRelease(&s.plot, Qt::RightButton, Qt::NoModifier, {400, 400});
        QVERIFY(s.plot.isRubberBandShown()); // only the left button ends it
        QTest::mouseRelease(&s.plot, Qt::LeftButton, Qt::NoModifier, {400, 400});
        QVERIFY(!s.plot.isRubberBandShown());
        QCOMPARE(s.plot.zoomLevels().size(), 2);
    }
    void theBandIsDrawnOverThePictureWithoutRedrawingIt()
    {
        Shown s;
        s.plot.setCurveData(0, moduleCurve(8.5, 37.5));
        s.plot.clearFocus();
        const qint64 key = s.plot.picture().cacheKey();
        QTest::mousePress(&s.plot, Qt::LeftButton, Qt::NoModifier, {200, 100});
        QTest::mouseMove(&s.plot, {400, 300});
        QCOMPARE(s.plot.picture().cacheKey(), key);
        const QImage shown = s.plot.grab().toImage();
        const QColor light = role(s.plot, QPalette::Light);
        QCOMPARE(at(shown, 300, 100), light); // top edge
        QCOMPARE(at(shown, 200, 200), light); // left edge
        QCOMPARE(at(shown, 300, 300), light); // bottom edge
        QCOMPARE(at(shown, 400, 200), light); // right edge
        QVERIFY(at(s.image(), 300, 100) != light);
        QTest::mouseRelease(&s.plot, Qt::LeftButton, Qt::NoModifier, {400, 300});
    }
    void theBandRepaintsFourThinStripsNotItsArea()
    {
        Shown s;
        PaintSpy spy;
        QTest::mousePress(&s.plot, Qt::LeftButton, Qt::NoModifier, {200, 100});
        QCoreApplication::processEvents();
        s.plot.installEventFilter(&spy);
        QTest::mouseMove(&s.plot, {500, 400});
        QCoreApplication::processEvents();
        s.plot.removeEventFilter(&spy);
        QVERIFY(spy.painted.contains(QPoint(350, 100)));
        QVERIFY(spy.painted.contains(QPoint(200, 250)));
        QVERIFY(spy.painted.contains(QPoint(350, 400)));
        QVERIFY(spy.painted.contains(QPoint(500, 250)));
        QVERIFY(!spy.painted.contains(QPoint(350, 250)));
        QVERIFY(!spy.painted.contains(QPoint(350, 101)));
        QTest::mouseRelease(&s.plot, Qt::LeftButton, Qt::NoModifier, {500, 400});
    }
    void zoomingInFromALowerLevelDiscardsTheLevelsAboveIt()
    {
        Shown s;
        drag(&s.plot, {125, 75}, {425, 325});
        drag(&s.plot, {300, 200}, {700, 400});
        QCOMPARE(s.plot.zoomLevels().size(), 3);
        const PlotSettings second = s.plot.zoomLevels().at(2);
        s.plot.zoomOut();
        s.plot.zoomOut();
        QCOMPARE(s.plot.currentZoom(), 0);
        drag(&s.plot, {600, 100}, {900, 300});
        QCOMPARE(s.plot.zoomLevels().size(), 2);
        QCOMPARE(s.plot.currentZoom(), 1);
        QVERIFY(!sameAxes(s.plot.settings(), second));
        s.plot.zoomIn(); // no level above
        QCOMPARE(s.plot.currentZoom(), 1);
    }
    void zoomButtonsFollowTheStack()
    {
        Shown s;
        s.plot.zoomIn();
        s.plot.zoomOut();
        QCOMPARE(s.plot.currentZoom(), 0);
        QVERIFY(button(s.plot, "In")->isHidden());
        QVERIFY(button(s.plot, "Out")->isHidden());
        drag(&s.plot, {125, 75}, {425, 325});
        drag(&s.plot, {300, 200}, {700, 400});
        QToolButton* in = button(s.plot, "In");
        QToolButton* out = button(s.plot, "Out");
        s.plot.zoomOut();
        QVERIFY(in->isEnabled());
        QVERIFY(out->isEnabled()); // level 0 is still below
        s.plot.zoomOut();
        QVERIFY(!out->isEnabled());
        s.plot.zoomIn();
        QVERIFY(in->isEnabled()); // level 2 is still above
        QVERIFY(out->isEnabled());
        s.plot.zoomIn();
        QVERIFY(!in->isEnabled());
        QCOMPARE(s.plot.currentZoom(), 2);
    }

    // ---- keys and wheel
    void plusAndMinusKeysZoomInAndOut()
    {
        Shown s;
        drag(&s.plot, {125, 75}, {425, 325});
        QTest::keyClick(&s.plot, Qt::Key_Minus);
        QCOMPARE(s.plot.currentZoom(), 0);
        QTest::keyClick(&s.plot, Qt::Key_Minus);
        QCOMPARE(s.plot.currentZoom(), 0);
        QTest::keyClick(&s.plot, Qt::Key_Plus);
        QCOMPARE(s.plot.currentZoom(), 1);
        QTest::keyClick(&s.plot, Qt::Key_Plus);
        QCOMPARE(s.plot.currentZoom(), 1);
    }
    void arrowKeysScrollTheLevelInForceByOneTick()
    {
        Shown s;
        drag(&s.plot, {125, 75}, {425, 325}); // X 4..22 in 9, Y 3..9 in 6
        QTest::keyClick(&s.plot, Qt::Key_Right);
        QCOMPARE(s.plot.settings().minX, 6.0);
        QCOMPARE(s.plot.settings().maxX, 24.0);
        QTest::keyClick(&s.plot, Qt::Key_Left);
        QTest::keyClick(&s.plot, Qt::Key_Left);
        QCOMPARE(s.plot.settings().minX, 2.0);
        QTest::keyClick(&s.plot, Qt::Key_Up);
        QCOMPARE(s.plot.settings().minY, 4.0);
        QCOMPARE(s.plot.settings().maxY, 10.0);
        QTest::keyClick(&s.plot, Qt::Key_Down);
        QTest::keyClick(&s.plot, Qt::Key_Down);
        QCOMPARE(s.plot.settings().minY, 2.0);
        // the level below is untouched
        QVERIFY(sameAxes(s.plot.zoomLevels().at(0), PlotSettings()));
        const qint64 key = s.plot.picture().cacheKey();
        QTest::keyClick(&s.plot, Qt::Key_Up);
        QVERIFY(s.plot.picture().cacheKey() != key);
    }
    void otherKeysArePassedOn()
    {
        KeySink screen;
        Plotter* plot = new Plotter(&screen, "Panel IV", nullptr);
        screen.resize(1024, 600);
        plot->resize(1024, 540);
        screen.show();
        QVERIFY(QTest::qWaitForWindowExposed(&screen));
        QTest::keyClick(plot, Qt::Key_A);
        QTest::keyClick(plot, Qt::Key_Return);
        QTest::keyClick(plot, Qt::Key_Plus);
        QTest::keyClick(plot, Qt::Key_Up);
        QCOMPARE(screen.keys, QList<int>({Qt::Key_A, Qt::Key_Return}));
        QCOMPARE(plot->settings().minY, 2.0);
    }
    void wheelScrollsByWholeTicksOfFifteenDegrees()
    {
        Shown s; // 0..50 and 0..10, 5 intervals each
        wheel(&s.plot, {0, 120});
        QCOMPARE(s.plot.settings().minY, 2.0);
        QCOMPARE(s.plot.settings().minX, 0.0);
        wheel(&s.plot, {0, -240});
        QCOMPARE(s.plot.settings().minY, -2.0);
        wheel(&s.plot, {0, 119}); // 14 degrees: no tick
        QCOMPARE(s.plot.settings().minY, -2.0);
        wheel(&s.plot, {240, 0});
        QCOMPARE(s.plot.settings().minX, 20.0);
        QCOMPARE(s.plot.settings().minY, -2.0);
        wheel(&s.plot, {-120, 0});
        QCOMPARE(s.plot.settings().minX, 10.0);
        QCOMPARE(s.plot.settings().maxX, 60.0);
    }

    // ---- legibility in the sun
    void operatorSeesWhereTheyAre_labelsStandOutInTheSun()
    {
        Shown s;
        double pmax = 0.0;
        const QVector<QPointF> stc = moduleCurve(8.6, 37.6);
        s.plot.setAxisX(0, 40);
        s.plot.setAxisY(0, 10);
        s.plot.setCurveData(0, moduleCurve(7.9, 36.2));
        s.plot.setCurveData(1, stc);
        s.plot.pmaxLabel = 250.0f;
        s.plot.setCurveData(2, powerCurve(stc, &pmax));
        s.plot.testResult = 1;
        s.plot.setViewPassTest(true);
        const QImage picture = grabScreen(&s.plot);
        const QColor background = at(picture, Plotter::Margin + 40, Plotter::Margin + 40);

        // the screens' own roles would give white on grey
        const QPalette screens = QApplication::palette();
        qInfo("with the screens' roles: %.2f:1 (%s on %s)",
              contrastRatio(screens.color(QPalette::Light), screens.color(QPalette::Dark)),
              qPrintable(screens.color(QPalette::Light).name()),
              qPrintable(screens.color(QPalette::Dark).name()));

        // the tick labels left of the grid: the strongest pixel of their digits
        double labels = 1.0;
        for (int y = Plotter::Margin; y < s.bottom(); ++y)
            for (int x = 0; x < Plotter::Margin - 6; ++x)
                labels = std::max(labels, contrastRatio(at(picture, x, y), background));
        // the tick labels under the grid and the title, likewise
        double under = 1.0;
        for (int y = s.bottom() + 6; y < s.bottom() + 20; ++y)
            for (int x = Plotter::Margin + 60; x < s.right(); ++x)
                under = std::max(under, contrastRatio(at(picture, x, y), background));
        double title = 1.0;
        for (int y = 0; y < Plotter::Margin - 2; ++y)
            for (int x = 40; x < s.plot.width() - 120; ++x)
                title = std::max(title, contrastRatio(at(picture, x, y), background));
        qInfo("labels %.2f:1, under the grid %.2f:1, title %.2f:1 (background %s)", labels, under,
              title, qPrintable(background.name()));
        QVERIFY2(labels >= 7.0, qPrintable(QString::number(labels)));
        QVERIFY2(under >= 7.0, qPrintable(QString::number(under)));
        QVERIFY2(title >= 7.0, qPrintable(QString::number(title)));

        // the curves, found on the picture in their colours
        const QRect inside(QPoint(Plotter::Margin + 1, Plotter::Margin + 1),
                           QPoint(s.right() - 1, s.bottom() - 1));
        for (const QColor& curve : {red, green}) {
            QVERIFY(count(picture, inside, curve) > 50);
            const double ratio = contrastRatio(curve, background);
            qInfo("curve %s: %.2f:1", qPrintable(curve.name()), ratio);
            QVERIFY2(ratio >= 3.0, qPrintable(curve.name()));
        }
        for (const QColor& curve : {yellow, magenta, blue, cyan})
            qInfo("curve %s: %.2f:1", qPrintable(curve.name()), contrastRatio(curve, background));
        // the verdict, green for both answers
        const QRect verdict(QPoint(28, s.bottom() - 28), QPoint(400, s.bottom() + 17));
        QVERIFY(count(picture, verdict, green) > 100);
    }

    // ---- pictures for review
    void screenshotsOfTheTypicalViews()
    {
        // the module test screen: the plot over its bar of buttons
        QWidget screen;
        QWidget* bar = new QWidget(&screen);
        QHBoxLayout* barBox = new QHBoxLayout(bar);
        barBox->setContentsMargins(0, 0, 0, 0);
        barBox->setSpacing(1);
        for (const char* text : {"Start", "Confronto", "Misure", "Salva", "Exit"})
            barBox->addWidget(new QPushButton(text, bar));
        barBox->addStretch();
        Plotter* plot = new Plotter(&screen, "Panel IV", bar);
        QVBoxLayout* box = new QVBoxLayout(&screen);
        box->setContentsMargins(0, 0, 0, 0);
        box->addWidget(plot);
        box->addWidget(bar);
        screen.setFixedSize(1024, 600);
        screen.show();
        QVERIFY(QTest::qWaitForWindowExposed(&screen));

        const QVector<QPointF> opc = moduleCurve(7.9, 36.2);
        const QVector<QPointF> stc = moduleCurve(8.6, 37.6);
        plot->setAxisX(0, 40);
        plot->setAxisY(0, 10);
        plot->setCurveData(0, opc);
        QString path = saveScreenshot(&screen, "plotter-curve");
        QVERIFY(!path.isEmpty());
        QCOMPARE(QImage(path).size(), QSize(1024, 600));

        double pmax = 0.0;
        const QVector<QPointF> power = powerCurve(stc, &pmax);
        plot->setTitle("Panel IV / ABC 250");
        plot->setCurveData(1, stc);
        plot->pmaxLabel = static_cast<float>(pmax);
        plot->setCurveData(2, power);
        plot->testResult = 1;
        plot->setViewPassTest(true);
        path = saveScreenshot(&screen, "plotter-verdict-ok");
        QVERIFY(!path.isEmpty());
        // every text of the plot legible, its painter's fonts included
        QStringList faults = legibilityFaults(&screen);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
        QVERIFY(!plot->drawnTextFonts().isEmpty());
        plot->testResult = 0;
        plot->refreshPixmap();
        QVERIFY(!saveScreenshot(&screen, "plotter-verdict-no").isEmpty());

        QTest::mousePress(plot, Qt::LeftButton, Qt::NoModifier, {560, 60});
        QTest::mouseMove(plot, {900, 300});
        QVERIFY(!saveScreenshot(&screen, "plotter-rubber-band").isEmpty());
        QTest::mouseRelease(plot, Qt::LeftButton, Qt::NoModifier, {900, 300});
        QCOMPARE(plot->currentZoom(), 1);
        QVERIFY(!saveScreenshot(&screen, "plotter-zoomed").isEmpty());
        // "FS" stands 5 pixels under "Out", whatever the font makes their height
        QToolButton* out = button(*plot, "Out");
        QVERIFY(out->isVisible());
        QCOMPARE(button(*plot, "FS")->y(), out->y() + out->height() + 5);

        QTest::mouseClick(button(*plot, "FS"), Qt::LeftButton);
        QVERIFY(bar->isHidden());
        QCoreApplication::processEvents();
        QVERIFY(!saveScreenshot(&screen, "plotter-full-screen").isEmpty());
    }
};

QTEST_MAIN(TestPlotter)
#include "tst_plotter.moc"
