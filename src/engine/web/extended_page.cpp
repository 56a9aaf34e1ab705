// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/extended_page.h"

#include "engine/web/script_library.h"

#include <QStringList>

namespace nubivane {

namespace {

constexpr char ShowLine[] = "eval('%1_' + i.toString() + '.style.visibility=\"visible\";');";

}  // namespace

qint64 ExtendedPage::blockTop(qint32 i) const {
    const qint64 stride = input().mapOuter.height() + 120 + 20;
    return (i - 1) * stride;
}

QString ExtendedPage::titleElement() const {
    return "<TITLE>" + settings().title + " - " + settings().poweredLabel + "   </TITLE>";
}

void ExtendedPage::writeScript(TextLines& out) const {
    out << "function _Show()"
        << "{"
        << "   var i;" << EmptyLine;
    if (settings().effects) {
        // All transitions are armed first and played together.
        out << "   " + QLatin1String(TransitionTest) << "     {";
        writeLoops(out, 15,
                   {"eval('%1_' + i.toString() + '.style.filter=\"blendTrans(duration=1)\";');",
                    "eval('%1_' + i.toString() + '.filters.blendTrans.stop();');",
                    "eval('%1_' + i.toString() + '.filters.blendTrans.apply();');", ShowLine});
        writeLoops(out, 14, {"eval('%1_' + i.toString() + '.filters.blendTrans.play();');"});
        out << "     }"
            << "   else"
            << "     {";
        writeLoops(out, 15, {ShowLine});
        out << "     }";
    } else {
        writeLoops(out, 15, {ShowLine});
    }
    out << "}";
}

void ExtendedPage::writeLoops(TextLines& out, int column, const QStringList& lines) const {
    QStringList families;
    if (hasTitles()) {
        families << "title"
                 << "subtitle";
    }
    families << "map";
    if (settings().showForecastText) {
        families << "textForecast";
    }
    const auto loop = [&](qint64 count, const QStringList& names) {
        out << "       for (i=1; i<=" + QString::number(count) + "; i++)"
            << "       {";
        for (const QString& name : names) {
            for (const QString& line : lines) {
                out << QString(column, u' ') + line.arg(name);
            }
        }
        out << "       }";
    };
    loop(frameCount(), families);
    loop(spriteCount(), {"sprite"});
}

}  // namespace nubivane
