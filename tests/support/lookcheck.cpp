#include "support/lookcheck.h"

#include "support/siminstrument.h"
#include "toolkit/infobar.h"
#include "toolkit/instrumentstyle.h"
#include "toolkit/plotter.h"
#include "toolkit/textfit.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFontMetrics>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QStyleOptionGroupBox>
#include <QTest>
#include <QTextDocument>
#include <QTime>
#include <QToolButton>
#include <cmath>

namespace
{

double luminance(const QColor& c)
{
    auto channel = [](double v) {
        v /= 255.0;
        return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * channel(c.red()) + 0.7152 * channel(c.green()) + 0.0722 * channel(c.blue());
}

QString nameOf(const QWidget* w)
{
    QString name = w->metaObject()->className();
    if (!w->objectName().isEmpty())
        name += " \"" + w->objectName() + "\"";
    return name;
}

// The text as drawn: "&&" is one ampersand, a single one marks the shortcut.
QString shownText(QString text)
{
    text.replace("&&", QString(QChar(0x1)));
    text.remove('&');
    text.replace(QChar(0x1), '&');
    return text;
}

int textWidth(const QFontMetrics& metrics, const QString& text)
{
    int widest = 0;
    for (const QString& line : text.split('\n'))
        widest = std::max(widest, metrics.horizontalAdvance(line));
    return widest;
}

// The text as the style draws it in a box of the given width (and height, for
// a text that wraps): in the font it fits, not below 11 pixels. A fault when
// even that font overflows the box.
void checkFit(const QWidget* w, const QString& what, const QFont& font, const QString& text,
              const QRect& box, int flags, QStringList* faults)
{
    const TextFit fit = fitTextInBox(font, text, textRoom(box, flags), flags, w);
    if (fit.fits)
        return;
    const QRect need = QFontMetrics(fit.font, w).boundingRect(textRoom(box, flags), flags, text);
    if (flags & Qt::TextWordWrap)
        *faults << QString("%1 \"%2\": wrapped text at %3 px needs %4 x %5 px, has %6 x %7 px")
                       .arg(what, text)
                       .arg(fontPixels(fit.font))
                       .arg(need.width())
                       .arg(need.height())
                       .arg(box.width())
                       .arg(box.height());
    else
        *faults << QString("%1 \"%2\": text %3 px wide at %4 px, box %5 px")
                       .arg(what, text)
                       .arg(need.width())
                       .arg(fontPixels(fit.font))
                       .arg(box.width());
}

void checkLabel(QLabel* label, QStringList* faults)
{
    if (label->text().isEmpty() || label->objectName() == "qt_msgboxex_icon_label")
        return;
    const QRect box = label->contentsRect().marginsRemoved(
        QMargins(label->margin(), label->margin(), label->margin(), label->margin()));
    const int indent = label->indent() > 0 ? label->indent() : 0;
    const QRect room = box.adjusted(0, 0, -indent, 0);
    if (label->textFormat() != Qt::PlainText && Qt::mightBeRichText(label->text())) {
        // drawn by the label's own text document, in the label's font
        QTextDocument document;
        document.setDefaultFont(label->font());
        document.setHtml(label->text());
        document.setDocumentMargin(0);
        if (label->wordWrap()) {
            document.setTextWidth(room.width());
            if (std::ceil(document.size().height()) > room.height())
                *faults << QString("%1 \"%2\": wrapped text needs %3 px, has %4 px")
                               .arg(nameOf(label), label->text())
                               .arg(std::ceil(document.size().height()))
                               .arg(room.height());
        } else if (std::ceil(document.idealWidth()) > room.width()) {
            *faults << QString("%1 \"%2\": text %3 px wide, box %4 px")
                           .arg(nameOf(label), label->text())
                           .arg(std::ceil(document.idealWidth()))
                           .arg(room.width());
        }
        return;
    }
    const int flags = int(label->alignment()) | (label->wordWrap() ? Qt::TextWordWrap : 0);
    checkFit(label, nameOf(label), label->font(), label->text(), room, flags, faults);
}

void checkButton(QAbstractButton* button, QStringList* faults)
{
    const QString text = shownText(button->text());
    const QToolButton* tool = qobject_cast<QToolButton*>(button);
    if (text.isEmpty() ||
        (tool && tool->toolButtonStyle() == Qt::ToolButtonIconOnly && !tool->icon().isNull()))
        return;
    QStyleOptionButton option;
    option.initFrom(button);
    option.text = button->text();
    option.icon = button->icon();
    option.iconSize = button->iconSize();
    QRect box;
    if (qobject_cast<QCheckBox*>(button))
        box = button->style()->subElementRect(QStyle::SE_CheckBoxContents, &option, button);
    else if (qobject_cast<QRadioButton*>(button))
        box = button->style()->subElementRect(QStyle::SE_RadioButtonContents, &option, button);
    else if (qobject_cast<QPushButton*>(button))
        box = button->style()->subElementRect(QStyle::SE_PushButtonContents, &option, button);
    else
        box = button->contentsRect().adjusted(2, 2, -2, -2);
    const bool iconBeside = !button->icon().isNull() &&
                            (!tool || tool->toolButtonStyle() == Qt::ToolButtonTextBesideIcon);
    if (iconBeside)
        box.setWidth(InstrumentStyle::textBesideIcon(box.width(), button->iconSize().width()));
    checkFit(button, nameOf(button), button->font(), text, box, Qt::AlignCenter, faults);
    // the entries of the button's menu stand in a menu no wider than the screen
    const QPushButton* push = qobject_cast<QPushButton*>(button);
    const QMenu* menu = push ? push->menu() : tool ? tool->menu() : nullptr;
    if (menu) {
        const int screen = button->screen()->geometry().width();
        for (const QAction* action : menu->actions()) {
            const int need = textWidth(QFontMetrics(menu->font(), menu), shownText(action->text()));
            if (need > screen)
                *faults << QString("%1 menu entry \"%2\": text %3 px wide, screen %4 px")
                               .arg(nameOf(button), action->text())
                               .arg(need)
                               .arg(screen);
        }
        if (menu->sizeHint().width() > screen)
            *faults << QString("%1: menu %2 px wide, screen %3 px")
                           .arg(nameOf(button))
                           .arg(menu->sizeHint().width())
                           .arg(screen);
    }
}

// Every entry of a combo box, each shown in turn as its current one.
void checkCombo(QComboBox* combo, QStringList* faults)
{
    if (combo->isEditable())
        return;
    QStyleOptionComboBox option;
    option.initFrom(combo);
    option.editable = false;
    option.frame = combo->hasFrame();
    option.subControls = QStyle::SC_All;
    option.iconSize = combo->iconSize();
    const QRect field =
        combo->style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, combo)
            .adjusted(1, 0, -1, 0);
    for (int i = 0; i < combo->count(); ++i) {
        QRect box = field;
        if (!combo->itemIcon(i).isNull())
            box.setLeft(box.left() + combo->iconSize().width() + 4);
        checkFit(combo, QString("%1 entry %2").arg(nameOf(combo)).arg(i), combo->font(),
                 combo->itemText(i), box, Qt::AlignLeft | Qt::AlignVCenter, faults);
    }
}

void checkGroupTitle(QGroupBox* group, QStringList* faults)
{
    if (group->title().isEmpty())
        return;
    QStyleOptionGroupBox option;
    option.initFrom(group);
    option.text = group->title();
    option.subControls = QStyle::SC_GroupBoxLabel | QStyle::SC_GroupBoxFrame;
    if (group->isCheckable())
        option.subControls |= QStyle::SC_GroupBoxCheckBox;
    option.textAlignment = group->alignment();
    const QRect box = group->style()->subControlRect(QStyle::CC_GroupBox, &option,
                                                     QStyle::SC_GroupBoxLabel, group);
    checkFit(group, nameOf(group) + " title", group->font(), group->title(),
             box.intersected(group->rect()), Qt::AlignLeft | Qt::TextShowMnemonic, faults);
}

// The titles of a table's columns or rows, each in its section.
void checkHeader(QHeaderView* header, QStringList* faults)
{
    const QAbstractItemModel* model = header->model();
    if (!model)
        return;
    const int margin = header->style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, header);
    for (int section = 0; section < header->count(); ++section) {
        if (header->isSectionHidden(section))
            continue;
        const QString text =
            model->headerData(section, header->orientation(), Qt::DisplayRole).toString();
        if (text.isEmpty())
            continue;
        const bool across = header->orientation() == Qt::Horizontal;
        const int size = header->sectionSize(section) - 2 * margin;
        const QRect box = across ? QRect(0, 0, size, header->height())
                                 : QRect(0, 0, header->width() - 2 * margin, size);
        checkFit(header, QString("%1 section %2").arg(nameOf(header)).arg(section), header->font(),
                 text, box, Qt::AlignCenter, faults);
    }
}

