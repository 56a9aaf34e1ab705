// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/responsive_page.h"

#include "engine/core/version.h"
#include "engine/web/page_link.h"
#include "engine/web/plain_text.h"

#include <QLocale>

#include <cstdlib>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype LongestDescription = 300;  // search engines and cards show less

QString shortened(const QString& text) {
    if (text.size() <= LongestDescription) {
        return text;
    }
    const qsizetype blank = text.lastIndexOf(u' ', LongestDescription);
    return text.left(blank > 0 ? blank : LongestDescription) + u'…';
}

/// ` name="value"`, escaped.
QString attribute(QLatin1String name, const QString& value) {
    return u' ' + name + u"=\""_s + htmlText(value) + u'"';
}

QString sizes(QSize size) {
    return attribute("width"_L1, QString::number(size.width())) +
           attribute("height"_L1, QString::number(size.height()));
}

QString meta(QLatin1String key, QLatin1String name, const QString& content) {
    return u"<meta"_s + attribute(key, name) + attribute("content"_L1, content) + u'>';
}

QString descriptionOf(const PageContent& content) {
    const PeriodContent& first = content.periods.front();
    const QString summary = summaryOf(first);
    const QString start = content.periods.size() > 1 ? first.caption : QString();
    if (summary.isEmpty()) {
        return content.title;
    }
    return shortened(start.isEmpty() ? summary : start + u": "_s + summary);
}

}  // namespace

ResponsivePage::ResponsivePage(const PageContent& content, PageStyle& style)
    : content_(content),
      style_(style),
      words_(pageWords(content.settings.language)),
      description_(descriptionOf(content)) {}

QString ResponsivePage::address(const QString& name) const {
    return content_.settings.address + urlPath(name);
}

QString ResponsivePage::page() const {
    const bool rightToLeft = QLocale(content_.settings.language).textDirection() == Qt::RightToLeft;
    TextLines out;
    out << "<!DOCTYPE html>"_L1
        << u"<html"_s + attribute("lang"_L1, content_.settings.language) +
               (rightToLeft ? u" dir=\"rtl\""_s : QString()) +
               (content_.settings.effects ? u" class=\"fade\""_s : QString()) + u'>';
    writeHead(out);
    QStringList body;
    if (!hasTabs()) {
        body += u"single"_s;
    }
    if (!content_.pictures.back.isEmpty()) {
        body += u"pictured"_s;
    }
    out << u"<body"_s + (body.isEmpty() ? QString() : attribute("class"_L1, body.join(u' '))) + u'>'
        << "<header class=\"head\">"_L1
        << u"<h1 dir=\"auto\">"_s + htmlText(content_.title) + u"</h1>"_s;
    if (hasTabs()) {
        writeNavigation(out);
    }
    out << "</header>"_L1
        << "<main>"_L1;
    for (std::size_t i = 0; i < content_.periods.size(); ++i) {
        writePeriod(out, i);
    }
    out << "</main>"_L1;
    if (!content_.footer.isEmpty()) {
        out << u"<footer><p dir=\"auto\">"_s + htmlText(content_.footer) + u"</p></footer>"_s;
    }
    out << "</body>"_L1
        << "</html>"_L1;
    return out.text();
}

void ResponsivePage::writeHead(TextLines& out) const {
    const QString name = urlSegment(content_.settings.filename);
    out << "<head>"_L1
        << "<meta charset=\"utf-8\">"_L1
        << meta("name"_L1, "viewport"_L1, u"width=device-width, initial-scale=1"_s)
        << u"<title>"_s + htmlText(content_.title) + u"</title>"_s
        << meta("name"_L1, "description"_L1, description_)
        << meta("name"_L1, "generator"_L1, u"Nubivane "_s + QLatin1String(Version))
        << meta("name"_L1, "color-scheme"_L1,
                style_.hasDarkScheme() ? u"light dark"_s
                : style_.isDark()      ? u"dark"_s
                                       : u"light"_s);
    writeCard(out);
    out << u"<link rel=\"icon\" type=\"image/png\" sizes=\"%1x%1\" href=\"%2\">"_s.arg(
               QString::number(IconSide), urlPath(content_.pictures.icon))
        << u"<link rel=\"alternate\" type=\"application/json\" href=\"%1.json\">"_s.arg(name)
        << u"<link rel=\"stylesheet\" href=\"%1.css\">"_s.arg(name);
    if (content_.hasCustomStyle) {
        out << u"<link rel=\"stylesheet\" href=\"%1-custom.css\">"_s.arg(name);
    }
    out << u"<script src=\"%1.js\"></script>"_s.arg(name) << "</head>"_L1;
}

