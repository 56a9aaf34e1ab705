// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

namespace nubivane {

class Shell;
class ftpTransfer;
struct Publisher;

/// What the server's list of versions says of a product.
struct ListedVersion {
    QString version;        ///< of its last row that was looked at
    bool upToDate = false;  ///< a row holds the program's own version
};

/// Looks this program up in the list, an XML document. A list that cannot be read holds nothing.
ListedVersion findVersion(const QByteArray& list, const QString& own);

/// Asks the publisher's server for a newer installer, and the user whether to fetch it. Returns its
/// URL; empty when nothing is to be downloaded. With `verbose` the user also hears that there is
/// nothing newer. `answered` is called when the server has, before anything is said. Raises `Error`
/// with a text to be shown.
QString checkVersion(
    bool verbose, const Publisher& publisher, Shell& shell, ftpTransfer& transfer,
    const std::function<void()>& answered = [] {});

/// The command: checks, tells of failures but of a transfer that was aborted, and hands an
/// installer's URL to `download`.
void mnuLastVersion(
    const Publisher& publisher, Shell& shell, ftpTransfer& transfer,
    const std::function<void(const QString& url)>& download,
    const std::function<void()>& answered = [] {});

}  // namespace nubivane
