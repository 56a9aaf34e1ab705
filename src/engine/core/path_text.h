// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Functions on path texts. They work on characters, not on the file system, and never fail.
///
/// A path here is text with backslashes (see host_files.h for the way to the disk); a forward slash
/// is an ordinary character. Searches run from the end of the text without its outer blanks, but
/// the position found is applied to the text as given.
namespace nubivane {

/// The part after the last "\"; the text itself when it holds none.
QString getFileName(const QString& path);

/// The part before the last "\", without it; empty when it holds none.
QString getFolder(const QString& path);

/// The part before the last ".", without it; empty when there is none.
QString stripExtension(const QString& path);

/// The part after the last "."; the text itself when it holds none. The search does not stop at a
/// separator: "a.b\file" gives "b\file".
QString getExtension(const QString& path);

/// The name of the folder that holds the file: "sun" for "C:\sun\x.gif". The text itself when its
/// folder has no "\".
QString getLastFolder(const QString& path);

/// The n-th field, counted from 1, of a text whose fields end in "|". When the text has fewer
/// fields the search starts over, so the result is a field near the start.
QString getField(const QString& text, qint16 n);

/// The name with "_" and the number put before its last point; the name itself without a point.
QString uniqueFileName(const QString& name, int n);

/// The text without its leading and trailing blanks; tabs and line ends stay.
QString trimBlanks(const QString& text);

}  // namespace nubivane
