// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/web/page_content.h"
#include "engine/web/page_style.h"
#include "engine/web/page_words.h"
#include "engine/web/text_lines.h"

#include <QString>

namespace nubivane {

/// Writes the responsive page: HTML (WHATWG) in UTF-8 that is complete without script and style,
/// one section for each period, and works under "Content-Security-Policy: default-src 'self'".
/// What the script makes of it (tabs, play) is told in `responsive/page.js`.
class ResponsivePage {
  public:
    /// Asks `style` for the classes of its elements.
    ResponsivePage(const PageContent& content, PageStyle& style);

    QString page() const;

  private:
    void writeHead(TextLines& out) const;
    void writeCard(TextLines& out) const;
    void writeNavigation(TextLines& out) const;
    void writePeriod(TextLines& out, std::size_t number) const;
    void writeMap(TextLines& out, const PeriodContent& period, bool first) const;
    void writeSymbol(TextLines& out, const SymbolContent& symbol, bool first) const;
    void writeTexts(TextLines& out, const PeriodContent& period) const;
    QString picture(const SymbolContent& symbol, bool first) const;
    QString address(const QString& name) const;
    bool hasTabs() const { return content_.periods.size() > 1; }

    const PageContent& content_;
    PageStyle& style_;
    PageWords words_;
    QString description_;
};

}  // namespace nubivane
