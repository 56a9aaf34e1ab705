// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/extended_page.h"

#include "engine/web/script_library.h"

#include <QStringList>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String ShowLine("eval('%1_' + i.toString() + '.style.visibility=\"visible\";');");

}  // namespace

qint64 ExtendedPage::blockTop(qint32 i) const {
    const qint64 stride = input().mapOuter.height() + 120 + 20;
    return (i - 1) * stride;
}

QString ExtendedPage::titleElement() const {
    return u"<TITLE>"_s + settings().title + u" - "_s + settings().poweredLabel + u"   </TITLE>"_s;
}

void ExtendedPage::writeScript(TextLines& out) const {
    out << "function _Show()"
        << "{"
        << "   var i;" << EmptyLine;
    if (settings().effects) {
        // All transitions are armed first and played together.
        out << u"   "_s + QLatin1String(TransitionTest) << u"     {"_s;
        writeLoops(out, 15,
                   {u"eval('%1_' + i.toString() + '.style.filter=\"blendTrans(duration=1)\";');"_s,
                    u"eval('%1_' + i.toString() + '.filters.blendTrans.stop();');"_s,
                    u"eval('%1_' + i.toString() + '.filters.blendTrans.apply();');"_s, ShowLine});
        writeLoops(out, 14, {u"eval('%1_' + i.toString() + '.filters.blendTrans.play();');"_s});
        out << "     }"
            << "   else"
            << "     {";
        writeLoops(out, 15, {ShowLine});
        out << u"     }"_s;
    } else {
        writeLoops(out, 15, {ShowLine});
    }
    out << u"}"_s;
}

void ExtendedPage::writeLoops(TextLines& out, int column, const QStringList& lines) const {
    QStringList families;
    if (hasTitles()) {
        families << u"title"_s << u"subtitle"_s;
    }
    families << u"map"_s;
    if (settings().showForecastText) {
        families << u"textForecast"_s;
    }
    const auto loop = [&](qint64 count, const QStringList& names) {
        out << u"       for (i=1; i<="_s + QString::number(count) + u"; i++)"_s << "       {";
        for (const QString& name : names) {
            for (const QString& line : lines) {
                out << QString(column, u' ') + line.arg(name);
            }
        }
        out << "       }";
    };
    loop(frameCount(), families);
    loop(spriteCount(), {u"sprite"_s});
}

}  // namespace nubivane
