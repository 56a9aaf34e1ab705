// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/keyed_list.h"

#include <QString>

namespace nubivane {

/// No colour: a transparent background.
inline constexpr qint32 NoColor = -1;
inline constexpr qint32 White = 16777215;

/// The outer box of a forecast text.
struct cDiv {
    qint32 BackColor = NoColor;
    qint16 Border = 0;  ///< style index: 0 none, 1 solid … 6 outset
    qint32 BorderColor = White;

    template <class Self, class Visitor>
    static void forEachSlot(Self& self, Visitor&& visit) {
        visit("BackColor", self.BackColor);
        visit("Border", self.Border);
        visit("BorderColor", self.BorderColor);
    }
};

/// A line of text over the map with its style: what title and subtitle have in common.
struct TextLine {
    QString textKey;  ///< used by nobody
    qint16 Border = 0;
    qint32 BorderColor = 0;
    bool FontBold = false;
    bool FontItalic = false;
    bool FontUnderline = false;
    bool FontOverline = false;
    bool FontStrikethourht = false;
    qint32 Forecolor = 0;
    qint32 BackColor = NoColor;
    QString FontName = QStringLiteral("Arial");
    qint16 FontSize = 0;       ///< points
    qint16 IndexFontSize = 0;  ///< position in the font dialog's list of sizes; in no file
    qint16 Align = 0;          ///< 0 left, 1 right, 2 centre
    QString Text;

    template <class Self, class Visitor>
    static void forEachSlot(Self& self, Visitor&& visit) {
        visit("textKey", self.textKey);
        visit("Border", self.Border);
        visit("BorderColor", self.BorderColor);
        visit("FontBold", self.FontBold);
        visit("FontItalic", self.FontItalic);
        visit("FontUnderline", self.FontUnderline);
        visit("FontOverline", self.FontOverline);
        visit("FontStrikethourht", self.FontStrikethourht);
        visit("Forecolor", self.Forecolor);
        visit("BackColor", self.BackColor);
        visit("FontName", self.FontName);
        visit("FontSize", self.FontSize);
        visit("IndexFontSize", self.IndexFontSize);
        visit("Align", self.Align);
        visit("Text", self.Text);
    }
};

struct cTitle : TextLine {
    cTitle() { FontSize = 24; }
};

struct cSubtitle : TextLine {
    cSubtitle() { FontSize = 14; }
};

/// A piece of forecast text with its style: what header and body items have in common.
struct TextItem {
    QString textKey;  ///< key in its list
    QString FontName = QStringLiteral("Arial");
    qint16 FontSize = 8;       ///< points
    qint16 IndexFontSize = 0;  ///< position in the font dialog's list of sizes; in no file
    bool FontBold = false;
    bool FontUnderline = false;
    bool FontOverline = false;
    bool FontStrikethourht = false;
    bool FontItalic = false;
    qint32 Forecolor = 0;
    qint32 BackColor = White;
    QString Text;
};

struct cHeaderAttribute : TextItem {
    /// Calls `visit(name, value)` for each property in slot order.
    template <class Self, class Visitor>
    static void forEachSlot(Self& self, Visitor&& visit) {
        visit("textKey", self.textKey);
        visit("FontName", self.FontName);
        visit("FontSize", self.FontSize);
        visit("FontBold", self.FontBold);
        visit("FontUnderline", self.FontUnderline);
        visit("FontOverline", self.FontOverline);
        visit("FontStrikethourht", self.FontStrikethourht);
        visit("FontItalic", self.FontItalic);
        visit("Forecolor", self.Forecolor);
        visit("BackColor", self.BackColor);
        visit("IndexFontSize", self.IndexFontSize);
        visit("Text", self.Text);
    }
};

struct cBodyAttribute : TextItem {
    /// Calls `visit(name, value)` for each property in slot order.
    template <class Self, class Visitor>
    static void forEachSlot(Self& self, Visitor&& visit) {
        visit("textKey", self.textKey);
        visit("FontBold", self.FontBold);
        visit("FontUnderline", self.FontUnderline);
        visit("FontOverline", self.FontOverline);
        visit("FontStrikethourht", self.FontStrikethourht);
        visit("FontItalic", self.FontItalic);
        visit("Forecolor", self.Forecolor);
        visit("BackColor", self.BackColor);
        visit("FontName", self.FontName);
        visit("FontSize", self.FontSize);
        visit("IndexFontSize", self.IndexFontSize);
        visit("Text", self.Text);
    }
};

/// A list of forecast text items; `FirstKey` is the number of its first key.
template <class ItemType, int FirstKey>
class TextItems : public KeyedList<ItemType> {
  public:
    /// Appends an item. A `FontSize` text that is no number raises `Error` (TypeMismatch) and
    /// leaves the list as it was.
    ItemType& Add(qint32 BackColor, qint32 Forecolor, const QString& FontName,
                  const QString& FontSize, qint16 IndexFontSize, bool FontBold, bool FontItalic,
                  bool FontUnderline, bool FontOverline, bool FontStrikethourht,
                  const QString& Text);

  private:
    qint32 nextKey_ = FirstKey;
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
