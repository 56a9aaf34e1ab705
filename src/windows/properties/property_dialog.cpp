// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/properties/property_dialog.h"

#include "engine/core/settings_store.h"
#include "engine/core/shell.h"
#include "engine/model/edits/project_edits.h"
#include "windows/properties/property_grid.h"
#include "windows/widgets/twips.h"
#include "windows/widgets/window_place.h"

#include <QApplication>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

namespace nubivane {

namespace {

constexpr int DefaultWidth = 5180;
constexpr int DefaultHeight = 3740;
constexpr int Margin = 4;

int pixels(std::optional<int> twips, int defaultTwips) {
    return twips.value_or(defaultTwips) / TwipsPerPixel;
}

}  // namespace

PropertyDialog::PropertyDialog(const char* name, const QString& heading, Workspace& workspace,
                               Shell& shell, QWidget* parent)
    : QDialog(parent),
      workspace_(workspace),
      shell_(shell),
      grid_(new PropertyGrid(heading, this)),
      place_(new WindowPlace(*this)) {
    setObjectName(name);
    setWindowTitle(tr("Properties"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Margin, Margin, Margin, Margin);
    column->addWidget(grid_);
    // What is typed in a field is one edit until the field is left.
    connect(qApp, &QApplication::focusChanged, this, [this] { workspace_.edits().seal(); });
}

void PropertyDialog::run(const std::function<void()>& fill, QWidget* first) {
    {
        const HourglassGuard hourglass(shell_);
        fill();
        restorePlace();
        committing_ = true;
    }
    first->setFocus(Qt::TabFocusReason);
    exec();
}

void PropertyDialog::done(int result) {
    if (committing_) {
        QWidget* active = focusWidget();
        closing(active);
        committing_ = false;
        workspace_.edits().seal();
        storePlace();
    }
    QDialog::done(result);
}

/// Where a property window was closed last, over the editor the first time, and whole on a screen
/// in any case.
void PropertyDialog::restorePlace() {
    const SettingsStore& settings = workspace_.settings;
    QRect place(QPoint(),
                QSize(pixels(settings.number(Setting::PropertyDialogWidth), DefaultWidth),
                      pixels(settings.number(Setting::PropertyDialogHeight), DefaultHeight)));
    place.setSize(place.size().expandedTo(minimumSizeHint()).boundedTo(screen()->size()));
    place.moveCenter(parentWidget() ? parentWidget()->window()->frameGeometry().center()
                                    : screen()->geometry().center());
    if (const auto top = settings.number(Setting::PropertyDialogTop)) {
        place.moveTop(*top / TwipsPerPixel);
    }
    if (const auto left = settings.number(Setting::PropertyDialogLeft)) {
        place.moveLeft(*left / TwipsPerPixel);
    }
    const QScreen* there = QGuiApplication::screenAt(place.center());
    const QRect room = (there ? there : screen())->availableGeometry();
    resize(place.size().boundedTo(room.size()));
    place_->put({std::clamp(place.left(), room.left(), room.right() + 1 - width()),
                 std::clamp(place.top(), room.top(), room.bottom() + 1 - height())});
}

void PropertyDialog::storePlace() {
    const auto store = [this](Setting setting, int pixelCount) {
        workspace_.settings.set(setting, QString::number(pixelCount * TwipsPerPixel));
    };
    store(Setting::PropertyDialogWidth, width());
    store(Setting::PropertyDialogHeight, height());
    store(Setting::PropertyDialogTop, place_->corner().y());
    store(Setting::PropertyDialogLeft, place_->corner().x());
}

}  // namespace nubivane
