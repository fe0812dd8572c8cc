// Draws every picture of the program (icons, flags, splash, wiring diagrams)
// with QPainter and writes them as PNG files:
//
//   drawpictures <output dir> [<contact sheet png>]
//
// The files land in <output dir>/icon/ and <output dir>/image/, the layout of
// the resource tree. The optional contact sheet shows every icon on black, as
// on the instrument's screen, with its name under it.
//
// Style: the screen is black and read outdoors in the sun, so strokes are
// thick, colours saturated, and each family has one colour: green confirms,
// red cancels or deletes, cyan acts, amber archives and warns, blue is
// photovoltaic cells. Positive leads are red, negative leads light blue.

#include <QByteArray>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QtMath>

#include <cstdio>
#include <functional>
#include <vector>

namespace {

const QColor White(245, 245, 245);
const QColor Grey(150, 150, 155);
const QColor DarkGrey(70, 70, 75);
const QColor Silver(200, 205, 215);
const QColor Green(60, 215, 90);
const QColor Red(235, 55, 45);
const QColor Cyan(0, 200, 255);
const QColor Amber(255, 190, 20);
const QColor Orange(255, 130, 20);
const QColor CellBlue(25, 80, 190);
const QColor CellLine(140, 190, 255);
const QColor PlusLead(235, 45, 40);
const QColor MinusLead(70, 150, 255);

using Draw = std::function<void(QPainter&, int w, int h)>;

struct Picture
{
    QString path; // relative to the output dir, as in the resource tree
    int width;
    int height;
    bool opaque; // black background instead of transparent
    Draw draw;
};

QPen pen(const QColor& c, qreal width)
{
    return QPen(c, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

QFont font(int pixelSize, bool bold = true)
{
    QFont f(QStringLiteral("DejaVu Sans"));
    f.setPixelSize(pixelSize);
    f.setBold(bold);
    f.setStyleStrategy(QFont::PreferAntialias);
    return f;
}

// ---------------------------------------------------------------- symbols

// A photovoltaic module seen from the front: aluminium frame, blue cells.
void moduleSymbol(QPainter& p, const QRectF& r, int cols = 4, int rows = 6)
{
    p.save();
    const qreal frame = qMax<qreal>(1.5, r.width() / 16);
    p.setPen(Qt::NoPen);
    p.setBrush(Silver);
    p.drawRect(r);
    const QRectF cells = r.adjusted(frame, frame, -frame, -frame);
    QLinearGradient g(cells.topLeft(), cells.bottomRight());
    g.setColorAt(0, CellBlue.lighter(140));
    g.setColorAt(1, CellBlue.darker(130));
    p.setBrush(g);
    p.drawRect(cells);
    p.setPen(QPen(CellLine, qMax<qreal>(1.0, r.width() / 40)));
    for (int i = 1; i < cols; ++i) {
        const qreal x = cells.left() + cells.width() * i / cols;
        p.drawLine(QPointF(x, cells.top()), QPointF(x, cells.bottom()));
    }
    for (int i = 1; i < rows; ++i) {
        const qreal y = cells.top() + cells.height() * i / rows;
        p.drawLine(QPointF(cells.left(), y), QPointF(cells.right(), y));
    }
    p.restore();
}

// The I-V curve of a cell: flat at the short-circuit current, a knee at the
// maximum power point, a steep fall to the open-circuit voltage.
QPainterPath ivCurve(const QRectF& r)
{
    QPainterPath path;
    const int steps = 60;
    const double k = 9.0;
    for (int i = 0; i <= steps; ++i) {
        const double v = double(i) / steps;
        const double current = 1.0 - (qExp(k * v) - 1.0) / (qExp(k) - 1.0);
        const QPointF pt(r.left() + v * r.width(), r.bottom() - current * r.height());
        if (i == 0)
            path.moveTo(pt);
        else
            path.lineTo(pt);
    }
    return path;
}

// The power curve P = V * I of the same cell, scaled to the box.
QPainterPath pvCurve(const QRectF& r)
{
    QPainterPath path;
    const int steps = 60;
    const double k = 9.0;
    double maxPower = 0;
    std::vector<double> power;
    for (int i = 0; i <= steps; ++i) {
        const double v = double(i) / steps;
        const double current = 1.0 - (qExp(k * v) - 1.0) / (qExp(k) - 1.0);
        power.push_back(v * current);
        maxPower = qMax(maxPower, v * current);
    }
    for (int i = 0; i <= steps; ++i) {
        const QPointF pt(r.left() + r.width() * i / steps,
                         r.bottom() - power[size_t(i)] / maxPower * r.height());
        if (i == 0)
            path.moveTo(pt);
        else
            path.lineTo(pt);
    }
    return path;
}

void graphSymbol(QPainter& p, const QRectF& r, qreal stroke)
{
    p.save();
    p.setBrush(Qt::NoBrush);
    p.setPen(pen(White, stroke * 0.7));
    p.drawLine(r.bottomLeft(), r.topLeft());
    p.drawLine(r.bottomLeft(), r.bottomRight());
    p.setPen(pen(Amber, stroke));
    p.drawPath(ivCurve(r.adjusted(stroke, r.height() * 0.12, -r.width() * 0.08, 0)));
    p.restore();
}

// A small round badge in a corner: a plus on green.
void plusBadge(QPainter& p, const QPointF& c, qreal radius)
{
    p.save();
    p.setPen(pen(Qt::black, radius * 0.25));
    p.setBrush(Green);
    p.drawEllipse(c, radius, radius);
    p.setPen(pen(White, radius * 0.36));
    const qreal a = radius * 0.55;
    p.drawLine(QPointF(c.x() - a, c.y()), QPointF(c.x() + a, c.y()));
    p.drawLine(QPointF(c.x(), c.y() - a), QPointF(c.x(), c.y() + a));
    p.restore();
}

// A pencil from its tail to its point.
void pencil(QPainter& p, const QPointF& tail, const QPointF& tip, qreal width)
{
    p.save();
    const QLineF axis(tail, tip);
    p.translate(tail);
    p.rotate(-axis.angle());
    const qreal len = axis.length();
    const qreal h = width / 2;
    p.setPen(pen(Qt::black, 1.5));
    // eraser, body, wooden cone, graphite point
    p.setBrush(QColor(240, 120, 140));
    p.drawRect(QRectF(0, -h, len * 0.16, width));
    p.setBrush(Amber);
    p.drawRect(QRectF(len * 0.16, -h, len * 0.58, width));
    QPolygonF cone;
    cone << QPointF(len * 0.74, -h) << QPointF(len, 0) << QPointF(len * 0.74, h);
    p.setBrush(QColor(240, 210, 160));
    p.drawPolygon(cone);
    QPolygonF lead;
    lead << QPointF(len * 0.9, -h * 0.38) << QPointF(len, 0) << QPointF(len * 0.9, h * 0.38);
    p.setBrush(DarkGrey);
    p.drawPolygon(lead);
    p.restore();
}

void magnifier(QPainter& p, const QPointF& c, qreal radius)
{
    p.save();
    const QPointF handleStart = c + QPointF(radius * 0.7, radius * 0.7);
    const QPointF handleEnd = c + QPointF(radius * 1.75, radius * 1.75);
    p.setPen(pen(Qt::black, radius * 0.75));
    p.drawLine(handleStart, handleEnd);
    p.setPen(pen(Amber, radius * 0.45));
    p.drawLine(handleStart, handleEnd);
    p.setPen(pen(Qt::black, radius * 0.5));
    p.setBrush(QColor(120, 200, 255, 90));
    p.drawEllipse(c, radius, radius);
    p.setPen(pen(White, radius * 0.28));
    p.drawEllipse(c, radius, radius);
    p.restore();
}

// A sheet of paper with a folded corner.
void sheet(QPainter& p, const QRectF& r)
{
    const qreal fold = r.width() * 0.3;
    QPolygonF outline;
    outline << r.topLeft() << QPointF(r.right() - fold, r.top())
            << QPointF(r.right(), r.top() + fold) << r.bottomRight() << r.bottomLeft();
    p.setPen(pen(Grey, 2));
    p.setBrush(White);
    p.drawPolygon(outline);
    QPolygonF corner;
    corner << QPointF(r.right() - fold, r.top()) << QPointF(r.right() - fold, r.top() + fold)
           << QPointF(r.right(), r.top() + fold);
    p.setBrush(Silver);
    p.drawPolygon(corner);
}

// The archive box: a card with the archive's emblem standing in an amber
// drawer.
void archive(QPainter& p, const std::function<void(const QRectF&)>& emblem)
{
    p.setPen(pen(Grey, 2));
    p.setBrush(White);
    const QRectF card(9, 3, 30, 28);
    p.drawRoundedRect(card, 2, 2);
    emblem(card.adjusted(4, 3, -4, -6));
    QLinearGradient g(0, 24, 0, 46);
    g.setColorAt(0, Amber.lighter(115));
    g.setColorAt(1, Amber.darker(125));
    p.setPen(pen(Qt::black, 1.5));
    p.setBrush(g);
    p.drawRoundedRect(QRectF(3, 24, 42, 22), 3, 3);
    p.setPen(pen(QColor(90, 55, 0), 3));
    p.drawLine(QPointF(18, 32), QPointF(30, 32));
}

void check(QPainter& p, const QPointF& a, const QPointF& b, const QPointF& c, const QColor& col,
           qreal width)
{
    QPainterPath path(a);
    path.lineTo(b);
    path.lineTo(c);
    p.setBrush(Qt::NoBrush);
    p.setPen(pen(Qt::black, width + 3));
    p.drawPath(path);
    p.setPen(pen(col, width));
    p.drawPath(path);
}

// A bold arrow pointing right, drawn in a box and then rotated as needed.
QPolygonF arrowRight(const QRectF& r)
{
    const qreal shaft = r.height() * 0.2;
    const qreal headStart = r.left() + r.width() * 0.55;
    QPolygonF a;
    a << QPointF(r.left(), r.center().y() - shaft) << QPointF(headStart, r.center().y() - shaft)
      << QPointF(headStart, r.top()) << QPointF(r.right(), r.center().y())
      << QPointF(headStart, r.bottom()) << QPointF(headStart, r.center().y() + shaft)
      << QPointF(r.left(), r.center().y() + shaft);
    return a;
}

void usbTrident(QPainter& p, const QPointF& origin, qreal s, const QColor& c)
{
    // drawn along x from origin, s is the length of the stem
    p.save();
    p.translate(origin);
    p.setPen(pen(c, s * 0.09));
    p.setBrush(c);
    p.drawEllipse(QPointF(0, 0), s * 0.09, s * 0.09);
    p.drawLine(QPointF(0, 0), QPointF(s * 0.85, 0));
    QPolygonF head;
    head << QPointF(s, 0) << QPointF(s * 0.8, -s * 0.1) << QPointF(s * 0.8, s * 0.1);
    p.drawPolygon(head);
    p.setBrush(Qt::NoBrush);
    QPolygonF up;
    up << QPointF(s * 0.2, 0) << QPointF(s * 0.35, -s * 0.25) << QPointF(s * 0.6, -s * 0.25);
    p.drawPolyline(up);
    QPolygonF down;
    down << QPointF(s * 0.35, 0) << QPointF(s * 0.48, s * 0.25) << QPointF(s * 0.7, s * 0.25);
    p.drawPolyline(down);
    p.setBrush(c);
    p.drawEllipse(QPointF(s * 0.64, -s * 0.25), s * 0.07, s * 0.07);
    p.drawRect(QRectF(s * 0.7, s * 0.18, s * 0.13, s * 0.13));
    p.restore();
}

void lightning(QPainter& p, const QRectF& r)
{
    QPolygonF bolt;
    bolt << QPointF(r.left() + r.width() * 0.6, r.top())
         << QPointF(r.left(), r.top() + r.height() * 0.58)
         << QPointF(r.left() + r.width() * 0.45, r.top() + r.height() * 0.58)
         << QPointF(r.left() + r.width() * 0.35, r.bottom())
         << QPointF(r.right(), r.top() + r.height() * 0.4)
         << QPointF(r.left() + r.width() * 0.55, r.top() + r.height() * 0.4);
    p.setPen(pen(Qt::black, 1));
    p.setBrush(Amber);
    p.drawPolygon(bolt);
}

void sun(QPainter& p, const QPointF& c, qreal radius, qreal rayWidth)
{
    p.save();
    p.setPen(pen(Amber, rayWidth));
    for (int i = 0; i < 12; ++i) {
        const qreal a = i * M_PI / 6;
        p.drawLine(c + QPointF(qCos(a), qSin(a)) * radius * 1.35,
                   c + QPointF(qCos(a), qSin(a)) * radius * 1.8);
    }
    QRadialGradient g(c, radius);
    g.setColorAt(0, QColor(255, 245, 170));
    g.setColorAt(1, Amber);
    p.setPen(Qt::NoPen);
    p.setBrush(g);
    p.drawEllipse(c, radius, radius);
    p.restore();
}

void thermometer(QPainter& p, const QPointF& bulb, qreal size)
{
    p.save();
    const qreal w = size * 0.28;
    p.setPen(pen(White, size * 0.08));
    p.setBrush(Qt::black);
    p.drawRoundedRect(QRectF(bulb.x() - w / 2, bulb.y() - size, w, size), w / 2, w / 2);
    p.setBrush(Red);
    p.drawEllipse(bulb, size * 0.24, size * 0.24);
    p.setPen(pen(Red, w * 0.45));
    p.drawLine(bulb, bulb - QPointF(0, size * 0.7));
    p.restore();
}

// ---------------------------------------------------------------- battery

enum class Charge { Full, P75, P50, P25, P15, Alert, Empty };

qreal chargeFraction(Charge c)
{
    switch (c) {
    case Charge::Full: return 1.0;
    case Charge::P75: return 0.75;
    case Charge::P50: return 0.5;
    case Charge::P25: return 0.25;
    case Charge::P15: return 0.15;
    case Charge::Alert: return 0.08;
    case Charge::Empty: return 0.0;
    }
    return 0.0;
}

QColor chargeColour(Charge c)
{
    switch (c) {
    case Charge::Full:
    case Charge::P75: return Green;
    case Charge::P50: return QColor(200, 230, 40);
    case Charge::P25: return Amber;
    case Charge::P15: return Orange;
    case Charge::Alert:
    case Charge::Empty: return Red;
    }
    return Red;
}

// Drawn lying, the nub to the right; the upright version turns the painter.
void battery(QPainter& p, qreal w, qreal h, Charge c, bool upright = false)
{
    const bool low = c == Charge::Alert || c == Charge::Empty;
    const QRectF body(1.5, 1.5, w - 0.16 * h - 3, h - 3);
    p.setPen(Qt::NoPen);
    p.setBrush(low ? Red : White);
    p.drawRoundedRect(QRectF(body.right(), h * 0.3, 0.16 * h, h * 0.4), 1.5, 1.5);
    p.setPen(QPen(low ? Red : White, h * 0.11));
    p.setBrush(Qt::black);
    p.drawRoundedRect(body, h * 0.14, h * 0.14);
    const qreal gap = h * 0.2;
    const QRectF inner = body.adjusted(gap, gap, -gap, -gap);
    const qreal f = chargeFraction(c);
    if (f > 0) {
        p.setPen(Qt::NoPen);
        p.setBrush(chargeColour(c));
        p.drawRect(QRectF(inner.left(), inner.top(), inner.width() * f, inner.height()));
    }
    if (c == Charge::Alert) {
        // exclamation mark, standing upright whatever the orientation
        const QPointF m = inner.center();
        p.save();
        p.translate(m);
        if (upright)
            p.rotate(90);
        p.setPen(Qt::NoPen);
        p.setBrush(Amber);
        const qreal s = inner.height();
        p.drawRect(QRectF(-s * 0.12, -s * 0.5, s * 0.24, s * 0.62));
        p.drawEllipse(QPointF(0, s * 0.35), s * 0.13, s * 0.13);
        p.restore();
    }
    if (c == Charge::Empty) {
        p.setPen(pen(Red, h * 0.1));
        p.drawLine(inner.topLeft() + QPointF(inner.width() * 0.3, 0),
                   inner.bottomRight() - QPointF(inner.width() * 0.3, 0));
        p.drawLine(inner.bottomLeft() + QPointF(inner.width() * 0.3, 0),
                   inner.topRight() - QPointF(inner.width() * 0.3, 0));
    }
}

Draw lyingBattery(Charge c)
{
    return [c](QPainter& p, int w, int h) { battery(p, w, h, c); };
}

Draw uprightBattery(Charge c)
{
    return [c](QPainter& p, int w, int h) {
        // turn a lying battery so that the nub points up and the charge
        // rises from the bottom
        p.translate(0, h);
        p.rotate(-90);
        battery(p, h, w, c, true);
    };
}

// A mains plug with its cable and a lightning bolt, lying (cable from the left).
void mainsPlug(QPainter& p, qreal w, qreal h)
{
    const qreal cy = h / 2;
    p.setPen(pen(White, h * 0.2));
    p.drawLine(QPointF(2, cy), QPointF(w * 0.3, cy));
    p.setPen(pen(Qt::black, 1));
    p.setBrush(White);
    p.drawRoundedRect(QRectF(w * 0.25, h * 0.08, w * 0.32, h * 0.84), h * 0.14, h * 0.14);
    p.setBrush(Silver);
    p.drawRect(QRectF(w * 0.57, h * 0.22, w * 0.15, h * 0.17));
    p.drawRect(QRectF(w * 0.57, h * 0.61, w * 0.15, h * 0.17));
    lightning(p, QRectF(w * 0.74, 0, w * 0.26, h));
}

// ---------------------------------------------------------------- icons

void drawAcAdapter(QPainter& p, int w, int h)
{
    mainsPlug(p, w, h);
}

void drawVacAdapter(QPainter& p, int w, int h)
{
    // upright: bolt on top, prongs up, cable down
    const qreal cx = w / 2.0;
    lightning(p, QRectF(cx - w * 0.3, 2, w * 0.6, h * 0.3));
    p.setPen(pen(Qt::black, 1));
    p.setBrush(Silver);
    p.drawRect(QRectF(cx - w * 0.28, h * 0.36, w * 0.16, h * 0.11));
    p.drawRect(QRectF(cx + w * 0.12, h * 0.36, w * 0.16, h * 0.11));
    p.setBrush(White);
    p.drawRoundedRect(QRectF(cx - w * 0.38, h * 0.47, w * 0.76, h * 0.27), 3, 3);
    p.setPen(pen(White, w * 0.14));
    p.drawLine(QPointF(cx, h * 0.74), QPointF(cx, h - 2));
}

void drawUsbInfo(QPainter& p, int w, int h)
{
    usbTrident(p, QPointF(w * 0.08, h * 0.5), w * 0.84, Cyan);
}

void drawUsbPort(QPainter& p, int, int)
{
    // a USB stick standing up: metal plug on top, body below
    p.setPen(pen(Qt::black, 1.5));
    p.setBrush(Silver);
    p.drawRect(QRectF(17, 2, 14, 13));
    p.setBrush(DarkGrey);
    p.drawRect(QRectF(20, 6, 3, 3));
    p.drawRect(QRectF(25, 6, 3, 3));
    QLinearGradient g(13, 0, 35, 0);
    g.setColorAt(0, QColor(0, 120, 200));
    g.setColorAt(1, QColor(0, 70, 140));
    p.setBrush(g);
    p.setPen(pen(Cyan, 2));
    p.drawRoundedRect(QRectF(12, 15, 24, 31), 4, 4);
    p.save();
    p.translate(24, 42);
    p.rotate(-90);
    usbTrident(p, QPointF(0, 0), 23, White);
    p.restore();
}

void drawBelrix(QPainter& p, int, int)
{
    // service: a wrench crossed with a screwdriver
    p.setPen(pen(Qt::black, 9));
    p.drawLine(QPointF(9, 9), QPointF(38, 38));
    p.setPen(pen(Silver, 4));
    p.drawLine(QPointF(20, 20), QPointF(40, 40));
    p.setPen(pen(Qt::black, 1.5));
    p.setBrush(Amber);
    p.save();
    p.translate(14, 14);
    p.rotate(45);
    p.drawRoundedRect(QRectF(-9, -5, 18, 10), 4, 4);
    p.restore();

    QPainterPath wrench;
    wrench.addEllipse(QPointF(35, 13), 10, 10);
    QPainterPath jaw;
    jaw.moveTo(35, 13);
    jaw.lineTo(47, 1);
    jaw.lineTo(47, 13);
    jaw.lineTo(35, 13);
    jaw.lineTo(35, 1);
    jaw.lineTo(47, 1);
    QPainterPath slot;
    slot.addRect(QRectF(-4, -14, 8, 14));
    QTransform t;
    t.translate(35, 13);
    t.rotate(45);
    wrench = wrench.subtracted(t.map(slot));
    QPainterPath handle;
    handle.moveTo(0, -3.5);
    handle.lineTo(32, -3.5);
    handle.arcTo(QRectF(28.5, -3.5, 7, 7), 90, -180);
    handle.lineTo(0, 3.5);
    handle.closeSubpath();
    QTransform th;
    th.translate(35, 13);
    th.rotate(135);
    wrench = wrench.united(th.map(handle));
    p.setPen(pen(Qt::black, 1.5));
    QLinearGradient g(10, 10, 40, 40);
    g.setColorAt(0, White);
    g.setColorAt(1, Grey);
    p.setBrush(g);
    p.drawPath(wrench);
}

void drawControlCenter(QPainter& p, int, int)
{
    // system settings: a gear
    const QPointF c(24, 24);
    const int teeth = 8;
    QPolygonF outline;
    for (int i = 0; i < teeth; ++i) {
        const qreal a = i * 2 * M_PI / teeth;
        const qreal half = M_PI / teeth;
        const qreal points[][2] = {{a - half * 0.95, 16}, {a - half * 0.5, 21.5},
                                   {a + half * 0.5, 21.5}, {a + half * 0.95, 16}};
        for (const auto& pt : points)
            outline << c + QPointF(qCos(pt[0]), qSin(pt[0])) * pt[1];
    }
    QPainterPath gear;
    gear.addPolygon(outline);
    gear.closeSubpath();
    QPainterPath hole;
    hole.addEllipse(c, 7, 7);
    gear = gear.subtracted(hole);
    QRadialGradient g(QPointF(18, 16), 30);
    g.setColorAt(0, White);
    g.setColorAt(1, Grey);
    p.setPen(pen(Qt::black, 1.5));
    p.setBrush(g);
    p.drawPath(gear);
    p.setPen(pen(Cyan, 3));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(c, 7, 7);
}

void drawPannello(QPainter& p, int, int)
{
    moduleSymbol(p, QRectF(9, 2, 30, 44));
}

void drawStringa(QPainter& p, int, int)
{
    // three modules in series, + lead at the left end, - lead at the right
    const qreal tops[] = {2, 18, 34};
    for (qreal x : tops)
        moduleSymbol(p, QRectF(x, 4, 12, 26), 2, 4);
    p.setBrush(Qt::NoBrush);
    p.setPen(pen(White, 2.5));
    p.drawLine(QPointF(12, 32), QPointF(20, 32));
    p.drawLine(QPointF(28, 32), QPointF(36, 32));
    p.setPen(pen(PlusLead, 3));
    p.drawPolyline(QPolygonF() << QPointF(4, 30) << QPointF(4, 44));
    p.setPen(pen(MinusLead, 3));
    p.drawPolyline(QPolygonF() << QPointF(44, 30) << QPointF(44, 44));
}

void drawArchivePanel(QPainter& p, int, int)
{
    archive(p, [&p](const QRectF& r) {
        moduleSymbol(p, QRectF(r.center().x() - 7, r.top(), 14, r.height() + 4), 2, 3);
    });
}

void drawArchiveMeasure(QPainter& p, int, int)
{
    archive(p, [&p](const QRectF& r) {
        p.setPen(pen(DarkGrey, 1.5));
        p.drawLine(r.bottomLeft(), r.topLeft());
        p.drawLine(r.bottomLeft(), r.bottomRight());
        p.setPen(pen(QColor(220, 110, 0), 2.5));
        p.drawPath(ivCurve(r.adjusted(2, 2, -1, -2)));
    });
}

void drawArchiveImpianti(QPainter& p, int, int)
{
    // an installation: a building with photovoltaic modules on its roof
    archive(p, [&p](const QRectF& r) {
        QPolygonF house;
        house << QPointF(r.left(), r.bottom() + 2) << QPointF(r.left(), r.top() + 9)
              << QPointF(r.center().x(), r.top()) << QPointF(r.right(), r.top() + 9)
              << QPointF(r.right(), r.bottom() + 2);
        p.setPen(pen(DarkGrey, 1.5));
        p.setBrush(QColor(220, 220, 225));
        p.drawPolygon(house);
        p.setPen(pen(CellBlue, 4));
        p.drawLine(QPointF(r.left() + 2, r.top() + 8), QPointF(r.center().x() - 1, r.top() + 2));
        p.setPen(Qt::NoPen);
        p.setBrush(DarkGrey);
        p.drawRect(QRectF(r.center().x() + 2, r.bottom() - 6, 5, 8));
    });
}

void drawArchiveList(QPainter& p, int, int)
{
    sheet(p, QRectF(8, 3, 32, 42));
    for (int i = 0; i < 4; ++i) {
        const qreal y = 15 + i * 8;
        p.setPen(Qt::NoPen);
        p.setBrush(Amber.darker(110));
        p.drawEllipse(QPointF(14, y), 2.5, 2.5);
        p.setPen(pen(DarkGrey, 3));
        p.drawLine(QPointF(19, y), QPointF(i == 0 ? 28 : 34, y));
    }
}

void drawApply(QPainter& p, int, int)
{
    check(p, QPointF(7, 25), QPointF(19, 37), QPointF(41, 10), Green, 7);
}

void drawConfirm(QPainter& p, int, int)
{
    p.setPen(pen(Qt::black, 1.5));
    QRadialGradient g(QPointF(18, 16), 30);
    g.setColorAt(0, Green.lighter(130));
    g.setColorAt(1, Green.darker(140));
    p.setBrush(g);
    p.drawEllipse(QPointF(24, 24), 22, 22);
    check(p, QPointF(13, 24), QPointF(21, 33), QPointF(35, 15), White, 5);
}

void drawExit(QPainter& p, int, int)
{
    // an open door with an arrow going out of it
    p.setPen(pen(White, 3));
    p.setBrush(Qt::NoBrush);
    p.drawPolyline(QPolygonF() << QPointF(24, 12) << QPointF(24, 4) << QPointF(4, 4)
                               << QPointF(4, 44) << QPointF(24, 44) << QPointF(24, 36));
    QPolygonF door;
    door << QPointF(4, 4) << QPointF(17, 9) << QPointF(17, 47) << QPointF(4, 44);
    p.setPen(pen(Qt::black, 1));
    p.setBrush(Silver);
    p.drawPolygon(door);
    p.setBrush(DarkGrey);
    p.drawEllipse(QPointF(14, 27), 1.6, 1.6);
    p.setPen(pen(Qt::black, 1.5));
    p.setBrush(Green);
    p.drawPolygon(arrowRight(QRectF(20, 14, 27, 20)));
}

void drawCancel(QPainter& p, int, int)
{
    p.setPen(pen(Qt::black, 1.5));
    QRadialGradient g(QPointF(18, 16), 30);
    g.setColorAt(0, Red.lighter(130));
    g.setColorAt(1, Red.darker(140));
    p.setBrush(g);
    p.drawEllipse(QPointF(24, 24), 22, 22);
    p.setPen(pen(White, 6));
    p.drawLine(QPointF(15, 15), QPointF(33, 33));
    p.drawLine(QPointF(33, 15), QPointF(15, 33));
}

void drawSave(QPainter& p, int, int)
{
    // a memory card with an arrow going into it
    QPolygonF card;
    card << QPointF(8, 16) << QPointF(34, 16) << QPointF(42, 24) << QPointF(42, 46)
         << QPointF(8, 46);
    p.setPen(pen(Cyan, 2.5));
    p.setBrush(QColor(0, 70, 140));
    p.drawPolygon(card);
    p.setPen(Qt::NoPen);
    p.setBrush(Amber);
    for (int i = 0; i < 4; ++i)
        p.drawRect(QRectF(13 + i * 6, 38, 3.5, 6));
    p.setPen(pen(Qt::black, 1.5));
    p.setBrush(Green);
    p.save();
    p.translate(25, 2);
    p.rotate(90);
    p.drawPolygon(arrowRight(QRectF(0, -10, 30, 20)));
    p.restore();
}

void drawNext(QPainter& p, int, int)
{
    p.setPen(pen(Qt::black, 2));
    QLinearGradient g(0, 8, 0, 40);
    g.setColorAt(0, Cyan.lighter(130));
    g.setColorAt(1, Cyan.darker(130));
    p.setBrush(g);
    p.drawPolygon(arrowRight(QRectF(3, 6, 42, 36)));
}

void drawViewRefresh(QPainter& p, int, int)
{
    // two arrows chasing each other round a circle
    const QRectF ring(8, 8, 32, 32);
    for (int half = 0; half < 2; ++half) {
        p.save();
        p.translate(24, 24);
        p.rotate(half * 180);
        p.translate(-24, -24);
        QPainterPath arc;
        arc.arcMoveTo(ring, 200);
        arc.arcTo(ring, 200, 120);
        p.setBrush(Qt::NoBrush);
        p.setPen(pen(Qt::black, 8.5));
        p.drawPath(arc);
        p.setPen(pen(Cyan, 5));
        p.drawPath(arc);
        // head at the end of the arc (angle 320 degrees)
        const qreal a = qDegreesToRadians(320.0);
        const QPointF end(24 + 16 * qCos(a), 24 - 16 * qSin(a));
        const QPointF tangent(qSin(a), qCos(a)); // direction of travel
        const QPointF normal(-tangent.y(), tangent.x());
        QPolygonF head;
        head << end + tangent * 9 << end + normal * 8 << end - normal * 8;
        p.setPen(pen(Qt::black, 1.5));
        p.setBrush(Cyan);
        p.drawPolygon(head);
        p.restore();
    }
}

void drawAdd(QPainter& p, int, int)
{
    p.setPen(pen(Qt::black, 1.5));
    p.setBrush(Green);
    QPainterPath plus;
    plus.addRect(QRectF(19, 5, 10, 38));
    plus.addRect(QRectF(5, 19, 38, 10));
    plus.setFillRule(Qt::WindingFill);
    p.drawPath(plus.simplified());
}

void drawRemove(QPainter& p, int, int)
{
    p.setPen(pen(Qt::black, 1.5));
    p.setBrush(Red);
    p.drawRect(QRectF(5, 19, 38, 10));
}

void drawTrash(QPainter& p, int, int)
{
    p.setPen(pen(White, 3));
    p.setBrush(Qt::NoBrush);
    p.drawLine(QPointF(6, 11), QPointF(42, 11));
    p.drawPolyline(QPolygonF() << QPointF(18, 10) << QPointF(18, 5) << QPointF(30, 5)
                               << QPointF(30, 10));
    QPolygonF can;
    can << QPointF(10, 15) << QPointF(38, 15) << QPointF(35, 45) << QPointF(13, 45);
    p.setBrush(QColor(160, 30, 25));
    p.drawPolygon(can);
    p.setPen(pen(White, 2.5));
    for (qreal x : {18.0, 24.0, 30.0})
        p.drawLine(QPointF(x, 20), QPointF(x + (x - 24) * 0.1, 40));
}

void drawEdit(QPainter& p, int, int)
{
    pencil(p, QPointF(40, 8), QPointF(8, 40), 11);
}

void drawInsertNew(QPainter& p, int, int)
{
    sheet(p, QRectF(5, 3, 30, 40));
    p.setPen(pen(DarkGrey, 2.5));
    for (int i = 0; i < 3; ++i)
        p.drawLine(QPointF(10, 17 + i * 7), QPointF(26, 17 + i * 7));
    plusBadge(p, QPointF(35, 35), 11);
}

void drawEditPanel(QPainter& p, int, int)
{
    moduleSymbol(p, QRectF(4, 2, 26, 40));
    pencil(p, QPointF(46, 8), QPointF(20, 44), 9);
}

void drawPanelNew(QPainter& p, int, int)
{
    moduleSymbol(p, QRectF(4, 2, 26, 40));
    plusBadge(p, QPointF(35, 35), 11);
}

void drawFindPanel(QPainter& p, int, int)
{
    moduleSymbol(p, QRectF(3, 2, 26, 40));
    magnifier(p, QPointF(28, 24), 10);
}

void drawGraphPanel(QPainter& p, int, int)
{
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(30, 30, 35));
    p.drawRoundedRect(QRectF(1, 1, 46, 46), 4, 4);
    p.setPen(pen(DarkGrey, 1));
    for (int i = 1; i < 4; ++i) {
        p.drawLine(QPointF(8 + i * 9, 6), QPointF(8 + i * 9, 41));
        p.drawLine(QPointF(7, 41 - i * 9), QPointF(43, 41 - i * 9));
    }
    graphSymbol(p, QRectF(7, 5, 37, 36), 3.5);
}

// ---------------------------------------------------------------- keys

// The key glyphs are white with a dark rim so that they stand out on a dark
// key as well as on a light one.
void keyStroke(QPainter& p, const QPainterPath& path, qreal width, bool fill)
{
    p.setPen(pen(Qt::black, width + 2.5));
    p.setBrush(fill ? QBrush(Qt::black) : Qt::NoBrush);
    p.drawPath(path);
    p.setPen(pen(White, width));
    p.setBrush(fill ? QBrush(White) : Qt::NoBrush);
    p.drawPath(path);
}

void drawCapsLock(QPainter& p, int w, int h)
{
    const qreal cx = w / 2.0;
    QPainterPath arrow;
    arrow.moveTo(cx, 1.5);
    arrow.lineTo(cx + 7, 7.5);
    arrow.lineTo(cx + 3.5, 7.5);
    arrow.lineTo(cx + 3.5, 10.5);
    arrow.lineTo(cx - 3.5, 10.5);
    arrow.lineTo(cx - 3.5, 7.5);
    arrow.lineTo(cx - 7, 7.5);
    arrow.closeSubpath();
    keyStroke(p, arrow, 1.5, false);
    QPainterPath bar;
    bar.moveTo(cx - 3.5, h - 2.5);
    bar.lineTo(cx + 3.5, h - 2.5);
    keyStroke(p, bar, 2, false);
}

void keyArrow(QPainter& p, int w, int h, bool left)
{
    p.save();
    if (left) {
        p.translate(w, 0);
        p.scale(-1, 1);
    }
    QPainterPath arrow;
    const qreal cy = h / 2.0;
    arrow.moveTo(6, cy);
    arrow.lineTo(w - 8, cy);
    arrow.moveTo(w - 13, cy - 5);
    arrow.lineTo(w - 7, cy);
    arrow.lineTo(w - 13, cy + 5);
    keyStroke(p, arrow, 2.5, false);
    p.restore();
}

void drawLeft(QPainter& p, int w, int h)
{
    keyArrow(p, w, h, true);
}

void drawRight(QPainter& p, int w, int h)
{
    keyArrow(p, w, h, false);
}

void drawBackspace(QPainter& p, int w, int h)
{
    QPainterPath key;
    key.moveTo(4, h / 2.0);
    key.lineTo(10, 2);
    key.lineTo(w - 5, 2);
    key.lineTo(w - 5, h - 2);
    key.lineTo(10, h - 2);
    key.closeSubpath();
    keyStroke(p, key, 1.5, false);
    QPainterPath cross;
    const QPointF c(w / 2.0 + 2.5, h / 2.0);
    cross.moveTo(c + QPointF(-3.5, -3.5));
    cross.lineTo(c + QPointF(3.5, 3.5));
    cross.moveTo(c + QPointF(3.5, -3.5));
    cross.lineTo(c + QPointF(-3.5, 3.5));
    keyStroke(p, cross, 2, false);
}

void drawEnter(QPainter& p, int, int)
{
    QPainterPath arrow;
    arrow.moveTo(25, 6);
    arrow.lineTo(25, 20);
    arrow.lineTo(8, 20);
    arrow.moveTo(14, 13);
    arrow.lineTo(7, 20);
    arrow.lineTo(14, 27);
    keyStroke(p, arrow, 3, false);
}

// ---------------------------------------------------------------- links

void drawBluetooth(QPainter& p, int, int)
{
    QPainterPath badge;
    badge.addRoundedRect(QRectF(9, 1, 30, 46), 15, 15);
    p.setPen(pen(White, 2));
    QLinearGradient g(0, 0, 0, 48);
    g.setColorAt(0, QColor(40, 130, 255));
    g.setColorAt(1, QColor(0, 60, 170));
    p.setBrush(g);
    p.drawPath(badge);
    QPainterPath rune;
    rune.moveTo(16, 16);
    rune.lineTo(31, 31);
    rune.lineTo(24, 38);
    rune.lineTo(24, 10);
    rune.lineTo(31, 17);
    rune.lineTo(16, 32);
    p.setBrush(Qt::NoBrush);
    p.setPen(pen(White, 3.5));
    p.drawPath(rune);
}

// A radio mast with n of its three waves lit on each side.
void drawRadio(QPainter& p, int lit)
{
    const QPointF top(24, 18);
    p.setBrush(Qt::NoBrush);
    for (int i = 0; i < 3; ++i) {
        const qreal r = 7 + i * 6.5;
        const QRectF box(top.x() - r, top.y() - r, 2 * r, 2 * r);
        p.setPen(pen(i < lit ? Cyan : DarkGrey, 3));
        p.drawArc(box, -40 * 16, 80 * 16);
        p.drawArc(box, 140 * 16, 80 * 16);
    }
    p.setPen(pen(White, 3));
    p.drawLine(top, QPointF(15, 46));
    p.drawLine(top, QPointF(33, 46));
    p.drawLine(QPointF(19.5, 33), QPointF(28.5, 33));
    p.setPen(Qt::NoPen);
    p.setBrush(lit > 0 ? Amber : Grey);
    p.drawEllipse(top, 4, 4);
}

// A USB to serial adapter: USB plug, cable, nine-pin serial connector.
void serialAdapter(QPainter& p, qreal y)
{
    p.setPen(pen(Qt::black, 1.5));
    p.setBrush(Silver);
    p.drawRect(QRectF(1, y - 4, 8, 8));
    p.setBrush(QColor(0, 110, 190));
    p.drawRoundedRect(QRectF(8, y - 6, 10, 12), 2, 2);
    p.setPen(pen(White, 2.5));
    p.drawLine(QPointF(18, y), QPointF(28, y));
    QPolygonF dsub;
    dsub << QPointF(28, y - 9) << QPointF(47, y - 7) << QPointF(47, y + 7)
         << QPointF(28, y + 9);
    p.setPen(pen(Qt::black, 1.5));
    p.setBrush(Silver);
    p.drawPolygon(dsub);
    p.setPen(Qt::NoPen);
    p.setBrush(DarkGrey);
    for (int i = 0; i < 3; ++i) {
        p.drawEllipse(QPointF(34, y - 5 + i * 5), 1.4, 1.4);
        p.drawEllipse(QPointF(41, y - 4.5 + i * 4.5), 1.4, 1.4);
    }
}

void drawUsbAdapter(QPainter& p, int, int)
{
    serialAdapter(p, 24);
}

void drawSerialProgress(QPainter& p, int lit)
{
    serialAdapter(p, 17);
    for (int i = 0; i < 3; ++i) {
        p.setPen(pen(Qt::black, 1));
        p.setBrush(i < lit ? Green : DarkGrey);
        p.drawEllipse(QPointF(12 + i * 12, 39), 4.5, 4.5);
    }
}

void drawAlertBig(QPainter& p, int w, int h)
{
    QPainterPath triangle;
    triangle.moveTo(w / 2.0, 10);
    triangle.lineTo(w - 6, h - 12);
    triangle.lineTo(6, h - 12);
    triangle.closeSubpath();
    p.setPen(pen(Qt::black, 14));
    p.setBrush(Qt::black);
    p.drawPath(triangle);
    p.setPen(pen(Amber, 9));
    QLinearGradient g(0, 10, 0, h);
    g.setColorAt(0, Amber.lighter(120));
    g.setColorAt(1, Orange);
    p.setBrush(g);
    p.drawPath(triangle);
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::black);
    QPainterPath bar;
    bar.moveTo(w / 2.0 - 8, 42);
    bar.lineTo(w / 2.0 + 8, 42);
    bar.lineTo(w / 2.0 + 5, 86);
    bar.lineTo(w / 2.0 - 5, 86);
    bar.closeSubpath();
    p.drawPath(bar);
    p.drawEllipse(QPointF(w / 2.0, 100), 7, 7);
}

// ---------------------------------------------------------------- flags

void flagFrame(QPainter& p, int w, int h)
{
    p.setPen(QPen(Grey, 1));
    p.setBrush(Qt::NoBrush);
    p.drawRect(QRectF(0.5, 0.5, w - 1, h - 1));
}

Draw verticalTricolour(QColor a, QColor b, QColor c)
{
    return [a, b, c](QPainter& p, int w, int h) {
        p.setPen(Qt::NoPen);
        const QColor bands[] = {a, b, c};
        for (int i = 0; i < 3; ++i) {
            p.setBrush(bands[i]);
            p.drawRect(QRectF(w * i / 3.0, 0, w / 3.0 + 0.5, h));
        }
        flagFrame(p, w, h);
    };
}

Draw horizontalBands(std::vector<std::pair<QColor, qreal>> bands)
{
    return [bands](QPainter& p, int w, int h) {
        p.setPen(Qt::NoPen);
        qreal y = 0;
        for (const auto& band : bands) {
            p.setBrush(band.first);
            p.drawRect(QRectF(0, y * h, w, band.second * h + 0.5));
            y += band.second;
        }
        flagFrame(p, w, h);
    };
}

void drawFlagEngland(QPainter& p, int w, int h)
{
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::white);
    p.drawRect(0, 0, w, h);
    p.setBrush(QColor(205, 20, 40));
    const qreal bar = h / 5.0;
    p.drawRect(QRectF(0, (h - bar) / 2, w, bar));
    p.drawRect(QRectF((w - bar) / 2, 0, bar, h));
    flagFrame(p, w, h);
}

