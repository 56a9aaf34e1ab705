// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/forecast.h"

#include "engine/model/number_argument.h"

namespace nubivane {

using namespace Qt::StringLiterals;

template <class ItemType, int FirstKey>
ItemType& TextItems<ItemType, FirstKey>::Add(qint32 BackColor, qint32 Forecolor,
                                             const QString& FontName, const QString& FontSize,
                                             qint16 IndexFontSize, bool FontBold, bool FontItalic,
                                             bool FontUnderline, bool FontOverline,
                                             bool FontStrikethourht, const QString& Text) {
    auto item = std::make_unique<ItemType>();
    item->textKey = u"K-"_s + QString::number(nextKey_);
    item->FontName = FontName;
    item->FontSize = int16Argument(FontSize);
    item->IndexFontSize = IndexFontSize;
    item->FontBold = FontBold;
    item->FontUnderline = FontUnderline;
    item->FontOverline = FontOverline;
    item->FontStrikethourht = FontStrikethourht;
    item->FontItalic = FontItalic;
    item->Forecolor = Forecolor;
    item->BackColor = BackColor;
    item->Text = Text;
    ++nextKey_;
    const QString key = item->textKey;
    return this->append(key, std::move(item));
}

template class TextItems<cHeaderAttribute, 0>;
template class TextItems<cBodyAttribute, 1>;

}  // namespace nubivane
