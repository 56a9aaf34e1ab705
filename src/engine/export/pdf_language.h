// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace nubivane {

/// Says in a PDF file in which language it speaks (a tag of BCP 47, such as "en-GB"), for which the
/// writer of the pages has no way of its own: an incremental update, as ISO 32000-1 in 7.5.6 has
/// it, whose catalogue takes the place of the first one. A file that is built in another way than
/// that writer does it comes back as it is.
QByteArray pdfWithLanguage(const QByteArray& pdf, const QString& language);

/// The system's language as such a tag; English where it has none.
QString systemLanguage();

}  // namespace nubivane
