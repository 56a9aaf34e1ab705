// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/script_library.h"

namespace nubivane {

using namespace Qt::StringLiterals;

const char TransitionTest[] =
    "if ((navigator.appName.indexOf('Microsoft') >= 0) && "
    "(navigator.appVersion.indexOf('4.') >= 0))";

namespace {

/// Sets one element family's visibility from `show`.
QString showOrHide(const char* family, const char* counter) {
    return QStringLiteral(
               "eval('%1_' + %2.toString() + '.style.visibility = (show == true) ? \"visible\" : "
               "\"hidden\";');")
        .arg(QLatin1String(family), QLatin1String(counter));
}

QString setMapVisibility(const char* visibility) {
    return QStringLiteral("eval('map_' + currFrame.toString() + '.style.visibility=\"%1\";');")
        .arg(QLatin1String(visibility));
}

void writeShowSprite(TextLines& out, const FrameScript& options) {
    out << EmptyLine << "function _showSprite(idx_start, idx_end, show)"
        << "{"
        << "   var i;" << EmptyLine;
    if (options.hasTitles) {
        out << u"   "_s + showOrHide("title", "currFrame")
            << u"   "_s + showOrHide("subtitle", "currFrame");
    }
    if (options.showForecastText) {
        out << u"   "_s + showOrHide("textForecast", "currFrame") << EmptyLine;
    }
    out << "   for (i=idx_start; i<=idx_end-1; i++)"
        << "   {" << u"      "_s + showOrHide("sprite", "i") << u"   }"_s << "}";
}

/// The map's fade: the lines inside the transition block.
void writeMapTransition(TextLines& out, const char* visibility) {
    out << "      eval('map_' + currFrame.toString() + "
           "'.style.filter=\"blendTrans(duration=1)\";');"
        << "      eval('map_' + currFrame.toString() + '.filters.blendTrans.stop();');"
        << "      eval('map_' + currFrame.toString() + '.filters.blendTrans.apply();');"
        << u"      "_s + setMapVisibility(visibility)
        << u"      eval('map_' + currFrame.toString() + '.filters.blendTrans.play();');"_s;
}

void writeHide(TextLines& out, const FrameScript& options) {
    out << EmptyLine << "function _Hide(idx_start, idx_end)"
        << "{"
        << "   _showSprite(idx_start, idx_end, false);" << EmptyLine;
    if (options.effects) {
        out << u"   "_s + QLatin1String(TransitionTest) << u"   {"_s;
        writeMapTransition(out, "hidden");
        out << "   }"
            << "   else" << u"      "_s + setMapVisibility("hidden") << EmptyLine;
    } else {
        out << u"   "_s + setMapVisibility("hidden");
    }
    out << "}";
}

void writeShow(TextLines& out, const FrameScript& options) {
    out << EmptyLine << "function _Show(idx_start, idx_end)"
        << "{";
    if (options.effects) {
        out << u"   "_s + QLatin1String(TransitionTest) << u"   {"_s;
        writeMapTransition(out, "visible");
        out << "      setTimeout(function(){_showSprite(idx_start, idx_end, true)}, 1500);"
            << "   }"
            << "   else"
            << "   {" << u"      "_s + setMapVisibility("visible") << EmptyLine
            << u"      _showSprite(idx_start, idx_end, true);"_s << "   }";
    } else {
        out << u"   "_s + setMapVisibility("visible") << EmptyLine
            << u"   _showSprite(idx_start, idx_end, true);"_s;
    }
    out << "}";
}

void writeRender(TextLines& out, const FrameScript& options) {
    constexpr char show[] =
        "_Show(eval('idx_' + currFrame.toString()), eval('idx_' + (currFrame + 1).toString()));";
    out << EmptyLine << "function _Render(newFrame)"
        << "{"
        << "    if (currFrame != newFrame || newFrame == 0) "
        << "    {"
        << "       if (newFrame == 0) newFrame = 1;" << EmptyLine
        << "       _Hide(eval('idx_' + currFrame.toString()), eval('idx_' + (currFrame + "
           "1).toString()));";
    if (options.timed) {
        out << u"       currFrame = currFrame < "_s + QString::number(options.frameCount) +
                   u"? currFrame + 1:1;"_s;
    } else {
        out << "       currFrame=newFrame;";
    }
    out << EmptyLine;
    if (options.effects) {
        out << u"       "_s + QLatin1String(TransitionTest)
            << QStringLiteral("          setTimeout(function(){%1}, 700);").arg(QLatin1String(show))
            << u"       else"_s;
    }
    out << u"          "_s + QLatin1String(show) << u"    }"_s << "}";
}

}  // namespace

void writeFrameScript(TextLines& out, const FrameScript& options) {
    writeShowSprite(out, options);
    writeHide(out, options);
    writeShow(out, options);
    writeRender(out, options);
}

}  // namespace nubivane
