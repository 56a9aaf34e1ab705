// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/responsive_site.h"

#include "engine/model/workspace.h"
#include "engine/web/forecast_json.h"
#include "engine/web/page_assets.h"
#include "engine/web/page_content.h"
#include "engine/web/page_style.h"
#include "engine/web/responsive_page.h"
#include "engine/web/site_folder.h"

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// With the line ends of all pages.
QByteArray fileOf(QString text) {
    text.replace("\r\n"_L1, "\n"_L1);
    text.replace("\n"_L1, "\r\n"_L1);
    return text.toUtf8();
}

}  // namespace

void writeResponsiveSite(Workspace& workspace, SiteFolder& site,
                         const std::function<void()>& waiting) {
    const PageSettings settings = PageSettings::read(workspace.settings);
    const PagePictures pictures = writePagePictures(workspace, site, waiting);
    const QString& name = settings.filename;
    PageContent content = pageContent(
        workspace.Frames(), workspace.colorTable,
        {workspace.pctMap.ScaleWidth(), workspace.pctMap.ScaleHeight()}, settings, pictures);
    content.hasCustomStyle = site.contains(name + u"-custom.css"_s);
    PageStyle style(content);
    const QString page = ResponsivePage(content, style).page();
    site.write(name + u".css"_s, fileOf(style.sheet()));
    site.write(name + u".js"_s, fileOf(page_assets::script()));
    site.write(name + u".json"_s, forecastJson(content));
    site.write(name + u".htm"_s, fileOf(page));
}

}  // namespace nubivane