// ---------------------------------------------------------------- images

void drawSplash(QPainter& p, int w, int h)
{
    QLinearGradient sky(0, 0, 0, h);
    sky.setColorAt(0, QColor(0, 25, 60));
    sky.setColorAt(0.65, QColor(0, 5, 15));
    sky.setColorAt(1, Qt::black);
    p.fillRect(0, 0, w, h, sky);

    QRadialGradient glow(QPointF(w - 120, 110), 260);
    glow.setColorAt(0, QColor(255, 200, 60, 110));
    glow.setColorAt(0.4, QColor(255, 200, 60, 40));
    glow.setColorAt(0.7, QColor(255, 200, 60, 12));
    glow.setColorAt(1, QColor(255, 200, 60, 0));
    p.setPen(Qt::NoPen);
    p.setBrush(glow);
    p.drawEllipse(QPointF(w - 120, 110), 260, 260);
    sun(p, QPointF(w - 120, 110), 42, 7);

    // a row of modules along the bottom edge, in perspective
    for (int i = 0; i < 8; ++i) {
        const qreal x0 = 24 + i * 124;
        QPolygonF tilt;
        tilt << QPointF(x0 + 14, h - 100) << QPointF(x0 + 110, h - 100)
             << QPointF(x0 + 100, h - 22) << QPointF(x0, h - 22);
        QLinearGradient g(0, h - 100, 0, h - 22);
        g.setColorAt(0, CellBlue.lighter(150));
        g.setColorAt(1, CellBlue.darker(150));
        p.setPen(QPen(Silver, 3));
        p.setBrush(g);
        p.drawPolygon(tilt);
        p.setPen(QPen(CellLine, 1.2));
        for (int c = 1; c < 4; ++c) {
            const qreal f = c / 4.0;
            p.drawLine(QPointF(x0 + 14 + 96 * f, h - 100), QPointF(x0 + 100 * f, h - 22));
        }
        for (int r = 1; r < 3; ++r) {
            const qreal f = r / 3.0;
            p.drawLine(QPointF(x0 + 14 - 14 * f, h - 100 + 78 * f),
                       QPointF(x0 + 110 - 10 * f, h - 100 + 78 * f));
        }
    }

    // title
    p.setPen(White);
    p.setFont(font(112));
    p.drawText(QRectF(60, 90, 700, 150), Qt::AlignLeft | Qt::AlignVCenter,
               QStringLiteral("KRM 510"));
    p.setPen(Amber);
    p.setFont(font(44));
    p.drawText(QRectF(66, 235, 560, 60), Qt::AlignLeft | Qt::AlignVCenter,
               QStringLiteral("I-V curve tracer"));
    p.setPen(QColor(180, 190, 210));
    p.setFont(font(24, false));
    p.drawText(QRectF(68, 300, 560, 40), Qt::AlignLeft | Qt::AlignVCenter,
               QStringLiteral("Photovoltaic modules and strings"));

    // the curves: I-V in amber, P-V in cyan, the maximum power point
    const QRectF plot(640, 270, 310, 180);
    p.setPen(pen(QColor(120, 130, 150), 3));
    p.drawLine(plot.bottomLeft() + QPointF(0, 4), plot.topLeft() - QPointF(0, 20));
    p.drawLine(plot.bottomLeft() + QPointF(-4, 0), plot.bottomRight() + QPointF(24, 0));
    p.setFont(font(22));
    p.drawText(QRectF(plot.left() - 30, plot.top() - 48, 30, 30), Qt::AlignCenter,
               QStringLiteral("I"));
    p.drawText(QRectF(plot.right() + 20, plot.bottom() - 15, 30, 30), Qt::AlignCenter,
               QStringLiteral("V"));
    const QRectF curves = plot.adjusted(4, 10, -6, 0);
    p.setBrush(Qt::NoBrush);
    QPen dashed = pen(Cyan, 4);
    dashed.setDashPattern({2, 2.5});
    p.setPen(dashed);
    p.drawPath(pvCurve(curves.adjusted(0, 40, 0, 0)));
    p.setPen(pen(Amber, 7));
    p.drawPath(ivCurve(curves));
}

