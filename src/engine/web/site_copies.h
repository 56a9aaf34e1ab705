// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace nubivane {

class SiteFolder;
class Workspace;

/// Copies into `site` what the pages of the skeleton refer to and lies in the program folder
/// otherwise: the symbols on the map, under the very names that the page has for them, and the
/// background picture. What is missing, or has a name that would lead out of the site, is left out.
/// Raises `Error` when a file cannot be written.
void copyPictures(const Workspace& workspace, SiteFolder& site);

}  // namespace nubivane
