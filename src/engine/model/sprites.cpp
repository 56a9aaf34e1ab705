// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/sprites.h"

#include "engine/model/number_argument.h"

namespace nubivane {

using namespace Qt::StringLiterals;

cLabel& cLabels::Add(qint16 Frame, const QString& Name, qint32 Index, qint32 Height, qint32 Width,
                     qint32 PosX, qint32 PosY, const QString& Text, const QString& FontName,
                     const QString& FontSize, bool FontBold, bool FontItalic, bool FontUnderline,
                     bool FontOverline, bool FontStrikethourht, qint32 BackColor, qint32 Forecolor,
                     const QString& Border, qint32 BorderColor, const QString& Note) {
    auto label = std::make_unique<cLabel>();
    label->Key_ = u"K-"_s + QString::number(nextKey_);
    label->Name = Name;
    label->Type_ = sprite_type::Label;
    label->Index = Index;
    label->Frame = Frame;
    label->Width = Width;
    label->Height = Height;
    label->FontName = FontName;
    label->FontSize = int32Argument(FontSize);
    label->Forecolor = Forecolor;
    label->BackColor = BackColor;
    label->Border = int16Argument(Border);
    label->BorderColor = BorderColor;
    label->FontBold = FontBold;
    label->FontItalic = FontItalic;
    label->FontUnderline = FontUnderline;
    label->FontOverline = FontOverline;
    label->FontStrikethourht = FontStrikethourht;
    label->PosX = PosX;
    label->PosY = PosY;
    label->Text = Text;
    label->Note = Note;
    ++nextKey_;
    const QString key = label->Key_;
    return append(key, std::move(label));
}

std::unique_ptr<cLabel> cLabels::Copy(const cLabel& source) const {
    return std::make_unique<cLabel>(source);
}

cSymbol& cSymbols::Add(qint16 Frame, const QString& Name, qint32 Index, qint32 Height, qint32 Width,
                       qint32 PosX, qint32 PosY, const QString& FileGif, const QString& PathFileGif,
                       const QString& Link, const QString& Tooltip, const QString& Note) {
    auto symbol = std::make_unique<cSymbol>();
    symbol->Key_ = u"K-"_s + QString::number(nextKey_++);
    symbol->Name = Name;
    symbol->Type_ = sprite_type::Symbol;
    symbol->Frame = Frame;
    symbol->PosX = PosX;
    symbol->PosY = PosY;
    symbol->Width = Width;
    symbol->Height = Height;
    symbol->FileGif = FileGif;
    symbol->PathFileGif = PathFileGif;
    symbol->Index = Index;
    symbol->Link = Link;
    symbol->Tooltip = Tooltip;
    symbol->Note = Note;
    const QString key = symbol->Key_;
    return append(key, std::move(symbol));
}

std::unique_ptr<cSymbol> cSymbols::Copy(const cSymbol& source) const {
    return std::make_unique<cSymbol>(source);
}

cSprites::List cSprites::evalSprite(const QString& type) {
    if (type == u"1") {
        return &symbols_;
    }
    if (type == u"2") {
        return &labels_;
    }
    return {};
}

cSprites::Sprite cSprites::eval(const QString& type, const QString& key) {
    if (type == u"1") {
        return &symbols_.Item(key);
    }
    if (type == u"2") {
        return &labels_.Item(key);
    }
    return {};
}

void cSprites::RemovaAll() {
    for (qint32 i = symbols_.Count(); i >= 1; --i) {
        symbols_.Remove(i);
    }
    for (qint32 i = labels_.Count(); i >= 1; --i) {
        labels_.Remove(i);
    }
}

qint16 cSprites::Count() const {
    return static_cast<qint16>(symbols_.Count() + labels_.Count());
}

}  // namespace nubivane