// The instrument as seen from the front: body, screen, measuring terminals on
// the top edge (the - terminal left of the +), sensor sockets on the right
// side. Returns nothing; the caller knows the geometry it passed.
struct Instrument
{
    QRectF body;
    QPointF minus, plus;   // top terminals
    QPointF tempSocket;    // right side, upper
    QPointF irrSocket;     // right side, lower
};

Instrument instrument(QPainter& p, const QRectF& body)
{
    Instrument in;
    in.body = body;
    in.minus = QPointF(body.left() + body.width() * 0.3, body.top() - 16);
    in.plus = QPointF(body.left() + body.width() * 0.7, body.top() - 16);
    in.tempSocket = QPointF(body.right() + 10, body.top() + body.height() * 0.55);
    in.irrSocket = QPointF(body.right() + 10, body.top() + body.height() * 0.78);

    // terminals and sockets first, the body covers their bases
    p.setPen(pen(Qt::black, 2));
    for (const auto& t : {std::make_pair(in.minus, MinusLead), std::make_pair(in.plus, PlusLead)}) {
        p.setBrush(t.second);
        p.drawRoundedRect(QRectF(t.first.x() - 15, t.first.y() - 8, 30, 30), 5, 5);
    }
    p.setBrush(DarkGrey.lighter(130));
    for (const QPointF& s : {in.irrSocket, in.tempSocket})
        p.drawRoundedRect(QRectF(s.x() - 16, s.y() - 11, 22, 22), 4, 4);

    QLinearGradient g(body.topLeft(), body.bottomRight());
    g.setColorAt(0, QColor(90, 95, 105));
    g.setColorAt(1, QColor(40, 42, 48));
    p.setPen(pen(Silver, 3));
    p.setBrush(g);
    p.drawRoundedRect(body, 18, 18);
    const QRectF screen = body.adjusted(22, 22, -22, -body.height() * 0.38);
    p.setPen(pen(Grey, 2));
    p.setBrush(Qt::black);
    p.drawRect(screen);
    graphSymbol(p, screen.adjusted(14, 12, -14, -10), 3);
    p.setPen(White);
    p.setFont(font(26));
    p.drawText(QRectF(body.left(), screen.bottom() + 8, body.width(), 40), Qt::AlignCenter,
               QStringLiteral("KRM 510"));
    // hardware keys
    p.setPen(pen(Qt::black, 1.5));
    p.setBrush(Grey);
    for (int i = 0; i < 4; ++i)
        p.drawRoundedRect(QRectF(body.left() + 28 + i * (body.width() - 56) / 4.0 + 4,
                                 body.bottom() - 48, (body.width() - 56) / 4.0 - 8, 26),
                          6, 6);
    // the signs on the terminals
    p.setFont(font(26));
    p.setPen(White);
    p.drawText(QRectF(in.minus.x() - 15, in.minus.y() - 8, 30, 24), Qt::AlignCenter,
               QStringLiteral("\u2212"));
    p.drawText(QRectF(in.plus.x() - 15, in.plus.y() - 8, 30, 24), Qt::AlignCenter,
               QStringLiteral("+"));
    return in;
}

