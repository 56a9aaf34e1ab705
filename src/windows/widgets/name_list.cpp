// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/name_list.h"

#include "windows/widgets/one_line.h"
#include "windows/widgets/quiet_color.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QPainter>
#include <QStyledItemDelegate>

namespace nubivane {

namespace {

constexpr int KeyRole = Qt::UserRole;
constexpr int TagRole = Qt::UserRole + 1;

}  // namespace

/// The field in which a name is typed.
class NameList::Field : public QStyledItemDelegate {
  public:
    explicit Field(NameList& list) : QStyledItemDelegate(&list), list_(list) {}

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&,
                          const QModelIndex& index) const override {
        constexpr int LongestName = 255;
        auto* field = new QLineEdit(parent);
        field->setMaxLength(LongestName);
        keepOneLine(*field);
        field->setAccessibleName(tr("Name"));
        field->setText(index.data(Qt::DisplayRole).toString());
        field->setAutoFillBackground(true);
        return field;
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        constexpr int Air = 6;
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, Air);
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyledItemDelegate::paint(painter, option, index);
        if (index.data(Qt::CheckStateRole).isValid()) {
            outlineBox(*painter, option, index);
        }
    }

    /// The owner may show a box, which must not find the field still open: he is told later.
    void setModelData(QWidget* editor, QAbstractItemModel*,
                      const QModelIndex& index) const override {
        const QString name = static_cast<QLineEdit*>(editor)->text();
        if (name != index.data(Qt::DisplayRole).toString()) {
            QMetaObject::invokeMethod(
                &list_,
                [list = &list_, key = index.data(KeyRole).toString(), name] {
                    Q_EMIT list->nameTyped(key, name);
                },
                Qt::QueuedConnection);
        }
    }

  private:
    /// On dark ground styles leave an empty box as good as unseen.
    void outlineBox(QPainter& painter, const QStyleOptionViewItem& option,
                    const QModelIndex& index) const {
        QStyleOptionViewItem box = option;
        initStyleOption(&box, index);
        const QRect rect =
            list_.style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &box, &list_);
        painter.setPen(quietColor(option.palette, QPalette::Text, QPalette::Base));
        painter.drawRect(rect.adjusted(0, 0, -1, -1));
    }

    NameList& list_;
};

NameList::NameList(QWidget* parent) : QListWidget(parent) {
    setItemDelegate(new Field(*this));
    setEditTriggers(QAbstractItemView::EditKeyPressed);
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextElideMode(Qt::ElideMiddle);
}

QListWidgetItem* NameList::addRow(const QString& text, const QString& key, const QString& tag) {
    auto* row = new QListWidgetItem(text, this);
    row->setFlags(row->flags() | Qt::ItemIsEditable);
    setRow(*row, text, key, tag);
    return row;
}

void NameList::setRow(QListWidgetItem& row, const QString& text, const QString& key,
                      const QString& tag) {
    row.setText(text);
    row.setToolTip(text);
    row.setData(KeyRole, key);
    row.setData(TagRole, tag);
}

QString NameList::keyOf(const QListWidgetItem* row) {
    return row ? row->data(KeyRole).toString() : QString();
}

QString NameList::tagOf(const QListWidgetItem* row) {
    return row ? row->data(TagRole).toString() : QString();
}

/// Where two keys differ in case alone, each finds its own row.
QListWidgetItem* NameList::rowOf(const QString& key) const {
    QListWidgetItem* alike = nullptr;
    for (int i = 0; i < count(); ++i) {
        if (keyOf(item(i)) == key) {
            return item(i);
        }
        if (!alike && keyOf(item(i)).compare(key, Qt::CaseInsensitive) == 0) {
            alike = item(i);
        }
    }
    return alike;
}

void NameList::startRenaming() {
    if (currentItem()) {
        editItem(currentItem());
    }
}

/// A press on a button has closed the field already, and then the name is still on its way.
void NameList::finishRenaming() {
    if (state() == EditingState) {
        setFocus();
    }
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
}

}  // namespace nubivane
