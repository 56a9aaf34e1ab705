// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/keyring.h"

// Before Qt, whose words of its own this header uses as names.
#include <QEventLoop>
#include <QFileInfo>
#include <QTimer>
#include <qt6keychain/keychain.h>

#include <gio/gio.h>

#include <chrono>

namespace nubivane::keyring {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::seconds LongestWait{60};

/// What the keyring's own window calls the program.
QString service() {
    return u"Nubivane"_s;
}

/// A bus is never started for this: a machine without a desktop has no keyring either.
bool hasBus() {
    return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
           QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + u"/bus"_s);
}

/// The keyring's library would end the program when the session's bus goes away, as at a log-out,
/// whatever had not been saved.
void outliveTheBus() {
    if (GDBusConnection* bus = g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr)) {
        g_dbus_connection_set_exit_on_close(bus, FALSE);
        g_object_unref(bus);
    }
}

/// Runs a job to its end, or leaves it to itself: it deletes itself when it has ended.
template <class Job>
Outcome finish(Job* job, const QString& account, QString* password = nullptr) {
    outliveTheBus();
    job->setInsecureFallback(false);
    job->setKey(account);
    QEventLoop loop;
    Outcome outcome = Outcome::NoKeyring;
    QObject::connect(job, &QKeychain::Job::finished, &loop, [&](const QKeychain::Job* ended) {
        if (ended->error() == QKeychain::NoError) {
            outcome = Outcome::Done;
            if constexpr (std::is_same_v<Job, QKeychain::ReadPasswordJob>) {
                *password = job->textData();
            }
        } else if (ended->error() == QKeychain::EntryNotFound) {
            outcome = Outcome::NothingThere;
        }
        loop.quit();
    });
    QTimer::singleShot(LongestWait, &loop, &QEventLoop::quit);
    job->start();
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    return outcome;
}

}  // namespace

Found find(const QString& account) {
    Found found;
    if (hasBus()) {
        found.outcome = finish(new QKeychain::ReadPasswordJob(service()), account, &found.password);
    }
    return found;
}

bool keep(const QString& account, const QString& password) {
    if (!hasBus()) {
        return false;
    }
    auto* job = new QKeychain::WritePasswordJob(service());
    job->setTextData(password);
    return finish(job, account) == Outcome::Done;
}

void forget(const QString& account) {
    if (hasBus()) {
        finish(new QKeychain::DeletePasswordJob(service()), account);
    }
}

}  // namespace nubivane::keyring