/// What other sites show where the page is linked. Addresses are whole where that of the site is
/// known: some readers of cards want them so.
void ResponsivePage::writeCard(TextLines& out) const {
    const auto og = [&out](QLatin1String name, const QString& value) {
        out << meta("property"_L1, name, value);
    };
    og("og:type"_L1, u"website"_s);
    og("og:title"_L1, content_.title);
    og("og:description"_L1, description_);
    if (!content_.settings.address.isEmpty()) {
        const QString url = address(content_.settings.filename + u".htm"_s);
        og("og:url"_L1, url);
        out << u"<link rel=\"canonical\" href=\"%1\">"_s.arg(htmlText(url));
    }
    og("og:image"_L1, address(content_.pictures.card));
    og("og:image:type"_L1, u"image/jpeg"_s);
    og("og:image:width"_L1, QString::number(content_.pictures.cardSize.width()));
    og("og:image:height"_L1, QString::number(content_.pictures.cardSize.height()));
    og("og:image:alt"_L1, description_);
}

/// Links to the periods, which the script makes tabs of, and buttons that only it can serve.
void ResponsivePage::writeNavigation(TextLines& out) const {
    const QString foreign = words_.foreign ? u" lang=\"en\" dir=\"ltr\""_s : QString();
    QString nav = u"<nav"_s + attribute("aria-label"_L1, words_.periods);
    if (content_.settings.play != PagePlay::None) {
        const int seconds = std::max(std::abs(content_.settings.timer), 1);
        nav += attribute("data-timer"_L1, QString::number(seconds)) +
               attribute("data-play"_L1, words_.play) + attribute("data-pause"_L1, words_.pause);
        if (content_.settings.play == PagePlay::Running) {
            nav += " data-auto"_L1;
        }
    }
    out << nav + u'>' << "<div class=\"tabs\">"_L1;
    for (const PeriodContent& period : content_.periods) {
        out << u"<a href=\"#"_s + urlSegment(period.id) + u"\" dir=\"auto\">"_s +
                   htmlText(period.caption) + u"</a>"_s;
    }
    out << "</div>"_L1 << u"<div class=\"steps\""_s + foreign + u" hidden>"_s;
    const auto button = [&out](QLatin1String name, const QString& word) {
        out << u"<button type=\"button\""_s + attribute("class"_L1, name) +
                   attribute("aria-label"_L1, word) + u"></button>"_s;
    };
    button("previous"_L1, words_.previous);
    if (content_.settings.play != PagePlay::None) {
        button("play"_L1, words_.play);
    }
    button("next"_L1, words_.next);
    out << "</div>"_L1
        << "</nav>"_L1;
}

void ResponsivePage::writePeriod(TextLines& out, std::size_t number) const {
    const PeriodContent& period = content_.periods[number];
    out << u"<section class=\"period\""_s + attribute("id"_L1, period.id) + u'>'
        << u"<h2 dir=\"auto\">"_s + htmlText(period.caption) + u"</h2>"_s
        << "<div class=\"sheet\">"_L1;
    writeMap(out, period, number == 0);
    writeTexts(out, period);
    out << "</div>"_L1
        << "</section>"_L1;
}

