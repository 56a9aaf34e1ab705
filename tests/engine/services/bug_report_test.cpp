// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/services/bug_report.h"

#include "engine/net/ftp_transfer.h"
#include "support/ftp_servers.h"

#include <QDir>
#include <QRegularExpression>

namespace nubivane::testing {

namespace {

constexpr char ReportFolder[] = "software/bugreport/nVane/6.0.0";

class BugReportTest : public WorkspaceFixture {
  protected:
    BugReport complete() const { return {"Windows XP", "It says \"no\" <here> & there", "Always"}; }

    QStringList localFiles() const { return QDir(host("")).entryList(QDir::Files); }

    ftpTransfer transfer{testLimits()};
};

}  // namespace

TEST_F(BugReportTest, TheSystemsToChooseFrom) {
    EXPECT_EQ(bugReportSystems(),
              QStringList({"Select a version", "Windows NT", "Windows 2000", "Windows ME",
                           "Windows XP", "Windows Server 2003", "Windows Vista 32 bit",
                           "Windows Vista 64 bit", "Other"}));
}

TEST_F(BugReportTest, WhatIsMissingIsAskedForInOrder) {
    BugReport report{"Select a version", "", ""};
    auto complaint = checkBugReport(report);
    ASSERT_TRUE(complaint);
    EXPECT_EQ(complaint->field, BugReportField::System);
    EXPECT_EQ(complaint->text, "Enter the windows version");

    report.system = "Other";
    complaint = checkBugReport(report);
    ASSERT_TRUE(complaint);
    EXPECT_EQ(complaint->field, BugReportField::ErrorMessage);
    EXPECT_EQ(complaint->text, "Enter the error message");

    report.errorMessage = "x";
    complaint = checkBugReport(report);
    ASSERT_TRUE(complaint);
    EXPECT_EQ(complaint->field, BugReportField::Circumstances);
    EXPECT_EQ(complaint->text, "Enter the circumstances in which the error occurred");

    report.circumstances = "x";
    EXPECT_FALSE(checkBugReport(report));
}

TEST_F(BugReportTest, BlanksAndThePlaceholderCountAsNothing) {
    for (const char* text : {"   ", "Type text here", "  Type text here ", "\r\n"}) {
        BugReport report = complete();
        report.errorMessage = text;
        EXPECT_EQ(checkBugReport(report)->field, BugReportField::ErrorMessage) << text;
        report = complete();
        report.circumstances = text;
        EXPECT_EQ(checkBugReport(report)->field, BugReportField::Circumstances) << text;
    }
    BugReport report = complete();
    report.errorMessage = "Type text here, it said";
    EXPECT_FALSE(checkBugReport(report));
}

TEST_F(BugReportTest, TheReportIsXmlInItsOrder) {
    EXPECT_EQ(bugReportXml(complete()),
              "<REPORT><Windows version=\"Windows XP\"/>"
              "<Application name=\"Nubivane\" version=\"6.0.0 Beta\"/>"
              "<Error><![CDATA[It says \"no\" <here> & there]]></Error>"
              "<Circumstances><![CDATA[Always]]></Circumstances></REPORT>");
}

TEST_F(BugReportTest, TextWithTheEndMarkOfItsSectionStaysWhole) {
    BugReport report = complete();
    report.errorMessage = "a]]>b";
    EXPECT_TRUE(bugReportXml(report).contains("<Error><![CDATA[a]]]]><![CDATA[>b]]></Error>"));
}

TEST_F(BugReportTest, WhatXmlForbidsIsLeftOut) {
    BugReport report = complete();
    report.errorMessage = QString("a\x01") + QChar(0xD800) + "b\xC3\xA8";
    EXPECT_TRUE(bugReportXml(report).contains("<Error><![CDATA[ab\xC3\xA8]]></Error>"));
}

TEST_F(BugReportTest, TheNameIsMadeOfTimeAndNumber) {
    const QDateTime time(QDate(2006, 3, 9), QTime(7, 5, 4, 21));
    EXPECT_EQ(generateUniqueFilename(time, 7), "09.03.2006.07.05.04.21.7.xml");
    EXPECT_EQ(generateUniqueFilename(time.addMSecs(-21), 999), "09.03.2006.07.05.04.0.999.xml");
}

TEST_F(BugReportTest, TheNumberLiesBetweenOneAndNineHundredNinetyNine) {
    static const QRegularExpression form(
        R"(^\d\d\.\d\d\.\d{4}\.\d\d\.\d\d\.\d\d\.\d{1,3}\.([1-9]\d{0,2})\.xml$)");
    QSet<QString> numbers;
    for (int i = 0; i < 50; ++i) {
        const auto match = form.match(generateUniqueFilename());
        ASSERT_TRUE(match.hasMatch());
        numbers += match.captured(1);
    }
    EXPECT_GT(numbers.size(), 5);
}

TEST_F(BugReportTest, ASentReportLiesOnTheServerAndNowhereElse) {
    OwnFtpServer server;
    QDir().mkpath(server.file(ReportFolder));
    EXPECT_TRUE(sendBugReport(complete(), workspace.folder, server.address(), transfer));
    const auto tree = server.tree();
    ASSERT_EQ(tree.size(), 1);
    EXPECT_TRUE(tree.firstKey().startsWith(QLatin1String(ReportFolder) + '/'));
    EXPECT_TRUE(tree.firstKey().endsWith(".xml"));
    EXPECT_EQ(tree.first(), bugReportXml(complete()));
    EXPECT_EQ(localFiles(), QStringList());
    EXPECT_EQ(server.commands().last(), "QUIT");
}

TEST_F(BugReportTest, AFailureAtAnyStepLeavesNoFile) {
    for (const char* fault : {"PASS=530 no", "CWD=550 no", "STOR=553 no", "STOR=drop"}) {
        OwnFtpServer server({"--fault", fault});
        QDir().mkpath(server.file(ReportFolder));
        EXPECT_FALSE(sendBugReport(complete(), workspace.folder, server.address(), transfer))
            << fault;
        EXPECT_EQ(localFiles(), QStringList()) << fault;
    }
    EXPECT_FALSE(sendBugReport(complete(), workspace.folder, {}, transfer));
    EXPECT_EQ(localFiles(), QStringList());
}

TEST_F(BugReportTest, AProgramFolderThatCannotBeWrittenIsAFailure) {
    OwnFtpServer server;
    const ProgramFolder nowhere(model("no/where"));
    EXPECT_FALSE(sendBugReport(complete(), nowhere, server.address(), transfer));
    EXPECT_EQ(server.commands(), QStringList());
}

TEST_F(BugReportTest, TheOutcomeIsToldInOneOfTwoMessages) {
    EXPECT_EQ(bugReportOutcome(true).text,
              "Thank you for your contributions, the bug report has been successfully sent. We "
              "appreciate your feedback which is used in our continuing effort to enhance "
              "Nubivane.");
    EXPECT_EQ(bugReportOutcome(true).icon, Icon::Information);
    EXPECT_EQ(bugReportOutcome(false).text, "Cannot connect to the server");
    EXPECT_EQ(bugReportOutcome(false).icon, Icon::Critical);
}

}  // namespace nubivane::testing
