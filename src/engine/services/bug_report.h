// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/shell.h"
#include "engine/net/ftp_types.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>

#include <optional>

namespace nubivane {

class ftpTransfer;
class ProgramFolder;

/// What the two text boxes hold until something is typed.
inline constexpr QLatin1String BugReportPlaceholder("Type text here");

/// The entries to choose from; the first asks for a choice.
QStringList bugReportSystems();

/// What a user tells of a bug.
struct BugReport {
    QString system;
    QString errorMessage;
    QString circumstances;
};

enum class BugReportField { System, ErrorMessage, Circumstances };

/// What is missing before a report can be sent: the text shown, and the field to go to.
struct BugReportComplaint {
    BugReportField field;
    QString text;
};

std::optional<BugReportComplaint> checkBugReport(const BugReport& report);

/// The report as XML.
QByteArray bugReportXml(const BugReport& report);

/// A file name made of the local time and a number from 1 to 999.
QString generateUniqueFilename(const QDateTime& time, int number);
/// The same of this moment and a random number.
QString generateUniqueFilename();

/// Writes the report to a file of the program folder, sends it, and removes the file whatever
/// happens. True when it has arrived; else `transfer` or the disk has failed.
bool sendBugReport(const BugReport& report, const ProgramFolder& folder, const FtpServer& server,
                   ftpTransfer& transfer);

/// What the user is told in the end.
Message bugReportOutcome(bool sent);

}  // namespace nubivane
