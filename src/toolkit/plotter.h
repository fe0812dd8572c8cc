#ifndef KRM_TOOLKIT_PLOTTER_H
#define KRM_TOOLKIT_PLOTTER_H

#include <QFont>
#include <QMap>
#include <QPixmap>
#include <QPointF>
#include <QRect>
#include <QString>
#include <QVector>
#include <QWidget>

class QToolButton;
class QPainter;

// One zoom level of the plot: the limits of both axes and the number of
// intervals between their ticks. Voltage across, current up.
class PlotSettings
{
public:
    PlotSettings();

    void setAxisX(double min, double max);
    void setAxisY(double min, double max);
    // Moves both limits of an axis by whole tick intervals.
    void scroll(int dx, int dy);
    // Rounds both axes to tidy limits; used for a level made by the rubber band.
    void adjust();
    // Rounds one axis. An axis whose span is not a positive finite number, or
    // too small to give a tick step, is left as it is.
    static void adjustAxis(double& min, double& max, int& numTicks);

    double spanX() const { return maxX - minX; }
    double spanY() const { return maxY - minY; }

    double minX;
    double maxX;
    int numXTicks;
    double minY;
    double maxY;
    int numYTicks;
};

// The widget on which the test screens and the measure viewer draw I-V
// curves. Everything is drawn into an off-screen picture by refreshPixmap();
// paintEvent only copies that picture and draws the rubber band over it.
//
// Curve ids: 0 measured curve (red, "OPC"), 1 curve at standard conditions
// (green, "STC"), 2 power curve (yellow, "Pmax = ...W"), 3 to 5 drawn with
// placeholder labels; any other id is a bare polyline.
class Plotter : public QWidget
{
    Q_OBJECT

public:
    enum { Margin = 25 };
    // The plot's own background (its Dark) and labels (its Light).
    static constexpr QRgb PlotDark = 0x303030;
    static constexpr QRgb PlotLight = 0xffffff;

    Plotter(QWidget* parent, QString title, QWidget* hideTarget);

    void setAxisX(double min, double max);
    void setAxisY(double min, double max);
    void setPlotSettings(const PlotSettings& settings);
    void setCurveData(int id, const QVector<QPointF>& data);
    void clearCurve(int id);
    void clearPlotter();
    void setTitle(QString title);
    void setViewPassTest(bool view);
    void refreshPixmap();

    // Read-only views of the state, for the screens' and the tests' use.
    QString title() const { return plotTitle; }
    bool isViewPassTest() const { return viewPassTest; }
    const QVector<PlotSettings>& zoomLevels() const { return zoomStack; }
    int currentZoom() const { return curZoom; }
    const PlotSettings& settings() const { return zoomStack[curZoom]; }
    const QMap<int, QVector<QPointF>>& curves() const { return curveMap; }
    bool isRubberBandShown() const { return rubberBandShown; }
    const QPixmap& picture() const { return pixmap; }

    // The text of a tick value: a whole value in 'g' form with up to six
    // significant digits, any other with one decimal.
    static QString tickLabel(double value);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    // Value printed beside curve 2; 0 suppresses the print.
    float pmaxLabel;
    // Verdict of the measure: 0 failed, 1 and 3 passed, 4 no verdict.
    int testResult;

public slots:
    void zoomIn();
    void zoomOut();

    // The fonts the texts of the last drawing were drawn in.
    const QVector<QFont>& drawnTextFonts() const { return textFonts; }

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void updateRubberBandRegion();
    QRect normalisedBand() const;
    void drawGrid(QPainter* painter);
    void drawTitle(QPainter* painter);
    void drawVerdict(QPainter* painter);
    void drawCurves(QPainter* painter);
    void drawTextInBox(QPainter* painter, const QRect& box, int flags, const QString& text);

    QString plotTitle;
    QToolButton* zoomInButton;
    QToolButton* zoomOutButton;
    QMap<int, QVector<QPointF>> curveMap;
    QVector<PlotSettings> zoomStack;
    int curZoom;
    bool rubberBandShown;
    QRect rubberBandRect;
    QPixmap pixmap;
    QToolButton* fullScreenButton;
    bool viewPassTest;
    QVector<QFont> textFonts;
    // What the grid and the title depend on: the size, the level in force,
    // the title and the look.
    struct BackgroundKey {
        QSize size;
        double limits[4];
        int ticks[2];
        QString title;
        QFont font;
        QRgb colours[4];
        int dpi;
        bool operator==(const BackgroundKey& o) const;
    };
    // The grid and the title, drawn once for the key they were drawn with.
    QPixmap background;
    BackgroundKey backgroundKey{};
    QVector<QFont> backgroundFonts;
};

#endif
