// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/frm_draw_action.h"

#include "engine/core/settings_store.h"
#include "windows/widgets/icons.h"
#include "windows/widgets/twips.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>

#include <algorithm>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// A place that shows all of a window, or as much as there is room for.
QPoint insideScreen(QPoint place, const QSize& size, const QRect& screen) {
    const auto within = [](int value, int first, int last) {
        return std::max(first, std::min(value, last));
    };
    return {within(place.x(), screen.left(), screen.right() + 1 - size.width()),
            within(place.y(), screen.top(), screen.bottom() + 1 - size.height())};
}

}  // namespace

frmDrawAction::frmDrawAction(SettingsStore& settings, QWidget* owner)
    : QDialog(owner, Qt::Tool), settings_(settings), place_(new WindowPlace(*this)) {
    setObjectName("frmDrawAction");
    setWindowTitle(tr("Drawing"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    auto* apply = new QPushButton(programIcon(u"apply"_s), tr("&Apply"), this);
    apply->setObjectName("cmdDrawApply");
    apply->setDefault(true);
    connect(apply, &QPushButton::clicked, this, &frmDrawAction::applied);
    auto* cancel = new QPushButton(programIcon(u"cancel"_s), tr("&Cancel"), this);
    cancel->setObjectName("cmdDrawCancel");
    connect(cancel, &QPushButton::clicked, this, &frmDrawAction::cancelled);
    auto* row = new QHBoxLayout(this);
    row->addWidget(apply);
    row->addWidget(cancel);
    row->setSizeConstraint(QLayout::SetFixedSize);
}

/// Only now is the size known, but for the title bar and borders, which will be much like the main
/// window's.
void frmDrawAction::showEvent(QShowEvent* event) {
    if (!placed_) {
        placed_ = true;
        restorePlace();
    }
    QDialog::showEvent(event);
}

void frmDrawAction::restorePlace() {
    const auto top = settings_.number(Setting::DrawDialogTop);
    const auto left = settings_.number(Setting::DrawDialogLeft);
    layout()->activate();
    const QWidget& owner = *parentWidget();
    QRect place(QPoint(), size() + owner.frameGeometry().size() - owner.size());
    if (top && left) {
        place.moveTo(*left / TwipsPerPixel, *top / TwipsPerPixel);
    } else {
        place.moveCenter(owner.frameGeometry().center());
    }
    place_->put(insideScreen(place.topLeft(), place.size(), screen()->availableGeometry()));
}

void frmDrawAction::unload() {
    settings_.set(Setting::DrawDialogTop, QString::number(place_->corner().y() * TwipsPerPixel));
    settings_.set(Setting::DrawDialogLeft, QString::number(place_->corner().x() * TwipsPerPixel));
    hide();
    // Whoever asks for the loaded windows must not find one that is on its way out.
    setObjectName(QString());
    deleteLater();
}

}  // namespace nubivane
