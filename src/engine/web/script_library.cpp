// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/script_library.h"

namespace nubivane {

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
        out << "   " + showOrHide("title", "currFrame")
            << "   " + showOrHide("subtitle", "currFrame");
    }
    if (options.showForecastText) {
        out << "   " + showOrHide("textForecast", "currFrame") << EmptyLine;
    }
    out << "   for (i=idx_start; i<=idx_end-1; i++)"
        << "   {"
        << "      " + showOrHide("sprite", "i") << "   }"
        << "}";
}

/// The map's fade: the lines inside the transition block.
void writeMapTransition(TextLines& out, const char* visibility) {
    out << "      eval('map_' + currFrame.toString() + "
           "'.style.filter=\"blendTrans(duration=1)\";');"
        << "      eval('map_' + currFrame.toString() + '.filters.blendTrans.stop();');"
        << "      eval('map_' + currFrame.toString() + '.filters.blendTrans.apply();');"
        << "      " + setMapVisibility(visibility)
        << "      eval('map_' + currFrame.toString() + '.filters.blendTrans.play();');";
}

void writeHide(TextLines& out, const FrameScript& options) {
    out << EmptyLine << "function _Hide(idx_start, idx_end)"
        << "{"
        << "   _showSprite(idx_start, idx_end, false);" << EmptyLine;
    if (options.effects) {
        out << "   " + QLatin1String(TransitionTest) << "   {";
        writeMapTransition(out, "hidden");
        out << "   }"
            << "   else"
            << "      " + setMapVisibility("hidden") << EmptyLine;
    } else {
        out << "   " + setMapVisibility("hidden");
    }
    out << "}";
}

void writeShow(TextLines& out, const FrameScript& options) {
    out << EmptyLine << "function _Show(idx_start, idx_end)"
        << "{";
    if (options.effects) {
        out << "   " + QLatin1String(TransitionTest) << "   {";
        writeMapTransition(out, "visible");
        out << "      setTimeout(function(){_showSprite(idx_start, idx_end, true)}, 1500);"
            << "   }"
            << "   else"
            << "   {"
            << "      " + setMapVisibility("visible") << EmptyLine
            << "      _showSprite(idx_start, idx_end, true);"
            << "   }";
    } else {
        out << "   " + setMapVisibility("visible") << EmptyLine
            << "   _showSprite(idx_start, idx_end, true);";
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
        out << "       currFrame = currFrame < " + QString::number(options.frameCount) +
                   "? currFrame + 1:1;";
    } else {
        out << "       currFrame=newFrame;";
    }
    out << EmptyLine;
    if (options.effects) {
        out << "       " + QLatin1String(TransitionTest)
            << QStringLiteral("          setTimeout(function(){%1}, 700);").arg(QLatin1String(show))
            << "       else";
    }
    out << "          " + QLatin1String(show) << "    }"
        << "}";
}

}  // namespace

void writeFrameScript(TextLines& out, const FrameScript& options) {
    writeShowSprite(out, options);
    writeHide(out, options);
    writeShow(out, options);
    writeRender(out, options);
}

}  // namespace nubivane