void cable(QPainter& p, const QPainterPath& path, const QColor& c, qreal width = 7)
{
    p.setBrush(Qt::NoBrush);
    p.setPen(pen(Qt::black, width + 4));
    p.drawPath(path);
    p.setPen(pen(c, width));
    p.drawPath(path);
}

// A lead's end at a module: a small connector with its sign beside it.
void leadEnd(QPainter& p, const QPointF& at, bool positive, bool sign = true)
{
    const QColor c = positive ? PlusLead : MinusLead;
    p.setPen(pen(Qt::black, 1.5));
    p.setBrush(c);
    p.drawRoundedRect(QRectF(at.x() - 7, at.y() - 18, 14, 20), 3, 3);
    if (!sign)
        return;
    p.setPen(c);
    p.setFont(font(28));
    p.drawText(QRectF(at.x() - (positive ? 38 : -10), at.y() - 50, 28, 30), Qt::AlignCenter,
               positive ? QStringLiteral("+") : QStringLiteral("\u2212"));
}

// The irradiance reference cell, with its sun and unit; returns where its
// cable leaves.
QPointF irradianceSensor(QPainter& p, const QRectF& r)
{
    moduleSymbol(p, r, 1, 1);
    p.setPen(White);
    p.setFont(font(20));
    p.drawText(QRectF(r.center().x() - 50, r.bottom() + 4, 100, 26), Qt::AlignCenter,
               QStringLiteral("W/m\u00b2"));
    return QPointF(r.center().x(), r.bottom() + 30);
}

