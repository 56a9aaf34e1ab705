// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QImage>
#include <QPixmap>
#include <QTimer>

#include <functional>
#include <list>

namespace nubivane {

class ProjectEdits;

/// Small pictures of the map after each edit, for the list of edits. One is taken when the program
/// has nothing else to do, so that no edit waits for it; the oldest go.
class EditPictures : public QObject {
    Q_OBJECT

  public:
    static constexpr QSize Bounds{112, 84};
    static constexpr std::size_t Most = 300;

    EditPictures(const ProjectEdits& edits, std::function<QImage(QSize)> take);

    /// Takes the picture of the state that stands as soon as events have been worked off.
    void takeSoon();
    /// The picture of the state after the first `index` edits; null where none was taken.
    QPixmap picture(int index) const;

  Q_SIGNALS:
    /// A picture was taken of the state after that many edits.
    void taken(int index);

  private:
    void take();

    const ProjectEdits& edits_;
    std::function<QImage(QSize)> takePicture_;
    QTimer timer_;
    QHash<quint64, QByteArray> pictures_;  ///< encoded, by the number of the state
    std::list<quint64> order_;             ///< oldest first
};

}  // namespace nubivane
