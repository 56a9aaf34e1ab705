// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/editor.h"
#include "engine/web/page_writer.h"

#include <QStringList>

#include <optional>

namespace nubivane {

/// Makes the web page of the open project in the program folder, "<Filename>.htm",
/// "<Filename>.js" and "Web\<Filename><i>.jpg" for each Frame, and shows it in the browser.
///
/// A responsive page has more files, told in `writeResponsiveSite`. The setting "Type" decides
/// which page is made unless `type` is given. Returns the host paths of the files written, the
/// pictures first; nothing after a failure, which is told in a message.
std::optional<QStringList> createPage(Editor editor, std::optional<PageType> type = std::nullopt);

/// Writes the page and all that it refers to into a folder (host path) of its own, which is made
/// when it is missing; other files there stay, and nothing is written anywhere else. Returns the
/// files written, those in sub-folders first; nothing after a failure, which is told in a message.
std::optional<QStringList> createSite(Editor editor, const QString& hostFolder,
                                      std::optional<PageType> type = std::nullopt);

/// The page among the files that `createPage` or `createSite` returned.
QString pageAmong(const QStringList& files);

/// Opens the page of the name that the preview looks for, if there is one. The preview does not
/// follow the name of the page settings.
void mnuPreview(Editor editor);

}  // namespace nubivane
