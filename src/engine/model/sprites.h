// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/font_style.h"
#include "engine/model/keyed_list.h"
#include "engine/model/slot.h"
#include "engine/model/sprite_id.h"

#include <QString>

#include <memory>
#include <variant>

namespace nubivane {

/// Values of `Type_`, and of a selection of nothing.
namespace sprite_type {
inline constexpr qint16 None = 0;
inline constexpr auto Symbol = static_cast<qint16>(SpriteKind::Symbol);
inline constexpr auto Label = static_cast<qint16>(SpriteKind::Label);
}  // namespace sprite_type

/// A text label on a map. Positions and sizes are pixels of the map; colours are 32-bit integers
/// with red in the low byte.
struct cLabel {
    QString Key_ = {};         ///< "K-" and a number, unique in its list, which gives it
    QString Name = {};         ///< array of on-screen elements, always "lblTesto"
    qint16 Type_ = 0;          ///< always `sprite_type::Label` once it is in a list
    mutable qint32 Index = 0;  ///< on-screen element of the moment; stale while the Frame is hidden
    qint16 Frame = 0;          ///< number of the Frame it was made on
    qint32 Width = 0;
    qint32 Height = 0;
    FontStyle Font = {};
    qint32 BackColor = 0;  ///< -1 is transparent
    qint16 Border = 0;     ///< 0 none, 1 fixed single
    qint32 BorderColor = 0;
    qint32 PosX = 0;
    qint32 PosY = 0;
    QString Text = {};
    QString Note = {};

    friend bool operator==(const cLabel&, const cLabel&) = default;

    template <class Self, class Visitor>
    static void forEachSlot(Self& self, Visitor&& visit) {
        visit(Slot{"Key_"}, self.Key_);
        visit(Slot{"Name"}, self.Name);
        visit(Slot{"Type_"}, self.Type_);
        visit(Slot{"Index"}, self.Index);
        visit(Slot{"Frame"}, self.Frame);
        visit(Slot{"Width", "Width", 12}, self.Width);
        visit(Slot{"Height", "Height", 11}, self.Height);
        visit(Slot{"FontName", "Fontname", 4}, self.Font.Name);
        visit(Slot{"FontSize", "Fontsize", 5}, self.Font.Size);
        visit(Slot{"Forecolor", "Forecolor", 1}, self.Font.Color);
        visit(Slot{"BackColor", "Backcolor", 0}, self.BackColor);
        visit(Slot{"Border", "Border", 2}, self.Border);
        visit(Slot{"BorderColor", "Bordercolor", 3}, self.BorderColor);
        visit(Slot{"FontBold", "Fontbold", 6}, self.Font.Bold);
        visit(Slot{"FontItalic", "Fontitalic", 7}, self.Font.Italic);
        // Files hold overline, strike-through, underline at 8, 9, 10 and are read as underline,
        // overline, strike-through: the flags move on by one at each opening, and users' files
        // rely on it.
        visit(Slot{"FontUnderline", "Fontunderline", 10, 8}, self.Font.Underline);
        visit(Slot{"FontOverline", "Fontoverline", 8, 9}, self.Font.Overline);
        visit(Slot{"FontStrikethourht", "Fontstrikethourht", 9, 10}, self.Font.Strikeout);
        visit(Slot{"PosX", "Left", 13}, self.PosX);
        visit(Slot{"PosY", "Top", 14}, self.PosY);
        visit(Slot{"Text", "Text", 15}, self.Text);
        visit(Slot{"Note", "Note", 16}, self.Note);
    }
};

/// A weather symbol on a map: a picture file, moving or still.
struct cSymbol {
    QString Key_ = {};  ///< "K-" and a number, unique in its list, which gives it
    QString Name = {};  ///< array of on-screen elements, always "gifSymbol"
    qint16 Type_ = 0;   ///< always `sprite_type::Symbol` once it is in a list
    qint16 Frame = 0;   ///< number of the Frame it was made on
    qint32 PosX = 0;    ///< pixels of the map
    qint32 PosY = 0;
    qint32 Width = 0;
    qint32 Height = 0;
    QString FileGif = {};  ///< full path, as set on creation
    /// Full path, read when the symbol is shown or saved. Files hold its last folder and its name.
    QString PathFileGif = {};
    mutable qint32 Index = 0;  ///< on-screen element of the moment; stale while the Frame is hidden
    QString Link = {};         ///< hyperlink in a page, without "http://"
    QString Tooltip = {};      ///< tooltip in a page
    QString Note = {};

