// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/widgets/combo_color.h"
#include "windows/widgets/text_field.h"
#include "windows/widgets/wrapped_field.h"

#include <QHash>
#include <QToolButton>
#include <QWidget>

class QGridLayout;
class QHBoxLayout;
class QLabel;

namespace nubivane {

class ScrollPanel;

/// What is fixed of a row: its caption and its help, to be translated in the grid's context.
struct PropertyRow {
    const char* caption;
    const char* help;
    const char* helpTitle = caption;
};

/// A form of rows, each a caption, a field and a separator line, on a panel that scrolls when it is
/// taller than its window. A heading stands above it; the box below it explains the row that has
/// the keyboard.
class PropertyGrid : public QWidget {
    Q_OBJECT

  public:
    /// Without a heading its box is left out.
    PropertyGrid(const QString& heading, QWidget* parent);

    ScrollPanel* container() const { return fraContainer_; }

    /// Letters (small ones) that are access keys of others in the window. Before the first row.
    void leaveKeys(const QString& letters) { taken_ = letters; }

    /// Begins a group of rows under a title of their own.
    void addSection(const QString& title);

    /// Appends a row whose field is one of these, bearing its control name.
    QLineEdit* addReadOnly(const PropertyRow& row, const QString& name);
    TextField* addText(const PropertyRow& row, const QString& name);
    WrappedField* addWrapped(const PropertyRow& row, const QString& name);
    CheckedField* addChecked(const PropertyRow& row, const QString& name, Shell& shell,
                             const QString& refusal);
    comboEx* addChoice(const PropertyRow& row, const QString& name);
    comboColor* addColor(const PropertyRow& row, const QString& name);
    /// A button in place of a field, for what has a window of its own.
    QToolButton* addWideButton(const PropertyRow& row, const QString& name);

    /// Puts something into a field's row, before or behind the field.
    void putBefore(QWidget* field, QWidget* widget, const QString& name);
    QToolButton* addButton(QWidget* field, const QString& name);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void addRow(const PropertyRow& row, const QString& name, QWidget* field);
    void finishRow();
    void goOn(const QKeySequence& key);
    void explain(QWidget* field, const PropertyRow& row);
    QString withAccessKey(const QString& caption);

    QLabel* txtType_;
    ScrollPanel* fraContainer_;
    QGridLayout* rows_;
    QLabel* lblTitleInfo_;
    QLabel* lblInfo_;
    QHash<const QWidget*, QHBoxLayout*> lines_;  ///< a field and what stands beside it
    QList<QLabel*> captions_;
    QHash<const QObject*, PropertyRow> help_;
    QString section_;
    QString taken_;
    QString keys_;  ///< letters that are access keys in this section
    int line_ = 0;  ///< of the layout, for the next row
    int separators_ = 0;
};

}  // namespace nubivane