// The temperature probe glued on the back of a module (drawn dashed, behind
// the cells); returns where its cable leaves.
QPointF temperatureProbe(QPainter& p, const QPointF& c)
{
    QPen dashed(White, 3);
    dashed.setDashPattern({3, 2});
    p.setPen(dashed);
    p.setBrush(QColor(255, 255, 255, 50));
    p.drawEllipse(c, 16, 16);
    thermometer(p, c + QPointF(0, 9), 22);
    return c + QPointF(0, 16);
}

void probeLabel(QPainter& p, const QPointF& at)
{
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0, 0, 0, 190));
    p.drawRoundedRect(QRectF(at.x() - 2, at.y() - 14, 36, 28), 5, 5);
    p.setPen(White);
    p.setFont(font(20));
    p.drawText(QRectF(at.x(), at.y() - 13, 60, 26), Qt::AlignLeft | Qt::AlignVCenter,
               QStringLiteral("\u00b0C"));
}

void drawSchemaPannello(QPainter& p, int w, int h)
{
    p.fillRect(0, 0, w, h, Qt::black);
    sun(p, QPointF(w - 60, 55), 26, 5);
    const Instrument in = instrument(p, QRectF(40, 150, 260, 250));

    const QRectF module(500, 70, 200, 320);
    moduleSymbol(p, module, 6, 10);
    const QPointF plusEnd(module.left() + 60, module.top());
    const QPointF minusEnd(module.left() + 140, module.top());

    // leads: from the top of the module over to the top of the instrument,
    // the - lead outside the + lead so that they never cross
    QPainterPath plusLead(in.plus + QPointF(0, -8));
    plusLead.cubicTo(in.plus + QPointF(0, -90), plusEnd + QPointF(0, -70), plusEnd);
    QPainterPath minusLead(in.minus + QPointF(0, -8));
    minusLead.cubicTo(in.minus + QPointF(0, -125), minusEnd + QPointF(0, -105), minusEnd);
    cable(p, minusLead, MinusLead);
    cable(p, plusLead, PlusLead);
    leadEnd(p, plusEnd, true);
    leadEnd(p, minusEnd, false);

    // irradiance sensor in the plane of the module, cable down and left
    const QPointF irrOut = irradianceSensor(p, QRectF(770, 110, 70, 70));
    QPainterPath irrCable(irrOut);
    irrCable.lineTo(irrOut.x(), h - 12);
    irrCable.lineTo(in.irrSocket.x() + 90, h - 12);
    irrCable.cubicTo(QPointF(in.irrSocket.x() + 40, h - 12),
                     QPointF(in.irrSocket.x() + 60, in.irrSocket.y()), in.irrSocket);
    cable(p, irrCable, Amber, 4);

    // temperature probe at the back of the module
    const QPointF probeOut = temperatureProbe(p, QPointF(module.center().x(), module.bottom() - 80));
    QPainterPath probeCable(probeOut);
    probeCable.lineTo(probeOut.x(), h - 30);
    probeCable.lineTo(in.tempSocket.x() + 70, h - 30);
    probeCable.cubicTo(QPointF(in.tempSocket.x() + 30, h - 30),
                       QPointF(in.tempSocket.x() + 40, in.tempSocket.y()), in.tempSocket);
    cable(p, probeCable, White, 4);
    probeLabel(p, QPointF(module.center().x() + 22, module.bottom() - 80));
}

