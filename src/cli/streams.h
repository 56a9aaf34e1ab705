// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

/// The command line's output: results on stdout, everything else on stderr, both in UTF-8.
namespace nubivane::streams {

/// Writes to stdout. False when it cannot be written, as on a full disk, which is told on stderr.
bool writeResult(const QByteArray& bytes);

/// A text without control characters but ends of lines and tabs: a terminal would obey them.
QString printable(QString text);

void writeError(const QString& text);

/// A message as lines of their own: the text, then what lay behind it, if anything is known.
void printError(const QString& text, const QString& cause = {});

/// What is wrong with the words given, and where to read how they should be.
void printUsageError(const QString& text);

bool errorIsTerminal();

}  // namespace nubivane::streams
