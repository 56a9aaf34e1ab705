// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/modal.h"
#include "windows/canvas/canvas_fixture.h"
#include "windows/widgets/color_swatch.h"
#include "windows/widgets/combo_color.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace nubivane::testing {

/// A row as a property window shows it.
struct ShownRow {
    QByteArray field;
    const char* caption;
    const char* helpTitle;
    const char* help;
};

/// The editor with one property window open at a time.
class PropertyFixture : public CanvasFixture {
  protected:
    /// Opens the window of what is selected and uses it.
    void withProperties(const std::function<void(QWidget&)>& use) {
        withModal([this] { window().findChild<PropertyCommands*>()->showSpriteProperties(); }, use);
    }

    static QString text(const QWidget& window, const char* field) {
        return partOf<QLineEdit>(window, field).text();
    }
    static QString chosen(const QWidget& window, const char* combo) {
        return partOf<QComboBox>(window, combo).currentText();
    }
    static qint32 swatch(const QWidget& window, const char* name) {
        return partOf<ColorSwatch>(window, name).BackColor();
    }
    /// Chooses an item as a person does, with the keyboard.
    static void choose(const QWidget& window, const char* combo, const QString& item) {
        auto& box = partOf<QComboBox>(window, combo);
        ASSERT_GE(box.findText(item), 0) << item.toStdString();
        box.setFocus();
        QTest::keyClick(&box, Qt::Key_Home);
        while (box.currentText() != item && box.currentIndex() < box.count() - 1) {
            QTest::keyClick(&box, Qt::Key_Down);
        }
        EXPECT_EQ(box.currentText(), item);
    }
    static void enter(const QWidget& window, const char* field, const QString& text) {
        auto& edit = partOf<QLineEdit>(window, field);
        type(edit, text);
        QTest::keyClick(&edit, Qt::Key_Return);
    }
    /// Types and goes to another field.
    static void leave(const QWidget& window, const char* field, const QString& text) {
        auto& edit = partOf<QLineEdit>(window, field);
        type(edit, text);
        QTest::keyClick(&edit, Qt::Key_Tab);
        QCoreApplication::processEvents();
    }
    static void click(QWidget& window, const char* button) {
        QTest::mouseClick(&partOf<QAbstractButton>(window, button), Qt::LeftButton);
    }
    using CanvasFixture::click;

    /// The label beside a field; none where the field is in no row.
    static const QLabel* labelOf(const QWidget& field) {
        const auto* rows = qobject_cast<QGridLayout*>(field.parentWidget()->layout());
        for (int row = 0; rows && row < rows->rowCount(); ++row) {
            const QLayoutItem* line = rows->itemAtPosition(row, 1);
            auto* fields = line ? const_cast<QLayoutItem*>(line)->layout() : nullptr;
            if (fields && fields->indexOf(&field) >= 0) {
                return qobject_cast<QLabel*>(rows->itemAtPosition(row, 0)->widget());
            }
        }
        return nullptr;
    }
    /// The caption beside a field.
    static QString captionOf(const QWidget& field) {
        const QLabel* label = labelOf(field);
        return label ? QString(label->text()).remove(u'&') : QString();
    }
    /// The rows of one text's font and colours, `line` being the middle of their fields' names.
    static void expectFontRows(QWidget& window, const QByteArray& line) {
        expectRows(
            window,
            {{"txt" + line + "Font", "Font", "Font", "Sets font"},
             {"txt" + line + "FontSize", "Size", "Size", "Sets font size"},
             {"txt" + line + "Fontbold", "Bold", "Bold", "Sets font bold attribute"},
             {"txt" + line + "FontItalic", "Italic", "Italic", "Sets font italic attribute"},
             {"txt" + line + "FontUnderline", "Underline", "Underline", "Sets underline effect"},
             {"txt" + line + "FontOverline", "Overline", "Overline", "Sets overline effect"},
             {"txt" + line + "FontStrikethourht", "Strikeout", "Strikeout",
              "Sets strikeout effect"},
             {"txt" + line + "ForeColor", "Color", "Color", "Sets font color"},
             {"cbo" + line + "Backcolor", "Back color", "Back color",
              "Sets background color used to display text"}});
    }

    static void expectRows(QWidget& window, std::initializer_list<ShownRow> rows) {
        for (const ShownRow& row : rows) {
            auto& field = partOf<QWidget>(window, row.field.constData());
            EXPECT_EQ(captionOf(field), row.caption) << row.field.constData();
            field.setFocus();
            EXPECT_EQ(partOf<QLabel>(window, "lblTitleInfo").text(), row.helpTitle)
                << row.field.constData();
            EXPECT_EQ(partOf<QLabel>(window, "lblInfo").text(), row.help) << row.field.constData();
            EXPECT_FALSE(field.accessibleName().isEmpty()) << row.field.constData();
        }
    }

    void expectInvalid() { shell.expectMessage("Invalid value.", Icon::Critical); }
};

}  // namespace nubivane::testing
