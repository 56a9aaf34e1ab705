// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/font_style.h"
#include "engine/model/keyed_list.h"
#include "engine/model/slot.h"

#include <QString>

#include <utility>

namespace nubivane {

/// No colour: a transparent background.
inline constexpr qint32 NoColor = -1;
inline constexpr qint32 White = 16777215;

/// The outer box of a forecast text.
struct cDiv {
    qint32 BackColor = NoColor;
    qint16 Border = 0;  ///< style index: 0 none, 1 solid … 6 outset
    qint32 BorderColor = White;

    friend bool operator==(const cDiv&, const cDiv&) = default;

    template <class Self, class Visitor>
    static void forEachSlot(Self& self, Visitor&& visit) {
        visit(Slot{"BackColor", "Backcolor", 0}, self.BackColor);
        visit(Slot{"Border", "Border", 1}, self.Border);
        visit(Slot{"BorderColor", "BorderColor", 2}, self.BorderColor);
    }
};

/// A line of text over the map with its style: what title and subtitle have in common.
struct TextLine {
    QString textKey;  ///< used by nobody
    qint16 Border = 0;
    qint32 BorderColor = 0;
    FontStyle Font;
    qint32 BackColor = NoColor;
    qint16 IndexFontSize = 0;  ///< position in the font dialog's list of sizes; in no file
    qint16 Align = 0;          ///< 0 left, 1 right, 2 centre
    QString Text;

    friend bool operator==(const TextLine&, const TextLine&) = default;

    template <class Self, class Visitor>
    static void forEachSlot(Self& self, Visitor&& visit) {
        visit(Slot{"textKey"}, self.textKey);
        visit(Slot{"Border", "Border", 2}, self.Border);
        visit(Slot{"BorderColor", "BorderColor", 3}, self.BorderColor);
        visit(Slot{"FontBold", "FontBold", 6}, self.Font.Bold);
        visit(Slot{"FontItalic", "FontItalic", 7}, self.Font.Italic);
        visit(Slot{"FontUnderline", "FontUnderline", 8}, self.Font.Underline);
        visit(Slot{"FontOverline", "FontOverline", 9}, self.Font.Overline);
        visit(Slot{"FontStrikethourht", "FontStrikethourht", 10}, self.Font.Strikeout);
        visit(Slot{"Forecolor", "Forecolor", 1}, self.Font.Color);
        visit(Slot{"BackColor", "Backcolor", 0}, self.BackColor);
        visit(Slot{"FontName", "FontName", 4}, self.Font.Name);
        visit(Slot{.name = "FontSize", .fileName = "FontSize", .place = 5, .narrow = true},
              self.Font.Size);
        visit(Slot{"IndexFontSize"}, self.IndexFontSize);
        visit(Slot{"Align", "Align", 11}, self.Align);
        visit(Slot{"Text", "Text", 12}, self.Text);
    }

  protected:
    explicit TextLine(qint32 points) : Font{.Name = QStringLiteral("Arial"), .Size = points} {}
};

struct cTitle : TextLine {
    cTitle() : TextLine(24) {}
};

struct cSubtitle : TextLine {
    cSubtitle() : TextLine(14) {}
};

/// A piece of forecast text with its style: what header and body items have in common.
struct TextItem {
    QString textKey = {};  ///< key in its list, which gives it
    FontStyle Font = {.Name = QStringLiteral("Arial"), .Size = 8};
    qint16 IndexFontSize = 0;  ///< position in the font dialog's list of sizes; in no file
    qint32 BackColor = White;
    QString Text = {};

    friend bool operator==(const TextItem&, const TextItem&) = default;

