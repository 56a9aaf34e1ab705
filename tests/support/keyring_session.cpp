// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/keyring_session.h"

#include "support/processes.h"

#include <QDir>
#include <QElapsedTimer>

namespace nubivane::testing {

namespace {

constexpr int StartMs = 20000;

void end(QProcess& process) {
    process.terminate();
    if (process.state() != QProcess::NotRunning && !process.waitForFinished(3000)) {
        process.kill();
        process.waitForFinished();
    }
}

}  // namespace

KeyringSession::KeyringSession() {
    bus_.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
    if (!bus_.waitForReadyRead(StartMs)) {
        obstacle_ = "dbus-daemon: " + bus_.errorString();
        return;
    }
    const QByteArray address = bus_.readLine().trimmed();
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    variables.insert("HOME", folder_.path());
    variables.insert("XDG_DATA_HOME", folder_.file("data"));
    variables.insert("XDG_RUNTIME_DIR", folder_.file("run"));
    variables.insert("DBUS_SESSION_BUS_ADDRESS", QString::fromLocal8Bit(address));
    QDir().mkpath(folder_.file("run"));
    QDir().mkpath(folder_.file("data"));
    keyring_.setProcessEnvironment(variables);
    keyring_.start("gnome-keyring-daemon", {"--foreground", "--unlock", "--components=secrets"});
    if (!keyring_.waitForStarted(StartMs)) {
        obstacle_ = "gnome-keyring-daemon: " + keyring_.errorString();
        return;
    }
    keyring_.write("login");
    keyring_.closeWriteChannel();
    QElapsedTimer timer;
    timer.start();
    while (!answers() && timer.elapsed() < StartMs) {
        keyring_.waitForFinished(20);
    }
}

/// Asked in a way that starts none by itself.
bool KeyringSession::answers() {
    const ProcessResult reply = runProgram(
        "dbus-send", {"--session", "--print-reply", "--dest=org.freedesktop.DBus", "/",
                      "org.freedesktop.DBus.NameHasOwner", "string:org.freedesktop.secrets"});
    return reply.out.contains("true");
}

KeyringSession::~KeyringSession() {
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    end(keyring_);
    end(bus_);
}

}  // namespace nubivane::testing
