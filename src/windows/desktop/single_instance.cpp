// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/desktop/single_instance.h"

#include <QCryptographicHash>
#include <QDir>
#include <QLocalSocket>
#include <QLockFile>

namespace nubivane {

namespace {

constexpr int AnswerMs = 500;

}  // namespace

SingleInstance::SingleInstance(const QString& programFolder) {
    const QByteArray user = qgetenv("USER") + qgetenv("USERNAME");
    const QByteArray hash =
        QCryptographicHash::hash(programFolder.toUtf8() + '\0' + user, QCryptographicHash::Sha256);
    name_ = "nubivane-" + QString::fromLatin1(hash.toHex().left(24));
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&server_, &QLocalServer::newConnection, this, [this] {
        delete server_.nextPendingConnection();
        if (raised) {
            raised();
        }
    });
}

bool SingleInstance::raiseOther() {
    QLocalSocket socket;
    socket.connectToServer(name_);
    return socket.waitForConnected(AnswerMs);
}

bool SingleInstance::isFirst() {
    // Of two that start at once the second looks when the first can be found. Without the lock two
    // may run, which is better than none.
    QLockFile starting(QDir::tempPath() + '/' + name_ + ".lock");
    starting.tryLock(2 * AnswerMs);
    if (raiseOther()) {
        return false;
    }
    // What a crashed instance left behind answers nobody and would be in the way.
    QLocalServer::removeServer(name_);
    server_.listen(name_);
    return true;
}

}  // namespace nubivane
