#include "toolkit/plotter.h"

#include "toolkit/textfit.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPolygonF>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QToolButton>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

// ---------------------------------------------------------------- PlotSettings

PlotSettings::PlotSettings()
    : minX(0.0), maxX(50.0), numXTicks(5), minY(0.0), maxY(10.0), numYTicks(5)
{
}

void PlotSettings::setAxisX(double min, double max)
{
    minX = min;
    maxX = max;
}

void PlotSettings::setAxisY(double min, double max)
{
    minY = min;
    maxY = max;
}

void PlotSettings::scroll(int dx, int dy)
{
    double stepX = spanX() / numXTicks;
    minX += dx * stepX;
    maxX += dx * stepX;

    double stepY = spanY() / numYTicks;
    minY += dy * stepY;
    maxY += dy * stepY;
}

void PlotSettings::adjust()
{
    adjustAxis(minX, maxX, numXTicks);
    adjustAxis(minY, maxY, numYTicks);
}

void PlotSettings::adjustAxis(double& min, double& max, int& numTicks)
{
    const double grossStep = (max - min) * 0.25;
    // A span of zero, a reversed or a non-finite axis has no tidy step: the
    // level keeps what the band gave it.
    if (!(grossStep > 0.0) || !std::isfinite(grossStep))
        return;
    double step = std::pow(10.0, std::floor(std::log10(grossStep)));
    if (!(step > 0.0) || !std::isfinite(step))
        return; // the power of ten underflowed
    if (5.0 * step < grossStep)
        step *= 5.0;
    else if (2.0 * step < grossStep)
        step *= 2.0;

    // Mathematically the count is at most about 40; the check keeps a
    // rounding accident from becoming an undefined conversion.
    const double ticks = std::ceil(max / step) - std::floor(min / step);
    numTicks = (ticks >= 4.0 && ticks <= 1000.0) ? static_cast<int>(ticks) : 4;
    min = std::floor(min / step) * step;
    max = std::ceil(max / step) * step;
}

// --------------------------------------------------------------------- Plotter

namespace
{

// i intervals of n along a length of pixels, as an integer quotient. The
// product is taken wide so that no tick count can overflow it.
int tickOffset(int i, int length, int n)
{
    return static_cast<int>(static_cast<long long>(i) * length / n);
}

// Adds a point, mapped to the plot, to a run of a curve's line. Within the
// plot's reach a point is taken to its pixel: one on the pixel of the point
// before adds nothing (a curve has more points than the plot has columns),
// and one that goes on along the row or the column of the two before it
// only lengthens their segment (the flat and the steep parts of a curve).
// A point far beyond the plot is kept as it is.
void addToRun(QPolygonF& run, const QPointF& mapped)
{
    if (!(std::fabs(mapped.x()) < 1e6 && std::fabs(mapped.y()) < 1e6)) {
        run.append(mapped);
        return;
    }
    const QPointF pixel(std::round(mapped.x()), std::round(mapped.y()));
    const int n = run.size();
    if (n >= 1 && run[n - 1] == pixel)
        return;
    if (n >= 2) {
        const QPointF& a = run[n - 2];
        QPointF& b = run[n - 1];
        const bool row =
            a.y() == b.y() && b.y() == pixel.y() && (b.x() - a.x()) * (pixel.x() - b.x()) > 0;
        const bool column =
            a.x() == b.x() && b.x() == pixel.x() && (b.y() - a.y()) * (pixel.y() - b.y()) > 0;
        if (row || column) {
            b = pixel;
            return;
        }
    }
    run.append(pixel);
}

} // namespace

QString Plotter::tickLabel(double value)
{
    double whole;
    if (std::modf(value, &whole) == 0.0)
        return QString::number(value, 'g', 6);
    return QString::number(value, 'f', 1);
}

