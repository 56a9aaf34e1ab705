// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/page_content.h"

#include "engine/core/path_text.h"
#include "engine/model/color_table.h"
#include "engine/model/frames.h"
#include "engine/web/page_link.h"
#include "engine/web/period_ids.h"
#include "engine/web/plain_text.h"

#include <algorithm>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr int SmallestFont = 4;  // points; what a file holds may be any number
constexpr int LargestFont = 200;

/// Colours of the palette as all pages show them, any other as its number spells it.
class Colors {
  public:
    explicit Colors(const ColorTable& table) {
        for (const ColorTable::Row& row : table.rows()) {
            if (row.color != NoColor) {
                known_.insert(row.color, QColor(QLatin1String(row.webColor)).rgb());
            }
        }
    }

    std::optional<QRgb> of(qint32 color) const {
        if (color < 0) {
            return std::nullopt;
        }
        const auto found = known_.constFind(color);
        return found != known_.cend() ? *found
                                      : qRgb(color & 0xFF, color >> 8 & 0xFF, color >> 16 & 0xFF);
    }

  private:
    QHash<qint32, QRgb> known_;
};

template <class Styled>
TextLook lookOf(const Styled& object, const Colors& colors) {
    TextLook look{
        .family = plainLine(object.Font.Name),
        .points = std::clamp(static_cast<int>(object.Font.Size), SmallestFont, LargestFont),
        .bold = object.Font.Bold,
        .italic = object.Font.Italic,
        .underline = object.Font.Underline,
        .overline = object.Font.Overline,
        .strikeOut = object.Font.Strikeout,
        .back = colors.of(object.BackColor),
    };
    if (object.Font.Color > 0 || look.back) {
        look.ink = colors.of(object.Font.Color).value_or(qRgb(0, 0, 0));
    }
    if constexpr (requires { object.Border; }) {
        if (object.Border != 0) {
            look.edge = colors.of(object.BorderColor);
        }
    }
    if constexpr (requires { object.Align; }) {
        look.align = object.Align;
    }
    return look;
}

template <class Styled>
StyledText styled(const Styled& object, const Colors& colors) {
    return {plainText(object.Text).trimmed(), lookOf(object, colors)};
}

/// What a symbol without a tooltip shows is told by its file: "heavy-rain.gif".
QString nameOfFile(const QString& path) {
    QString name = stripExtension(getFileName(path));
    name.replace(u'-', u' ').replace(u'_', u' ');
    return plainLine(name);
}

SymbolContent symbolContent(const cSymbol& symbol, const PagePictures& pictures) {
    SymbolContent content{
        .box = placeOf(symbol),
        .name = plainLine(symbol.Tooltip),
        .tooltip = plainText(symbol.Tooltip).trimmed(),
        .link = pageLink(symbol.Link).value_or(QString()),
        .picture = pictures.symbols.value(symbol.FileGif),
    };
    if (content.name.isEmpty()) {
        content.name = nameOfFile(symbol.FileGif);
        if (!content.link.isEmpty()) {
            content.name += u" – "_s + plainLine(symbol.Link);
        }
    }
    return content;
}

void addTexts(PeriodContent& period, const cForecast& forecast, const Colors& colors) {
    const qint32 count = std::max(forecast.Header().Count(), forecast.Body().Count());
    for (qint32 i = 1; i <= count; ++i) {
        TextPair pair;
        if (i <= forecast.Header().Count()) {
            pair.header = styled(forecast.Header().Item(i), colors);
        }
        if (i <= forecast.Body().Count()) {
            pair.body = styled(forecast.Body().Item(i), colors);
        }
        if (!pair.header.text.isEmpty() || !pair.body.text.isEmpty()) {
            period.texts.push_back(std::move(pair));
        }
    }
}

void addSprites(PeriodContent& period, const cSprites& sprites, const PagePictures& pictures,
                const Colors& colors) {
    for (const cSymbol& symbol : sprites.Symbols()) {
        if (symbol.Width > 0 && symbol.Height > 0) {
            period.symbols.push_back(symbolContent(symbol, pictures));
        }
    }
    std::size_t number = 0;
    for (const cLabel& label : sprites.Labels()) {
        const auto& grounds = period.map.grounds;
        const QRgb ground = number < grounds.size() ? grounds[number] : qRgb(255, 255, 255);
        ++number;
        StyledText text{plainText(label.Text), lookOf(label, colors)};
        if (!text.text.trimmed().isEmpty()) {
            period.labels.push_back({placeOf(label), std::move(text), ground});
        }
    }
}

PeriodContent periodContent(const cFrame& frame, const PageContent& page,
                            const PagePictures::Map& map, const Colors& colors) {
    const cForecast& forecast = frame.Texts().Forecast();
    const cDiv& div = forecast.Div();
    PeriodContent period{
        .title = styled(forecast.Title(), colors),
        .subtitle = styled(forecast.Subtitle(), colors),
        .box = {colors.of(div.BackColor), colors.of(div.BorderColor), div.Border},
        .map = map,
    };
    if (page.settings.showForecastText) {
        addTexts(period, forecast, colors);
    }
    addSprites(period, frame.Sprites(), page.pictures, colors);
    return period;
}

QString captionOf(const cFrame& frame, qint32 number) {
    const QString caption = plainLine(frame.Texts().Label);
    return caption.isEmpty() ? QString::number(number) : caption;
}

}  // namespace

PageContent pageContent(const cFrames& frames, const ColorTable& table, QSize map,
                        const PageSettings& settings, const PagePictures& pictures) {
    PageContent page{
        .title = plainLine(settings.title),
        .footer = plainLine(settings.poweredLabel),
        .map = map,
        .pictures = pictures,
        .settings = settings,
    };
    if (page.title.isEmpty()) {
        page.title = plainLine(settings.filename);
    }
    const Colors colors(table);
    page.ownColor = colors.of(settings.ownBackcolor);
    QStringList captions;
    for (qint32 i = 1; i <= frames.Count(); ++i) {
        captions += captionOf(frames.Item(i), i);
        const auto& picture = pictures.maps[static_cast<std::size_t>(i) - 1];
        page.periods.push_back(periodContent(frames.Item(i), page, picture, colors));
    }
    const QStringList ids = periodIds(captions);
    for (std::size_t i = 0; i < page.periods.size(); ++i) {
        page.periods[i].caption = captions[static_cast<qsizetype>(i)];
        page.periods[i].id = ids[static_cast<qsizetype>(i)];
    }
    return page;
}

QString summaryOf(const PeriodContent& period) {
    QStringList shown;
    for (const SymbolContent& symbol : period.symbols) {
        shown += symbol.name;
    }
    for (const LabelContent& label : period.labels) {
        shown += plainLine(label.text.text);
    }
    shown.removeDuplicates();
    QStringList sentences;
    for (const QString& part :
         {plainLine(period.title.text), plainLine(period.subtitle.text), shown.join(u", "_s)}) {
        if (!part.isEmpty()) {
            sentences += part;
        }
    }
    return sentences.join(u". "_s);
}

}  // namespace nubivane
