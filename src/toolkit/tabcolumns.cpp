#include "toolkit/tabcolumns.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QPainter>

namespace
{

QStringList cellsOf(const QModelIndex& index)
{
    return index.data(Qt::DisplayRole).toString().split('\t');
}

} // namespace

TabColumns::TabColumns(QAbstractItemView* view)
    : QStyledItemDelegate(view), view(view), measured(false)
{
    view->setItemDelegate(this);
    QAbstractItemModel* model = view->model();
    auto stale = [this] { measured = false; };
    connect(model, &QAbstractItemModel::rowsInserted, this, stale);
    connect(model, &QAbstractItemModel::rowsRemoved, this, stale);
    connect(model, &QAbstractItemModel::modelReset, this, stale);
    connect(model, &QAbstractItemModel::dataChanged, this, stale);
}

void TabColumns::measure() const
{
    if (measured)
        return;
    measured = true;
    widths.clear();
    QFontMetrics metrics(view->font());
    const int gap = metrics.horizontalAdvance("MM");
    QAbstractItemModel* model = view->model();
    for (int row = 0; row < model->rowCount(view->rootIndex()); row++) {
        QStringList cells = cellsOf(model->index(row, 0, view->rootIndex()));
        if (cells.size() < 2)
            continue; // a lone text does not set the columns
        for (int i = 0; i < cells.size(); i++) {
            int width = metrics.horizontalAdvance(cells[i].trimmed()) + gap;
            if (i == widths.size())
                widths << width;
            else
                widths[i] = qMax(widths[i], width);
        }
    }
}

QList<QRect> TabColumns::cellRects(const QModelIndex& index, const QRect& row) const
{
    measure();
    QList<QRect> rects;
    QStringList cells = cellsOf(index);
    if (cells.size() < 2)
        return rects;
    int x = row.left();
    for (int i = 0; i < cells.size() && i < widths.size(); i++) {
        rects << QRect(x, row.top(), widths[i], row.height());
        x += widths[i];
    }
    return rects;
}

void TabColumns::paint(QPainter* painter, const QStyleOptionViewItem& option,
                       const QModelIndex& index) const
{
    QStyleOptionViewItem opt = option;
    initStyleOption(&opt, index);
    QStringList cells = opt.text.split('\t');
    if (cells.size() < 2) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    // background, selection and focus as the list draws them, then the cells
    opt.text.clear();
    const QWidget* widget = opt.widget;
    QStyle* style = widget != nullptr ? widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &opt, painter, widget);
    QRect text = style->subElementRect(QStyle::SE_ItemViewItemText, &opt, widget);
    QList<QRect> rects = cellRects(index, text);
    painter->save();
    painter->setFont(opt.font);
    bool selected = opt.state & QStyle::State_Selected;
    QPalette::ColorGroup group =
        opt.state & QStyle::State_Enabled ? QPalette::Normal : QPalette::Disabled;
    painter->setPen(
        opt.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text));
    for (int i = 0; i < rects.size(); i++)
        painter->drawText(rects[i], Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip,
                          cells[i].trimmed());
    painter->restore();
}

QSize TabColumns::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    QList<QRect> rects = cellRects(index, QRect(0, 0, 0, size.height()));
    if (!rects.isEmpty())
        size.setWidth(qMax(size.width(), rects.last().right() + 1));
    return size;
}
