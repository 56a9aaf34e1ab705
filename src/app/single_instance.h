#pragma once

#include <QLocalServer>
#include <QObject>

#include <functional>

namespace nubivane {

/// Sees to it that a user runs one editor on a program folder: a second one raises the first one's
/// window and ends.
class SingleInstance : public QObject {
  public:
    explicit SingleInstance(const QString& programFolder);

    /// True when another instance runs; it has been asked to come to the front.
    bool raiseOther();
    /// Makes this the instance that others find.
    void listen();

    std::function<void()> raised;

  private:
    QString name_;
    QLocalServer server_;
};

}  // namespace nubivane
