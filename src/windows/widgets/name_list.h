// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QListWidget>

#include <functional>

namespace nubivane {

/// A list of names that can be typed anew in their place. What was typed is only proposed: the row
/// keeps its name until its owner gives it another.
class NameList : public QListWidget {
    Q_OBJECT

  public:
    explicit NameList(QWidget* parent);

    /// Adds a row; `key` and `tag` are the owner's own.
    QListWidgetItem* addRow(const QString& text, const QString& key, const QString& tag);
    /// Makes a row another one.
    static void setRow(QListWidgetItem& row, const QString& text, const QString& key,
                       const QString& tag);
    /// Key and tag of a row; empty without a row.
    static QString keyOf(const QListWidgetItem* row);
    static QString tagOf(const QListWidgetItem* row);
    /// The row of a key, compared without regard to case, or nothing.
    QListWidgetItem* rowOf(const QString& key) const;

    /// Lets the person type a name for the selected row.
    void startRenaming();
    /// Takes what is being typed as it stands; `nameTyped` has been told when it returns.
    void finishRenaming();

  Q_SIGNALS:
    /// A name was typed for the row of a key. Told when the field has closed.
    void nameTyped(const QString& key, const QString& name);

  private:
    class Field;
};

}  // namespace nubivane
