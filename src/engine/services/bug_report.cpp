// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/services/bug_report.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/path_text.h"
#include "engine/core/program_folder.h"
#include "engine/core/version.h"
#include "engine/core/xml_text.h"
#include "engine/net/ftp_transfer.h"

#include <QFile>
#include <QRandomGenerator>
#include <QXmlStreamWriter>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String ReportFolder("software/bugreport/nVane/6.0.0");

bool isMissing(const QString& text) {
    const QString trimmed = text.trimmed();
    return trimmed.isEmpty() || trimmed == QLatin1String(BugReportPlaceholder);
}

/// Removes a file of the program folder when it goes.
class LocalFile {
  public:
    explicit LocalFile(QString path) : path_(std::move(path)) {}
    ~LocalFile() { QFile::remove(host_files::toHost(path_)); }
    LocalFile(const LocalFile&) = delete;
    LocalFile& operator=(const LocalFile&) = delete;

    const QString& path() const { return path_; }

  private:
    QString path_;
};

}  // namespace

QStringList bugReportSystems() {
    return {u"Select a version"_s,     u"Windows NT"_s,           u"Windows 2000"_s,
            u"Windows ME"_s,           u"Windows XP"_s,           u"Windows Server 2003"_s,
            u"Windows Vista 32 bit"_s, u"Windows Vista 64 bit"_s, u"Other"_s};
}

std::optional<BugReportComplaint> checkBugReport(const BugReport& report) {
    if (report.system == bugReportSystems().first()) {
        return BugReportComplaint{BugReportField::System, u"Enter the windows version"_s};
    }
    if (isMissing(report.errorMessage)) {
        return BugReportComplaint{BugReportField::ErrorMessage, u"Enter the error message"_s};
    }
    if (isMissing(report.circumstances)) {
        return BugReportComplaint{BugReportField::Circumstances,
                                  u"Enter the circumstances in which the error occurred"_s};
    }
    return std::nullopt;
}

QByteArray bugReportXml(const BugReport& report) {
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.writeStartElement(u"REPORT"_s);
    xml.writeEmptyElement(u"Windows"_s);
    xml.writeAttribute(u"version"_s, allowedInXml(report.system));
    xml.writeEmptyElement(u"Application"_s);
    xml.writeAttribute(u"name"_s, ProgramTitle);
    xml.writeAttribute(u"version"_s, QLatin1String(Version) + QStringLiteral(" Beta"));
    xml.writeStartElement(u"Error"_s);
    xml.writeCDATA(allowedInXml(report.errorMessage));
    xml.writeEndElement();
    xml.writeStartElement(u"Circumstances"_s);
    xml.writeCDATA(allowedInXml(report.circumstances));
    xml.writeEndElement();
    xml.writeEndElement();
    return bytes;
}

QString generateUniqueFilename(const QDateTime& time, int number) {
    return time.toString(u"dd.MM.yyyy.HH.mm.ss"_s) +
           QStringLiteral(".%1.%2.xml").arg(time.time().msec()).arg(number);
}

QString generateUniqueFilename() {
    return generateUniqueFilename(QDateTime::currentDateTime(),
                                  QRandomGenerator::global()->bounded(1, 1000));
}

bool sendBugReport(const BugReport& report, const ProgramFolder& folder, const FtpServer& server,
                   ftpTransfer& transfer) {
    const QString name = generateUniqueFilename();
    const LocalFile file(folder.entry(name));
    try {
        host_files::write(file.path(), bugReportXml(report));
    } catch (const Error&) {
        return false;
    }
    const bool sent = transfer.Connect(server) && transfer.ChangeDirectory(ReportFolder) &&
                      transfer.PutFile(file.path(), name);
    transfer.Disconnect();
    return sent;
}

Message bugReportOutcome(bool sent) {
    if (sent) {
        return {
            u"Thank you for your contributions, the bug report has been successfully sent. We "
            "appreciate your feedback which is used in our continuing effort to enhance "
            "Nubivane."_s,
            Icon::Information,
            Buttons::Ok,
            {}};
    }
    return {u"Cannot connect to the server"_s, Icon::Critical, Buttons::Ok, {}};
}

}  // namespace nubivane
