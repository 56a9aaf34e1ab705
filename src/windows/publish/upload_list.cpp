// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/publish/upload_list.h"

#include "engine/core/error.h"
#include "engine/model/workspace.h"
#include "engine/upload/unsendable_names.h"
#include "engine/upload/upload_outlook.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

// Numbers of the check boxes.
constexpr std::size_t Symbols = 0;
constexpr std::size_t Maps = 1;
constexpr std::size_t HtmlPage = 2;

constexpr int ListGap = 8;
constexpr int ListLines = 6;

}  // namespace

UploadList::UploadList(const Workspace& workspace)
    : workspace_(workspace),
      chkEverything_(new QCheckBox(tr("Send &everything, also what has not changed"))),
      lstOutlook_(new QTreeWidget),
      lblOutlook_(new QLabel) {
    setObjectName("fraUploadList");
    auto* column = new QVBoxLayout(this);
    auto* caption = new QLabel(tr("Select files to upload to the ftp server"));
    caption->setObjectName("lblUpload");
    column->addWidget(caption);
    for (const auto& [number, text] :
         {std::pair(Symbols, tr("S&ymbols")), std::pair(Maps, tr("&Maps")),
          std::pair(HtmlPage, tr("Html &page"))}) {
        auto* box = new QCheckBox(text);
        box->setObjectName(u"chkUpload"_s + QString::number(number));
        connect(box, &QCheckBox::toggled, this, &UploadList::changed);
        chkUpload_.at(number) = box;
        column->addWidget(box);
    }
    column->addSpacing(ListGap);
    chkEverything_->setObjectName("chkEverything");
    connect(chkEverything_, &QCheckBox::toggled, this, &UploadList::changed);
    connect(this, &UploadList::changed, this, &UploadList::forgetOutlook);
    column->addWidget(chkEverything_);
    auto* cmdOutlook = new QPushButton(tr("&What would be sent"));
    cmdOutlook->setObjectName("cmdOutlook");
    cmdOutlook->setAutoDefault(false);
    connect(cmdOutlook, &QPushButton::clicked, this, &UploadList::showOutlook);
    column->addWidget(cmdOutlook, 0, Qt::AlignLeft);
    lstOutlook_->setObjectName("lstOutlook");
    lstOutlook_->setAccessibleName(tr("Files that would be sent"));
    lstOutlook_->setHeaderLabels({tr("File"), tr("Bytes")});
    lstOutlook_->setRootIsDecorated(false);
    lstOutlook_->setUniformRowHeights(true);
    lstOutlook_->header()->setStretchLastSection(false);
    lstOutlook_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    lstOutlook_->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    lstOutlook_->setMinimumHeight(fontMetrics().height() * ListLines);
    column->addWidget(lstOutlook_, 1);
    lblOutlook_->setObjectName("lblOutlook");
    column->addWidget(lblOutlook_);
}

void UploadList::setGroups(const UploadGroups& groups, bool everything) {
    chkUpload_.at(Symbols)->setChecked(groups.symbols);
    chkUpload_.at(Maps)->setChecked(groups.maps);
    chkUpload_.at(HtmlPage)->setChecked(groups.htmlPage);
    chkEverything_->setChecked(everything);
    forgetOutlook();
}

UploadGroups UploadList::groups() const {
    return {chkUpload_.at(Symbols)->isChecked(), chkUpload_.at(Maps)->isChecked(),
            chkUpload_.at(HtmlPage)->isChecked()};
}

bool UploadList::everything() const {
    return chkEverything_->isChecked();
}

QWidget* UploadList::firstField() const {
    return chkUpload_.at(Symbols);
}

void UploadList::forgetOutlook() {
    lstOutlook_->clear();
    lblOutlook_->clear();
}

/// By what this machine has sent to the server of the settings; the server itself is not asked.
void UploadList::showOutlook() {
    forgetOutlook();
    const QLocale locale;
    const auto addRow = [this](const QString& name, const QString& bytes) {
        auto* row = new QTreeWidgetItem(lstOutlook_, {name, bytes});
        row->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        row->setToolTip(0, name);
    };
    for (const QString& name : unsendableNames(workspace_, groups())) {
        addRow(tr("cannot be sent: %1").arg(name), {});
    }
    try {
        const UploadOutlook outlook = outlookOf(workspace_, groups(), everything());
        for (const UploadOutlook::File& file : outlook.files) {
            addRow(file.name, locale.toString(file.bytes));
        }
        const auto count = static_cast<qsizetype>(outlook.files.size());
        lblOutlook_->setText(tr("%1 of %2 files, %3")
                                 .arg(count)
                                 .arg(count + outlook.unchanged)
                                 .arg(locale.formattedDataSize(outlook.bytes)));
    } catch (const Error& error) {
        lblOutlook_->setText(error.description());
    }
}

}  // namespace nubivane
