// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace nubivane {

/// A project's text as it may stand in any file of a site: without the control characters but tab
/// and line feed, without half surrogates and noncharacters (Unicode 23.7); line ends are "\n".
QString plainText(const QString& text);

/// The same on one line and without outer blanks, for attributes, captions and descriptions.
QString plainLine(const QString& text);

/// A text for the content of an element or a quoted attribute of HTML (WHATWG HTML 13.1).
QString htmlText(const QString& text);

/// A text as a quoted string of CSS (CSS Syntax 3, 4.3.5), the quotes included.
QString cssString(const QString& text);

/// A name of a file as one segment of a relative address (RFC 3986): letters and digits of ASCII
/// stand for themselves.
QString urlSegment(const QString& name);
/// The same for a name whose folders are parted by "/".
QString urlPath(const QString& name);

}  // namespace nubivane
