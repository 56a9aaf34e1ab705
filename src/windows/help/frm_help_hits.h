// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyledItemDelegate>

namespace nubivane {

/// Draws a page found by a search: its title in bold, and below it, in a quieter color, what stands
/// around the words. The two are the item's text and its `ExcerptRole`.
class HelpHitDelegate : public QStyledItemDelegate {
    Q_OBJECT

  public:
    static constexpr int ExcerptRole = Qt::UserRole + 1;

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace nubivane