Plotter::Plotter(QWidget* parent, QString title, QWidget* hideTarget)
    : QWidget(parent), pmaxLabel(0.0f), testResult(4), plotTitle(title), curZoom(0),
      rubberBandShown(false), viewPassTest(false)
{
    // The plot keeps its two roles, the background in Dark and the labels,
    // title and ticks in Light, but not the screens' values of them: the
    // instrument's grey Dark under white labels reads at 2.65:1, lost in the
    // sun. Its own near-black Dark under white gives the labels 13:1 and the
    // red curve, the darkest that must be read, 3.3:1.
    QPalette own = palette();
    own.setColor(QPalette::Dark, QColor(PlotDark));
    own.setColor(QPalette::Light, QColor(PlotLight));
    setPalette(own);
    setBackgroundRole(QPalette::Dark);
    setAutoFillBackground(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setFocusPolicy(Qt::StrongFocus);

    zoomInButton = new QToolButton(this);
    zoomInButton->setText("In");
    zoomInButton->adjustSize();
    connect(zoomInButton, &QToolButton::clicked, this, &Plotter::zoomIn);

    zoomOutButton = new QToolButton(this);
    zoomOutButton->setText("Out");
    zoomOutButton->adjustSize();
    connect(zoomOutButton, &QToolButton::clicked, this, &Plotter::zoomOut);

    fullScreenButton = new QToolButton(this);
    fullScreenButton->setText("FS");
    fullScreenButton->setCheckable(true);
    fullScreenButton->adjustSize();
    if (hideTarget)
        connect(fullScreenButton, &QToolButton::toggled, hideTarget, &QWidget::setHidden);

    pmaxLabel = 0.0f;
    viewPassTest = false;
    testResult = 4;
    rubberBandShown = false;
    setPlotSettings(PlotSettings());
}

void Plotter::setAxisX(double min, double max)
{
    PlotSettings settings = zoomStack[curZoom];
    settings.setAxisX(min, max);
    zoomStack.clear();
    zoomStack.append(settings);
    curZoom = 0;
    refreshPixmap();
}

void Plotter::setAxisY(double min, double max)
{
    PlotSettings settings = zoomStack[curZoom];
    settings.setAxisY(min, max);
    zoomStack.clear();
    zoomStack.append(settings);
    curZoom = 0;
    refreshPixmap();
}

void Plotter::setPlotSettings(const PlotSettings& settings)
{
    zoomStack.clear();
    zoomStack.append(settings);
    curZoom = 0;
    zoomInButton->hide();
    zoomOutButton->hide();
    fullScreenButton->hide();
    refreshPixmap();
}

void Plotter::setCurveData(int id, const QVector<QPointF>& data)
{
    curveMap[id] = data;
    refreshPixmap();
}

void Plotter::clearCurve(int id)
{
    curveMap.remove(id);
    refreshPixmap();
}

void Plotter::clearPlotter()
{
    curveMap.clear();
    setPlotSettings(PlotSettings());
}

void Plotter::setTitle(QString title)
{
    plotTitle = title;
    refreshPixmap();
}

void Plotter::setViewPassTest(bool view)
{
    viewPassTest = view;
    refreshPixmap();
}

void Plotter::zoomIn()
{
    if (curZoom < zoomStack.size() - 1) {
        ++curZoom;
        zoomInButton->setEnabled(curZoom < zoomStack.size() - 1);
        zoomOutButton->setEnabled(true);
        zoomOutButton->show();
        refreshPixmap();
    }
}

void Plotter::zoomOut()
{
    if (curZoom > 0) {
        --curZoom;
        zoomOutButton->setEnabled(curZoom > 0);
        zoomInButton->setEnabled(true);
        zoomInButton->show();
        refreshPixmap();
    }
}

QSize Plotter::sizeHint() const
{
    return QSize(300, 200);
}

QSize Plotter::minimumSizeHint() const
{
    return QSize(150, 100);
}

void Plotter::refreshPixmap()
{
    // The grid, its labels and the title change only with the size, the
    // level in force, the title and the look: they are drawn once into the
    // background and every later drawing starts from a copy of it. On the
    // instrument's processor their texts were a large part of each drawing.
    const PlotSettings& settings = zoomStack[curZoom];
    const BackgroundKey key{size(),
                            {settings.minX, settings.maxX, settings.minY, settings.maxY},
                            {settings.numXTicks, settings.numYTicks},
                            plotTitle,
                            font(),
                            {palette().color(backgroundRole()).rgba(),
                             palette().color(foregroundRole()).rgba(),
                             palette().dark().color().rgba(), palette().light().color().rgba()},
                            logicalDpiY()};
    if (!(key == backgroundKey)) {
        background = QPixmap(size());
        background.fill(palette().color(backgroundRole()));
        QPainter painter(&background);
        // What initialising the painter from the widget used to give.
        painter.setPen(palette().color(foregroundRole()));
        painter.setBackground(palette().brush(backgroundRole()));
        painter.setFont(font());
        textFonts.clear();
        // No save and restore between them: the tick pen that the grid
        // leaves on the painter is the pen of the title.
        drawGrid(&painter);
        drawTitle(&painter);
        painter.end();
        backgroundKey = key;
        backgroundFonts = textFonts;
    }

    pixmap = background;
    QPainter painter(&pixmap);
    // The painter as the grid and the title left it: the tick pen, or the
    // widget's own where no grid was drawn.
    const int right = width() - 26;
    const int bottom = height() - 26;
    painter.setPen(right < Margin || bottom < Margin ? palette().color(foregroundRole())
                                                     : palette().light().color());
    painter.setBackground(palette().brush(backgroundRole()));
    painter.setFont(font());
    textFonts = backgroundFonts;
    drawVerdict(&painter);
    drawCurves(&painter);
    painter.end();
    update();
}

bool Plotter::BackgroundKey::operator==(const BackgroundKey& o) const
{
    return size == o.size && std::equal(limits, limits + 4, o.limits) &&
           std::equal(ticks, ticks + 2, o.ticks) && title == o.title && font == o.font &&
           std::equal(colours, colours + 4, o.colours) && dpi == o.dpi;
}

// The instrument's fonts are larger than some of the boxes the plot gives its
// texts: a text that would not fit its box is drawn in the largest size that
// does, but never below 11 pixels, the smallest an operator reads in the sun;
// at 11 pixels a text that still does not fit passes its box rather than
// being cut.
void Plotter::drawTextInBox(QPainter* painter, const QRect& box, int flags, const QString& text)
{
    const QFont former = painter->font();
    const TextFit fit = fitTextInBox(former, text, box, flags, painter->device());
    painter->setFont(fit.font);
    painter->drawText(box, fit.fits ? flags : flags | Qt::TextDontClip, text);
    textFonts.append(fit.font);
    painter->setFont(former);
}

void Plotter::drawGrid(QPainter* painter)
{
    const int right = width() - 26;
    const int bottom = height() - 26;
    if (right < Margin || bottom < Margin)
        return;

    const QFont formerFont = painter->font();
    QFont font = formerFont;
    font.setPointSize(34);
    painter->setFont(font);

    const PlotSettings& settings = zoomStack[curZoom];
    const QPen gridPen(palette().dark().color().lighter(150));
    const QPen tickPen(palette().light().color());

    // A level with no interval on an axis draws no ticks on it.
    for (int i = 0; settings.numXTicks > 0 && i <= settings.numXTicks; ++i) {
        const int x = Margin + tickOffset(i, right - Margin, settings.numXTicks);
        const double label = settings.minX + (i * settings.spanX() / settings.numXTicks);
        painter->setPen(gridPen);
        painter->drawLine(x, Margin, x, bottom);
        painter->setPen(tickPen);
        painter->drawLine(x, bottom, x, bottom + 5);
        drawTextInBox(painter, QRect(QPoint(x - 50, bottom + 5), QPoint(x + 49, bottom + 19)),
                      Qt::AlignHCenter | Qt::AlignTop, tickLabel(label));
    }
    painter->setPen(tickPen);
    drawTextInBox(painter, QRect(QPoint(right - 36, bottom - 10), QPoint(right + 63, bottom + 4)),
                  Qt::AlignHCenter | Qt::AlignTop, "V");

    for (int j = 0; settings.numYTicks > 0 && j <= settings.numYTicks; ++j) {
        const int y = bottom - tickOffset(j, bottom - Margin, settings.numYTicks);
        const double label = settings.minY + (j * settings.spanY() / settings.numYTicks);
        painter->setPen(gridPen);
        painter->drawLine(Margin, y, right, y);
        painter->setPen(tickPen);
        painter->drawLine(Margin - 5, y, Margin, y);
        drawTextInBox(painter, QRect(QPoint(0, y - 10), QPoint(Margin - 6, y + 9)),
                      Qt::AlignRight | Qt::AlignVCenter, tickLabel(label));
    }
    painter->setPen(tickPen);
    drawTextInBox(painter, QRect(QPoint(12, 5), QPoint(29, 24)), Qt::AlignRight | Qt::AlignVCenter,
                  "I");

    painter->drawRect(QRect(QPoint(Margin, Margin), QPoint(right - 1, bottom - 1)));
    painter->setFont(formerFont);
}

void Plotter::drawTitle(QPainter* painter)
{
    const int bottom = height() - 26;
    if (width() + 22 < Margin || bottom < Margin)
        return;

    const QFont formerFont = painter->font();
    QFont font = formerFont;
    font.setPointSize(34);
    painter->setFont(font);

    // Measured with the widget's own font, drawn in the larger one; the
    // title stands 24 pixels right of the middle of the widget.
    const int tw = fontMetrics().horizontalAdvance(plotTitle);
    const int left = (width() - 2 - tw) / 2 + Margin;
    drawTextInBox(painter, QRect(QPoint(left, -2), QPoint(left + tw - 1, 35)),
                  Qt::AlignLeft | Qt::AlignVCenter, plotTitle);
    painter->setFont(formerFont);
}

// The verdict over the lower left of the plot, under the curves: the end of
// the title's drawing, done on each drawing since the background holds the
// title alone.
void Plotter::drawVerdict(QPainter* painter)
{
    const int bottom = height() - 26;
    if (width() + 22 < Margin || bottom < Margin || !viewPassTest || testResult == 4)
        return;

    const QFont formerFont = painter->font();
    QFont font = formerFont;
    const QString verdict = (testResult == 1 || testResult == 3) ? tr("Ok") : tr("No");
    const QString text = tr("Misure") + " @ " + tr("STC") + " - " + verdict;
    font.setPointSize(46);
    painter->setFont(font);
    painter->setPen(Qt::green); // the same colour for both verdicts
    const int vw = fontMetrics().horizontalAdvance(text);
    drawTextInBox(painter, QRect(QPoint(28, bottom - 28), QPoint(vw + 77, bottom + 17)),
                  Qt::AlignLeft, text);
    painter->setFont(formerFont);
}

void Plotter::drawCurves(QPainter* painter)
{
    static const QColor colorForIds[6] = {Qt::red,     Qt::green, Qt::yellow,
                                          Qt::magenta, Qt::blue,  Qt::cyan};
    const int right = width() - 26;
    const int bottom = height() - 26;
    if (right < Margin || bottom < Margin)
        return;

    const PlotSettings& settings = zoomStack[curZoom];
    painter->setClipRect(QRect(QPoint(Margin + 1, Margin + 1), QPoint(right - 1, bottom - 1)),
                         Qt::ReplaceClip);

    const QFontMetrics metrics = fontMetrics();
    const int vmid = (bottom - 24) >> 1;
    int offset = 0;

    for (auto it = curveMap.constBegin(); it != curveMap.constEnd(); ++it) {
        const int id = it.key();
        const QVector<QPointF>& data = it.value();
        // The table wraps for negative ids too: -1 is cyan, -6 red.
        const QColor& color = colorForIds[((id % 6) + 6) % 6];
        // A point that maps to no pixel (NaN or infinite value, axis of no
        // span) breaks the line: the runs of good points are drawn apart.
        QVector<QPolygonF> runs(1);
        runs.back().reserve(data.size());
        for (const QPointF& p : data) {
            const double x = ((right - Margin) * (p.x() - settings.minX)) / settings.spanX() + 25.0;
            const double y =
                bottom - ((bottom - Margin) * (p.y() - settings.minY)) / settings.spanY();
            if (!std::isfinite(x) || !std::isfinite(y)) {
                if (!runs.back().isEmpty())
                    runs.append(QPolygonF());
                continue;
            }
            addToRun(runs.back(), QPointF(x, y));
        }
        // Two pixels thick, as four one-pixel lines on the corners of a
        // square of two pixels: the one-pixel line is the toolkit's fast one,
        // where a wide pen outlines and fills every segment with its joins
        // (on the instrument's processor, in software floating point, most
        // of a drawing). The square thickens flat, steep, rising and falling
        // parts of a curve alike.
        QPen pen(color, 1, Qt::SolidLine);
        pen.setCosmetic(true);
        painter->setPen(pen);
        for (const QPoint& corner : {QPoint(0, 0), QPoint(1, 0), QPoint(1, 1), QPoint(0, 1)}) {
            painter->translate(corner);
            for (const QPolygonF& run : runs)
                painter->drawPolyline(run);
            painter->translate(-corner);
        }

        if (id >= 0 && id <= 5)
            textFonts.append(painter->font());
        switch (id) {
        case 0: {
            offset = metrics.height() + 2;
            const QString text = tr("OPC");
            painter->drawText(QPoint(right - 24 - metrics.horizontalAdvance(text), vmid + offset),
                              text);
            break;
        }
        case 1: {
            offset += metrics.height() + 2;
            const QString text = tr("STC");
            painter->drawText(QPoint(right - 24 - metrics.horizontalAdvance(text), vmid + offset),
                              text);
            break;
        }
        case 2:
            if (pmaxLabel != 0.0f) {
                const QString text = "Pmax = " + QString::number(pmaxLabel, 'f', 2) + "W";
                painter->drawText(QPoint(right - 24 - metrics.horizontalAdvance(text), vmid), text);
            }
            break;
        case 3:
            painter->drawText(QPoint(right - 54, vmid), "I: --");
            break;
        case 4:
            painter->drawText(QPoint(right - 54, vmid - 15), "V: --");
            break;
        case 5:
            painter->drawText(QPoint(right - 54, vmid - 30), "P: --");
            break;
        default:
            break;
        }

        fullScreenButton->setEnabled(true);
        fullScreenButton->show();
    }
}

// ------------------------------------------------------------- rubber band

QRect Plotter::normalisedBand() const
{
    const QPoint a = rubberBandRect.topLeft();
    const QPoint b = rubberBandRect.bottomRight();
    return QRect(QPoint(std::min(a.x(), b.x()), std::min(a.y(), b.y())),
                 QPoint(std::max(a.x(), b.x()), std::max(a.y(), b.y())));
}

void Plotter::updateRubberBandRegion()
{
    const QRect rect = normalisedBand();
    update(rect.left(), rect.top(), rect.width(), 1);
    update(rect.left(), rect.top(), 1, rect.height());
    update(rect.left(), rect.bottom(), rect.width(), 1);
    update(rect.right(), rect.top(), 1, rect.height());
}

void Plotter::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const QPoint p = event->position().toPoint();
    if (p.x() >= Margin && p.x() <= width() - 26 && p.y() >= Margin && p.y() <= height() - 26) {
        rubberBandShown = true;
        rubberBandRect.setTopLeft(p);
        rubberBandRect.setBottomRight(p);
        updateRubberBandRegion();
        setCursor(Qt::CrossCursor);
    }
}