void checkItems(QAbstractItemView* view, QStringList* faults)
{
    const QAbstractItemModel* model = view->model();
    if (!model)
        return;
    const auto* style = dynamic_cast<const InstrumentStyle*>(view->style());
    const int margin = view->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, view) + 1;
    for (int row = 0; row < model->rowCount(); ++row) {
        for (int column = 0; column < model->columnCount(); ++column) {
            const QModelIndex index = model->index(row, column);
            const QString text = model->data(index, Qt::DisplayRole).toString();
            // a text in tab-separated cells is drawn by its own columns
            if (text.isEmpty() || text.contains('\t'))
                continue;
            QFont font = view->font();
            const QVariant itemFont = model->data(index, Qt::FontRole);
            if (itemFont.isValid())
                font = itemFont.value<QFont>();
            if (fontPixels(font) < MinTextPixels)
                *faults << QString("%1 row %2: font of %3 px")
                               .arg(nameOf(view))
                               .arg(row)
                               .arg(fontPixels(font));
            const QRect cell = view->visualRect(index);
            int room = std::min(cell.width() > 0 ? cell.width() : view->viewport()->width(),
                                view->viewport()->width());
            if (!model->data(index, Qt::DecorationRole).isNull())
                room -= view->iconSize().width() + margin;
            room = style ? style->cellTextRoom(room, view) : room - 2 * margin;
            checkFit(view, QString("%1 row %2").arg(nameOf(view)).arg(row), font, text,
                     QRect(0, 0, room, QWIDGETSIZE_MAX), Qt::AlignLeft | Qt::AlignVCenter, faults);
        }
    }
}

} // namespace