void drawSchemaStringhe(QPainter& p, int w, int h)
{
    p.fillRect(0, 0, w, h, Qt::black);
    sun(p, QPointF(w - 50, 45), 22, 4);
    const Instrument in = instrument(p, QRectF(30, 150, 240, 250));

    // three modules drawn, a gap with dots for the others
    const qreal top = 90, height = 250, width = 110;
    const qreal xs[] = {350, 490, 670};
    for (qreal x : xs)
        moduleSymbol(p, QRectF(x, top, width, height), 4, 8);
    p.setPen(Qt::NoPen);
    p.setBrush(White);
    for (int i = 0; i < 3; ++i)
        p.drawEllipse(QPointF(630 + i * 12 - 12, top + height / 2), 4, 4);

    // series links: - of each module to + of the next
    auto plusOf = [&](qreal x) { return QPointF(x + 30, top); };
    auto minusOf = [&](qreal x) { return QPointF(x + width - 30, top); };
    auto jumper = [&](const QPointF& a, const QPointF& b) {
        QPainterPath path(a);
        path.cubicTo(a + QPointF(0, -45), b + QPointF(0, -45), b);
        cable(p, path, White, 5);
    };
    jumper(minusOf(xs[0]), plusOf(xs[1]));
    // the chain continues through the modules not drawn
    QPainterPath toGap(minusOf(xs[1]));
    toGap.cubicTo(minusOf(xs[1]) + QPointF(0, -40), QPointF(610, top - 40), QPointF(618, top - 40));
    cable(p, toGap, White, 5);
    QPainterPath fromGap(QPointF(642, top - 40));
    fromGap.cubicTo(QPointF(650, top - 40), plusOf(xs[2]) + QPointF(0, -40), plusOf(xs[2]));
    cable(p, fromGap, White, 5);

    // the ends of the string to the instrument
    const QPointF firstPlus = plusOf(xs[0]);
    const QPointF lastMinus = minusOf(xs[2]);
    QPainterPath plusLead(in.plus + QPointF(0, -8));
    plusLead.cubicTo(in.plus + QPointF(0, -80), firstPlus + QPointF(0, -60), firstPlus);
    QPainterPath minusLead(in.minus + QPointF(0, -8));
    minusLead.lineTo(in.minus + QPointF(0, -110));
    minusLead.cubicTo(in.minus + QPointF(0, -140), QPointF(in.minus.x() + 40, 12),
                      QPointF(in.minus.x() + 120, 12));
    minusLead.lineTo(lastMinus.x() - 40, 12);
    minusLead.cubicTo(QPointF(lastMinus.x(), 12), QPointF(lastMinus.x(), 40), lastMinus);
    cable(p, minusLead, MinusLead);
    cable(p, plusLead, PlusLead);
    for (qreal x : xs) {
        leadEnd(p, plusOf(x), true, x == xs[0]);
        leadEnd(p, minusOf(x), false, x == xs[2]);
    }

    const QPointF irrOut = irradianceSensor(p, QRectF(w - 70, 110, 56, 56));
    QPainterPath irrCable(irrOut);
    irrCable.lineTo(irrOut.x(), h - 12);
    irrCable.lineTo(in.irrSocket.x() + 90, h - 12);
    irrCable.cubicTo(QPointF(in.irrSocket.x() + 40, h - 12),
                     QPointF(in.irrSocket.x() + 60, in.irrSocket.y()), in.irrSocket);
    cable(p, irrCable, Amber, 4);

    const QPointF probeOut = temperatureProbe(p, QPointF(xs[0] + width / 2, top + height - 60));
    QPainterPath probeCable(probeOut);
    probeCable.lineTo(probeOut.x(), h - 32);
    probeCable.lineTo(in.tempSocket.x() + 70, h - 32);
    probeCable.cubicTo(QPointF(in.tempSocket.x() + 30, h - 32),
                       QPointF(in.tempSocket.x() + 40, in.tempSocket.y()), in.tempSocket);
    cable(p, probeCable, White, 4);
    probeLabel(p, QPointF(xs[0] + width / 2 + 22, top + height - 60));
}

