#ifndef KRM_TOOLKIT_TABCOLUMNS_H
#define KRM_TOOLKIT_TABCOLUMNS_H

#include <QList>
#include <QRect>
#include <QStyledItemDelegate>

class QAbstractItemView;

// Draws the tab-separated rows of a list in columns: every cell stands at the
// left edge of its column, a column being as wide as its widest cell of all
// rows (header included) plus a gap, whatever the language of the texts. The
// rows keep their texts; a cell is drawn without its surrounding blanks. A row
// without a tab is drawn as the list draws it.
class TabColumns : public QStyledItemDelegate
{
public:
    // Becomes the delegate of the view and follows the rows of its model.
    explicit TabColumns(QAbstractItemView* view);

    // Where the cells of a row are drawn, within the row's rectangle.
    QList<QRect> cellRects(const QModelIndex& index, const QRect& row) const;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    void measure() const;

    QAbstractItemView* view;
    mutable bool measured;
    mutable QList<int> widths; // of each column, gap included
};

#endif
