// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/keyed_list.h"

#include <QString>

#include <memory>
#include <variant>

namespace nubivane {

/// Kinds of sprite: the value of `Type_`.
namespace sprite_type {
inline constexpr qint16 None = 0;
inline constexpr qint16 Symbol = 1;
inline constexpr qint16 Label = 2;
}  // namespace sprite_type

/// A text label on a map. Positions and sizes are pixels of the map; colours are 32-bit integers
/// with red in the low byte.
struct cLabel {
    QString Key_;      ///< "K-" and a number, unique in its list
    QString Name;      ///< array of on-screen elements, always "lblTesto"
    qint16 Type_ = 0;  ///< always `sprite_type::Label` once it is in a list
    qint32 Index = 0;  ///< on-screen element of the moment; stale while the Frame is hidden
    qint16 Frame = 0;  ///< number of the Frame it was made on
    qint32 Width = 0;
    qint32 Height = 0;
    QString FontName;
    qint32 FontSize = 0;  ///< points
    qint32 Forecolor = 0;
    qint32 BackColor = 0;  ///< -1 is transparent
    qint16 Border = 0;     ///< 0 none, 1 fixed single
    qint32 BorderColor = 0;
    bool FontBold = false;
    bool FontItalic = false;
    bool FontUnderline = false;
    bool FontOverline = false;
    bool FontStrikethourht = false;
    qint32 PosX = 0;
    qint32 PosY = 0;
    QString Text;
    QString Note;

    /// Calls `visit(name, value)` for each property in slot order.
    template <class Self, class Visitor>
    static void forEachSlot(Self& self, Visitor&& visit) {
        visit("Key_", self.Key_);
        visit("Name", self.Name);
        visit("Type_", self.Type_);
        visit("Index", self.Index);
        visit("Frame", self.Frame);
        visit("Width", self.Width);
        visit("Height", self.Height);
        visit("FontName", self.FontName);
        visit("FontSize", self.FontSize);
        visit("Forecolor", self.Forecolor);
        visit("BackColor", self.BackColor);
        visit("Border", self.Border);
        visit("BorderColor", self.BorderColor);
        visit("FontBold", self.FontBold);
        visit("FontItalic", self.FontItalic);
        visit("FontUnderline", self.FontUnderline);
        visit("FontOverline", self.FontOverline);
        visit("FontStrikethourht", self.FontStrikethourht);
        visit("PosX", self.PosX);
        visit("PosY", self.PosY);
        visit("Text", self.Text);
        visit("Note", self.Note);
    }
};

/// A weather symbol on a map: a picture file, moving or still.
struct cSymbol {
    QString Key_;      ///< "K-" and a number, unique in its list
    QString Name;      ///< array of on-screen elements, always "gifSymbol"
    qint16 Type_ = 0;  ///< always `sprite_type::Symbol` once it is in a list
    qint16 Frame = 0;  ///< number of the Frame it was made on
    qint32 PosX = 0;   ///< pixels of the map
    qint32 PosY = 0;
    qint32 Width = 0;
    qint32 Height = 0;
    QString FileGif;      ///< full path, as set on creation
    QString PathFileGif;  ///< full path, read when the symbol is shown or saved
    qint32 Index = 0;     ///< on-screen element of the moment; stale while the Frame is hidden
    QString Link;         ///< hyperlink in a page, without "http://"
    QString Tooltip;      ///< tooltip in a page
    QString Note;

    /// Calls `visit(name, value)` for each property in slot order.
    template <class Self, class Visitor>
    static void forEachSlot(Self& self, Visitor&& visit) {
        visit("Key_", self.Key_);
        visit("Name", self.Name);
        visit("Type_", self.Type_);
        visit("Frame", self.Frame);
        visit("PosX", self.PosX);
        visit("PosY", self.PosY);
        visit("Width", self.Width);
        visit("Height", self.Height);
        visit("FileGif", self.FileGif);
        visit("PathFileGif", self.PathFileGif);
        visit("Index", self.Index);
        visit("Link", self.Link);
        visit("Tooltip", self.Tooltip);
        visit("Note", self.Note);
    }
};

/// The Labels of a Frame, bottom to top. Keys count from "K-1" and are never issued twice.
class cLabels : public KeyedList<cLabel> {
  public:
    /// Appends a Label. `FontSize` and `Border` come as text; one that is no number raises `Error`
    /// (TypeMismatch) and leaves the list as it was.
    cLabel& Add(qint16 Frame, const QString& Name, qint32 Index, qint32 Height, qint32 Width,
                qint32 PosX, qint32 PosY, const QString& Text, const QString& FontName,
                const QString& FontSize, bool FontBold, bool FontItalic, bool FontUnderline,
                bool FontOverline, bool FontStrikethourht, qint32 BackColor, qint32 Forecolor,
                const QString& Border, qint32 BorderColor, const QString& Note);

    /// A copy with every property, key included, that is in no list.
    std::unique_ptr<cLabel> Copy(const cLabel& source) const;

  private:
    qint32 nextKey_ = 1;
};

/// The Symbols of a Frame, bottom to top. Keys count from "K-1" and are never issued twice.
class cSymbols : public KeyedList<cSymbol> {
  public:
    cSymbol& Add(qint16 Frame, const QString& Name, qint32 Index, qint32 Height, qint32 Width,
                 qint32 PosX, qint32 PosY, const QString& FileGif, const QString& PathFileGif,
                 const QString& Link, const QString& Tooltip, const QString& Note);

    /// A copy with every property, key included, that is in no list.
    std::unique_ptr<cSymbol> Copy(const cSymbol& source) const;

  private:
    qint32 nextKey_ = 1;
};

/// All sprites of a Frame. A Symbol and a Label may bear the same key: only kind and key together
/// name a sprite.
class cSprites {
  public:
    cLabels& Labels() { return labels_; }
    const cLabels& Labels() const { return labels_; }
    cSymbols& Symbols() { return symbols_; }
    const cSymbols& Symbols() const { return symbols_; }

    using List = std::variant<std::monostate, cSymbols*, cLabels*>;
    using Sprite = std::variant<std::monostate, cSymbol*, cLabel*>;

    /// The list of a kind, given as in a sprite's tag: "1" Symbols, "2" Labels, otherwise nothing.
    List evalSprite(const QString& type);
    /// The sprite of a kind and key. An unknown key raises `Error` (InvalidArgument).
    Sprite eval(const QString& type, const QString& key);

    /// Removes all sprites. The lists' key counters go on.
    void RemovaAll();

    /// Number of Symbols and Labels together.
    qint16 Count() const;

    /// The Symbol of a key; the key of a Label is an error.
    cSymbol& Item(const QString& key) const { return symbols_.Item(key); }

    /// Tells these lists from those of any other Frame, also from one that later stands in their
    /// place: with a key it names a sprite for good. It expires with the lists.
    std::weak_ptr<const void> identity() const { return identity_; }

  private:
    std::shared_ptr<const void> identity_ = std::make_shared<char>();
    cLabels labels_;
    cSymbols symbols_;
};

}  // namespace nubivane