double contrastRatio(const QColor& a, const QColor& b)
{
    const double la = luminance(a);
    const double lb = luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

QStringList legibilityFaults(QWidget* screen)
{
    QStringList faults;
    QList<QWidget*> widgets = screen->findChildren<QWidget*>();
    widgets.prepend(screen);
    for (QWidget* w : widgets) {
        if (w != screen && !w->isVisibleTo(screen))
            continue;
        if (!w->isVisible())
            continue;
        QLabel* label = qobject_cast<QLabel*>(w);
        QAbstractButton* button = qobject_cast<QAbstractButton*>(w);
        QAbstractItemView* view = qobject_cast<QAbstractItemView*>(w);
        // a table's header shares the table's model but shows its headers
        if (QHeaderView* header = qobject_cast<QHeaderView*>(w)) {
            view = nullptr;
            checkHeader(header, &faults);
        }
        const bool showsText = (label && !label->text().isEmpty()) ||
                               (button && !button->text().isEmpty()) || view ||
                               w->inherits("QLineEdit") || w->inherits("QComboBox");
        if (showsText && fontPixels(w->font()) < MinTextPixels)
            faults << QString("%1: font of %2 px").arg(nameOf(w)).arg(fontPixels(w->font()));
        if (label)
            checkLabel(label, &faults);
        else if (button)
            checkButton(button, &faults);
        else if (view)
            checkItems(view, &faults);
        else if (QComboBox* combo = qobject_cast<QComboBox*>(w))
            checkCombo(combo, &faults);
        else if (QGroupBox* group = qobject_cast<QGroupBox*>(w))
            checkGroupTitle(group, &faults);
        if (const Plotter* plotter = qobject_cast<const Plotter*>(w)) {
            for (const QFont& font : plotter->drawnTextFonts())
                if (fontPixels(font) < MinTextPixels)
                    faults << QString("%1: painter font of %2 px")
                                  .arg(nameOf(w))
                                  .arg(fontPixels(font));
        }
    }
    return faults;
}

QImage grabScreen(QWidget* screen)
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    // through its window, so that a widget's picture holds what shines
    // through it
    QWidget* window = screen->window();
    return window->grab(QRect(screen->mapTo(window, QPoint(0, 0)), screen->size()))
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

QStringList focusMarkFaultsByKey(QWidget* screen, const SimInstrument& sim, QWidget* a,
                                 const char* key)
{
    QStringList faults;
    for (int attempt = 0; attempt < 2; ++attempt) {
        a->setFocus();
        if (!QTest::qWaitFor([a] { return a->hasFocus(); }, 2000))
            return {"the focus does not come to the first widget"};
        const int minute = QTime::currentTime().minute();
        const QImage before = grabScreen(screen);
        // held until the key poll has moved the focus, let go before the
        // next poll sees it again
        if (!sim.pressKey(key))
            return {"the key cannot be pressed"};
        const bool moved = QTest::qWaitFor([a] { return !a->hasFocus(); }, 2000);
        sim.releaseKey(key);
        QWidget* b = QApplication::focusWidget();
        if (!moved || b == nullptr)
            return {QString("the key %1 moves no focus").arg(key)};
        const QImage after = grabScreen(screen);
        if (QTime::currentTime().minute() != minute && attempt == 0)
            continue;
        faults = focusMarkFaults(screen, before, after, a, b);
        faults += focusMarkFaults(screen, after, before, b, a);
        break;
    }
    return faults;
}

QStringList focusMarkFaults(QWidget* screen, const QImage& before, const QImage& after, QWidget* a,
                            QWidget* b)
{
    QStringList faults;
    if (before.size() != after.size())
        return {"the two grabs differ in size"};
    const QRect rectA(a->mapTo(screen, QPoint(0, 0)), a->size());
    const QRect rectB(b->mapTo(screen, QPoint(0, 0)), b->size());
    int strongInA = 0;
    int outside = 0;
    QPoint firstOutside;
    for (int y = 0; y < before.height(); ++y) {
        for (int x = 0; x < before.width(); ++x) {
            const QRgb p = before.pixel(x, y);
            const QRgb q = after.pixel(x, y);
            if (p == q)
                continue;
            const QPoint at(x, y);
            if (rectA.contains(at)) {
                if (contrastRatio(QColor(p), QColor(q)) >= 3.0)
                    ++strongInA;
            } else if (!rectB.contains(at)) {
                if (outside++ == 0)
                    firstOutside = at;
            }
        }
    }
    if (strongInA < 20)
        faults << QString("only %1 pixels of %2 change by 3:1").arg(strongInA).arg(nameOf(a));
    if (outside > 0)
        faults << QString("%1 pixels outside both widgets change, the first at (%2, %3)")
                      .arg(outside)
                      .arg(firstOutside.x())
                      .arg(firstOutside.y());
    return faults;
}

bool showsPowerSupply(QWidget* screen)
{
    const InfoBar* bar = screen->findChild<InfoBar*>();
    if (bar == nullptr)
        return false;
    for (const QLabel* label : bar->findChildren<QLabel*>())
        if (!label->pixmap().isNull())
            return true;
    return false;
}