// ---------------------------------------------------------------- table

std::vector<Picture> pictures()
{
    auto icon = [](const char* name, int w, int h, Draw d) {
        return Picture{QStringLiteral("icon/%1.png").arg(QLatin1String(name)), w, h, false,
                       std::move(d)};
    };
    const int menu = 48;
    const int barW = 48, barH = 24;   // status bar, lying
    const int upW = 32, upH = 56;     // measuring screens, upright
    const int flagW = 36, flagH = 24;
    std::vector<Picture> list = {
        icon("ac-adapter", barW, barH, drawAcAdapter),
        icon("battery-full", barW, barH, lyingBattery(Charge::Full)),
        icon("battery-75", barW, barH, lyingBattery(Charge::P75)),
        icon("battery-50", barW, barH, lyingBattery(Charge::P50)),
        icon("battery-25", barW, barH, lyingBattery(Charge::P25)),
        icon("battery-15", barW, barH, lyingBattery(Charge::P15)),
        icon("battery-alert", barW, barH, lyingBattery(Charge::Alert)),
        icon("battery-empty", barW, barH, lyingBattery(Charge::Empty)),
        icon("vac-adapter", upW, upH, drawVacAdapter),
        icon("vbattery-full", upW, upH, uprightBattery(Charge::Full)),
        icon("vbattery-75", upW, upH, uprightBattery(Charge::P75)),
        icon("vbattery-50", upW, upH, uprightBattery(Charge::P50)),
        icon("vbattery-25", upW, upH, uprightBattery(Charge::P25)),
        icon("vbattery-15", upW, upH, uprightBattery(Charge::P15)),
        icon("vbattery-alert", upW, upH, uprightBattery(Charge::Alert)),
        icon("vbattery-empty", upW, upH, uprightBattery(Charge::Empty)),
        icon("usb-info", 32, 24, drawUsbInfo),
        icon("belrix", menu, menu, drawBelrix),
        icon("control-center2", menu, menu, drawControlCenter),
        icon("pannello", menu, menu, drawPannello),
        icon("stringa", menu, menu, drawStringa),
        icon("archivePanel", menu, menu, drawArchivePanel),
        icon("archiveMeasure", menu, menu, drawArchiveMeasure),
        icon("archiveImpianti", menu, menu, drawArchiveImpianti),
        icon("usb-port", menu, menu, drawUsbPort),
        icon("apply", menu, menu, drawApply),
        icon("confirm", menu, menu, drawConfirm),
        icon("exit", menu, menu, drawExit),
        icon("cancel", menu, menu, drawCancel),
        icon("save", menu, menu, drawSave),
        icon("next", menu, menu, drawNext),
        icon("view-refresh", menu, menu, drawViewRefresh),
        icon("add", menu, menu, drawAdd),
        icon("remove", menu, menu, drawRemove),
        icon("trash", menu, menu, drawTrash),
        icon("edit", menu, menu, drawEdit),
        icon("insertnew", menu, menu, drawInsertNew),
        icon("editpanel", menu, menu, drawEditPanel),
        icon("panelnew", menu, menu, drawPanelNew),
        icon("find-panel", menu, menu, drawFindPanel),
        icon("graphpanel", menu, menu, drawGraphPanel),
        icon("archiveList", menu, menu, drawArchiveList),
        icon("capslock", 32, 16, drawCapsLock),
        icon("left", 32, 16, drawLeft),
        icon("right", 32, 16, drawRight),
        icon("backspace", 32, 16, drawBackspace),
        icon("enter", 32, 32, drawEnter),
        icon("bluetooth", menu, menu, drawBluetooth),
        icon("radiotray1", menu, menu, [](QPainter& p, int, int) { drawRadio(p, 1); }),
        icon("radiotray2", menu, menu, [](QPainter& p, int, int) { drawRadio(p, 2); }),
        icon("radiotray3", menu, menu, [](QPainter& p, int, int) { drawRadio(p, 3); }),
        icon("usbadapter", menu, menu, drawUsbAdapter),
        icon("usbrs1", menu, menu, [](QPainter& p, int, int) { drawSerialProgress(p, 1); }),
        icon("usbrs2", menu, menu, [](QPainter& p, int, int) { drawSerialProgress(p, 2); }),
        icon("usbrs3", menu, menu, [](QPainter& p, int, int) { drawSerialProgress(p, 3); }),
        icon("alert-big", 128, 128, drawAlertBig),
        icon("flag-italy", flagW, flagH,
             verticalTricolour(QColor(0, 146, 70), Qt::white, QColor(206, 43, 55))),
        icon("flag-france", flagW, flagH,
             verticalTricolour(QColor(0, 85, 164), Qt::white, QColor(239, 65, 53))),
        icon("flag-germany", flagW, flagH,
             horizontalBands({{Qt::black, 1 / 3.0}, {QColor(221, 0, 0), 1 / 3.0},
                              {QColor(255, 206, 0), 1 / 3.0}})),
        icon("flag-spain", flagW, flagH,
             horizontalBands({{QColor(198, 11, 30), 0.25}, {QColor(255, 196, 0), 0.5},
                              {QColor(198, 11, 30), 0.25}})),
        icon("flag-england", flagW, flagH, drawFlagEngland),
        {QStringLiteral("image/splash.png"), 1024, 600, true, drawSplash},
        {QStringLiteral("image/schema_pannello.png"), 900, 420, true, drawSchemaPannello},
        {QStringLiteral("image/schema_stringhe.png"), 900, 420, true, drawSchemaStringhe},
    };
    return list;
}

