// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QLineEdit;

namespace nubivane {

/// A text as one line: what breaks lines and tabs becomes one blank between words and nothing at
/// the ends, other control characters go. A field would hold them unseen.
QString asOneLine(const QString& text);

/// Keeps a field to one line, however the text comes into it: typed, pasted or dropped.
void keepOneLine(QLineEdit& field);

}  // namespace nubivane
