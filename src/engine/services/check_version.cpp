// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/services/check_version.h"

#include "engine/core/error.h"
#include "engine/core/path_text.h"
#include "engine/core/shell.h"
#include "engine/core/version.h"
#include "engine/core/xml_guard.h"
#include "engine/net/ftp_transfer.h"
#include "engine/net/reachable.h"
#include "engine/services/publisher.h"

#include <QBuffer>
#include <QUrl>
#include <QXmlStreamReader>

#include <vector>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String ListFile("software/vsrchk.xml");
constexpr QLatin1String Product("nvane");
constexpr qint64 MaxListBytes = qint64{1024} * 1024;

[[noreturn]] void fail(const char* text, const QString& cause = {}) {
    throw Error(error_number::UploadStopped, u"checkVersion"_s, QLatin1String(text), cause);
}

/// The first two attributes of the document element's children; none when it is not well-formed.
std::vector<std::pair<QString, QString>> rowsOf(const QByteArray& list) {
    std::vector<std::pair<QString, QString>> rows;
    QByteArray bytes = list;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    if (xmlFault(buffer)) {
        return {};
    }
    QXmlStreamReader xml(&buffer);
    xml.setNamespaceProcessing(false);
    xml.readNextStartElement();
    while (xml.readNextStartElement()) {
        const QXmlStreamAttributes attributes = xml.attributes();
        if (!attributes.isEmpty()) {
            rows.emplace_back(attributes[0].value().toString(),
                              attributes.size() > 1 ? attributes[1].value().toString() : QString());
        }
        xml.skipCurrentElement();
    }
    while (!xml.atEnd()) {
        xml.readNext();
    }
    if (xml.hasError()) {
        rows.clear();
    }
    return rows;
}

/// The whole list from the server.
QByteArray fetchList(const FtpServer& server, ftpTransfer& transfer) {
    if (!transfer.Connect(server)) {
        const QString cause = transfer.failure();
        transfer.Disconnect();
        fail("Cannot connect to the server", cause);
    }
    const QByteArray list = transfer.ReadFile(ListFile, MaxListBytes).value_or(QByteArray());
    const QString cause = transfer.failure();
    transfer.Disconnect();
    if (list.isEmpty()) {
        fail("Cannot check for update at this time: try again later", cause);
    }
    return list;
}

}  // namespace

ListedVersion findVersion(const QByteArray& list, const QString& own) {
    QByteArray oneLine = list;
    oneLine.replace("\r\n", "");
    ListedVersion found;
    for (const auto& [name, version] : rowsOf(oneLine)) {
        if (trimBlanks(name).toLower() == QLatin1String(Product)) {
            found.version = trimBlanks(version);
            if (found.version == own) {
                found.upToDate = true;
                break;
            }
        }
    }
    return found;
}

QString checkVersion(bool verbose, const Publisher& publisher, Shell& shell, ftpTransfer& transfer,
                     const std::function<void()>& answered) {
    if (!isReachable(shell, publisher.versions.host)) {
        fail("No connection to the Internet is currently available");
    }
    const QString own = Version;
    const QString title = ProgramTitle;
    const ListedVersion found = findVersion(fetchList(publisher.versions, transfer), own);
    answered();
    if (found.upToDate) {
        if (verbose) {
            shell.messageBox({u"The current version of "_s + title + u" ("_s + own +
                                  u") is already up-to-date."_s,
                              Icon::Information,
                              Buttons::Ok,
                              {}});
        }
        return {};
    }
    const Answer answer =
        shell.messageBox({u"The server holds an updated version of "_s + title +
                              u". Would you like to download the installation file now ? "_s,
                          Icon::Question,
                          Buttons::YesNo,
                          {}});
    if (answer != Answer::Yes) {
        return {};
    }
    // The version is the server's word: nothing in it may reach beyond the file's name.
    return u"http://"_s + publisher.downloadHost + u"/software/download/nVane/6.0.0/nVane_"_s +
           QString::fromLatin1(QUrl::toPercentEncoding(found.version)) + u".EXE"_s;
}

void mnuLastVersion(const Publisher& publisher, Shell& shell, ftpTransfer& transfer,
                    const std::function<void(const QString& url)>& download,
                    const std::function<void()>& answered) {
    if (!isReachable(shell, publisher.versions.host)) {
        shell.messageBox({u"No connection to the internet is currently available"_s,
                          Icon::Critical,
                          Buttons::Ok,
                          {}});
        return;
    }
    QString url;
    try {
        const HourglassGuard hourglass(shell);
        url = checkVersion(true, publisher, shell, transfer, answered);
    } catch (const Error& error) {
        answered();
        if (!transfer.aborted()) {
            shell.messageBox({error.description(), Icon::Critical, Buttons::Ok, error.cause()});
        }
        return;
    }
    if (!trimBlanks(url).isEmpty()) {
        download(url);
    }
}

}  // namespace nubivane
