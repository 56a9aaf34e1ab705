// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/services/check_version.h"

#include "engine/core/error.h"
#include "engine/net/ftp_transfer.h"
#include "engine/services/publisher.h"
#include "support/ftp_servers.h"

namespace nubivane::testing {

namespace {

constexpr char Question[] =
    "The server holds an updated version of Nubivane. Would you like to download the "
    "installation file now ? ";
constexpr char UpToDate[] = "The current version of Nubivane (6.0.0) is already up-to-date.";

class CheckVersion : public WorkspaceFixture {
  protected:
    void serve(const QByteArray& list) { writeFile(server.file("software/vsrchk.xml"), list); }

    /// A list with one row of this program.
    static QByteArray listOf(const QByteArray& version) {
        return "<versions><row name=\"nVane\" version=\"" + version + "\"/></versions>";
    }

    Publisher publisher() const {
        Publisher own;
        own.versions = server.address();
        own.downloadHost = "downloads.example.org";
        return own;
    }

    QString check(bool verbose = true) {
        return checkVersion(verbose, publisher(), shell, transfer);
    }

    /// The URL after the question was answered with yes.
    QString urlAfterYes() {
        shell.expectMessage(Question, Icon::Question, Buttons::YesNo, Answer::Yes);
        return check();
    }