void ResponsivePage::writeMap(TextLines& out, const PeriodContent& period, bool first) const {
    QString alternative = words_.map + u": "_s + period.caption;
    for (const StyledText& heading : {period.title, period.subtitle}) {
        const QString line = plainLine(heading.text);
        if (!line.isEmpty()) {
            alternative += u". "_s + line;
        }
    }
    // The parameter means nothing. But WebKit's search for what to load ahead takes any WebP
    // picture that it meets, lazy or not, unless the type is one that it does not know at first
    // sight.
    const QString type = first ? u"image/webp"_s : u"image/webp;loading=lazy"_s;
    out << "<div class=\"map\">"_L1
        << u"<picture><source"_s + attribute("type"_L1, type) +
               attribute("srcset"_L1, urlPath(period.map.webp)) + u"><img"_s +
               (first ? u" fetchpriority=\"high\""_s : u" loading=\"lazy\""_s) +
               attribute("src"_L1, urlPath(period.map.jpeg)) + sizes(content_.map) +
               attribute("alt"_L1, alternative) + u"></picture>"_s;
    if (!period.symbols.empty() || !period.labels.empty()) {
        out << "<ul>"_L1;
        for (const SymbolContent& symbol : period.symbols) {
            writeSymbol(out, symbol, first);
        }
        for (const LabelContent& label : period.labels) {
            out << u"<li"_s + attribute("class"_L1, style_.ofLabel(label)) + u" dir=\"auto\">"_s +
                       htmlText(label.text.text) + u"</li>"_s;
        }
        out << "</ul>"_L1;
    }
    out << "</div>"_L1;
}

/// One that moves has a still beside it for readers who ask for less motion.
QString ResponsivePage::picture(const SymbolContent& symbol, bool first) const {
    if (symbol.picture.file.isEmpty()) {
        return u"<b dir=\"auto\">"_s + htmlText(symbol.name) + u"</b>"_s;
    }
    const QString image = u"<img"_s + (first ? QString() : u" loading=\"lazy\""_s) +
                          attribute("src"_L1, urlPath(symbol.picture.file)) +
                          sizes(symbol.box.size()) + attribute("alt"_L1, symbol.name) + u'>';
    if (symbol.picture.still.isEmpty()) {
        return image;
    }
    return u"<picture><source media=\"(prefers-reduced-motion: reduce)\""_s +
           attribute("srcset"_L1, urlPath(symbol.picture.still)) + u'>' + image + u"</picture>"_s;
}

void ResponsivePage::writeSymbol(TextLines& out, const SymbolContent& symbol, bool first) const {
    QString content = picture(symbol, first);
    if (!symbol.link.isEmpty()) {
        const QString window =
            leadsAway(symbol.link) ? u" target=\"_blank\" rel=\"noopener\""_s : QString();
        content = u"<a"_s + attribute("href"_L1, symbol.link) + window + u'>' + content + u"</a>"_s;
    } else if (!symbol.tooltip.isEmpty()) {
        content = u"<button type=\"button\">"_s + content + u"</button>"_s;
    }
    if (!symbol.tooltip.isEmpty()) {
        // The picture says the same to readers who do not see it.
        content += u"<span class=\"tip\" aria-hidden=\"true\" dir=\"auto\">"_s +
                   htmlText(symbol.tooltip) + u"</span>"_s;
    }
    out << u"<li"_s +
               attribute("class"_L1, style_.ofSymbol(symbol.box, !symbol.tooltip.isEmpty())) +
               u'>' + content + u"</li>"_s;
}

void ResponsivePage::writeTexts(TextLines& out, const PeriodContent& period) const {
    if (period.title.text.isEmpty() && period.subtitle.text.isEmpty() && period.texts.empty()) {
        return;
    }
    const auto element = [this](QLatin1String name, const StyledText& text, const BoxLook* box) {
        return u'<' + name + attribute("class"_L1, style_.ofText(text.look, box)) +
               u" dir=\"auto\">"_s + htmlText(text.text) + u"</"_s + name + u'>';
    };
    out << "<div class=\"text\">"_L1;
    const bool hasTitle = !period.title.text.isEmpty();
    if (hasTitle) {
        out << element("h3"_L1, period.title, nullptr);
    }
    if (!period.subtitle.text.isEmpty()) {
        out << element("p"_L1, period.subtitle, nullptr);
    }
    if (!period.texts.empty()) {
        out << u"<div"_s + attribute("class"_L1, style_.ofBox(period.box)) + u'>';
        for (const TextPair& pair : period.texts) {
            if (!pair.header.text.isEmpty()) {
                // No level of headings is left out where the title is.
                out << element(hasTitle ? "h4"_L1 : "h3"_L1, pair.header, &period.box);
            }
            if (!pair.body.text.isEmpty()) {
                out << element("p"_L1, pair.body, &period.box);
            }
        }
        out << "</div>"_L1;
    }
    out << "</div>"_L1;
}

}  // namespace nubivane
