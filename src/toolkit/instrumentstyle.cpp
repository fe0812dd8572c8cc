#include "toolkit/instrumentstyle.h"

#include "toolkit/textfit.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOptionButton>
#include <QStyleOptionViewItem>

InstrumentStyle::InstrumentStyle() : QProxyStyle(QStyleFactory::create("Fusion")) {}

int InstrumentStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                                 const QWidget* widget) const
{
    if (metric == PM_ButtonIconSize)
        return ButtonIconPixels;
    return QProxyStyle::pixelMetric(metric, option, widget);
}

int InstrumentStyle::cellTextRoom(int cell, const QWidget* view) const
{
    const int margin = pixelMetric(PM_FocusFrameHMargin, nullptr, view) + 1;
    return cell - 2 * margin;
}

void InstrumentStyle::drawItemText(QPainter* painter, const QRect& rect, int flags,
                                   const QPalette& palette, bool enabled, const QString& text,
                                   QPalette::ColorRole textRole) const
{
    if (text.isEmpty()) {
        QProxyStyle::drawItemText(painter, rect, flags, palette, enabled, text, textRole);
        return;
    }
    const QFont former = painter->font();
    const TextFit fit = fitTextInBox(former, text, textRoom(rect, flags), flags, painter->device());
    painter->setFont(fit.font);
    QProxyStyle::drawItemText(painter, rect, flags, palette, enabled, text, textRole);
    painter->setFont(former);
}

void InstrumentStyle::drawControl(ControlElement element, const QStyleOption* option,
                                  QPainter* painter, const QWidget* widget) const
{
    if (element == CE_PushButtonLabel) {
        // the icon stands centred with the text beside it: both are placed
        // for the text in the size it is drawn
        const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
        if (button && !button->icon.isNull() && !button->text.isEmpty()) {
            const QFont former = painter->font();
            const int flags = Qt::AlignCenter | Qt::TextShowMnemonic;
            const QRect room(0, 0, textBesideIcon(button->rect.width(), button->iconSize.width()),
                             QWIDGETSIZE_MAX);
            QStyleOptionButton fitted = *button;
            const QFont font =
                fitTextInBox(former, button->text, room, flags, painter->device()).font;
            fitted.fontMetrics = QFontMetrics(font, painter->device());
            painter->setFont(font);
            QProxyStyle::drawControl(element, &fitted, painter, widget);
            painter->setFont(former);
            return;
        }
    } else if (element == CE_ItemViewItem) {
        const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(option);
        if (item && !item->text.isEmpty()) {
            QStyleOptionViewItem fitted = *item;
            const QRect box = subElementRect(SE_ItemViewItemText, item, widget);
            const bool wraps = item->features & QStyleOptionViewItem::WrapText;
            const int flags = int(item->displayAlignment) | (wraps ? Qt::TextWordWrap : 0);
            const QRect room(0, 0, cellTextRoom(box.width(), widget), box.height());
            fitted.font = fitTextInBox(item->font, item->text, textRoom(room, flags), flags,
                                       painter->device())
                              .font;
            fitted.fontMetrics = QFontMetrics(fitted.font);
            QProxyStyle::drawControl(element, &fitted, painter, widget);
            return;
        }
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}