  protected:
    // Header and body have the same slots in another order, and the same values in files.
    static constexpr Slot TextKeySlot{"textKey"};
    static constexpr Slot BackColorSlot{"BackColor", "Backcolor", 0};
    static constexpr Slot ForecolorSlot{"Forecolor", "Forecolor", 1};
    static constexpr Slot FontNameSlot{"FontName", "Fontname", 2};
    static constexpr Slot FontSizeSlot{
        .name = "FontSize", .fileName = "Fontsize", .place = 3, .narrow = true};
    static constexpr Slot BoldSlot{"FontBold", "Fontbold", 4};
    static constexpr Slot ItalicSlot{"FontItalic", "Fontitalic", 5};
    static constexpr Slot UnderlineSlot{"FontUnderline", "Fontunderline", 6};
    static constexpr Slot OverlineSlot{"FontOverline", "Fontoverline", 7};
    static constexpr Slot StrikeoutSlot{"FontStrikethourht", "Fontstrikethourht", 8};
    static constexpr Slot IndexFontSizeSlot{"IndexFontSize"};
    static constexpr Slot TextSlot{"Text", "Text", 9};

    template <class Self, class Visitor>
    static void visitFlagsAndColors(Self& self, Visitor& visit) {
        visit(BoldSlot, self.Font.Bold);
        visit(UnderlineSlot, self.Font.Underline);
        visit(OverlineSlot, self.Font.Overline);
        visit(StrikeoutSlot, self.Font.Strikeout);
        visit(ItalicSlot, self.Font.Italic);
        visit(ForecolorSlot, self.Font.Color);
        visit(BackColorSlot, self.BackColor);
    }
};

struct cHeaderAttribute : TextItem {
    template <class Self, class Visitor>
    static void forEachSlot(Self& self, Visitor&& visit) {
        visit(TextKeySlot, self.textKey);
        visit(FontNameSlot, self.Font.Name);
        visit(FontSizeSlot, self.Font.Size);
        visitFlagsAndColors(self, visit);
        visit(IndexFontSizeSlot, self.IndexFontSize);
        visit(TextSlot, self.Text);
    }
};

struct cBodyAttribute : TextItem {
    template <class Self, class Visitor>
    static void forEachSlot(Self& self, Visitor&& visit) {
        visit(TextKeySlot, self.textKey);
        visitFlagsAndColors(self, visit);
        visit(FontNameSlot, self.Font.Name);
        visit(FontSizeSlot, self.Font.Size);
        visit(IndexFontSizeSlot, self.IndexFontSize);
        visit(TextSlot, self.Text);
    }
};

/// A list of forecast text items; `FirstKey` is the number of its first key.
template <class ItemType, int FirstKey>
class TextItems : public KeyedList<ItemType> {
  public:
    using Record = ItemType;

    /// Appends a copy of a record under a key of its own: "K-" and the next number.
    ItemType& add(TextItem record) {
        record.textKey = issueKey();
        const QString key = record.textKey;
        return this->append(key, ItemType{std::move(record)});
    }

    /// The next key; it will not be issued again.
    QString issueKey() const { return QStringLiteral("K-%1").arg(nextKey_++); }
    /// Puts an item with a key that was issued at a position of the list.
    void Insert(qint32 position, const ItemType& item) {
        this->insertAt(position, item.textKey, item);
    }

  private:
    mutable qint32 nextKey_ = FirstKey;  ///< no part of what the list holds
};

// The header counts its keys from "K-0", the body from "K-1".
using cHeader = TextItems<cHeaderAttribute, 0>;
using cBody = TextItems<cBodyAttribute, 1>;

/// The forecast text of a Frame: a box, a title, a subtitle and two lists whose items belong
/// together by position.
class cForecast {
  public:
    cDiv& Div() { return div_; }
    const cDiv& Div() const { return div_; }
    cTitle& Title() { return title_; }
    const cTitle& Title() const { return title_; }
    cSubtitle& Subtitle() { return subtitle_; }
    const cSubtitle& Subtitle() const { return subtitle_; }
    cBody& Body() { return body_; }
    const cBody& Body() const { return body_; }
    cHeader& Header() { return header_; }
    const cHeader& Header() const { return header_; }

  private:
    cDiv div_;
    cTitle title_;
    cSubtitle subtitle_;
    cBody body_;
    cHeader header_;
};

}  // namespace nubivane