    OwnFtpServer server;
    ftpTransfer transfer{testLimits()};
};

constexpr char Start[] = "http://downloads.example.org/software/download/nVane/6.0.0/nVane_";

}  // namespace

TEST_F(CheckVersion, TheSameVersionIsUpToDate) {
    serve(listOf("6.0.0"));
    shell.expectMessage(UpToDate, Icon::Information);
    EXPECT_EQ(check(), "");
}

TEST_F(CheckVersion, UnlessVerboseThatIsNotSaid) {
    serve(listOf("6.0.0"));
    EXPECT_EQ(check(false), "");
}

TEST_F(CheckVersion, AnyOtherVersionIsOffered) {
    for (const char* version : {"6.0.1", "5.9.0", "6.0", "x"}) {
        serve(listOf(version));
        EXPECT_EQ(urlAfterYes(), QLatin1String(Start) + version + ".EXE");
    }
}

TEST_F(CheckVersion, NoGivesNothing) {
    serve(listOf("6.0.1"));
    shell.expectMessage(Question, Icon::Question, Buttons::YesNo, Answer::No);
    EXPECT_EQ(check(), "");
}

TEST_F(CheckVersion, TheRowIsFoundInAnyCaseWithBlanksAround) {
    serve("<v><r a=\"other\" b=\"1\"/><r a=\" NVANE \" b=\" 6.0.0 \"/></v>");
    shell.expectMessage(UpToDate, Icon::Information);
    EXPECT_EQ(check(), "");
}

TEST_F(CheckVersion, AListWithoutTheProgramOffersAnEmptyVersion) {
    for (const char* list : {"<v><r a=\"other\" b=\"6.0.0\"/></v>", "<v/>", "<v><r/></v>",
                             "<v><deeper><r a=\"nvane\" b=\"6.0.0\"/></deeper></v>",
                             "<v><r b=\"6.0.0\" a=\"nvane\"/></v>"}) {
        serve(list);
        EXPECT_EQ(urlAfterYes(), QLatin1String(Start) + ".EXE") << list;
    }
}

TEST_F(CheckVersion, AListThatIsNoXmlOffersAnEmptyVersion) {
    for (const char* list : {"no list", "<v><r a=\"nvane\" b=\"6.0.0\"/>",
                             "<v><r a=\"nvane\" b=\"6.0.0\"></v>", "<a/><b/>", "\r\n"}) {
        serve(list);
        EXPECT_EQ(urlAfterYes(), QLatin1String(Start) + ".EXE") << list;
    }
}

TEST_F(CheckVersion, OneEqualRowAmongManyIsEnough) {
    serve(
        "<v><r a=\"nvane\" b=\"5.0.0\"/><r a=\"nvane\" b=\"6.0.0\"/>"
        "<r a=\"nvane\" b=\"7.0.0\"/></v>");
    shell.expectMessage(UpToDate, Icon::Information);
    EXPECT_EQ(check(), "");
}

TEST_F(CheckVersion, AmongDifferentRowsTheLastOneCounts) {
    serve("<v><r a=\"nvane\" b=\"5.0.0\"/><r a=\"nvane\" b=\"7.0.0\"/></v>");
    EXPECT_EQ(urlAfterYes(), QLatin1String(Start) + "7.0.0.EXE");
}

TEST_F(CheckVersion, LineEndsAndCommentsDoNotMatter) {
    serve(
        "<?xml version=\"1.0\"?>\r\n<v>\r\n<!-- note -->\r\n<r a=\"nvane\"\r\n b=\"6.0\r\n.0\"/>"
        "\r\n</v>\r\n");
    // The pair inside the tag goes too, and its blank parts the attributes.
    shell.expectMessage(UpToDate, Icon::Information);
    EXPECT_EQ(check(), "");
}

TEST_F(CheckVersion, AVersionCannotLeaveItsPlaceInTheAddress) {
    serve(listOf("../../x?y#z /"));
    EXPECT_EQ(urlAfterYes(), QLatin1String(Start) + "..%2F..%2Fx%3Fy%23z%20%2F.EXE");
}

TEST_F(CheckVersion, AnEmptyOrMissingFileIsToBeTriedLater) {
    for (const bool missing : {true, false}) {
        if (!missing) {
            serve("");
        }
        try {
            check();
            FAIL() << "nothing was raised";
        } catch (const Error& error) {
            EXPECT_EQ(error.description(), "Cannot check for update at this time: try again later");
            EXPECT_EQ(error.source(), "checkVersion");
        }
    }
    EXPECT_EQ(server.commands().last(), "QUIT");
}

TEST_F(CheckVersion, AServerThatCannotBeReachedIsRaised) {
    Publisher nobody;
    try {
        checkVersion(true, nobody, shell, transfer);
        FAIL() << "nothing was raised";
    } catch (const Error& error) {
        EXPECT_EQ(error.description(), "Cannot connect to the server");
    }
}

TEST_F(CheckVersion, WithoutANetworkTheTwoTextsDifferByACapital) {
    shell.network = false;
    Publisher far = publisher();
    far.versions.host = "versions.example.org";
    try {
        checkVersion(true, far, shell, transfer);
        FAIL() << "nothing was raised";
    } catch (const Error& error) {
        EXPECT_EQ(error.description(), "No connection to the Internet is currently available");
    }
    shell.expectMessage("No connection to the internet is currently available", Icon::Critical);
    mnuLastVersion(far, shell, transfer, [](const QString&) { FAIL(); });
}

TEST_F(CheckVersion, TheCommandHandsTheAddressOn) {
    serve(listOf("6.0.1"));
    shell.expectMessage(Question, Icon::Question, Buttons::YesNo, Answer::Yes);
    QStringList urls;
    mnuLastVersion(publisher(), shell, transfer, [&](const QString& url) { urls << url; });
    EXPECT_EQ(urls, QStringList({QLatin1String(Start) + "6.0.1.EXE"}));
    EXPECT_EQ(shell.pointer, Pointer::Default);
}

TEST_F(CheckVersion, TheCommandDownloadsNothingWithoutAYes) {
    const auto refuse = [](const QString&) { FAIL(); };
    serve(listOf("6.0.1"));
    shell.expectMessage(Question, Icon::Question, Buttons::YesNo, Answer::No);
    mnuLastVersion(publisher(), shell, transfer, refuse);
    serve(listOf("6.0.0"));
    shell.expectMessage(UpToDate, Icon::Information);
    mnuLastVersion(publisher(), shell, transfer, refuse);
    serve("");
    shell.expectMessage("Cannot check for update at this time: try again later", Icon::Critical);
    mnuLastVersion(publisher(), shell, transfer, refuse);
    EXPECT_EQ(shell.pointer, Pointer::Default);
}

TEST(PublisherOfThisBuild, ListensOnTheStandardPort) {
    const Publisher publisher = Publisher::ofThisBuild();
    EXPECT_EQ(publisher.reports.port, 21);
    EXPECT_EQ(publisher.packs.port, 21);
    EXPECT_EQ(publisher.versions.port, 21);
}

}  // namespace nubivane::testing