    friend bool operator==(const cSymbol&, const cSymbol&) = default;

    template <class Self, class Visitor>
    static void forEachSlot(Self& self, Visitor&& visit) {
        visit(Slot{"Key_"}, self.Key_);
        visit(Slot{"Name"}, self.Name);
        visit(Slot{"Type_"}, self.Type_);
        visit(Slot{"Frame"}, self.Frame);
        visit(Slot{"PosX", "Left", 3}, self.PosX);
        visit(Slot{"PosY", "Top", 4}, self.PosY);
        visit(Slot{"Width", "Width", 2}, self.Width);
        visit(Slot{"Height", "Height", 1}, self.Height);
        visit(Slot{"FileGif"}, self.FileGif);
        visit(Slot{"PathFileGif", "Filename", 0}, self.PathFileGif);
        visit(Slot{"Index"}, self.Index);
        visit(Slot{"Link", "Link", 5}, self.Link);
        visit(Slot{"Tooltip", "Tooltip", 6}, self.Tooltip);
        visit(Slot{"Note", "Note", 7}, self.Note);
    }
};

/// The Labels of a Frame, bottom to top. Keys count from "K-1" and are never issued twice.
class cLabels : public KeyedList<cLabel> {
  public:
    /// Appends a copy of a record, with a key of its own and the type of a Label.
    cLabel& add(cLabel record);

    /// The next key; it will not be issued again.
    QString issueKey() const;
    /// Puts a Label with a key that was issued at a position of the list.
    void Insert(qint32 position, const cLabel& record);

  private:
    mutable qint32 nextKey_ = 1;  ///< no part of what the list holds
};

/// The Symbols of a Frame, bottom to top. Keys count from "K-1" and are never issued twice.
class cSymbols : public KeyedList<cSymbol> {
  public:
    /// Appends a copy of a record, with a key of its own and the type of a Symbol.
    cSymbol& add(cSymbol record);

    /// The next key; it will not be issued again.
    QString issueKey() const;
    /// Puts a Symbol with a key that was issued at a position of the list.
    void Insert(qint32 position, const cSymbol& record);

  private:
    mutable qint32 nextKey_ = 1;  ///< no part of what the list holds
};

/// All sprites of a Frame. A Symbol and a Label may bear the same key: only kind and key together
/// name a sprite.
class cSprites {
  public:
    cLabels& Labels() { return labels_; }
    const cLabels& Labels() const { return labels_; }
    cSymbols& Symbols() { return symbols_; }
    const cSymbols& Symbols() const { return symbols_; }

    using Sprite = std::variant<std::monostate, cSymbol*, cLabel*>;

    /// A sprite by its name; nothing where there is none of it.
    Sprite find(const SpriteId& id);
    bool contains(const SpriteId& id) const;

    /// Removes all sprites. The lists' key counters go on.
    void RemovaAll();

    /// Number of Symbols and Labels together.
    qint16 Count() const;

    /// The Symbol of a key; the key of a Label is an error.
    const cSymbol& Item(const QString& key) const { return symbols_.Item(key); }
    cSymbol& Item(const QString& key) { return symbols_.Item(key); }

    /// Tells these lists from those of any other Frame, also from one that later stands in their
    /// place: with a key it names a sprite for good. It expires with the lists.
    std::weak_ptr<const void> identity() const { return identity_; }

  private:
    std::shared_ptr<const void> identity_ = std::make_shared<char>();
    cLabels labels_;
    cSymbols symbols_;
};

}  // namespace nubivane