void Plotter::mouseMoveEvent(QMouseEvent* event)
{
    if (rubberBandShown) {
        updateRubberBandRegion();
        rubberBandRect.setBottomRight(event->position().toPoint());
        updateRubberBandRegion();
    }
}

void Plotter::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !rubberBandShown)
        return;
    rubberBandShown = false;
    updateRubberBandRegion();
    unsetCursor();

    QRect rect = normalisedBand();
    if (rect.right() - rect.left() < 3 || rect.bottom() - rect.top() < 3)
        return;
    rect.translate(-Margin, -Margin);

    const PlotSettings prev = zoomStack[curZoom];
    PlotSettings settings;
    const double dx = prev.spanX() / (width() - 2 * Margin);
    const double dy = prev.spanY() / (height() - 2 * Margin);
    settings.minX = prev.minX + dx * rect.left();
    settings.maxX = prev.minX + dx * rect.right();
    settings.minY = prev.maxY - dy * rect.bottom();
    settings.maxY = prev.maxY - dy * rect.top();
    settings.adjust();

    zoomStack.resize(curZoom + 1);
    zoomStack.append(settings);
    zoomIn();
}

// ------------------------------------------------------------ keys and wheel

void Plotter::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Plus:
        zoomIn();
        break;
    case Qt::Key_Minus:
        zoomOut();
        break;
    case Qt::Key_Left:
        zoomStack[curZoom].scroll(-1, 0);
        refreshPixmap();
        break;
    case Qt::Key_Right:
        zoomStack[curZoom].scroll(+1, 0);
        refreshPixmap();
        break;
    case Qt::Key_Down:
        zoomStack[curZoom].scroll(0, -1);
        refreshPixmap();
        break;
    case Qt::Key_Up:
        zoomStack[curZoom].scroll(0, +1);
        refreshPixmap();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void Plotter::wheelEvent(QWheelEvent* event)
{
    const QPoint angle = event->angleDelta();
    const bool horizontal = std::abs(angle.x()) > std::abs(angle.y());
    const int numDegrees = (horizontal ? angle.x() : angle.y()) / 8;
    const int numTicks = numDegrees / 15;
    if (horizontal)
        zoomStack[curZoom].scroll(numTicks, 0);
    else
        zoomStack[curZoom].scroll(0, numTicks);
    refreshPixmap();
}

// ----------------------------------------------------------- paint and resize

void Plotter::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.drawPixmap(0, 0, pixmap);

    if (rubberBandShown) {
        painter.setPen(palette().light().color());
        painter.drawRect(normalisedBand().adjusted(0, 0, -1, -1));
    }

    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.backgroundColor = palette().dark().color();
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

void Plotter::resizeEvent(QResizeEvent* /*event*/)
{
    const int x = width() - (zoomInButton->width() + zoomOutButton->width() + 10);
    zoomInButton->move(x, 5);
    zoomOutButton->move(x + zoomInButton->width() + 5, 5);
    // Under "Out" with a gap of 5 pixels: the instrument's font makes the
    // buttons taller than the old fixed height of 35 allowed.
    fullScreenButton->move(x + zoomInButton->width() + 5, zoomOutButton->geometry().bottom() + 6);
    refreshPixmap();
}
