// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/color_table.h"
#include "engine/model/frames.h"
#include "engine/web/page_writer.h"
#include "support/fixtures.h"

#include <string>

namespace nubivane::testing {

/// Writes pages from a model that a test builds, with the settings of an empty store.
class PageTest : public ::testing::Test {
  protected:
    PageTest() : store(temporary.file("settings.ini")), settings(PageSettings::read(store)) {}

    /// Adds Frames, captioned "A", "B" and so on.
    void addFrames(int count) {
        for (int i = 0; i < count; ++i) {
            const char16_t caption = u'A' + static_cast<char16_t>(frames.Count());
            frames.Add().Texts().Label = QChar(caption);
        }
    }

    cSymbol& addSymbol(int frame, const QString& link = {}, const QString& tooltip = {}) {
        return frames.Item(frame).Sprites().Symbols().add(
            {.Name = "gifSymbol",
             .Frame = static_cast<qint16>(frame),
             .PosX = 100,
             .PosY = 50,
             .Width = 40,
             .Height = 32,
             .FileGif = "C:\\x\\Symbols\\set-1\\sun.gif",
             .PathFileGif = "C:\\x\\Symbols\\set-1\\sun.gif",
             .Link = link,
             .Tooltip = tooltip});
    }

    cLabel& addLabel(int frame, const QString& text = "14 C") {
        return frames.Item(frame).Sprites().Labels().add({.Name = "lblTesto",
                                                          .Frame = static_cast<qint16>(frame),
                                                          .Width = 90,
                                                          .Height = 20,
                                                          .Font = {.Name = "Arial", .Size = 10},
                                                          .BackColor = NoColor,
                                                          .PosX = 10,
                                                          .PosY = 15,
                                                          .Text = text});
    }

    /// Adds a header and the body item that belongs to it.
    void addText(int frame, const QString& header, const QString& body) {
        cForecast& forecast = frames.Item(frame).Texts().Forecast();
        forecast.Header().add({.IndexFontSize = 1, .Text = header});
        forecast.Body().add({.IndexFontSize = 1, .Text = body});
    }

    cTitle& title(int frame) { return frames.Item(frame).Texts().Forecast().Title(); }
    cSubtitle& subtitle(int frame) { return frames.Item(frame).Texts().Forecast().Subtitle(); }
    cDiv& div(int frame) { return frames.Item(frame).Texts().Forecast().Div(); }

    std::string page(PageType type) const { return write(type, &PageWriter::page); }
    std::string script(PageType type) const { return write(type, &PageWriter::script); }

    TemporaryFolder temporary;
    SettingsStore store;
    PageSettings settings;
    cFrames frames;
    ColorTable colors;
    QSize map{400, 300};

  private:
    std::string write(PageType type, QString (PageWriter::*text)() const) const {
        const PageInput input{frames, colors, map, map + QSize(2, 2), settings};
        return ((*PageWriter::ofType(type, input)).*text)().toStdString();
    }
};

/// How often `part` stands in `text`.
inline int count(const std::string& text, const std::string& part) {
    int found = 0;
    for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
        ++found;
    }
    return found;
}

}  // namespace nubivane::testing
