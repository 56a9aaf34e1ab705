// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/help/frm_help_hits.h"

#include <QApplication>
#include <QListView>
#include <QPainter>

namespace nubivane {

namespace {

constexpr int Margin = 5;  // pixels
constexpr int Lines = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;

QFont titleFont(const QStyleOptionViewItem& option) {
    QFont font = option.font;
    font.setBold(true);
    return font;
}

/// How high a text is when it is broken at a width.
int heightOf(const QFont& font, int width, const QString& text) {
    constexpr int AnyHeight = 10000;
    return QFontMetrics(font).boundingRect(QRect(0, 0, width, AnyHeight), Lines, text).height();
}

QString excerptOf(const QModelIndex& index) {
    return index.data(HelpHitDelegate::ExcerptRole).toString();
}

}  // namespace

void HelpHitDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const {
    QStyleOptionViewItem whole = option;
    initStyleOption(&whole, index);
    const QString title = whole.text;
    whole.text.clear();
    const QStyle* style = whole.widget ? whole.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &whole, painter, whole.widget);

    const bool selected = (option.state & QStyle::State_Selected) != 0;
    QColor color = option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text);
    const QRect room = option.rect.adjusted(Margin, Margin, -Margin, -Margin);
    painter->save();
    painter->setPen(color);
    painter->setFont(titleFont(option));
    painter->drawText(room, Lines, title);
    constexpr int Quiet = 190;
    color.setAlpha(Quiet);
    painter->setPen(color);
    painter->setFont(option.font);
    painter->drawText(room.adjusted(0, heightOf(titleFont(option), room.width(), title), 0, 0),
                      Lines, excerptOf(index));
    painter->restore();
}

QSize HelpHitDelegate::sizeHint(const QStyleOptionViewItem& option,
                                const QModelIndex& index) const {
    const auto* list = qobject_cast<const QListView*>(option.widget);
    const int width = (list ? list->viewport()->width() : option.rect.width()) - 2 * Margin;
    const int height = heightOf(titleFont(option), width, index.data().toString()) +
                       heightOf(option.font, width, excerptOf(index));
    return {width, height + 2 * Margin};
}

}  // namespace nubivane
