// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/stored_password.h"

#include "engine/upload/keyring.h"
#include "engine/upload/upload_fixture.h"
#include "support/keyring_session.h"

namespace nubivane::testing {

namespace {

class StoredPasswords : public UploadTest {
  protected:
    StoredPasswords() { settings.set(Setting::FtpPassword, ""); }

    StoredPassword ofUser(const QString& user = "me") const {
        return storedPassword(settings, "ftp.example.org", user);
    }
    /// One for all tests: a process keeps to the bus that it has met first.
    static const KeyringSession& session() {
        static const KeyringSession theOne;
        return theOne;
    }
    std::optional<PasswordPlace> keep(const QString& password) {
        return storePassword(settings, "ftp.example.org", "me", password);
    }
};

}  // namespace

TEST_F(StoredPasswords, LieInTheSettingsWhereThereIsNoKeyring) {
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("XDG_RUNTIME_DIR", temporary.file("run").toLocal8Bit());
    EXPECT_EQ(keep("pass"), PasswordPlace::Settings);
    EXPECT_EQ(settings.text(Setting::FtpPassword), "pass");
    EXPECT_EQ(ofUser().password, "pass");
    EXPECT_EQ(ofUser().place, PasswordPlace::Settings);
    EXPECT_EQ(keep(""), PasswordPlace::Settings);
    EXPECT_EQ(ofUser().password, "");
}

TEST_F(StoredPasswords, LieInTheSettingsWhereNobodyAnswersOnTheBus) {
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere/at/all");
    EXPECT_EQ(keep("pass"), PasswordPlace::Settings);
    EXPECT_EQ(ofUser().password, "pass");
}

TEST_F(StoredPasswords, LieInTheKeyringOfTheDesktopWhereThereIsOne) {
    if (!session().obstacle().isEmpty()) {
        GTEST_SKIP() << session().obstacle().toStdString();
    }
    EXPECT_EQ(ofUser().place, PasswordPlace::Keyring) << "that is where it would lie";
    EXPECT_EQ(keep("pa\xC3\xA4ss \"word\""), PasswordPlace::Keyring);
    EXPECT_EQ(settings.text(Setting::FtpPassword), "");
    EXPECT_EQ(ofUser().password, QString::fromUtf8("pa\xC3\xA4ss \"word\""));
    EXPECT_EQ(ofUser().place, PasswordPlace::Keyring);
    EXPECT_EQ(ofUser("you").password, "") << "each account has its own";
    EXPECT_EQ(keep("another"), PasswordPlace::Keyring);
    EXPECT_EQ(ofUser().password, "another");
    EXPECT_EQ(keep(""), PasswordPlace::Settings);
    EXPECT_EQ(keyring::find("me@ftp.example.org").outcome, keyring::Outcome::NothingThere);
    // One that was stored before there was a keyring goes there with the next one.
    settings.set(Setting::FtpPassword, "readable");
    EXPECT_EQ(ofUser().place, PasswordPlace::Settings);
    EXPECT_EQ(keep("readable"), PasswordPlace::Keyring);
    EXPECT_EQ(settings.text(Setting::FtpPassword), "");
}

TEST_F(StoredPasswords, AnUploadTakesItFromTheKeyring) {
    if (!session().obstacle().isEmpty()) {
        GTEST_SKIP() << session().obstacle().toStdString();
    }
    OwnFtpServer server;
    FtpSettings typed = FtpSettings::read(settings);
    typed.password = FtpPassword;
    typed.groups.htmlPage = true;
    ASSERT_TRUE(typed.save(settings));
    EXPECT_EQ(settings.text(Setting::FtpPassword), "");
    UploadCommands sending(editor(), window, limitsFor(server));
    sending.mnuInvia();
    EXPECT_TRUE(server.commands().contains(QStringLiteral("PASS ") + FtpPassword));
    EXPECT_TRUE(server.tree().contains("nVane/Forecast.htm"));
}

}  // namespace nubivane::testing
