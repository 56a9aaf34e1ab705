// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/properties/font_rows.h"

#include "windows/properties/frm_font.h"
#include "windows/properties/property_grid.h"
#include "windows/widgets/color_swatch.h"

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr PropertyRow FontRow{QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Font"),
                              QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Sets font")};
constexpr PropertyRow SizeRow{QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Size"),
                              QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Sets font size")};
constexpr PropertyRow ColorRow{QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Color"),
                               QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Sets font color")};

struct FlagRow {
    PropertyRow row;
    const char* name;
    bool FontStyle::*flag;
};

constexpr std::array flagRows = {
    FlagRow{{QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Bold"),
             QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Sets font bold attribute")},
            "Fontbold",
            &FontStyle::Bold},
    FlagRow{{QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Italic"),
             QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Sets font italic attribute")},
            "FontItalic",
            &FontStyle::Italic},
    FlagRow{{QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Underline"),
             QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Sets underline effect")},
            "FontUnderline",
            &FontStyle::Underline},
    FlagRow{{QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Overline"),
             QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Sets overline effect")},
            "FontOverline",
            &FontStyle::Overline},
    FlagRow{{QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Strikeout"),
             QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Sets strikeout effect")},
            "FontStrikethourht",
            &FontStyle::Strikeout},
};

}  // namespace

FontRows::FontRows(PropertyGrid& grid, const QString& part, const QString& buttonPart)
    : txtFont_(grid.addReadOnly(FontRow, u"txt"_s + part + u"Font"_s)),
      cmdFont_(grid.addButton(txtFont_, u"cmd"_s + buttonPart + u"Font"_s)),
      txtFontSize_(grid.addReadOnly(SizeRow, u"txt"_s + part + u"FontSize"_s)),
      pctForecolor_(new ColorSwatch) {
    for (std::size_t i = 0; i < flagRows.size(); ++i) {
        flags_[i] =
            grid.addReadOnly(flagRows[i].row, u"txt"_s + part + QLatin1String(flagRows[i].name));
    }
    txtForeColor_ = grid.addReadOnly(ColorRow, u"txt"_s + part + u"ForeColor"_s);
    grid.putBefore(txtForeColor_, pctForecolor_, u"pct"_s + part + u"Forecolor"_s);
    QObject::connect(cmdFont_, &QToolButton::clicked, cmdFont_, [this] { openFontDialog(); });
}

void FontRows::show(const FontStyle* font, const QString& yes) {
    style_ = font ? std::optional(*font) : std::nullopt;
    cmdFont_->setEnabled(style_.has_value());
    pctForecolor_->setVisible(style_.has_value());
    if (style_) {
        fill(yes);
    } else {
        for (QLineEdit* field : flags_) {
            field->clear();
        }
        txtFont_->clear();
        txtFontSize_->clear();
        txtForeColor_->clear();
    }
}

void FontRows::fill(const QString& yes) {
    txtFont_->setText(style_->Name);
    txtFont_->setCursorPosition(0);
    txtFontSize_->setText(QString::number(style_->Size));
    for (std::size_t i = 0; i < flagRows.size(); ++i) {
        flags_[i]->setText((*style_).*flagRows[i].flag ? yes : tr("No"));
    }
    txtForeColor_->setText(colorName(style_->Color));
    pctForecolor_->setBackColor(style_->Color);
}

void FontRows::setSwatch(qint32 color) {
    pctForecolor_->setBackColor(color);
}

void FontRows::openFontDialog() {
    if (!style_) {
        return;
    }
    frmFont dialog(cmdFont_->window());
    FontStyle chosen = *style_;
    dialog.oFont = &chosen;
    dialog.Init();
    if (chosen != *style_) {
        Q_EMIT fontChosen(chosen);
    }
    Q_EMIT fontDialogClosed();
}

}  // namespace nubivane
