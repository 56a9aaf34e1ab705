// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/web/page_pictures.h"
#include "engine/web/page_settings.h"

#include <QColor>
#include <QRect>
#include <QSize>
#include <QString>

#include <optional>
#include <vector>

namespace nubivane {

class cFrames;
class ColorTable;

/// How a text of the project looks. Colours that a person has not chosen are nothing.
struct TextLook {
    QString family{};
    int points = 0;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool overline = false;
    bool strikeOut = false;
    int align = 0;               ///< 0 as the script runs, 1 right, 2 centre
    std::optional<QRgb> ink{};   ///< nothing is the default colour, which goes with the scheme
    std::optional<QRgb> back{};  ///< nothing shows what is behind
    std::optional<QRgb> edge{};  ///< colour of a thin border
};

struct StyledText {
    QString text;
    TextLook look;
};

/// The box around a forecast text.
struct BoxLook {
    std::optional<QRgb> back{};
    std::optional<QRgb> edge{};
    int border = 0;  ///< index of `borderStyle`
};

struct SymbolContent {
    QRect box;        ///< pixels of the map
    QString name;     ///< what it shows, in words
    QString tooltip;  ///< empty when it has none
    QString link;     ///< an address, or empty
    PagePictures::Symbol picture{};
};

struct LabelContent {
    QRect box;
    StyledText text;
    QRgb ground;  ///< colour of the map behind it
};

struct TextPair {
    StyledText header;
    StyledText body;
};

/// A forecast period: what one Frame tells. Every text is plain.
struct PeriodContent {
    QString id{};
    QString caption{};
    StyledText title{};
    StyledText subtitle{};
    BoxLook box{};
    std::vector<TextPair> texts{};
    std::vector<SymbolContent> symbols{};
    std::vector<LabelContent> labels{};
    PagePictures::Map map{};
};

/// What the responsive page and its JSON tell: the model made ready for readers, with nothing in it
/// that could be taken for markup by mistake or lead to another place than a link may.
struct PageContent {
    QString title;
    QString footer;
    std::vector<PeriodContent> periods{};
    QSize map;  ///< pixels
    PagePictures pictures;
    PageSettings settings;
    std::optional<QRgb> ownColor{};  ///< background that the person has chosen for the page
    bool hasCustomStyle = false;     ///< "<Filename>-custom.css" stands beside the page
};

PageContent pageContent(const cFrames& frames, const ColorTable& colors, QSize map,
                        const PageSettings& settings, const PagePictures& pictures);

/// A period in one sentence or several, for cards and search engines: headings and what the map
/// shows.
QString summaryOf(const PeriodContent& period);

}  // namespace nubivane