QImage render(const Picture& pic)
{
    QImage img(pic.width, pic.height, QImage::Format_ARGB32_Premultiplied);
    img.fill(pic.opaque ? Qt::black : Qt::transparent);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    pic.draw(p, pic.width, pic.height);
    p.end();
    return img;
}

// Every icon at its own size on black, then the same at twice the size, with
// its name under it.
QImage contactSheet(const std::vector<Picture>& list)
{
    const int cellW = 220, cellH = 150, cols = 6;
    std::vector<const Picture*> icons;
    for (const Picture& pic : list)
        if (pic.path.startsWith(QLatin1String("icon/")))
            icons.push_back(&pic);
    const int rows = int(icons.size() + cols - 1) / cols;
    QImage sheetImage(cols * cellW, rows * cellH, QImage::Format_ARGB32_Premultiplied);
    sheetImage.fill(Qt::black);
    QPainter p(&sheetImage);
    p.setRenderHint(QPainter::Antialiasing);
    p.setFont(font(12, false));
    for (size_t i = 0; i < icons.size(); ++i) {
        const Picture& pic = *icons[i];
        const QImage img = render(pic);
        const int x = int(i % cols) * cellW, y = int(i / cols) * cellH;
        p.setPen(QColor(40, 40, 40));
        p.setBrush(Qt::NoBrush);
        p.drawRect(x, y, cellW - 1, cellH - 1);
        p.drawImage(QPoint(x + 8, y + 8), img);
        if (img.width() <= 64) {
            const QImage big = render(Picture{pic.path, pic.width * 2, pic.height * 2, pic.opaque,
                                              [&pic](QPainter& q, int, int) {
                                                  q.scale(2, 2);
                                                  pic.draw(q, pic.width, pic.height);
                                              }});
            p.drawImage(QPoint(x + cellW - big.width() - 8, y + 8), big);
        }
        p.setPen(White);
        p.drawText(QRect(x, y + cellH - 22, cellW, 20), Qt::AlignCenter,
                   QFileInfo(pic.path).completeBaseName());
    }
    p.end();
    return sheetImage;
}

// PNG's CRC-32 (ISO 3309) of a chunk's type and data.
quint32 pngCrc(const QByteArray& bytes)
{
    static quint32 table[256];
    if (table[1] == 0)
        for (quint32 n = 0; n < 256; ++n) {
            quint32 c = n;
            for (int k = 0; k < 8; ++k)
                c = (c & 1) ? 0xedb88320u ^ (c >> 1) : c >> 1;
            table[n] = c;
        }
    quint32 c = 0xffffffffu;
    for (char b : bytes)
        c = table[(c ^ static_cast<quint8>(b)) & 0xff] ^ (c >> 8);
    return c ^ 0xffffffffu;
}

void appendBigEndian(QByteArray& out, quint32 value)
{
    for (int shift = 24; shift >= 0; shift -= 8)
        out.append(static_cast<char>((value >> shift) & 0xff));
}

void appendChunk(QByteArray& out, const char* type, const QByteArray& data)
{
    appendBigEndian(out, static_cast<quint32>(data.size()));
    const QByteArray typed = QByteArray(type) + data;
    out.append(typed);
    appendBigEndian(out, pngCrc(typed));
}

// Writes the picture as a PNG whose rows carry no filter, RGB when it is
// opaque and RGBA otherwise. The instrument decodes the splash at every
// start: as the toolkit writes it (the rows' filters and an alpha channel
// nobody sees) that took half a second of its processor; unfiltered rows
// decode in half of that, and the deflated file is smaller. The pixels are
// the same.
bool writePng(const QImage& picture, bool opaque, const QString& file)
{
    const QImage rows =
        picture.convertToFormat(opaque ? QImage::Format_RGB888 : QImage::Format_RGBA8888);
    const int rowBytes = rows.width() * (opaque ? 3 : 4);
    QByteArray raw;
    raw.reserve((rowBytes + 1) * rows.height());
    for (int y = 0; y < rows.height(); ++y) {
        raw.append('\0'); // filter type None
        raw.append(reinterpret_cast<const char*>(rows.constScanLine(y)), rowBytes);
    }
    QByteArray header;
    appendBigEndian(header, static_cast<quint32>(rows.width()));
    appendBigEndian(header, static_cast<quint32>(rows.height()));
    // 8 bits a sample; colour type 2 (RGB) or 6 (RGBA); deflate, standard
    // filtering, no interlace
    for (int byte : {8, opaque ? 2 : 6, 0, 0, 0})
        header.append(static_cast<char>(byte));
    QByteArray png("\x89PNG\r\n\x1a\n", 8);
    appendChunk(png, "IHDR", header);
    // qCompress gives a zlib stream after four bytes of length
    appendChunk(png, "IDAT", qCompress(raw, 9).mid(4));
    appendChunk(png, "IEND", QByteArray());
    QFile out(file);
    return out.open(QIODevice::WriteOnly) && out.write(png) == png.size() && out.flush();
}

} // namespace

int main(int argc, char* argv[])
{
    QGuiApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() < 2 || args.size() > 3) {
        std::fprintf(stderr, "usage: drawpictures <output dir> [<contact sheet png>]\n");
        return 2;
    }
    const QDir out(args.at(1));
    const std::vector<Picture> list = pictures();
    for (const Picture& pic : list) {
        const QString file = out.filePath(pic.path);
        if (!QDir().mkpath(QFileInfo(file).path()) || !writePng(render(pic), pic.opaque, file)) {
            std::fprintf(stderr, "drawpictures: cannot write %s\n", qPrintable(file));
            return 1;
        }
    }
    if (args.size() == 3 && !contactSheet(list).save(args.at(2), "PNG")) {
        std::fprintf(stderr, "drawpictures: cannot write %s\n", qPrintable(args.at(2)));
        return 1;
    }
    return 0;
}
